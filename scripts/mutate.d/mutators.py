"""Finds what scripts/mutate changes: one small change to a C++ source at a time.

Works on tokens and on the layout that clang-format gives (binary operators stand between blanks,
brackets of templates do not), so it needs no parser. A change that does not compile does no harm.
"""
import re
from collections import namedtuple

Token = namedtuple('Token', 'kind text start end')
Change = namedtuple('Change', 'kind start end text')

TOKEN = re.compile(r'''
    (?P<skip>   \s+ | //[^\n]* | /\*.*?\*/ | ^[ ]*\#(?:[^\n\\]|\\.|\\\n)* )
  | (?P<text>   "(?:[^"\\]|\\.)*" )
  | (?P<char>   '(?:[^'\\]|\\.)*' )
  | (?P<number> \d[\w']* )
  | (?P<name>   [A-Za-z_]\w* )
  | (?P<op>     <<= | >>= | \.\.\. | -> | :: | \+\+ | -- | && | \|\| | [-+*/%&|^=!<>]= | . )
''', re.VERBOSE | re.MULTILINE | re.DOTALL)

BINARY = {
    '<': ['<=', '>='], '<=': ['<', '>'], '>': ['>=', '<='], '>=': ['>', '<'],
    '==': ['!='], '!=': ['=='], '&&': ['||'], '||': ['&&'],
    '+': ['-'], '-': ['+'], '*': ['/'], '/': ['*'], '%': ['/'],
    '&': ['|'], '|': ['&'], '^': ['|'],
    '+=': ['-='], '-=': ['+='], '|=': ['&='], '&=': ['|='],
}
NAMES = {'true': 'false', 'false': 'true', 'begin': 'close', 'close': 'begin', 'min': 'max',
         'max': 'min'}
SCOPES = {'namespace', 'struct', 'class', 'union', 'enum'}
CLOSING = {'(': ')', '[': ']', '{': '}'}
ESCAPED_UNIT = re.compile(r'\\.|.', re.DOTALL)


def tokens_of(source):
    return [Token(match.lastgroup, match.group(), match.start(), match.end())
            for match in TOKEN.finditer(source) if match.lastgroup != 'skip']


def enum_members(sources):
    """The member that follows each member of each enumeration in its declaration."""
    following = {}
    for source in sources:
        plain = re.sub(r'//[^\n]*|/\*.*?\*/', '', source, flags=re.DOTALL)
        for body in re.findall(r'\benum\b[^;{}()]*\{([^}]*)\}', plain):
            members = re.findall(r'(?:^|,)\s*(\w+)', body)
            following.update(zip(members, members[1:] + members[:1]))
    return following


def words_used(sources):
    """The word that follows each word in the order in which they are used."""
    words = list(dict.fromkeys(word for source in sources
                               for word in re.findall(r'\bword::(\w+)', source)))
    return dict(zip(words, words[1:] + words[:1]))


