"""The main figures: ratios of the best times, with their targets.

A benchmark is named what/kind/size/who. Its time is the least of its rounds: noise only ever adds.
"""

import json

KINDS = ("missed", "dialled", "received", "forwarded")
SIZES = (1, 10, 100, 1000, 20000)
DAMAGES = ("newlines", "swapped", "missing", "repeated")

# Who decodes and who encodes, as the tables and charts call them, the fastest use first.
NAMES = {
    "copy": "deep copy",
    "memcpy": "memcpy",
    "library": "this library",
    "protobuf-kept": "Protobuf, kept",
    "protobuf-arena": "Protobuf, arena",
    "protobuf": "Protobuf",
    "rapidxml": "RapidXML",
    "pugixml": "pugixml",
    "libxml2": "libxml2",
    "expat": "expat",
    "tinyxml2": "TinyXML-2",
    "oracle": "plain oracle",
}


class Run:
    """One run: the least CPU time of each benchmark in nanoseconds, and the messages' lengths."""

    def __init__(self, path):
        with open(path, encoding="utf-8") as file:
            results = json.load(file)
        self.context = results["context"]
        self.times, self.bytes = {}, {}
        for run in results["benchmarks"]:
            if run.get("error_occurred"):
                raise SystemExit(f"{run['name']}: {run['error_message']}")
            if run.get("aggregate_name") == "least":
                name = "/".join(run["run_name"].split("/")[:4])
                self.times[name] = run["cpu_time"]
                if "message" in run:
                    self.bytes[name] = run["message"]

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
    """One ratio for each kind: the times of `over` by the times of `under`."""

    def __init__(self, title, over, under, at_most=None, at_least=None, per_byte=False):
        self.title, self.over, self.under = title, over, under
        self.at_most, self.at_least, self.per_byte = at_most, at_least, per_byte

    def target(self):
        if self.at_most is not None:
            return f"≤ {self.at_most:.1f}"
        return "" if self.at_least is None else f"≥ {self.at_least:.1f}"

    def reached(self, ratio):
        return ratio <= self.at_most if self.at_most is not None else ratio >= self.at_least

    def compute(self, run):
        """{kind: ratio}, and under "all" that of the summed times; None when a time is missing."""
        if run.total(self.over) is None or run.total(self.under) is None:
            return None
        ratios = {}
        for kind in KINDS:
            over, under = self.over.format(kind), self.under.format(kind)
            ratios[kind] = run.times[over] / run.times[under]
            if self.per_byte:
                ratios[kind] *= run.bytes[under] / run.bytes[over]
        measure = run.per_byte if self.per_byte else run.total
        ratios["all"] = measure(self.over) / measure(self.under)
        return ratios

    def met(self, ratios):
        """By every kind, by all of them together only, or not."""
        if not self.target():
            return ""
        if all(self.reached(ratios[kind]) for kind in KINDS):
            return "yes"
        return "together" if self.reached(ratios["all"]) else "no"


def against(what, peer, who, target=None):
    return Figure(f"{what}: {peer} / library", f"{what}/{{}}/100/{who}",
                  f"{what}/{{}}/100/library", at_least=target)


def bound(what, who, title, target):
    return Figure(title, f"{what}/{{}}/100/library", f"{what}/{{}}/100/{who}", at_most=target)


def damaged(damage):
    return Figure(f"damaged, {damage}: oracle / library", f"{damage}/{{}}/100/oracle",
                  f"{damage}/{{}}/100/library", at_least=1.0)


def growth(what, who, name, target=None):
    return Figure(f"{name}: time per byte, 20,000 / 100", f"{what}/{{}}/20000/{who}",
                  f"{what}/{{}}/100/{who}", at_most=target, per_byte=True)


FIGURES = (
    bound("decode", "copy", "decode / deep copy of its result", 2.3),
    against("decode", "RapidXML", "rapidxml", 3.7),
    against("decode", "pugixml", "pugixml", 5.2),
    against("decode", "Protobuf", "protobuf", 2.1),
    against("decode", "Protobuf on an arena", "protobuf-arena", 2.1),
    against("decode", "Protobuf, kept", "protobuf-kept", 2.1),
    bound("encode", "memcpy", "encode / memcpy of the message", 6.0),
    against("encode", "pugixml", "pugixml", 17.0),
    against("encode", "Protobuf", "protobuf", 4.6),
    against("encode", "Protobuf on an arena", "protobuf-arena", 4.6),
    against("encode", "Protobuf, kept", "protobuf-kept", 4.6),
    *map(damaged, DAMAGES),
    growth("decode-alone", "library", "decode, destruction left out", 1.4),
    growth("decode", "library", "decode", 1.4),
    growth("encode", "library", "encode", 1.4),
    growth("decode-alone", "copy", "deep copy, destruction left out"),
    growth("decode", "copy", "deep copy"),
    growth("encode", "memcpy", "memcpy"),
    Figure("decode: time per byte, 20,000 / 200 logs of 100", "decode/{}/20000/library",
           "decode/{}/20000/hundreds", per_byte=True),
    against("decode", "expat", "expat"),
    against("decode", "TinyXML-2", "tinyxml2"),
    against("decode", "plain oracle", "oracle"),
    against("encode", "libxml2's writer", "libxml2"),
    against("encode", "plain oracle", "oracle"),
    Figure("decode: with the handle / without", "decode/{}/100/handle", "decode/{}/100/library"),
)
