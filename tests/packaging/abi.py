"""Compares what a library exports to hosts with what the release did.

A symbol that is gone or means something else fails; new ones may come. After a
release that breaks hosts on purpose (a new first number of the version), write the
kept text anew with --write.
"""
import argparse
import os
import shutil
import subprocess
import sys
import tempfile

SKIPPED = 77


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, check=False)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("--library", "--kept", "--suppressions"):
        parser.add_argument(name, required=True)
    parser.add_argument("--write", action="store_true")
    arguments = parser.parse_args()
    for tool in ("abidw", "abidiff", "objcopy"):
        if not shutil.which(tool):
            print(f"Skipped: {tool} is not installed")
            return SKIPPED
    with tempfile.TemporaryDirectory() as folder:
        # Symbols alone: what the debugging data say of types differs from build to build.
        bare = os.path.join(folder, os.path.basename(arguments.library))
        subprocess.run(("objcopy", "--strip-debug", arguments.library, bare), check=True)
        if arguments.write:
            return run("abidw", "--no-corpus-path", "--no-elf-needed", "--suppressions",
                       arguments.suppressions, "--out-file", arguments.kept, bare).returncode
        result = run("abidiff", "--no-added-syms", "--suppressions", arguments.suppressions,
                     arguments.kept, bare)
    print(result.stdout, result.stderr)
    return 1 if result.returncode else 0


if __name__ == "__main__":
    sys.exit(main())
