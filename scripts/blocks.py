#!/usr/bin/env python3
"""Turns the fenced code blocks of Markdown pages into one bash script that runs them in order.

usage: blocks.py [--label LABEL] PAGE... | bash

What a block's language says:
  cpp      compiled and run; without a main, its lines become one
  python   run
  sh       run in the script's own shell, as by a reader who copies each line
  console  the lines behind "$ " are run, the other lines are what they print
  text     nothing, as without a language; any other language needs a file, prints or skip

A comment in front of a block says more, several things separated by semicolons:
  <!-- block: continues -->       the blocks of its language above it come first
  <!-- block: with FILE -->       cpp: this file is included first, for example with fakes
  <!-- block: file NAME -->       written to a file instead
  <!-- block: then COMMAND -->    a command that readers know to run, such as building that file
  <!-- block: prints -->          it is what the block before it printed
  <!-- block: exits CODE -->      it ends with this exit code
  <!-- block: label LABEL -->     run only where this label is asked for, and then alone
  <!-- block: skip REASON -->     not run

The script runs in the folder that it is started in. $CXX, $CXXFLAGS and $LIBS compile; $PYTHON is
the interpreter. Without $LIBS, pkg-config has to find the library.
"""
import argparse
import re
import shlex
import sys
from pathlib import Path

PREAMBLE = r'''
set -e # nothing else, because a reader's shell has no more
folder=$(mktemp -d)
place='the start' ran=0
exec 3>&1 4>&2
ended() {
  local status=$?
  exec >&3 2>&4
  if [ "$status" -ne 0 ]; then
    echo "$place: failed" >&2
    [ ! -s "$folder/printed" ] || sed 's/^/  /' "$folder/printed" >&2
  fi
  rm -rf "$folder"
}
trap ended EXIT

begin() { place=$1 ran=$((ran + 1)); exec >"$folder/printed" 2>&1; }
end() { exec >&3 2>&4; }

# ends_with CODE COMMAND...: in a shell of its own
ends_with() {
  local expected=$1 status
  shift
  set +e
  (set -e; "$@")
  status=$?
  set -e
  [ "$status" -eq "$expected" ] || { echo "exit code $status instead of $expected" >&2; return 1; }
}
compile() {
  local flags=${CXXFLAGS--std=c++11 -Wall -Wextra -Werror}
  ${CXX:-c++} $flags "$1" -o "$folder/program" \
    ${LIBS-$(pkg-config --cflags --libs JournalServiceHelper)}
}
# same FILE: it holds what the block before printed
same() { diff "$1" "$folder/printed" >"$folder/differs" || { cat "$folder/differs" >&2; return 1; }; }
'''

FENCE = re.compile(r'^(?P<fence>```+)(?P<language>\w*)\n(?P<text>.*?)^(?P=fence)$', re.M | re.S)
SAYS = re.compile(r'<!-- block: ([^\n]*) -->\n\Z')
NO_LANGUAGE = '', 'text'


class Block:
    def __init__(self, page, whole, found):
        self.page, self.language, self.text = page, found['language'], found['text']
        self.line = whole.count('\n', 0, found.start()) + 2
        said = SAYS.search(whole, 0, found.start())
        words = [word.strip().partition(' ') for word in said[1].split(';')] if said else []
        self.says = {word: rest for word, _, rest in words}
        unknown = self.says.keys() - {'continues', 'with', 'file', 'prints', 'exits', 'label', 'skip', 'then'}
        if unknown:
            sys.exit(f'{self.place()}: unknown: {", ".join(unknown)}')

    def place(self):
        return f'{self.page}:{self.line}'


def blocks_of(page):
    whole = Path(page).read_text(encoding='utf-8')
    return [Block(page, whole, found) for found in FENCE.finditer(whole)]


def write(name, text):
    """A command that writes a file. Quoted, a text is its own."""
    return f'printf %s {shlex.quote(text)} >{name}\n'


def cpp(parts):
    """One program. Its lines keep the numbers that they have in the page."""
    heads, body = [], []
    for part in parts:
        if part.says.get('with'):
            heads.append(f'#include "{Path(part.says["with"]).resolve()}"')
        lines = part.text.splitlines()
        if 'int main(' in part.text:
            heads += [f'#line {part.line} "{part.page}"'] + lines
            continue
        body.append(f'#line {part.line} "{part.page}"')
        for line in lines:
            include = line.startswith('#include')
            heads += [line] * include
            body.append('' if include else line)
    if body:
        body = ['int main() {', *body, '}']
    return write('"$folder/block.cpp"', '\n'.join(heads + body) + '\n') + 'compile "$folder/block.cpp"\n'


def console(block):
    """Each command, then a comparison with the lines below it."""
    commands = []
    for line in block.text.splitlines(keepends=True):
        if line.startswith('$ '):
            commands.append([line[2:], ''])
        elif commands:
            commands[-1][1] += line
        else:
            sys.exit(f'{block.place()}: no command in front of its output')
    return commands


def follow(block):
    """What comes behind a file: a command, begun and ended as if it were a block."""
    text = block.says.get('then')
    return text and f'begin {shlex.quote(block.place())}\n{text} || exit\nend\n' or ''


def command(block, earlier):
    """The command that runs a block, as its lines of the script."""
    exits = block.says.get('exits')
    by_code = f'ends_with {exits} ' if exits else ''
    continued = 'continues' in block.says
    parts = [part for part in earlier if continued and part.language == block.language] + [block]
    if block.language == 'cpp':
        return cpp(parts) + by_code + '"$folder/program"\n'
    if block.language == 'python':
        text = ''.join(part.text for part in parts)
        return write('"$folder/block.py"', text) + by_code + '${PYTHON:-python3} -B "$folder/block.py"\n'
    if block.language == 'sh':
        return write('"$folder/block"', block.text) + by_code + '. "$folder/block"\n'
    if block.language != 'console':
        sys.exit(f'{block.place()}: nothing is known of language "{block.language}"')
    lines, last = '', len(console(block)) - 1
    for at, (line, printed) in enumerate(console(block)):
        ends = by_code if at == last else ''
        lines += write('"$folder/block"', line) + write('"$folder/expected"', printed)
        lines += f'exec >"$folder/printed" 2>&1\n{ends}. "$folder/block"\nend\n'
        lines += 'same "$folder/expected"\n'
    return lines


def script(blocks, label):
    yield PREAMBLE
    earlier = []
    for block in blocks:
        if earlier and earlier[-1].page != block.page:
            earlier = []
        if 'skip' in block.says or block.says.get('label') != label:
            continue
        if 'prints' in block.says:
            yield f'place={shlex.quote(block.place())}\n' + write('"$folder/expected"', block.text)
            yield 'same "$folder/expected"\n'
        elif 'file' in block.says:
            name = shlex.quote(block.says['file'])
            yield f'mkdir -p "$(dirname {name})"\n' + write(name, block.text) + follow(block)
        elif block.language not in NO_LANGUAGE:
            yield f'begin {shlex.quote(block.place())}\n{command(block, earlier)}end\n'
            earlier.append(block)
    yield 'echo "$ran blocks"\n'


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('--label')
    parser.add_argument('pages', nargs='+', metavar='PAGE')
    options = parser.parse_args()
    sys.stdout.write(''.join(script([block for page in options.pages for block in blocks_of(page)],
                                    options.label)))


if __name__ == '__main__':
    main()
