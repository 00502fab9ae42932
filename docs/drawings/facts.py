"""What facts.cpp prints."""
import sys
from collections import namedtuple

Field = namedtuple('Field', 'kind record member element content escaped reading place')
Message = namedtuple('Message', 'operation code text')
Step = namedtuple('Step', 'begin close before after value')


class Facts:
    def __init__(self, lines):
        rows = [line.rstrip('\n').split('\t') for line in lines]
        self.fields = [Field(*row[1:]) for row in rows if row[0] == 'field']
        self.messages = {row[1]: Message(*row[1:]) for row in rows if row[0] == 'message'}
        self.steps = [Step(*row[1:]) for row in rows if row[0] == 'step']
        self.walk = next(row[1] for row in rows if row[0] == 'walk')


facts = Facts(sys.stdin)
