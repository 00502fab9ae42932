"""The library's operations under their own names, and its constants.

Each takes what its namesake takes, by position; texts are ``str`` or ``bytes``. Lists that the
library only fills are not passed. What it changes in place is given back behind the result, in a
tuple; the arguments themselves never change.

>>> from journalmessages import lowlevel
>>> lowlevel.getXMLValue("<Handle>7</Handle>", "Handle", 0)
(True, 7)
>>> lowlevel.addSuccessResp("")
(True, '<Value>Success</Value>')
"""
from ._native import lowlevel as _lowlevel

__all__ = [name for name in dir(_lowlevel) if not name.startswith("_")]
globals().update({name: getattr(_lowlevel, name) for name in __all__})
