#!/usr/bin/env python3
"""How much do the tests see? Changes one thing of the code at a time (an operator, a comparison, a constant), builds
the tests in a copy of the tree and runs them: a mutant that no test notices is a survivor, and printed.

    tests/mutants.py [--count 120] [--seed 1] [--folders engine,calculators,charts,json]

Takes some ten seconds a mutant, so that it is run on demand and not with the tests. Mutants that do not compile do not
count. The copy lies in build/mutants.
"""
import argparse
import collections
import pathlib
import random
import re
import shutil
import subprocess
import sys

SWAPS = {
    " + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " += ": " -= ", " -= ": " += ",
    " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == ",
    " && ": " || ", " || ": " && ", "true": "false", "false": "true",
}
PLACES = re.compile("|".join([r" (?:[-+*/]=?|[<>]=?|[=!]=|&&|\|\|) ", r"\b(?:true|false)\b",
                              r"(?<![\w.'\"])\d+(?:\.\d+)?(?![\w.'\"])"]))
# What is no arithmetic: directives, comments, templates, the range checks of the compiler.
PASSED_OVER = re.compile(r"^\s*(#|//|template|static_assert|using|friend)|operator|constexpr auto|requires")


def mutations(path):
    """Every single change of a file as (line number, new line)."""
    for number, line in enumerate(path.read_text().splitlines()):
        code = line.split("//")[0]
        if PASSED_OVER.match(code) or '"' in code or "'" in code:
            continue
        for place in PLACES.finditer(code):
            old = place.group()
            new = SWAPS.get(old) or (str(int(old) + 1) if old.isdigit() else str(float(old) + 1) if old[0].isdigit() else None)
            if new:
                yield number, line[: place.start()] + new + line[place.end() :]


class Tree:
    """A copy of the sources with its own build of the tests."""

    def __init__(self, source, place):
        self.place, self.build = place, place / "build"
        shutil.rmtree(place / "tests", ignore_errors=True)
        for name in subprocess.run(["git", "ls-files"], cwd=source, text=True, capture_output=True, check=True).stdout.split("\n"):
            if name and (source / name).is_file():
                target = place / name
                target.parent.mkdir(parents=True, exist_ok=True)
                if not target.exists() or target.read_bytes() != (source / name).read_bytes():
                    shutil.copy2(source / name, target)
        subprocess.run(["cmake", "-S", place, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Mutants",
                        "-DCMAKE_CXX_FLAGS=-O0 -w", "-Wno-dev", "--log-level=WARNING"], check=True)
        targets = subprocess.run(["ninja", "-C", self.build, "-t", "targets", "all"], text=True, capture_output=True, check=True).stdout
        self.tests = sorted(set(re.findall(r"^(test_\w+): phony", targets, re.M)))

    def compiles(self):
        return subprocess.run(["cmake", "--build", self.build, "--target", *self.tests],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0

    def passes(self, first):
        """Runs the test programs, that of the folder first, until one fails."""
        for test in sorted(self.tests, key=lambda name: name != "test_" + first):
            try:
                done = subprocess.run([self.build / "bin" / test, "--gtest_fail_fast", "--gtest_brief=1"], cwd=self.build,
                                      stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=120)
            except subprocess.TimeoutExpired:
                return False
            if done.returncode:
                return False
        return True


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--count", type=int, default=120)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--folders", default="engine,calculators,charts,json")
    options = parser.parse_args()
    source = pathlib.Path(__file__).resolve().parent.parent
    tree = Tree(source, source / "build" / "mutants")
    if not tree.compiles() or not tree.passes(""):
        sys.exit("The tests do not pass as they are.")

    folders = [folder for folder in options.folders.split(",") if (tree.place / folder).is_dir()]
    choice = random.Random(options.seed)
    candidates = {folder: [(path, *change) for path in sorted((tree.place / folder).glob("*.[ch]*"))
                           for change in mutations(path)] for folder in folders}
    made, survivors = collections.Counter(), collections.Counter()
    while made.total() < options.count:
        folder = folders[made.total() % len(folders)]
        path, number, line = choice.choice(candidates[folder])
        text = path.read_text()
        lines = text.splitlines()
        was, lines[number] = lines[number], line
        path.write_text("\n".join(lines) + "\n")
        if tree.compiles():
            made[folder] += 1
            if tree.passes(folder):
                survivors[folder] += 1
                print(f"{path.relative_to(tree.place)}:{number + 1}\n  - {was.strip()}\n  + {line.strip()}", flush=True)
        path.write_text(text)
    for folder in folders:
        print(f"{folder}: {survivors[folder]} of {made[folder]} survived")
    print(f"{survivors.total()} of {made.total()} mutants survived")


if __name__ == "__main__":
    main()
