"""Who sends what to whom, for each operation that builds a message."""
from facts import facts
from svg import LINE, WIDTH, Drawing

CLIENT, SERVICE, STORE, OBSERVER = 'client', 'journal service', 'data store', 'subscribed client'
KINDS = 'Missed', 'Dialled', 'Received', 'Forwarded'


def four(pattern):
    return [pattern.format(kind) for kind in KINDS]


# A step: from, to, the operations that build the message, those that read it.
SEQUENCES = {
    'sequence-log': ('A client asks for a log', [
        (CLIENT, SERVICE, four('reqGet{}CallList'), ['getMethodFromXMLMsg']),
        (SERVICE, CLIENT, four('respGet{}CallList'), four('parseXML{}CallList')),
    ]),
    'sequence-last-dialled': ('A client asks for the last dialled number', [
        (CLIENT, SERVICE, ['reqGetLastDialledNumber'], ['getMethodFromXMLMsg']),
        (SERVICE, CLIENT, ['createXMLDialledCallItemBody'], ['parseXMLGetLastDialledNumber']),
    ]),
    'sequence-change': ('A client changes the log; all that subscribed are told', [
        (OBSERVER, SERVICE, ['reqSubscribe', 'reqUnsubscribe'], ['getMethodFromXMLMsg']),
        (SERVICE, OBSERVER, ['addSuccessResp', 'createXMLField'], ['isNonFailureResponse']),
        (CLIENT, SERVICE, ['reqSetMissedCallListAsViewed', 'reqRefreshCallLog',
                           *four('reqDelete{}Call'), *four('reqDelete{}CallList')],
         ['getMethodFromXMLMsg', 'getAndRemoveXMLValue']),
        (SERVICE, CLIENT, ['addSuccessResp', 'createXMLField'], ['isNonFailureResponse']),
        (SERVICE, OBSERVER, four('obsReq{}CallsUpdate'),
         ['getMethodFromXMLMsg', *four('parseXML{}CallItem'), 'getXMLValue']),
        (SERVICE, OBSERVER, ['obsReqMissedCallsCountUpdate', 'obsReqMissedGroupCallsUpdate'],
         ['getMethodFromXMLMsg', 'getXMLValue']),
    ]),
    'sequence-store': ('A client asks the data store', [
        (CLIENT, STORE, ['readEnabledState'], []),
        (STORE, CLIENT, ['setting'], ['parseXMLEnabledStateItem']),
        (CLIENT, STORE, [*four('read{}CallList'), *four('delete{}CallList')], []),
    ]),
}

# Not operations: what another side builds.
FOREIGN = {'setting': '<CallLogEnabled>true</CallLogEnabled>'}


def shortened(operations):
    """Names of four kinds as one: reqGet{Missed,Dialled,Received,Forwarded}CallList."""
    names = [FOREIGN.get(name, name) for name in operations]
    for name in list(names):
        family = four(name.replace('Missed', '{}', 1)) if 'Missed' in name else []
        if family and all(sibling in names for sibling in family):
            at = names.index(name)
            names = [each for each in names if each not in family]
            names.insert(at, name.replace('Missed', '…', 1))
    return names


def drawn(title, steps):
    drawing = Drawing(title)
    people = list(dict.fromkeys(person for step in steps for person in step[:2]))
    people.sort(key=[CLIENT, SERVICE, STORE, OBSERVER].index)
    gap = (WIDTH - 160) / (len(people) - 1)
    at = {person: 80 + gap * place for place, person in enumerate(people)}
    drawing.y += 12
    for person in people:
        drawing.box(at[person] - 72, drawing.y - 20, 144, 30)
        drawing.text(at[person], person, 'bold', 'middle')
    top = drawing.y + 10
    drawing.y += 34
    for number, (sender, receiver, built, read) in enumerate(steps, 1):
        ends = sorted((at[sender], at[receiver]))
        middle = sum(ends) / 2
        for place, name in enumerate(shortened(built)):
            drawing.text(middle, f'{number}. {name}' if place == 0 else name, 'tag', 'middle')
            drawing.y += LINE
        drawing.arrow(at[sender], at[receiver], drawing.y - 10)
        drawing.y += 8
        for name in shortened(read):
            drawing.text(middle, name, 'dim', 'middle')
            drawing.y += LINE
        drawing.y += 14
    for person in people:
        drawing.parts.insert(0, f'<line x1="{at[person]:g}" y1="{top:g}" x2="{at[person]:g}" '
                                f'y2="{drawing.y:g}" class="dashed"/>')
    drawing.text(WIDTH / 2, 'blue: builds the message; grey: reads it; … any of the four logs',
                 'dim', 'middle', drawing.y + 8)
    drawing.y += 8
    return drawing


def drawings():
    shown = {name for _, steps in SEQUENCES.values() for step in steps for name in step[2]}
    forgotten = facts.messages.keys() ^ shown
    if forgotten:
        raise SystemExit(f'sequences.py: not in a sequence, or in no message: {sorted(forgotten)}')
    return {name: drawn(*sequence) for name, sequence in SEQUENCES.items()}
