"""A user's way: unpacks the library of a target from the package, loads it and runs the tour.

usage: package_tour.py PACKAGE LIBRARY SOURCE_FOLDER -- COMMAND...

COMMAND starts the stand-in host with LIBRARY as one of its words; the tour runs with each library in the
package that has the same bytes in its place.
"""

import pathlib
import subprocess
import sys
import tempfile
import zipfile


def libraries_like(archive: zipfile.ZipFile, library: pathlib.Path) -> list[str]:
    """The names of the libraries in the package that have the same bytes."""
    return [name for name in archive.namelist()
            if "/Build Resources/" in name and archive.read(name) == library.read_bytes()]


def main() -> None:
    separator = sys.argv.index("--")
    package, library, source = map(pathlib.Path, sys.argv[1:separator])
    command = sys.argv[separator + 1:]
    if str(library) not in command:
        sys.exit(f"the command does not load {library}")
    toured = 0
    with zipfile.ZipFile(package) as archive, tempfile.TemporaryDirectory() as folder:
        for name in libraries_like(archive, library):
            unpacked = archive.extract(name, folder)
            words = [unpacked if word == str(library) else word for word in command]
            result = subprocess.run(
                [sys.executable, source / "tests/run_program.py", source / "examples/tour.xojo_script",
                 "--", *words], capture_output=True, text=True)
            if (result.returncode, result.stdout + result.stderr) != (0, ""):
                sys.exit(f"the tour with {name}: {result.stdout}{result.stderr}")
            toured += 1
    if toured == 0:
        sys.exit(f"the package has no folder with {library}")


if __name__ == "__main__":
    main()
