"""The host versions at which the library begins to behave otherwise, and their neighbours, for tests
that try hosts of every age: each release that the library asks about, the last one before it, a host
without a version function, and the stand-in host's own version."""

CURRENT = "current"
AGES = ("none", "2010.028", "2010.029", "2011.99", "2012.0", "2013.0", "2013.03", "2013.04", "2014.99",
        "2015.0", "2020.01", "2020.02", CURRENT)


def options(age: str) -> list[str]:
    """The options with which the stand-in host is of that age."""
    return [] if age == CURRENT else ["--host-version", age]
