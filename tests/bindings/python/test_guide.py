"""Every block of Python in the documents runs, each on its own, one behind the other where
they go on."""

import re

import pytest
from conftest import SOURCE
from PyQt6.QtWidgets import QApplication

BLOCK = re.compile(r"^```python\n(.*?)^```", re.MULTILINE | re.DOTALL)
PAGES = [SOURCE / "README.md", *sorted((SOURCE / "docs").rglob("*.md"))]
BLOCKS = [(page.relative_to(SOURCE), BLOCK.findall(page.read_text(encoding="utf-8")))
          for page in PAGES]
WITH_BLOCKS = [(str(page), blocks) for page, blocks in BLOCKS if blocks]


def test_the_guide_has_its_page():
    assert "docs/guide/python.md" in dict(WITH_BLOCKS)


@pytest.mark.parametrize("page, blocks", WITH_BLOCKS, ids=lambda each: str(each)[:40])
def test_blocks_run(page, blocks, monkeypatch):
    monkeypatch.setattr(QApplication, "exec", lambda *arguments: 0)
    names = {"__name__": page}
    for number, block in enumerate(blocks, start=1):
        exec(compile(block, f"{page}, block {number}", "exec"), names)
        QApplication.processEvents()
