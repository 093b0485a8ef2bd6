"""What data/ holds for the page: ranges of parameters, what belongs together, words to search for."""

import dataclasses
import pathlib
import re
import tomllib

from examples import ExampleError

PARAMETER = re.compile(
    r"""(?P<byref>byref\s+)?(?P<name>\w+)\s+as\s+(?P<type>\w+)
        (?:\s*=\s*(?P<default>"[^"]*"|[^,)]+))?""",
    re.VERBOSE | re.IGNORECASE)


@dataclasses.dataclass
class Parameter:
    """A parameter as a declaration names it. Without a default it cannot be left out."""

    name: str
    type: str
    default: str
    is_by_reference: bool
    range: str = ""


def parameters_of(declaration: str) -> list[Parameter]:
    inside = re.search(r"\((.*)\)", declaration)
    return [
        Parameter(
            name=match["name"],
            type=match["type"],
            default=(match["default"] or "").strip(),
            is_by_reference=bool(match["byref"]))
        for match in PARAMETER.finditer(inside[1] if inside else "")]


def load(folder: pathlib.Path, name: str) -> dict:
    return tomllib.loads((folder / f"{name}.toml").read_text(encoding="utf-8"))


class PageData:
    """The files of the folder. What names something that the page does not have is an error."""

    def __init__(self, folder: pathlib.Path, number_class: str):
        self.words: dict[str, list[str]] = load(folder, "search_words")
        self.groups: list[list[str]] = load(folder, "related")["groups"]
        ranges = load(folder, "parameters")
        self.type_ranges: dict[str, str] = ranges["types"]
        self.ranges: dict[str, dict[str, str]] = ranges["members"]
        self.number_class = number_class

    def parameters(self, anchor: str, declaration: str) -> list[Parameter]:
        """A member's parameters, each with what it may be."""
        found = parameters_of(declaration)
        own = self.ranges.get(anchor, {})
        unknown = set(own) - {parameter.name.lower() for parameter in found}
        if unknown:
            raise ExampleError(f"parameters.toml: {anchor} has no parameter {', '.join(unknown)}")
        for parameter in found:
            kind = "number" if parameter.type == self.number_class else parameter.type.lower()
            parameter.range = own.get(parameter.name.lower()) or self.type_ranges.get(kind, "")
            if not parameter.range:
                raise ExampleError(f"parameters.toml: no range for the type {kind} of {declaration}")
        return found

    def related(self, anchor: str) -> list[str]:
        """The anchors of what belongs to a member or guide, in the order of the groups."""
        others = (other for group in self.groups if anchor in group for other in group)
        return [other for other in dict.fromkeys(others) if other != anchor]

    def check(self, members: set[str], guides: set[str]) -> None:
        """Raises ExampleError for an anchor that is not on the page."""
        named = {
            "parameters.toml": (set(self.ranges), members),
            "related.toml": ({name for group in self.groups for name in group}, members | guides),
            "search_words.toml": (set(self.words), members | guides),
        }
        for file, (used, known) in named.items():
            if used - known:
                raise ExampleError(f"{file}: the page has no {', '.join(sorted(used - known))}")
