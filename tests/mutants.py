#!/usr/bin/env python3
"""How much do the tests see? Changes one thing of the code at a time (an operator, a comparison, a constant) in a copy
of the tree, builds the tests of that layer and runs them: a mutant that no test notices is a survivor, and printed.

    tests/mutants.py [--count 120] [--seed 1] [--folders engine,calculators,charts,json] [--source .] [--place build/mutants]

Takes some twenty seconds a mutant, so that it is run on demand and not with the tests. Mutants that do not compile do
not count, nor those that a warning refuses, nor those of which the optimiser makes the same program, byte for byte.
docs/mutants.md has the last run, and why what survived it did.
"""
import argparse
import collections
import pathlib
import random
import re
import resource
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
# The tests that may notice a change of a folder, the quickest first.
TESTS = {"engine": "rows engine calculators component", "calculators": "rows calculators component hosts",
         "charts": "charts json hosts", "json": "json rows hosts component"}
# And what else may: the files that the program makes, and what draws its charts.
PROGRAMS = ["amortix2", "amortix2_documents", "amortix2_com_files", "gif_samples"]
OTHERS = {"charts": "made_files|browser[.]|decode_gifs"}


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


def limits():
    """A mutant that never ends, or takes all memory, is one that was noticed."""
    resource.setrlimit(resource.RLIMIT_CPU, (60, 60))
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))


class Tree:
    """A copy of the sources with its own build of the tests."""

    def __init__(self, source, place):
        self.place, self.build, self.optimised = place, place / "build", place / "optimised"
        shutil.rmtree(place / "tests", ignore_errors=True)
        for name in subprocess.run(["git", "ls-files"], cwd=source, text=True, capture_output=True, check=True).stdout.split("\n"):
            if name and (source / name).is_file():
                target = place / name
                target.parent.mkdir(parents=True, exist_ok=True)
                if not target.exists() or target.read_bytes() != (source / name).read_bytes():
                    shutil.copy(source / name, target)
        for folder, flags in ((self.build, ["-DCMAKE_CXX_FLAGS=-O0", "-DCMAKE_COMPILE_WARNING_AS_ERROR=ON"]),
                              (self.optimised, ["-DCMAKE_CXX_FLAGS=-O2", "-DAMORTIX2_TESTS=OFF"])):
            subprocess.run(["cmake", "-S", place, "-B", folder, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Mutants", *flags,
                            "-Wno-dev", "--log-level=WARNING"], check=True)
        targets = subprocess.run(["ninja", "-C", self.build, "-t", "targets", "all"], text=True, capture_output=True, check=True).stdout
        self.tests = set(re.findall(r"^test_(\w+): phony", targets, re.M))

    def builds(self, target):
        return subprocess.run(["cmake", "--build", self.build, "--target", target],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0

    def noticed(self, folder):
        """Whether a test of the folder fails; None where the folder does not compile."""
        if not self.builds("amortix2_" + folder) and not self.builds(folder):
            return None
        for test in TESTS[folder].split():
            if test not in self.tests:
                continue
            if not self.builds("test_" + test):
                return None
            run = subprocess.run([self.build / "bin" / ("test_" + test), "--gtest_fail_fast", "--gtest_brief=1"], cwd=self.build,
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=1200, preexec_fn=limits)
            if run.returncode:
                return True
        if not all(self.builds(program) for program in PROGRAMS):
            return None
        others = ["ctest", "--test-dir", self.build, "-R", OTHERS.get(folder, "made_files")]
        return subprocess.run(others, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode != 0

    def program(self):
        """The whole program, as the optimiser makes it."""
        subprocess.run(["cmake", "--build", self.optimised, "--target", "amortix2"], stdout=subprocess.DEVNULL, check=True)
        return (self.optimised / "bin" / "amortix2").read_bytes()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--count", type=int, default=120)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--folders", default="engine,calculators,charts,json")
    own = pathlib.Path(__file__).resolve().parent.parent
    parser.add_argument("--source", type=pathlib.Path, default=own)
    parser.add_argument("--place", type=pathlib.Path, default=own / "build" / "mutants")
    options = parser.parse_args()
    tree = Tree(options.source.resolve(), options.place.resolve())
    folders = [folder for folder in options.folders.split(",") if (tree.place / folder).is_dir()]
    for folder in folders:
        if tree.noticed(folder) is not False:
            sys.exit(f"The tests of {folder} do not pass as they are.")

    program = tree.program()
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
        noticed = tree.noticed(folder)
        if noticed is False and tree.program() == program:
            noticed = None
        path.write_text(text)
        if noticed is not None:
            made[folder] += 1
        if noticed is False:
            survivors[folder] += 1
            print(f"{path.relative_to(tree.place)}:{number + 1}\n  - {was.strip()}\n  + {line.strip()}", flush=True)
    for folder in folders:
        print(f"{folder}: {survivors[folder]} of {made[folder]} survived")
    print(f"{survivors.total()} of {made.total()} mutants survived")


if __name__ == "__main__":
    main()
