"""What all records and messages have in common. The classes of records are made in C++."""
from __future__ import annotations

import dataclasses
import enum
import json
from typing import Any, Dict, List, Optional, Tuple, Type


class Message:
    """A message of the journal service: what :func:`decode` gives and :func:`encode` takes."""

    __slots__ = ()
    _raw: Optional[bytes] = None

    @property
    def raw(self) -> bytes:
        """The bytes that the message was decoded from; of a message made in Python, its encoding.

        Changing a decoded message does not change its raw bytes: see :func:`encode`.
        """
        from . import _native

        return _native.encode(self) if self._raw is None else self._raw

    def to_json(self) -> str:
        """The message as JSON in one line. A text that is no UTF-8 is ``{"hex": "..."}``.

        >>> import journalmessages as jm
        >>> jm.Setting(enabled=True).to_json()
        '{"kind":"setting","callLogEnabled":true}'
        """
        from . import _native

        return _native.to_json(self)

    def to_dict(self) -> Dict[str, Any]:
        """The same as Python values, with every text as ``str``.

        >>> import journalmessages as jm
        >>> jm.Outcome(ok=True).to_dict()
        {'kind': 'outcome', 'method': '', 'entryIds': [], 'ok': True}
        """
        made: Dict[str, Any] = json.loads(self.to_json(), object_hook=_text_of_hex)
        return made


def _text_of_hex(value: Dict[str, Any]) -> Any:
    if value.keys() == {"hex"}:
        return bytes.fromhex(value["hex"]).decode("utf-8", "surrogateescape")
    return value


class Record:
    """An entry or a call."""

    __slots__ = ()
    __match_args__: Tuple[str, ...] = ()

    def _values(self) -> Tuple[Any, ...]:
        return tuple(getattr(self, name) for name in self.__match_args__)

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Record) or type(self) is not type(other):
            return NotImplemented
        return self._values() == other._values()

    def __repr__(self) -> str:
        """Shows what differs from an empty record."""
        unset = type(self)()
        shown = (
            f"{name}={_shown(value)}"
            for name, value, default in zip(self.__match_args__, self._values(), unset._values())
            if value != default
        )
        return f"{type(self).__name__}({', '.join(shown)})"

    def __reduce__(self) -> Tuple[Any, ...]:
        """For copy, deepcopy and pickle. Like a dataclass's, a copy shares its list of calls."""
        return type(self), self._values()


def _shown(value: object) -> str:
    if isinstance(value, enum.Enum):
        return f"{type(value).__name__}.{value.name}"
    return repr(value)


class Entry(Record, Message):
    """One party of a log with its calls: a MissedEntry or one of its siblings."""

    __slots__ = ()

    def __reduce__(self) -> Tuple[Any, ...]:
        return _restored, (type(self), self._values(), self._raw)


def _restored(record: Type[Entry], values: Tuple[Any, ...], raw: Optional[bytes]) -> Entry:
    entry = record(*values)
    setattr(entry, "_raw", raw)  # kept in C++, where no slot is
    return entry


class Call(Record):
    """One call of an entry: a MissedCall or one of its siblings."""

    __slots__ = ()


def complete(record: Any) -> None:
    """Makes dataclasses.fields(), asdict() and replace() work with a class of records."""
    unset = record()
    fields: List[Tuple[str, Any, Any]] = []
    for name in record.__match_args__:
        value = getattr(unset, name)
        if isinstance(value, list):
            fields.append((name, list, dataclasses.field(default_factory=list)))
        else:
            fields.append((name, type(value), dataclasses.field(default=value)))
    shadow: Any = dataclasses.make_dataclass(record.__name__, fields)
    record.__dataclass_fields__ = shadow.__dataclass_fields__
    record.__dataclass_params__ = shadow.__dataclass_params__  # for pprint
