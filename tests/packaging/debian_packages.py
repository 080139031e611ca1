"""Makes the Debian packages, and installs and removes them in a root of their own.

Ends with 77, which counts as skipped, where the tools are missing."""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

SKIPPED = 77
PACKAGES = {
    "liborvtlistview1": r"usr/lib/.*/libORVTListview(Core)?\.so\.1(\.0\.0)?",
    "liborvtlistview-dev": r"usr/include/ORVTListview/ORVTListview\.h",
    "orvtlistview-designer": r"usr/lib/.*/qt6/plugins/designer/.*\.so",
    "orvtlistview-tools": r"usr/bin/orvt-colour",
    "orvtlistview-workbench": r"usr/share/applications/.*\.desktop",
    "orvtlistview-doc": r"usr/share/doc/.*/html/index\.html",
}
PYTHON = {
    "python3-orvtlistview": r"usr/lib/python3/dist-packages/orvtlistview/_native\..*\.so",
}


def run(*command, **options):
    result = subprocess.run(
        [str(part) for part in command], capture_output=True, text=True, check=False, **options)
    if result.returncode != 0:
        sys.exit(f"{command}: {result.returncode}\n{result.stdout}\n{result.stderr}")
    return result.stdout


def skip_without_tools():
    for tool in ("dpkg", "dpkg-deb", "dpkg-shlibdeps", "apt-get", "lintian"):
        if not shutil.which(tool):
            print(f"Skipped: {tool} is not installed")
            sys.exit(SKIPPED)


def field(package, name):
    return run("dpkg-deb", "--field", package, name).strip()


def check_content(name, package):
    files = [line.split()[5][2:] for line in run("dpkg-deb", "--contents", package).splitlines()]
    if not any(re.fullmatch(PACKAGES[name], file) for file in files):
        sys.exit(f"{name} lacks {PACKAGES[name]}:\n" + "\n".join(files))


def check_dependencies(packages, version):
    library = f"liborvtlistview1 (= {version})"
    for name in ("liborvtlistview-dev", "orvtlistview-designer", "orvtlistview-tools",
                 "orvtlistview-workbench", *PYTHON.keys() & packages.keys()):
        if library not in field(packages[name], "Depends"):
            sys.exit(f"{name} does not depend on {library}")
    needed = {
        "liborvtlistview1": ("libqt6core6", "libqt6widgets6", "zlib1g", "libc6"),
        "orvtlistview-designer": ("libqt6core6",),
        "orvtlistview-tools": ("libqt6core6",),
        "liborvtlistview-dev": ("qt6-base-dev",),
        "python3-orvtlistview": ("python3-pyqt6", "python3-pyqt6.sip", "libqt6widgets6"),
    }
    for name, others in needed.items():
        if name not in packages:
            continue
        depends = re.split(r"[ ,(]+", field(packages[name], "Depends"))
        for other in others:
            if other not in depends:
                sys.exit(f"{name} does not depend on {other}: {depends}")


def check_rules(packages):
    """Debian's own rules; what is excepted stands with its reason in lintian-overrides."""
    found = subprocess.run(["lintian", "--fail-on", "error,warning", "--no-cfg", "--allow-root",
                            *packages.values()], capture_output=True, text=True, check=False)
    if found.returncode != 0:
        sys.exit(f"lintian:\n{found.stdout}{found.stderr}")


def installed_files(root):
    return sorted(file for file in (root / "usr").rglob("*") if not file.is_dir())


def check_installs_and_removes(packages, folder):
    root = folder / "root"
    for part in ("updates", "info", "triggers"):
        (root / "var/lib/dpkg" / part).mkdir(parents=True)
    (root / "var/lib/dpkg/status").touch()
    # Without a shell of its own there; all that the scripts do is ldconfig, which is
    # not to touch this machine.
    tools = folder / "tools"
    tools.mkdir()
    (tools / "ldconfig").symlink_to("/bin/true")
    environment = dict(os.environ, PATH=f"{tools}:{os.environ['PATH']}:/usr/sbin:/sbin")
    dpkg = ("dpkg", f"--root={root}", "--force-depends", "--force-script-chrootless",
            "--force-not-root", f"--log={folder}/dpkg.log")
    run(*dpkg, "--install", *packages.values(), env=environment)
    if not installed_files(root):
        sys.exit("Nothing was installed")
    run(*dpkg, "--purge", *packages, env=environment)
    left = installed_files(root)
    if left:
        sys.exit(f"Left after removal: {left}")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("--python", action="store_true", help="its package is made, too")
    arguments = parser.parse_args()
    if arguments.python:
        PACKAGES.update(PYTHON)
    skip_without_tools()
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        run("cpack", "-G", "DEB", "-B", folder / "packages", cwd=arguments.build)
        files = {field(file, "Package"): file for file in (folder / "packages").glob("*.deb")}
        if set(files) != set(PACKAGES):
            sys.exit(f"The packages are {sorted(files)}")
        for package, file in files.items():
            check_content(package, file)
        check_dependencies(files, arguments.version)
        # What this machine's sources can satisfy; nothing is installed.
        run("apt-get", "install", "--simulate", *files.values())
        check_rules(files)
        check_installs_and_removes(files, folder)


if __name__ == "__main__":
    main()
