"""Unpacks the ttmath headers of a wheel into a folder, with ttmath's licence beside them.

usage: unpack_ttmath.py WHEEL FOLDER
"""

import pathlib
import re
import sys
import zipfile

PREFIX = "include/ttmath/"


def licence_of(header: str) -> str:
    """The licence stands in the comment of each header that carries the conditions."""
    for comment in re.findall(r"/\*(.*?)\*/", header, re.DOTALL):
        if "Redistribution and use" in comment:
            lines = (re.sub(r"^\s*\* ?", "", line).rstrip() for line in comment.splitlines())
            return "\n".join(lines).strip() + "\n"
    sys.exit("unpack_ttmath: ttmath.h carries no licence")


def main() -> None:
    wheel, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    with zipfile.ZipFile(wheel) as archive:
        headers = [name for name in archive.namelist() if re.fullmatch(PREFIX + r"\w+\.h", name)]
        if PREFIX + "ttmath.h" not in headers:
            sys.exit(f"unpack_ttmath: {wheel} holds no {PREFIX}ttmath.h")
        for name in headers:
            archive.extract(name, folder)
    text = (folder / PREFIX / "ttmath.h").read_text(encoding="utf-8")
    (folder / "LICENSE").write_text(licence_of(text), encoding="utf-8")


if __name__ == "__main__":
    main()
