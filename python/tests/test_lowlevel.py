"""The library's operations under their own names."""
import re
from pathlib import Path

import pytest

import journalmessages as jm
from journalmessages import lowlevel as low

HEADER = Path(__file__).parents[2] / "include" / "JournalServiceHelper.h"


def test_every_operation_and_constant_of_the_header_is_there():
    header = HEADER.read_text()
    operations = set(re.findall(r"^  static [\w:<>* ]+?[ *&](\w+)\(", header, re.M))
    constants = set(re.findall(r"^  static std::string const (\w+);", header, re.M))
    assert len(operations) > 70 and len(constants) > 100
    assert operations | constants == set(low.__all__)


def test_constants():
    assert low.METHOD == "Method" and low.ENTRYID_XML_BEGIN == "<EntryId>"
    assert low.XMLHEADER == '<?xml version="1.0" encoding="utf-8"?>'


@pytest.mark.parametrize(
    "name", [name for name in low.__all__ if re.match("req|read|delete", name)]
)
def test_requests_are_the_golden_ones(name, goldens):
    if name not in goldens:
        pytest.skip("no golden message")
    arguments = ()
    ids = set(jm.decode(goldens[name]).entry_ids) if name.startswith("req") else set()
    if "Delete" in name or "Set" in name:
        arguments = (ids,) if name.endswith(("List", "Viewed")) else tuple(ids)
    assert getattr(low, name)(*arguments).encode() == goldens[name]


@pytest.mark.parametrize("kind", jm.Kind)
def test_a_log_there_and_back(kind, golden):
    name = kind.name.capitalize()
    text = golden(f"{kind.name.lower()}-log").decode()
    ok, entries, handle = getattr(low, f"parseXML{name}CallList")(text, 0)
    assert (ok, entries, handle) == (True, jm.decode(text).entries, jm.decode(text).handle)
    assert getattr(low, f"parseXML{name}CallList")(text) == (True, entries)
    assert jm.decode(getattr(low, f"respGet{name}CallList")(entries, handle)) == jm.decode(text)


@pytest.mark.parametrize("kind", jm.Kind)
def test_an_entry_there_and_back(kind):
    name = kind.name.capitalize()
    call = getattr(jm, f"{name}Call")(number="555", time_date="now")
    entry = getattr(jm, f"{name}Entry")(unique_id="1", surname="A & B", calls=[call])
    body = getattr(low, f"createXML{name}CallItemBody")(entry, "front", False)
    assert body.startswith("front<UniqueId>1</UniqueId><Surname>A &amp; B</Surname>")
    assert getattr(low, f"createXML{name}CallItemBody")(entry, "", True) == "<UniqueId>1</UniqueId>"
    assert getattr(low, f"parseXML{name}CallItem")(body, type(entry)()) == (True, entry)
    calls = getattr(low, f"createXML{name}CallInfoList")(entry, "")
    assert getattr(low, f"getXML{name}CallInfoList")(calls) == (True, [call])
    assert getattr(low, f"getXML{name}CallInfo")(calls, type(call)()) == (True, call)
    note = getattr(low, f"obsReq{name}CallsUpdate")(entry, "2", jm.Action.ENTRY_CHANGED, 9)
    assert jm.decode(note) == jm.EntryNotification(entry, jm.Action.ENTRY_CHANGED, 9, "2")


def test_what_is_not_read_keeps_its_value():
    entry = jm.MissedEntry(surname="old", calls=[jm.MissedCall(number="old", info_key="key")])
    ok, after = low.parseXMLMissedCallItem("<UniqueId>1</UniqueId>", entry)
    assert (after.unique_id, after.surname, after.calls) == ("1", "", entry.calls)
    assert entry.surname == "old" and after is not entry
    _, call = low.getXMLMissedCallInfo("<Number>new</Number>", entry.calls[0])
    assert (call.number, call.info_key, entry.calls[0].number) == ("new", "key", "old")


def test_values_by_their_type():
    text = "<A>True</A><B>-1</B><C>MOBILE</C><D>&amp;</D>"
    assert low.getXMLValue(text, "A", False) == (True, True)
    assert low.getXMLValue(text, "B", 0) == (True, 2**32 - 1)
    assert low.getXMLValue(text, "C", jm.NumberType.NO_ICON) == (True, jm.NumberType.MOBILE)
    assert low.getXMLValue(text, "D", "") == (True, "&")
    assert low.getXMLValue(text, "E", "kept") == (False, "kept")
    assert low.getXMLValue(text, "<A>", "</A>", False) == (len("<A>True</A>"), True)
    assert low.getXMLValue(text, "<D>", "</D>", "") == (0, "&")


def test_elements():
    assert low.createXMLField("A", "") == ""
    assert low.createXMLField("A", "x") == "<A>x</A>"
    assert low.createXMLField("A", 2**32 - 1) == "<A>-1</A>"
    assert low.createXMLField("A", True) == "<A>True</A>"
    assert low.createXMLEntryIDList({"7", "12"}) == "<EntryId>12</EntryId><EntryId>7</EntryId>"
    assert low.getAndRemoveXMLValue("a<B>&amp;</B>c", "B", "") == (True, "ac", "&amp;")
    assert low.createXMLBegin("A") + low.createXMLClose("A") == "<A></A>"


def test_what_changes_a_message_gives_it_back():
    assert low.addSuccessResp("a") == (True, "a<Value>Success</Value>")
    assert low.addXMLHeaderFooter("a", "") == low.XMLHEADER + "a"
    text = "<Entry><UniqueId>1</UniqueId></Entry>"
    assert low.parseLastUniqueId(text, "") == (True, text.replace("</Entry>", "\0/Entry>"), "1")


def test_words():
    assert low.convertNumberType(jm.NumberType.MOBILE) == "MOBILE"
    assert low.convertNumberType("MOBILE") is jm.NumberType.MOBILE
    assert low.convertTargetLog("none of them") is jm.LogTarget.OUT_BUSY
    assert low.convertTimeFormat(77) == "FORM_24"
    assert low.getMethodFromXMLMsg(low.reqSubscribe()) is jm.MethodCode.SUBSCRIBE
    assert low.getMethodFromXMLMsg("") is jm.MethodCode.UNKNOWN_METHOD
    assert (low.respBool(False), low.isNonFailureResponse("Failure")) == ("Failure", False)
    assert low.parseXMLEnabledStateItem("<CallLogEnabled>True</CallLogEnabled>") is False


def test_bytes_are_texts_too():
    assert low.getXMLValue(b"<A>\xff</A>", b"A", "") == (True, "\udcff")
    assert low.createXMLField("A", "\udcff") == "<A>\udcff</A>"


@pytest.mark.parametrize(
    "call",
    [
        lambda: low.respBool(),
        lambda: low.createXMLField("A", None),
        lambda: low.createXMLField("A", -1),
        lambda: low.reqDeleteMissedCallList(["7"]),
        lambda: low.reqDeleteMissedCallList({7}),
        lambda: low.respGetMissedCallList([jm.DialledEntry()], 7),
        lambda: low.getXMLMissedCallInfo("", jm.DialledCall()),
        lambda: low.convertNumberType(2**31),
    ],
)
def test_other_arguments_are_type_errors(call):
    with pytest.raises(TypeError):
        call()
