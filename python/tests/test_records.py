"""Entries and calls as objects."""
import copy
import dataclasses
import gc
import pickle
import pprint
import re
from pathlib import Path

import pytest

import journalmessages as jm

ENTRIES = [jm.MissedEntry, jm.DialledEntry, jm.ReceivedEntry, jm.ForwardedEntry]
CALLS = [jm.MissedCall, jm.DialledCall, jm.ReceivedCall, jm.ForwardedCall]


def log_of(*surnames):
    entries = [
        jm.MissedEntry(
            surname=name, calls=[jm.MissedCall(number=f"{name}-{at}") for at in range(3)]
        )
        for name in surnames
    ]
    return jm.decode(jm.responses.get_missed_call_list(entries, 7))


HEADER = (Path(__file__).parents[2] / "include" / "CallLogItems.h").read_text()


def declared(struct):
    """The members of a struct of the header by their Python names, in order."""
    body = re.search(rf"^( *)struct {struct} {{\n(.*?)^\1}};", HEADER, re.M | re.S)
    indent = body[1] + "  "
    names = re.findall(rf"^{indent}[\w:<>]+ (\w+)(?:;| =)", body[2], re.M)
    snake = [re.sub("[A-Z]+", lambda found: "_" + found[0].lower(), name) for name in names]
    return tuple("calls" if name == "call_info_list" else name for name in snake)


@pytest.mark.parametrize("record", ENTRIES + CALLS)
def test_the_fields_are_in_the_order_of_the_header(record):
    kind = record.kind.name.capitalize()
    struct = f"{kind}CallItem" if record in ENTRIES else f"{kind}CallInfo"
    assert record.__match_args__ == declared(struct)
    assert len(declared(struct)) > 4


@pytest.mark.parametrize("record", ENTRIES + CALLS)
def test_a_record_in_a_long_list_is_printed_prettily(record):
    many = [record()] * 20
    assert pprint.pformat(many).count(repr(record())) == 20


@pytest.mark.parametrize("record", ENTRIES + CALLS)
def test_an_empty_record(record):
    empty = record()
    assert empty == record() and repr(empty) == f"{record.__name__}()"
    for name in record.__match_args__:
        assert getattr(empty, name) in ("", False, [], 0, 6)


@pytest.mark.parametrize("record", ENTRIES + CALLS)
def test_every_field_is_set_by_position_by_name_and_as_attribute(record):
    values = []
    for name in record.__match_args__:
        value = getattr(record(), name)
        if isinstance(value, bool):
            values.append(True)
        elif isinstance(value, int):
            values.append(type(value)(1))
        elif isinstance(value, list):
            values.append([CALLS[ENTRIES.index(record)]()])
        else:
            values.append(f"a {name}")
    by_position = record(*values)
    by_name = record(**dict(zip(record.__match_args__, values)))
    by_attribute = record()
    for name, value in zip(record.__match_args__, values):
        setattr(by_attribute, name, value)
        assert getattr(by_attribute, name) == value
    assert by_position == by_name == by_attribute != record()
    assert eval(repr(by_name), vars(jm)) == by_name
    assert (
        pickle.loads(pickle.dumps(by_name))
        == copy.copy(by_name)
        == copy.deepcopy(by_name)
        == by_name
    )
    assert dataclasses.replace(by_name) == by_name
    assert list(dataclasses.asdict(by_name)) == list(record.__match_args__)


@pytest.mark.parametrize(
    "name, value",
    [
        ("number", 5),
        ("number", b"5"),
        ("number", None),
        ("number_type", "MOBILE"),
        ("number_type", 2**31),
        ("number_type", -(2**31) - 1),
        ("info_key", 1.5),
    ],
)
def test_values_of_another_type(name, value):
    call = jm.MissedCall()
    with pytest.raises((TypeError, ValueError), match=name):
        setattr(call, name, value)
    with pytest.raises((TypeError, ValueError), match=name):
        jm.MissedCall(**{name: value})
    assert call == jm.MissedCall()


def test_other_arguments():
    with pytest.raises(TypeError, match="surnam"):
        jm.MissedEntry(surnam="Berg")
    for name in ("\udcff", "\ud800"):
        with pytest.raises((TypeError, UnicodeEncodeError)):
            jm.MissedEntry(**{name: "Berg"})
    with pytest.raises(TypeError, match="twice"):
        jm.MissedEntry("1", unique_id="2")
    with pytest.raises(TypeError):
        jm.MissedEntry(*range(20))
    with pytest.raises(TypeError, match="list"):
        jm.MissedEntry(calls=())
    with pytest.raises(AttributeError):
        jm.MissedEntry().surnam = "Berg"
    with pytest.raises(TypeError, match="deleted"):
        del jm.MissedEntry().surname
    with pytest.raises(TypeError, match="bool"):
        jm.MissedEntry(viewed=1)


def test_a_number_without_a_name_is_an_int_and_written_as_the_default():
    call = jm.MissedCall(number_type=77)
    assert call.number_type == 77 and type(call.number_type) is int
    assert b"<NumberType>NO_ICON</NumberType>" in jm.encode(jm.MissedEntry(calls=[call]))


