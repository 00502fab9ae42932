"""For pytest: differences of messages value by value, golden files, and the sample logs."""
from __future__ import annotations

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


def _differences(left: Any, right: Any) -> List[str]:
    if isinstance(left, jm.Call):
        return [
            f"{name}: {getattr(left, name)!r} != {getattr(right, name)!r}"
            for name in left.__match_args__
            if getattr(left, name) != getattr(right, name)
        ]
    return [str(difference) for difference in jm.diff(left, right)] or ["the same values"]


def pytest_assertrepr_compare(op: str, left: object, right: object) -> Optional[List[str]]:
    """Explains a failed ``==`` of two messages, entries or calls, or of the bytes of messages."""
    comparable = (type(left) is type(right) and isinstance(left, (jm.Message, jm.Call))) or (
        _is_message(left) and _is_message(right)
    )
    if op != "==" or not comparable:
        return None
    what = "bytes of messages" if isinstance(left, bytes) else type(left).__name__
    return [f"{what} differ:", *_differences(left, right)]


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
