"""What decode gives for each kind of message, for damage and for other texts."""
import threading
import time

import pytest

import journalmessages as jm

UPDATE = b'<?xml version="1.0" encoding="utf-8"?><Method><missedCallsUpdate></Method>'


def notification(action):
    return UPDATE + b"<Viewed>False</Viewed><LogList></LogList>" + action + b"<Handle>9</Handle>"


def test_an_action_is_a_member():
    note = jm.decode(notification(b"<ActionType>2</ActionType>"))
    assert note.action is jm.Action.ENTRY_DELETED
    assert (note.kind, note.handle) == (jm.Kind.MISSED, 9)


def test_an_unnamed_action_is_an_int():
    action = jm.decode(notification(b"<ActionType>7</ActionType>")).action
    assert action == 7 and type(action) is int


def test_an_absent_action_is_none():
    note = jm.decode(notification(b""))
    assert note.action is None
    assert b"<ActionType>0</ActionType>" in jm.encode(note)


def test_a_bare_entry_tells_its_log_or_needs_a_kind():
    assert isinstance(jm.decode(jm.encode(jm.MissedEntry(surname="Berg"))), jm.MissedEntry)
    text = b"<Surname>Berg</Surname>"
    with pytest.raises(jm.NotAMessage, match="kind="):
        jm.decode(text)
    for kind in jm.Kind:
        entry = jm.decode(text, kind)
        assert (entry.kind, entry.surname, entry.raw) == (kind, "Berg", text)


def test_raw_of_what_was_built_is_its_encoding():
    entry = jm.MissedEntry(surname="Berg")
    assert entry.raw == jm.encode(entry)
    entry.surname = "Sohn"
    assert b"Sohn" in entry.raw


def test_raw_of_what_was_decoded_stays():
    log = jm.decode(jm.responses.get_missed_call_list([jm.MissedEntry()], 7))
    raw = log.raw
    log.handle = 8
    assert log.raw == raw != jm.encode(log)


@pytest.mark.parametrize("text", [b"", "", "hello", b"\xff\x00", b"<Method></Method>", "x" * 1000])
def test_other_texts_are_no_messages(text):
    with pytest.raises(jm.NotAMessage) as error:
        jm.decode(text)
    assert error.value.data == text
    assert len(str(error.value)) < 150


@pytest.mark.parametrize("data", [None, 7, ["<Value>"]])
def test_neither_bytes_nor_str(data):
    with pytest.raises(TypeError):
        jm.decode(data)


def test_every_buffer_is_taken():
    text = jm.responses.success()
    for data in (bytearray(text), memoryview(text)):
        assert jm.decode(data).raw == text


def test_damage_decodes_as_the_library_does():
    log = jm.decode(
        b"<Method><getMissedCallList></Method><Entry><Surname>A</Surname></Entry><Entry>"
    )
    assert [entry.surname for entry in log.entries] == ["A"]
    assert log.handle == 0


def test_strict_raises_with_the_findings():
    text = jm.responses.get_missed_call_list([jm.MissedEntry()], 7)
    assert jm.decode(text, strict=True).handle == 7
    with pytest.raises(jm.DamagedMessage) as error:
        jm.decode(text.replace(b"</Handle>", b""), strict=True)
    assert error.value.findings == jm.check(text.replace(b"</Handle>", b""))
    assert {finding.rule for finding in error.value.findings} >= {"unterminated"}
    assert error.value.findings[0].severity is jm.Severity.ERROR


def test_an_outcome_behind_a_list_is_kept():
    log = jm.decode(
        jm.responses.get_missed_call_list([jm.MissedEntry()], 7) + jm.responses.success()
    )
    assert log.outcome is True
    assert jm.encode(log) == log.raw


@pytest.mark.parametrize("handle", [-1, 2**32])
def test_a_handle_that_does_not_fit(handle):
    with pytest.raises(ValueError, match="handle"):
        jm.encode(jm.ListResponse(jm.Kind.MISSED, [], handle))


def test_encode_takes_messages_alone():
    for other in ("text", 7, jm.MissedCall()):
        with pytest.raises(TypeError):
            jm.encode(other)


