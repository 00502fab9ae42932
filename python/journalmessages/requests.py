"""A client's requests to the journal service, one function for each."""
from ._operations import define

__all__ = define(globals(), lambda operation: operation.type == "request")
