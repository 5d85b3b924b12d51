#!/usr/bin/python3
"""Changes one thing in a source of the library at a time, and looks whether a test notices.

Works on a copy of the tree in build/mutate, never on the files that it was started beside.  A
change is noticed when a test fails, crashes or hangs, twice in a row: first the tests of the class
itself, then all that are labelled "library".  A change that does not compile is not counted, and
another is drawn.
"""

import argparse
import difflib
import fcntl
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import time
from collections import Counter
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import sites  # noqa: E402

ROOT = Path(__file__).resolve().parents[2]
LIBRARY = "src/libs/orvanecontrols"
ACCEPTED = "tests/mutation/accepted.txt"
LEAST_NOTICED = 95
DEFAULT_SEED = 1
DEFAULT_COUNT = 100
CORES = str(os.cpu_count() or 1)
# A test that runs for so many seconds hangs.
TEST_TIMEOUT = 60
# A source with more users than that is left to the whole suite.
MOST_USERS = 6


class Failure(Exception):
    """Something that ends the run, with what to do about it."""


def run(command, folder, log=None):
    """Runs a command with all that it starts, which ends with this program."""
    with subprocess.Popen(command, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, errors="replace",
                          start_new_session=True) as process:
        try:
            output = process.communicate()[0]
        except BaseException:
            os.killpg(process.pid, signal.SIGKILL)
            raise
    if log:
        log.write_text(output, encoding="utf-8")
    return subprocess.CompletedProcess(command, process.returncode, output)


def library_texts(root):
    """The sources that can be changed: a mapping of paths to texts."""
    paths = (path for path in (root / LIBRARY).rglob("*") if path.suffix in (".cpp", ".h", ".ui"))
    return {str(path.relative_to(root)): path.read_text(encoding="utf-8") for path in paths}


