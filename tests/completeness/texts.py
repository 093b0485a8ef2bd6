"""Checks that every text of the plug-in that its users can see is asserted by a test.

usage: texts.py SOURCES

The texts are the literals in the plug-in's sources. One that goes to the debug log, such as the name
of a routine, must stand in a line of the log that a test expects, alone or before a value. A name that
heads a failure's message must do so in an expected message. Any other must occur in what a test
expects, as a word of its own, with anything in the place of a conversion such as %d.

Expected is what lies in the files beside the programs and in the golden files, and every literal of
the tests.
"""

import dataclasses
import enum
import itertools
import pathlib
import re
import sys

FOLDERS = ("plugin", "host", "number", "platform")
# It says nothing: its literals are instructions.
SILENT = "number/kernels"
LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
NO_TEXT = re.compile(r'(?ms)R"\(.*?\)"|(?<!:)//[^\n]*$|^#include[^\n]*$|extern "C"')
CONVERSION = re.compile(r"%(?:lld|[sdpuf])")
LOG_PREFIX = "VQZ Debug: "
EXPECTED_FILES = ("tests/programs/**/*.expected", "tests/programs/**/*.log",
                  "tests/programs/**/*.stderr", "tests/golden/*.txt", "examples/*.expected")

# What no test can expect, with the reason.
EXCUSED = {
    "C++ Illegal Cast Exception": "the row above it takes every exception that it is for",
}


class Use(enum.Enum):
    """What a literal is used for; the value says what a test has to expect."""

    LOG = "a line of the log with"
    HEAD = "a failure of"
    DECLARATION = "a declaration"
    OTHER = "the text"


# What stands before a literal of a use; the first that fits counts.
USES = (
    (re.compile(r"\b(?:Log(?:Message|Text|UInt|Double|Int64|HostString)\(|Run<)\s*$"), Use.LOG),
    (re.compile(r"\bDeclaration<Value,\s*$"), Use.DECLARATION),
    (re.compile(r"\bSetPart<Value,[^\"]*$"), Use.OTHER),
    (re.compile(r"\b\w+<Value,\s*(?:&Value::\w+,\s*)?$"), Use.LOG),
    (re.compile(r"\b\w+<Value,\s*\"\w+\",\s*$"), Use.HEAD),
    (re.compile(r"(?:\bRow\{|\.(?:name|declaration) =)\s*$"), Use.DECLARATION),
)


@dataclasses.dataclass(frozen=True)
class Text:
    """A literal of the sources, where it stands and what for."""

    place: str
    text: str
    use: Use

    def pattern(self) -> re.Pattern:
        """What a line that asserts this text looks like."""
        text = self.text
        if self.use is Use.DECLARATION:
            text = text.replace("$", "BiggerNumberVQZ")
        body = ".*?".join(map(re.escape, CONVERSION.split(text)))
        if self.use is Use.LOG:
            return re.compile(f"{body}(?: .*)?", re.DOTALL)
        if self.use is Use.HEAD:
            body += " operation failed"
        before = r"(?<!\w)" if body[0].isalnum() else ""
        after = r"(?!\w)" if body[-1].isalnum() else ""
        return re.compile(f".*?{before}{body}{after}.*", re.DOTALL)


def unescaped(literal: str) -> str:
    return literal.encode("latin-1", "replace").decode("unicode_escape", "replace")


def joined(code: str) -> str:
    """Source code with literals that follow each other made one."""
    return re.sub(r'(?<!\\)"\s*\n\s*"', "", code)


def use_of(before: str) -> Use:
    return next((use for pattern, use in USES if pattern.search(before)), Use.OTHER)


def texts_of(sources: pathlib.Path) -> list[Text]:
    """All texts of the plug-in that are more than a separator. The documentation in the rows of
    members is none: the library does not hold it."""
    found = []
    for path in sorted(itertools.chain(*((sources / folder).rglob("*.?pp") for folder in FOLDERS))):
        if sources / SILENT in path.parents:
            continue
        code = joined(NO_TEXT.sub("", path.read_text("utf-8")))
        for match in LITERAL.finditer(code):
            text = unescaped(match[1])
            use = use_of(code[max(0, match.start() - 80):match.start()])
            is_documentation = path.parent.name == "members" and use is Use.OTHER
            if CONVERSION.sub("", text).strip(" :.\n") and not is_documentation:
                found.append(Text(str(path.relative_to(sources)), text, use))
    return found


def expectations_of(sources: pathlib.Path) -> tuple[set[str], set[str]]:
    """What tests expect: of the log, line by line without its prefix, and of anything."""
    log, anything = set(), set()
    for path in itertools.chain(*map(sources.glob, EXPECTED_FILES)):
        lines = path.read_bytes().decode("utf-8", "replace").splitlines()
        anything.update(lines)
        log.update(line.removeprefix(LOG_PREFIX) for line in lines if line.startswith(LOG_PREFIX))
    for path in sources.glob("tests/*.py"):
        anything.update(LITERAL.findall(path.read_text("utf-8")))
    for path in sources.glob("tests/unit/**/*.?pp"):
        code = joined(NO_TEXT.sub("", path.read_text("utf-8")))
        literals = [unescaped(literal) for literal in LITERAL.findall(code)]
        anything.update(literals)
        log.update(line.removeprefix(LOG_PREFIX) for literal in literals
                   for line in literal.splitlines() if line.startswith(LOG_PREFIX))
        for events in re.findall(r"LogLines\(\{(.*?)\}\)", code, re.DOTALL):
            log.update(map(unescaped, LITERAL.findall(events)))
    return log, anything


def main() -> None:
    sources = pathlib.Path(sys.argv[1])
    texts = texts_of(sources)
    log, anything = expectations_of(sources)
    missing = []
    for text in texts:
        pattern = text.pattern()
        if text.text not in EXCUSED and not any(
                pattern.fullmatch(line) for line in (log if text.use is Use.LOG else anything)):
            missing.append(f"{text.place}: no test expects {text.use.value} \"{text.text}\"")
    counts = ", ".join(f"{sum(text.use is use for text in texts)} as {use.name.lower()}"
                       for use in Use)
    print(f"{len({text.text for text in texts})} texts in {len(texts)} places ({counts}), "
          f"{len(missing)} not expected, {len(EXCUSED)} excused")
    stale = EXCUSED.keys() - {text.text for text in texts}
    if missing or stale:
        sys.exit("\n".join([*missing, *(f"excused, but not there: {text}" for text in stale)]))


if __name__ == "__main__":
    main()
