#!/usr/bin/env python3
"""Runs a short benchmark and checks that it measured what it says it measures."""
import json
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def main():
    with tempfile.TemporaryDirectory() as folder:
        figures = Path(folder) / "figures.json"
        run = subprocess.run([ROOT / "benchmark", "--quick", "--json", figures],
                             capture_output=True, text=True, check=False)
        if run.returncode != 0:
            sys.exit(f"./benchmark ended with {run.returncode}:\n{run.stderr}")
        rows = json.loads(figures.read_text())["results"]

    faults = [f"no time of {row}" for row in rows if not row["median_ns"] > 0]
    measured = {(row["bits"], row["operation"], row["contender"]) for row in rows}
    wanted = {(bits, operation, contender)
              for bits in (256, 2048)
              for operation in ("add", "multiply", "sin", "to text", "abs")
              for contender in ("stock", "plug-in")}
    faults += [f"not measured: {key}" for key in sorted(wanted - measured)]
    closing = run.stdout.splitlines()[-1]
    if "times stock at least" not in closing:
        faults.append(f"the last line is no summary: {closing}")
    if faults:
        sys.exit("\n".join(faults))


if __name__ == "__main__":
    main()
