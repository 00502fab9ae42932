"""Messages from captures."""
import io
import tracemalloc
import types

import pytest

import journalmessages as jm

LOG = jm.responses.get_missed_call_list([jm.MissedEntry(unique_id="1", surname="Berg")], 7)
# An outcome directly behind another message would be a part of it.
MESSAGES = [jm.responses.success(), jm.requests.subscribe(), LOG, jm.store.read_enabled_state()]


def raws(source):
    return [message.raw for message in jm.scan(source)]


@pytest.mark.parametrize("between", [b"", b"\n", b"\0", b"\r\n"])
def test_messages_one_after_another(between):
    assert raws(between.join(MESSAGES)) == MESSAGES


def test_bytes_paths_and_files(tmp_path):
    path = tmp_path / "capture.log"
    path.write_bytes(b"\n".join(MESSAGES))
    assert raws(path) == raws(str(path)) == raws(io.BytesIO(path.read_bytes())) == MESSAGES
    assert raws(memoryview(path.read_bytes())) == raws(bytearray(path.read_bytes())) == MESSAGES


def test_messages_between_other_text():
    text = b"12:00:01 out: " + MESSAGES[1] + b"\n12:00:02 in: " + LOG + b" (ok)\n"
    assert raws(text) == MESSAGES[1:3]


def test_it_is_lazy():
    class Source:
        reads = 0

        def read(self, size):
            Source.reads += 1
            return LOG + b"\n" if Source.reads < 1000 else b""

    messages = jm.scan(Source())
    assert isinstance(messages, types.GeneratorType) and Source.reads == 0
    assert next(messages).handle == 7
    assert Source.reads < 10


def test_strict_raises_at_the_message():
    damaged = LOG.replace(b"</Surname>", b"")
    messages = jm.scan(LOG + b"\n" + damaged + b"\n", strict=True)
    assert next(messages).handle == 7
    with pytest.raises(jm.DamagedMessage):
        next(messages)


def test_nothing_to_find():
    assert raws(b"") == raws(b"hello\n") == []
    with pytest.raises(FileNotFoundError):
        raws("/no/such/file")


def test_memory_stays_bounded():
    class Source:
        left = 40 << 20
        part = LOG * 300

        def read(self, size):
            self.left -= len(self.part)
            return self.part if self.left > 0 else b""

    tracemalloc.start()
    try:
        count = sum(1 for _ in jm.scan(Source()))
        peak = tracemalloc.get_traced_memory()[1]
    finally:
        tracemalloc.stop()
    assert count * len(LOG) > 39 << 20
    assert peak < 4 << 20
