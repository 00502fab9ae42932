"""From record to element and back, for the four kinds; how the cursor walks."""
from facts import facts
from svg import CHARACTER, LINE, Drawing

MEMBER, ELEMENT, BACK = 12, 232, 452


def comes_back(field):
    if field.reading == 'discarded':
        return 'not read, keeps its own', 'bad'
    if field.reading == 'unclosed':
        return 'NOT_AVAILABLE', 'bad'
    return 'comes back', 'good'


def row(drawing, field, place):
    drawing.text(MEMBER, field.member)
    drawing.arrow(MEMBER + 192, ELEMENT - 4, drawing.y - 4)
    drawing.spans(ELEMENT, [(field.element, 'tag')])
    words, style = comes_back(field)
    drawing.arrow(ELEMENT + 192, BACK - 4, drawing.y - 4, 'dashed' if style == 'bad' else '')
    drawing.text(BACK, words, style)
    marks = []
    if field.escaped == 'escaped':
        marks.append('escaped')
    if field.content != 'text':
        marks.append(f'{field.content}, always written')
    if int(field.place) != place:
        marks.append(f'read as number {field.place}, written as {place}')
    if marks:
        drawing.y += 16
        drawing.text(ELEMENT, '; '.join(marks), 'dim')
    drawing.y += LINE + 3


def record(kind):
    drawing = Drawing(f'From record to element and back: the {kind} log')
    drawing.text(MEMBER, 'member', 'bold')
    drawing.text(ELEMENT, 'element', 'bold')
    drawing.text(BACK, 'read back', 'bold')
    drawing.y += LINE + 6
    for part, title in (('entry', 'The entry'), ('call', 'Each call, an Item of LogList')):
        drawing.text(MEMBER, f'{title}, in the order of writing', 'dim')
        drawing.y += LINE + 2
        fields = [field for field in facts.fields if (field.kind, field.record) == (kind, part)]
        for place, field in enumerate(fields, 1):
            row(drawing, field, place)
        drawing.y += 6
    drawing.text(MEMBER, 'infoKey')
    drawing.text(ELEMENT, 'never written', 'bad')
    drawing.text(BACK, 'keeps its own', 'bad')
    drawing.y += LINE + 6
    drawing.text(MEMBER, 'A text without a remark is copied as it is; an empty one is left out.',
                 'dim')
    return drawing


def walk():
    drawing = Drawing('How the cursor walks')
    drawing.text(MEMBER, 'The red mark is the cursor before each step, blue is what the step '
                 'found.', 'dim')
    drawing.y += 34
    for number, step in enumerate(facts.steps, 1):
        before, after = int(step.before), int(step.after)
        drawing.text(MEMBER, f'{number}. Read {step.begin} from {before} on', 'bold')
        drawing.y += 26
        found = facts.walk.find(step.begin, before)
        if found >= 0:
            end = facts.walk.index(step.close, found) + len(step.close)
            drawing.box(MEMBER + found * CHARACTER, drawing.y - 14, (end - found) * CHARACTER, 19,
                        'found')
        drawing.spans(MEMBER, [(facts.walk, '')])
        drawing.pointer(MEMBER + before * CHARACTER, drawing.y + 8)
        drawing.y += 36
        drawing.text(MEMBER, outcome(step, found, before, after))
        drawing.y += 36
    drawing.y -= 20
    return drawing


def outcome(step, found, before, after):
    if found < 0:
        return f'Missing: an empty text; the cursor stays at {after}.'
    if after == before:
        return f'“{step.value}”, found further on, at {found}: the cursor stays at {after}.'
    return f'“{step.value}”, exactly at the cursor: the cursor moves to {after}.'


def drawings():
    kinds = dict.fromkeys(field.kind for field in facts.fields)
    return {**{f'record-{kind}': record(kind) for kind in kinds}, 'cursor': walk()}
