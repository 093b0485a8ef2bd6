"""Checks what the built library is from outside: its exports, imports, protections and bytes.

usage: delivered_library.py CHECK LIBRARY SOURCE_FOLDER [BUILD_SETTING...]

CHECK is one of the functions below with the name check_CHECK. BUILD_SETTING is a -D word with which
CMake configures the same build again.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ENTRY = "REALPluginMain"
MARKER = b"$$ Plugin version: 21.3 (2021) $$"
WINDOWS_IMPORTS = {"KERNEL32.dll", "msvcrt.dll"}
LINUX_IMPORTS = {"libc.so.6", "libm.so.6", "ld-linux.so.2"}
NOT_SOURCES = shutil.ignore_patterns("build", ".deps", ".git", "__pycache__")


class Library:
    """A built library and the place that it was built from."""

    def __init__(self, path: str, source: str, settings: list[str]):
        self.path = pathlib.Path(path)
        self.source = pathlib.Path(source)
        self.settings = settings
        self.is_windows = self.path.suffix == ".dll"

    def bytes(self) -> bytes:
        return self.path.read_bytes()

    def described(self, *options: str) -> str:
        """What objdump tells of the library."""
        objdump = "i686-w64-mingw32-objdump" if self.is_windows else "objdump"
        command = [objdump, *options, str(self.path)]
        return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def expect_equal(what: str, actual: object, expected: object) -> None:
    if actual != expected:
        sys.exit(f"{what}: {actual!r} instead of {expected!r}")


def expect(condition: object, problem: str) -> None:
    if not condition:
        sys.exit(problem)


def check_exports(library: Library) -> None:
    """The entry is the one thing that the library offers, under its undecorated name."""
    if library.is_windows:
        table = library.described("-p").partition("[Ordinal/Name Pointer] Table")[2]
        names = re.findall(r"^\t\[ *\d+\] (\S+)", table, re.MULTILINE)
    else:
        command = ["nm", "--dynamic", "--defined-only", "--format=posix", str(library.path)]
        listing = subprocess.run(command, capture_output=True, text=True, check=True).stdout
        names = [line.split()[0] for line in listing.splitlines()]
    expect_equal("exports", names, [ENTRY])


def check_imports(library: Library) -> None:
    """The library needs nothing that is not part of the system."""
    pattern = r"DLL Name: (\S+)" if library.is_windows else r"NEEDED +(\S+)"
    imports = set(re.findall(pattern, library.described("-p")))
    if library.is_windows:
        expect_equal("imports", imports, WINDOWS_IMPORTS)
    else:
        expect(imports <= LINUX_IMPORTS, f"imports: {imports} beyond {LINUX_IMPORTS}")


def check_format(library: Library) -> None:
    """The library is one for 32-bit processes."""
    expected = "pei-i386" if library.is_windows else "elf32-i386"
    expect_equal("format", re.search(r"file format (\S+)", library.described("-f"))[1], expected)


def check_protections(library: Library) -> None:
    """The library can be loaded anywhere and its data cannot be executed."""
    headers = library.described("-p")
    if library.is_windows:
        for flag in ("DYNAMIC_BASE", "NX_COMPAT"):
            expect(re.search(rf"^\s+{flag}$", headers, re.MULTILINE), f"{flag} is not set")
        relocations = re.search(r"Entry 5 \S+ ([0-9a-f]+) Base Relocation", headers)
        expect(int(relocations[1], 16) > 0, "there are no relocations")
        sections = library.described("-h")
        size = re.search(r" \.reloc +([0-9a-f]+)", sections)
        expect(size and int(size[1], 16) > 0, "there is no relocation section")
    else:
        stack = re.search(r"STACK.*\n.*flags (\S+)", headers)
        expect_equal("stack", stack[1], "rw-")
        expect("RELRO" in headers, "the linker's tables stay writable")
        expect("TEXTREL" not in headers, "the code itself is relocated")


def check_marker(library: Library) -> None:
    """The version is found by searching the file for it."""
    expect_equal("version markers", library.bytes().count(MARKER), 1)


def check_paths(library: Library) -> None:
    """Nothing tells where the library was built."""
    content = library.bytes()
    places = {library.source, library.path.parent, pathlib.Path.home() / ".cache"}
    places |= {pathlib.Path(word.partition("=")[2]) for word in library.settings}
    for place in places:
        if place.is_absolute() and len(place.parts) > 2:
            expect(str(place).encode() not in content, f"the library names {place}")


def check_reproducible(library: Library) -> None:
    """A second build of the same sources in another place gives the same bytes."""
    environment = dict(os.environ, CCACHE_DISABLE="1")
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder, "another place for the sources")
        build = pathlib.Path(folder, "build")
        shutil.copytree(library.source, source, ignore=NOT_SOURCES)
        for command in (
            ["cmake", "-S", source, "-B", build, "-G", "Ninja", *library.settings],
            ["cmake", "--build", build, "--target", "BigNumberVQZ"],
        ):
            subprocess.run(command, env=environment, check=True)
        again = (build / library.path.name).read_bytes()
    expect(again == library.bytes(), "the second build differs from the first")


def main() -> None:
    check, path, source, *settings = sys.argv[1:]
    globals()[f"check_{check}"](Library(path, source, settings))


if __name__ == "__main__":
    main()
