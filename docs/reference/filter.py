"""What Doxygen is to read of a header or a page: filter.py FILE.

A header's sections become named groups of members; siblings that share a comment get one each.
A page's headings get identifiers, and its links become references, so that Doxygen reports those
that lead nowhere. Links to what the reference does not hold become plain text.
"""
import re
import sys
from pathlib import Path

PAGES = 'README.md', 'CONTRIBUTING.md', 'CHANGELOG.md', 'SECURITY.md'


# ---- Headers

SECTION = re.compile(r'  // ={20,}\n  // (?P<title>.+)\n(?P<text>(?:  //.*\n)*)')
SIBLINGS = re.compile(r'  /// @\{\n(?P<comment>(?:  ///.*\n)+)'
                      r'(?P<declarations>(?:.*\n)*?)  /// @\}\n')


def repeated(siblings):
    declarations = re.findall(r'[^;]*;[^\n]*\n', siblings['declarations'])
    return '\n'.join(siblings['comment'] + declaration for declaration in declarations)


def named(section):
    text = re.sub(r'^  //', '  ///', section['text'], flags=re.M)
    return f'  /// @name {section["title"]}\n{text}  /// @{{\n'


def header(text):
    parts = re.split(r'(?=^  // ={20,}\n)', text, flags=re.M)
    grouped = [parts[0]]
    for part in parts[1:]:
        if '/// @name' in part:  # its members are in groups already
            grouped.append(part)
        else:
            part = SECTION.sub(named, SIBLINGS.sub(repeated, part), count=1)
            grouped.append(part + '  /// @}\n\n')
    return ''.join(grouped)


# ---- Pages

def slug(heading):
    """What hosts of Markdown make of a heading."""
    return re.sub(r'[^\w\- ]', '', heading.strip().lower()).replace(' ', '-')


def identifier(page, fragment=''):
    if page.name == 'README.md' and not fragment:
        return 'index'
    return f'{page.stem}-{fragment}' if fragment else page.stem


def linked(path):
    def replace(link):
        text, target = link['text'], link['target']
        if re.match(r'\w+:', target):
            return link[0]
        name, _, fragment = target.partition('#')
        page = (path.parent / name).resolve() if name else path
        held = page.suffix == '.md' and (page.parent.name == 'docs' or page.name in PAGES)
        if held or not page.exists():
            return f'[{text}](@ref {identifier(page, fragment)})'
        return text
    return replace


LINK = re.compile(r'(?<!!)\[(?P<text>[^]]*)\]\((?P<target>[^)\s]*)\)')


def code(span):
    """A code span. Doxygen would take its entities for characters, and its quotes as quotes."""
    text = span[1]
    if not re.search('[&"\']', text):
        return span[0]
    for character, written in (('\\', '\\\\'), ('&', '&amp;'), ('<', '&lt;'), ('>', '&gt;'),
                               ('"', '&quot;'), ("'", '&apos;'), ('::', '\\::'), ('#', '\\#'),
                               ('@', '\\@')):
        text = text.replace(character, written)
    text = re.sub('-{2,3}', r'\\\g<0>', text)
    return f'<code>{text}</code>'


def prose(text, path):
    text = re.sub(r'^<!-- .* -->\n', '', text, flags=re.M)
    # A link can go over the end of a line; a reference cannot.
    text = re.sub(r'(\[[^]\n]*)\n([^]\n]*\]\()', r'\1 \2', text)
    text = LINK.sub(linked(path), text)
    text = re.sub(r'(!\[[^]]*\]\()[^)]*/', r'\1', text)  # IMAGE_PATH has the folders of images
    text = re.sub(r'`([^`]+)`', code, text)
    return re.sub(r'^#+ (.*)$', lambda found: f'{found[0]} {{#{identifier(path, slug(found[1]))}}}',
                  text, flags=re.M)


def page(text, path):
    title, text = text.split('\n', 1)
    if path.name != 'README.md':
        title += f' {{#{identifier(path)}}}'
    parts = re.split(r'(^```.*?^```$)', text, flags=re.M | re.S)
    parts[::2] = [prose(part, path) for part in parts[::2]]
    return title + '\n' + ''.join(parts)


path = Path(sys.argv[1]).resolve()
text = path.read_text(encoding='utf-8')
sys.stdout.write(page(text, path) if path.suffix == '.md' else header(text))
