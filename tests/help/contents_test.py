"""Compares the help with what the library registers and its recipes with what Python computes, follows
its links, and makes it a second time.

usage: contents_test.py HELP_FOLDER VERSION -- COMMAND...

COMMAND starts the stand-in host with the library.
"""

import collections
import decimal
import fractions
import html
import html.parser
import json
import math
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
            self.assertTrue(declarations)
            self.assertEqual(sorted(declarations), sorted(self.page.declarations))

    def test_every_parameter_is_in_a_table(self) -> None:
        """Its name, its type and its default as the declaration has them, and a range."""
        for declaration in self.page.declarations:
            inside = declaration[declaration.find("(") + 1 : declaration.rfind(")")]
            rows = self.page.cells("parameters", declaration)
            shown = [f"{name} as {kind.removeprefix('ByRef ')}"
                     + (f" = {default}" if default != "none" else "")
                     for name, kind, default, _ in rows]
            expected = [part.strip() for part in inside.split(",")] if "(" in declaration else []
            expected = [re.sub(r"(?i)^byref ", "", part).replace(" As ", " as ") for part in expected]
            self.assertEqual(shown, expected)
            self.assertTrue(all(row[3] for row in rows), declaration)

    def test_measured_members_show_their_accuracy(self) -> None:
        """As many rows as the document has under the name of the member, and the same figures."""
        document = (ROOT / "docs/accuracy.md").read_text(encoding="utf-8")
        measured = collections.defaultdict(list)
        for name, cells in re.findall(r"^\| ([\w ]+) \|(.*)\|$", document, re.MULTILINE):
            measured[name].append([cell.strip() for cell in cells.split("|")])
        for declaration, name in (
            ("Sin(value as BigNumberVQZ) as BigNumberVQZ", "Sin"),
            ("ACosh(value as BigNumberVQZ) as BigNumberVQZ", "ACosh"),
            ("Sqrt as BigNumberVQZ", "Sqrt"),
            ("Pi as BigNumberVQZ", "Pi"),
            ("Operator_Add(other as BigNumberVQZ) as BigNumberVQZ", "Add"),
            ("Pow(other as BigNumberVQZ) as BigNumberVQZ", "Pow"),
            ("DegToRad(value as BigNumberVQZ) as BigNumberVQZ", "DegToRad"),
            ("DegToRad(d as BigNumberVQZ, m as BigNumberVQZ, s as BigNumberVQZ) as BigNumberVQZ",
             "DegToRad of minutes"),
        ):
            shown = self.page.cells("measured", declaration)
            self.assertEqual(len(shown), len(measured[name]), name)
            for row, cells in zip(shown, measured[name]):
                self.assertTrue(set(row) <= set(cells), f"{name}: {row} of {cells}")
            self.assertTrue(shown, name)
        self.assertEqual(self.page.cells("measured", "IsZero as Boolean"), [])

    def test_every_name_in_the_log_is_in_its_table(self) -> None:
        rows = json.loads((self.folder / "members.json").read_text(encoding="utf-8"))["members"]
        names = {row[key]["logName"] for row in rows for key in ("routine", "setter") if key in row}
        table = self.page.cells("names", "")
        shown = {name for row in table for name in row[1].split(", ")}
        self.assertEqual(shown, names - {""})

    def test_every_member_has_a_block_of_text(self) -> None:
        text = (self.folder / "members.txt").read_text(encoding="utf-8")
        lines = [line for line in text.splitlines() if not line.startswith("? ")]
        heads = [after.split("  (")[0] for line, after in zip(lines, lines[1:]) if line[:3] == "== "]
        self.assertEqual(sorted(heads), sorted(self.page.declarations))

    def test_the_text_has_the_guides_and_their_words(self) -> None:
        text = (self.folder / "members.txt").read_text(encoding="utf-8")
        blocks = dict(re.findall(r"^=== (.*)\n((?:(?!==).*\n)*)", text, re.MULTILINE))
        page = (self.folder / "index.html").read_text(encoding="utf-8")
        titles = {html.unescape(title) for title in re.findall(
            r'<h3 id="(?:first-steps|recipes)-[^"]*">(.*?)<', page)}
        self.assertTrue(titles)
        self.assertEqual(titles - set(blocks), set())
        gcd = blocks["Greatest common divisor"]
        self.assertRegex(gcd, r"^\? gcd, euclid.*\nRecipes: Greatest common divisor\n\n\w")
        self.assertIn("    Print ", gcd)
        self.assertIn("Prints:\n    ", gcd)

    def test_the_prompt_finds_what_is_asked_for(self) -> None:
        """In the whole text: names within tables, and words that the text does not use itself."""
        topics = {
            "ErrorNumber": "Errors", "NilObjectException": "Errors", "OutOfBoundsException": "Errors",
            "conversion not supported": "Errors", "log2": "Log", "shift left": "Operator_Multiply",
            "min of two": "Operator_Compare", "leading zeros": "Text in any base and format",
            "mod inverse": "Integer power modulo n",
            "convert between classes": "Converting between the classes",
            "two classes": "Converting between the classes", "mix": "Converting between the classes",
            "1e3": "Text with a point and an exponent"}
        result = subprocess.run(
            [*self.command, "-i", "--documentation", self.folder / "members.txt"],
            input="".join(f"? {question}\n" for question in topics), capture_output=True, text=True,
            check=True)
        found = re.findall(r'^(Members|Guides)[^"]*"(.*)":\n((?:  .*\n)*)', result.stdout, re.MULTILINE)
        for question, title in topics.items():
            with self.subTest(question=question):
                hits = [lines for _, asked, lines in found if asked == question]
                self.assertIn(f"  {title}: ", "".join(hits))

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


