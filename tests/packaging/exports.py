#!/usr/bin/env python3
"""What leaves the libraries: what a published header declares, and what the house
marks for its own libraries and programs and they need. Nothing else."""

import argparse
import pathlib
import re
import subprocess
import sys

# A class, or a function or variable, behind its export macro.
EXPORTED = re.compile(r"\bORVT_(CORE_|HOUSE_)?EXPORT\b\)?\s*(?:static\s+)?([^;{(=]*)")
GADGET = re.compile(r"\b(?:class|struct)\s+(\w+)[^;{]*\{\s*Q_GADGET_EXPORT")
SYMBOL = re.compile(r"(?:[\w ]+ (?:for|to) )?ORVTListview::((?:\w+::)*~?\w+)")


def names_in(header):
    """The classes, functions and variables that a header lets out."""
    text = re.sub(r"//[^\n]*|^#define[^\n]*", "", header.read_text(), flags=re.MULTILINE)
    names = set(GADGET.findall(text))
    if "Q_NAMESPACE_EXPORT" in text:
        names.add("staticMetaObject")
    for _, declaration in EXPORTED.findall(text):
        plain = re.sub(r"<[^;]*>", "", declaration.split(" : ")[0])
        words = re.findall(r"\w+", plain)
        words = [word for word in words if word != "final"]
        if words:
            names.add(words[-1])
    return names


def exported_names(headers):
    return set().union(*map(names_in, headers)) if headers else set()


def symbols(program, kind):
    """(demangled name) of the dynamic symbols of a program or library."""
    run = lambda *command, **options: subprocess.run(
        command, check=True, capture_output=True, text=True, **options).stdout
    lines = run("nm", "-D", kind, program).splitlines()
    # Weak ones are the compiler's: inline functions and templates.
    lines = [line for line in lines if line.split()[-2] in "TDBRUV"]
    mangled = "\n".join(line.split()[-1].split("@")[0] for line in lines)
    return run("c++filt", input=mangled).splitlines()


def parts_of(symbol):
    """Every name on the way to a symbol: its namespaces, classes and itself."""
    match = SYMBOL.match(symbol)
    return match[1].split("::") if match else []


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--source", type=pathlib.Path, required=True)
    arguments.add_argument("--libraries", nargs="+", required=True)
    arguments.add_argument("--users", nargs="+", required=True)
    options = arguments.parse_args()

    headers = sorted(options.source.rglob("*.h"))
    published = exported_names([h for h in headers if "published" in h.parts])
    house = exported_names([h for h in headers if "published" not in h.parts])
    needed = set()
    for user in options.users:
        for symbol in symbols(user, "--undefined-only"):
            needed.update(parts_of(symbol))

    faults = [f"marked for export, needed by nobody: {name}" for name in sorted(house - needed)]
    for library in options.libraries:
        mine = [s for s in symbols(library, "--defined-only") if parts_of(s)]
        of_hosts = [s for s in mine if published.intersection(parts_of(s))]
        of_house = [s for s in mine if s not in of_hosts and house.intersection(parts_of(s))]
        faults += [f"leaves {pathlib.Path(library).name} though no header says so: {s}"
                   for s in mine if s not in of_hosts and s not in of_house]
        print(f"{pathlib.Path(library).name}: {len(of_hosts)} for hosts, "
              f"{len(of_house)} for the house")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
