"""The charts of one run, drawn by gnuplot as SVG."""

import os
import subprocess

from figures import DAMAGES, KINDS, NAMES, SIZES

COLOURS = {
    "missed": "#1b6ca8", "dialled": "#e08e0b", "received": "#3c8d5a", "forwarded": "#8a5aa8",
    "copy": "#999999", "memcpy": "#999999", "library": "#c0392b", "protobuf": "#1b6ca8",
    "protobuf-arena": "#5fa3d3", "protobuf-kept": "#a3cdea", "protobuf-arena-kept": "#7f9fb5",
    "strstr": "#444444", "rapidxml": "#3c8d5a",
    "pugixml": "#e08e0b", "libxml2": "#8a5aa8", "expat": "#8a5aa8", "tinyxml2": "#6b4f3a",
}

TITLES = {"decode": "Decoding", "encode": "Encoding"}

COMMON = """
set terminal svg size 860,420 font 'sans-serif,13' background rgb 'white'
set output '{path}'
set title '{title}'
set ylabel '{ylabel}'
set grid ytics lc rgb '#dddddd'
set border 3
set tics nomirror
"""


def gnuplot(script):
    subprocess.run(["gnuplot"], input=script, text=True, check=True)


def block(name, rows):
    lines = (" ".join(f'"{cell}"' if isinstance(cell, str) else f"{cell:.6g}" for cell in row)
             for row in rows)
    return f"${name} << END\n" + "\n".join(lines) + "\nEND\n"


def bars(path, title, ylabel, rows, log):
    """Groups of one bar for each kind: rows of a name and the kinds' values."""
    plots = ", ".join(
        f"$data using {column + 2}:xtic(1) title '{kind}' lc rgb '{COLOURS[kind]}'"
        for column, kind in enumerate(KINDS))
    gnuplot(COMMON.format(path=path, title=title, ylabel=ylabel) + block("data", rows) + f"""
set style data histograms
set style histogram clustered gap 1
set style fill solid 0.9 noborder
set xtics rotate by -25
{'set logscale y' if log else 'set yrange [0:*]'}
set key top left
plot {plots}
""")


def lines(path, title, ylabel, series):
    """A curve for each who: {who: values at each size}, over the size."""
    blocks = "".join(block(who.replace("-", "_"), zip(map(float, SIZES), values))
                     for who, values in series.items())
    plots = ", ".join(
        f"${who.replace('-', '_')} using 1:2 with linespoints pt 7 ps 0.6 "
        f"lw {3 if who == 'library' else 1.5} lc rgb '{COLOURS[who]}' title '{NAMES[who]}'"
        for who in series)
    gnuplot(COMMON.format(path=path, title=title, ylabel=ylabel) + blocks + f"""
set logscale xy
set xlabel 'entries in the log'
set xtics ({', '.join(f"'{size:,}' {size}" for size in SIZES)})
set key outside right
plot {plots}
""")


def against_bound(run, path, what, bound, bound_title):
    rows = []
    for who, name in NAMES.items():
        if who != bound and run.total(f"{what}/{{}}/100/{who}") is not None:
            rows.append([name, *(run.times[f"{what}/{kind}/100/{who}"]
                                 / run.times[f"{what}/{kind}/100/{bound}"] for kind in KINDS)])
    bars(path, f"{TITLES[what]} 100 entries", f"times {bound_title}", rows, log=True)


def over_sizes(run, path, what):
    series = {}
    for who in NAMES:
        values = [run.per_byte(f"{what}/{{}}/{size}/{who}") for size in SIZES]
        if None not in values:
            series[who] = values
    lines(path, f"{TITLES[what]}, all four kinds", "ns per byte of message", series)


def damages(run, path):
    rows = [[title, *(run.times[f"{damage}/{kind}/100/strstr"]
                      / run.times[f"{damage}/{kind}/100/library"] for kind in KINDS)]
            for damage, title in DAMAGES.items()]
    bars(path, "Damaged texts, 100 entries", "strstr / this library", rows, log=False)


def draw(run, folder):
    os.makedirs(folder, exist_ok=True)
    against_bound(run, f"{folder}/decode.svg", "decode", "copy", "the deep copy of the result")
    against_bound(run, f"{folder}/encode.svg", "encode", "memcpy", "the memcpy of the message")
    over_sizes(run, f"{folder}/decode-sizes.svg", "decode")
    over_sizes(run, f"{folder}/encode-sizes.svg", "encode")
    damages(run, f"{folder}/damaged.svg")
