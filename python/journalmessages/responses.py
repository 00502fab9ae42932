"""The service's and the store's answers, and how to build them from what was asked."""
from __future__ import annotations

from typing import Any, Callable, Iterable, List, Union

from ._codec import encode
from ._messages import AnyEntry, ListResponse, Outcome, Setting
from ._native import DialledEntry, Kind
from ._operations import class_name, define

__all__ = ["last_dialled_number", "outcome", "setting"]


def _list(kind: Kind) -> Callable[..., bytes]:
    def build(entries: Iterable[AnyEntry] = (), handle: int = 0) -> bytes:
        return encode(ListResponse(kind, list(entries), handle))

    build.__annotations__["entries"] = f"Iterable[{class_name(kind)}]"
    return build


def _define_lists(namespace: Any) -> List[str]:
    names = []
    for kind in Kind:
        name = f"get_{kind.name.lower()}_call_list"
        build = _list(kind)
        build.__name__ = build.__qualname__ = name
        build.__doc__ = (
            f"Builds the answer to requests.{name}: the log, then its handle.\n\n"
            ":param entries: entries of this log, the front first\n"
            ":param handle: from 0 to 4294967295\n"
            ":return: the message\n"
            ":raises TypeError: for an entry of another log\n"
            ":raises ValueError: for any other number\n\n"
            ">>> import journalmessages as jm\n"
            f">>> jm.decode(jm.responses.{name}([], 7)).handle\n7\n"
        )
        namespace[name] = build
        names.append(name)
    return names


__all__ += _define_lists(globals())
__all__ += define(globals(), lambda operation: operation.type == "outcome")


def outcome(ok: bool) -> bytes:
    """Builds the answer to any other request: success() or failure().

    >>> import journalmessages as jm
    >>> jm.responses.outcome(True)
    b'<Value>Success</Value>'
    """
    return encode(Outcome(ok))


def last_dialled_number(entry: DialledEntry) -> bytes:
    """Builds the answer to requests.get_last_dialled_number: the method, then the entry's body.

    :raises TypeError: for an entry of another log

    >>> import journalmessages as jm
    >>> jm.decode(jm.responses.last_dialled_number(jm.DialledEntry(surname="Berg"))).surname
    'Berg'
    """
    if not isinstance(entry, DialledEntry):
        raise TypeError(f"takes a DialledEntry, not {entry!r}")
    return b"<Method><getLastDialledNumber></Method>" + encode(entry)


def setting(enabled: bool) -> bytes:
    """Builds the store's answer to store.read_enabled_state.

    >>> import journalmessages as jm
    >>> jm.decode(jm.responses.setting(False)).enabled
    False
    """
    return encode(Setting(enabled))
