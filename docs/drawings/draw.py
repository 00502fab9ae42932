"""Writes the drawings and the manual page from the facts on standard input: draw.py DOCS FOLDER"""
import sys
from pathlib import Path

import manual
import messages
import records
import sequences

docs, folder = Path(sys.argv[1]), Path(sys.argv[2])
for module in (sequences, messages, records):
    for name, drawing in module.drawings().items():
        (folder / f'drawings/{name}.svg').write_text(drawing.svg(), encoding='utf-8')
page = 'man/journal-messages.7'
(folder / page).write_text(manual.page((docs / f'{page}.in').read_text(encoding='utf-8')),
                           encoding='utf-8')
