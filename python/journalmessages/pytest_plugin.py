"""For pytest: differences of messages value by value, golden files, and the sample logs."""
from __future__ import annotations

import os
from pathlib import Path
from typing import Any, Callable, Dict, Iterator, List, Optional, Union

import pytest

import journalmessages as jm


def pytest_addoption(parser: Any) -> None:
    parser.getgroup("journal").addoption(
        "--journal-update",
        action="store_true",
        help="write the golden files of journal_golden instead of comparing with them",
    )


def _is_message(value: object) -> bool:
    return isinstance(value, bytes) and jm.identify(value).type != "unknown"


def _first_bytes(left: bytes, right: bytes) -> str:
    at = len(os.path.commonprefix([left, right]))
    return f"the bytes differ from {at}: {left[at : at + 11]!r} != {right[at : at + 11]!r}"


def _differences(left: Any, right: Any) -> List[str]:
    if isinstance(left, jm.Call):
        return [
            f"{name}: {getattr(left, name)!r} != {getattr(right, name)!r}"
            for name in left.__match_args__
            if getattr(left, name) != getattr(right, name)
        ]
    found = [str(difference) for difference in jm.diff(left, right)]
    if not found and isinstance(left, bytes):
        return [f"the same values; {_first_bytes(left, right)}"]
    return found or ["the same values"]


def _holding(records: List[Any], cls: Any) -> jm.Message:
    """A message that holds these entries or calls, so that they can be compared."""
    if issubclass(cls, jm.Entry):
        return jm.ListResponse(cls.kind, records)
    entries: Any = jm.Entry.__subclasses__()
    made: jm.Message = next(one for one in entries if one.kind is cls.kind)(calls=records)
    return made


def _list_differences(left: List[Any], right: List[Any]) -> Optional[List[str]]:
    classes = {type(one) for one in left + right}
    cls = classes.pop()
    if classes:
        return None
    if issubclass(cls, (jm.Entry, jm.Call)):
        return _differences(_holding(left, cls), _holding(right, cls))
    if issubclass(cls, (jm.Finding, jm.Difference)) and not (left and right):
        return [str(one) for one in left + right]
    return None


def _explanation(left: Any, right: Any) -> Optional[List[str]]:
    names = " and ".join(dict.fromkeys([type(left).__name__, type(right).__name__]))
    lines = None
    if isinstance(left, list) and isinstance(right, list):
        names = f"lists of {type((left or right)[0]).__name__}"
        lines = _list_differences(left, right)
    elif _is_message(left) and _is_message(right):
        names = "bytes of messages"
        lines = _differences(left, right)
    elif isinstance(left, jm.Message) and isinstance(right, jm.Message):
        lines = _differences(left, right)
    elif isinstance(left, jm.Call) and type(left) is type(right):
        lines = _differences(left, right)
    return lines and [f"{names} differ:", *lines]


def pytest_assertrepr_compare(op: str, left: object, right: object) -> Optional[List[str]]:
    """Explains a failed ``==`` of messages, entries or calls, of lists of them, of the bytes of
    messages, and of findings or differences with the empty list."""
    if op != "==":
        return None
    try:
        return _explanation(left, right)
    except (TypeError, ValueError):
        return None  # they hold what no message can


Golden = Callable[[Union[bytes, jm.Message], str], None]


@pytest.fixture
def journal_golden(request: Any) -> Iterator[Golden]:
    """Compares a message with the file golden/NAME.xml beside the test.

    ``journal_golden(device.recv(), "missed-log")`` fails with the values that differ;
    ``pytest --journal-update`` writes the file.
    """
    folder = Path(request.module.__file__).parent / "golden"

    def compare(message: Union[bytes, jm.Message], name: str) -> None:
        raw = message.raw if isinstance(message, jm.Message) else message
        path = folder / f"{name}.xml"
        if request.config.getoption("--journal-update"):
            folder.mkdir(exist_ok=True)
            path.write_bytes(raw)
        elif not path.exists():
            pytest.fail(f"{path} does not exist; pytest --journal-update writes it", pytrace=False)
        elif raw != path.read_bytes():
            lines = _differences(raw, path.read_bytes())
            pytest.fail("\n".join([f"not as in {path}:", *lines]), pytrace=False)

    yield compare


@pytest.fixture
def journal_samples() -> Dict[jm.Kind, jm.ListResponse]:
    """A log of each kind with everything that logs hold; decoded anew for each test."""
    folder = Path(__file__).parent / "samples"
    return {kind: jm.decode((folder / f"{kind.name.lower()}.xml").read_bytes()) for kind in jm.Kind}
