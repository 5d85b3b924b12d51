#!/usr/bin/python3
"""Renders the image set of the library from the vector sources.

    render.py               write every image and the resource collection file
    render.py --check       compare the committed files with a fresh rendering
    render.py --sheets DIR  write one contact sheet for each directory

The manifest names every image; its source, state, turn and number fill the
placeholders of the vector source.  The output is the same on every run.
"""

import argparse
import csv
import filecmp
import io
import json
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from string import Template
from typing import NamedTuple

try:
    from PIL import Image, ImageDraw, ImageFont
except ImportError:
    sys.exit("render.py: the Python imaging library is missing (python3-pil)")

HERE = Path(__file__).resolve().parent
SOURCES = HERE / "sources"
TARGET = HERE.parent / "src/libs/orvanecontrols/Resource/Images/globalResource"
COLLECTION = "globalResource.qrc"
PREFIX = "/Resource/Images/globalResource"
LISTED_TWICE = "combBox/toolBarComboBox_normal.png"

FRAMES = 24  # of an animation: one full turn
FRAME_MS = 40
CLEAR = 255  # index of the transparent colour, after all others


class Picture(NamedTuple):
    """One line of the manifest."""

    file: str
    size: tuple  # in pixels
    source: str
    state: str
    turn: int  # in degrees
    number: str  # port number, or empty
    shown: tuple  # size on the screen
    ground: int  # grey level of what it lies on


def parse_size(text):
    width, height = text.split("x")
    return int(width), int(height)


def read_manifest():
    with open(HERE / "manifest.csv", newline="", encoding="utf-8") as lines:
        return [
            Picture(
                file=row["file"],
                size=(int(row["width"]), int(row["height"])),
                source=row["source"],
                state=row["state"],
                turn=int(row["turn"] or 0),
                number=row["number"],
                shown=parse_size(row["shown"]),
                ground=int(row["ground"]),
            )
            for row in csv.DictReader(lines)
        ]


def read_states():
    """The placeholder values of every state, colour names resolved."""
    palette = json.loads((HERE / "palette.json").read_text(encoding="utf-8"))
    colours = palette["colours"]
    return {
        state: {key: colours.get(value, value) for key, value in values.items()}
        for state, values in palette["states"].items()
    }


def read_digits():
    """Width and path of every digit."""
    digits = {}
    for line in (SOURCES / "digits.txt").read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            digit, width, path = line.split(" ", 2)
            digits[digit] = (int(width), path)
    return digits


STATES = read_states()
DIGITS = read_digits()
DIGIT_GAP = 4  # between the centre lines of two digits


def number_paths(number):
    """The strokes of a number, centred at x = 0 in whole units, the top at y = 0."""
    digits = [DIGITS[digit] for digit in number]
    x = -(sum(width for width, _ in digits) + DIGIT_GAP * (len(digits) - 1)) // 2
    paths = []
    for width, path in digits:
        paths.append(f'<path transform="translate({x} 0)" d="{path}"/>')
        x += width + DIGIT_GAP
    return "".join(paths)


def fill_source(picture, turn):
    template = Template((SOURCES / f"{picture.source}.svg").read_text(encoding="utf-8"))
    values = {"turn": turn, "number": number_paths(picture.number)}
    return template.substitute(values, **STATES[picture.state])


def rasterise(svg, size):
    width, height = map(str, size)
    command = ["rsvg-convert", "--width", width, "--height", height]
    result = subprocess.run(command, input=svg.encode(), capture_output=True, check=False)
    if result.returncode:
        raise RuntimeError(result.stderr.decode().strip())
    image = Image.open(io.BytesIO(result.stdout)).convert("RGBA")
    if image.size != size:
        raise RuntimeError(f"came out as {image.size}, not {size}")
    return image


def draw(picture, turn=None):
    try:
        svg = fill_source(picture, picture.turn if turn is None else turn)
        return rasterise(svg, picture.size)
    except KeyError as name:
        sys.exit(f"render.py: {picture.file}: no state, digit or placeholder value {name}")
    except (OSError, RuntimeError) as error:
        sys.exit(f"render.py: {picture.file}: {error}")


def write_still(picture, path):
    draw(picture).save(path, "PNG", optimize=True)


def write_animation(picture, path):
    """A full turn in equal steps; one colour table, transparent outside."""
    frames = [draw(picture, turn=i * 360 / FRAMES) for i in range(FRAMES)]
    strip = Image.new("RGB", (picture.size[0] * FRAMES, picture.size[1]))
    for i, frame in enumerate(frames):
        strip.paste(frame.convert("RGB"), (i * picture.size[0], 0))
    table = strip.quantize(colors=CLEAR)
    stills = []
    for frame in frames:
        still = frame.convert("RGB").quantize(palette=table, dither=Image.Dither.NONE)
        still.paste(CLEAR, mask=frame.getchannel("A").point(lambda alpha: 255 * (alpha < 128)))
        stills.append(still)
    stills[0].save(path, "GIF", save_all=True, append_images=stills[1:], loop=0,
                   duration=FRAME_MS, transparency=CLEAR, disposal=2, optimize=False)


