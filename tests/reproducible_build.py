"""A second build of the same sources in another place gives the same bytes.

usage: reproducible_build.py SOURCE_FOLDER TARGET FILE... -- BUILD_SETTING...

TARGET makes the FILEs, each at the top of the folder that it is built in. BUILD_SETTING is a -D word with
which CMake configures the same build again.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

NOT_SOURCES = shutil.ignore_patterns("build", ".deps", ".git", "__pycache__")


def main() -> None:
    separator = sys.argv.index("--")
    source, target, *files = sys.argv[1:separator]
    settings = sys.argv[separator + 1 :]
    dependencies = os.environ.get("BIGNUMBERVQZ_DEPS", f"{source}/.deps")
    environment = dict(os.environ, CCACHE_DISABLE="1", BIGNUMBERVQZ_DEPS=dependencies)

    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder, "another place for the sources")
        build = pathlib.Path(folder, "build")
        shutil.copytree(source, copy, ignore=NOT_SOURCES)
        for command in (
            ["cmake", "-S", copy, "-B", build, "-G", "Ninja", *settings],
            ["cmake", "--build", build, "--target", target],
        ):
            subprocess.run(command, env=environment, check=True)
        for first in map(pathlib.Path, files):
            again = build / first.name
            if again.read_bytes() != first.read_bytes():
                sys.exit(f"{first.name} is not the same a second time")


if __name__ == "__main__":
    main()