class RecipesTest(unittest.TestCase):
    """What the recipes printed, compared with what Python computes."""

    page: str
    command: list[str]

    def printed(self, anchor: str) -> list[str]:
        """The lines below the program of a recipe."""
        recipe = self.page.split(f'<h3 id="recipes-{anchor}">')[1].split("</section>")[0]
        return html.unescape(re.search(r"<samp>(.*?)</samp>", recipe, re.DOTALL)[1]).splitlines()

    def test_integers(self) -> None:
        self.assertEqual(self.printed("integer-power-modulo-n"), [
            str(pow(2, 1000000, 10**9 + 7)), str(pow(3, -1, 10**9 + 7)),
            str(pow(3, 2**128, 10**37 + 61))])
        pair = (123456789012345678901234567890, 987654321098765432109876543210)
        self.assertEqual(self.printed("greatest-common-divisor"),
                         [str(math.gcd(*pair)), str(math.lcm(*pair))])
        self.assertEqual(self.printed("factorials"), [
            str(math.factorial(20)), str(math.factorial(52)),
            f"Hands of 13 cards: {math.comb(52, 13)}"])
        numbers = [0, 1]
        while len(numbers) <= 360:
            numbers.append(numbers[-2] + numbers[-1])
        self.assertEqual(self.printed("fibonacci-numbers"),
                         [str(numbers[n]) for n in (10, 100, 360)])

    def run_program(self, text: str) -> list[str]:
        return subprocess.run([*self.command, "-"], input=text, capture_output=True, text=True,
                              check=True).stdout.splitlines()

    def test_limits_of_factorials_and_fibonacci_numbers(self) -> None:
        """How far the recipes say that text in base 10, and the number itself, has every digit."""
        fibonacci = [0, 1]
        while len(fibonacci) <= 2953:
            fibonacci.append(fibonacci[-2] + fibonacci[-1])
        limits = {"BigNumberVQZ": ((65, 68), (370, 370)), "BiggerNumberVQZ": ((333, 341), (2951, 2952))}
        for name, (of_factorials, of_fibonacci) in limits.items():
            program = """
Sub Show(kind As String, i As Integer, n As CLASS)
  Print kind + " " + Str(i)
  Print n.GetStringValue(10, False, 1000)
  Print n.GetStringValue(16, False, 1000)
End Sub
Dim product As CLASS = "1"
For i As Integer = 1 To FACTORIALS
  product = product.Multiply(i)
  Show("factorial", i, product)
Next
Dim before As CLASS = "0"
Dim current As CLASS = "1"
For i As Integer = 1 To FIBONACCI
  Show("fibonacci", i, current)
  Dim sum As CLASS = before + current
  before = current
  current = sum
Next
"""
            for word, value in (("CLASS", name), ("FACTORIALS", of_factorials[1] + 1),
                                ("FIBONACCI", of_fibonacci[1] + 1)):
                program = program.replace(word, str(value))
            shown = {"factorial": [], "fibonacci": []}
            lines = iter(self.run_program(program))
            for heading, decimal_text, hexadecimal in zip(lines, lines, lines):
                kind, i = heading.split()
                exact = math.factorial(int(i)) if kind == "factorial" else fibonacci[int(i)]
                shown[kind].append((decimal_text == str(exact), int(hexadecimal, 16) == exact))
            for kind, (printed, held) in (("factorial", of_factorials), ("fibonacci", of_fibonacci)):
                with self.subTest(name=name, kind=kind):
                    self.assertEqual(shown[kind],
                                     [(i <= printed, i <= held) for i in range(1, held + 2)])

    def test_primes(self) -> None:
        """561 is a Carmichael number, the longer one a product of two primes, the last one Mersenne's."""
        self.assertEqual(self.printed("a-primality-test"), [
            "97 is prime", f"{3 * 11 * 17} is not prime", "1000000007 is prime",
            f"{1000000007 * 1000000009} is not prime", f"{2**127 - 1} is prime"])

    def test_continued_fractions(self) -> None:
        """Those of pi, and of 355/113, whose last term is 15 and 1 instead of 16 after the rounding."""
        rest = fractions.Fraction("3.14159265358979323846264338327950288")
        pi_terms = []
        for _ in range(6):
            pi_terms.append(rest.numerator // rest.denominator)
            rest = 1 / (rest - pi_terms[-1])
        lines = []
        for terms in (pi_terms, [3, 7, 15, 1]):
            for count in range(1, len(terms) + 1):
                value = fractions.Fraction(terms[count - 1])
                for term in reversed(terms[:count - 1]):
                    value = term + 1 / value
                lines.append(f"{terms[count - 1]}: {value.numerator}/{value.denominator}")
        self.assertEqual(lines[-1], "1: 355/113")
        self.assertEqual(self.printed("continued-fractions"), lines)

    def test_rounding_and_groups(self) -> None:
        values = ("0.5", "1.5", "2.5", "-2.5", "2.51")
        self.assertEqual(self.printed("rounding-half-to-even"),
                         [f"{value} becomes {round(decimal.Decimal(value))}" for value in values])
        grouped = f"{decimal.Decimal('-1234567.5'):,.2f}"
        self.assertEqual(self.printed("digits-in-groups"), [
            grouped, grouped.translate(str.maketrans(",.", ".,")), f"{2**100:,}".replace(",", " "),
            "0.00", "0.00", "NaN", "NaN"])

    def test_groups_with_marks_of_any_length(self) -> None:
        """GetStringValue takes one byte as its decimal mark; these have two bytes, or two characters."""
        recipe = self.page.split('<h3 id="recipes-digits-in-groups">')[1]
        code = re.sub("<[^>]*>", "", re.search(r"<code>(Func.*?|<.*?)</code></pre>", recipe, re.DOTALL)[1])
        function = html.unescape(code).partition("End Function")[0] + "End Function\n"
        calls = "".join(f'Print Grouped({value}, {places}, "{mark}", "{group}")\n' for
                        value, places, mark, group in (('"-1234.5"', 3, "\u00b7", "\u2009"),
                                                       ('"1234"', 0, ". ", ""), ('"0"', 1, "--", "")))
        self.assertEqual(self.run_program(function + calls), ["-1\u2009234\u00b7500", "1234", "0--0"])

    def test_converting_between_the_classes(self) -> None:
        """Three times the third, which the division cuts, in 2048 bits; what is exact; a large number."""
        third = fractions.Fraction(2**257 // 3, 2**257)
        with decimal.localcontext() as context:
            context.prec = 200
            product = decimal.Decimal((third * 3).numerator) / (third * 3).denominator
            shown = product.quantize(decimal.Decimal(10) ** -90, decimal.ROUND_HALF_UP)
        self.assertEqual(self.printed("converting-between-the-classes"),
                         [str(shown), "True", "False", "False", "True", "1e+5000"])

    def test_strict_reading(self) -> None:
        """Only what is a number in the format, and "12,34" in the one in which its comma is a mark."""
        self.assertEqual(self.printed("strict-reading-of-user-input"), [
            "1,234.5 in the US is 1234.5", "-1234.50 in the US is -1234.5",
            "1.234,5 in Germany is 1234.5", "12,34 in Germany is 12.34"])

    def test_sorting(self) -> None:
        numbers = [float(line) for line in self.printed("sorting-an-array")]
        self.assertEqual(numbers, sorted([12.5, -3, 1e30, 12.49, 0, 7]))

    def test_interest(self) -> None:
        cent, balance, lines = decimal.Decimal("0.01"), decimal.Decimal("10000.00"), []
        for year in range(1, 6):
            interest = (balance * decimal.Decimal("0.0375")).quantize(cent, decimal.ROUND_HALF_UP)
            balance += interest
            lines.append(f"{year}{interest:14,}{balance:14,}")
        self.assertEqual(self.printed("a-table-of-interest"), lines)


def main() -> None:
    separator = sys.argv.index("--")
    folder, ContentsTest.version = sys.argv[1:separator]
    ContentsTest.folder = pathlib.Path(folder)
    RecipesTest.page = (ContentsTest.folder / "index.html").read_text(encoding="utf-8")
    RecipesTest.command = ContentsTest.command = sys.argv[separator + 1 :]
    unittest.main(argv=sys.argv[:1])


if __name__ == "__main__":
    main()
