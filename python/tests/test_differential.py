"""Texts near valid messages, read through Python and by the tests' own reference reader."""
import json
import os
import subprocess

import journalmessages as jm

COUNT = int(os.environ.get("JOURNAL_PYTHON_TEXTS") or 2000)


def text_of_hex(value):
    if value.keys() == {"hex"}:
        return bytes.fromhex(value["hex"]).decode("utf-8", "surrogateescape")
    return value


def test_python_reads_what_the_reference_reads(texts_program):
    printed = subprocess.run([texts_program, str(COUNT)], check=True, capture_output=True).stdout
    compared = 0
    lines = printed.splitlines()
    assert len(lines) >= 3.9 * COUNT
    for line in lines:
        log, text, expected = line.split(b" ", 2)
        raw = bytes.fromhex(text.decode())
        try:
            message = jm.decode(raw)
        except jm.NotAMessage:
            continue
        if not isinstance(message, jm.ListResponse) or message.kind.name.lower() != log.decode():
            continue
        calls = sum(len(entry.calls) for entry in message.entries)  # asked for: objects hold them
        actual = message.to_dict()
        actual.pop("outcome", None)
        assert actual == json.loads(expected, object_hook=text_of_hex), raw
        assert sum(len(entry["callInfoList"]) for entry in actual["entries"]) == calls
        compared += 1
    assert compared > 0.7 * len(lines)
