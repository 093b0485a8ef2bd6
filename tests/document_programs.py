"""Runs the programs that a Markdown document shows, and compares what they print with the document.

usage: document_programs.py DOCUMENT.md -- COMMAND...

A block of code of the kind `vb` whose first line is a comment with a file's name is a program; a
block of the kind `console` shows calls of ./run, each followed by what it prints. COMMAND takes the
place of ./run and of its choice between the two libraries. A program that no call runs is an error.
"""

import pathlib
import re
import shlex
import sys
import tempfile

import output_check

BLOCK = re.compile(r"^```(\w+)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
PROGRAM_NAME = re.compile(r"' (\w+\.xojo_script)\n")
CALL = re.compile(r"^\$ \./run (.*)\n((?:(?!\$ ).*\n)*)", re.MULTILINE)


def blocks(text: str, kind: str) -> list[str]:
    return [content for found, content in BLOCK.findall(text) if found == kind]


def calls(text: str) -> list[tuple[list[str], str]]:
    """The words of each call and what it prints."""
    return [(shlex.split(words), output)
            for block in blocks(text, "console") for words, output in CALL.findall(block)]


def programs(text: str) -> dict[str, str]:
    named = ((PROGRAM_NAME.match(block), block) for block in blocks(text, "vb"))
    return {name[1]: block for name, block in named if name}


def main() -> None:
    document, command = pathlib.Path(sys.argv[1]), sys.argv[3:]
    text = document.read_text(encoding="utf-8")
    shown_programs, shown_calls = programs(text), calls(text)
    if not shown_calls:
        sys.exit("the document shows no call")
    for name in shown_programs:
        if not any(name in words for words, _ in shown_calls):
            sys.exit(f"no call shows what {name} prints")

    with tempfile.TemporaryDirectory() as folder:
        for name, program in shown_programs.items():
            (pathlib.Path(folder) / name).write_text(program, encoding="utf-8")
        for words, output in shown_calls:
            words = [f"{folder}/{word}" if word in shown_programs else word
                     for word in words if word != "--native"]
            result = output_check.run([*command, *words])
            problem = output_check.difference(output.encode(), result.stdout)
            output_check.report([problem] if problem else [], result)


if __name__ == "__main__":
    main()
