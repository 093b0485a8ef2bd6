"""Checks that the map of the kernels names what there is.

usage: map_test.py SOURCE_FOLDER

The table in number/kernels/README.md has a row for each member of ttmath that specialisations.hpp
declares a kernel for; the function that it names is in the file that it names, and the classes have the
members that it names.
"""

import pathlib
import re
import sys

ROW = re.compile(r"^\| `(\w+::\w+)` \| `(\w+)` in `([\w.]+)` \| (.*) \|$", re.MULTILINE)
MEMBER = re.compile(r"\b(Big|UInt|auxiliaryfunctions)(?:<[\w, ]*>)?::(\w+)\(")
# What the third column names besides members of the classes.
TTMATH_MEMBERS = {"ExpSurrounding0"}


def problems(root: pathlib.Path):
    folder = root / "number/kernels"
    rows = ROW.findall((folder / "README.md").read_text(encoding="utf-8"))
    mapped = [row[0] for row in rows]
    declared = [
        "::".join(match)
        for match in MEMBER.findall((folder / "specialisations.hpp").read_text(encoding="utf-8"))
    ]
    for name in sorted(set(declared) - set(mapped)):
        yield f"README.md has no row for {name}"
    for name in sorted(set(mapped) - set(declared)):
        yield f"specialisations.hpp declares no kernel for {name}"
    for name in sorted({name for name in mapped if mapped.count(name) > 1}):
        yield f"README.md has more than one row for {name}"
    members = "\n".join(
        path.read_text(encoding="utf-8") for path in sorted((root / "plugin/members").rglob("*.hpp"))
    )
    for name, function, file, reached in rows:
        path = folder / file
        if not path.exists():
            yield f"{name}: there is no {file}"
        elif not re.search(rf"\b{function}\(", path.read_text(encoding="utf-8")):
            yield f"{name}: {file} has no {function}"
        for member in re.findall(r"`(\w+)`", reached):
            if member not in TTMATH_MEMBERS and not re.search(rf'"{member}\b', members):
                yield f"{name}: the classes have no member {member}"


def main() -> None:
    found = list(problems(pathlib.Path(sys.argv[1])))
    print("\n".join(found) or "the map is right")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
