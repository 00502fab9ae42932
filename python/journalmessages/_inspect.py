"""What the inspector tells about a message."""
from __future__ import annotations

import re
from typing import Iterable, List, NamedTuple, Optional, Set, Tuple, Union

from . import _native
from ._messages import EntryNotification, ListResponse
from ._native import Kind, MethodCode, Severity
from ._record import Message

Data = Union[bytes, bytearray, memoryview, str]


class Rule(NamedTuple):
    """A rule that findings name."""

    id: str
    severity: Severity
    what: str
    why: str


class Finding(NamedTuple):
    """A place where a message differs from what the library writes."""

    rule: str
    severity: Severity
    offset: int
    element: str  # empty when it is about the message
    text: str  # what is there
    instead: str  # what readers get; empty when that is what is there
    what: str
    why: str

    def __str__(self) -> str:
        where = f" {self.element}" if self.element else ""
        found = f": {self.text!r}" if self.text else ""
        severity = self.severity.name.lower()
        return f"{severity} at {self.offset}{where} [{self.rule}]: {self.what}{found}"


class Piece(NamedTuple):
    """One piece of a message, in the order of its bytes."""

    form: str  # declaration, part, end, leaf, begin tag, close tag or text
    depth: int
    offset: int
    size: int
    element: str
    raw: str
    stored: Optional[str]  # the value that readers store
    reasons: Tuple[str, ...]  # the rules that say why the two differ


class Difference(NamedTuple):
    """One value in which two messages differ."""

    entry: str  # its unique id; empty when it is about the message
    field: str
    left: Optional[str]  # None when that side lacks it
    right: Optional[str]

    def __str__(self) -> str:
        where = " ".join(part for part in (self.entry, self.field) if part)
        return f"{where}: {self.left!r} != {self.right!r}"


class Identity(NamedTuple):
    """What kind of message a text is."""

    type: str  # unknown, request, listResponse, entryNotification, ...
    method: str
    code: MethodCode
    kind: Optional[Kind]
    declared: bool  # whether it starts with the XML declaration


def rules() -> List[Rule]:
    """All rules that findings and explanations name."""
    return [Rule(*rule) for rule in _native.rules()]


_rules = rules()


def _data(message: Union[Data, Message]) -> Data:
    return message.raw if isinstance(message, Message) else message


def _names(given: Union[str, Iterable[str]]) -> Set[str]:
    return {given} if isinstance(given, str) else set(given)


def check(
    message: Union[Data, Message],
    kind: Optional[Kind] = None,
    *,
    ignore: Union[str, Iterable[str]] = (),
) -> List[Finding]:
    """Everything in a message that the library would not have written, in the order of the bytes.

    :param message: the bytes; of a message object its ``raw`` bytes are checked
    :param kind: the log of a bare entry that does not tell it
    :param ignore: ids of rules that are known to be broken: "not-utf8"
    :return: the findings, an empty list when there is nothing to remark
    :raises ValueError: when no rule has such an id

    >>> import journalmessages as jm
    >>> jm.check(jm.requests.subscribe())
    []
    >>> jm.check(b"<Value>Succes</Value>")[0].rule
    'outcome-form'
    """
    ignored = _names(ignore)
    for unknown in sorted(ignored - {rule.id for rule in _rules}):
        raise ValueError(f"no rule is called {unknown!r}; rules() lists them")
    findings = []
    for rule, offset, element, text, instead in _native.check(_data(message), kind):
        name, severity, what, why = _rules[rule]
        if name not in ignored:
            findings.append(Finding(name, severity, offset, element, text, instead, what, why))
    return findings


def explain(message: Union[Data, Message], kind: Optional[Kind] = None) -> List[Piece]:
    """A message element by element: what is there, and which value readers store for it.

    >>> import journalmessages as jm
    >>> [piece.element for piece in jm.explain(b"<Value>Success</Value>")]
    ['Value']
    """
    return [Piece(*piece) for piece in _native.explain(_data(message), kind)]


def identify(message: Union[Data, Message]) -> Identity:
    """What kind of message a text is, without decoding it; the type of no message is "unknown".

    >>> import journalmessages as jm
    >>> jm.identify(jm.requests.get_missed_call_list()).method
    'getMissedCallList'
    """
    return Identity(*_native.identify(_data(message)))


_fields = set(_native.compared_fields())


def _in_json(name: str) -> str:
    """time_date becomes timeDate."""
    own = {"calls": "callInfoList", "enabled": "callLogEnabled"}
    return own.get(name) or re.sub("_(.)", lambda found: found[1].upper(), name)


def diff(
    left: Union[Data, Message],
    right: Union[Data, Message],
    ignore: Union[str, Iterable[str]] = (),
) -> List[Difference]:
    """The values in which two messages differ. Entries are matched by their unique ids.

    :param left: bytes, or a message object as it is now
    :param right: the same
    :param ignore: names of fields that are not compared, as in JSON: "handle", "timeDate";
        "callInfoList" is all calls
    :return: the differences, an empty list when the records are equal
    :raises ValueError: when no field has such a name

    >>> import journalmessages as jm
    >>> left, right = jm.ListResponse(jm.Kind.MISSED, handle=1), jm.ListResponse(jm.Kind.MISSED)
    >>> print(jm.diff(left, right)[0])
    handle: '1' != '0'
    """
    ignored = _names(ignore)
    for unknown in sorted(ignored - _fields):
        known = _in_json(unknown) in _fields
        hint = f"; in JSON it is {_in_json(unknown)!r}" if known else ""
        raise ValueError(f"no field is called {unknown!r}{hint}")
    return [Difference(*found) for found in _native.diff(left, right, ignored)]


def apply(
    notification: Union[Data, EntryNotification], log: Union[Data, ListResponse]
) -> Tuple[ListResponse, str]:
    """A log after a notification, as a client keeps it: an added entry is in front.

    :param notification: bytes, or an object as it is now
    :param log: the same; it stays as it was
    :return: a new log, and what does not fit; an empty text when everything does
    :raises TypeError: for other messages
    """
    after, problem = _native.apply(notification, log)
    return after, problem