def write_picture(picture, folder):
    path = folder / picture.file
    write = write_animation if path.suffix == ".gif" else write_still
    write(picture, path)


def collection_text(pictures):
    files = sorted([picture.file for picture in pictures] + [LISTED_TWICE])
    entries = "".join(f"        <file>{file}</file>\n" for file in files)
    return f'<RCC>\n    <qresource prefix="{PREFIX}">\n{entries}    </qresource>\n</RCC>\n'


def render_all(pictures, folder):
    for name in {Path(picture.file).parent for picture in pictures}:
        (folder / name).mkdir(parents=True, exist_ok=True)
    with ThreadPoolExecutor() as workers:
        list(workers.map(lambda picture: write_picture(picture, folder), pictures))
    (folder / COLLECTION).write_text(collection_text(pictures), encoding="utf-8")


def files_below(folder):
    return {path.relative_to(folder).as_posix() for path in folder.rglob("*") if path.is_file()}


def differences(fresh, committed):
    wanted, found = files_below(fresh), files_below(committed)
    yield from (f"missing: {file}" for file in sorted(wanted - found))
    yield from (f"extra: {file}" for file in sorted(found - wanted))
    for file in sorted(wanted & found):
        if not filecmp.cmp(fresh / file, committed / file, shallow=False):
            yield f"differs: {file}"


def check(pictures):
    with tempfile.TemporaryDirectory() as folder:
        render_all(pictures, Path(folder))
        found = list(differences(Path(folder), TARGET))
    print("\n".join(found) or f"{len(pictures)} images and {COLLECTION} are as rendered")
    return 1 if found else 0


# Contact sheets: every image at its size on the screen, and enlarged.

ZOOM = 4
EDGE = 4  # of ground around a picture
MARGIN = 10
LABEL_HEIGHT = 14
SHEET_WIDTH = 1500


def as_shown(picture):
    image = Image.open(TARGET / picture.file).convert("RGBA")
    if image.size != picture.shown:
        shrinks = image.size > picture.shown
        filtering = Image.Resampling.BOX if shrinks else Image.Resampling.BILINEAR
        image = image.resize(picture.shown, filtering)
    size = (image.width + 2 * EDGE, image.height + 2 * EDGE)
    ground = Image.new("RGBA", size, (picture.ground,) * 3)
    ground.alpha_composite(image, (EDGE, EDGE))
    return ground


def cell(picture, font):
    """A picture as shown, enlarged beside it, and its name below."""
    small = as_shown(picture)
    large = small.resize((small.width * ZOOM, small.height * ZOOM), Image.Resampling.NEAREST)
    name = Path(picture.file).name
    width = max(small.width + MARGIN + large.width, int(font.getlength(name)))
    image = Image.new("RGB", (width, large.height + LABEL_HEIGHT), (20, 20, 20))
    image.paste(small, (0, 0))
    image.paste(large, (small.width + MARGIN, 0))
    ImageDraw.Draw(image).text((0, large.height + 2), name, (200, 200, 200), font)
    return image


def write_sheet(cells, path):
    x = y = MARGIN
    row_height = 0
    places = []
    for image in cells:
        if x > MARGIN and x + image.width + MARGIN > SHEET_WIDTH:
            x, y, row_height = MARGIN, y + row_height + MARGIN, 0
        places.append((x, y))
        x += image.width + MARGIN
        row_height = max(row_height, image.height)
    sheet = Image.new("RGB", (SHEET_WIDTH, y + row_height + MARGIN), (20, 20, 20))
    for image, place in zip(cells, places):
        sheet.paste(image, place)
    sheet.save(path, "PNG", optimize=True)


def write_sheets(pictures, folder):
    folder.mkdir(parents=True, exist_ok=True)
    font = ImageFont.load_default()
    for directory in sorted({Path(picture.file).parent for picture in pictures}):
        inside = [picture for picture in pictures if Path(picture.file).parent == directory]
        write_sheet([cell(picture, font) for picture in inside], folder / f"{directory}.png")


def main():
    parser = argparse.ArgumentParser(description="Renders the image set of the library.")
    action = parser.add_mutually_exclusive_group()
    action.add_argument("--check", action="store_true",
                        help="compare the committed files with a fresh rendering")
    action.add_argument("--sheets", metavar="DIR", type=Path,
                        help="write contact sheets of the committed files")
    options = parser.parse_args()
    pictures = read_manifest()
    if options.sheets:
        return write_sheets(pictures, options.sheets)
    if not shutil.which("rsvg-convert"):
        sys.exit("render.py: rsvg-convert is missing (librsvg2-bin)")
    return check(pictures) if options.check else render_all(pictures, TARGET)


if __name__ == "__main__":
    sys.exit(main())
