"""The tables of one run, as lists of rows of texts; the first row is the head."""

from figures import DAMAGES, KINDS, NAMES, SIZES

# The first part of a benchmark's name: its title in the table.
SMALL = {
    "request": "requests to the service",
    "store": "requests to the store",
    "recognise": "a method recognised, short message",
    "recognise-large": "the same in a list response of 100 entries",
    "recognise-none": "no Method element in 100 entries",
    "notify": "notifications",
}


def ratios(run, figures):
    """Every figure that was measured, with its target."""
    rows = [["figure, 100 entries", "target", "aim", *KINDS, "all", "target met"]]
    for figure in figures:
        values = figure.compute(run)
        if values is not None:
            texts = [f"{values[column]:.2f}" for column in (*KINDS, "all")]
            rows.append([figure.title, figure.limit(figure.target), figure.limit(figure.aim), *texts,
                         figure.met(values)])
    return rows


def damages(run):
    """Microseconds for 100 entries of all four kinds, and how many of the 400 strstr() gives
    otherwise."""
    readers = ("library", "strstr", "rapidxml")
    rows = [["decode, µs", *(NAMES[who] for who in readers), "strstr: entries that differ"]]
    for damage, title in (("decode", "intact"), *DAMAGES.items()):
        totals = [run.total(f"{damage}/{{}}/100/{who}") for who in readers]
        differing = sum(run.differing.get(f"{damage}/{kind}/100/strstr", 0) for kind in KINDS)
        rows.append([title, *("–" if total is None else f"{total / 1000:,.1f}" for total in totals),
                     str(differing)])
    return rows


def times(run, what):
    """Microseconds for 100 entries of each kind, and the length of the messages."""
    rows = [[f"{what}, µs", *KINDS]]
    for who, name in NAMES.items():
        if run.total(f"{what}/{{}}/100/{who}") is not None:
            values = (run.times[f"{what}/{kind}/100/{who}"] / 1000 for kind in KINDS)
            rows.append([name, *(f"{value:,.1f}" for value in values)])
    lengths = (run.bytes[f"{what}/{kind}/100/library"] for kind in KINDS)
    return rows + [["message, bytes", *(f"{length:,.0f}" for length in lengths)]]


def per_byte(run, what):
    """Nanoseconds per byte of message at each size."""
    rows = [[f"{what}, ns per byte", *(f"{size:,}" for size in SIZES)]]
    for who, name in NAMES.items():
        values = [run.per_byte(f"{what}/{{}}/{size}/{who}") for size in SIZES]
        if None not in values:
            rows.append([name, *(f"{value:.3f}" for value in values)])
    return rows


def small(run):
    """The small operations in groups."""
    rows = [["operations", "number", "library, ns", "oracle, ns"]]
    for what, title in SMALL.items():
        ours = [name for name in run.times if name.startswith(f"{what}/")
                and name.endswith("/library")]
        if not ours:
            continue
        library = [run.times[name] for name in ours]
        oracle = [run.times[name[: -len("library")] + "oracle"] for name in ours]
        rows.append([title, str(len(ours)), span(library), span(oracle)])
    return rows


def span(values):
    return f"{min(values):,.0f} to {max(values):,.0f}"


def as_markdown(rows):
    lines = ["| " + " | ".join(row) + " |" for row in rows]
    lines.insert(1, "|---|" + "--:|" * (len(rows[0]) - 1))
    return "\n".join(lines)


def as_text(rows):
    widths = [max(map(len, column)) for column in zip(*rows)]
    return "\n".join(
        "  ".join([row[0].ljust(widths[0]), *(c.rjust(w) for c, w in zip(row[1:], widths[1:]))])
        for row in rows)
