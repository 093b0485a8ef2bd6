"""Makes the package that users copy into their Plugins folder, a ZIP laid out as the host reads it.

usage: make_package.py --target NAME --library DLL --link-map FILE --ttmath FILE --help-page HTML
                       --project FOLDER PACKAGE

NAME is the target in scripts/presets.txt that the library is built for; the list names the folder that
takes it. The link map lists the libraries that the DLL contains; for each the package carries its terms, and a
library whose terms are not known fails the build. The same input gives the same bytes.
"""

import argparse
import pathlib
import re
import sys
import zipfile

NAME = "BigNumberVQZ"

# What the linker may take from the compiler's folders: names of libraries, the Debian package that
# states their terms, and the file of the package that carries them.
RUNTIMES = (
    (r"lib(gcc|gcc_eh|stdc\+\+)\.a", "g++-mingw-w64-i686-win32", "GCC runtime.txt"),
    (r"lib(mingw32|mingwex|moldname|msvcrt|kernel32)\.a", "mingw-w64-i686-dev", "MinGW-w64.txt"),
)


def library_folder(presets: str, target: str) -> str:
    """The folder of the package for the library of that target, as the list of presets names it."""
    for line in presets.splitlines():
        fields = [field.strip() for field in line.split("|")]
        if fields[0] == target and fields[6] != "-":
            return f"Build Resources/{fields[6]}"
    sys.exit(f"make_package: the list of presets has no folder for the library of {target}")


def linked_libraries(link_map: str) -> set[str]:
    """The libraries of which at least one member was linked. Those of this build have relative paths
    in a link map, and are no others' work."""
    return {pathlib.PurePath(path).name for path in re.findall(r"^(/\S+\.a)\(", link_map, re.M)}


def runtime_terms(libraries: set[str]) -> dict[str, bytes]:
    """The terms of the linked libraries, as far as this system has a file of them; the notices of the
    project, which are in the package anyway, sum them up."""
    unknown = {name for name in libraries if not any(re.fullmatch(row[0], name) for row in RUNTIMES)}
    if unknown or not libraries:
        sys.exit(f"make_package: the terms of these libraries are not known: {unknown or 'none found'}")
    terms = {}
    for pattern, package, file in RUNTIMES:
        source = pathlib.Path("/usr/share/doc", package, "copyright")
        if any(re.fullmatch(pattern, name) for name in libraries) and source.exists():
            terms[file] = source.read_bytes()
    return terms


def ttmath_terms(header: str) -> bytes:
    """ttmath's licence stands in the comment of each header that carries the conditions."""
    for comment in re.findall(r"/\*(.*?)\*/", header, re.DOTALL):
        if "Redistribution and use" in comment:
            lines = (re.sub(r"^\s*\* ?", "", line).rstrip() for line in comment.splitlines())
            return ("\n".join(lines).strip() + "\n").encode()
    sys.exit("make_package: ttmath's header carries no licence")


def write_package(path: pathlib.Path, files: dict[str, bytes]) -> None:
    """Writes the files in the order of their names, all of the same date and rights."""
    unfinished = path.with_suffix(".unfinished")
    with zipfile.ZipFile(unfinished, "w") as archive:
        for name in sorted(files):
            entry = zipfile.ZipInfo(f"{NAME}/{name}")
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 3  # Unix, wherever it is made
            entry.external_attr = 0o100644 << 16
            archive.writestr(entry, files[name], compresslevel=9)
    unfinished.replace(path)


def main() -> None:
    parser = argparse.ArgumentParser()
    parser.add_argument("--target", required=True)
    for option in ("--library", "--link-map", "--ttmath", "--help-page", "--project"):
        parser.add_argument(option, type=pathlib.Path, required=True)
    parser.add_argument("package", type=pathlib.Path)
    given = parser.parse_args()

    terms = runtime_terms(linked_libraries(given.link_map.read_text(encoding="utf-8")))
    terms["ttmath.txt"] = ttmath_terms(given.ttmath.read_text(encoding="utf-8"))
    files = {f"Licences/{name}": text for name, text in terms.items()}
    for name in ("LICENSE", "THIRD-PARTY-NOTICES.md"):
        files[f"Licences/{name}"] = (given.project / name).read_bytes()
    presets = (given.project / "scripts/presets.txt").read_text(encoding="utf-8")
    files[f"{library_folder(presets, given.target)}/{NAME}.dll"] = given.library.read_bytes()
    files["IDE Resources/Help/index.html"] = given.help_page.read_bytes()
    write_package(given.package, files)


if __name__ == "__main__":
    main()
