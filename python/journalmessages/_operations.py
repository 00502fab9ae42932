"""Makes the functions that build messages, from the library's table of operations."""
from __future__ import annotations

import collections.abc
import re
from typing import Any, Callable, Dict, Iterable, List, NamedTuple, Optional, Union

from . import _native
from ._codec import encode
from ._messages import AnyEntry, EntryNotification
from ._native import Action, Kind


class Operation(NamedTuple):
    """An operation of the library that builds a message."""

    name: str
    method: str
    type: str
    kind: Optional[Kind]
    takes: str


operations = [Operation(*operation) for operation in _native.operations()]


def python_name(name: str) -> str:
    """reqGetMissedCallList becomes get_missed_call_list."""
    plain = re.sub("^(req|obsReq)(?=[A-Z])", "", name)
    return re.sub("(?<!^)(?=[A-Z])", "_", plain).lower()


def id_list(name: str, ids: Union[str, Iterable[str]]) -> List[str]:
    """One id, or several; the argument's name is for the error."""
    several = isinstance(ids, collections.abc.Iterable) and not isinstance(ids, (str, bytes))
    given: List[Any] = list(ids) if several else [ids]
    for one in given:
        if not isinstance(one, str):
            what = type(one).__name__
            raise TypeError(f"{name} takes a str or a collection of str, not {what}")
    return given


def class_name(kind: Optional[Kind]) -> str:
    """The class of a log's entries."""
    return f"{kind.name.capitalize()}Entry" if kind is not None else "Entry"


def _nothing(operation: Operation) -> Callable[..., bytes]:
    def build() -> bytes:
        return _native.make(operation.name, [])

    return build


def _id(operation: Operation) -> Callable[..., bytes]:
    def build(entry_id: Union[str, Iterable[str]]) -> bytes:
        return _native.make(operation.name, id_list("entry_id", entry_id))

    return build


def _ids(operation: Operation) -> Callable[..., bytes]:
    def build(entry_ids: Union[str, Iterable[str]] = ()) -> bytes:
        return _native.make(operation.name, id_list("entry_ids", entry_ids))

    return build


def _count(operation: Operation) -> Callable[..., bytes]:
    def build(count: int) -> bytes:
        return _native.make(operation.name, [str(int(count))])

    return build


def _entry(operation: Operation) -> Callable[..., bytes]:
    def build(
        entry: AnyEntry,
        action: Union[Action, int] = Action.ENTRY_ADDED,
        handle: int = 0,
        unique_id_to_delete: str = "",
    ) -> bytes:
        if getattr(entry, "kind", None) is not operation.kind:
            raise TypeError(f"takes a {class_name(operation.kind)}, not {entry!r}")
        if action is None:
            raise TypeError("action takes an Action or an int: None cannot be written")
        return encode(EntryNotification(entry, action, handle, unique_id_to_delete))

    build.__annotations__["entry"] = class_name(operation.kind)
    return build


_builders = {"nothing": _nothing, "id": _id, "ids": _ids, "count": _count, "entry": _entry}

_takes = {
    "nothing": "",
    "id": "\n\n:param entry_id: the entry's id, alone or in a collection",
    "ids": "\n\n:param entry_ids: the entries' ids; none for a request that names no entry",
    "count": "\n\n:param count: from 0 to 4294967295",
    "entry": "\n\n:param entry: the entry, of this log"
    "\n:param action: the kind of change, from 0 to 9; a larger one is written as 9"
    "\n:param handle: from 0 to 4294967295"
    "\n:param unique_id_to_delete: the unique id of an entry that the change removed",
}
_raises = {
    "nothing": "",
    "count": "\n:raises ValueError: for any other number",
    "entry": "\n:raises TypeError: for any other entry, and for no action\n:raises ValueError: for any other number",
}
_examples = {"nothing": "", "id": '"12"', "ids": '{"12", "7"}', "count": "3"}


def _doc(operation: Operation, module: str, name: str) -> str:
    what = f"Builds the message of {operation.name}"
    if operation.method:
        what += f", with the method {operation.method}"
    raises = _raises.get(operation.takes, "\n:raises ValueError: for another number of ids")
    if operation.takes == "ids":
        raises = ""
    example = _examples.get(operation.takes) or f"jm.{class_name(operation.kind)}()"
    if operation.takes == "nothing":
        example = ""
    return (
        f"{what}.{_takes[operation.takes]}\n:return: the message{raises}\n\n"
        f">>> import journalmessages as jm\n"
        f">>> message = jm.{module}.{name}({example})\n"
        f">>> jm.check(message)\n[]\n"
    )


def define(namespace: Dict[str, Any], wanted: Callable[[Operation], bool]) -> List[str]:
    """Adds a function for each of these operations; gives their names."""
    module = namespace["__name__"].rpartition(".")[2]
    names = []
    for operation in filter(wanted, operations):
        name = python_name(operation.name)
        build = _builders[operation.takes](operation)
        build.__name__ = build.__qualname__ = name
        build.__module__ = namespace["__name__"]
        build.__doc__ = _doc(operation, module, name)
        namespace[name] = build
        names.append(name)
    return names
