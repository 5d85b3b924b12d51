#!/usr/bin/python3
"""Renders the pictures that a host of the library supplies itself.

The close button is the library's own drawing at the double size; the logo is logo.svg.  Needs what
images/render.py needs.
"""

import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(HERE.parents[3] / "images"))

import render  # noqa: E402

CLOSE_STATES = {"normal": "normal", "hover": "danger-hover", "pressed": "danger-pressed"}
CLOSE_SIZE = (30, 20)
LOGO_SIZE = (64, 64)


def main():
    for name, state in CLOSE_STATES.items():
        file = f"titleBar/btn_close_{name}@2x.png"
        size = tuple(2 * side for side in CLOSE_SIZE)
        picture = render.Picture(file, size, "window-close", state, 0, "", CLOSE_SIZE, 69)
        render.write_still(picture, HERE / file)
    logo = (HERE / "logo.svg").read_text(encoding="utf-8")
    render.rasterise(logo, LOGO_SIZE).save(HERE / "logo.png", "PNG", optimize=True)


if __name__ == "__main__":
    main()
