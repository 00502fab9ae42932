"""The pytest plugin."""
import journalmessages as jm

SAMPLE = """
import journalmessages as jm

def log(surname):
    entry = jm.MissedEntry(unique_id="m-1", surname=surname, calls=[jm.MissedCall(number=surname)])
    return jm.decode(jm.responses.get_missed_call_list([entry], 7))
"""


def run(pytester, code, *arguments):
    pytester.makepyfile(SAMPLE + code)
    return pytester.runpytest_subprocess(*arguments)


def test_differences_are_listed_value_by_value(pytester):
    result = run(
        pytester,
        """
def test_messages():
    assert log("Berg") == log("Sohn")
def test_entries():
    assert log("Berg").entries[0] == log("Sohn").entries[0]
def test_calls():
    assert log("Berg").entries[0].calls[0] == log("Sohn").entries[0].calls[0]
def test_bytes():
    assert log("Berg").raw == log("Sohn").raw
""",
    )
    result.assert_outcomes(failed=4)
    for line in (
        "*ListResponse differ:*",
        "*m-1 surname: 'Berg' != 'Sohn'*",
        "*m-1 callInfoList*0*.number: 'Berg' != 'Sohn'*",
        "*MissedEntry differ:*",
        "*MissedCall differ:*",
        "*number: 'Berg' != 'Sohn'*",
        "*bytes of messages differ:*",
    ):
        result.stdout.fnmatch_lines([line])


def test_other_comparisons_are_left_alone(pytester):
    result = run(
        pytester,
        """
def test_texts():
    assert b"one" == b"two"
def test_order():
    assert log("Berg") != log("Berg")
""",
    )
    result.assert_outcomes(failed=2)
    assert "differ:" not in result.stdout.str()


GOLDEN = """
def test_it(journal_golden):
    journal_golden(log({!r}), "missed")
"""


def test_golden_files(pytester):
    result = run(pytester, GOLDEN.format("Berg"))
    result.assert_outcomes(failed=1)
    result.stdout.fnmatch_lines(["*pytest --journal-update writes it*"])

    run(pytester, GOLDEN.format("Berg"), "--journal-update").assert_outcomes(passed=1)
    written = (pytester.path / "golden" / "missed.xml").read_bytes()
    assert jm.decode(written).entries[0].surname == "Berg"
    run(pytester, GOLDEN.format("Berg")).assert_outcomes(passed=1)

    # Not of the same size: in the same second, pytest would take the module for the one before.
    result = run(pytester, GOLDEN.format("Berger"))
    result.assert_outcomes(failed=1)
    result.stdout.fnmatch_lines(["*m-1 surname: 'Berger' != 'Berg'*"])
    assert (pytester.path / "golden" / "missed.xml").read_bytes() == written


def test_samples(journal_samples):
    assert list(journal_samples) == list(jm.Kind)
    for kind, log in journal_samples.items():
        assert log.kind is kind and len(log.entries) > 3
        assert jm.check(log) == []
