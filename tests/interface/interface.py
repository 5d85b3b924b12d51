#!/usr/bin/python3
"""Compares what the library offers to built hosts with the lists that are committed beside this.

  interface.py check BUILD    complain about each difference, and about each exported symbol that
                              belongs to no public class
  interface.py accept BUILD   write the lists anew

BUILD is the folder of the preset dev, with the library in it.  symbols.txt has what the library
exports.  layout.txt has, for each class, record and enumeration of the public headers, what a host
has compiled in: size and alignment, the places of bases and members, the slots of virtual
functions, the values of enumerators.  Both are read from what the compiler has made, on 64-bit
Linux with g++.
"""

import difflib
import json
import re
import shlex
import subprocess
import sys
import tempfile
from pathlib import Path

try:
    from elftools.elf.elffile import ELFFile
except ImportError:
    sys.exit("interface.py: the reader of debug information is missing (python3-pyelftools)")

HERE = Path(__file__).resolve().parent
LIBRARY = HERE.parents[1] / "src/libs/orvanecontrols"
SYMBOLS = HERE / "symbols.txt"
LAYOUT = HERE / "layout.txt"

DECLARED = re.compile(r"^(?:class|struct)\s+(?:ORVANECONTROLS_EXPORT\s+)?(\w+)\s*(?::|\{|\n)", re.M)
# What the demangler puts before the name of a class.
OF_A_CLASS = re.compile(r"^(?:vtable|typeinfo|typeinfo name|VTT|non-virtual thunk|virtual thunk) "
                        r"(?:for|to) ")
ALIGNMENTS = "OrvaneAlignments"
RECORDS = ("DW_TAG_class_type", "DW_TAG_structure_type")
QUALIFIERS = {
    "DW_TAG_pointer_type": "*",
    "DW_TAG_reference_type": "&",
    "DW_TAG_rvalue_reference_type": "&&",
    "DW_TAG_const_type": " const",
    "DW_TAG_volatile_type": " volatile",
}


def public_headers():
    text = (LIBRARY / "CMakeLists.txt").read_text(encoding="utf-8")
    listed = re.search(r"set\(ORVANE_PUBLIC_HEADERS\n(.*?)\)", text, re.S).group(1)
    return re.findall(r"^ *(\w+\.h)$", listed, re.M)


def declared_in(header):
    return DECLARED.findall((LIBRARY / header).read_text(encoding="utf-8"))


def compile_headers(build, folder):
    """An object file with all public headers, compiled as the library is."""
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    entry = next(e for e in commands if e["file"] == str(LIBRARY / "checkboxex.cpp"))
    words = shlex.split(entry["command"])
    words = [word for word in words[:words.index("-o")] if Path(word).name != "ccache"]
    source = folder / "headers.cpp"
    # The debug information does not tell the alignment, so an enumeration does.
    source.write_text("".join(f'#include "{header}"\n' for header in public_headers())
                      + f"enum {ALIGNMENTS} {{\n"
                      + "".join(f"{name} = alignof(::{name}),\n" for header in public_headers()
                                for name in declared_in(header))
                      + f"}};\n{ALIGNMENTS} alignments;\n", encoding="utf-8")
    target = folder / "headers.o"
    subprocess.run([*words, "-O0", "-g", "-femit-class-debug-always",
                    "-fno-eliminate-unused-debug-types", "-c", source, "-o", target],
                   check=True, cwd=build)
    return target


def text(die, name):
    attribute = die.attributes.get(name)
    return attribute.value.decode() if attribute else ""


def number(die, name):
    attribute = die.attributes.get(name)
    return attribute.value if attribute else 0


def type_name(die):
    """The type that an item of the debug information has, as a reader would write it."""
    if "DW_AT_type" not in die.attributes:
        return "void"
    kind = die.get_DIE_from_attribute("DW_AT_type")
    if kind.tag in QUALIFIERS:
        return type_name(kind) + QUALIFIERS[kind.tag]
    if kind.tag == "DW_TAG_array_type":
        counts = [number(part, "DW_AT_upper_bound") + 1 for part in kind.iter_children()]
        return type_name(kind) + "".join(f"[{count}]" for count in counts)
    if kind.tag == "DW_TAG_subroutine_type":
        return f"{type_name(kind)} ({', '.join(parameters(kind))})"
    name = text(kind, "DW_AT_name") or "unnamed"
    owner = kind.get_parent()
    while owner is not None and text(owner, "DW_AT_name") and owner.tag != "DW_TAG_compile_unit":
        name = f"{text(owner, 'DW_AT_name')}::{name}"
        owner = owner.get_parent()
    return name


def parameters(function):
    return [type_name(part) for part in function.iter_children()
            if part.tag == "DW_TAG_formal_parameter" and "DW_AT_artificial" not in part.attributes]


