"""The match statement, of Python 3.10 and newer."""
import journalmessages as jm


def name_of(message):
    match message:
        case jm.ListResponse(kind=jm.Kind.MISSED, entries=[jm.MissedEntry(calls=[call, *_])]):
            return f"missed {call.number}"
        case jm.EntryNotification(action=jm.Action.ENTRY_DELETED, entry=jm.Entry() as entry):
            return f"deleted {entry.unique_id}"
        case jm.Outcome(ok):
            return f"outcome {ok}"
        case jm.MissedEntry(unique_id, _, surname):
            return f"entry {unique_id} {surname}"


def test_match():
    entry = jm.MissedEntry("1", surname="Berg", calls=[jm.MissedCall(number="555")])
    assert name_of(jm.decode(jm.responses.get_missed_call_list([entry]))) == "missed 555"
    assert name_of(jm.EntryNotification(entry, jm.Action.ENTRY_DELETED)) == "deleted 1"
    assert name_of(jm.decode(jm.responses.failure())) == "outcome False"
    assert name_of(entry) == "entry 1 Berg"
