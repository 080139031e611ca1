"""Every link in the documents leads somewhere, and every decision has its form.

Relative links and anchors count, and pages that comments of the sources name.

Prints what is wrong, one fault a line, and fails if there is any.
"""

import argparse
import pathlib
import re
import subprocess
import sys

FENCED = re.compile(r"^(```|~~~).*?^\1", re.MULTILINE | re.DOTALL)
INLINE_CODE = re.compile(r"`[^`\n]*`")
LINK = re.compile(r"\[[^\]]*\]\(([^)\s]+)\)")
HEADING = re.compile(r"^(#+) +(.+?) *$", re.MULTILINE)
ENTRY = re.compile(r"^## (.+)\n((?:(?!## ).*\n?)*)", re.MULTILINE)
PAGE_IN_COMMENT = re.compile(r"\bdocs/[\w./-]+\.md\b")
NOT_IN_ANCHORS = re.compile(r"[^\w\- ]")


def tracked_files(root, *endings):
    command = ["git", "-C", str(root), "ls-files", "-z"]
    try:
        listed = subprocess.run(command, capture_output=True, check=True, text=True).stdout
        files = [root / name for name in listed.split("\0") if name]
    except (OSError, subprocess.CalledProcessError):  # not a checkout
        files = [file for file in root.rglob("*")
                 if file.relative_to(root).parts[0] not in ("build", ".git")]
    return [file for file in files if file.suffix in endings and file.exists()]


def text_of(page):
    return FENCED.sub("", page.read_text(encoding="utf-8"))


def anchor(title):
    return NOT_IN_ANCHORS.sub("", title.lower()).replace(" ", "-")


def anchors(page):
    found = {}
    for _, title in HEADING.findall(text_of(page)):
        name = anchor(title)
        found[name] = found.get(name, -1) + 1
    return {name if number == 0 else f"{name}-{number}"
            for name, last in found.items() for number in range(last + 1)}


def links(page):
    """Each relative target as the file and the anchor that it names."""
    for target in LINK.findall(INLINE_CODE.sub("``", text_of(page))):
        if re.match(r"[a-z][a-z0-9+.-]*:", target):
            continue
        path, _, name = target.partition("#")
        yield target, (page.parent / path).resolve() if path else page.resolve(), name


def broken_links(pages):
    for page in pages:
        for target, file, name in links(page):
            if not file.exists():
                yield page, f"no file for {target}"
            elif name and name not in anchors(file):
                yield page, f"no heading for {target}"


def missing_pages(root, sources):
    for source in sources:
        for name in PAGE_IN_COMMENT.findall(source.read_text(encoding="utf-8")):
            if not (root / name).exists():
                yield source, f"no file {name}"


def unlisted_decisions(folder):
    index = folder / "README.md"
    listed = {(file, name) for _, file, name in links(index)}
    subjects = sorted(folder.glob("*.md"))
    for page in subjects:
        if page == index:
            continue
        for title, body in ENTRY.findall(text_of(page)):
            if (page.resolve(), anchor(title)) not in listed:
                yield page, f"not in the index: {title}"
            for part in ("What", "Why"):
                if not re.search(rf"^{part}: \S", body, re.MULTILINE):
                    yield page, f"no {part}: {title}"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root", type=pathlib.Path)
    root = parser.parse_args().root.resolve()
    pages = tracked_files(root, ".md")
    decisions = root / "docs" / "decisions"
    if not pages or not (decisions / "README.md").exists():
        sys.exit(f"no documents below {root}")
    faults = [*broken_links(pages), *unlisted_decisions(decisions),
              *missing_pages(root, tracked_files(root, ".h", ".cpp"))]
    for page, fault in faults:
        print(f"{page.relative_to(root)}: {fault}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
