"""Compares the published types, as the debug data have them, with the release's.

A class has its size, its bases, its fields and the virtual functions that it adds; where one of them
moves, comes or goes, what hosts have built no longer fits. New classes and new values
of an enumeration may come. After a release that breaks hosts on purpose (a new first
number of the version), write the kept text anew with --write.

The libraries themselves need no types in their debug data: --probe writes a source that
names every published type, and a small library is built of it.
"""
import argparse
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

SKIPPED = 77
OWN = "ORVTListview"
# What a class hides behind a pointer may have any name.
OWNED_PART = re.compile(rf"std::unique_ptr<({OWN}::[\w:]+), std::default_delete<\1> *>")
DEFINITION = re.compile(r"^(?:class|struct|enum class|enum) (?:ORVT_\w+ )?(\w+)(?: final)?(?: :.*)?\n\{"
                        r"|^enum(?: class)? (\w+)[^;\n]*\{", re.MULTILINE)


def names_in(header):
    with open(header, encoding="utf-8") as file:
        text = re.sub(r"^template <.*>\n.*", "", file.read(), flags=re.MULTILINE)
    return [one or other for one, other in DEFINITION.findall(text)]


def write_probe(path, headers):
    names = sorted({name for header in headers for name in names_in(header)})
    lines = [f"#include <{OWN}/{OWN}.h>\n", f"using namespace {OWN};\n"]
    lines += [f"void probe(const {OWN}::{name} *) {{}}\n" for name in names]
    with open(path, "w", encoding="utf-8") as file:
        file.writelines(lines)


class Types:
    def __init__(self, root):
        self.elements = {}
        self.names = {}
        self.enter(root, "")

    def enter(self, element, scope):
        name = element.get("name")
        inner = scope
        if element.tag in ("namespace-decl", "class-decl", "union-decl") and name:
            inner = f"{scope}{name}::"
        if element.get("id") and element.get("is-declaration-only") != "yes" or \
                element.get("id") not in self.elements:
            self.elements[element.get("id")] = element
            self.names[element.get("id")] = scope + (name or "")
        for child in element:
            self.enter(child, inner)

    def name(self, number):
        element = self.elements[number]
        below = element.get("type-id")
        if element.tag == "pointer-type-def":
            return self.pointed_to(below) + "*"
        if element.tag == "reference-type-def":
            return self.pointed_to(below) + ("&" if element.get("kind") == "lvalue" else "&&")
        if element.tag == "qualified-type-def":
            return self.name(below) + "".join(
                " " + word for word in ("const", "volatile") if element.get(word) == "yes")
        if element.tag == "array-type-def":
            return f"{self.name(below)}[{element.get('size-in-bits')} bits]"
        if element.tag == "function-type":
            passed = ", ".join(self.name(each.get("type-id")) for each in element.findall("parameter"))
            return f"{self.name(element.find('return').get('type-id'))}({passed})"
        return self.names[number]

    # What hosts see no definition of may have any name.
    def pointed_to(self, number):
        is_hidden = self.elements[number].get("is-declaration-only") == "yes"
        return "hidden" if is_hidden else self.name(number)

    def class_lines(self, element):
        yield f"size {element.get('size-in-bits')}"
        for base in element.findall("base-class"):
            yield f"base {self.name(base.get('type-id'))} at {base.get('layout-offset-in-bits')}"
        for field in element.findall("data-member"):
            variable = field.find("var-decl")
            name = variable.get("name") if field.get("access") == "public" else "of its own"
            held = self.name(variable.get("type-id"))
            if name == "of its own":
                held = OWNED_PART.sub("std::unique_ptr<hidden>", held)
            if field.get("static") != "yes":
                yield f"field {name} at {field.get('layout-offset-in-bits')}: {held}"
        inherited = self.last_inherited(element)
        for offset, name in sorted(self.virtuals(element)):
            if offset > inherited:  # what reimplements another takes the place of that one
                yield f"virtual {offset} {name}"

    @staticmethod
    def virtuals(element):
        return [(int(member.get("vtable-offset")), member.find("function-decl").get("mangled-name"))
                for member in element.findall("member-function") if member.get("vtable-offset")]

    def last_inherited(self, element):
        bases = [self.elements[base.get("type-id")] for base in element.findall("base-class")]
        places = [offset for base in bases for offset, _ in self.virtuals(base)]
        return max(places + [self.last_inherited(base) for base in bases], default=-2)

    def published(self):
        for number, element in self.elements.items():
            name = self.names[number]
            is_published = "published" in element.get("filepath", "").split("/")
            if not name.startswith(OWN + "::") or not is_published:
                continue
            if element.tag == "enum-decl":
                yield "enum " + name, [f"{value.get('name')} = {value.get('value')}"
                                       for value in element.findall("enumerator")]
            elif element.tag == "class-decl" and element.get("is-declaration-only") != "yes":
                yield "class " + name, list(self.class_lines(element))


def types_of(library):
    told = subprocess.run(("abidw", "--no-corpus-path", "--no-elf-needed", library),
                          capture_output=True, text=True, check=True)
    return dict(sorted(Types(ElementTree.fromstring(told.stdout)).published()))


def text_of(types):
    return "".join(heading + "\n" + "".join(f"    {line}\n" for line in lines)
                   for heading, lines in types.items())


def read(path):
    types = {}
    with open(path, encoding="utf-8") as file:
        for line in file.read().splitlines():
            if line.startswith(" "):
                types[heading].append(line.strip())
            else:
                heading = line
                types[heading] = []
    return types


def differences(kept, present):
    for heading, lines in kept.items():
        now = present.get(heading)
        if now is None:
            yield f"{heading} is gone"
            continue
        yield from (f"{heading}: no longer {line}" for line in lines if line not in now)
        if heading.startswith("class"):
            yield from (f"{heading}: now {line}" for line in now if line not in lines)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--probe", help="the source to write")
    parser.add_argument("--headers", nargs="+", default=[])
    parser.add_argument("--library")
    parser.add_argument("--kept")
    parser.add_argument("--write", action="store_true")
    arguments = parser.parse_args()
    if arguments.probe:
        return write_probe(arguments.probe, arguments.headers)
    if not shutil.which("abidw"):
        print("Skipped: abidw is not installed")
        return SKIPPED
    types = types_of(arguments.library)
    if arguments.write:
        with open(arguments.kept, "w", encoding="utf-8") as file:
            file.write(text_of(types))
        return 0
    found = list(differences(read(arguments.kept), types))
    print("\n".join(found) or f"{len(types)} types as they were")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
