"""Makes the release, a ZIP with all that a user of the plug-in needs.

usage: make_release.py --package FILE --help-page HTML --project FOLDER RELEASE

RELEASE is named BigNumberVQZ-VERSION.zip, and the folder in it likewise. The same input gives the same bytes.
"""

import argparse
import pathlib
import re
import sys

from archive import write_archive

# What the environment opens, and what tells of it.
PROJECT_FILES = {".xojo_project", ".xojo_code", ".md", ".txt"}
# Where the files come from in the source folder, by their names in the release.
DOCUMENTS = {
    "README.txt": "packaging/README.txt",
    "CHANGELOG.md": "CHANGELOG.md",
    "LICENSE.txt": "LICENSE",
    "THIRD-PARTY-NOTICES.md": "THIRD-PARTY-NOTICES.md",
    "SelfTest/host-facts.md": "docs/host-facts.md",
}
# The folders with projects, likewise; each with the patterns of what belongs to it.
PROJECTS = {
    "Examples": ("examples", ["Examples.xojo_project", "Examples/*"]),
    "SelfTest": ("examples/SelfTest", ["**/*"]),
}


def project_files(source: pathlib.Path) -> dict[str, bytes]:
    files = {}
    for name, (folder, patterns) in PROJECTS.items():
        for pattern in patterns:
            for path in (source / folder).glob(pattern):
                if path.suffix in PROJECT_FILES:
                    place = path.relative_to(source / folder).as_posix()
                    files[f"{name}/{place}"] = path.read_bytes()
    return files


def readme_of(text: str, version: str) -> str:
    """The text with the release's version in its place."""
    number = version.split()[0]
    if "@VERSION@" not in text:
        sys.exit("make_release: README.txt has no place for the version")
    return text.replace("@VERSION@", version).replace("@NUMBER@", number)


def main() -> None:
    parser = argparse.ArgumentParser()
    for option in ("--package", "--help-page", "--project"):
        parser.add_argument(option, type=pathlib.Path, required=True)
    parser.add_argument("release", type=pathlib.Path)
    given = parser.parse_args()

    version = (given.project / "VERSION").read_text(encoding="utf-8").strip()
    files = {name: (given.project / path).read_bytes() for name, path in DOCUMENTS.items()}
    files["README.txt"] = readme_of(files["README.txt"].decode(), version).encode()
    files[given.package.name] = given.package.read_bytes()
    files["Help.html"] = given.help_page.read_bytes()
    files |= project_files(given.project)
    if not re.search(rf"-{re.escape(version.split()[0])}\.zip$", given.release.name):
        sys.exit(f"make_release: the name {given.release.name} has not the version {version}")
    write_archive(given.release, given.release.stem, files)


if __name__ == "__main__":
    main()
