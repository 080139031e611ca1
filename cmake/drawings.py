#!/usr/bin/env python3
"""Writes drawings as C++: drawings.py OUT.cpp DRAWING.svg...

The pictures are compiled in, so that no program needs a reader of SVG when it runs. Read
is what our drawings use: <g>, <path>, <circle>, <rect>, fill, fill-opacity, fill-rule,
stroke and stroke-width; caps and joins are round. Anything else is an error.
"""

import math
import re
import sys
from pathlib import Path
from xml.etree import ElementTree

INHERITED = ("fill", "fill-opacity", "fill-rule", "stroke", "stroke-width",
             "stroke-linecap", "stroke-linejoin")
SHAPES = {"path": {"d"}, "circle": {"cx", "cy", "r"},
          "rect": {"x", "y", "width", "height", "rx"}}
NUMBER = re.compile(r"[-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?")
WANTED = {"M": 2, "L": 2, "H": 1, "V": 1, "C": 6, "A": 7, "Z": 0}


class PathReader:
    """Turns a path into the acts M, L, C and Z with absolute places."""

    def __init__(self, text):
        self.acts = ""
        self.places = []
        self.here = (0.0, 0.0)
        self.start = (0.0, 0.0)
        for letter, numbers in re.findall(r"([A-Za-z])([^A-Za-z]*)", text):
            self.read(letter, self.numbers(letter, numbers))

    @staticmethod
    def numbers(letter, text):
        if letter.upper() == "A":  # its two flags may stand without a blank between
            one = rf"\s*,?\s*({NUMBER.pattern})"
            row = re.compile(one * 3 + r"\s*,?\s*([01])\s*,?\s*([01])" + one * 2)
            return [float(part) for match in row.finditer(text) for part in match.groups()]
        return [float(part) for part in NUMBER.findall(text)]

    def read(self, letter, numbers):
        act = letter.upper()
        if act not in WANTED:
            raise ValueError(f"path command {letter}")
        size = WANTED[act]
        if size == 0:
            self.add("Z")
            self.here = self.start
            return
        if not numbers or len(numbers) % size:
            raise ValueError(f"numbers of path command {letter}")
        for first in range(0, len(numbers), size):
            self.step("L" if act == "M" and first else act, letter.islower(),
                      numbers[first:first + size])

    def step(self, act, is_relative, numbers):
        x, y = self.here if is_relative else (0.0, 0.0)
        if act == "H":
            self.add("L", (x + numbers[0], self.here[1]))
        elif act == "V":
            self.add("L", (self.here[0], y + numbers[0]))
        elif act == "A":
            self.arc(*numbers[:5], (x + numbers[5], y + numbers[6]))
        else:
            self.add(act, *((x + numbers[i], y + numbers[i + 1])
                            for i in range(0, len(numbers), 2)))
        if act == "M":
            self.start = self.here

    def add(self, act, *places):
        self.acts += act
        self.places.extend(places)
        if places:
            self.here = places[-1]

    def arc(self, rx, ry, turn, is_large, is_swept, end):
        """An arc as curves of a quarter at most, after the SVG notes on arcs."""
        if rx != ry or turn:
            raise ValueError("an arc that is not a circle's")
        (x1, y1), (x2, y2) = self.here, end
        half = math.dist(self.here, end) / 2
        radius = max(rx, half)
        height = math.sqrt(max(radius ** 2 - half ** 2, 0)) / (2 * half)
        if bool(is_large) == bool(is_swept):
            height = -height
        middle = ((x1 + x2) / 2 - height * (y2 - y1), (y1 + y2) / 2 + height * (x2 - x1))
        first = math.atan2(y1 - middle[1], x1 - middle[0])
        sweep = math.atan2(y2 - middle[1], x2 - middle[0]) - first
        if is_swept and sweep < 0:
            sweep += 2 * math.pi
        elif not is_swept and sweep > 0:
            sweep -= 2 * math.pi
        parts = math.ceil(abs(sweep) / (math.pi / 2) - 1e-9)
        for part in range(parts):
            self.quarter(middle, radius, first + sweep * part / parts, sweep / parts)
        self.here = end

    def quarter(self, middle, radius, first, sweep):
        handle = 4 / 3 * math.tan(sweep / 4) * radius
        last = first + sweep

        def place(angle, along):
            return (middle[0] + radius * math.cos(angle) - along * math.sin(angle),
                    middle[1] + radius * math.sin(angle) + along * math.cos(angle))

        self.add("C", place(first, handle), place(last, -handle), place(last, 0))


