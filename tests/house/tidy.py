"""Runs clang-tidy over the sources as .clang-tidy configures it, and fails on a finding.

Files are read together, as many as have no local name in common.
"""
import argparse
import os
import re
import subprocess
import sys
import tempfile

sys.path.append(os.path.join(os.path.dirname(__file__), "../../tools"))
from together import groups # pylint: disable=wrong-import-position


def flags_of(includes, defines, root):
    own, others = [], []
    for folder in dict.fromkeys(filter(None, includes.split(";"))):
        if folder == "/usr/include": # named, it would come before the compiler's own
            continue
        (own if os.path.realpath(folder).startswith(root + os.sep) else others).append(folder)
    return ["-std=c++20", "-fPIC", *(f"-D{name}" for name in defines.split(";") if name), *(f"-I{folder}" for folder in own),
            *(part for folder in others for part in ("-isystem", folder))]


def check(tidy, flags, root, members, folder, number):
    path = os.path.join(folder, f"together_{number}.cpp")
    with open(path, "w", encoding="utf-8") as file:
        file.writelines(f'#include "{member}" // NOLINT\n' for member in members)
    command = [tidy, "--quiet", f"--config-file={root}/.clang-tidy",
               f"--header-filter={re.escape(root)}/(src|apps)/", "--warnings-as-errors=*", path,
               "--", *flags]
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    return done.returncode, done.stdout, done.stderr


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--clang-tidy", default="clang-tidy")
    parser.add_argument("--most", type=int, default=100, help="files that are read together")
    parser.add_argument("--includes", required=True, help="folders, separated by semicolons")
    parser.add_argument("--defines", default="", help="for the compiler, likewise")
    parser.add_argument("root")
    parser.add_argument("files", nargs="+")
    arguments = parser.parse_args()
    root = os.path.realpath(arguments.root)
    together = groups([os.path.realpath(path) for path in arguments.files], arguments.most)
    flags = flags_of(arguments.includes, arguments.defines, root)
    failed = False
    with tempfile.TemporaryDirectory() as folder:
        for number, members in enumerate(together):
            code, output, errors = check(arguments.clang_tidy, flags, root, members, folder, number)
            if code:
                failed = True
                print(output, errors)
    return failed


if __name__ == "__main__":
    sys.exit(main())
