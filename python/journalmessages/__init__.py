"""Messages of the journal service, the call log of the device: built, read, checked, compared.

>>> import journalmessages as jm
>>> log = jm.ListResponse(jm.Kind.MISSED, [jm.MissedEntry(surname="Berg & Sohn")], handle=7)
>>> jm.decode(jm.encode(log)) == log
True
"""
from . import lowlevel, notifications, requests, responses, store
from ._codec import DamagedMessage, NotAMessage, decode, encode, from_json, scan
from ._inspect import (
    Difference,
    Finding,
    Identity,
    Piece,
    Rule,
    apply,
    check,
    diff,
    explain,
    identify,
    rules,
)
from ._messages import (
    AnyEntry,
    AnyMessage,
    CounterNotification,
    EntryNotification,
    ListResponse,
    Outcome,
    Request,
    Setting,
    StoreRequest,
)
from ._native import (
    Action,
    DialledCall,
    DialledEntry,
    ForwardedCall,
    ForwardedEntry,
    Kind,
    LogTarget,
    MethodCode,
    MissedCall,
    MissedEntry,
    NumberType,
    Presentation,
    ReceivedCall,
    ReceivedEntry,
    Severity,
    TimeFormat,
)
from ._native import version as __version__
from ._record import Call, Entry, Message, complete

for _record in Entry.__subclasses__() + Call.__subclasses__():
    complete(_record)
del _record, complete

__all__ = [
    "Action", "AnyEntry", "AnyMessage", "Call", "CounterNotification", "DamagedMessage",
    "DialledCall", "DialledEntry", "Difference", "Entry", "EntryNotification", "Finding",
    "ForwardedCall", "ForwardedEntry", "Identity", "Kind", "ListResponse", "LogTarget", "Message",
    "MethodCode", "MissedCall", "MissedEntry", "NotAMessage", "NumberType", "Outcome", "Piece",
    "Presentation", "ReceivedCall", "ReceivedEntry", "Request", "Rule", "Setting", "Severity",
    "StoreRequest", "TimeFormat", "apply", "check", "decode", "diff", "encode", "explain",
    "from_json", "identify", "lowlevel", "notifications", "requests", "responses", "rules", "scan",
    "store",
]
