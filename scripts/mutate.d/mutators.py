"""Finds the changes that scripts/mutate makes: one small change to a C++ source at a time.

It works on tokens and on clang-format's layout, where binary operators stand between blanks and the
brackets of templates do not, so it needs no parser. A change that does not compile does no harm.
"""
import re
from collections import namedtuple

Change = namedtuple('Change', 'start end text')
Token = namedtuple('Token', 'kind text start end')

TOKEN = re.compile(r'''
    (?P<skip>   \s+ | //[^\n]* | /\*.*?\*/ | ^[ ]*\#(?:[^\n\\]|\\.|\\\n)* )
  | (?P<text>   "(?:[^"\\]|\\.)*" )
  | (?P<char>   '(?:[^'\\]|\\.)*' )
  | (?P<number> \d[\w']* )
  | (?P<name>   [A-Za-z_]\w* )
  | (?P<op>     <<= | >>= | \.\.\. | -> | :: | \+\+ | -- | && | \|\| | [-+*/%&|^=!<>]= | . )
''', re.VERBOSE | re.MULTILINE | re.DOTALL)
OPERATORS = {
    '<': ['<=', '>='], '<=': ['<', '>'], '>': ['>=', '<='], '>=': ['>', '<'],
    '==': ['!='], '!=': ['=='], '&&': ['||'], '||': ['&&'],
    '+': ['-'], '-': ['+'], '*': ['/'], '/': ['*'], '%': ['/'],
    '&': ['|'], '|': ['&'], '^': ['|'], '?': ['== false ?'],
    '+=': ['-='], '-=': ['+='], '|=': ['&='], '&=': ['|='],
}
NAMES = dict(pair for a, b in (('true', 'false'), ('begin', 'close'), ('min', 'max'))
             for pair in ((a, b), (b, a)))
CLOSING = {'(': ')', '[': ']', '{': '}'}
COMPARISON = re.compile(r' (?:[=!<>]=|[<>]) ')
# What a statement that can be left out begins with: a jump, a call or an assignment, but no type.
STATEMENT = re.compile(r'(break|continue)$|(?!(if|for|while|switch|return|static_assert)\b)'
                       r'(\+\+|--|\*)?([\w:.\[\]]|->)+(<[^;=]*>)?(\(|\s[-+*/|&^]?=\s|\+\+|--)')


def following(pattern, sources):
    """The next of the names that a pattern finds in the sources, for each of them."""
    names = list(dict.fromkeys(name for source in sources for name in re.findall(pattern, source)))
    return dict(zip(names, names[1:] + names[:1]))


def enumerators(sources):
    """The next enumerator of each one's enumeration."""
    return {name: other for source in sources
            for body in re.findall(r'\benum\b[^;{}()]*\{([^}]*)\}', re.sub(r'//[^\n]*', '', source))
            for name, other in following(r'(?:^|,)\s*(\w+)', [body]).items()}


class Finder:
    """The changes to one source, given the names that may replace each other."""

    def __init__(self, source, names):
        self.source, self.names = source, names
        self.tokens = [Token(found.lastgroup, found.group(), found.start(), found.end())
                       for found in TOKEN.finditer(source) if found.lastgroup != 'skip']
        self.match = {}  # index of an opening bracket -> index of its closing one
        opened = []
        for at, token in enumerate(self.tokens):
            if token.text in CLOSING:
                opened.append(at)
            elif token.text in CLOSING.values() and opened:
                self.match[opened.pop()] = at

    def changes(self):
        rules = self.operators, self.words, self.conditions, self.rows, self.statements
        found = {self.changed(change): change for at, token in enumerate(self.tokens)
                 for rule in rules for change in rule(at, token)}
        found.pop(self.source, None)
        return sorted(found.values())

    def changed(self, change):
        return self.source[:change.start] + change.text + self.source[change.end:]

    def text(self, at):
        return self.tokens[at].text if at < len(self.tokens) else ''

    def between(self, first, last):
        return self.source[self.tokens[first].start:self.tokens[last].end]

    def replace(self, first, last, text):
        return Change(self.tokens[first].start, self.tokens[last].end, text)

    def end_of(self, at, *ends):
        """The index of the next of some tokens outside of brackets."""
        while self.text(at) and self.text(at) not in ends:
            at = self.match.get(at, at) + 1
        return at

    def operators(self, at, token):
        around = self.source[token.start - 1:token.start] + self.source[token.end:token.end + 1]
        if around.isspace() and len(around) == 2:
            for other in OPERATORS.get(token.text, ()):
                yield self.replace(at, at, other)
        elif token.text in ('++', '--'):
            yield self.replace(at, at, '--' if token.text == '++' else '++')
        elif token.text in ('!', '-', '~'):
            yield self.replace(at, at, '')

    def words(self, at, token):
        if token.kind == 'number':
            digits, suffix = re.fullmatch(r"([\da-fA-FxX']+)([uUlL]*)", token.text).groups()
            value, write = int(digits.replace("'", ''), 0), hex if 'x' in digits else str
            for other in (value - 1, value + 1)[value == 0:]:
                yield self.replace(at, at, write(other) + suffix)
        elif token.kind == 'char':
            yield self.replace(at, at, f'char({token.text} + 1)')
        elif token.kind == 'text':
            yield self.replace(at, at, f'{token.text[:-1]}x"')
        elif token.text in self.names:
            before = self.text(at - 1)
            declared = re.match(r'[\w>&*]', before[-1:]) and before not in ('return', 'case')
            if not declared and self.text(at + 1) != '=':
                yield self.replace(at, at, self.names[token.text])

    def conditions(self, at, token):
        """Negates conditions, except where another rule changes their one comparison."""
        opening = at + 1 + (self.text(at + 1) == 'constexpr')
        if token.text in ('if', 'while') and self.text(opening) == '(':
            last = self.match[opening] - 1
            first = max((i + 1 for i in range(opening, last) if self.text(i) == ';'),
                        default=opening + 1)
            condition = self.between(first, last)
            if re.search(r'&&|\|\|', condition) or \
                    condition[0] != '!' and len(COMPARISON.findall(condition)) != 1:
                yield self.replace(first, last, f'!({condition})')
        elif token.text == 'return' and self.text(at + 1) not in (';', 'true', 'false', '{'):
            yield self.replace(at + 1, self.end_of(at, ';') - 1, '{}')

    def rows(self, at, token):
        """Leaves out each part of a list in braces, and lets neighbours change places."""
        if token.text != '{' or self.text(at - 1) not in ('=', '('):
            return
        parts, first = [], at + 1
        while first < self.match[at]:
            comma = self.end_of(first, ',', '}')
            parts.append((first, comma - 1))
            first = comma + 1
        for one, two in zip(parts, parts[1:]):
            gap = self.source[self.tokens[one[1]].end:self.tokens[two[0]].start]
            yield self.replace(one[0], two[1], self.between(*two) + gap + self.between(*one))
            yield self.replace(one[0], two[1], self.between(*two))
        if len(parts) > 1:
            yield self.replace(parts[-2][0], parts[-1][1], self.between(*parts[-2]))

    def statements(self, at, token):
        end = self.end_of(at, ';', '{')
        starts = self.text(at - 1) in ('{', '}', ';', 'else', 'do', ':', ')')
        if self.text(end) == ';' and starts and STATEMENT.match(self.between(at, end - 1)):
            yield self.replace(at, end - 1, '')
