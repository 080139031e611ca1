#!/usr/bin/env python3
"""Holds the includes of a source tree to its floors.

    floors.py SOURCES            fails on an include that breaks the order
    floors.py SOURCES --circles  and on units that reach themselves again
    floors.py SOURCES --page P   and on a page that draws other floors
    floors.py SOURCES --figures  prints how many units there are, and in circles
"""

import argparse
import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]', re.MULTILINE)
PUBLISHED = "ORVTListview/"
CORE_ROOM = re.compile(r"^(base|members|rtf|shared)(/|$)|(^|/)rules(/|$)")
WIDGET = re.compile(r"Q(tWidgets|tGui|tSvg)/|QWidget")


class House:
    def __init__(self, sources):
        self.root = pathlib.Path(sources)
        self.floors = []  # lists of rooms, the lowest first
        self.core_floors = set()
        for line in (self.root / "floors.txt").read_text().splitlines():
            kind, *rooms = line.split("#")[0].split() or [None]
            if kind is None:
                continue
            if kind == "core":
                self.core_floors.add(len(self.floors))
            self.floors.append(rooms)
        self.floor_of = {room: n for n, rooms in enumerate(self.floors) for room in rooms}
        self.texts = {}
        for path in sorted(self.root.rglob("*")):
            if path.suffix in (".h", ".cpp") and path.parent != self.root:
                self.texts[path.relative_to(self.root).as_posix()] = path.read_text()
        self.published = {pathlib.PurePosixPath(name).name: name
                          for name in self.texts if "/published/" in name}

    def room(self, name):
        return name.rsplit("/", 1)[0].removesuffix("/published")

    def unit(self, name):
        return f"{self.room(name)}/{pathlib.PurePosixPath(name).stem}"

    def target(self, include):
        """The file of the house that an include names; None for all others."""
        if include.startswith(PUBLISHED):
            return self.published.get(include.removeprefix(PUBLISHED))
        return include if include in self.texts else None

    def includes(self, name):
        return INCLUDE.findall(self.texts[name])


def room_faults(house):
    for name in house.texts:
        room = house.room(name)
        if room not in house.floor_of:
            yield f"{name}: no floor has the room {room}"
        elif bool(CORE_ROOM.search(room)) != (house.floor_of[room] in house.core_floors):
            yield f"{name}: its path and its floor tell different libraries"


def include_faults(house):
    for name in house.texts:
        room = house.room(name)
        floor = house.floor_of.get(room)
        for include in house.includes(name):
            if floor in house.core_floors and WIDGET.match(include):
                yield f"{name}: a widget in the core: {include}"
            if not include.startswith(("Q", PUBLISHED)) and "/" not in include \
                    and pathlib.PurePosixPath(include).suffix == ".h" \
                    and (house.root / name).parent.joinpath(include).exists():
                yield f"{name}: {include} without its room"
            target = house.target(include)
            if target is None or floor is None:
                continue
            other = house.room(target)
            if other == room or other not in house.floor_of:
                continue
            if house.floor_of[other] > floor:
                yield f"{name}: goes up to {target}"
            elif house.floor_of[other] == floor:
                yield f"{name}: goes sideways to {target}"
            if "/published/" in name and "/published/" not in target:
                yield f"{name}: published, needs the house's own {target}"


def circles(house):
    """The units that reach themselves again, in groups (Tarjan)."""
    reached = {}
    for name in house.texts:
        targets = {house.unit(target) for target in map(house.target, house.includes(name))
                   if target}
        unit = house.unit(name)
        reached.setdefault(unit, set()).update(targets - {unit})
    index, low, stack, groups = {}, {}, [], []

    def visit(unit):
        index[unit] = low[unit] = len(index)
        stack.append(unit)
        for other in sorted(reached.get(unit, ())):
            if other not in index:
                visit(other)
                low[unit] = min(low[unit], low[other])
            elif other in stack:
                low[unit] = min(low[unit], index[other])
        if low[unit] == index[unit]:
            group = [stack.pop()]
            while group[-1] != unit:
                group.append(stack.pop())
            if len(group) > 1:
                groups.append(sorted(group))

    for unit in sorted(reached):
        if unit not in index:
            visit(unit)
    return len(reached), groups


def page_faults(house, page):
    text = pathlib.Path(page).read_text()
    drawn = re.search(r"<!-- floors -->\n+```\n(.*?)```", text, re.DOTALL)
    if not drawn:
        yield f"{page}: has no picture of the floors"
        return
    wanted = [line for line in (house.root / "floors.txt").read_text().splitlines()
              if line and not line.startswith("#")]
    if drawn.group(1).splitlines() != wanted[::-1]:
        yield f"{page}: draws other floors than floors.txt, top floor first"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("sources")
    parser.add_argument("--circles", action="store_true")
    parser.add_argument("--page")
    parser.add_argument("--figures", action="store_true")
    arguments = parser.parse_args()
    sys.setrecursionlimit(10000)
    house = House(arguments.sources)
    count, groups = circles(house)
    if arguments.figures:
        print(f"{count} units, {sum(map(len, groups))} of them in {len(groups)} circles")
    faults = [*room_faults(house), *include_faults(house)]
    if arguments.circles:
        faults += [f"a circle of units: {', '.join(group)}" for group in groups]
    if arguments.page:
        faults += page_faults(house, arguments.page)
    for fault in sorted(set(faults)):
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
