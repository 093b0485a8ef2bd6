"""The rows of docs/accuracy.md that belong to a member."""

import collections
import re

# The column that names the members, and those that a member's own table leaves out.
MEMBER, LEFT_OUT = "member", ("values",)

# Operators that compute what a method of another name computes.
SAME_AS = {
    "Operator_Add": "Add",
    "Operator_AddRight": "Add",
    "Operator_Subtract": "Subtract",
    "Operator_SubtractRight": "Subtract",
    "Operator_Multiply": "Multiply",
    "Operator_MultiplyRight": "Multiply",
    "Operator_Divide": "Divide",
    "Operator_DivideRight": "Divide",
    "Operator_Modulo": "Modulate",
    "Operator_ModuloRight": "Modulate",
    "Operator_Power": "Pow",
    "Operator_PowerRight": "Pow",
}


def cells_of(line: str) -> list[str]:
    return [cell.strip() for cell in line.strip().strip("|").split("|")]


class AccuracyRows:
    """The tables of the document that have a column for the member, row by row."""

    def __init__(self, document: str):
        # For each member, and whether its angles come in degrees, minutes and seconds: its rows as
        # pairs of heading and cell.
        self.rows: dict[tuple[str, bool], list[list[tuple[str, str]]]] = collections.defaultdict(list)
        heads: list[str] = []
        for line in document.splitlines():
            if not line.startswith("|"):
                heads = []
            elif not heads:
                heads = cells_of(line)
            elif MEMBER in heads and not re.fullmatch(r"[|:\s-]+", line):
                self._add(dict(zip(heads, cells_of(line))))

    def _add(self, row: dict[str, str]) -> None:
        named = row.pop(MEMBER).replace("`", "")
        shown = [(head, cell) for head, cell in row.items() if head not in LEFT_OUT]
        for name in re.split(r",|\band\b", named):
            if first := re.match(r"\s*(\w+)", name):
                self.rows[first[1], "minutes" in named].append(shown)

    def of(self, name: str, parameter_count: int) -> list[list[tuple[str, str]]]:
        """The rows of a member; the one of several angles has its own."""
        name = SAME_AS.get(name, name)
        of_minutes = self.rows.get((name, True), [])
        return of_minutes if of_minutes and parameter_count == 3 else self.rows.get((name, False), [])
