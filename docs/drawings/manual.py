"""Fills the tables of the manual page journal-messages(7)."""
import re

from facts import facts

LETTERS = {'missed': 'M', 'dialled': 'D', 'received': 'R', 'forwarded': 'F'}


def table(columns, rows):
    return '\n'.join(['.TS', 'tab(|);', f'{columns}.', *('|'.join(row) for row in rows), '.TE'])


def methods():
    rows = {}
    for message in facts.messages.values():
        found = re.search('<Method>(<.*?>)', message.text)
        if found:
            rows.setdefault(found[1], (message.code, found[1], 'notification' if 'obs' in
                                       message.operation else 'request'))
        if message.operation.startswith('resp'):
            rows[found[1]] = (*rows[found[1]][:2], 'request, list response')
    return table('r l l', sorted(rows.values(), key=lambda row: int(row[0])))


def elements(record):
    """The elements of all kinds in the order of writing, and the kinds that have each."""
    order, kinds, contents = [], {}, {}
    for kind in LETTERS:
        previous = -1
        for field in facts.fields:
            if (field.kind, field.record) != (kind, record):
                continue
            if field.element not in order:
                order.insert(previous + 1, field.element)
            previous = order.index(field.element)
            letter = LETTERS[kind] if field.reading == 'stored' else LETTERS[kind].lower()
            kinds[field.element] = kinds.get(field.element, '') + letter
            contents[field.element] = field.content
    return table('l l l', [(name, contents[name], ' '.join(kinds[name])) for name in order])


def example():
    text = facts.messages['respGetMissedCallList'].text
    return re.sub(r'(</Method>|<Entry>|<LogList>|<Item>|</\w+>)(?=<)', r'\1\n', text)


def page(template):
    for name, made in (('METHODS', methods()), ('ENTRY', elements('entry')),
                       ('CALL', elements('call')), ('EXAMPLE', example())):
        template = template.replace(f'@{name}@', made)
    return template
