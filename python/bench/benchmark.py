#!/usr/bin/env python3
"""How fast messages are read, side by side with ElementTree on the same text.

usage: benchmark.py                 the ratios, in under a minute
       benchmark.py --scan MEGABYTES    also the memory that scan takes for a capture of that size

Needs journalmessages on the path of modules. Exit code 1 when a ratio is below what is promised.
"""
import argparse
import resource
import sys
import tempfile
import time
import xml.etree.ElementTree as ElementTree

import journalmessages as jm

PROMISED = {'decode': 20.0, 'decode and read': 1.5}


def log_of(entries):
    """The log of a busy week: two calls to an entry."""
    log = jm.ListResponse(jm.Kind.MISSED, handle=7)
    for number in range(entries):
        entry = jm.MissedEntry(
            unique_id=f'm-{number}',
            entry_id=str(number),
            surname='Berg & Sohn',
            firstname='Ida',
            picture='pictures/berg.jpg',
        )
        for minute in (10, 20):
            entry.calls.append(
                jm.MissedCall(
                    number=f'+49 30 555{number:04}',
                    number_type=jm.NumberType.MOBILE,
                    target_log=jm.LogTarget.IN_NO_ANSWER,
                    time_date=f'2025-11-14 16:{minute}',
                    number_presentation=jm.Presentation.ALLOWED,
                    name_presentation=jm.Presentation.ALLOWED,
                )
            )
        log.entries.append(entry)
    return jm.encode(log)


def wrapped(message):
    """The same text as well-formed XML: with a root, and its method's tag closed."""
    return message.replace(b'<getMissedCallList>', b'<getMissedCallList/>').join((b'<r>', b'</r>'))


ENTRY = tuple(name for name in jm.MissedEntry.__match_args__ if name != 'calls')
CALL = jm.MissedCall.__match_args__


def dictionaries(message):
    """Every attribute of every entry and call."""
    return [
        {
            **{name: getattr(entry, name) for name in ENTRY},
            'calls': [{name: getattr(call, name) for name in CALL} for call in entry.calls],
        }
        for entry in jm.decode(message).entries
    ]


def same_by_tree(text):
    """The same from the tree; with texts where the attributes are members and flags."""
    return [
        {
            **{child.tag: child.text for child in entry if child.tag != 'LogList'},
            'calls': [{child.tag: child.text for child in item} for item in entry.find('LogList')],
        }
        for entry in ElementTree.fromstring(text).iter('Entry')
    ]


def best(functions, repeats=15):
    """The shortest time of each, measured in turn so that a busy machine slows all of them."""
    times = [float('inf')] * len(functions)
    for _ in range(repeats):
        for at, function in enumerate(functions):
            start = time.perf_counter()
            for _ in range(5):
                function()
            times[at] = min(times[at], (time.perf_counter() - start) / 5)
    return times


def ratios(entries):
    message = log_of(entries)
    text = wrapped(message)
    decode, tree, read, same = best(
        [
            lambda: jm.decode(message),
            lambda: ElementTree.fromstring(text),
            lambda: dictionaries(message),
            lambda: same_by_tree(text),
        ]
    )
    print(
        f'{entries:6} entries, {len(message):8} bytes: decode {decode * 1e6:9.1f} us, '
        f'ElementTree {tree * 1e6:9.1f} us, ratio {tree / decode:5.1f}; with every attribute '
        f'{read * 1e6:9.1f} us, {same * 1e6:9.1f} us, ratio {same / read:5.2f}'
    )
    return {'decode': tree / decode, 'decode and read': same / read}


def scan(megabytes):
    with tempfile.NamedTemporaryFile() as capture:
        message = log_of(100) + b'\n'
        for _ in range((megabytes << 20) // len(message) + 1):
            capture.write(message)
        capture.flush()
        before = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
        start = time.perf_counter()
        found = sum(1 for _ in jm.scan(capture.name))
        seconds = time.perf_counter() - start
    grown = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss - before
    print(
        f'scan: {megabytes} MB, {found} messages, {megabytes / seconds:.0f} MB/s, '
        f'{grown / 1024:.1f} MB more memory at its peak'
    )
    return grown < 100 * 1024


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawTextHelpFormatter
    )
    parser.add_argument('--scan', type=int, metavar='MEGABYTES')
    options = parser.parse_args()
    # First, while little memory has been taken.
    met = scan(options.scan) if options.scan else True
    for entries in (1, 10, 100, 1000):
        measured = ratios(entries)
        if entries >= 100:
            met = met and all(measured[what] >= least for what, least in PROMISED.items())
    print(
        'promised: decode 20 times as fast, with every attribute 1.5 times, from 100 entries on: '
        + ('met' if met else 'NOT MET')
    )
    sys.exit(not met)


if __name__ == '__main__':
    main()
