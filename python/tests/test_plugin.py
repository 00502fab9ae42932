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


def test_equal_values_differ_in_their_bytes(pytester):
    result = run(
        pytester,
        """
def test_bytes():
    raw = log("Berg").raw
    assert raw == raw.replace(b"<Viewed>", b"\\n<Viewed>")
""",
    )
    result.assert_outcomes(failed=1)
    line = r"the same values; the bytes differ from \d+: b'<Viewed>Fal' != b'\\n<Viewed>Fa'"
    result.stdout.re_match_lines([f".*{line}"])


def test_lists_and_messages_of_other_classes(pytester):
    result = run(
        pytester,
        """
def test_entries():
    assert log("Berg").entries == log("Sohn").entries
def test_no_entries():
    assert [] == log("Berg").entries
def test_calls():
    assert log("Berg").entries[0].calls == log("Sohn").entries[0].calls
def test_findings():
    assert jm.check(log("Berg").raw.replace(b"<Viewed>", b" <Viewed>")) == []
def test_differences():
    assert [] == jm.diff(log("Berg"), log("Sohn"))
def test_messages():
    assert log("Berg") == jm.Outcome(ok=True)
""",
    )
    result.assert_outcomes(failed=6)
    for line in (
        "*lists of MissedEntry differ:*",
        "*m-1 surname: 'Berg' != 'Sohn'*",
        "*m-1: None != 'present'*",
        "*lists of MissedCall differ:*",
        "*callInfoList*0*.number: 'Berg' != 'Sohn'*",
        "*lists of Finding differ:*",
        "*note at * [[]white-space[]]: *",
        "*lists of Difference differ:*",
        "*m-1 surname: 'Berg' != 'Sohn'*",
        "*ListResponse and Outcome differ:*",
        "*kind: 'listResponse' != 'outcome'*",
    ):
        result.stdout.fnmatch_lines([line])


def test_the_last_line_is_the_tests_own(pytester):
    result = run(pytester, "def test_it(): jm.decode('hello')")
    result.stdout.re_match_lines([r"test_the_last_line_is_the_tests_own\.py:\d+: NotAMessage"])


def test_other_comparisons_are_left_alone(pytester):
    result = run(
        pytester,
        """
def test_texts():
    assert b"one" == b"two"
def test_order():
    assert log("Berg") != log("Berg")
def test_lists():
    assert [1] == []
def test_mixed():
    assert [jm.MissedEntry(), jm.DialledEntry()] == []
def test_what_cannot_be_written():
    assert jm.ListResponse(jm.Kind.MISSED, handle=-1) == log("Berg")
""",
    )
    result.assert_outcomes(failed=5)
    assert "Error" not in result.stdout.str().replace("AssertionError", "")
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
