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


# Types that a row "by UInt32" is about: an integer is multiplied by its magnitude, whatever its type.
INTEGERS = {"Integer", "UInteger", "Int32", "UInt32", "Int64", "UInt64"}

Row = list[tuple[str, str]]


def cells_of(line: str) -> list[str]:
    return [cell.strip() for cell in line.strip().strip("|").split("|")]


def fits(qualifier: str, types: list[str]) -> bool:
    """Whether what stands behind a name in the table is about an overload with these parameters."""
    if "minutes" in qualifier:
        return len(types) == 3
    return not INTEGERS.isdisjoint(qualifier.split()) and not INTEGERS.isdisjoint(types)


def without_empty_columns(rows: list[Row]) -> list[Row]:
    used = {head for row in rows for head, cell in row if cell}
    return [[(head, cell) for head, cell in row if head in used] for row in rows]


class AccuracyRows:
    """The tables of the document that have a column for the member, row by row."""

    def __init__(self, document: str):
        # For each name, its rows as pairs of heading and cell, each with what stands behind the name.
        self.rows: dict[str, list[tuple[str, Row]]] = collections.defaultdict(list)
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
        for part in re.split(r",|\band\b", named):
            name, _, qualifier = part.strip().partition(" ")
            self.rows[name].append((qualifier, shown))

    def of(self, name: str, types: list[str]) -> list[Row]:
        """The rows of a member whose parameters have these types. Rows of an overload's own go before
        those of the name alone."""
        rows = self.rows.get(SAME_AS.get(name, name), [])
        own = [row for qualifier, row in rows if qualifier and fits(qualifier, types)]
        return without_empty_columns(own or [row for qualifier, row in rows if not qualifier])
