"""The messages that hold more than one entry, or none."""
from __future__ import annotations

from dataclasses import dataclass, field
from typing import List, Optional, Union

from ._native import Action, DialledEntry, ForwardedEntry, Kind, MissedEntry, ReceivedEntry
from ._record import Message

AnyEntry = Union[MissedEntry, DialledEntry, ReceivedEntry, ForwardedEntry]


@dataclass
class Request(Message):
    """A client's request to the journal service; :mod:`journalmessages.requests` builds them."""

    method: str
    entry_ids: List[str] = field(default_factory=list)


@dataclass
class ListResponse(Message):
    """The answer to a request for a log: all its entries."""

    kind: Kind
    entries: List[AnyEntry] = field(default_factory=list)
    handle: int = 0
    outcome: Optional[bool] = None  # Success or Failure, where the message has such a Value


@dataclass
class EntryNotification(Message):
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
class CounterNotification(Message):
    """A counter has a new value. The method tells which: missedCallsCountUpdate or
    missedGroupCallsUpdate."""

    method: str
    value: int = 0


@dataclass
class StoreRequest(Message):
    """A client's request to the data store; :mod:`journalmessages.store` builds them."""

    schema: str
    reason: str


@dataclass
class Outcome(Message):
    """Whether a request succeeded; with the request's method and ids where the answer repeats
    them."""

    ok: bool
    method: str = ""
    entry_ids: List[str] = field(default_factory=list)


@dataclass
class Setting(Message):
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
