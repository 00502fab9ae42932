"""The functions that build messages, compared with golden messages and with the library's own."""
import pytest

import journalmessages as jm

WITH_IDS = {"12", "7"}


def test_there_is_one_function_for_each_operation():
    assert (len(jm.requests.__all__), len(jm.store.__all__)) == (17, 9)
    assert len(jm.notifications.__all__) == 6
    assert {"get_missed_call_list", "success", "failure", "setting"} <= set(jm.responses.__all__)


@pytest.mark.parametrize("name", jm.requests.__all__)
def test_requests(name):
    build = getattr(jm.requests, name)
    if name.startswith("delete") or name.startswith("set"):
        request = jm.decode(build({"7"}))
        assert request.entry_ids == ["7"]
    else:
        request = jm.decode(build())
        assert request.entry_ids == []
    assert isinstance(request, jm.Request)
    assert request.method.lower() == name.replace("_", "")


@pytest.mark.parametrize(
    "name, operation",
    [
        ("get_missed_call_list", "reqGetMissedCallList"),
        ("subscribe", "reqSubscribe"),
        ("refresh_call_log", "reqRefreshCallLog"),
        ("get_last_dialled_number", "reqGetLastDialledNumber"),
    ],
)
def test_plain_requests_are_the_golden_ones(name, operation, golden):
    assert getattr(jm.requests, name)() == golden(operation)


def test_ids_are_a_set_in_the_order_of_their_bytes():
    request = jm.requests.delete_missed_call_list(["7", "12", "7", ""])
    assert request.endswith(b"<EntryId>12</EntryId><EntryId>7</EntryId>")
    assert jm.requests.delete_missed_call_list("7") == jm.requests.delete_missed_call_list({"7"})


def test_a_request_for_one_entry_takes_one_id():
    assert jm.requests.delete_missed_call("7") == jm.requests.delete_missed_call({"7"})
    with pytest.raises(ValueError, match="one id"):
        jm.requests.delete_missed_call({"7", "12"})


@pytest.mark.parametrize(
    "ids, given", [(7, "int"), ([7], "int"), (None, "NoneType"), (b"7", "bytes")]
)
def test_ids_are_texts(ids, given):
    with pytest.raises(TypeError, match=f"^entry_id takes a str or a .* of str, not {given}$"):
        jm.requests.delete_missed_call(ids)
    with pytest.raises(TypeError, match="^entry_ids takes"):
        jm.requests.delete_missed_call_list(ids)


@pytest.mark.parametrize(
    "name", ["read_enabled_state", "read_missed_call_list", "delete_dialled_call_list"]
)
def test_store_requests_are_the_golden_ones(name, golden):
    words = name.split("_")
    operation = words[0] + "".join(word.capitalize() for word in words[1:])
    assert getattr(jm.store, name)() == golden(operation)


@pytest.mark.parametrize("kind", jm.Kind)
@pytest.mark.parametrize("removing", ["", "-removing"])
def test_notifications_are_read_back(kind, removing, golden):
    note = jm.decode(golden(f"obsReq{kind.name.capitalize()}CallsUpdate{removing}"))
    build = getattr(jm.notifications, f"{kind.name.lower()}_calls_update")
    built = build(note.entry, note.action, note.handle, note.unique_id_to_delete)
    assert jm.decode(built) == note
    assert bool(note.unique_id_to_delete) == bool(removing)


def test_a_notification_takes_an_entry_of_its_log():
    with pytest.raises(TypeError, match="MissedEntry"):
        jm.notifications.missed_calls_update(jm.DialledEntry())


def test_a_notification_takes_an_action():
    with pytest.raises(TypeError, match="cannot be written"):
        jm.notifications.missed_calls_update(jm.MissedEntry(), None, 3)


@pytest.mark.parametrize("count", [0, 3, 2**31, 2**32 - 1])
def test_counters_keep_all_32_bits(count):
    note = jm.decode(jm.notifications.missed_calls_count_update(count))
    assert note == jm.CounterNotification("missedCallsCountUpdate", count)
    note = jm.decode(jm.notifications.missed_group_calls_update(count))
    assert note == jm.CounterNotification("missedGroupCallsUpdate", count)


@pytest.mark.parametrize("count", [-1, 2**32])
def test_other_counts_are_errors(count):
    with pytest.raises(ValueError, match="4294967295"):
        jm.notifications.missed_calls_count_update(count)


def test_outcomes():
    assert jm.responses.success() == jm.responses.outcome(True) == b"<Value>Success</Value>"
    assert jm.responses.failure() == jm.responses.outcome(False) == b"<Value>Failure</Value>"


def test_the_last_dialled_number():
    entry = jm.DialledEntry(unique_id="d-1", calls=[jm.DialledCall(number="555")])
    assert jm.decode(jm.responses.last_dialled_number(entry)) == entry
    with pytest.raises(TypeError, match="DialledEntry"):
        jm.responses.last_dialled_number(jm.MissedEntry())


@pytest.mark.parametrize("enabled", [True, False])
def test_the_setting(enabled):
    assert jm.decode(jm.responses.setting(enabled)) == jm.Setting(enabled)
