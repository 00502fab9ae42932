"""The messages that hold more than one entry, or none."""
from __future__ import annotations

import enum
from dataclasses import dataclass, field, fields
from functools import lru_cache
from typing import Any, List, Optional, Tuple, Union, get_args, get_origin, get_type_hints

from ._native import Action, DialledEntry, ForwardedEntry, Kind, MissedEntry, ReceivedEntry
from ._record import Message

AnyEntry = Union[MissedEntry, DialledEntry, ReceivedEntry, ForwardedEntry]


def _classes(hint: Any) -> Tuple[type, ...]:
    if get_origin(hint) is Union:
        return tuple(one for part in get_args(hint) for one in _classes(part))
    return (get_origin(hint) or hint,)


@lru_cache(maxsize=None)
def _check(message: Any, *given: type) -> None:
    """Whether the attributes of a class of messages take these types."""
    hints = get_type_hints(message)
    for one, cls in zip(fields(message), given):
        wanted = _classes(hints[one.name])
        # A flag or an Action is an int too, but a mistake where a number is wanted.
        special = issubclass(cls, (bool, enum.IntEnum)) and cls not in wanted
        if special or not issubclass(cls, wanted):
            raise TypeError(f"{one.name} takes {one.type}, not {cls.__name__}")


class _Checked(Message):
    """A message whose arguments have the types of its class. What lists hold, ``encode`` checks."""

    def __post_init__(self) -> None:
        own: Any = type(self)
        _check(own, *map(type, vars(self).values()))


@dataclass
class Request(_Checked):
    """A client's request to the journal service; :mod:`journalmessages.requests` builds them."""

    method: str
    entry_ids: List[str] = field(default_factory=list)


@dataclass
class ListResponse(_Checked):
    """The answer to a request for a log: all its entries."""

    kind: Kind
    entries: List[AnyEntry] = field(default_factory=list)
    handle: int = 0
    outcome: Optional[bool] = None  # Success or Failure, where the message has such a Value

    def entry(self, unique_id: str) -> AnyEntry:
        """The entry with this unique id, the first one if there are several.

        :raises LookupError: when there is none, with the ids that there are

        >>> import journalmessages as jm
        >>> log = jm.ListResponse(jm.Kind.MISSED, [jm.MissedEntry("m-1", surname="Berg")])
        >>> log.entry("m-1").surname
        'Berg'
        """
        for one in self.entries:
            if one.unique_id == unique_id:
                return one
        there = [one.unique_id for one in self.entries]
        raise LookupError(f"no entry {unique_id!r}, but {there}")


@dataclass
class EntryNotification(_Checked):
    """An entry of a log was added, has changed, or was deleted.

    The action is an ``int`` where it is no :class:`Action`, and ``None`` where the message has
    none; None is written as 0.
    """

    entry: AnyEntry
    action: Union[Action, int, None] = Action.ENTRY_ADDED
    handle: int = 0
    unique_id_to_delete: str = ""
    outcome: Optional[bool] = None

    @property
    def kind(self) -> Kind:
        return self.entry.kind


@dataclass
class CounterNotification(_Checked):
    """A counter has a new value. The method tells which: missedCallsCountUpdate or
    missedGroupCallsUpdate."""

    method: str
    value: int = 0


@dataclass
class StoreRequest(_Checked):
    """A client's request to the data store; :mod:`journalmessages.store` builds them."""

    schema: str
    reason: str


@dataclass
class Outcome(_Checked):
    """Whether a request succeeded; with the request's method and ids where the answer repeats
    them."""

    ok: bool
    method: str = ""
    entry_ids: List[str] = field(default_factory=list)


@dataclass
class Setting(_Checked):
    """The store's answer about the call log."""

    enabled: bool


AnyMessage = Union[
    Request,
    ListResponse,
    EntryNotification,
    CounterNotification,
    StoreRequest,
    Outcome,
    Setting,
    MissedEntry,
    DialledEntry,
    ReceivedEntry,
    ForwardedEntry,
]
