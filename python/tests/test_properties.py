"""Properties that hold for any records and any text."""
import string

import hypothesis.strategies as st
import pytest
from hypothesis import HealthCheck, given, settings

import journalmessages as jm

# Not carried by any message, or not read back by the clients of these logs.
NOT_READ = {
    jm.MissedCall: {"info_key"},
    jm.DialledCall: {"info_key", "name_presentation"},
    jm.ReceivedCall: {"info_key", "connected_surname", "connected_first_name"},
    jm.ForwardedCall: {"info_key", "connected_surname", "connected_first_name"},
}
ESCAPED = {"surname", "firstname"}

anything = st.text(st.characters(blacklist_categories=["Cs"], blacklist_characters="\0"))
plain = st.text(string.ascii_letters + string.digits + " +-:./äßé漢", max_size=20)


def field(unset, name, markup):
    if isinstance(unset, bool):
        return st.booleans()
    if isinstance(unset, int):
        return st.sampled_from(type(unset))
    return anything if markup and name in ESCAPED else plain


def records(record, markup, **more):
    unset = record()
    fields = {
        name: field(getattr(unset, name), name, markup)
        for name in record.__match_args__
        if name != "calls"
    }
    return st.builds(record, **fields, **more)


def entries(kind, markup=False):
    name = kind.name.capitalize()
    calls = st.lists(records(getattr(jm, f"{name}Call"), False), max_size=3)
    return records(getattr(jm, f"{name}Entry"), markup, calls=calls)


def logs(markup=False):
    handles = st.integers(0, 2**32 - 1)
    return st.sampled_from(jm.Kind).flatmap(
        lambda kind: st.builds(
            jm.ListResponse, st.just(kind), st.lists(entries(kind, markup), max_size=3), handles
        )
    )


def as_read(log):
    """What the wire keeps."""
    for entry in log.entries:
        for call in entry.calls:
            unset = type(call)()
            for name in NOT_READ[type(call)]:
                setattr(call, name, getattr(unset, name))
    return log


@given(logs(markup=True))
def test_what_is_encoded_decodes_to_what_the_wire_keeps(log):
    assert jm.decode(jm.encode(log)) == as_read(log)


@given(logs(), st.sampled_from(jm.Action), st.integers(0, 2**32 - 1), plain)
def test_the_same_for_notifications(log, action, handle, removed):
    for entry in as_read(log).entries:
        note = jm.EntryNotification(entry, action, handle, removed)
        assert jm.decode(jm.encode(note)) == note


@given(logs())
def test_check_finds_nothing_in_what_is_encoded_from_plain_texts(log):
    findings = jm.check(jm.encode(log))
    # A name may hold the word that clients take for a failure.
    assert [one for one in findings if one.rule != "failure-word"] == []


@given(st.sets(plain, max_size=5))
def test_the_ids_of_a_request(ids):
    request = jm.decode(jm.requests.delete_missed_call_list(ids))
    assert request.entry_ids == sorted((one for one in ids if one), key=str.encode)


TAGS = [
    "<Method>",
    "</Method>",
    "<getMissedCallList>",
    "<missedCallsUpdate>",
    "<Entry>",
    "</Entry>",
    "<LogList>",
    "</LogList>",
    "<Item>",
    "</Item>",
    "<Number>",
    "</Number>",
    "<Handle>",
    "</Handle>",
    "<Value>",
    "Success",
    "<EntryId>",
    "</EntryId>",
    "<Surname>",
    "</Surname>",
    "<Viewed>",
    "\0",
    "<CallLogEnabled>",
    '<Schema name="',
    "&amp;",
    "\udcff",
    "7",
    "x" * 100,
]


@given(
    st.lists(st.sampled_from(TAGS) | anything, max_size=20), st.none() | st.sampled_from(jm.Kind)
)
@settings(max_examples=500)
def test_no_text_raises_anything_but_what_is_documented(parts, kind):
    text = "".join(parts)
    try:
        message = jm.decode(text, kind)
    except jm.NotAMessage:
        message = None
    for ask in (jm.check, jm.explain, jm.identify):
        ask(text)
    list(jm.scan(text.encode("utf-8", "surrogateescape"), kind))
    if message is not None:
        assert message.raw == text.encode("utf-8", "surrogateescape")
        message.to_dict(), repr(message), jm.encode(message)
        with_findings = jm.check(text, kind)
        if with_findings:
            with pytest.raises(jm.DamagedMessage):
                jm.decode(text, kind, strict=True)


@given(st.binary(max_size=200))
def test_no_bytes_do_either(data):
    try:
        jm.decode(data)
    except jm.NotAMessage:
        pass
    jm.check(data), list(jm.scan(data))


@given(st.binary(max_size=50).filter(lambda data: not set(data) & set(b"<>&\0")))
def test_any_bytes_survive_in_a_value(data):
    text = b"<Method><getMissedCallList></Method><Entry><Picture>" + data + b"</Picture></Entry>"
    log = jm.decode(text)
    assert log.entries[0].picture.encode("utf-8", "surrogateescape") == data
    assert jm.decode(jm.encode(log)).entries[0].picture == log.entries[0].picture


@given(logs())
@settings(suppress_health_check=[HealthCheck.too_slow])
def test_json_describes_all_that_is_read(log):
    assert jm.from_json(as_read(log).to_json()) == log
