"""Checks what the built library is from outside: its exports, imports, protections and bytes.

usage: delivered_library.py CHECK LIBRARY SOURCE_FOLDER [FOLDER...]

CHECK is one of the methods below with the name check_CHECK. FOLDER is one more that took part in the
build.
"""

import functools
import pathlib
import re
import subprocess
import sys

import pefile

ENTRY = "REALPluginMain"
MARKER = b"$$ Plugin version: 21.3 (2021) $$"


def expect_equal(what: str, actual: object, expected: object) -> None:
    if actual != expected:
        sys.exit(f"{what}: {actual!r} instead of {expected!r}")


def expect(condition: object, problem: str) -> None:
    if not condition:
        sys.exit(problem)


class Library:
    """A built library, the place that it was built from, and what holds of it everywhere."""

    def __init__(self, path: str, source: str, folders: list[str]):
        self.path = pathlib.Path(path)
        self.source = pathlib.Path(source)
        self.folders = {pathlib.Path(folder) for folder in folders}
        self.content = self.path.read_bytes()

    def check_marker(self) -> None:
        """The version is found by searching the file for it."""
        expect_equal("version markers", self.content.count(MARKER), 1)

    def check_paths(self) -> None:
        """Nothing in it shows where the library was built."""
        home = pathlib.Path.home() / ".cache"
        for place in {self.source, self.path.parent, home} | self.folders:
            expect(place.is_absolute(), f"{place} is no place in the file system")
            expect(str(place).encode() not in self.content, f"the library names {place}")


class WindowsLibrary(Library):
    """The DLL that is delivered."""

    @functools.cached_property
    def headers(self) -> pefile.PE:
        return pefile.PE(data=self.content)

    def check_exports(self) -> None:
        """The entry is the one thing that the library offers, under its undecorated name."""
        exports = [symbol.name for symbol in self.headers.DIRECTORY_ENTRY_EXPORT.symbols]
        expect_equal("exports", exports, [ENTRY.encode()])

    def check_imports(self) -> None:
        """The library needs nothing that is not part of every Windows."""
        imports = {entry.dll for entry in self.headers.DIRECTORY_ENTRY_IMPORT}
        expect_equal("imports", imports, {b"KERNEL32.dll", b"msvcrt.dll"})
        expect(not hasattr(self.headers, "DIRECTORY_ENTRY_DELAY_IMPORT"), "delayed imports")

    def check_format(self) -> None:
        """The library is a whole one for 32-bit processes, without debug information."""
        headers = self.headers
        expect_equal("machine", headers.FILE_HEADER.Machine, 0x14C)
        expect_equal("kind of headers", headers.OPTIONAL_HEADER.Magic, 0x10B)
        expect(headers.is_dll(), "the file is no library")
        expect(headers.verify_checksum(), "the checksum in the headers is another")
        expect_equal("what is wrong with the headers", headers.get_warnings(), [])
        expect(not hasattr(headers, "DIRECTORY_ENTRY_DEBUG"), "there is debug information")
        expect_equal("symbols", headers.FILE_HEADER.NumberOfSymbols, 0)

    def check_protections(self) -> None:
        """The library can be loaded anywhere, its data cannot be executed nor its code written."""
        options = self.headers.OPTIONAL_HEADER
        expect(options.IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE, "DYNAMIC_BASE is not set")
        expect(options.IMAGE_DLLCHARACTERISTICS_NX_COMPAT, "NX_COMPAT is not set")
        expect(not self.headers.FILE_HEADER.IMAGE_FILE_RELOCS_STRIPPED, "relocations are stripped")
        expect(self.headers.DIRECTORY_ENTRY_BASERELOC, "there are no relocations")
        for section in self.headers.sections:
            both = section.IMAGE_SCN_MEM_WRITE and section.IMAGE_SCN_MEM_EXECUTE
            expect(not both, f"{section.Name} is both writable and executable")

    def check_version(self) -> None:
        """What Windows shows as the version is what the marker and ./run --version say."""
        number = re.search(rb"Plugin version: (\S+)", MARKER)[1]
        copyright_line = re.search(rb"^Copyright.*$", (self.source / "LICENSE").read_bytes(), re.M)
        expected = {
            b"FileDescription": b"Big-number classes for the Xojo application runtime",
            b"FileVersion": number,
            b"InternalName": b"BigNumberVQZ",
            b"LegalCopyright": copyright_line[0],
            b"OriginalFilename": b"BigNumberVQZ.dll",
            b"ProductName": b"BigNumberVQZ",
            b"ProductVersion": number,
        }
        tables = [
            table.entries
            for information in self.headers.FileInfo[0]
            for table in getattr(information, "StringTable", [])
        ]
        expect_equal("version information", tables, [expected])

        fixed = self.headers.VS_FIXEDFILEINFO[0]
        words = (21 << 16 | 3, 0)
        expect_equal("file version", (fixed.FileVersionMS, fixed.FileVersionLS), words)
        expect_equal("product version", (fixed.ProductVersionMS, fixed.ProductVersionLS), words)

        told = subprocess.run([self.source / "run", "--version"], capture_output=True, check=True)
        release = MARKER.removeprefix(b"$$ Plugin version: ").removesuffix(b" $$")
        expect_equal("./run --version", told.stdout, b"BigNumberVQZ " + release + b"\n")


class LinuxLibrary(Library):
    """The same sources as a native library."""

    @functools.cached_property
    def headers(self) -> str:
        return self.told_by("objdump", "-fp")

    def told_by(self, *command: str) -> str:
        """What a tool prints of the library."""
        result = subprocess.run([*command, self.path], capture_output=True, text=True, check=True)
        return result.stdout

    def check_exports(self) -> None:
        """The entry is the one thing that the library offers."""
        listing = self.told_by("nm", "--dynamic", "--defined-only", "--format=posix")
        expect_equal("exports", [line.split()[0] for line in listing.splitlines()], [ENTRY])

    def check_imports(self) -> None:
        """The library needs nothing but the C library."""
        imports = set(re.findall(r"NEEDED +(\S+)", self.headers))
        allowed = {"libc.so.6", "libm.so.6", "ld-linux.so.2"}
        expect(imports <= allowed, f"imports: {imports} beyond {allowed}")

    def check_format(self) -> None:
        """The library is one for 32-bit processes."""
        expect_equal("format", re.search(r"file format (\S+)", self.headers)[1], "elf32-i386")

    def check_protections(self) -> None:
        """The data of the library cannot be executed, its code and linker tables not written."""
        stack = re.search(r"STACK.*\n.*flags (\S+)", self.headers)
        expect_equal("stack", stack[1], "rw-")
        expect("flags rwx" not in self.headers, "a segment is both writable and executable")
        expect("RELRO" in self.headers, "the linker's tables stay writable")
        expect("TEXTREL" not in self.headers, "the code itself is relocated")


def main() -> None:
    check, path, source, *folders = sys.argv[1:]
    kind = WindowsLibrary if path.endswith(".dll") else LinuxLibrary
    getattr(kind(path, source, folders), f"check_{check}")()


if __name__ == "__main__":
    main()
