#!/usr/bin/env python3
"""Merges what gcov counted into one gcovr tracefile with each branch of the source once.

A header is compiled into many programs and a template is compiled once for each type, and gcov
counts the branches of every copy. Here a branch of the source counts as taken when a copy takes it.
Copies of a line are merged only when they come from the same function and hold equally many
branches. A fold expression is one condition in the source, repeated once for each element of its
pack; its repetitions are merged as well.

The libraries' sources are counted where the libraries themselves are built; programs that compile
them once more, for a purpose of their own, do not count. The exception is journal_bytes_test, which
compares texts of sizes that no tag has today: what it takes of the branches that the libraries have
in src/bytes/ counts. The headers of include/ are counted everywhere.

usage: coverage.py ROOT OUTPUT BUILD...
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
UNCOUNTED = 'GCOVR_EXCL_BR_LINE'  # gcovr's mark for a line whose branches the compiler made
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


def start_of(function):
    return function['start_line'], function['start_column']


def split_copies(branches, copies):
    """The equal parts of a line's branches that stem from equally many copies of a function."""
    size = len(branches) // copies
    parts = [branches[at:at + size] for at in range(0, size * copies, size)] if size else []
    shapes = {tuple(branch['throw'] for branch in part) for part in parts}
    return parts if size * copies == len(branches) and len(shapes) == 1 else [branches]


class Merged:
    """The lines of the libraries."""

    def __init__(self, root):
        self.root = root
        self.counts = defaultdict(int)  # (file, line) -> how often
        # (file, line) -> (where the function starts, number of branches) -> counts of each
        self.branches = defaultdict(dict)
        self.copies = defaultdict(dict)  # (file, line) -> function -> counts of each branch
        self.functions = defaultdict(dict)  # file -> where it starts -> (name, how often)

    def add(self, document, folders, new_branches=True):
        for file in document['files']:
            path = Path(document['current_working_directory'], file['file']).resolve()
            if not any(path.is_relative_to(self.root / folder) for folder in folders):
                continue
            name = str(path.relative_to(self.root))
            for line in file['lines']:
                self.add_line(name, line, file['functions'], new_branches)
            for function in file['functions']:
                known, count = self.functions[name].get(start_of(function), (None, 0))
                self.functions[name][start_of(function)] = (
                    known or function['demangled_name'], count + function['execution_count'])

    def add_line(self, name, line, functions, new_branches):
        key = name, line['line_number']
        self.counts[key] += line['count']
        function = line.get('function_name')
        starts = [start_of(f) for f in functions if f['name'] == function]
        copies = 1
        if function is None:
            # gcov joins the copies of a lambda in a template.
            around = [start_of(f) for f in functions
                      if f['start_line'] <= line['line_number'] <= f['end_line']]
            starts = [max(around, default=None)]
            copies = max(1, around.count(starts[0]))
        for index, part in enumerate(split_copies(line['branches'], copies)):
            counts = branches_taken(part)
            if counts and (new_branches or (starts[0], len(counts)) in self.branches[key]):
                self.sum(self.copies[key], (function, index, len(counts)), counts)
                self.sum(self.branches[key], (starts[0], len(counts)), counts)

    @staticmethod
    def sum(known, which, counts):
        known[which] = [a + b for a, b in zip(known.get(which, [0] * len(counts)), counts)]

    @staticmethod
    def is_bare(text):
        """Whether a line has no code of its own: it is counted only where exceptions end blocks."""
        return not text.split('//')[0].strip(' {};')

    def branches_of(self, key, text):
        if UNCOUNTED in text:
            return []
        groups = self.branches.get(key, {}).values()
        if not FOLD.search(text):
            return [count for group in groups for count in group]
        return [sum(sum(group[side::2]) for group in groups) for side in (0, 1)]

    def tracefile(self):
        files = defaultdict(list)
        for key in sorted(self.counts):
            name, number = key
            text = (self.root / name).read_text().splitlines()[number - 1]
            if self.counts[key] == 0 and self.is_bare(text):
                continue
            files[name].append({
                'line_number': number, 'count': self.counts[key],
                'branches': [{'count': count, 'fallthrough': False, 'throw': False}
                             for count in self.branches_of(key, text)],
                'gcovr/noncode': False, 'gcovr/excluded': False})
        return {'gcovr/format_version': '0.3',
                'files': [{'file': name, 'lines': lines, 'functions': self.functions_of(name)}
                          for name, lines in sorted(files.items())]}

    def functions_of(self, file):
        # With the line, as one function can be written once for each processor.
        return [{'name': f'{name}:{start[0]}', 'lineno': start[0], 'execution_count': count}
                for start, (name, count) in sorted(self.functions[file].items())]


def main():
    root, output, *builds = (Path(argument).resolve() for argument in sys.argv[1:])
    merged = Merged(root)
    notes = [path for build in builds for path in sorted(build.rglob('*.gcno'))]
    inside = {path for build in builds for folder in LIBRARIES
              for path in (build / folder).rglob('*.gcno')}
    notes.sort(key=lambda path: path not in inside)
    with ThreadPoolExecutor(4) as pool:
        for path, documents in zip(notes, pool.map(gcov, notes)):
            for document in documents:
                merged.add(document, (*LIBRARIES, HEADERS) if path in inside else (HEADERS,))
                if 'journal_bytes_test.dir' in path.parts:
                    merged.add(document, ('src/bytes',), new_branches=False)
    output.write_text(json.dumps(merged.tracefile()))
    every = [count for copies in merged.copies.values() for copy in copies.values()
             for count in copy]
    print('With every copy that the compiler makes of a template or an inline function counted by',
          f'itself, {sum(map(bool, every))} of {len(every)} branches are taken.', sep='\n')


main()