class Copy:
    """The copy of the tree, its build and its tests."""

    def __init__(self, folder):
        self.root = folder / "tree"
        self.build_folder = self.root / "build/mutate"
        self.log = folder / "last.log"
        self.green = folder / "green"
        self.changed = folder / "changed"
        self.tests = []

    def refresh(self):
        """Makes the copy equal to the tree; what is equal already keeps its time."""
        listed = run(["git", "ls-files", "-z", "-co", "--exclude-standard"], ROOT).stdout
        wanted = {name for name in listed.split("\0") if name and (ROOT / name).is_file()}
        changed = False
        if self.changed.is_file():
            # A run was cut short: what it had changed is written and built again.
            (self.root / self.changed.read_text(encoding="utf-8")).unlink(missing_ok=True)
            self.changed.unlink()
        for path in self.root.rglob("*"):
            name = str(path.relative_to(self.root))
            if path.is_file() and not name.startswith("build/") and name not in wanted:
                path.unlink()
                changed = True
        for name in wanted:
            target = self.root / name
            if target.is_file() and target.read_bytes() == (ROOT / name).read_bytes():
                continue
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(ROOT / name, target)
            shutil.copymode(ROOT / name, target)
            changed = True
        if changed:
            self.green.unlink(missing_ok=True)

    def prepare(self):
        """Builds everything and sees the tests pass without any change."""
        self.refresh()
        if not (self.build_folder / "build.ninja").is_file():
            if run(["cmake", "--preset", "mutate"], self.root, self.log).returncode != 0:
                raise Failure(f"CMake could not configure the copy; see {self.log}")
        if not self.build(["orvane_library_tests"]):
            raise Failure(f"the unchanged tree does not build; see {self.log}")
        listed = run(["ctest", "--preset", "mutate", "--show-only=json-v1"], self.root).stdout
        self.tests = [test["name"] for test in json.loads(listed)["tests"]]
        if not self.green.is_file():
            if self.failed_test([]):
                raise Failure(f"the unchanged tests do not pass; see {self.log}, and ./dev test")
            self.green.touch()

    def build(self, targets):
        command = ["cmake", "--build", str(self.build_folder), "--parallel", CORES, "--target",
                   *targets]
        return run(command, self.root, self.log).returncode == 0

    def failed_test(self, options):
        """Runs tests until one fails twice, and returns its name; None if all pass."""
        command = ["ctest", "--preset", "mutate", "--timeout", str(TEST_TIMEOUT), "--repeat",
                   "until-pass:2", "--stop-on-failure", *options]
        result = run(command, self.root, self.log)
        if result.returncode == 0:
            return None
        failed = re.findall(r"^\s*\d+ - (\w+) \(", result.stdout, re.M)
        if not failed:
            raise Failure(f"ctest ran no test; see {self.log}")
        return failed[-1]

    def own_tests(self, path):
        """The tests of the class whose source that is; for what has none, those of its users."""
        stem = Path(path).stem
        stems = {Path(name).stem for name in library_texts(self.root)}
        own = {test for test in self.tests
               if test.startswith("tst_" + stem) and test[4:] not in stems - {stem}}
        if own:
            return own
        include = re.compile(rf'^#include "(?:internal/)?{stem}\.h"', re.M)
        users = {Path(name).stem for name, text in library_texts(self.root).items()
                 if Path(name).stem != stem and include.search(text)}
        used = {"tst_" + user for user in users} & set(self.tests)
        return used if len(used) <= MOST_USERS else set()

    def try_mutation(self, mutation):
        """Who notices the change: "compiler", the name of a test, or None."""
        path = self.root / mutation.path
        original = path.read_text(encoding="utf-8")
        own = sorted(self.own_tests(mutation.path))
        self.changed.write_text(mutation.path, encoding="utf-8")
        path.write_text(mutation.apply(original), encoding="utf-8")
        try:
            if not self.build(["orvanecontrols", *own]):
                return "compiler"
            names = "^({})$".format("|".join(own))
            failed = self.failed_test(["-R", names]) if own else None
            if failed:
                return failed
            if not self.build(["orvane_library_tests"]):
                return "compiler"
            return self.failed_test((["-E", names] if own else []) + ["-j", CORES])
        finally:
            path.write_text(original, encoding="utf-8")
            self.changed.unlink()


def read_accepted(texts):
    """The keys of the changes that nobody can notice; complains about those that cannot be made."""
    blocks = re.split(r"\n\s*\n", (ROOT / ACCEPTED).read_text(encoding="utf-8"))
    accepted = set()
    for block in blocks:
        lines = [line for line in block.splitlines() if line and not line.startswith("#")]
        if not lines:
            continue
        if len(lines) < 4 or not lines[1].startswith("- ") or not lines[2].startswith("+"):
            raise Failure(f"{ACCEPTED}: an entry is a path, a line with '- ', a line with '+ ' and "
                          f"a reason, not:\n{block}")
        key = (lines[0], lines[1][2:].strip(), lines[2][1:].strip())
        text = texts.get(key[0], "")
        if all(mutation.key(text) != key for mutation in sites.mutations_of(key[0], text)):
            raise Failure(f"{ACCEPTED}: this change cannot be made any more; correct or remove "
                          f"it:\n{block}")
        accepted.add(key)
    return accepted


def diff_of(mutation, text):
    name = mutation.path
    return "\n".join(difflib.unified_diff(text.splitlines(), mutation.apply(text).splitlines(),
                                          name, name, n=1, lineterm=""))


def drawn(arguments, texts):
    """The changes to try, in their order."""
    if arguments.again:
        try:
            keys = json.loads(report_path("survivors.json").read_text(encoding="utf-8"))
        except FileNotFoundError:
            raise Failure("there is no earlier run, whose survivors could be tried again") from None
        keys = {tuple(key) for key in keys}
        found = {mutation.key(text): mutation for path, text in texts.items()
                 for mutation in sites.mutations_of(path, text) if mutation.key(text) in keys}
        return list(found.values())
    if arguments.classes:
        wanted = {name.lower() for name in arguments.classes}
        texts = {path: text for path, text in texts.items() if Path(path).stem in wanted}
        missing = wanted - {Path(path).stem for path in texts}
        if missing:
            raise Failure(f"the library has no source for {', '.join(sorted(missing))}")
    return sites.sample(texts, random.Random(arguments.seed))