def test_the_inspector():
    text = jm.requests.delete_missed_call("12")
    assert jm.identify(text).code is jm.MethodCode.DELETEMISSEDCALL
    assert jm.identify(text).kind is jm.Kind.MISSED
    assert [piece.element for piece in jm.explain(text)][-1] == "EntryId"
    (difference,) = jm.diff(text, jm.requests.delete_missed_call("7"))
    assert (difference.field, difference.left, difference.right) == ("entryIds", "12", "7")
    assert jm.diff(text, jm.requests.delete_missed_call("7"), ignore=["entryIds"]) == []
    assert len({rule.id for rule in jm.rules()}) == len(jm.rules()) > 30


def test_a_notification_applied_to_a_log():
    log = jm.ListResponse(jm.Kind.MISSED, [jm.MissedEntry(unique_id="1")], 7)
    added = jm.EntryNotification(jm.MissedEntry(unique_id="2"), jm.Action.ENTRY_ADDED, 8)
    after, problem = jm.apply(added, log)
    assert ([entry.unique_id for entry in after.entries], after.handle, problem) == (
        ["2", "1"],
        8,
        "",
    )
    assert len(log.entries) == 1
    assert jm.apply(added.raw, log.raw) == (after, problem)
    _, problem = jm.apply(added, after)
    assert "already there" in problem


@pytest.mark.parametrize(
    "build, text",
    [
        (
            lambda: jm.EntryNotification(jm.MissedEntry(), jm.Kind.MISSED, 8),
            "action takes Union[Action, int, None], not Kind",
        ),
        (
            lambda: jm.EntryNotification(jm.MissedEntry(), 0, jm.Action.ENTRY_DELETED),
            "handle takes int, not Action",
        ),
        (
            lambda: jm.EntryNotification(jm.MissedEntry(), 0, 8, 9),
            "unique_id_to_delete takes str, not int",
        ),
        (lambda: jm.EntryNotification("m-1"), "entry takes AnyEntry, not str"),
        (lambda: jm.ListResponse(jm.Kind.MISSED, ()), "entries takes List[AnyEntry], not tuple"),
        (lambda: jm.ListResponse(jm.Kind.MISSED, [], True), "handle takes int, not bool"),
        (lambda: jm.ListResponse(0), "kind takes Kind, not int"),
        (lambda: jm.Request("subscribe", "31"), "entry_ids takes List[str], not str"),
        (lambda: jm.Outcome("Success"), "ok takes bool, not str"),
    ],
)
def test_arguments_of_messages_have_their_types(build, text):
    with pytest.raises(TypeError) as error:
        build()
    assert str(error.value) == text


def test_an_action_may_be_none_or_a_number():
    for action in (jm.Action.ENTRY_DELETED, 7, None):
        assert jm.EntryNotification(jm.MissedEntry(), action).action is action


def test_an_entry_by_its_unique_id():
    entries = [jm.MissedEntry("m-1"), jm.MissedEntry("m-2"), jm.MissedEntry("m-2", "31")]
    log = jm.ListResponse(jm.Kind.MISSED, entries)
    assert log.entry("m-2") is entries[1]
    with pytest.raises(LookupError, match="no entry '31'.*'m-1', 'm-2'"):
        log.entry("31")


CALLS = [jm.MissedCall(number="1", time_date="a"), jm.MissedCall()]


def missed(surname, calls=(), handle=0):
    return jm.ListResponse(jm.Kind.MISSED, [jm.MissedEntry("1", "", surname, calls=[*calls])], handle)


def test_a_difference_is_ignored_by_its_name():
    left, right = missed("A", CALLS[:1]), missed("B", CALLS[1:], 7)
    fields = {difference.field for difference in jm.diff(left, right)}
    assert fields == {"surname", "callInfoList[0].number", "callInfoList[0].timeDate", "handle"}
    for name in ("surname", ["surname"], {"surname"}):
        assert {one.field for one in jm.diff(left, right, ignore=name)} == fields - {"surname"}
    rest = jm.diff(left, right, ignore=["surname", "number", "handle"])
    assert [one.field for one in rest] == ["callInfoList[0].timeDate"]


