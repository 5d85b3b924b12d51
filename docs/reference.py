#!/usr/bin/python3
"""What ./dev docs does around Doxygen.

  reference.py make PICTURES FILE  write the blocks that name families and headers, and complain
                                   about each class without a picture in the folder PICTURES
  reference.py filter HEADER       print the header as Doxygen is to read it: with the family of
                                   each item and the picture of each class in its documentation
  reference.py check FOLDER        complain about each public item without documentation, each class
                                   without a picture, and each page that leads to nowhere

The families are the headings in the library's CMakeLists.txt.  The gallery renders the pictures,
one for each of its pages.  Doxygen itself complains about most items without documentation, but
neither about enumerators, nor about anything that it has overlooked.
"""

import re
import sys
import xml.etree.ElementTree as ET
from pathlib import Path

LIBRARY = Path(__file__).resolve().parents[1] / "src/libs/orvanecontrols"

# Records that no page of the gallery shows alone, and the class whose picture shows them.
SHOWN_BY = {
    "BackUpParam": "TableWidgetCustom",
    "StyleSheetBatch": "LineEditEx",
    "WidgetInfo": "WidgetControllBoard",
}

ITEM = re.compile(r"^(class|struct|enum)\s+(?:ORVANECONTROLS_EXPORT\s+)?(\w+)\s*[:{\n]", re.M)


def families():
    """The public headers by the headings of CMakeLists.txt, in its order."""
    text = (LIBRARY / "CMakeLists.txt").read_text(encoding="utf-8")
    listed = re.search(r"set\(ORVANE_PUBLIC_HEADERS\n(.*?)\)", text, re.S).group(1)
    headers = {}
    family = ""
    for line in filter(None, map(str.strip, listed.splitlines())):
        if line.startswith("#"):
            family = line.lstrip("# ")
        else:
            headers.setdefault(family, []).append(line)
    return headers


def items(header):
    """The classes, records and enumerations of a header: pairs of kind and name."""
    text = (LIBRARY / header).read_text(encoding="utf-8")
    return [(match.group(1), match.group(2)) for match in ITEM.finditer(text)]


def picture_of(name):
    return SHOWN_BY.get(name, name) + ".png"


def make(pictures, target):
    blocks = []
    missing = []
    for number, (family, headers) in enumerate(families().items()):
        blocks.append(f"/** \\defgroup family{number} {family} */")
        for header in headers:
            # Doxygen takes in no enumeration or macro of a file that is not described itself.
            blocks.append(f"/** \\file {header}\n    {family}. */")
            missing += [f"{header}: the gallery rendered no {picture_of(name)} for {name}"
                        for kind, name in items(header)
                        if kind != "enum" and not (Path(pictures) / picture_of(name)).is_file()]
    Path(target).write_text("\n".join(blocks) + "\n", encoding="utf-8")
    return missing


def filtered(path):
    """The header's text with the aliases of docs/Doxyfile put in; the lines keep their numbers."""
    lines = path.read_text(encoding="utf-8").split("\n")
    number = next((number for number, headers in enumerate(families().values())
                   if path.name in headers), None)
    for index, line in enumerate(lines):
        item = ITEM.match(line + "\n")
        if number is None or not item:
            continue
        end = start = index - 1
        if lines[end].startswith("///"):
            while lines[start - 1].startswith("///"):
                start -= 1
            lines[start] = lines[start].replace("///", f"/// \\family{{{number}}}", 1)
        elif lines[end].strip() == "*/":
            while not lines[start].startswith("/**"):
                start -= 1
            lines[start] += f" \\family{{{number}}}"
            if item.group(1) != "enum":
                # Behind the first paragraph, or where the only one ends.
                gap = next((i for i in range(start, end) if lines[i].strip() == "*"), end)
                lines[gap] = f" * \\picture{{{picture_of(item.group(2))}}} {lines[gap].strip(' *')}"
                if gap == end:
                    lines[gap] = lines[gap].rstrip("/ ") + " */"
    return "\n".join(lines)


def is_documented(element):
    parts = [element.find(tag) for tag in ("briefdescription", "detaileddescription")]
    return any("".join(part.itertext()).strip() for part in parts if part is not None)


def check_pages(folder):
    """Complaints about pictures and places that the pages name and that are not there."""
    texts = {page.name: page.read_text(encoding="utf-8") for page in sorted(folder.glob("*.html"))}
    places = {name: set(re.findall(r'(?:id|name)="([^"]+)"', text)) for name, text in texts.items()}
    missing = []
    for name, text in texts.items():
        for target in sorted(set(re.findall(r'(?:href|src)="([^":]+)"', text))):
            file, _, place = target.partition("#")
            file = file or name
            if (not (folder / file).is_file()
                    or (place and file in places and place not in places[file])):
                missing.append(f"{name} names {target}, which is not there")
    return missing


def check_items(folder):
    found = set()
    missing = []
    for path in sorted(folder.glob("*.xml")):
        if path.name == "index.xml":
            continue
        for compound in ET.parse(path).getroot().iter("compounddef"):
            kind = compound.get("kind")
            if (kind not in ("class", "struct", "group", "file")
                    or compound.get("prot") == "private"):
                continue
            owner = compound.findtext("compoundname")
            if kind in ("class", "struct"):
                found.add((kind, owner))
                if not is_documented(compound):
                    missing.append(f"{owner} is not documented")
                if compound.find("detaileddescription").find(".//image") is None:
                    missing.append(f"{owner} has no picture in its documentation")
            for member in compound.iter("memberdef"):
                name = member.findtext("name")
                if member.get("prot") == "private" or name.startswith("~"):
                    continue
                place = "" if kind in ("group", "file") else f"{owner}::"
                if member.get("kind") == "enum":
                    found.add(("enum", place + name))
                for item in [member, *member.iter("enumvalue")]:
                    if not is_documented(item):
                        missing.append(f"{place}{item.findtext('name')} is not documented")
    for headers in families().values():
        for header in headers:
            missing += [f"{header}: {name} is not in the documentation"
                        for kind, name in items(header) if (kind, name) not in found]
    return missing


def main():
    verb, *arguments = sys.argv[1:] or [""]
    if (verb, len(arguments)) == ("make", 2):
        complaints = make(*arguments)
    elif (verb, len(arguments)) == ("filter", 1):
        sys.stdout.write(filtered(Path(arguments[0])))
        return
    elif (verb, len(arguments)) == ("check", 1):
        folder = Path(*arguments)
        complaints = check_items(folder / "xml") + check_pages(folder / "html")
    else:
        sys.exit(__doc__)
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    sys.exit(1 if complaints else 0)


if __name__ == "__main__":
    main()
