#!/usr/bin/env python3
"""Measures what the library costs and compares it with the tables of docs/costs.md.

usage: costs.py [--update]      run by scripts/costs, which builds what is measured
"""
import os
import re
import subprocess
import sys
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ALLOWED = 1.02
DOCUMENT = Path('docs/costs.md')
WORK = Path('build/costs')
KINDS = 'missed', 'dialled', 'received', 'forwarded'
ENTRIES, TIMES = 100, 10
MIPS_ROOT = '/usr/mips-linux-gnu'


def output_of(*command, env=None):
    done = subprocess.run(command, capture_output=True, text=True, env=env)
    if done.returncode != 0:
        sys.exit(f'{" ".join(map(str, command))} failed:\n{done.stderr}')
    return done.stdout + done.stderr


# ---- Footprint

LIBRARIES = {  # the rows: the prefix of the tools' names, and the preset
    'MIPS MinSizeRel': ('mips-linux-gnu-', 'mips-size'),
    'MIPS16 MinSizeRel': ('mips-linux-gnu-', 'mips16'),
    'MIPS Release': ('mips-linux-gnu-', 'mips'),
    'x86-64 MinSizeRel': ('', 'size'),
    'x86-64 Release': ('', 'release'),
}


def footprint():
    """Sizes of the stripped libraries: row -> text, data, both."""
    rows = {}
    for row, (prefix, preset) in LIBRARIES.items():
        stripped = WORK / f'{preset}.so'
        output_of(prefix + 'strip', '-o', stripped,
                  f'build/{preset}/src/libJournalServiceHelper.so')
        text, data = map(int, output_of(prefix + 'size', stripped).splitlines()[1].split()[:2])
        rows[row] = [text, data, text + data]
    return rows


# ---- What the library for the device consists of

PARTS = {  # the rows -> sections
    'names of symbols': ('.dynstr',),
    'tables of symbols': ('.dynsym', '.hash', '.gnu.version', '.gnu.version_r'),
    'addresses, filled in when it is loaded': ('.got', '.rel.dyn', '.MIPS.stubs', '.dynamic'),
    'unwinding': ('.eh_frame', '.eh_frame_hdr', '.gcc_except_table'),
    'constructing and destroying the constants': (),
    'other code': ('.text',),
    'texts and descriptors': ('.rodata', '.data.rel.ro', '.data', '.sdata'),
}
CONSTANTS = re.compile(r'^\w+ (\w+) t (?:_GLOBAL__sub_[ID]_Constants\.cpp|.*::next(?:Word|Tag)\(\))$', re.M)


def parts():
    """Bytes of text and data of the MIPS MinSizeRel library: row -> bytes."""
    prefix, preset = LIBRARIES['MIPS MinSizeRel']
    stripped = WORK / f'{preset}.so'
    sections = dict(re.findall(r'^(\.\S+) +(\d+)', output_of(prefix + 'size', '-A', stripped), re.M))
    sizes = {row: sum(int(sections[name]) for name in names) for row, names in PARTS.items()}
    symbols = output_of(prefix + 'nm', '-SC', f'build/{preset}/src/libJournalServiceHelper.so')
    constants = sum(int(size, 16) for size in CONSTANTS.findall(symbols))
    sizes['constructing and destroying the constants'] = constants
    sizes['other code'] -= constants
    all_bytes = sum(map(int, output_of(prefix + 'size', stripped).splitlines()[1].split()[:2]))
    sizes['everything else'] = all_bytes - sum(sizes.values())
    return {row: [size] for row, size in sizes.items()}


# ---- Instructions

def on_mips(library):
    def count(*arguments):
        shown = output_of('qemu-mips', '-L', MIPS_ROOT, '-plugin', WORK / 'count_plugin.so',
                          '-E', f'LD_LIBRARY_PATH={library}/src:{library}/clientutils',
                          'build/mips/tests/costs/journal_costs', *arguments, env={})
        return int(re.search(r'instructions: (\d+)', shown)[1])
    return count


def on_x86_64(*arguments):
    shown = output_of('valgrind', '--tool=callgrind', '--callgrind-out-file=/dev/null',
                      'build/release/tests/costs/journal_costs', *arguments,
                      env={'PATH': os.environ['PATH']})
    return int(re.search(r'Collected : (\d+)', shown)[1])


def instructions():
    """Per entry: (operation, kind) -> counts on MIPS, built for speed and for size, and x86-64."""
    machines = on_mips('build/mips'), on_mips('build/mips-size'), on_x86_64

    def per_entry(case):
        counts = [count(*case, str(TIMES)) - count(*case, '0') for count in machines]
        return f'{case[0]} {case[1]}', [round(count / TIMES / ENTRIES) for count in counts]

    cases = [(operation, kind) for operation in ('decode', 'encode') for kind in KINDS]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        return dict(pool.map(per_entry, cases))


# ---- Stack

NODE = re.compile(r'^node: \{ title: "([^"]*)" label: "((?:[^"\\]|\\.)*)"( shape : ellipse)? \}$', re.M)
EDGE = re.compile(r'^edge: \{ sourcename: "([^"]*)" targetname: "([^"]*)"', re.M)
INDIRECT = '__indirect_call'
PUBLIC = re.compile(r'_ZN20JournalServiceHelper\d+')


