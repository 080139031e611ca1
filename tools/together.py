"""Which files can be read together, by a compiler or a checker, as if they were one.

Most of the time of both goes into the toolkit's headers, again for every file. Files
without a local name in common can share them.
"""
import re
import sys

LOCAL_NAMESPACE = re.compile(r"^namespace \{$(.*?)^\} // namespace$", re.MULTILINE | re.DOTALL)
DECLARED = re.compile(
    r"^(?:\[\[\w+\]\] )?(?:(?:class|struct|enum(?: class)?|using) (?!class |namespace )(\w+)"
    r"|[\w:][\w:<>,&* ]*[ &*](\w+)(?:\(|\{|\[| =|;))", re.MULTILINE)
PROGRAM = re.compile(r"^int main\(", re.MULTILINE)
WORD = re.compile(r"\w+")


def text_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def local_names(text):
    """The names that a file declares for itself alone."""
    names = {"main"} if PROGRAM.search(text) else set()
    for block in LOCAL_NAMESPACE.findall(text):
        names.update(name for pair in DECLARED.findall(block) for name in pair if name)
    return names


def groups(files, most):
    """The files in groups of at most `most`. No local name of one is a word of another:
    it would be declared twice, or hide and be hidden."""
    found = []
    for path in files:
        text = text_of(path)
        names = local_names(text)
        words = set(WORD.findall(text))
        for members, their_names, their_words in found:
            if len(members) < most and not names & their_words and not their_names & words:
                members.append(path)
                their_names |= names
                their_words |= words
                break
        else:
            found.append(([path], names, words))
    return [members for members, *_ in found]


if __name__ == "__main__":
    for members in groups(sys.argv[2:], int(sys.argv[1])):
        print("|".join(members))
