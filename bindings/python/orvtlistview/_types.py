"""How Python writes the types of the library, for documentation and for type checkers."""

import keyword
import re

PLAIN = {
    "bool": "bool",
    "qint16": "int",
    "qint32": "int",
    "float": "float",
    "double": "float",
    "QString": "str",
    "QStringList": "list[str]",
    "QVariant": "Any",
    "QVariantList": "list[Any]",
    "QColor": "QtGui.QColor",
    "QIcon": "QtGui.QIcon",
    "QMenu*": "QtWidgets.QMenu",
    "QObject*": "QtCore.QObject | None",
    "QUndoStack*": "QtGui.QUndoStack | None",
    "QWidget*": "QtWidgets.QWidget | None",
    "Qt::Alignment": "QtCore.Qt.AlignmentFlag",
}
HELD = {"KeyedCollection<QString>": "KeyedTexts", "KeyedCollection<qint32>": "KeyedNumbers"}


def class_name(name):
    """A class's name in Python, by its name in C++."""
    return HELD.get(name, name)


def field_name(name):
    """A record's field in Python, where some words are taken."""
    return f"{name}_" if keyword.iskeyword(name) else name


def written(name):
    """A type as it is written in Python; "None" for no type."""
    if not name:
        return "None"
    if name in PLAIN:
        return PLAIN[name]
    if name in HELD:
        return HELD[name]
    if listed := re.fullmatch(r"QList<(.*)>", name):
        return f"list[{written(listed[1])}]"
    if mapped := re.fullmatch(r"Q(?:Hash|Map)<QString,(.*)>", name):
        return f"dict[str, {written(mapped[1])}]"
    if name.endswith("*"):
        return f"{name[:-1]} | None"
    return name.replace("::", ".")


def argument(entry):
    """An argument of a method as a signature has it."""
    text = f"{entry['name']}: {written(entry['type'])}"
    if "default" in entry or entry["direction"] != "in":
        text += " = ..."
    return text


def arguments(entry):
    """All of a method; those that come back may be left out where only such follow."""
    texts = [argument(each) for each in entry["arguments"]]
    leaves_out = True
    for index in range(len(texts) - 1, -1, -1):
        leaves_out = leaves_out and texts[index].endswith(" = ...")
        if not leaves_out:
            texts[index] = texts[index].removesuffix(" = ...")
    return ", ".join(texts)


def result(entry):
    """What a method returns: its result, then the arguments that come back."""
    back = [written(each["type"]) for each in entry["arguments"] if each["direction"] != "in"]
    if entry["result"]:
        back.insert(0, written(entry["result"]))
    if len(back) > 1:
        return f"tuple[{', '.join(back)}]"
    return back[0] if back else "None"
