#!/usr/bin/env python3
"""Measures journalmsg on a large capture beside jq and xmllint, and writes the table of
docs/performance.md.

usage: captures.py JOURNALMSG FOLDER [MEGABYTES]

The capture repeats the golden messages and sample logs up to that size, 1,000 MB if none is given,
without those that no XML parser accepts. jq gets it as the JSON that journalmsg makes of it, xmllint
as one XML document.
"""

import re
import subprocess
import sys
import threading
import time
from collections import namedtuple
from pathlib import Path
from xml.etree import ElementTree

import report

ROOT = Path(__file__).resolve().parent.parent
MEGABYTE = 1_000_000
Measured = namedtuple("Measured", "seconds written peak")


def as_xml(text):
    """The methods' tags are never closed, and declarations are in front only."""
    text = re.sub(rb"<\?xml[^>]*\?>", b"", text)
    return re.sub(rb"<Method><(\w+)></Method>", rb"<Method>\1</Method>", text)


def is_xml(text):
    """Texts written raw may hold markup, which only the readers of the format can cope with."""
    try:
        ElementTree.fromstring(b"<all>" + as_xml(text) + b"</all>")
    except ElementTree.ParseError:
        return False
    return True


def messages():
    files = sorted([*ROOT.glob("tests/golden/*.xml"), *ROOT.glob("examples/data/*.xml")])
    texts = (file.read_bytes().strip() + b"\n" for file in files)
    return b"".join(text for text in texts if is_xml(text))


def repeat(path, block, size, front=b"", end=b""):
    with open(path, "wb") as file:
        file.write(front)
        for _ in range(size // len(block) + 1):
            file.write(block)
        file.write(end)


def watch_memory(process, ended, peaks):
    """Appends the most memory that a process has used, in MB, until it has ended."""
    while not ended.wait(0.02):
        status = Path(f"/proc/{process}/status").read_text(encoding="ascii")
        if found := re.search(r"VmHWM:\s*(\d+) kB", status):
            peaks.append(int(found[1]) / 1000)


def measure(command, path, output=None):
    """The seconds, bytes of result and peak memory in MB of a command that reads a file."""
    with open(path, "rb") as source:
        started = time.monotonic()
        process = subprocess.Popen(command, stdin=source, stdout=subprocess.PIPE)
        written, peaks = 0, [0]
        ended = threading.Event()
        watch = threading.Thread(target=watch_memory, args=(process.pid, ended, peaks))
        watch.start()
        target = open(output, "wb") if output else None
        while piece := process.stdout.read(1 << 20):
            written += len(piece)
            if target:
                target.write(piece)
        ended.set()
        watch.join()
        status = process.wait()
        seconds = time.monotonic() - started
    if status != 0:
        sys.exit(f"captures.py: {command} failed")
    if target:
        target.close()
    return Measured(seconds, written, max(peaks))


def main():
    journalmsg, folder = sys.argv[1], Path(sys.argv[2])
    size = int(sys.argv[3] if len(sys.argv) > 3 else 1000) * MEGABYTE
    folder.mkdir(parents=True, exist_ok=True)
    block = messages() * 100
    capture, lines, xml = (folder / name for name in ("capture.xml", "capture.jsonl", "all.xml"))
    repeat(capture, block, size)
    repeat(xml, as_xml(block), size, b"<all>", b"</all>\n")
    decode = [journalmsg, "decode", "--format", "jsonl"]
    measure(decode, capture, lines)
    runs = [
        ("`journalmsg decode --format jsonl`", capture, measure(decode, capture)),
        ("the same with `-j 0`", capture, measure([*decode, "-j", "0"], capture)),
        ("`journalmsg identify`", capture, measure([journalmsg, "identify"], capture)),
        ("`journalmsg stats`", capture, measure([journalmsg, "stats"], capture)),
        ("`jq .`", lines, measure(["jq", "."], lines)),
        ("`jq -c .`", lines, measure(["jq", "-c", "."], lines)),
        ("`xmllint --stream`", xml, measure(["xmllint", "--stream", "-"], xml)),
    ]
    first = runs[0][2]
    rows = ["| program | input MB | seconds | MB/s of input | MB/s of result | peak MB |",
            "|---|---|---|---|---|---|"]
    for name, path, run in runs:
        read = path.stat().st_size / MEGABYTE
        rows.append(f"| {name} | {read:.0f} | {run.seconds:.1f} | {read / run.seconds:.0f} | "
                    f"{run.written / MEGABYTE / run.seconds:.0f} | {run.peak:.0f} |")
    speed = first.written / first.seconds
    ratios = [f"{speed * run.seconds / run.written:.1f} times as fast as {name}"
              for name, _, run in runs[4:6]]
    rows += ["", "For each byte of result, decoding is " + " and ".join(ratios) + "."]
    table = "\n".join(rows)
    print(table)
    page = ROOT / "docs" / "performance.md"
    page.write_text(report.replace_sections(page.read_text(), {"captures": table}))
    for path in (capture, lines, xml):
        path.unlink()


main()
