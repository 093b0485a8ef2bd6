"""Makes the help: index.html, one page that needs nothing else, and members.txt, a plain text for the prompt.

usage: make_help.py MEMBERS.json VERSION OUTPUT_FOLDER -- COMMAND...

COMMAND starts the stand-in host, which runs every example; an example that does not do what it is
there to show ends this program with an error.
"""

import dataclasses
import pathlib
import sys
import textwrap

import jinja2

import markup
import speed
from accuracy import AccuracyRows
from examples import ExampleError, ExampleRunner
from members import NUMBER_CLASS, Member, read_sections
from page_data import PageData

HERE = pathlib.Path(__file__).resolve().parent
DOCS = HERE.parent / "docs"

# The headings of the contents, and the files of the guides below each, in the order of the page.
CHAPTERS = {
    "Start": ["purpose", "installation", "first_steps"],
    "Guides": ["money", "text", "saving", "errors", "nan_and_nil", "accuracy", "speed", "debug_log",
               "hosts", "surprises"],
    "Recipes": ["recipes"],
}
# A guide whose parts the contents show one by one.
WITH_PARTS = "recipes"

# How many guides a member links to at most because they mention it.
MENTIONS = 3


@dataclasses.dataclass
class Link:
    """A link within the page."""

    anchor: str
    label: str
    is_code: bool  # whether the label is a word of the language


def read_guides(runner: ExampleRunner) -> dict[str, list[markup.Guide]]:
    """The guides of each chapter; their examples wait to be run."""
    return {
        title: [markup.Guide((HERE / "guides" / f"{name}.md").read_text(encoding="utf-8"), runner)
                for name in names]
        for title, names in CHAPTERS.items()}


def measured_accuracy(document: str, runner: ExampleRunner) -> markup.Guide:
    """What docs/accuracy.md says, but for how the figures are measured again."""
    return markup.Guide(document.partition("\n## Measuring")[0], runner)


def links_of(member: Member, labels: dict[str, Link], guides: list[markup.Guide],
             data: PageData) -> tuple[list[Link], list[Link]]:
    """The members and the guides that a member links to."""
    related = [labels[anchor] for anchor in data.related(member.anchor)]
    mentioned = [labels[part.anchor] for guide in guides for part in guide.parts
                 if part.mentions(member.name)][:MENTIONS]
    guides_of = [link for link in related if not link.is_code]
    guides_of += [link for link in mentioned if link not in guides_of]
    return [link for link in related if link.is_code], guides_of


def other_words(anchor: str, data: PageData, inner: list[str] = ()) -> list[str]:
    """The line of members.txt with other words to find a block by, where there are any: those of the
    data and those in its inside."""
    words = [*data.words.get(anchor, []), *inner]
    return [f"? {', '.join(words)}"] if words else []


def guide_text(guide: markup.Guide, part: markup.Part, data: PageData) -> str:
    """The block of members.txt for a part of a guide."""
    place = part.title if part is guide.parts[0] else f"{guide.title}: {part.title}"
    lines = [f"=== {part.title}", *other_words(part.anchor, data, part.table_cells), place, ""]
    return "\n".join(lines) + "\n" + part.text + "\n"


def plain_text(member: Member, data: PageData) -> str:
    """A member's block of members.txt."""
    notes = f"  ({', '.join(member.notes)})" if member.notes else ""
    lines = [f"== {member.name}", *other_words(member.anchor, data), member.declaration + notes, ""]
    lines += textwrap.wrap(f"{member.summary} {member.details}".replace("`", ""), 78)
    lines += [f"Units: {member.units}"] if member.units else []
    lines += [f"Range: {member.range}"] if member.range else []
    if member.fails:
        lines += textwrap.wrap(f"Fails for {member.fails}.", 78)
    lines += [f'Message: "{message}"' for message in member.messages]
    lines += [f"Debug log: {', '.join(member.log_names) or 'nothing'}"]
    text = "\n".join(lines) + "\n\nExample:\n" + markup.indented(member.example.code)
    return text + "Prints:\n" + markup.indented(member.example.output) + "\n"


def by_name(members: list[Member]) -> list[Member]:
    return sorted(members, key=lambda member: member.name.lower())


def main() -> None:
    rows, version, folder = sys.argv[1:4]
    runner = ExampleRunner(sys.argv[5:])
    document = (DOCS / "accuracy.md").read_text(encoding="utf-8")
    chapters = read_guides(runner)
    guides = [guide for chapter in chapters.values() for guide in chapter]
    accuracy = measured_accuracy(document, runner)
    measured_rows = AccuracyRows(document)
    try:
        data = PageData(HERE / "data", NUMBER_CLASS)
        sections = read_sections(pathlib.Path(rows), runner)
        members = [member for section in sections for member in section.members]
        runner.run()
        for member in members:
            member.check()
            member.parameters = data.parameters(member.anchor, member.declaration)
            member.accuracy = measured_rows.of(
                member.name, [parameter.type for parameter in member.parameters])
        for guide in [*guides, accuracy]:
            guide.render()
        next(guide for guide in guides if guide.anchor == "accuracy").append(accuracy)
        data.check({member.anchor for member in members},
                   {part.anchor for guide in guides for part in guide.parts})
    except ExampleError as error:
        sys.exit(f"make_help.py: {error}")

    environment = jinja2.Environment(
        loader=jinja2.FileSystemLoader(HERE / "page"), autoescape=True, trim_blocks=True,
        lstrip_blocks=True, undefined=jinja2.StrictUndefined)
    appendices = {
        "speed": speed.measured(DOCS),
        "the-debug-log": environment.get_template("log_names.html.jinja").render(
            members=[member for member in by_name(members) if member.log_names]),
    }
    for guide in guides:
        guide.parts[-1].html += appendices.get(guide.anchor, "")

    labels = {member.anchor: Link(member.anchor, member.label, True) for member in members}
    for guide in guides:
        for part in guide.parts:
            labels.setdefault(part.anchor, Link(part.anchor, part.title, False))
    page = environment.get_template("index.html.jinja").render(
        version=version, chapters=chapters, sections=sections, count=len(members),
        with_parts=WITH_PARTS, words=data.words,
        links_of=lambda member: links_of(member, labels, guides, data),
        example=markup.example, anchor_of=markup.anchor_of, program=markup.program,
        with_places=markup.with_places, with_code=markup.with_code,
        style=(HERE / "page" / "style.css").read_text(encoding="utf-8"),
        script=(HERE / "page" / "script.js").read_text(encoding="utf-8"))
    output = pathlib.Path(folder)
    (output / "index.html").write_text(page, encoding="utf-8", newline="\n")
    blocks = [plain_text(member, data) for member in by_name(members)]
    blocks += [guide_text(guide, part, data) for guide in guides for part in guide.parts if part.text]
    (output / "members.txt").write_text("".join(blocks), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
