#!/usr/bin/python3
"""Renders the icons of Qt Designer's widget box, and writes the collection that names them.

    make.py          write icons.qrc, and each icon at 22, 32 and 44 pixels
    make.py --check  compare the committed files with a fresh rendering

Each icon is a drawing on a dark plate of 22 units, so that it reads on light and on dark grounds.
The drawings stand in drawings.svg.in, the colours in the palette of images/.  Needs what
images/render.py needs.
"""

import io
import json
import sys
from pathlib import Path
from string import Template

HERE = Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(HERE.parents[3] / "images"))

import render  # noqa: E402

SIDE = 22
SIZES = {"": SIDE, "@2x": 2 * SIDE, "-32": 32}
PREFIX = "/orvanecontrols/designer"

PLATE = f"""<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {SIDE} {SIDE}">
<rect x="1" y="1" width="20" height="20" rx="3" fill="$lowered"/>
<g fill="none" stroke="$glyph" stroke-width="1.5" stroke-linecap="round" stroke-linejoin="round">
%s
</g></svg>"""


def drawings():
    """Pairs of the icon's name and its elements: a line "name:", and below it the elements."""
    name, elements = None, []
    for line in (HERE / "drawings.svg.in").read_text(encoding="utf-8").splitlines() + ["end:"]:
        if line.endswith(":"):
            if name:
                yield name, "\n".join(elements)
            name, elements = line[:-1], []
        elif line and not line.startswith("#"):
            elements.append(line)


def collection(names):
    files = "".join(f"        <file>{name}{suffix}.png</file>\n"
                    for name in names for suffix in SIZES)
    return f'<RCC>\n    <qresource prefix="{PREFIX}">\n{files}    </qresource>\n</RCC>\n'


def contents():
    """What every file holds, by its name."""
    colours = json.loads((render.HERE / "palette.json").read_text(encoding="utf-8"))["colours"]
    colours = {name.replace("-", "_"): value for name, value in colours.items()}
    files = {"icons.qrc": collection([name for name, _ in drawings()]).encode()}
    for name, elements in drawings():
        svg = Template(PLATE % elements).substitute(colours)
        for suffix, side in SIZES.items():
            data = io.BytesIO()
            render.rasterise(svg, (side, side)).save(data, "PNG", optimize=True)
            files[f"{name}{suffix}.png"] = data.getvalue()
    return files


def check(files):
    found = {path.name for pattern in ("*.png", "*.qrc") for path in HERE.glob(pattern)}
    different = sorted(found ^ files.keys()) + sorted(
        name for name in found & files.keys() if (HERE / name).read_bytes() != files[name])
    for name in different:
        print(f"make.py: {name} is not what drawings.svg.in gives; run make.py", file=sys.stderr)
    return 1 if different else 0


def main():
    files = contents()
    if sys.argv[1:] == ["--check"]:
        return check(files)
    for name, data in files.items():
        (HERE / name).write_bytes(data)
    return 0


if __name__ == "__main__":
    sys.exit(main())
