"""The host versions at which the library begins to behave otherwise, and their neighbours, for tests
that try hosts of every age: each release that the library asks about, the last one before it, a host
without a version function, and the stand-in host's own version."""

CURRENT = "current"
# The first host with 64-bit programs.
FIRST_64_BIT = "2015.03"
AGES = ("none", "2010.028", "2010.029", "2011.99", "2012.0", "2013.0", "2013.03", "2013.04", "2014.99",
        "2015.0", FIRST_64_BIT, "2020.01", "2020.02", CURRENT)


def ages(bits: int) -> tuple[str, ...]:
    """The ages that hosts of so many bits can have."""
    return AGES if bits == 32 else AGES[AGES.index(FIRST_64_BIT):]


def options(age: str) -> list[str]:
    """The options with which the stand-in host is of that age."""
    return [] if age == CURRENT else ["--host-version", age]
