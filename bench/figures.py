"""The main figures: ratios of the best times, with their targets.

A benchmark is named what/kind/size/who. Its time is the least of its rounds: noise only ever adds.
Where the program holds several copies of a peer, they are named who@copy; the fastest counts.
"""

import json

KINDS = ("missed", "dialled", "received", "forwarded")
SIZES = (1, 10, 100, 1000, 20000)
DAMAGES = {
    "spaces": "spaces",
    "indented": "indented",
    "extended": "an unknown element at the end",
    "unknown": "10 % unknown elements",
    "swapped": "swapped",
    "repeated": "repeated",
    "reversed": "reversed",
    "mixed": "mixed",
    "cut": "bytes cut",
}

# Who decodes and who encodes, as the tables and charts call them, the fastest use first.
NAMES = {
    "copy": "deep copy",
    "memcpy": "memcpy",
    "library": "this library",
    "protobuf-kept": "Protobuf, kept",
    "protobuf-arena-kept": "Protobuf, arena, kept",
    "protobuf-arena": "Protobuf, arena",
    "protobuf": "Protobuf",
    "strstr": "strstr",
    "rapidxml": "RapidXML",
    "pugixml": "pugixml",
    "libxml2": "libxml2",
    "expat": "expat",
    "tinyxml2": "TinyXML-2",
}

# Every way to use Protobuf's message objects.
PROTOBUF = ("protobuf", "protobuf-arena", "protobuf-kept", "protobuf-arena-kept")


class Run:
    """One run: the least CPU time of each benchmark in nanoseconds; the messages' lengths; how many
    entries of a damaged text a reader gives otherwise than the library."""

    def __init__(self, path):
        with open(path, encoding="utf-8") as file:
            results = json.load(file)
        self.context = results["context"]
        self.times, self.bytes, self.differing = {}, {}, {}
        for run in results["benchmarks"]:
            if run.get("error_occurred"):
                raise SystemExit(f"{run['name']}: {run['error_message']}")
            if run.get("aggregate_name") == "least":
                name = "/".join(run["run_name"].split("/")[:4]).split("@")[0]
                self.times[name] = min(run["cpu_time"], self.times.get(name, run["cpu_time"]))
                if "message" in run:
                    self.bytes[name] = run["message"]
                if "differing" in run:
                    self.differing[name] = int(run["differing"])

    def total(self, pattern):
        """The time of all four kinds, the pattern's {} being the kind; None when one is missing."""
        times = [self.times.get(pattern.format(kind)) for kind in KINDS]
        return None if None in times else sum(times)

    def per_byte(self, pattern):
        """Nanoseconds per byte of message, over all four kinds."""
        total = self.total(pattern)
        return None if total is None else total / sum(
            self.bytes[pattern.format(kind)] for kind in KINDS)


class Figure:
    """One ratio for each kind: the times of `over` by those of `under`. Of several, the least."""

    def __init__(self, title, over, under, target=None, aim=None, at_most=False):
        self.title, self.at_most = title, at_most
        self.over = [over] if isinstance(over, str) else over
        self.under = under
        self.target, self.aim = target, aim

    def limit(self, value):
        return "" if value is None else f"{'≤' if self.at_most else '≥'} {value:.1f}"

    def compute(self, run):
        """{kind: ratio}, and under "all" that of the summed times; None when a time is missing."""
        measured = [over for over in self.over if run.total(over) is not None]
        if not measured or run.total(self.under) is None:
            return None
        over = {kind: min(run.times[name.format(kind)] for name in measured) for kind in KINDS}
        ratios = {kind: over[kind] / run.times[self.under.format(kind)] for kind in KINDS}
        return {**ratios, "all": sum(over.values()) / run.total(self.under)}

    def met(self, ratios):
        """Whether every kind reaches the target, and the aim too."""
        if self.target is None:
            return ""
        worst = (max if self.at_most else min)(ratios[kind] for kind in KINDS)

        def reached(value):
            return worst <= value if self.at_most else worst >= value

        if not reached(self.target):
            return "not met"
        return "met, aim too" if self.aim is not None and reached(self.aim) else "met"


def against(what, peer, who, *targets):
    """How many times as long a peer takes. Of several ways to use it, the fastest for each kind."""
    ways = [who] if isinstance(who, str) else who
    return Figure(f"{what}: {peer} / library", [f"{what}/{{}}/100/{way}" for way in ways],
                  f"{what}/{{}}/100/library", *targets)


def bound(what, who, title, *targets, size=100):
    return Figure(title, f"{what}/{{}}/{size}/library", f"{what}/{{}}/{size}/{who}", *targets,
                  at_most=True)


FIGURES = (
    bound("decode", "copy", "decode / deep copy of its result", 2.3),
    against("decode", "RapidXML", "rapidxml", 3.7),
    against("decode", "pugixml", "pugixml", 5.2),
    against("decode", "Protobuf", "protobuf", 2.1),
    against("decode", "Protobuf, fastest way", PROTOBUF, 1.5, 2.0),
    bound("encode", "memcpy", "encode / memcpy of the message", 6.0),
    against("encode", "pugixml", "pugixml", 17.0),
    against("encode", "Protobuf", "protobuf", 4.6),
    against("encode", "Protobuf, fastest way", PROTOBUF, 2.6, 4.0),
    bound("decode", "copy", "decode / deep copy, 20,000 entries", 2.0, size=20000),
    bound("encode", "memcpy", "encode / memcpy, 20,000 entries", 5.0, size=20000),
    bound("decode-alone", "copy", "decode / deep copy, 20,000 entries, destruction left out",
          size=20000),
    Figure("decode: 20,000 entries / 200 logs of 100", "decode/{}/20000/library",
           "decode/{}/20000/hundreds"),
    against("decode", "strstr", "strstr"),
    against("decode", "expat", "expat"),
    against("decode", "TinyXML-2", "tinyxml2"),
    against("encode", "libxml2's writer", "libxml2"),
    Figure("decode: with the handle / without", "decode/{}/100/handle", "decode/{}/100/library"),
)


def damaged(damage, title):
    library = f"{damage}/{{}}/100/library"
    return (
        Figure(f"{title}: RapidXML / library", f"{damage}/{{}}/100/rapidxml", library, 1.8, 2.5),
        Figure(f"{title}: strstr / library", f"{damage}/{{}}/100/strstr", library, 2.2, 3.0),
        Figure(f"{title}: damaged / intact", library, "decode/{}/100/library", 3.0, 1.5,
               at_most=True),
    )


DAMAGED_FIGURES = tuple(
    figure for damage, title in DAMAGES.items() for figure in damaged(damage, title))
