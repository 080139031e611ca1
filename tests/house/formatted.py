#!/usr/bin/env python3
"""Fails on sources that clang-format would change."""

import argparse
import pathlib
import subprocess
import sys

ROOMS = ("src", "apps", "bindings", "designer", "examples", "tests", "benchmarks")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root", type=pathlib.Path)
    parser.add_argument("--clang-format", required=True)
    arguments = parser.parse_args()
    sources = [path for room in ROOMS for path in sorted((arguments.root / room).rglob("*"))
               if path.suffix in (".h", ".cpp")]
    if not sources:
        sys.exit("no sources found")
    return subprocess.run([arguments.clang_format, "--dry-run", "-Werror", *sources],
                          check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
