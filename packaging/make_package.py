"""Makes the package that users copy into their Plugins folder, a ZIP laid out as the host reads it.

usage: make_package.py --builds FOLDER --ttmath FILE --help-page HTML --project FOLDER PACKAGE

scripts/presets.txt tells which presets have a library in the package, and in which folders; FOLDER has
their build folders. The link map in each build folder tells what the library contains; for each part the
package carries its terms, and a part whose terms are not known fails the build. The same input gives the
same bytes.
"""

import argparse
import dataclasses
import pathlib
import re
import sys

from archive import write_archive

NAME = "BigNumberVQZ"

# What the linker may take from the compilers' folders, by the path of the library; the Debian packages
# that tell its terms, one of which this system has; and the file of the package that carries them.
RUNTIMES = (
    (r".*mingw32.*/lib(gcc|gcc_eh|stdc\+\+)\.a",
     ("g++-mingw-w64-i686-win32", "g++-mingw-w64-x86-64-win32"), "GCC runtime for Windows.txt"),
    (r".*mingw32.*/lib(mingw32|mingwex|moldname|msvcrt|kernel32)\.a",
     ("mingw-w64-i686-dev", "mingw-w64-x86-64-dev"), "MinGW-w64.txt"),
    (r".*linux-gnu.*/lib(gcc|gcc_eh|stdc\+\+)\.a",
     ("libstdc++-12-dev", "libstdc++-12-dev-arm64-cross"), "GCC runtime for Linux.txt"),
    (r".*linux-gnu.*/libc_nonshared\.a", ("libc6-dev", "libc6-dev-arm64-cross"), "GNU C Library.txt"),
)


@dataclasses.dataclass
class Target:
    """A preset whose library goes into the package."""

    library: pathlib.Path
    link_map: pathlib.Path
    folders: list[str]


def packaged_targets(presets: str, builds: pathlib.Path) -> list[Target]:
    """The targets that the list of presets gives folders of the package to."""
    targets = []
    for line in presets.splitlines():
        fields = [field.strip() for field in line.split("|")]
        if line.startswith("#") or len(fields) < 7 or fields[6] == "-":
            continue
        name, library = fields[0], fields[5]
        folders = [folder.strip() for folder in fields[6].split(",")]
        targets.append(Target(builds / name / library, builds / name / "plugin" / f"{NAME}.map", folders))
    return targets


def linked_libraries(link_map: str) -> set[str]:
    """The libraries of which at least one member was linked. Those of this build have relative paths
    in a link map, and are no others' work."""
    return set(re.findall(r"^(/\S+\.a)\(", link_map, re.M))


def runtime_terms(libraries: set[str]) -> dict[str, bytes]:
    """The terms of the linked libraries, as far as this system has a file of them; the notices of the
    project, which are in the package anyway, sum them up."""
    unknown = {path for path in libraries if not any(re.fullmatch(row[0], path) for row in RUNTIMES)}
    if unknown or not libraries:
        sys.exit(f"make_package: the terms of these libraries are not known: {unknown or 'none found'}")
    terms = {}
    for pattern, packages, file in RUNTIMES:
        sources = [pathlib.Path("/usr/share/doc", package, "copyright") for package in packages]
        texts = {source.read_bytes() for source in sources if source.exists()}
        if not any(re.fullmatch(pattern, path) for path in libraries) or not texts:
            continue
        if len(texts) > 1:
            sys.exit(f"make_package: the terms of {packages} differ; each needs a file of its own")
        terms[file] = texts.pop()
    return terms


def ttmath_terms(header: str) -> bytes:
    """ttmath's licence stands in the comment of each header that carries the conditions."""
    for comment in re.findall(r"/\*(.*?)\*/", header, re.DOTALL):
        if "Redistribution and use" in comment:
            lines = (re.sub(r"^\s*\* ?", "", line).rstrip() for line in comment.splitlines())
            return ("\n".join(lines).strip() + "\n").encode()
    sys.exit("make_package: ttmath's header carries no licence")


def main() -> None:
    parser = argparse.ArgumentParser()
    for option in ("--builds", "--ttmath", "--help-page", "--project"):
        parser.add_argument(option, type=pathlib.Path, required=True)
    parser.add_argument("package", type=pathlib.Path)
    given = parser.parse_args()

    presets = (given.project / "scripts/presets.txt").read_text(encoding="utf-8")
    targets = packaged_targets(presets, given.builds)
    terms = {"ttmath.txt": ttmath_terms(given.ttmath.read_text(encoding="utf-8"))}
    files = {}
    for target in targets:
        for folder in target.folders:
            files[f"Build Resources/{folder}/{target.library.name}"] = target.library.read_bytes()
        terms |= runtime_terms(linked_libraries(target.link_map.read_text(encoding="utf-8")))
    files |= {f"Licences/{name}": text for name, text in terms.items()}
    for name in ("LICENSE", "THIRD-PARTY-NOTICES.md"):
        files[f"Licences/{name}"] = (given.project / name).read_bytes()
    files["IDE Resources/Help/index.html"] = given.help_page.read_bytes()
    write_archive(given.package, NAME, files)


if __name__ == "__main__":
    main()
