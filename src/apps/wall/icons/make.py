#!/usr/bin/python3
"""Renders the icons of the wall configurator's commands from the .svg files beside this script, at
the single and at the double size.  Needs what images/render.py needs.
"""

import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(HERE.parents[3] / "images"))

import render  # noqa: E402

SIDE = 20


def main():
    for source in sorted(HERE.glob("*.svg")):
        text = source.read_text(encoding="utf-8")
        for suffix, scale in (("", 1), ("@2x", 2)):
            picture = render.rasterise(text, (SIDE * scale, SIDE * scale))
            picture.save(HERE / f"{source.stem}{suffix}.png", "PNG", optimize=True)


if __name__ == "__main__":
    main()
