import sys
from pathlib import Path

import pytest

pytest_plugins = ["pytester"]
collect_ignore = [] if sys.version_info >= (3, 10) else ["test_match.py"]
GOLDEN = Path(__file__).parents[2] / "tests" / "golden"


@pytest.fixture
def golden():
    """Reads a golden message by its name."""
    return lambda name: (GOLDEN / f"{name}.xml").read_bytes()


@pytest.fixture
def goldens():
    return {path.stem: path.read_bytes() for path in sorted(GOLDEN.glob("*.xml"))}
