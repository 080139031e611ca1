"""Installs into an empty prefix, moves the prefix elsewhere, and builds and runs the
examples from there, as a host would that knows nothing but the prefix."""

import argparse
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

EXAMPLES = ("minimal", "whole", "latebound", "form")
WITHOUT_CMAKE = ("minimal", "whole", "latebound")


def run(*command, **options):
    result = subprocess.run(
        [str(part) for part in command], capture_output=True, text=True, check=False, **options)
    if result.returncode != 0:
        sys.exit(f"{command}: {result.returncode}\n{result.stdout}\n{result.stderr}")
    return result.stdout


def only(folder, pattern):
    found = sorted(folder.rglob(pattern))
    if len(found) != 1:
        sys.exit(f"{pattern} is there {len(found)} times below {folder}")
    return found[0]


def check_no_path_is_written_down(prefix, former_paths):
    """Files that hosts read may name nothing of where they were built."""
    for pattern in ("*.cmake", "*.pc", "*.h"):
        for file in prefix.rglob(pattern):
            text = file.read_text(encoding="utf-8")
            for path in former_paths:
                if str(path) in text:
                    sys.exit(f"{file} names {path}")


def host_environment(prefix):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
    environment["HOME"] = str(prefix.parent)
    environment.pop("LD_LIBRARY_PATH", None)
    return environment


def run_host(program, environment, expected):
    """The host says what it did; a warning makes it fail."""
    output = run(program, env=environment, timeout=60)
    if output != expected.read_text(encoding="utf-8"):
        sys.exit(f"{program} says:\n{output}\nexpected, from {expected}:\n"
                 + expected.read_text(encoding="utf-8"))


def build_with_cmake(example, prefix, quit_soon, environment):
    build = example / "build"
    run("cmake", "-G", "Ninja", "-S", example, "-B", build,
        f"-DCMAKE_PREFIX_PATH={prefix}", f"-DCMAKE_CXX_STANDARD_LIBRARIES={quit_soon}",
        "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror", env=environment)
    cache = (build / "CMakeCache.txt").read_text(encoding="utf-8")
    if f"ORVTListview_DIR:PATH={prefix}" not in cache:
        sys.exit(f"{example} was built against another package")
    run("cmake", "--build", build, env=environment)
    return build / example.name


def build_with_pkg_config(example, prefix, quit_soon, environment):
    folder = only(prefix, "ORVTListview.pc").parent
    flags = run("pkg-config", "--cflags", "--libs", "ORVTListview",
                env=dict(environment, PKG_CONFIG_PATH=str(folder))).split()
    program = example / "with-pkg-config"
    run("c++", example / "main.cpp", quit_soon, "-o", program, *flags,
        f"-Wl,-rpath,{folder.parent}", env=environment)
    return program


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--source", type=pathlib.Path, required=True)
    parser.add_argument("--quit-soon", type=pathlib.Path, required=True)
    parser.add_argument("--expected", type=pathlib.Path, required=True)
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        first = pathlib.Path(folder) / "first"
        prefix = pathlib.Path(folder) / "moved" / "elsewhere"
        prefix.parent.mkdir()
        run("cmake", "--install", arguments.build, "--prefix", first)
        shutil.move(first, prefix)
        check_no_path_is_written_down(prefix, (first, arguments.build, arguments.source))

        members = json.loads(only(prefix / "share/orvtlistview", "members.json").read_text())
        if not members["classes"]:
            sys.exit("members.json tells of no class")

        environment = host_environment(prefix)
        hosts = pathlib.Path(folder) / "hosts"
        shutil.copytree(only(prefix, "examples"), hosts)
        for name in EXAMPLES:
            program = build_with_cmake(hosts / name, prefix, arguments.quit_soon, environment)
            run_host(program, environment, arguments.expected / f"{name}.txt")
        shutil.copytree(pathlib.Path(__file__).parent / "core", hosts / "core")
        program = build_with_cmake(hosts / "core", prefix, "", environment)
        run_host(program, environment, arguments.expected / "core.txt")
        for name in WITHOUT_CMAKE:
            program = build_with_pkg_config(hosts / name, prefix, arguments.quit_soon, environment)
            run_host(program, environment, arguments.expected / f"{name}.txt")


if __name__ == "__main__":
    main()
