"""Memory over many messages."""
import gc
import resource

import journalmessages as jm

ENTRY = jm.MissedEntry(unique_id="1", surname="Berg", calls=[jm.MissedCall(number="555")] * 3)


def resident():
    with open("/proc/self/statm") as file:
        return int(file.read().split()[1]) * resource.getpagesize()


def use(times):
    texts = [
        jm.responses.get_missed_call_list([ENTRY] * 2, 7),
        jm.requests.delete_missed_call("7"),
        jm.notifications.missed_calls_update(ENTRY),
        b"hello",
        b"<Surname>\xff</Surname>",
    ]
    for _ in range(times // len(texts)):
        for text in texts:
            try:
                message = jm.decode(text, jm.Kind.MISSED)
            except jm.NotAMessage:
                continue
            jm.encode(message)
            if isinstance(message, jm.ListResponse):
                message.entries.pop().calls.clear()
                message.entries[0].calls[1].number = "5"
                message.to_json()


def test_memory_stays_flat_over_100000_messages():
    use(5000)
    gc.collect()
    before = resident()
    use(100_000)
    gc.collect()
    assert resident() - before < 2 << 20
