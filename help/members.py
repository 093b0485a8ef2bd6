"""The members of the number classes as the help describes them."""

import collections
import dataclasses
import json
import pathlib
import re

from accuracy import Row
from examples import Example, ExampleError, ExampleRunner, Kind
from page_data import Parameter, parameters_of

NUMBER_CLASS = "BigNumberVQZ"


@dataclasses.dataclass
class Accessor:
    """A routine behind a member. The message has A and B in the places of numbers; it is empty when
    the routine cannot fail, or fails in another way."""

    log_name: str
    can_fail: bool
    message: str

    @classmethod
    def read(cls, row: dict | None) -> "Accessor | None":
        return row and cls(row["logName"], row["canFail"], row["message"])

    def fits(self, raised: str) -> bool:
        """Whether this is what the routine raises when it fails."""
        if not self.message:
            return self.can_fail
        texts = re.split(r"\b[AB]\b(?=[ .])", f"BigNumberErrorExceptionVQZ: {self.message}")
        return re.fullmatch(".+".join(map(re.escape, texts)), raised) is not None


@dataclasses.dataclass
class Member:
    """A row of the tables, with its examples."""

    name: str
    label: str  # the name, with the parameters' types where several members have that name
    anchor: str
    declaration: str
    section: str
    summary: str
    details: str
    units: str
    range: str
    fails: str
    is_property: bool
    is_shared: bool
    is_hidden: bool
    accessors: list[Accessor]
    is_assignable: bool
    example: Example
    failing: list[Example]
    parameters: list[Parameter] = dataclasses.field(default_factory=list)
    accuracy: list[Row] = dataclasses.field(default_factory=list)

    @property
    def notes(self) -> list[str]:
        """What sets the member apart, in a word each."""
        notes = ["shared"] if self.is_shared else []
        if self.is_property and not self.is_assignable:
            notes.append("read-only")
        if not self.is_property and self.is_assignable:
            notes.append("assignable")
        return notes + (["hidden"] if self.is_hidden else [])

    @property
    def log_names(self) -> list[str]:
        return unique(a.log_name for a in self.accessors if a.log_name)

    @property
    def messages(self) -> list[str]:
        return unique(a.message for a in self.accessors if a.message)

    @property
    def failures(self) -> list[str]:
        """The starts of its messages, up to the numbers."""
        return unique(re.split(r" with|\.", message)[0] for message in self.messages)

    @property
    def inner_names(self) -> list[str]:
        """The names of its parameters, and those in the debug log."""
        return [parameter.name for parameter in self.parameters] + self.log_names

    def check(self) -> None:
        """Raises ExampleError where the texts and the routines contradict each other."""
        can_fail = any(a.can_fail for a in self.accessors)
        if can_fail != bool(self.fails) or can_fail != bool(self.failing):
            raise ExampleError(f"{self.declaration}: what it fails for does not go with its routine")
        for example in self.failing:
            if not any(a.fits(example.output) for a in self.accessors):
                raise ExampleError(f"{self.declaration} does not fail with\n{example.output}")


def unique(texts) -> list[str]:
    return list(dict.fromkeys(texts))


def parameter_types(declaration: str) -> list[str]:
    """The types of the parameters; the number class is just a number."""
    types = [parameter.type for parameter in parameters_of(declaration)]
    return ["number" if name == NUMBER_CLASS else name for name in types]


def name_of(row: dict) -> str:
    return re.match(r"\w+", row["declaration"])[0]


def read_member(row: dict, label: str, anchor: str, runner: ExampleRunner) -> Member:
    declaration = row["declaration"]
    failing = [part for part in re.split(r"\n\n+", row["failing"].strip()) if part]
    accessors = [Accessor.read(row.get(key)) for key in ("routine", "setter")]
    return Member(
        name=name_of(row),
        label=label,
        anchor=anchor,
        declaration=declaration,
        is_property=row["isProperty"],
        is_shared=row["isShared"],
        is_hidden=row["isHidden"],
        accessors=[a for a in accessors if a],
        is_assignable="setter" in row,
        example=runner.add(declaration, row["example"]),
        failing=[runner.add(declaration, part, Kind.RAISES) for part in failing],
        **{key: row[key] for key in ("section", "summary", "details", "units", "range", "fails")})


@dataclasses.dataclass
class Section:
    """Members that the page shows together."""

    title: str
    members: list[Member]


def read_sections(path: pathlib.Path, runner: ExampleRunner) -> list[Section]:
    """All members, those of a section in the order of the tables; their examples wait to be run."""
    content = json.loads(path.read_text(encoding="utf-8"))
    sections = {title: Section(title, []) for title in content["sections"]}
    names = collections.Counter(map(name_of, content["members"]))
    anchors = set()
    for row in content["members"]:
        name = name_of(row)
        types = parameter_types(row["declaration"]) if names[name] > 1 else []
        label = f"{name}({', '.join(types)})" if types else name
        anchor = "-".join([name, *types]).lower()
        if anchor in anchors:
            raise ExampleError(f"two members have the anchor {anchor}")
        anchors.add(anchor)
        sections[row["section"]].members.append(read_member(row, label, anchor, runner))
    return list(sections.values())
