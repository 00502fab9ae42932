"""A drawing from top to bottom: text, boxes and arrows as SVG."""
from html import escape

WIDTH = 660
LINE = 20
CHARACTER = 7.8  # the width of a monospaced one

# Colours follow the reader's light or dark mode.
STYLE = '''
  rect.page { fill: #fff } rect.box { fill: #f2f5f9; stroke: #8a97a8 }
  text { fill: #1c2733; font: 14px "DejaVu Sans", Verdana, sans-serif;
         paint-order: stroke; stroke: #fff; stroke-width: 4px }
  text.mono { stroke: none; font: 13px "DejaVu Sans Mono", monospace; white-space: pre }
  .dim { fill: #5b6876 } .tag { fill: #1a5fb4 } .good { fill: #1b7036 } .bad { fill: #b3201a }
  .bold { font-weight: bold } line { stroke: #5b6876 } line.dashed { stroke-dasharray: 3 4 }
  path { fill: #5b6876 } rect.found { fill: #cfe3fb } path.cursor { fill: #b3201a }
  @media (prefers-color-scheme: dark) {
    rect.page { fill: #1c2229 } rect.box { fill: #2a323c; stroke: #76859a }
    text { fill: #e4e9ee; stroke: #1c2229 }
    .dim { fill: #a5b2c0 } .tag { fill: #8abaf5 } .good { fill: #7fd197 }
    .bad { fill: #ff9a91 } line { stroke: #a5b2c0 } path { fill: #a5b2c0 }
    rect.found { fill: #274a70 } path.cursor { fill: #ff9a91 }
  }
'''


class Drawing:
    def __init__(self, title):
        self.title, self.parts, self.y = title, [], 16

    def text(self, x, words, style='', anchor='start', y=None):
        self.parts.append(f'<text x="{x:g}" y="{self.y if y is None else y:g}" class="{style}" '
                          f'text-anchor="{anchor}">{escape(words)}</text>')

    def spans(self, x, spans, y=None):
        """Monospaced words one after the other, each with its style."""
        words = ''.join(f'<tspan class="{style}">{escape(text)}</tspan>' for text, style in spans)
        self.parts.append(f'<text x="{x:g}" y="{self.y if y is None else y:g}" '
                          f'class="mono">{words}</text>')

    def box(self, x, y, width, height, style='box'):
        self.parts.append(f'<rect x="{x:g}" y="{y:g}" width="{width:g}" height="{height:g}" rx="4" '
                          f'class="{style}"/>')

    def line(self, x1, y1, x2, y2, style=''):
        self.parts.append(f'<line x1="{x1:g}" y1="{y1:g}" x2="{x2:g}" y2="{y2:g}" '
                          f'class="{style}"/>')

    def arrow(self, x1, x2, y, style=''):
        """Horizontal, its head at x2."""
        back = -8 if x2 > x1 else 8
        self.line(x1, y, x2 + back, y, style)
        self.parts.append(f'<path d="M{x2:g} {y:g} l{back} -4 v8 z"/>')

    def pointer(self, x, y):
        """A cursor below what it points to."""
        self.parts.append(f'<path d="M{x:g} {y:g} l-5 9 h10 z" class="cursor"/>')

    def svg(self):
        height = self.y + 16
        body = '\n'.join(self.parts)
        return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height:g}" '
                f'width="{WIDTH}" height="{height:g}" role="img">\n'
                f'<title>{escape(self.title)}</title>\n<style>{STYLE}</style>\n'
                f'<rect width="{WIDTH}" height="{height:g}" class="page"/>\n{body}\n</svg>\n')