def shape_of(kind, own):
    """The acts of a shape and its numbers; E is an ellipse in a rectangle, R a rounded one."""
    value = {name: float(text) for name, text in own.items() if name != "d"}
    if kind == "path":
        path = PathReader(own["d"])
        return path.acts, [number for place in path.places for number in place]
    if kind == "circle":
        radius = value["r"]
        return "E", [value["cx"] - radius, value["cy"] - radius, 2 * radius, 2 * radius]
    return "R", [value.get("x", 0.0), value.get("y", 0.0), value["width"], value["height"],
                 value.get("rx", 0.0)]


def colour_of(text, opacity="1"):
    if text == "none":
        return "0"
    if not re.fullmatch(r"#[0-9a-f]{6}", text):
        raise ValueError(f"colour {text}")
    return f"0x{round(float(opacity) * 255):02x}{text[1:]}"


def shapes_in(element, inherited):
    kind = element.tag.rpartition("}")[2]
    look = inherited | {name: text for name, text in element.attrib.items() if name in INHERITED}
    own = {name: text for name, text in element.attrib.items() if name not in INHERITED}
    if kind in SHAPES:
        if unknown := own.keys() - SHAPES[kind]:
            raise ValueError(f"attributes {sorted(unknown)} of <{kind}>")
        yield look, *shape_of(kind, own)
    elif kind not in ("svg", "g"):
        raise ValueError(f"<{kind}>")
    for child in element:
        yield from shapes_in(child, look)


def written(number):
    return f"{round(number, 4):g}f" if "." in f"{round(number, 4):g}" else f"{number:.0f}.0f"


def drawing_of(file):
    root = ElementTree.parse(file).getroot()
    box = [float(part) for part in root.get("viewBox").split()]
    if box[:2] != [0, 0]:
        raise ValueError("a drawing that does not begin at 0, 0")
    shapes = []
    for look, acts, numbers in shapes_in(root, {"fill": "#000000", "stroke": "none"}):
        if look["stroke"] != "none" and (look.get("stroke-linecap"),
                                         look.get("stroke-linejoin")) != ("round", "round"):
            raise ValueError("a line whose ends are not round")
        shapes.append("        {%s, %s, %s, %s, \"%s\",\n         {%s}}," % (
            colour_of(look["fill"], look.get("fill-opacity", "1")), colour_of(look["stroke"]),
            written(float(look.get("stroke-width", "1"))),
            "Qt::OddEvenFill" if look.get("fill-rule") == "evenodd" else "Qt::WindingFill",
            acts, ", ".join(map(written, numbers))))
    return "    {u\"%s\"_s, std::make_shared<PathDrawing>(QSizeF(%g, %g), QList<DrawnShape>{\n%s\n    })}," % (
        Path(file).stem, *box[2:], "\n".join(shapes))


def text_of(files):
    drawings = []
    for file in files:
        try:
            drawings.append(drawing_of(file))
        except (ValueError, KeyError, ElementTree.ParseError) as error:
            sys.exit(f"{file}: not one of our drawings: {error}")
    return """// Made from the SVG files beside it by cmake/drawings.py.
#include "widgets/look/CompiledDrawings.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

// NOLINTNEXTLINE(readability-function-size): one row for each drawing.
QHash<QString, std::shared_ptr<const Drawing>> CompiledDrawings::all()
{
    return {
%s
    };
}

} // namespace ORVTListview
""" % "\n".join("    " + line for part in drawings for line in part.split("\n"))


if __name__ == "__main__":
    Path(sys.argv[1]).write_text(text_of(sys.argv[2:]), encoding="utf-8")
