"""The anatomy of each family of messages, and how to tell what a message is."""
import re

from facts import facts
from svg import CHARACTER, LINE, Drawing

DECLARATION = '<?xml version="1.0" encoding="utf-8"?>'
NOTES = {
    'Method': 'which message it is',
    'Entry': 'one per party',
    'EntryId': "the entry's id in the store",
    'UniqueId': "the entry's id in its log",
    'Surname': 'escaped',
    'LogList': "the party's calls",
    'Item': 'one per call',
    'UniqueIdToDelete': 'an entry that is gone, if any',
    'ActionType': '0 added, 1 changed, 2 deleted',
    'Handle': "the service's number",
    'Value': 'the count',
    'Schema': "what is meant",
    'ReasonForMessage': 'read or delete',
}
ANATOMIES = {
    'anatomy-request': ('A request', 'reqDeleteMissedCallList'),
    'anatomy-list': ('A list response', 'respGetForwardedCallList'),
    'anatomy-notification': ('The notification of a changed entry', 'obsReqForwardedCallsUpdate'),
    'anatomy-counter': ('The notification of a counter', 'obsReqMissedCallsCountUpdate'),
    'anatomy-store': ('A request to the data store', 'readMissedCallList'),
}


def tokens(text):
    """Elements as (depth, begin tag, value, close tag); one that holds others in two rows."""
    depth = 0
    pattern = r'<(\w+)[^>]*>(?:<\w+>(?=</Method>)|[^<]*)</\1>|</?\w+[^>]*>|<\?.*?\?>'
    for found in re.finditer(pattern, text):
        whole = found[0]
        if found[1]:
            begin, close = whole[:whole.index('>') + 1], f'</{found[1]}>'
            yield depth, begin, whole[len(begin):-len(close)], close
        elif whole.startswith('</'):
            depth -= 1
            yield depth, '', '', whole
        else:
            yield depth, whole, '', ''
            depth += not whole.startswith('<?')


def anatomy(title, operation):
    message = facts.messages[operation]
    drawing = Drawing(f'{title}: {operation}')
    drawing.text(12, f'{operation}: {len(message.text)} bytes, in one line', 'dim')
    drawing.y += 28
    rows = list(tokens(message.text))
    if ''.join(begin + value + close for _, begin, value, close in rows) != message.text:
        raise SystemExit(f'messages.py: {operation} is not drawn completely')
    for depth, begin, value, close in rows:
        x = 12 + 18 * depth
        drawing.spans(x, [(begin, 'tag'), (value, ''), (close, 'tag')])
        name = re.match(r'<(\w+)', begin)
        note = 'the declaration' if begin == DECLARATION else NOTES.get(name[1], '') if name else ''
        if x + len(begin + value + close) * CHARACTER < 410:
            drawing.text(420, note, 'dim')
        elif note:
            drawing.y += 17
            drawing.text(420, note, 'dim')
        drawing.y += LINE
    return drawing


# ---- How to tell. Each question is asked of every message; the first that holds decides.

def code(*codes):
    return lambda message: int(message.code) in codes


QUESTIONS = [
    ('code 1 to 20, the declaration in front',
     lambda message: int(message.code) <= 20 and message.text.startswith(DECLARATION), 'a request'),
    ('code 1, 8, 11 or 14, no declaration', code(1, 8, 11, 14), 'a list response'),
    ('code 22, 24, 25 or 26', code(22, 24, 25, 26), 'an entry has changed'),
    ('code 21', code(21), 'the count of missed calls'),
    ('<missedGroupCallsUpdate>', lambda message: '<missedGroupCallsUpdate>' in message.text,
     'the count of missed group calls'),
    ('<Schema name=', lambda message: '<Schema name=' in message.text,
     'a request to the data store'),
    ('<CallLogEnabled>', lambda message: '<CallLogEnabled>' in message.text,
     'the call-log setting'),
    ('<Value>Success or <Value>Failure',
     lambda message: re.search('<Value>(Success|Failure)<', message.text), 'an outcome'),
    ('anything else', lambda message: True, 'the last dialled entry, if asked for'),
]
FAMILIES = [('reqGetLast|req', 'a request'), ('respGet', 'a list response'),
            ('obsReq.*CallsUpdate', 'an entry has changed'),
            ('obsReqMissedCallsCount', 'the count of missed calls'),
            ('obsReqMissedGroup', 'the count of missed group calls'),
            ('read|delete', 'a request to the data store'), ('setting', 'the call-log setting'),
            ('addSuccessResp|createXMLField', 'an outcome'),
            ('createXMLDialledCallItemBody', 'the last dialled entry, if asked for')]


def check_questions():
    for message in facts.messages.values():
        told = next(family for _, holds, family in QUESTIONS if holds(message))
        meant = [family for pattern, family in FAMILIES if re.match(pattern, message.operation)]
        if told not in meant:
            raise SystemExit(f'messages.py: {message.operation} would be told as {told}')


def recognise():
    check_questions()
    drawing = Drawing('How to tell what a message is')
    drawing.text(12, 'Ask from top to bottom. The code is what getMethodFromXMLMsg gives.', 'dim')
    drawing.y += 22
    for place, (question, _, family) in enumerate(QUESTIONS):
        y = drawing.y
        drawing.box(12, y, 290, 30)
        drawing.text(22, question, y=y + 20)
        drawing.arrow(302, 340, y + 15)
        drawing.text(348, family, 'tag', y=y + 20)
        if place + 1 < len(QUESTIONS):
            drawing.line(40, y + 30, 40, y + 44)
            drawing.text(48, 'no', 'dim', y=y + 42)
        drawing.y += 44
    drawing.y -= 12
    return drawing


def drawings():
    made = {name: anatomy(*what) for name, what in ANATOMIES.items()}
    return {**made, 'recognise': recognise()}