def test_lists_are_live():
    entry = jm.MissedEntry()
    calls = entry.calls
    calls.append(jm.MissedCall(number="1"))
    assert entry.calls is calls and entry.calls[0].number == "1"
    entry.calls[0].number = "2"
    assert b"<Number>2</Number>" in jm.encode(entry)
    entry.calls.clear()
    assert b"<LogList></LogList>" in jm.encode(entry)


def test_decoded_lists_are_live():
    log = log_of("A", "B")
    log.entries[1].calls[2].number = "changed"
    del log.entries[1].calls[0]
    log.entries.insert(0, jm.MissedEntry(surname="new"))
    again = jm.decode(jm.encode(log))
    assert [entry.surname for entry in again.entries] == ["new", "A", "B"]
    assert [call.number for call in again.entries[2].calls] == ["B-1", "changed"]
    assert again == log


def test_objects_outlive_their_list_and_their_message():
    log = log_of("A", "B")
    removed = log.entries.pop(0)
    call = removed.calls.pop(1)
    kept = log.entries[0].calls
    log.entries.clear()
    del log
    gc.collect()
    assert (removed.surname, call.number, len(removed.calls)) == ("A", "A-1", 2)
    del removed
    gc.collect()
    call.number = "still here"
    assert call.number == "still here"
    assert [one.number for one in kept] == ["B-0", "B-1", "B-2"]


def test_an_object_may_be_in_several_lists():
    call = jm.MissedCall(number="1")
    first, second = jm.MissedEntry(calls=[call]), jm.MissedEntry(calls=[call, call])
    call.number = "2"
    assert [one.number for one in first.calls + second.calls] == ["2"] * 3


def test_a_copy_is_shallow_and_a_deep_copy_is_deep():
    entry = log_of("A").entries[0]
    shallow, deep = copy.copy(entry), copy.deepcopy(entry)
    entry.calls[0].number = "changed"
    entry.surname = "B"
    assert (shallow.calls[0].number, shallow.surname) == ("changed", "A")
    assert (deep.calls[0].number, deep.surname) == ("A-0", "A")


def test_messages_are_copied_and_pickled():
    log = log_of("A")
    again = pickle.loads(pickle.dumps(log))
    assert again == log and again.raw == log.raw
    text = b"<Surname>Berg</Surname>"
    for copied in (copy.copy, copy.deepcopy, lambda entry: pickle.loads(pickle.dumps(entry))):
        assert copied(jm.decode(text, jm.Kind.MISSED)).raw == text
    deep = copy.deepcopy(log)
    deep.entries[0].surname = "B"
    assert log.entries[0].surname == "A"


def test_records_of_different_logs_differ_and_have_no_hash():
    assert jm.MissedEntry() != jm.ReceivedEntry()
    assert jm.MissedCall() != jm.ReceivedCall()
    with pytest.raises(TypeError, match="unhashable"):
        hash(jm.MissedEntry())


def test_what_is_no_call_of_this_log():
    for wrong in (jm.DialledCall(), "call", None):
        with pytest.raises(TypeError, match="MissedCall"):
            jm.encode(jm.MissedEntry(calls=[wrong]))
    for wrong in (jm.DialledEntry(), jm.MissedCall(), None):
        with pytest.raises(TypeError, match="MissedEntry"):
            jm.encode(jm.ListResponse(jm.Kind.MISSED, [wrong]))


def test_cycles_are_collected():
    gc.collect()
    entry = jm.MissedEntry()
    entry.calls.append(entry)
    del entry
    assert gc.collect() >= 2


def test_classes_can_be_derived():
    class Named(jm.MissedEntry):
        @property
        def name(self):
            return f"{self.firstname} {self.surname}"

    entry = Named(surname="Berg", firstname="Ida")
    entry.note = "own attribute"
    assert entry.name == "Ida Berg"
    assert b"<Surname>Berg</Surname>" in jm.encode(entry)


def test_a_repr_shows_what_is_set():
    entry = jm.MissedEntry(surname="Berg", calls=[jm.MissedCall(number_type=jm.NumberType.MOBILE)])
    assert repr(entry) == (
        "MissedEntry(surname='Berg', calls=[MissedCall(number_type=NumberType.MOBILE)])"
    )


def test_bytes_that_are_no_utf8_survive():
    text = b"<Method><getMissedCallList></Method><Entry><UniqueId>\xff\xc3\x28</UniqueId></Entry>"
    log = jm.decode(text)
    assert log.entries[0].unique_id == "\udcff\udcc3("
    assert b"<UniqueId>\xff\xc3\x28</UniqueId>" in jm.encode(log)
    assert log.to_dict()["entries"][0]["uniqueId"] == "\udcff\udcc3("
    assert jm.from_json(log.to_json()).entries[0].unique_id == "\udcff\udcc3("
    entry = jm.MissedEntry(picture=b"\x80\xfe".decode("utf-8", "surrogateescape"))
    assert b"<Picture>\x80\xfe</Picture>" in jm.encode(entry)
    with pytest.raises(UnicodeEncodeError):
        entry.picture = "\ud800"
