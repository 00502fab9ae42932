"""Decoding and encoding."""
from __future__ import annotations

import os
from typing import Any, BinaryIO, Iterator, List, Optional, Union

from . import _native
from ._inspect import Data, Finding, check
from ._messages import AnyMessage
from ._native import Kind, Severity
from ._record import Message


class NotAMessage(ValueError):
    """The text is no message of the journal service; ``data`` is what was seen."""

    def __init__(self, data: Data) -> None:
        self.data = data
        seen = repr(data if len(data) <= 80 else data[:80])
        entry = _native.identify(data)[0] == "entry"
        what = "an entry of which log? pass kind=" if entry else "no message of the journal service"
        super().__init__(f"{what}: {seen}{'' if len(data) <= 80 else ' ...'}")


class DamagedMessage(ValueError):
    """The message is not as the library writes it; ``findings`` says where."""

    def __init__(self, findings: List[Finding]) -> None:
        self.findings = findings
        super().__init__("\n".join(str(finding) for finding in findings))


def decode(
    data: Data, kind: Optional[Kind] = None, *, strict: Union[bool, Severity] = False
) -> Any:
    """Reads a message exactly as the library does: damage gives empty texts, defaults and dropped
    entries, never an error.

    :param data: the message; bytes of a ``str`` that are no UTF-8 are surrogate escapes
    :param kind: the log of a bare entry that does not tell it
    :param strict: whether everything that :func:`check` remarks on is an error; a Severity for
        this one and those above it
    :return: an object of AnyMessage; an entry for a bare entry and for the answer about the last
        dialled number
    :raises NotAMessage: when it is no message of the journal service
    :raises DamagedMessage: when strict, with the findings
    :raises TypeError: when data is neither bytes nor str

    >>> import journalmessages as jm
    >>> jm.decode(b"<Method><getMissedCallList></Method><Handle>7</Handle>").handle
    7
    """
    __tracebackhide__ = True  # pytest shows the caller's line
    message: Optional[AnyMessage] = _native.decode(data, kind)
    if message is None:
        raise NotAMessage(data)
    if strict:
        # True is 1, as the lowest severity is.
        findings = [one for one in check(data, kind) if one.severity >= strict]
        if findings:
            raise DamagedMessage(findings)
    return message


def encode(message: Message) -> bytes:
    """Writes a message exactly as the library does, with what the object holds now.

    :param message: any message; an entry gives its body alone
    :raises TypeError: when a list holds an object of another log, or an attribute another type
    :raises ValueError: when a number does not fit its element

    >>> import journalmessages as jm
    >>> jm.encode(jm.Outcome(ok=False))
    b'<Value>Failure</Value>'
    """
    return _native.encode(message)


def from_json(text: str) -> Any:
    """The message that a JSON text as of ``to_json`` describes.

    :raises ValueError: says what is wrong, and where
    """
    return decode(_native.from_json(text))


Source = Union[bytes, bytearray, memoryview, str, "os.PathLike[str]", BinaryIO]
_CHUNK = 1 << 18


def _chunks(source: Source) -> Iterator[bytes]:
    if isinstance(source, (bytes, bytearray, memoryview)):
        view = memoryview(source)
        for start in range(0, len(view), _CHUNK):
            yield bytes(view[start : start + _CHUNK])
    elif isinstance(source, (str, os.PathLike)):
        with open(source, "rb") as file:
            yield from _chunks(file)
    else:
        while chunk := source.read(_CHUNK):
            yield chunk


def scan(
    source: Source, kind: Optional[Kind] = None, *, strict: Union[bool, Severity] = False
) -> Iterator[Any]:
    """The messages in a capture, one by one, in memory for a single message.

    Messages may be between other text, hexadecimal dumps, base64 or escaped.

    :param source: bytes, the path of a file, or a binary file
    :param kind: the log of bare entries that do not tell it; without it they are skipped
    :param strict: as for :func:`decode`
    :raises ValueError: for a message of more than 64 MiB

    >>> import journalmessages as jm
    >>> [message.ok for message in jm.scan(b"<Value>Success</Value>\\n<Value>Failure</Value>")]
    [True, False]
    """
    stream = _native.Stream()

    def found() -> Iterator[Any]:
        while (one := stream.next()) is not None:
            try:
                yield decode(one[0], kind, strict=strict)
            except NotAMessage:
                continue
        if stream.is_too_large:
            raise ValueError("a message of more than 64 MiB")

    for chunk in _chunks(source):
        stream.push(chunk)
        yield from found()
    stream.finish()
    yield from found()