def report_path(name):
    return ROOT / "build/mutate" / name


def mutate(arguments):
    """Tries the changes; returns whether enough of them were noticed."""
    texts = library_texts(ROOT)
    accepted = read_accepted(texts)
    candidates = [mutation for mutation in drawn(arguments, texts)
                  if mutation.key(texts[mutation.path]) not in accepted]
    count = len(candidates) if arguments.again else min(arguments.count, len(candidates))
    copy = Copy(report_path(""))
    print("mutate: building a copy of the tree and running its tests unchanged", flush=True)
    copy.prepare()

    begin = time.monotonic()
    survivors = []
    noticed = Counter()
    for mutation in candidates:
        tried = len(survivors) + noticed["own"] + noticed["suite"]
        if tried == count:
            break
        text = texts[mutation.path]
        who = copy.try_mutation(mutation)
        if who == "compiler":
            noticed["compiler"] += 1
            continue
        place = f"{mutation.path}:{mutation.line(text)}"
        print(f"{tried + 1}/{count} {place}: {mutation.kind}: "
              f"{'noticed by ' + who if who else 'NOT NOTICED'}", flush=True)
        if who:
            noticed["own" if who in copy.own_tests(mutation.path) else "suite"] += 1
        else:
            survivors.append(mutation)
            print(diff_of(mutation, text), flush=True)
    seconds = time.monotonic() - begin
    copy.build(["orvanecontrols"])

    keys = [mutation.key(texts[mutation.path]) for mutation in survivors]
    report_path("survivors.json").write_text(json.dumps(keys), encoding="utf-8")
    return summarise(arguments, noticed, survivors, seconds)


def summarise(arguments, noticed, survivors, seconds):
    found = noticed["own"] + noticed["suite"]
    total = found + len(survivors)
    if total == 0:
        raise Failure("there was no change to try")
    percent = 100 * found / total
    drawn_by = "the last survivors" if arguments.again else f"seed {arguments.seed}"
    print(f"mutate: {drawn_by}: {found} of {total} changes noticed, {percent:.1f} % "
          f"({noticed['own']} by the class's own tests, {noticed['suite']} by others; "
          f"{noticed['compiler']} did not compile); {seconds / total:.1f} s each")
    return percent >= LEAST_NOTICED


def main():
    parser = argparse.ArgumentParser(prog="./dev mutate", description=__doc__.split("\n")[0])
    parser.add_argument("--seed", type=int, default=DEFAULT_SEED,
                        help=f"of the sample, {DEFAULT_SEED} by default")
    parser.add_argument("--count", type=int, default=DEFAULT_COUNT,
                        help=f"of changes to try, {DEFAULT_COUNT} by default")
    parser.add_argument("--class", dest="classes", action="append", metavar="NAME",
                        help="change this class alone, or this file of internal/; may be repeated")
    parser.add_argument("--again", action="store_true",
                        help="try what the last run left unnoticed")
    arguments = parser.parse_args()
    for number in (signal.SIGINT, signal.SIGTERM):
        signal.signal(number, lambda *_: sys.exit("mutate: interrupted"))
    report_path("").mkdir(parents=True, exist_ok=True)
    try:
        with report_path("lock").open("w", encoding="utf-8") as lock:
            try:
                fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
            except BlockingIOError:
                raise Failure("another run uses build/mutate; wait for it to end") from None
            return 0 if mutate(arguments) else 1
    except Failure as failure:
        print(f"mutate: {failure}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
