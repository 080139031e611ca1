#!/usr/bin/env python3
"""Makes of a published header what the reference is made from.

    comments.py [--members members.json] HEADER
    comments.py PAGE.md   leaves out where pictures are

The headers say things once: a comment stands over all that it tells of, down to the next
blank line, and a property's over its getter. Here each member gets the comment that tells
of it, and what the table of members knows: number, directions, units, range, failures,
default and signal. What is private or the toolkit's is left out.
"""

import argparse
import json
import pathlib
import re
import sys

CLASS = re.compile(r"^\s*(?:class|struct)\s+(?:ORVT_\w+\s+)?(\w+)[^;]*$")
ACCESS = re.compile(r"^\s*(public|protected|private|Q_SIGNALS)\s*:\s*$")
SECTION = re.compile(r"^\s*// --- .* ---$")
COMMENT = re.compile(r"^\s*//( |$)")
MACRO = re.compile(r"^\s*Q_(OBJECT|GADGET|ENUM|DISABLE|MOC_INCLUDE|NAMESPACE|DECLARE)")
PROPERTY = re.compile(r"^\s*Q_PROPERTY\((?P<type>[^()]*?[ *])(?P<name>\w+)\s+(?P<rest>.*)\)\s*$")
NAME = re.compile(r"(~?\w+|operator\W+)\s*\(")
# Doxygen finds pictures by their names alone.
PICTURE = re.compile(r"(!\[[^\]]*\]\()(?:\.\./)*(?:docs/)?pictures/")
# What the toolkit describes.
INHERITED = re.compile(r"\boverride\b")
OWN_OVERRIDES = ("Members", "ReadProperty", "WriteProperty", "Count", "Item", "Find", "what",
                 "ChangeTime", "GetTexts", "DisplayFont")
ERRORS = {5: "InvalidCall", 6: "Overflow", 9: "SubscriptOutOfRange", 13: "TypeMismatch",
          91: "ObjectNotSet"}
# The tables of what is declared in a base or a template.
SHARED = {
    "InputComponent": ("ORVListView", "ORVTreeview", "ORVDataCombo", "ORVRichText"),
    "ViewElement": ("ListItem", "ColumnHeader", "Node"),
    "ViewCollection": ("ListItems", "ColumnHeaders", "Nodes"),
    "KeyedCollection": ("KeyedCollection<QString>", "KeyedCollection<qint32>"),
}


class Tables:
    def __init__(self, path):
        classes = json.loads(pathlib.Path(path).read_text(encoding="utf-8"))["classes"] if path else []
        self.classes = {each["name"]: each["members"] for each in classes}

    def found(self, name, member, kinds):
        """(class, entry) of each table that has the member of a class."""
        for owner in SHARED.get(name, (name,)):
            for entry in self.classes.get(owner, ()):
                if entry["name"] == member and entry["kind"] in kinds:
                    yield owner, entry

    def facts(self, name, member, kinds):
        found = list(self.found(name, member, kinds))
        if not found:
            return []
        entry = found[0][1]
        lines = []
        if entry["kind"] == "event":
            alone = len(found) == 1 and name not in SHARED
            lines.append("Event " + (str(entry["number"]) if alone else ", ".join(
                f"{each['number']} of {owner}" for owner, each in found)))
        lines += [f"{each['name']} goes {'back' if each['direction'] == 'out' else 'both ways'}"
                  for each in entry.get("arguments", ()) if each["direction"] != "in"]
        if entry.get("put") and not entry.get("get"):
            lines.append("A property that can only be set")
        if "unit" in entry:
            lines.append(f"Unit: {entry['unit']}")
        if "range" in entry:
            lines.append(f"Range: {entry['range']}")
        if entry.get("default") is not None:
            lines.append(f"At first: {json.dumps(entry['default'])}")
        if "changed" in entry:
            lines.append(f"Told by: {entry['changed']}")
        if "failures" in entry:
            lines.append("Raises: " + ", ".join(
                f"{ERRORS[number]} ({number})" for number in entry["failures"]))
        return lines


