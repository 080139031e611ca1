"""Writes each C++ block of the given documents to a source file of its own.

A block without a main function is put into one, behind the includes that it shows, or
those that the guide's first page tells of when it shows none. Prints the files, one a line.
"""

import argparse
import pathlib
import re

BLOCK = re.compile(r"^```cpp\n(.*?)^```", re.MULTILINE | re.DOTALL)

INCLUDES = """#include <ORVTListview/ORVTListview.h>
#include <QtWidgets>
"""

PIECE = """{includes}
{application}
using namespace ORVTListview;

int main(int argc, char **argv)
{{
    QApplication application(argc, argv);
{body}
    return application.exec();
}}
"""


def program(block):
    if "int main(" in block:
        return block
    own = "".join(re.findall(r"^#include [^\n]*\n", block, re.MULTILINE))
    body = re.sub(r"^#include [^\n]*\n", "", block, flags=re.MULTILINE)
    return PIECE.format(includes=own or INCLUDES, body=body,
                        application="#include <QtWidgets/QApplication>\n" if own else "")


def write_if_changed(path, text):
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--out", type=pathlib.Path, required=True)
    parser.add_argument("documents", type=pathlib.Path, nargs="+")
    arguments = parser.parse_args()
    arguments.out.mkdir(parents=True, exist_ok=True)
    for document in arguments.documents:
        blocks = BLOCK.findall(document.read_text(encoding="utf-8"))
        for number, block in enumerate(blocks, start=1):
            path = arguments.out / f"{document.stem}_{number}.cpp"
            write_if_changed(path, program(block))
            print(path)


if __name__ == "__main__":
    main()
