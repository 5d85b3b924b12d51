#!/usr/bin/python3
"""Compiles the C++ in README, guides and the examples of the public headers.

  snippets.py FILE COMPILER    write it all to FILE and have the compiler look at it; complain about
                               each piece of code that nothing is known about

A piece stands in ```cpp in the README and the guides, is indented by six blanks or more there, or
stands between \\code and \\endcode in a header.  AROUND says what surrounds it, by its file and the
beginning of its first line.
"""

import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LIBRARY = ROOT / "src/libs/orvanecontrols"

WHOLE = ("", "")
NO_CODE = None


def function(parameters):
    return (f"void use({parameters})\n{{\n", "}\n")


MAIN_WINDOW = """class MainWindow : public WindowFrame
{
public:
    MainWindow(const QSize &normalSize, const QSize &smallestSize);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QSize screenSize() const;
    bool mayClose();
};
"""

AROUND = {
    ("README.md", "#include <orvanecontrols/checkboxex.h>"): WHOLE,
    ("docs/accessibility.md", "const auto buttons = title->findChildren"):
        function("WindowTitle *title"),
    ("docs/cabinet-chain.md", "auto *content = new DrawerItemContent;"):
        function("Drawer *drawer, const QList<StructCabinet> &records"),
    ("docs/cabinet-chain.md", "StructCabinet recordIn("):
        ("class View : public QWidget\n{\n"
         "    void dragEnterEvent(QDragEnterEvent *) override;\n};\n", ""),
    ("docs/designer.md", "#include <orvanecontrols/pushbuttonex.h>"): WHOLE,
    ("docs/getting-started.md", "#include <orvanecontrols/checkboxex.h>"): WHOLE,
    # From outside every namespace, as the guide says.
    ("docs/host-images.md", "static void registerPictures()"):
        ("}\n}\n", "namespace\n{\nnamespace\n{\n"),
    ("docs/main-window.md", "MainWindow::MainWindow("): (MAIN_WINDOW, ""),
    ("docs/main-window.md", "void MainWindow::closeEvent("): (MAIN_WINDOW, ""),
    ("docs/style-sheets.md", "{"): function("LineEditEx *edit"),
    ("buttongroupex.h", "ToolButtonEx[isCabinateWidgetLeftBtn"): NO_CODE,
    ("scrollbarex.h", "ScrollBarEx style("): function("QAbstractScrollArea *view"),
    ("shapewidgetcontent.h", "auto *content = new ShapeWidgetContent"):
        function("QWidget *panel, const QList<QWidget *> &buttons"),
    ("stylesheetbatch.h", "{"): function("CheckBoxEx *checkBox"),
    ("widgetcontrollboard.h", "auto *board = new WidgetControllBoard"):
        ("class Window : public QWidget\n{\npublic:\n    void useController(int index);\n"
         "    void build(Window *window, const QList<QWidget *> &buttons)\n    {\n", "    }\n};\n"),
}


def without_indent(text):
    lines = text.splitlines()
    least = min(len(line) - len(line.lstrip()) for line in lines if line.strip())
    return "".join(line[least:] + "\n" for line in lines)


def pieces():
    """Pairs of file and code."""
    pages = ["README.md", "CONTRIBUTING.md", *sorted((ROOT / "docs").glob("*.md"))]
    for path in (ROOT / page for page in pages):
        text = path.read_text(encoding="utf-8")
        for match in re.finditer(r"^```cpp\n(.*?)^```|(?<=\n\n)((?: {6,}[^\n]*\n)+)", text,
                                 re.M | re.S):
            yield str(path.relative_to(ROOT)), without_indent(match.group(1) or match.group(2))
    for path in sorted(LIBRARY.glob("*.h")):
        text = path.read_text(encoding="utf-8")
        for match in re.finditer(r"\\code\n(.*?)^ \* \\endcode", text, re.M | re.S):
            yield path.name, without_indent(re.sub(r"^ \*", "", match.group(1), flags=re.M))


def source():
    """The text, and what nothing is known about."""
    headers = "".join(f"#include <orvanecontrols/{path.name}>\n"
                      for path in sorted(LIBRARY.glob("*.h")))
    parts = []
    unknown = []
    left = dict(AROUND)
    for name, code in pieces():
        key = next((key for key in left if key[0] == name and code.startswith(key[1])), None)
        if not key:
            line = code.split("\n", 1)[0]
            unknown.append(f"{name}: say in tests/guides/snippets.py what surrounds '{line}'")
            continue
        around = left.pop(key)
        if around is NO_CODE:
            continue
        includes = "".join(re.findall(r"^#include.*\n", code, re.M))
        headers += includes
        body = code.replace(includes, "")
        parts.append(f"namespace // {name}\n{{\nnamespace piece{len(parts)}\n{{\n"
                     f"{around[0]}{body}{around[1]}}}\n}}\n")
    unknown += [f"{name}: there is no '{line}' any more" for name, line in left]
    return f"{headers}#include <QtWidgets>\n#include <cstring>\n\n" + "\n".join(parts), unknown


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    target, compiler = sys.argv[1:]
    text, unknown = source()
    if unknown:
        sys.exit("\n".join(unknown))
    Path(target).write_text(text, encoding="utf-8")
    flags = subprocess.run(["pkg-config", "--cflags", "Qt5Widgets"], check=True, text=True,
                           capture_output=True).stdout.split()
    sys.exit(subprocess.run([compiler, "-std=c++17", "-fPIC", "-fsyntax-only", *flags,
                             f"-I{LIBRARY.parent}", target], check=False).returncode)


if __name__ == "__main__":
    main()