def test_all_calls_are_ignored_at_once():
    for calls in (CALLS, CALLS[1:], []):
        left, right = missed("A", CALLS[:1]), missed("B", calls)
        (difference,) = jm.diff(left, right, ignore="callInfoList")
        assert difference.field == "surname"


@pytest.mark.parametrize(
    "name, hint",
    [
        ("time_date", "; in JSON it is 'timeDate'"),
        ("calls", "; in JSON it is 'callInfoList'"),
        ("nonsense", ""),
        ("", ""),
    ],
)
def test_an_unknown_field_cannot_be_ignored(name, hint):
    with pytest.raises(ValueError) as error:
        jm.diff(missed("A"), missed("A"), ignore=["handle", name])
    assert str(error.value) == f"no field is called {name!r}{hint}"


def test_findings_are_ignored_by_their_rules():
    text = missed("M\udcfcller").raw.replace(b"<Viewed>False</Viewed>", b"")
    assert [finding.rule for finding in jm.check(text)] == ["not-utf8", "missing"]
    assert [finding.rule for finding in jm.check(text, ignore="not-utf8")] == ["missing"]
    assert jm.check(text, ignore=["not-utf8", "missing"]) == []
    with pytest.raises(ValueError, match="no rule is called 'utf8'"):
        jm.check(text, ignore=["missing", "utf8"])


def test_strict_takes_a_severity():
    text = missed("M\udcfcller").raw
    assert jm.decode(text, strict=jm.Severity.WARNING).raw == text
    for strict in (True, jm.Severity.NOTE):
        with pytest.raises(jm.DamagedMessage):
            jm.decode(text, strict=strict)
    with pytest.raises(jm.DamagedMessage):
        jm.decode(text + b"<Value>", strict=jm.Severity.WARNING)


def test_a_finding_as_text():
    (found,) = jm.check(b"<Value>Succes</Value>")
    assert str(found) == f"warning at 0 Value [outcome-form]: {found.what}: 'Succes'"
    empty = found._replace(element="", text="")
    assert str(empty) == f"warning at 0 [outcome-form]: {found.what}"


def test_other_threads_run_while_decoding(journal_samples):
    text = jm.responses.get_missed_call_list(journal_samples[jm.Kind.MISSED].entries * 3000)
    moments = []
    done = threading.Event()

    def count():
        while not done.wait(0.0005):
            moments.append(time.perf_counter())

    thread = threading.Thread(target=count)
    thread.start()
    shares = []
    for _ in range(5):
        start = time.perf_counter()
        message = jm.decode(text)
        end = time.perf_counter()
        del message
        inside = [start, *(moment for moment in moments if start < moment < end), end]
        shares.append(max(b - a for a, b in zip(inside, inside[1:])) / (end - start))
    done.set()
    thread.join()
    # How much of the time the other thread had to wait at once: nearly all of it without a release.
    assert sorted(shares)[2] < 0.7, shares


def test_threads_use_the_package_at_once():
    text = jm.responses.get_missed_call_list([jm.MissedEntry(surname="Berg")] * 50, 7)
    sizes = set()

    def work():
        for _ in range(200):
            log = jm.decode(text)
            log.entries[0].calls.append(jm.MissedCall())
            sizes.add(len(jm.encode(log)))

    threads = [threading.Thread(target=work) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert len(sizes) == 1


@pytest.mark.parametrize(
    "call",
    [
        lambda: jm.decode(b"", "missed"),
        lambda: jm.encode(jm.ListResponse("missed")),
        lambda: jm.check(None),
        lambda: jm.diff(3, b""),
        lambda: jm.apply(jm.Setting(True), jm.Setting(True)),
        lambda: jm.apply(b"<Value>Success</Value>", jm.requests.subscribe()),
    ],
)
def test_arguments_of_another_type(call):
    with pytest.raises(TypeError):
        call()


def test_json_that_is_no_message():
    for text in ("{", "[]", '{"kind":"nothing"}'):
        with pytest.raises(ValueError):
            jm.from_json(text)
