"""Lets a fuzz target try inputs until one breaks something or the count is reached.

usage: run_fuzzer.py TARGET COUNT BUILD_FOLDER INPUTS_FOLDER

The kept inputs come first; with INPUTS_FOLDER.dict beside them its words are used. The environment
variable BIGNUMBERVQZ_FUZZ_FACTOR multiplies the count. The same sources and count try the same
inputs. An input that breaks something is written to BUILD_FOLDER; shortened by the target's option
-minimize_crash=1 it belongs into INPUTS_FOLDER, where every build replays it.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

LONGEST_INPUT = 4096
SECONDS_FOR_ONE_INPUT = 300
MEGABYTES = 2500


def main() -> None:
    target, count, build, inputs = sys.argv[1:]
    runs = int(count) * int(os.environ.get("BIGNUMBERVQZ_FUZZ_FACTOR", "1"))
    dictionary = pathlib.Path(f"{inputs}.dict")
    with tempfile.TemporaryDirectory() as corpus:
        command = [
            target,
            f"-runs={runs}",
            "-seed=1",
            f"-max_len={LONGEST_INPUT}",
            f"-timeout={SECONDS_FOR_ONE_INPUT}",
            f"-rss_limit_mb={MEGABYTES}",
            f"-artifact_prefix={build}/",
            "-print_final_stats=1",
            *([f"-dict={dictionary}"] if dictionary.exists() else []),
            corpus,
            inputs,
        ]
        sys.exit(subprocess.run(command, stderr=subprocess.STDOUT, check=False).returncode)


if __name__ == "__main__":
    main()
