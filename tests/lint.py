"""Checks the style of the sources.

usage: lint.py format SOURCE_FOLDER
       lint.py cppcheck SOURCE_FOLDER
       lint.py tidy SOURCE_FOLDER BUILD_FOLDER

`format` holds every C++ file against .clang-format. `cppcheck` runs that over all but the tests: its
false alarms are marked in the source, with the reason. `tidy` runs clang-tidy over what the build
compiles, most thoroughly over what gets into the library, and over the tests only where
BIGNUMBERVQZ_LINT_TESTS is set in the environment, since they take as long as all else. A file that
was found clean is not looked at again until something changes that it may depend on.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

FOLDERS = ["bench", "help", "host", "interface", "number", "platform", "plugin", "standin", "tests"]
DELIVERED = ["host", "interface", "number", "platform", "plugin"]
# clang-tidy finds the style file and the flags by itself; what GCC knows and Clang does not, passes.
TIDY = ["clang-tidy", "--quiet", "--extra-arg=-Wno-unknown-warning-option"]
WITH_TESTS = "BIGNUMBERVQZ_LINT_TESTS"
# Each file has to include what it uses, and GCC's precompiled headers are none of Clang's.
PRECOMPILED = re.compile(r" -Winvalid-pch| -include \S*cmake_pch\.hxx")


def sources(root: pathlib.Path, pattern: str) -> list[pathlib.Path]:
    return sorted(path for folder in FOLDERS for path in (root / folder).rglob(pattern))


def check_format(root: pathlib.Path) -> bool:
    files = sources(root, "*.[ch]pp")
    return subprocess.run(["clang-format", "--dry-run", "-Werror", *files], check=False).returncode == 0


def check_cppcheck(root: pathlib.Path) -> bool:
    command = [
        "cppcheck",
        "--quiet",
        "--error-exitcode=1",
        "--enable=warning,performance,portability",
        "--inline-suppr",
        "--language=c++",
        "--std=c++20",
        "--platform=unix32",
        "-I.",
        # The kernels are always compiled with it; `--force` keeps the other configurations.
        "-DBIGNUMBER_KERNELS",
        "--force",
        # cppcheck 2.10 does not read lambdas with template parameters, and gives up their file.
        "--suppress=syntaxError:standin/language/operations.cpp",
    ]
    folders = [folder for folder in FOLDERS if folder != "tests"]
    return subprocess.run([*command, *folders], cwd=root, check=False).returncode == 0


def digest(parts: list[bytes]) -> str:
    joined = hashlib.sha256()
    for part in parts:
        joined.update(hashlib.sha256(part).digest())
    return joined.hexdigest()


class Tidy:
    """clang-tidy over the files of a build, with a note of what was found clean."""

    def __init__(self, root: pathlib.Path, build: pathlib.Path):
        self.root = root
        self.notes = build / "tidy"
        self.notes.mkdir(exist_ok=True)
        self.entries = [
            {**entry, "command": PRECOMPILED.sub("", entry["command"])}
            for entry in json.loads((build / "compile_commands.json").read_text())
            if build not in pathlib.Path(entry["file"]).parents
        ]
        (self.notes / "compile_commands.json").write_text(json.dumps(self.entries))
        headers = sources(root, "*.hpp")
        version = subprocess.run([*TIDY, "--version"], capture_output=True, check=True).stdout
        self.shared = [version, (root / ".clang-tidy").read_bytes(), *map(pathlib.Path.read_bytes, headers)]

    def is_clean(self, entry: dict) -> bool:
        source = pathlib.Path(entry["file"])
        note = self.notes / digest([*self.shared, entry["command"].encode(), source.read_bytes()])
        if note.exists():
            return True
        # The search for faulty paths takes half of the time, which is for what users get.
        is_delivered = any((self.root / folder) in source.parents for folder in DELIVERED)
        checks = [] if is_delivered else ["--checks=-clang-analyzer-*"]
        result = subprocess.run(
            [*TIDY, *checks, "-p", str(self.notes), str(source)], capture_output=True, text=True, check=False
        )
        if result.returncode == 0:
            note.touch()
            return True
        print(result.stdout, result.stderr, sep="\n", flush=True)
        return False


def check_tidy(root: pathlib.Path, build: pathlib.Path) -> bool:
    tidy = Tidy(root, build)
    folders = [root / folder for folder in FOLDERS if folder != "tests" or os.environ.get(WITH_TESTS)]
    # A file that is compiled in several ways is looked at in one of them.
    by_file = {
        entry["file"]: entry
        for entry in tidy.entries
        if any(folder in pathlib.Path(entry["file"]).parents for folder in folders)
    }
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return all(list(pool.map(tidy.is_clean, by_file.values())))


def main() -> None:
    check, *folders = sys.argv[1:]
    checks = {"format": check_format, "cppcheck": check_cppcheck, "tidy": check_tidy}
    sys.exit(0 if checks[check](*map(pathlib.Path, folders)) else 1)


if __name__ == "__main__":
    main()
