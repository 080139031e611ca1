"""Compiles, as far as that goes without a library to link with, what only Windows builds,
and every published header on its own, by a compiler for Windows and strictly.

    windows_sources.py --compiler COMPILER [--includes FOLDERS] FILE..."""

import argparse
import os
import pathlib
import subprocess
import sys
import tempfile

FLAGS = ["-std=c++20", "-fsyntax-only", "-DORVT_VERSION=\"\"", "-Wall", "-Wextra", "-Wshadow", "-Wconversion", "-Werror",
         "-DQT_NO_KEYWORDS", "-DQT_NO_CAST_FROM_ASCII", "-DQT_NO_CAST_TO_ASCII",
         "-DQT_NO_CAST_FROM_BYTEARRAY", "-DQT_NO_URL_CAST_FROM_STRING",
         "-DQT_GUI_LIB", "-DQT_WIDGETS_LIB"]
STRICT = ["-Wpedantic"] # no extension of one compiler


def folders(includes):
    """The toolkit's own headers, which are this system's, may warn. Named, the C library's
    folder would come before the compiler's own."""
    flags = []
    for folder in dict.fromkeys(filter(None, includes.split(";"))):
        if folder != "/usr/include":
            flags += ["-isystem" if "/qt6" in folder else "-I", folder]
    return flags


def failed(compiler, flags, path):
    done = subprocess.run([compiler, *FLAGS, *flags, path], check=False, text=True,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT)
    if done.returncode:
        print(path, done.stdout, sep="\n")
    return done.returncode != 0


def all_headers(names):
    with tempfile.NamedTemporaryFile("w", suffix=".cpp", delete=False) as file:
        file.writelines(f"#include <ORVTListview/{name}>\n" for name in names)
    return file.name


def flags_for_meta_objects(paths, folder):
    """What the toolkit would write of a file, and the file includes, is empty here."""
    for path in paths:
        (folder / pathlib.Path(path).with_suffix(".moc").name).touch()
    return ["-I", str(folder)]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--includes", default="", help="folders, separated by semicolons")
    parser.add_argument("--headers", default="", help="published ones, likewise")
    parser.add_argument("files", nargs="+")
    arguments = parser.parse_args()
    flags = folders(arguments.includes)
    with tempfile.TemporaryDirectory() as folder:
        own = flags + flags_for_meta_objects(arguments.files, pathlib.Path(folder))
        # With no reduction: each file is looked at, whatever the one before said.
        results = [failed(arguments.compiler, own, path) for path in arguments.files]
    headers = all_headers(filter(None, arguments.headers.split(";")))
    results.append(failed(arguments.compiler, [*flags, *STRICT], headers))
    os.remove(headers)
    print(f"{len(results)} were compiled")
    return any(results)


if __name__ == "__main__":
    sys.exit(main())
