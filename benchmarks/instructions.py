#!/usr/bin/python3
"""Counts the instructions that building and showing a control takes.

  instructions.py PROGRAM FOLDER             of every control that FOLDER/controls.json names, of the
                                             library and of bare Qt, into FOLDER/instructions.json
  instructions.py PROGRAM FOLDER CONTROL     of one control, of stock Qt too; the profiles stay in
                                             FOLDER for callgrind_annotate

PROGRAM is bench_controls.  Times differ from run to run by some per cent, counts hardly do, even on
a busy machine; but they leave out what the system, and the memory, do.
"""

import json
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path


def count(program, control, side, profile="/dev/null"):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    result = subprocess.run(
        ["valgrind", "--tool=callgrind", "--collect-atstart=no",
         f"--callgrind-out-file={profile}", program, "--once", control, side],
        env=environment, stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)
    collected = re.search(r"Collected : (\d+)", result.stderr)
    if result.returncode != 0 or not collected:
        said = [line for line in result.stderr.splitlines() if not line.startswith("==")]
        sys.exit("\n".join([f"{control}, {side}:", *said,
                            "the controls are named as in docs/performance.md"]))
    return int(collected.group(1))


def count_one(program, folder, control):
    for side in ("library", "bare", "stock"):
        profile = Path(folder) / f"callgrind.{side}.out"
        print(f"{side}: {count(program, control, side, profile)} instructions; "
              f"callgrind_annotate {profile}", flush=True)


def count_all(program, folder):
    runs = json.loads((Path(folder) / "controls.json").read_text(encoding="utf-8"))["benchmarks"]
    controls = [run["name"].split("/")[1] for run in runs if run["name"].startswith("show/")]

    def sides(control):
        return {side: count(program, control, side) for side in ("library", "bare")}

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        counts = dict(zip(controls, pool.map(sides, controls)))
    (Path(folder) / "instructions.json").write_text(json.dumps(counts, indent=1),
                                                    encoding="utf-8")


def main():
    arguments = sys.argv[1:]
    if len(arguments) == 2:
        count_all(*arguments)
    elif len(arguments) == 3:
        count_one(*arguments)
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main()
