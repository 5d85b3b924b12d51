#!/usr/bin/python3
"""Reads what the benchmarks of ./dev bench have measured.

  report.py targets FOLDER     print each target with its figure, PASS or MISSED
  report.py page FOLDER FILE   write the page of figures for docs/

FOLDER has the JSON files panels.json, controls.json, targets.json and, for the page,
instructions.json.  A target that was not measured, as when ./dev bench was given a filter, says so.
"""

import json
import re
import sys
from pathlib import Path

SHOW_LIMIT = 1.03
UNCHANGED_LIMIT = 0.1
BATCH_LIMIT = 1.5
PAINT_LIMIT = 1.5
LOAD_LIMIT_MS = 5
GROWTH_LIMIT = 1.15
CLICK_LIMIT_MS = 16

QUANTITIES = {
    "show": ("Construct and show", "µs", "from the constructor until the first paint is done"),
    "restyle": ("Restyle", "µs", "a setter with another value, or a polish where there is none"),
    "paint": ("Paint", "µs", "rendered into an image"),
    "memory": ("Memory", "bytes", "of the heap, shown"),
}
MILLISECONDS = 1000


def read(folder, name):
    """The context, and the runs by their names without the number of iterations."""
    path = Path(folder) / f"{name}.json"
    if not path.is_file() or not path.stat().st_size:
        return {}, {}
    data = json.loads(path.read_text(encoding="utf-8"))
    runs = {re.sub(r"/(iterations:\d+|manual_time)", "", run["name"]): run
            for run in data["benchmarks"] if "error_occurred" not in run}
    return data["context"], runs


def instructions(folder):
    """By control, how many instructions the library takes to show it for one of bare Qt."""
    path = Path(folder) / "instructions.json"
    if not path.is_file():
        return {}
    counts = json.loads(path.read_text(encoding="utf-8"))
    return {name: sides["library"] / sides["bare"] for name, sides in counts.items()}


def is_same(run):
    """Whether bare Qt has the same parts as the control."""
    return not run.get("label") or is_painted(run)


def is_painted(run):
    """Whether they differ only in what the control paints by hand."""
    return run.get("label", "").endswith("the pictures differ")


def of_kind(runs, kind):
    return {name.split("/", 1)[1]: run for name, run in runs.items()
            if name.startswith(kind + "/")}


class Target:
    """A limit, and what was measured by name."""

    def __init__(self, text, limit, figures, unit=""):
        self.text = text
        self.limit = limit
        self.figures = figures
        self.unit = unit

    def missed(self):
        return {name: figure for name, figure in self.figures.items() if figure > self.limit}

    def verdict(self):
        if not self.figures:
            return "not measured"
        return "MISSED" if self.missed() else "PASS"

    def summary(self):
        if not self.figures:
            return ""
        figures = sorted(self.figures.values())
        if len(figures) == 1:
            return f"{figures[0]:.3g}{self.unit}"
        return (f"{figures[0]:.3g} to {figures[-1]:.3g}{self.unit}, median "
                f"{figures[len(figures) // 2]:.3g}; {len(figures) - len(self.missed())} of "
                f"{len(figures)} within")


def targets(folder):
    panels = read(folder, "panels")[1]
    controls = read(folder, "controls")[1]
    promises = read(folder, "targets")[1]

    def ratio(name):
        return {name: promises[name]["ratio"]} if name in promises else {}

    def milliseconds(name):
        return {name: MILLISECONDS * promises[name]["library_s"]} if name in promises else {}

    shows = {name: run["per_bare"] for name, run in of_kind(controls, "show").items()
             if is_same(run)}
    steady = instructions(folder)
    steady = {name: steady[name] for name in shows if name in steady}
    shows.update({name: run["ratio"] for name, run in panels.items() if name.startswith("show")})
    unchanged = {name: run["ratio"] for name, run in of_kind(promises, "unchanged").items()}
    batch = {name: run["ratio"] for name, run in panels.items() if name == "setTwentyColors/batch:1"}
    return [
        Target("construct and show, of bare Qt with the same sheets", SHOW_LIMIT, shows),
        Target("the same, in instructions instead of time", SHOW_LIMIT, steady),
        Target("ten setters with unchanged values, of one with another value", UNCHANGED_LIMIT,
               unchanged),
        Target("twenty setters with new values in a StyleSheetBatch, of one without", BATCH_LIMIT,
               batch),
        Target("painting a cabinet, of a bare tool button with its sheet", PAINT_LIMIT,
               ratio("paintCabinet")),
        Target("loading the library", LOAD_LIMIT_MS, milliseconds("load"), " ms"),
        Target("each of 4,096 cabinets, of each of 64, scrolled as in a drawer", GROWTH_LIMIT,
               ratio("growth/scrolled")),
        Target("the same, all in sight in one window", GROWTH_LIMIT, ratio("growth/inSight")),
        Target("a click on a drawer of 64 items with 16 rows of 8 cabinets", CLICK_LIMIT_MS,
               milliseconds("click"), " ms"),
    ]


