"""A client's requests to the data store, one function for each."""
from ._operations import define

__all__ = define(globals(), lambda operation: operation.type == "storeRequest")
