#!/usr/bin/env python3
"""Writes the workbench's icons into the code: from the drawings in icons/ it makes
src/ui/look/IconPaths.cpp, so that the program needs no reader of SVG. --check only compares.

A drawing has paths (absolute M, L, H, V, C, Q, A, Z), circles and rectangles, either filled or
stroked, in the color of texts or of what acts. A file's name is that of its enumerator."""

import math
import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

HERE = Path(__file__).resolve().parent
TARGET = HERE.parent / "src/ui/look/IconPaths.cpp"
INKS = {"#1b2128": "Text", "#1560b8": "Accent"}
KINDS = {"tools": "Icon", "symbols": "Symbol"}
CIRCLE = "M{l} {y}A{r} {r} 0 1 1 {h} {y}A{r} {r} 0 1 1 {l} {y}Z"
RECTANGLE = ("M{a} {t}H{b}A{r} {r} 0 0 1 {e} {c}V{d}A{r} {r} 0 0 1 {b} {f}"
             "H{a}A{r} {r} 0 0 1 {l} {d}V{c}A{r} {r} 0 0 1 {a} {t}Z")
HEAD = """\
// Shapes of the icons. Made by artwork/icons.py from artwork/icons.
#include "ui/look/IconPaths.h"

#include <array>

namespace tarvelin {

namespace {

// clang-format off
"""


def arc(start, radius, large, sweep, end):
    """The control points of the cubic curves that draw an arc of a circle, as points."""
    (x0, y0), (x1, y1) = start, end
    chord = math.hypot(x1 - x0, y1 - y0)
    radius = max(radius, chord / 2)
    height = math.sqrt(max(0, radius**2 - chord**2 / 4)) * (-1 if large == sweep else 1)
    cx = (x0 + x1) / 2 - height * (y1 - y0) / chord
    cy = (y0 + y1) / 2 + height * (x1 - x0) / chord
    begin, until = math.atan2(y0 - cy, x0 - cx), math.atan2(y1 - cy, x1 - cx)
    angle = (until - begin) % math.tau if sweep else -((begin - until) % math.tau)
    pieces = max(1, math.ceil(abs(angle) / (math.pi / 2) - 1e-6))
    step = angle / pieces
    handle = radius * 4 / 3 * math.tan(step / 4)
    points = []
    for i in range(pieces):
        a, b = begin + i * step, begin + (i + 1) * step
        points.append(((cx + radius * math.cos(a) - handle * math.sin(a),
                        cy + radius * math.sin(a) + handle * math.cos(a)),
                       (cx + radius * math.cos(b) + handle * math.sin(b),
                        cy + radius * math.sin(b) - handle * math.cos(b)),
                       (cx + radius * math.cos(b), cy + radius * math.sin(b))))
    return points


def commands(data):
    """A path's data in moves, lines, cubic curves and closings alone."""
    out = []

    def add(verb, *points):
        out.append(verb + "".join(f" {round(v, 3) + 0.0:g}" for point in points for v in point))
        return points[-1]

    if not re.fullmatch(r"[MLHVCQAZ0-9 .-]*", data):
        raise ValueError(f"not understood: {data}")
    here = start = (0.0, 0.0)
    for verb, rest in re.findall(r"([A-Z])([^A-Z]*)", data):
        n = [float(number) for number in rest.split()]
        match verb:
            case "M":
                here = start = add("M", (n[0], n[1]))
            case "L":
                here = add("L", (n[0], n[1]))
            case "H":
                here = add("L", (n[0], here[1]))
            case "V":
                here = add("L", (here[0], n[0]))
            case "C":
                here = add("C", (n[0], n[1]), (n[2], n[3]), (n[4], n[5]))
            case "Q":
                end = (n[2], n[3])
                first, second = (tuple(p + 2 / 3 * (q - p) for p, q in zip(point, n[:2]))
                                 for point in (here, end))
                here = add("C", first, second, end)
            case "A":
                if n[0] != n[1]:
                    raise ValueError(f"not a circle: {data}")
                for points in arc(here, n[0], n[3] == 1, n[4] == 1, (n[5], n[6])):
                    here = add("C", *points)
            case "Z":
                out.append("Z")
                here = start
    return " ".join(out)


def path_data(element):
    get = lambda name: float(element.get(name))
    match element.tag.split("}")[1]:
        case "path":
            return element.get("d")
        case "circle":
            x, y, r = get("cx"), get("cy"), get("r")
            return CIRCLE.format(l=x - r, h=x + r, y=y, r=r)
        case "rect":
            x, y, r = get("x"), get("y"), get("rx")
            right, bottom = x + get("width"), y + get("height")
            return RECTANGLE.format(a=x + r, b=right - r, c=y + r, d=bottom - r, l=x, t=y,
                                    e=right, f=bottom, r=r)
    raise ValueError(f"not understood: {element.tag}")


def shapes(file):
    """Rows of the table: ink, width of the pen or 0 if filled, commands."""
    root = ElementTree.parse(file).getroot()
    for element in root:
        ink = INKS[element.get("fill") or element.get("stroke")]
        width = 0 if element.get("fill") else element.get("stroke-width", root.get("stroke-width"))
        yield f'    Shape{{Ink::{ink}, {width}, "{commands(path_data(element))}"}},'


def source():
    tables, functions = [], []
    for folder, kind in KINDS.items():
        cases = []
        for file in sorted((HERE / "icons" / folder).glob("*.svg")):
            name = "".join(word.capitalize() for word in file.stem.split("_"))
            table = f"k{name}{kind}"
            tables += [f"constexpr std::array {table}{{", *shapes(file), "};"]
            cases += [f"        case {kind}::{name}:", f"            return {table};"]
        size = [f"        case {kind}::Size:", "            break;"]
        argument = kind.lower()
        functions += ["", f"std::span<const Shape> ShapesOf({kind} {argument}) {{",
                      f"    switch ({argument}) {{", *cases, *size, "    }", "    return {};", "}"]
    return (HEAD + "\n".join(tables) + "\n// clang-format on\n\n}  // namespace\n" +
            "\n".join(functions) + "\n\n}  // namespace tarvelin\n")


if sys.argv[1:] == ["--check"]:
    if TARGET.read_text(encoding="utf-8") != source():
        sys.exit(f"{TARGET.name} is not what artwork/icons.py writes: run it")
else:
    TARGET.write_text(source(), encoding="utf-8")
