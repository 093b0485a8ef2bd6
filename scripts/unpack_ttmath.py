"""Unpacks the ttmath headers of a wheel into a folder.

usage: unpack_ttmath.py WHEEL FOLDER
"""

import pathlib
import re
import sys
import zipfile

PREFIX = "include/ttmath/"


def main() -> None:
    wheel, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    with zipfile.ZipFile(wheel) as archive:
        headers = [name for name in archive.namelist() if re.fullmatch(PREFIX + r"\w+\.h", name)]
        if PREFIX + "ttmath.h" not in headers:
            sys.exit(f"unpack_ttmath: {wheel} holds no {PREFIX}ttmath.h")
        for name in headers:
            archive.extract(name, folder)


if __name__ == "__main__":
    main()
