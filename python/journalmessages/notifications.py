"""The service's notifications to its observers, one function for each."""
from ._operations import define

__all__ = define(globals(), lambda operation: operation.type.endswith("Notification"))
