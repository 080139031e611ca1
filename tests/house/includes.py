#!/usr/bin/env python3
"""A file that uses what the developers' builds precompile includes it, itself or by
a header of the house: the other builds have nothing precompiled."""

import argparse
import pathlib
import re
import sys

INCLUDE = re.compile(r'^#include (?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)
NOISE = re.compile(r'//[^\n]*|/\*.*?\*/|R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"', re.DOTALL)
FORWARD = re.compile(r"^\s*(?:class|struct) \w+;", re.MULTILINE)

# They come with any header of the toolkit, or with each other.
EVERYWHERE = {"QApplication", "QGuiApplication", "QList", "QObject", "QString",
              "QStringList", "QVariant"}


def precompiled(cmake):
    return set(re.findall(r"<Qt\w+/(\w+)>", cmake.read_text()))


class Tree:
    def __init__(self, roots, published):
        self.roots = roots
        self.published = published  # by name: <ORVTListview/Name.h>
        self.seen = {}

    def find(self, name, beside):
        for folder in (beside, *self.roots):
            if (folder / name).is_file():
                return folder / name
        return None

    def includes(self, path):
        """Every toolkit header that a file gets by the house's own includes."""
        path = path.resolve()
        if path in self.seen:
            return self.seen[path]
        found = self.seen[path] = set()
        for own, system in INCLUDE.findall(path.read_text()):
            if own:
                header = self.find(own, path.parent)
            else:
                header = self.published.get(system)
                found.add(system.split("/")[-1])
            if header:
                found |= self.includes(header)
        return found


def used(path, names):
    text = FORWARD.sub("", NOISE.sub("", path.read_text()))
    text = re.sub(r"#include[^\n]*", "", text)
    # By pointer or reference a declaration is enough, until it is followed.
    needs = re.compile(r"\b(Q\w+)\b(?!\s*(?:const\s*)?[*&])")
    found = {name for name in needs.findall(text) if name in names}
    for name, variable in re.findall(r"\b(Q\w+)\s*(?:const\s*)?[*&]\s*(\w+)", text):
        if name in names and re.search(rf"\b{variable}(?:->|\.)", text):
            found.add(name)
    return found


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("source", type=pathlib.Path)
    options = arguments.parse_args()
    top = options.source
    names = precompiled(top / "cmake/PrecompiledHeaders.cmake") - EVERYWHERE
    published = {f"ORVTListview/{h.name}": h for h in (top / "src").rglob("published/*.h")}
    tree = Tree([top / "src", top / "apps", top / "tests", top / "benchmarks"], published)
    faults = 0
    for room in ("src", "apps", "bindings", "designer", "benchmarks", "examples", "tests"):
        for path in sorted((top / room).rglob("*.cpp")):
            missing = used(path, names) - tree.includes(path)
            for name in sorted(missing):
                print(f"{path.relative_to(top)}: uses {name}, includes it nowhere")
                faults += 1
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