def call_graph(compiler, flags):
    """What the compiler knows of the library's own functions: frames in bytes, and calls."""
    folder = WORK / ''.join(flags)
    folder.mkdir(parents=True, exist_ok=True)
    sources = sorted(Path('src').rglob('*.cpp'))

    def compiled(source):
        output_of(compiler, '-std=c++17', *flags, '-DNDEBUG', '-fPIC', '-fvisibility=hidden',
                  '-fvisibility-inlines-hidden', '-Iinclude', '-Isrc', '-fcallgraph-info=su',
                  '-c', source, '-o', folder / f'{source.stem}.o')
        return (folder / f'{source.stem}.ci').read_text()

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        # What is not exported has its file's name in front here, but not where others call it.
        texts = [re.sub(r'"src/[\w/]+\.cpp:', '"', text) for text in pool.map(compiled, sources)]
    called = {target for text in texts for _, target in EDGE.findall(text)}
    frames, calls, names = {}, defaultdict(set), {}
    for text in texts:
        pointed = set()  # what nothing calls by its name may be called through a pointer
        for title, label, elsewhere in NODE.findall(text):
            frame = re.search(r'\\n(\d+) bytes \(([^)]*)\)', label)
            if elsewhere or not frame:
                continue
            if 'static' not in frame[2]:
                sys.exit(f'{label}: its frame is not of a fixed size')
            frames[title] = max(int(frame[1]), frames.get(title, 0))
            names[title] = label.split('\\n')[0]
            if title not in called and not PUBLIC.match(title):
                pointed.add(title)
        for caller, target in EDGE.findall(text):
            calls[caller] |= pointed if target == INDIRECT else {target}
    return frames, calls, names


def deepest(title, frames, calls, known, path=()):
    """The most bytes of stack from a function on; functions of other libraries do not count."""
    if title in path:
        sys.exit(f'{" calls ".join((*path, title))}: recursion')
    if title not in frames:
        return 0
    if title not in known:
        known[title] = frames[title] + max(
            (deepest(target, frames, calls, known, (*path, title)) for target in calls[title]),
            default=0)
    return known[title]


def stack():
    """Of each public operation: its name -> bytes on MIPS, built for speed and for size."""
    rows = {}
    for column, flags in enumerate((['-O3'], ['-Os'])):
        frames, calls, names = call_graph('mips-linux-gnu-g++', flags)
        known = {}
        for title in frames:
            if not PUBLIC.match(title):
                continue
            name = re.search(r'JournalServiceHelper::(\w+)\(', names[title])[1]
            row = rows.setdefault(name, [0, 0])
            row[column] = max(row[column], deepest(title, frames, calls, known))
    return dict(sorted(rows.items()))


# ---- The document

TABLES = {  # mark in the document -> heads of the columns, what measures the rows
    'footprint': (('library', 'text', 'data', 'both'), footprint),
    'parts': (('part', 'bytes'), parts),
    'instructions': (('operation', 'MIPS Release', 'MIPS MinSizeRel', 'x86-64 Release'), instructions),
    'stack': (('operation', 'MIPS Release', 'MIPS MinSizeRel'), stack),
}


def block(mark):
    return re.compile(rf'(<!-- {mark} -->\n)(.*?)(<!-- end -->)', re.S)


def recorded(text, mark):
    rows = {}
    for line in block(mark).search(text)[2].splitlines()[2:]:
        name, *cells = (cell.strip() for cell in line.strip('|').split('|'))
        rows[name] = [int(cell.replace(',', '')) for cell in cells]
    return rows


def written(heads, rows):
    lines = [heads, ['---'] + ['---:'] * (len(heads) - 1)]
    lines += [[name, *(f'{value:,}' for value in values)] for name, values in rows.items()]
    return ''.join(f'| {" | ".join(line)} |\n' for line in lines)


def compare(heads, before, now):
    """Says what changed; tells whether nothing grew by more than is allowed."""
    if before.keys() != now.keys():
        print('not the same rows:', *sorted(before.keys() ^ now.keys()))
        return False
    good = True
    for name, values in now.items():
        for head, old, new in zip(heads[1:], before[name], values):
            if new > old * ALLOWED or new < old / ALLOWED:
                print(f'{name}, {head}: {old:,} -> {new:,}' + (' GREW' if new > old else ''))
            good = good and new <= old * ALLOWED
    return good


def main():
    WORK.mkdir(parents=True, exist_ok=True)
    text = DOCUMENT.read_text()
    good = True
    for mark, (heads, measure) in TABLES.items():
        rows = measure()
        if '--update' in sys.argv[1:]:
            text = block(mark).sub(lambda found: found[1] + written(heads, rows) + found[3], text)
        else:
            good = compare(heads, recorded(text, mark), rows) and good
            print(f'{mark}: {len(rows)} rows compared')
    if '--update' in sys.argv[1:]:
        DOCUMENT.write_text(text)
    if not good:
        sys.exit('More than 2 % above docs/costs.md, see above; scripts/costs --update accepts it')


main()
