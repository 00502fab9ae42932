import os
import sys
from pathlib import Path

import pytest

# Nothing is written into the tree.
ROOT = Path(__file__).parents[2]
os.environ.setdefault("HYPOTHESIS_STORAGE_DIRECTORY", str(ROOT / "build" / "hypothesis"))

pytest_plugins = ["pytester"]
collect_ignore = [] if sys.version_info >= (3, 10) else ["test_match.py"]
if not hasattr(pytest, "Pytester"):  # older than pytest 6.2
    collect_ignore.append("test_plugin.py")
GOLDEN = ROOT / "tests" / "golden"


def pytest_configure():
    """A busy machine makes an example slow without being wrong."""
    import hypothesis

    hypothesis.settings.register_profile("journal", deadline=None, database=None)
    hypothesis.settings.load_profile("journal")


@pytest.fixture
def golden():
    """Reads a golden message by its name."""
    return lambda name: (GOLDEN / f"{name}.xml").read_bytes()


@pytest.fixture
def goldens():
    return {path.stem: path.read_bytes() for path in sorted(GOLDEN.glob("*.xml"))}


@pytest.fixture
def texts_program():
    """Built beside the package; see texts.cpp."""
    program = Path(os.environ.get("JOURNAL_TEXTS_PROGRAM") or "")
    if not program.is_file():
        pytest.skip("JOURNAL_TEXTS_PROGRAM names no program")
    return program
