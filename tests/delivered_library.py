"""Checks what the built library is from outside: its exports, imports, protections and bytes.

usage: delivered_library.py CHECK PROCESSOR LIBRARY SOURCE_FOLDER [FOLDER...]

CHECK is one of the methods below with the name check_CHECK; PROCESSOR is x86, x86_64 or aarch64. FOLDER is one more that took part in the
build.
"""

import functools
import pathlib
import re
import subprocess
import sys

import pefile

ENTRY = "REALPluginMain"
# The newest version of glibc that a Linux library may need, for the sake of Ubuntu 22.04: how GCC 12
# unwinds stacks comes with it.
NEWEST_GLIBC = (2, 35)
TELL_GLIBC = ("README.md", "packaging/README.txt", "help/guides/hosts.md", "CONTRIBUTING.md", "docs/ARCHITECTURE.md")
MARKER = b"$$ Plugin version: 21.3 (2021) $$"


def expect_equal(what: str, actual: object, expected: object) -> None:
    if actual != expected:
        sys.exit(f"{what}: {actual!r} instead of {expected!r}")


def expect(condition: object, problem: str) -> None:
    if not condition:
        sys.exit(problem)


class Library:
    """A built library, the place that it was built from, and what holds of it everywhere."""

    def __init__(self, processor: str, path: str, source: str, folders: list[str]):
        self.processor = processor
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
        """The library is a whole one for processes of its kind, without debug information."""
        headers = self.headers
        machine, magic = {"x86": (0x14C, 0x10B), "x86_64": (0x8664, 0x20B)}[self.processor]
        expect_equal("machine", headers.FILE_HEADER.Machine, machine)
        expect_equal("kind of headers", headers.OPTIONAL_HEADER.Magic, magic)
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
        expect_equal("HIGH_ENTROPY_VA", bool(options.IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA),
                     self.processor != "x86")
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
        # What the year in it means stands below.
        expect_equal("./run --version", told.stdout.splitlines()[0], b"BigNumberVQZ " + release)


class LinuxLibrary(Library):
    """A shared object of Linux."""

    LOADERS = {"x86": "ld-linux.so.2", "x86_64": "ld-linux-x86-64.so.2", "aarch64": "ld-linux-aarch64.so.1"}

    @functools.cached_property
    def headers(self) -> str:
        return self.told_by("readelf", "--wide", "--file-header", "--segments", "--dynamic", "--notes")

    @functools.cached_property
    def symbols(self) -> list[list[str]]:
        """The fields of each line of the dynamic symbols: the binding is the fifth, then come visibility,
        section and name."""
        return [line.split() for line in self.told_by("readelf", "--wide", "--dyn-syms").splitlines()]

    def told_by(self, *command: str) -> str:
        """What a tool prints of the library."""
        result = subprocess.run([*command, self.path], capture_output=True, text=True, check=True)
        return result.stdout

    def check_exports(self) -> None:
        """The entry is the one thing that the library offers."""
        defined = [line[-1] for line in self.symbols
                   if len(line) == 8 and line[4] != "LOCAL" and line[6] not in ("UND", "Ndx")]
        expect_equal("exports", defined, [ENTRY])

    def check_imports(self) -> None:
        """The library needs nothing but the C library."""
        imports = set(re.findall(r"\(NEEDED\) .*\[(\S+)\]", self.headers))
        allowed = {"libc.so.6", "libm.so.6", self.LOADERS[self.processor]}
        expect("libc.so.6" in imports, "the library does not name the C library")
        expect(imports <= allowed, f"imports: {imports} beyond {allowed}")
        expect("RPATH" not in self.headers and "RUNPATH" not in self.headers, "it tells where to look")

    def check_glibc(self) -> None:
        """The library loads with the C library of that version and with later ones."""
        versions = re.findall(r"@GLIBC_([0-9.]+)", self.told_by("readelf", "--wide", "--dyn-syms"))
        expect(versions, "no symbol of the C library")
        newest = max(tuple(map(int, version.split("."))) for version in versions)
        expect(newest <= NEWEST_GLIBC, f"it needs glibc {newest}, later than {NEWEST_GLIBC}")
        for document in TELL_GLIBC:
            told = re.findall(r"glibc (\d+)\.(\d+)", (self.source / document).read_text("utf-8"))
            expect_equal(f"glibc in {document}", {tuple(map(int, version)) for version in told}, {NEWEST_GLIBC})

    def check_format(self) -> None:
        """The library is a shared object for processes of its kind, without debug information."""
        kinds = {"x86": ("ELF32", "Intel 80386"), "x86_64": ("ELF64", "Advanced Micro Devices X86-64"),
                 "aarch64": ("ELF64", "AArch64")}
        told = (re.search(r"Class: +(\S+)", self.headers)[1], re.search(r"Machine: +(.+)", self.headers)[1])
        expect_equal("format", told, kinds[self.processor])
        expect_equal("kind", re.search(r"Type: +(\S+)", self.headers)[1], "DYN")
        sections = self.told_by("readelf", "--wide", "--sections")
        expect(".dynsym" in sections, "the sections are not told")
        expect(".debug" not in sections and ".symtab" not in sections, "there is debug information")

    def check_protections(self) -> None:
        """The data of the library cannot be executed, its code and linker tables not written."""
        flags = dict(re.findall(r"^  (\S+) +(?:0x[0-9a-f]+ +){5}([RWE ]{3}) ", self.headers, re.M))
        expect_equal("stack", flags.get("GNU_STACK", "").strip(), "RW")
        expect("RWE" not in flags.values(), "a segment is both writable and executable")
        expect("GNU_RELRO" in flags, "the linker's tables stay writable")
        expect(re.search(r"\(FLAGS_1\).*\bNOW\b", self.headers), "functions are bound while it runs")
        expect("TEXTREL" not in self.headers, "the code itself is relocated")

    def check_branches(self) -> None:
        """On 64-bit ARM every object of our own has targets of branches marked and returns signed. The
        library as a whole cannot say so: the runtimes that Debian has were built without."""
        objects = [pathlib.Path(name) for name in re.findall(r"^LOAD (\S+\.o)$", self.link_map, re.M)]
        own = [name for name in objects if not name.is_absolute()]
        expect(own, "the link map names no object of our own")
        for name in own:
            notes = subprocess.run(["readelf", "--notes", self.path.parent / name],
                                   capture_output=True, text=True, check=True).stdout
            expect(re.search(r"AArch64 feature: BTI, PAC", notes), f"{name} has unprotected branches")

    @functools.cached_property
    def link_map(self) -> str:
        """What the linker took, as it told when it made the library."""
        return (self.path.parent / "plugin" / f"{self.path.stem}.map").read_text("utf-8")


def main() -> None:
    check, processor, path, source, *folders = sys.argv[1:]
    kind = WindowsLibrary if path.endswith(".dll") else LinuxLibrary
    getattr(kind(processor, path, source, folders), f"check_{check}")()


if __name__ == "__main__":
    main()