def print_targets(folder):
    print("Targets")
    for target in targets(folder):
        print(f"  {target.verdict():<7} {target.text}: at most {target.limit}{target.unit}; "
              f"measured {target.summary() or 'nothing'}")
        missed = target.missed() if len(target.figures) > 1 else {}
        for name, figure in sorted(missed.items(), key=lambda entry: -entry[1]):
            print(f"            {figure:.3f}  {name}")


def processor():
    text = Path("/proc/cpuinfo").read_text(encoding="utf-8")
    model = re.search(r"^model name\s*: (.*)$", text, re.M)
    return model.group(1).strip() if model else "unknown"


def machine(context):
    load = context["load_avg"][0]  # the benchmark itself is one
    busy = "idle" if load < 1.5 else f"busy with other work (load average {load:.0f})"
    return (f"{processor()} at {context['mhz_per_cpu'] / 1000:.1f} GHz, {context['num_cpus']} "
            f"cores (virtual machine), Qt {context['qt']}, {context['compiler']}, build type "
            f"{context['build_type']}, platform offscreen; {busy}")


def table_of(kind, runs, steady):
    title, unit, what = QUANTITIES[kind]
    steady = steady if kind == "show" else {}
    heading = " in instructions |" if steady else ""
    lines = [f"\n## {title}\n", f"In {unit}, {what}.\n",
             f"| Control | {unit} | of bare Qt |{heading} of stock Qt | of stock Qt, dark |",
             "|---|---:|---:|---:|---:|" + ("---:|" if steady else "")]
    for name, run in runs.items():
        mark = " *" if is_painted(run) else "" if is_same(run) else " †"
        count = f" {steady[name]:.2f}{mark} |" if name in steady else ""
        lines.append(f"| {name} | {run['library']:,.0f} | {run['per_bare']:.2f}{mark} |{count} "
                     f"{run['per_stock']:.2f} | {run['per_dark']:.2f} |")
    return lines


PAGE = """\
# Performance

What the controls cost, beside the same work without the library. `./dev bench --table` measures it
and writes this page.

Machine: {machine}.

- *Bare Qt* is the same tree of Qt's own widgets with the same properties, layouts, items and sheets,
  each set once. Before it is measured it is compared with the control, widget by widget and picture
  by picture. A star stands where the control paints something by hand that bare Qt leaves out, a
  dagger where the trees are not wholly the same: parts lie elsewhere, most of them hidden ones, or
  bare Qt has no counterpart, as of the popup of the controller board, the shadow of the message box
  or the view that a combo box brings along. Targets count without the latter.
- *Stock Qt* is that tree without any sheet: Qt's own look. It is no dark look; the figure is the
  price of a look by style sheets.
- *Stock Qt, dark* is that tree under one dark sheet of 100 rules for the whole application,
  `benchmarks/dark.qss`.

All are measured in one run, in turns so that each comes as often after each other, and after one of
its kind that does not count. A ratio is the median of the rounds' ratios, a time is the median of
processor times. Below 1 the library is the cheaper one. What can be seen is not the same on all
sides but the first, so the tables compare costs, not looks.

## Targets

| Target | Limit | Measured | |
|---|---:|---|---|
{targets}

The library is loaded by `dlopen` into a new process that has Qt and an application, until the images
are registered. The click is a mouse event to the window, until the new state is painted. The
cabinets lie in rows of eight; 4,096 in one window make it 38,000 pixels high, and Qt's clipping
takes time by that height.

What the time goes to, by profiles of instructions (`./dev bench --instructions`):

- *Construct and show*: in instructions all are within the limit. What is left in time is spread over
  hundreds of Qt's functions. A control has a class, members, texts and code of its own: Qt takes one
  step more wherever it asks class by class (selectors, properties, accessible interfaces), and the
  processor's caches hold less of the rest. callgrind's simulation of them, with 10 to 15 cycles for
  a miss or a wrong branch, makes `SliderEx`, `SpinBoxEx` and `LineEditEx` 1.03 of bare Qt,
  `ToolBarEx` 1.04, `WindowTitle` and the tab bars 1.00 to 1.01. The rest comes and goes: a ratio
  moves by two or three per cent from run to run.
- *Painting a cabinet*: what has been painted is copied to cabinets that look the same. The bare
  button takes 74 % of the instructions of a copied cabinet. The first one of each look is
  painted, which costs four bare buttons.
- *4,096 cabinets in one window*: bare Qt's own grow by {growth:.2f} in the same measurement.
"""


def write_page(folder, target):
    context = read(folder, "targets")[0]
    controls = read(folder, "controls")[1]
    rows = "\n".join(f"| {each.text} | {each.limit}{each.unit} | {each.summary()} | "
                     f"{each.verdict()} |" for each in targets(folder))
    growth = read(folder, "targets")[1]["growthOfBareQt/inSight"]["ratio"]
    lines = [PAGE.format(machine=machine(context), targets=rows, growth=growth).rstrip()]
    for kind in QUANTITIES:
        lines += table_of(kind, of_kind(controls, kind), instructions(folder))
    Path(target).write_text("\n".join(lines) + "\n", encoding="utf-8")


def main():
    arguments = sys.argv[1:]
    if len(arguments) == 2 and arguments[0] == "targets":
        print_targets(arguments[1])
    elif len(arguments) == 3 and arguments[0] == "page":
        write_page(*arguments[1:])
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main()
