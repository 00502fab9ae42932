#!/usr/bin/env python3
"""Merges what gcov counted into one gcovr tracefile in which each branch of the source stands once.

A header is compiled into many programs and a template is compiled once for each type, and gcov
counts the branches of every copy. Here a branch of the source counts as taken when a copy takes it.
Copies of a line are merged only when they come from the same function and hold equally many
branches. A fold expression is one condition in the source, repeated once for each element of its
pack; its repetitions are merged as well.

The libraries' sources are counted where the libraries themselves are built; programs that compile
them once more, for a purpose of their own, do not count. The headers of include/ are counted
everywhere.

usage: coverage.py ROOT BUILD OUTPUT
"""
import json
import re
import subprocess
import sys
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

LIBRARIES = 'src', 'clientutils'
HEADERS = 'include'
FOLD = re.compile(r'(&&|\|\|) \.\.\.\)')


def gcov(notes):
    """What gcov knows of one object, executed or not, as its JSON documents."""
    run = subprocess.run(['gcov', '--branch-probabilities', '--json-format', '--stdout', str(notes)],
                         capture_output=True, text=True, check=True, cwd=notes.parent)
    return [json.loads(line) for line in run.stdout.splitlines() if line.startswith('{')]


def branches_taken(branches):
    """How often each branch was taken, without calls that end in two ways, one of them a throw."""
    counts = []
    at = 0
    while at < len(branches):
        pair = branches[at:at + 2]
        if any(branch['throw'] for branch in pair):
            at += 2
        else:
            counts.append(pair[0]['count'])
            at += 1
    return counts


class Merged:
    """The lines of the libraries."""

    def __init__(self, root):
        self.root = root
        self.counts = defaultdict(int)  # (file, line) -> how often
        # (file, line) -> (where the function starts, number of branches) -> counts of each
        self.branches = defaultdict(dict)
        self.copies = defaultdict(dict)  # (file, line) -> function -> counts of each branch

    def add(self, document, folders):
        for file in document['files']:
            path = Path(document['current_working_directory'], file['file']).resolve()
            if not any(path.is_relative_to(self.root / folder) for folder in folders):
                continue
            name = str(path.relative_to(self.root))
            starts = {f['name']: (f['start_line'], f['start_column']) for f in file['functions']}
            for line in file['lines']:
                self.add_line(name, line, starts.get(line.get('function_name')))

    def add_line(self, name, line, start):
        key = name, line['line_number']
        self.counts[key] += line['count']
        counts = branches_taken(line['branches'])
        if counts:
            self.sum(self.copies[key], (line.get('function_name'), len(counts)), counts)
            self.sum(self.branches[key], (start, len(counts)), counts)

    @staticmethod
    def sum(known, which, counts):
        known[which] = [a + b for a, b in zip(known.get(which, [0] * len(counts)), counts)]

    def branches_of(self, key, text):
        groups = self.branches.get(key, {}).values()
        if not FOLD.search(text):
            return [count for group in groups for count in group]
        return [sum(sum(group[side::2]) for group in groups) for side in (0, 1)]

    def tracefile(self):
        files = defaultdict(list)
        for key in sorted(self.counts):
            name, number = key
            text = (self.root / name).read_text().splitlines()[number - 1]
            files[name].append({
                'line_number': number, 'count': self.counts[key],
                'branches': [{'count': count, 'fallthrough': False, 'throw': False}
                             for count in self.branches_of(key, text)],
                'gcovr/noncode': False, 'gcovr/excluded': False})
        return {'gcovr/format_version': '0.3',
                'files': [{'file': name, 'lines': lines, 'functions': []}
                          for name, lines in sorted(files.items())]}


def main():
    root, build, output = (Path(argument).resolve() for argument in sys.argv[1:])
    merged = Merged(root)
    notes = sorted(build.rglob('*.gcno'))
    with ThreadPoolExecutor(4) as pool:
        for path, documents in zip(notes, pool.map(gcov, notes)):
            library = path.relative_to(build).parts[0] in LIBRARIES
            for document in documents:
                merged.add(document, (*LIBRARIES, HEADERS) if library else (HEADERS,))
    output.write_text(json.dumps(merged.tracefile()))
    every = [count for copies in merged.copies.values() for copy in copies.values()
             for count in copy]
    print(f'Counted once for each copy, {sum(map(bool, every))} of {len(every)} branches are taken.')


main()
