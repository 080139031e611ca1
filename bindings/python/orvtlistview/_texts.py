"""What help() shows of members: made of what the tables tell."""

from ._types import arguments, result, written


def _facts(member):
    lines = []
    if "unit" in member:
        lines.append(f"Unit: {member['unit']}.")
    if "range" in member:
        lines.append(f"Range: {member['range']}.")
    if "failures" in member:
        lines.append(f"Raises Error: {', '.join(map(str, member['failures']))}.")
    if "changed" in member:
        lines.append(f"Changes are told by {member['changed']}.")
    return lines


def _event(member):
    texts = []
    for each in member["arguments"]:
        kind = written(each["type"])
        texts.append(f"{each['name']}: {kind if each['direction'] == 'in' else f'Reference[{kind}]'}")
    return f"{member['name']}({', '.join(texts)})"


def text(member):
    """A signature, and below it what else is known."""
    if member["kind"] == "property":
        head = f"{member['name']}: {written(member['type'])}"
    elif member["kind"] == "method":
        head = f"{member['name']}({arguments(member)}) -> {result(member)}"
    else:
        head = f"{_event(member)}\n\nEvent {member['number']}."
    return "\n\n".join([head, *_facts(member)])
