"""Every golden message: decoded, and built again from values."""
import json

import pytest

import journalmessages as jm

TYPES = {
    "req": jm.Request,
    "obsReqMissedCallsCount": jm.CounterNotification,
    "obsReqMissedGroupCalls": jm.CounterNotification,
    "obsReq": jm.EntryNotification,
    "read": jm.StoreRequest,
    "delete": jm.StoreRequest,
}


def type_of(name):
    if name.endswith("-log"):
        return jm.ListResponse
    longest = max((start for start in TYPES if name.startswith(start)), key=len)
    return TYPES[longest]


def test_each_is_decoded_to_its_type(goldens):
    assert len(goldens) >= 40
    for name, raw in goldens.items():
        message = jm.decode(raw, strict=True)
        assert type(message) is type_of(name), name
        assert message.raw == raw


def test_str_gives_the_same(goldens):
    for raw in goldens.values():
        assert jm.decode(raw.decode("utf-8", "surrogateescape")) == jm.decode(raw)


def test_json_gives_the_same_bytes(goldens):
    for name, raw in goldens.items():
        message = jm.decode(raw)
        assert json.loads(message.to_json())["kind"] == message.to_dict()["kind"]
        assert jm.diff(jm.from_json(message.to_json()), message) == [], name


def test_what_is_encoded_decodes_to_the_same(goldens):
    for name, raw in goldens.items():
        message = jm.decode(raw)
        assert jm.decode(jm.encode(message)) == message, name


def test_messages_without_written_only_values_come_back_byte_for_byte(goldens):
    for name, raw in goldens.items():
        if not isinstance(jm.decode(raw), (jm.ListResponse, jm.EntryNotification)):
            assert jm.encode(jm.decode(raw)) == raw, name


def test_a_list_response_holds_what_the_text_says(golden):
    raw = golden("missed-log")
    log = jm.decode(raw)
    assert log.kind is jm.Kind.MISSED
    assert len(log.entries) == raw.count(b"<Entry>")
    assert sum(len(entry.calls) for entry in log.entries) == raw.count(b"<Item>")
    for entry in log.entries:
        assert f"<UniqueId>{entry.unique_id}</UniqueId>".encode() in raw or not entry.unique_id
        assert isinstance(entry, jm.MissedEntry) and isinstance(entry.viewed, bool)
        for call in entry.calls:
            assert isinstance(call.number_type, jm.NumberType)
            assert f"<NumberType>{call.number_type.name}</NumberType>".encode() in raw


@pytest.mark.parametrize("kind", jm.Kind)
def test_responses_build_the_golden_logs(kind, golden):
    name = kind.name.lower()
    log = jm.decode(golden(f"{name}-log"))
    built = getattr(jm.responses, f"get_{name}_call_list")(log.entries, log.handle)
    assert jm.decode(built) == log
