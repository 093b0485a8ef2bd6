"""Compares the help with what the library registers, follows its links, and makes it a second time.

usage: contents_test.py HELP_FOLDER VERSION -- COMMAND...

COMMAND starts the stand-in host with the library.
"""

import collections
import html.parser
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
CLASSES = ("BigNumberVQZ", "BiggerNumberVQZ")


class Page(html.parser.HTMLParser):
    """What the tests ask about a page: its anchors, its links, the declarations in it, and the rows of
    its tables by the class of the table and the member, a list of cells each."""

    def __init__(self, text: str):
        super().__init__()
        self.anchors: list[str] = []
        self.links: list[str] = []
        self.declarations: list[str] = []
        self.in_declaration = False
        self.rows: dict[tuple[str, str], list[list[str]]] = collections.defaultdict(list)
        self.table = ""
        self.in_cell = False
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        if "id" in values:
            self.anchors.append(values["id"])
        for name in ("href", "src"):
            if name in values:
                self.links.append(values[name])
        if values.get("class") == "declaration":
            self.in_declaration = True
            self.declarations.append("")
        if tag == "table":
            self.table = values.get("class", "")
        elif tag == "tr":
            self.current_rows().append([])
        elif tag == "td":
            self.in_cell = True
            self.current_rows()[-1].append("")

    def current_rows(self) -> list[list[str]]:
        return self.rows[self.table, self.declarations[-1] if self.declarations else ""]

    def handle_endtag(self, tag):
        if tag == "pre":
            self.in_declaration = False
        if tag == "td":
            self.in_cell = False

    def handle_data(self, data):
        if self.in_declaration:
            self.declarations[-1] += data
        if self.in_cell:
            self.current_rows()[-1][-1] += data

    def cells(self, table: str, declaration: str) -> list[list[str]]:
        """The rows of a member's table that have cells, without those of its head."""
        return [row for row in self.rows[table, declaration] if row]


def registered(listing: str) -> dict[str, list[str]]:
    """The declarations of each class in what --list prints."""
    classes = collections.defaultdict(list)
    name = ""
    for line in listing.splitlines():
        if line.startswith("Class "):
            name = line.split()[1]
        elif line.startswith("  "):
            words = line.strip().removeprefix("Shared ").split("  (")[0]
            classes[name].append(words.partition(" ")[2])
    return classes


class ContentsTest(unittest.TestCase):
    folder: pathlib.Path
    version: str
    command: list[str]

    def setUp(self) -> None:
        self.page = Page((self.folder / "index.html").read_text(encoding="utf-8"))

    def test_every_member_is_told(self) -> None:
        result = subprocess.run([*self.command, "--list"], capture_output=True, text=True, check=True)
        classes = registered(result.stdout)
        for name in CLASSES:
            declarations = [d.replace(name, CLASSES[0]) for d in classes[name]]
            self.assertEqual(len(declarations), 122)
            self.assertEqual(sorted(declarations), sorted(self.page.declarations))

    def test_every_parameter_is_in_a_table(self) -> None:
        """Its name, its type and its default as the declaration has them, and a range."""
        for declaration in self.page.declarations:
            inside = declaration[declaration.find("(") + 1 : declaration.rfind(")")]
            rows = self.page.cells("parameters", declaration)
            shown = [f"{name} as {kind}".replace("as ByRef ", "as ") + f" = {default}" * (default != "none")
                     for name, kind, default, _ in rows]
            expected = [part.strip() for part in inside.split(",")] if "(" in declaration else []
            expected = [re.sub(r"(?i)^byref ", "", part).replace(" As ", " as ") for part in expected]
            self.assertEqual(shown, expected)
            self.assertTrue(all(row[3] for row in rows), declaration)

    def test_measured_members_show_their_accuracy(self) -> None:
        """As many rows as the document has for them, under the same name."""
        document = (ROOT / "docs/accuracy.md").read_text(encoding="utf-8")
        measured = collections.Counter(re.findall(r"^\| `?(\w+)`? \|", document, re.MULTILINE))
        shown = collections.Counter()
        for declaration in self.page.declarations:
            name = re.match(r"\w+", declaration)[0]
            shown[name] = max(shown[name], len(self.page.cells("measured", declaration)))
        for name in ("Sin", "ACosh", "Sqrt", "Multiply", "Pow", "Pi"):
            self.assertGreater(measured[name], 0)
            self.assertEqual(shown[name], measured[name], name)
        self.assertEqual(shown["Operator_Add"], measured["Add"])
        self.assertEqual(shown["IsZero"], 0)

    def test_every_name_in_the_log_is_in_its_table(self) -> None:
        rows = json.loads((self.folder / "members.json").read_text(encoding="utf-8"))["members"]
        names = {row[key]["logName"] for row in rows for key in ("routine", "setter") if key in row}
        table = self.page.cells("names", "")
        shown = {name for row in table for name in row[1].split(", ")}
        self.assertEqual(shown, names - {""})

    def test_every_member_has_a_block_of_text(self) -> None:
        lines = (self.folder / "members.txt").read_text(encoding="utf-8").splitlines()
        heads = [after.split("  (")[0] for line, after in zip(lines, lines[1:]) if line[:3] == "== "]
        self.assertEqual(sorted(heads), sorted(self.page.declarations))

    def test_links_lead_somewhere_in_the_page(self) -> None:
        self.assertEqual(len(self.page.anchors), len(set(self.page.anchors)))
        targets = {f"#{anchor}" for anchor in self.page.anchors}
        self.assertEqual([link for link in self.page.links if link not in targets], [])

    def test_made_again_it_is_the_same(self) -> None:
        with tempfile.TemporaryDirectory() as again:
            subprocess.run(
                [ROOT / "scripts/python", "build", ROOT / "help/make_help.py",
                 self.folder / "members.json", self.version, again, "--", *self.command],
                check=True)
            for name in ("index.html", "members.txt"):
                first, second = ((folder / name).read_bytes()
                                 for folder in (self.folder, pathlib.Path(again)))
                self.assertEqual(first, second, name)


def main() -> None:
    separator = sys.argv.index("--")
    folder, ContentsTest.version = sys.argv[1:separator]
    ContentsTest.folder = pathlib.Path(folder)
    ContentsTest.command = sys.argv[separator + 1 :]
    unittest.main(argv=sys.argv[:1])


if __name__ == "__main__":
    main()
