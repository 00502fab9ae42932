"""What mypy --strict says about the package, and about programs that use it."""
import subprocess
import sys
from pathlib import Path

import pytest

import journalmessages

PACKAGE = Path(journalmessages.__file__).parent

RIGHT = """
import journalmessages as jm
from journalmessages import lowlevel

def device(text: bytes) -> bytes:
    return text

log = jm.decode(device(jm.requests.get_missed_call_list()))
assert isinstance(log, jm.ListResponse)
entry = log.entries[0]
assert isinstance(entry, jm.MissedEntry)
entry.calls.append(jm.MissedCall(number="5", number_type=jm.NumberType.MOBILE))
viewed: bool = entry.viewed
surname: str = log.entries[0].surname
firstname: str = log.entry("m-1").firstname
known = jm.check(log, ignore="not-utf8") + jm.check(log, ignore=["not-utf8"])
after, problem = jm.apply(device(log.raw), device(log.raw))
jm.decode(log.raw, strict=jm.Severity.WARNING)
note = jm.notifications.missed_calls_update(entry, jm.Action.ENTRY_ADDED, handle=7)
severities = [finding.severity is jm.Severity.ERROR for finding in jm.check(note)]
ok, value = lowlevel.getXMLValue("<A>7</A>", "A", 0)
number: int = value
kind: jm.Kind = entry.kind
for message in jm.scan("capture.log"):
    print(message.to_json())
"""
WRONG = [
    "jm.MissedEntry(surnam='Berg')",
    "jm.MissedEntry(surname=7)",
    "jm.MissedEntry().viewd",
    "jm.MissedEntry().calls.append(jm.DialledCall())",
    "jm.requests.get_missed_call_lst()",
    "jm.notifications.missed_calls_update(jm.DialledEntry())",
    "jm.NumberType.MOBIL",
    "jm.lowlevel.respBool('True')",
    "jm.ListResponse('missed')",
]


def mypy(folder, *arguments):
    return subprocess.run(
        [
            sys.executable,
            "-m",
            "mypy",
            "--strict",
            "--cache-dir",
            str(folder / "cache"),
            *arguments,
        ],
        cwd=folder,
        env={"MYPYPATH": str(PACKAGE.parent), "PATH": "/usr/bin:/bin"},
        capture_output=True,
        text=True,
    )


@pytest.fixture(scope="module")
def folder(tmp_path_factory):
    return tmp_path_factory.mktemp("types")


def test_the_package(folder):
    result = mypy(folder, "-p", "journalmessages")
    assert result.returncode == 0, result.stdout + result.stderr


def test_a_program(folder):
    (folder / "right.py").write_text(RIGHT)
    result = mypy(folder, "right.py")
    assert result.returncode == 0, result.stdout + result.stderr


def test_wrong_lines_are_found(folder):
    (folder / "wrong.py").write_text("\n".join(["import journalmessages as jm", *WRONG, ""]))
    result = mypy(folder, "wrong.py")
    found = {int(line.split(":")[1]) for line in result.stdout.splitlines() if ": error:" in line}
    assert found == set(range(2, 2 + len(WRONG))), result.stdout + result.stderr