class Finder:
    """The changes to one source."""

    def __init__(self, source, members, words):
        self.source, self.members, self.words = source, members, words
        self.tokens = tokens_of(source)
        self.match = {}  # index of an opening bracket -> index of its closing one
        opened = []
        for at, token in enumerate(self.tokens):
            if token.kind == 'op' and token.text in CLOSING:
                opened.append(at)
            elif token.text in CLOSING.values() and opened:
                self.match[opened.pop()] = at

    def text(self, at):
        return self.tokens[at].text if 0 <= at < len(self.tokens) else ''

    def between(self, first, last):
        """The source from one token to another, both included."""
        return self.source[self.tokens[first].start:self.tokens[last].end]

    def replace(self, kind, first, last, text):
        return Change(kind, self.tokens[first].start, self.tokens[last].end, text)

    def changes(self):
        found = []
        for at, token in enumerate(self.tokens):
            for rule in (self.operators, self.constants, self.names, self.conditions, self.tables,
                         self.statements):
                found += rule(at, token)
        found.sort(key=lambda change: (change.start, change.end, change.text))
        unique = {self.changed(change): change for change in reversed(found)}
        unique.pop(self.source, None)
        return list(reversed(unique.values()))

    def changed(self, change):
        return self.source[:change.start] + change.text + self.source[change.end:]

    def is_binary(self, token):
        around = self.source[token.start - 1] + self.source[token.end:token.end + 1]
        return around.isspace() and len(around) == 2

    def operators(self, at, token):
        if token.kind != 'op' or self.text(at - 1) in ('template', 'operator'):
            return
        if token.text in BINARY and self.is_binary(token):
            for other in BINARY[token.text]:
                yield self.replace('operator', at, at, other)
        elif token.text in ('++', '--'):
            yield self.replace('arithmetic', at, at, '--' if token.text == '++' else '++')
        elif token.text in ('!', '-') and not self.is_binary(token) or \
                token.text == '~' and self.text(at + 1) == '(':
            yield self.replace('negation', at, at, '')

    def constants(self, at, token):
        if token.kind == 'number':
            value, suffix = re.fullmatch(r"(0[xX][\da-fA-F]+|\d+)(\w*)",
                                         token.text.replace("'", '')).groups()
            number = int(value, 0)
            write = hex if value[:2] in ('0x', '0X') else str
            for other in (number - 1, number + 1):
                if other >= 0:
                    yield self.replace('constant', at, at, write(other) + suffix)
        elif token.kind == 'char':
            unit = token.text[1:-1]
            other = chr(ord(unit) + 1) if len(unit) == 1 and unit not in "&[" else ' '
            yield self.replace('constant', at, at, f"'{other}'")
        elif token.kind == 'text' and self.text(at - 1) != 'static_assert':
            units = ESCAPED_UNIT.findall(token.text[1:-1])
            yield self.replace('text', at, at, '"' + (''.join(units[:-1]) if units else 'x') + '"')

    def names(self, at, token):
        if token.kind != 'name':
            return
        before, behind = self.text(at - 1), self.text(at + 1)
        if before == '::' and self.text(at - 2) == 'word':
            yield self.replace('word', at, at, self.words[token.text])
        elif token.text in NAMES:
            # A name that is declared here stays as it is.
            declared = re.match(r'[\w>&*]', before[-1:]) and before not in ('return', 'case')
            if not declared:
                yield self.replace('name', at, at, NAMES[token.text])
        elif token.text in self.members and behind != '=' and \
                (before == '::' or token.text.isupper()):
            yield self.replace('enumeration', at, at, self.members[token.text])
        if behind == '<' and self.text(at + 2) == 'word':
            yield from self.row_flags(at)

    def row_flags(self, at):
        """A row of a record's table that has no flags gets some."""
        opening = self.end_of(at, '(', ';')
        closing = self.match.get(opening, opening)
        row = self.between(opening, closing - 1)
        if re.fullmatch(r'\(MEMBER\([^)]*\)', row):
            for flags in ('Writing::escaped', 'Writing::raw, Reading::discarded'):
                yield self.replace('flag', opening, closing, f'{row}, {flags})')

    def conditions(self, at, token):
        if token.text in ('if', 'while'):
            opening = at + (2 if self.text(at + 1) == 'constexpr' else 1)
            if self.text(opening) != '(':
                return
            closing = self.match[opening]
            first = max((i + 1 for i in range(opening, closing) if self.text(i) == ';'),
                        default=opening + 1)
            condition = self.between(first, closing - 1)
            if not self.negated_elsewhere(first, closing):
                yield self.replace('condition', first, closing - 1, f'!({condition})')
        elif token.text == '?' and not self.negated_elsewhere(self.start_of(at), at):
            yield from self.choice(at)
        elif token.text == 'return' and self.text(at + 1) not in (';', 'true', 'false', '{'):
            end = self.end_of(at + 1, ';')
            yield self.replace('returned value', at + 1, end - 1, '{}')

    def negated_elsewhere(self, first, end):
        """Whether a change of one operator negates a condition already."""
        outer = []
        at = first
        while at < end:
            if self.text(at) in BINARY and self.is_binary(self.tokens[at]):
                outer.append(self.text(at))
            at = self.match.get(at, at) + 1
        comparisons = [op for op in outer if op in ('==', '!=', '<', '>', '<=', '>=')]
        return not {'&&', '||'}.intersection(outer) and \
            (len(comparisons) == 1 or self.text(first) == '!')

    def start_of(self, at):
        """The index of the first token of an expression that ends in front of a token."""
        opening = {closing: opening for opening, closing in self.match.items()}
        while self.text(at - 1) not in ('(', '[', '{', '}', ',', ';', '=', ':', 'return', '+='):
            at = opening.get(at - 1, at - 1)
        return at

    def choice(self, at):
        """The two values of a conditional expression in each other's place."""
        colon = self.end_of(at + 1, ':')
        end = self.end_of(colon + 1, ';', ',', ')', ']', '}')
        first, second = self.between(at + 1, colon - 1), self.between(colon + 1, end - 1)
        yield self.replace('condition', at + 1, end - 1, f'{second} : {first}')

    def end_of(self, at, *ends):
        """The index of the next of some tokens, not counting what stands in brackets or in a
        conditional expression in between."""
        nested = 0
        while self.text(at) and (nested or self.text(at) not in ends):
            nested += {'?': 1, ':': -1}.get(self.text(at), 0)
            at = self.match.get(at, at) + 1
        return at

    def tables(self, at, token):
        if token.text != '{' or self.text(at - 1) not in ('=', '('):
            return
        rows = self.rows(at)
        for i, (first, last) in enumerate(rows[1:], 1):
            before = rows[i - 1]
            yield self.replace('row order', before[0], last,
                               self.between(first, last) +
                               self.source[self.tokens[before[1]].end:self.tokens[first].start] +
                               self.between(*before))
        if len(rows) > 1:
            for i, (first, last) in enumerate(rows):
                if i + 1 < len(rows):
                    yield Change('row', self.tokens[first].start, self.tokens[rows[i + 1][0]].start,
                                 '')
                else:
                    yield Change('row', self.tokens[rows[i - 1][1]].end, self.tokens[last].end, '')

    def is_open(self, first, end):
        """Whether a template's bracket that opens in front of a token closes behind it."""
        brackets = [self.text(i) for i in range(first, end)
                    if self.text(i) in ('<', '>') and not self.is_binary(self.tokens[i])]
        return brackets.count('<') > brackets.count('>')

    def rows(self, opening):
        rows = []
        at = opening + 1
        while at < self.match[opening]:
            comma = self.end_of(at, ',', '}')
            while self.is_open(at, comma):
                comma = self.end_of(comma + 1, ',', '}')
            rows.append((at, comma - 1))
            at = comma + 1
        return rows

    def statements(self, at, token):
        end = self.end_of(at, ';', '{')
        if self.text(end) == ';' and self.starts_statement(at) and self.can_go(at, end):
            yield self.replace('statement', at, end - 1, '')

    def starts_statement(self, at):
        around = max((i for i, j in self.match.items() if i < at <= j), default=None)
        if around is None or self.text(around) != '{' or not self.is_body(around):
            return False
        if self.text(at - 1) == ')':
            opening = next(i for i, j in self.match.items() if j == at - 1)
            return self.text(opening - 1) in ('if', 'for', 'while', 'constexpr')
        if self.text(at - 1) == ':':
            return self.text(self.statement_start(at - 1)) in ('case', 'default')
        return self.text(at - 1) in ('{', '}', ';', 'else', 'do')

    def statement_start(self, at):
        while at > 0 and self.text(at - 1) not in (';', '{', '}'):
            at -= 1
        return at

    def is_body(self, opening):
        """Whether a brace opens a function's body or a block in one."""
        head = [self.text(i) for i in range(self.statement_start(opening), opening)]
        return head in (['else'], ['do'], []) or \
            ')' in head and head[-1] != '=' and not SCOPES.intersection(head[:3])

    def can_go(self, first, end):
        """Whether a statement is not a declaration: no two names follow each other in front of its
        first bracket or assignment."""
        word = self.text(first)
        if word == 'if':
            closing = self.match.get(first + 1, end)
            return self.text(closing + 1) == 'return' and self.text(end + 1) != 'else'
        if word in ('++', '--', '*', 'break'):
            return True
        if word == 'continue':
            return self.text(self.statement_start(first)) not in ('while', 'for')
        at = first
        while at < end and (self.tokens[at].kind == 'name' or
                            self.text(at) in ('.', '->', '::', '[', '<', '>')):
            if at > first and self.tokens[at].kind == 'name' and \
                    self.text(at - 1) not in ('.', '->', '::', '<'):
                return False
            at = self.match.get(at, at) + 1
        return at > first and \
            word not in ('return', 'case', 'default', 'using', 'for', 'while', 'switch') and \
            self.text(at) in ('(', '=', '+=', '-=', '|=', '&=', '^=', '++', '--')
