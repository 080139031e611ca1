"""Runs clang-tidy over the sources as .clang-tidy configures it, and fails on a finding.

Most of its time goes into the toolkit's headers, again for every file. So files are
read together, as many as have no local name in common.
"""
import argparse
import os
import re
import subprocess
import sys
import tempfile

LOCAL_NAMESPACE = re.compile(r"^namespace \{$(.*?)^\} // namespace$", re.MULTILINE | re.DOTALL)
DECLARED = re.compile(
    r"^(?:\[\[\w+\]\] )?(?:(?:class|struct|enum(?: class)?|using) (\w+)"
    r"|[\w:][\w:<>,&* ]*[ &*](\w+)(?:\(|\{|\[| =|;))", re.MULTILINE)

def text_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def local_names(text):
    """The names that a file declares for itself alone."""
    names = set()
    for block in LOCAL_NAMESPACE.findall(text):
        names.update(name for pair in DECLARED.findall(block) for name in pair if name)
    return names


def groups(files, most):
    """The files in groups of at most `most`, without a local name twice in one."""
    found = []
    for path in files:
        names = local_names(text_of(path))
        for members, taken in found:
            if len(members) < most and not names & taken:
                members.append(path)
                taken |= names
                break
        else:
            found.append(([path], set(names)))
    return [members for members, taken in found]


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