class Interface:
    """What the public headers declare, from the debug information of a file that includes them."""

    def __init__(self, path):
        self.alignments = {}
        self.return_types = {}
        self.classes = set()
        self.lines = []
        with path.open("rb") as file:
            dwarf = ELFFile(file).get_dwarf_info()
            unit = next(dwarf.iter_CUs())
            files = dwarf.line_program_for_CU(unit)["file_entry"]
            headers = public_headers()
            found = []
            for die in unit.get_top_DIE().iter_children():
                if text(die, "DW_AT_name") == ALIGNMENTS:
                    self.alignments = {text(value, "DW_AT_name"): value.attributes[
                        "DW_AT_const_value"].value for value in die.iter_children()}
                    continue
                header = files[number(die, "DW_AT_decl_file")].name.decode()
                # The specialisations of Qt's templates for these classes are no part of it.
                if (header in headers and "DW_AT_declaration" not in die.attributes
                        and "<" not in text(die, "DW_AT_name")):
                    found.append((headers.index(header), number(die, "DW_AT_decl_line"), die))
            for index, _, die in sorted(found, key=lambda entry: entry[:2]):
                self.describe(die, headers[index])

    def describe(self, die, header):
        if die.tag in RECORDS:
            self.describe_record(die, header)
        elif die.tag == "DW_TAG_enumeration_type":
            self.lines.append(f"\n{header}: {self.enumeration(die)}")

    def enumeration(self, die):
        values = ", ".join(f"{text(value, 'DW_AT_name')} = {number(value, 'DW_AT_const_value')}"
                           for value in die.iter_children())
        return f"enum {text(die, 'DW_AT_name')}, {number(die, 'DW_AT_byte_size')} bytes: {values}"

    def describe_record(self, die, header):
        name = text(die, "DW_AT_name")
        self.classes.add(name)
        self.lines.append(f"\n{header}: class {name}, {number(die, 'DW_AT_byte_size')} bytes, "
                          f"aligned to {self.alignments[name]}")
        slots = []
        for part in die.iter_children():
            place = f"{number(part, 'DW_AT_data_member_location'):6}"
            if part.tag == "DW_TAG_inheritance":
                self.lines.append(f"{place}  base {type_name(part)}")
            elif part.tag == "DW_TAG_member" and "DW_AT_external" not in part.attributes:
                self.lines.append(f"{place}  {type_name(part)} {text(part, 'DW_AT_name')}")
            elif part.tag == "DW_TAG_enumeration_type":
                self.lines.append(f"        {self.enumeration(part)}")
            elif part.tag == "DW_TAG_subprogram":
                self.return_types[text(part, "DW_AT_linkage_name")] = type_name(part)
                if "DW_AT_virtuality" in part.attributes:
                    slots.append((self.slot(part), part))
        for slot, function in sorted(slots, key=lambda entry: entry[0]):
            name = text(function, "DW_AT_name")
            arguments = ", ".join(parameters(function))
            place = f"[{slot}]" if slot >= 0 else ""
            self.lines.append(f"{place:>6}  virtual {type_name(function)} {name}({arguments})")

    @staticmethod
    def slot(function):
        """The place in the table of virtual functions; -1 for destructors without one yet."""
        attribute = function.attributes.get("DW_AT_vtable_elem_location")
        if attribute is None:
            return -1
        # An expression: the operation "constant", then the number, seven bits a byte.
        return sum((byte & 0x7F) << 7 * index for index, byte in enumerate(attribute.value[1:]))


def exported_symbols(build, interface):
    """The exported symbols in C++ with their return types, and those of no public class."""
    library = build / "src/libs/orvanecontrols/liborvanecontrols.so"
    listed = subprocess.run(["nm", "--dynamic", "--defined-only", "--format=just-symbols", library],
                            check=True, capture_output=True, text=True).stdout.split()
    plain = subprocess.run(["c++filt"], input="\n".join(listed), check=True, capture_output=True,
                           text=True).stdout.splitlines()
    lines = set()
    foreign = set()
    for mangled, name in zip(listed, plain):
        kind = interface.return_types.get(mangled, "void")
        # A result is no part of a symbol, so it is added from the headers.
        lines.add(name if kind == "void" else f"{name} -> {kind}")
        if OF_A_CLASS.sub("", name).split("::")[0].split("(")[0] not in interface.classes:
            foreign.add(name)
    return sorted(lines), sorted(foreign)


def difference(path, lines):
    committed = path.read_text(encoding="utf-8").splitlines() if path.is_file() else []
    return list(difflib.unified_diff(committed, lines, f"{path.name} (committed)",
                                     f"{path.name} (now)", lineterm="", n=2))


def main():
    verb, build = sys.argv[1:] if len(sys.argv) == 3 else ("", "")
    if verb not in ("check", "accept"):
        sys.exit(__doc__)
    build = Path(build).resolve()
    with tempfile.TemporaryDirectory() as folder:
        interface = Interface(compile_headers(build, Path(folder)))
    symbols, foreign = exported_symbols(build, interface)
    if foreign:
        sys.exit("\n  ".join(["interface.py: exported, but of no public class; take the mark away, "
                              "or hide a copy of Qt's by exports.map:", *foreign]))

    lists = {SYMBOLS: symbols, LAYOUT: "\n".join(interface.lines).strip().splitlines()}
    if verb == "accept":
        for path, lines in lists.items():
            path.write_text("\n".join(lines) + "\n", encoding="utf-8")
        return
    differences = [line for path, lines in lists.items() for line in difference(path, lines)]
    if differences:
        sys.exit("\n".join(differences))


if __name__ == "__main__":
    main()
