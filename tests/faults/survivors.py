"""Drawn mutants that no test notices, each with the reason why that is right."""

import dataclasses


@dataclasses.dataclass(frozen=True)
class Explained:
    """A line of a source file and what a mutant makes of it, both without the blanks around them,
    and why no test can tell them apart."""

    before: str
    after: str
    reason: str


EXPLAINED: list[Explained] = []
