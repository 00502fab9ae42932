#!/usr/bin/env python3
"""Reports one run of the benchmarks: prints the table of ratios and writes the results.

usage: report.py RAW.json RESULTS.json [DOCS]

DOCS is the folder whose charts are drawn anew and in whose performance.md the tables are replaced.
"""

import json
import os
import re
import sys

import charts
import figures
import tables


def write_results(run, path):
    head, *rows = tables.ratios(run, figures.FIGURES + figures.DAMAGED_FIGURES)
    ratios = [dict(zip(head, row)) for row in rows]
    with open(path, "w", encoding="utf-8") as file:
        json.dump({"context": run.context, "ratios": ratios, "nanoseconds": run.times}, file,
                  indent=1, ensure_ascii=False)


def machine(run):
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = re.search(r"^model name\s*: (.*)$", file.read(), re.M)
    caches = ", ".join(f"L{cache['level']} {cache['type'].lower()} {cache['size'] // 1024} KiB"
                       for cache in run.context["caches"])
    return (f"{model.group(1) if model else 'processor unknown'}, "
            f"{run.context['num_cpus']} processors; {caches}; {run.context['compiler']}; "
            f"{run.context['date'][:10]}.")


def replace_sections(text, sections):
    """Replaces the text between <!-- NAME --> and <!-- end --> for each section."""
    for name, content in sections.items():
        pattern = rf"(<!-- {re.escape(name)} -->\n).*?(<!-- end -->)"
        text, count = re.subn(pattern, lambda found: f"{found[1]}{content}\n{found[2]}", text,
                              flags=re.S)
        if count != 1:
            raise SystemExit(f"performance.md has {count} sections {name}")
    return text


def update_document(run, docs):
    path = os.path.join(docs, "performance.md")
    with open(path, encoding="utf-8") as file:
        text = file.read()
    text = replace_sections(text, {
        "machine": machine(run),
        "ratios": tables.as_markdown(tables.ratios(run, figures.FIGURES)),
        "decode": tables.as_markdown(tables.times(run, "decode")),
        "encode": tables.as_markdown(tables.times(run, "encode")),
        "decode per byte": tables.as_markdown(tables.per_byte(run, "decode")),
        "encode per byte": tables.as_markdown(tables.per_byte(run, "encode")),
        "damaged ratios": tables.as_markdown(tables.ratios(run, figures.DAMAGED_FIGURES)),
        "damaged": tables.as_markdown(tables.damages(run)),
        "small": tables.as_markdown(tables.small(run)),
    })
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


def main(raw, results, docs=None):
    run = figures.Run(raw)
    print(tables.as_text(tables.ratios(run, figures.FIGURES + figures.DAMAGED_FIGURES)))
    write_results(run, results)
    if docs:
        charts.draw(run, os.path.join(docs, "charts"))
        update_document(run, docs)


if __name__ == "__main__":
    main(*sys.argv[1:])