def known_phrase(name, owner, declaration):
    """What needs no comment in a header."""
    if name == owner:
        return f"A new {owner}; a parent owns it." if "parent" in declaration else f"A new {owner}."
    if name == f"~{owner}":
        return "Ends it, and all that is its own."
    if name == "Members":
        return "Every property, method and event of the class."
    if name in ("sizeHint", "minimumSizeHint"):
        return "The size that a layout asks for."
    if "operator==" in declaration:
        return "Whether all fields are equal."
    if name.endswith("Changed"):
        return f"The property {name.removesuffix('Changed')} has another value."
    return None


def text_of(comment):
    """Without what would be a command to Doxygen."""
    return re.sub(r"([\\\\@<>#&])", r"\\\1", comment.strip().removeprefix("//").strip())


class Header:
    def __init__(self, text, tables):
        self.lines = text.splitlines()
        self.tables = tables
        self.out = []
        self.comment = []  # that of the members which follow
        self.members = []  # (class, name) of each that hosts can call or hear of
        self.owner = []  # the classes around, outermost first: (name, access, depth)
        self.depth = 0
        self.getters = self.comments_of_getters()

    def comments_of_getters(self):
        """By class and name, the comment that tells of a function."""
        found, comment, owner, was_comment = {}, [], None, False
        for line in self.lines:
            is_comment = bool(COMMENT.match(line)) and not SECTION.match(line)
            if CLASS.match(line):
                owner = CLASS.match(line)[1]
            if not line.strip() or is_comment and not was_comment:
                comment = []
            if is_comment:
                comment.append(text_of(line))
            elif comment and NAME.search(line) and "Q_PROPERTY" not in line:
                found.setdefault((owner, NAME.search(line)[1]), list(comment))
            was_comment = is_comment
        return found

    def filtered(self):
        index = 0
        while index < len(self.lines):
            index = self.take(index)
        return "\n".join(self.out) + "\n"

    def hidden(self):
        return bool(self.owner) and self.owner[-1][1] in ("private", "protected")

    def take(self, index):
        line = self.lines[index]
        if not line.strip():
            self.comment = []
            self.out.append("")
            return index + 1
        if SECTION.match(line):
            return index + 1
        if COMMENT.match(line):
            if index and not COMMENT.match(self.lines[index - 1]):
                self.comment = []
            self.comment.append(text_of(line))
            return index + 1
        access = ACCESS.match(line)
        if access and self.owner:
            name, _, depth = self.owner[-1]
            self.owner[-1] = (name, access[1], depth)
            if not self.hidden():
                self.out.append(line)
            self.comment = []
            return index + 1
        return self.take_declaration(index)

    def take_declaration(self, index):
        """A whole declaration: to the end of its brackets, or to the brace of a class."""
        first = index
        if re.match(r"^\s*template\b", self.lines[index]) and ">" in self.lines[index]:
            index += 1
        text = self.lines[index]
        opening = CLASS.match(text)
        if opening and not text.rstrip().endswith("}"):
            while "{" not in self.lines[index]:
                index += 1
            return self.open_class(first, index, opening[1], text)
        while self.unfinished("\n".join(self.lines[first:index + 1])):
            index += 1
        self.put_declaration(self.lines[first:index + 1])
        return index + 1

    @staticmethod
    def unfinished(text):
        plain = re.sub(r'//[^\n]*|"(?:\\.|[^"])*"', "", text)
        if plain.lstrip().startswith("#") or re.match(r"^\s*(namespace|QT_|}|extern \"C)", plain):
            return False
        if re.match(r"^\s*Q_\w+", plain):
            return plain.count("(") > plain.count(")")
        return plain.count("(") > plain.count(")") or plain.count("{") > plain.count("}") or \
            not re.search(r"[;}:]\s*$", plain)

    def open_class(self, first, last, name, text):
        is_hidden = self.hidden()
        if not is_hidden:
            self.out += [f"/// {line}" for line in self.comment]
            self.out += self.lines[first:last + 1]
        access = "private" if re.match(r"^\s*class", text) and not is_hidden else \
            self.owner[-1][1] if is_hidden else "public"
        self.owner.append((name, "start" if access == "private" and not is_hidden else access,
                           is_hidden))
        self.comment = []
        return last + 1

    def put_declaration(self, lines):
        text = " ".join(line.strip() for line in lines)
        if re.match(r"^\};?$", text) and self.owner:
            _, _, was_hidden = self.owner.pop()
            if not was_hidden:
                self.out += lines
            self.comment = []
            return
        if re.match(r"^(#|namespace\b|\}|extern\b|friend\b|using\b|class \w+;|struct \w+;"
                    r"|template <.*> (class|struct) \w+;|QT_)", text) and not text.startswith("using "):
            if not text.startswith("friend"):
                self.out += lines
            elif "operator==" in text and not self.hidden():
                pass
            self.comment = [] if text.startswith(("#", "namespace")) else self.comment
            return
        is_outside = not self.owner and text.startswith("template") and "::" in text.split("(")[0]
        if self.hidden() or is_outside or MACRO.match(text):
            return
        if text.startswith("Q_PROPERTY"):
            return self.put_property(text)
        if text.startswith("using ") and "::" in text and "=" not in text:
            return
        self.put_member(lines, text)

    def put_property(self, text):
        match = PROPERTY.match(text)
        if " MEMBER " in text or not match:
            return
        owner = self.owner[-1][0]
        getter = re.search(r"\bREAD (\w+)", match["rest"])
        name = match["name"]
        if name == "enabled" and owner != "QWidget":
            comment = ["As Enabled; the form's own name of it."]
        else:
            comment = self.getters.get((owner, getter[1])) or [f"See {getter[1]}()."]
        self.put_comment(comment, self.tables.facts(owner, name, ("property",)), "    ")
        self.out.append(f"    Q_PROPERTY({match['type']}{name} {match['rest']})")

    def put_member(self, lines, text):
        owner, access, _ = self.owner[-1] if self.owner else ("", "public", False)
        name = NAME.search(re.sub(r"^template <[^;]*?> (?=\w)", "", text))
        name = name[1] if name else ""
        if name and owner and not text.startswith("using"):
            self.members.append((owner, name))
        if INHERITED.search(text) and not self.comment and name not in OWN_OVERRIDES \
                and not name.startswith("~") and not known_phrase(name, owner, text):
            return
        trailing = re.search(r"[;,}]\s*//( .*)$", lines[0]) if len(lines) == 1 else None
        phrase = known_phrase(name, owner, text)
        comment = self.comment or ([phrase] if phrase else [])
        if trailing and not (self.comment and "(" in text.split("//")[0]):
            comment = [text_of(trailing[1])]
        kinds = ("event",) if access == "Q_SIGNALS" else ("method", "property")
        read = name.removeprefix("set")
        facts = self.tables.facts(owner, name, kinds) or \
            self.tables.facts(owner, read, ("property",)) or \
            self.tables.facts(owner, read[:1].lower() + read[1:], ("property",))
        indent = re.match(r"\s*", lines[0])[0]
        self.put_comment(comment, facts if owner else [], indent)
        self.out += [re.sub(r"\s*//.*$", "", line) if not self.is_enumeration(text) else
                     re.sub(r"// ", "///< ", line) for line in lines]

    @staticmethod
    def is_enumeration(text):
        return re.match(r"^enum\b", text) is not None

    def put_comment(self, comment, facts, indent):
        self.out += [f"{indent}/// {line}" for line in comment]
        if facts:
            self.out.append(f"{indent}/// @par Facts")
            self.out += [f"{indent}/// - {fact}" for fact in facts]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--members")
    parser.add_argument("header")
    arguments = parser.parse_args()
    text = pathlib.Path(arguments.header).read_text(encoding="utf-8")
    if arguments.header.endswith(".md"):
        # Nor does it read code in headings.
        text = re.sub(r"^#+ .*$", lambda heading: heading[0].replace("`", ""), text,
                      flags=re.MULTILINE)
        return sys.stdout.write(PICTURE.sub(r"\1", text))
    return sys.stdout.write(Header(text, Tables(arguments.members)).filtered())


if __name__ == "__main__":
    main()
