"""A test as a test engineer writes it, against a stand-in device on a socket pair."""
import socket
import threading

import pytest

import journalmessages as jm

LOG = jm.ListResponse(
    jm.Kind.MISSED,
    [
        jm.MissedEntry(
            unique_id="m-204",
            entry_id="31",
            surname="Berg & Sohn",
            calls=[jm.MissedCall(number="+43 699 5550123", number_type=jm.NumberType.MOBILE)],
        )
    ],
    handle=7,
)


class Device:
    """The service's side: a datagram for each message."""

    def __init__(self, connection):
        self.connection = connection
        self.log = jm.decode(jm.encode(LOG))

    def serve(self):
        while text := self.connection.recv(1 << 16):
            for answer in self.answers(jm.decode(text)):
                self.connection.send(answer)

    def answers(self, request):
        if request.method == "getMissedCallList":
            return [jm.responses.get_missed_call_list(self.log.entries, self.log.handle)]
        if request.method == "deleteMissedCall":
            (entry,) = [one for one in self.log.entries if one.entry_id in request.entry_ids]
            self.log.entries.remove(entry)
            self.log.handle += 1
            return [
                jm.responses.success(),
                jm.notifications.missed_calls_update(
                    entry, jm.Action.ENTRY_DELETED, self.log.handle
                ),
            ]
        return [jm.responses.failure()]


class Client:
    def __init__(self, connection):
        self.connection = connection
        self.send = connection.send

    def recv(self):
        return self.connection.recv(1 << 16)


@pytest.fixture
def device():
    ours, theirs = socket.socketpair(socket.AF_UNIX, socket.SOCK_SEQPACKET)
    thread = threading.Thread(target=Device(theirs).serve)
    thread.start()
    with ours, theirs:
        ours.settimeout(10)
        yield Client(ours)
        ours.shutdown(socket.SHUT_WR)
        thread.join()


@pytest.fixture
def golden():
    return jm.encode(LOG)


def test_missed(device, golden):
    device.send(jm.requests.get_missed_call_list())
    log = jm.decode(device.recv())
    assert (log.kind, log.handle) == (jm.Kind.MISSED, 7)
    entry = log.entries[0]
    assert entry.surname == "Berg & Sohn" and not entry.viewed
    assert entry.calls[0].number_type is jm.NumberType.MOBILE
    device.send(jm.requests.delete_missed_call({entry.entry_id}))
    assert jm.decode(device.recv()).ok
    note = jm.decode(device.recv())
    assert note.action is jm.Action.ENTRY_DELETED
    assert jm.check(note.raw) == []
    assert jm.diff(log.raw, golden) == []


def test_an_unknown_request_fails(device):
    device.send(jm.requests.subscribe())
    assert not jm.decode(device.recv()).ok
