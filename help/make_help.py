"""Makes the help: index.html, one page that needs nothing else, and members.txt, a plain text.

usage: make_help.py MEMBERS.json VERSION OUTPUT_FOLDER -- COMMAND...

COMMAND starts the stand-in host, which runs every example; an example that does not do what it is
there to show ends this program with an error.
"""

import pathlib
import sys
import textwrap

import jinja2

import markup
import speed
from examples import ExampleError, ExampleRunner
from members import Member, read_sections

HERE = pathlib.Path(__file__).resolve().parent
DOCS = HERE.parent / "docs"

# What the guides are called in their folder, in the order of the page.
INTRODUCTION = ["purpose", "installation", "first_steps"]
GUIDES = ["money", "text", "saving", "errors", "nan_and_nil", "accuracy", "speed", "debug_log", "hosts"]
SURPRISES = ["surprises"]


def read_guides(names: list[str], runner: ExampleRunner) -> list[markup.Guide]:
    return [markup.Guide((HERE / "guides" / f"{name}.md").read_text(encoding="utf-8"), 1, runner)
            for name in names]


def measured_accuracy(runner: ExampleRunner) -> markup.Guide:
    """What docs/accuracy.md tells, but for how the figures are measured again."""
    text = (DOCS / "accuracy.md").read_text(encoding="utf-8")
    return markup.Guide(text.partition("\n## Measuring")[0], 1, runner)


def indented(text: str) -> str:
    return textwrap.indent(text, "    ") + "\n"


def plain_text(member: Member) -> str:
    """A member's block of members.txt."""
    notes = f"  ({', '.join(member.notes)})" if member.notes else ""
    lines = [f"== {member.name}", member.declaration + notes, ""]
    lines += textwrap.wrap(f"{member.summary} {member.details}".replace("`", ""), 78)
    lines += [f"Units: {member.units}"] if member.units else []
    lines += [f"Range: {member.range}"] if member.range else []
    if member.fails:
        lines += textwrap.wrap(f"Fails for {member.fails}.", 78)
    lines += [f'Message: "{message}"' for message in member.messages]
    lines += [f"Debug log: {', '.join(member.log_names) or 'nothing'}"]
    text = "\n".join(lines) + "\n\nExample:\n" + indented(member.example.code)
    return text + "Prints:\n" + indented(member.example.output) + "\n"


def main() -> None:
    rows, version, folder = sys.argv[1:4]
    runner = ExampleRunner(sys.argv[5:])
    sections = read_sections(pathlib.Path(rows), runner)
    members = [member for section in sections for member in section.members]
    parts = [read_guides(names, runner) for names in (INTRODUCTION, GUIDES, SURPRISES)]
    accuracy = measured_accuracy(runner)
    try:
        runner.run()
        for member in members:
            member.check()
    except ExampleError as error:
        sys.exit(f"make_help.py: {error}")

    environment = jinja2.Environment(
        loader=jinja2.FileSystemLoader(HERE / "page"), autoescape=True, trim_blocks=True,
        lstrip_blocks=True, undefined=jinja2.StrictUndefined)
    page = environment.get_template("index.html.jinja").render(
        version=version, sections=sections, example=markup.example, anchor_of=markup.anchor_of,
        program=markup.program, with_places=markup.with_places,
        with_code=markup.with_code, count=len(members),
        introduction=parts[0], guides=parts[1], surprises=parts[2],
        appendices={"accuracy": accuracy.html(), "speed": speed.measured(DOCS)},
        style=(HERE / "page" / "style.css").read_text(encoding="utf-8"),
        script=(HERE / "page" / "script.js").read_text(encoding="utf-8"))
    output = pathlib.Path(folder)
    (output / "index.html").write_text(page, encoding="utf-8", newline="\n")
    by_name = sorted(members, key=lambda member: member.name.lower())
    (output / "members.txt").write_text("".join(map(plain_text, by_name)), encoding="utf-8",
                                        newline="\n")


if __name__ == "__main__":
    main()
