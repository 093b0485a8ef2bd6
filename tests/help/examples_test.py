"""Tests that the help is not made of examples and texts that are wrong.

usage: examples_test.py COMMAND...

COMMAND starts the stand-in host with the library.
"""

import json
import pathlib
import re
import sys
import tempfile
import unittest
from xml.etree import ElementTree

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "help"))

import speed  # noqa: E402
from accuracy import AccuracyRows  # noqa: E402
from examples import ExampleError, ExampleRunner, Kind  # noqa: E402
from members import NUMBER_CLASS, Accessor, read_member  # noqa: E402
from page_data import PageData, Parameter, parameters_of  # noqa: E402

SVG = "{http://www.w3.org/2000/svg}"
SQRT = {
    "declaration": "Sqrt as BigNumberVQZ",
    "isProperty": False,
    "isShared": False,
    "isHidden": False,
    "routine": {
        "logName": "Sqrt",
        "canFail": True,
        "message": "Sqrt operation failed with number A.",
    },
    "section": "Powers",
    "summary": "The square root.",
    "details": "",
    "units": "",
    "range": "",
    "fails": "negative numbers",
    "example": 'Print BigNumberVQZ.NumberWithString("4").Sqrt',
    "failing": 'Print BigNumberVQZ.NumberWithString("-4").Sqrt',
}


class RunnerTest(unittest.TestCase):
    command: list[str]

    def output(self, code: str, kind: Kind, *options: str) -> str:
        runner = ExampleRunner(self.command)
        before = runner.add("before", 'Print "before"')
        example = runner.add("title", code, kind, options)
        runner.run()
        self.assertEqual(before.output, "before")
        return example.output

    def test_each_kind_shows_what_comes_of_it(self) -> None:
        self.assertEqual(self.output('Print "a"\nPrint ""\nPrint "b"', Kind.PRINTS), "a\n\nb")
        self.assertEqual(self.output('Print "a"', Kind.PRINTS, "--host-version", "2012"), "a")
        self.assertEqual(self.output('Raise New RuntimeException("no", 0)', Kind.RAISES),
                         "RuntimeException: no")
        self.assertIn("cannot stand between", self.output("Print BigNumberVQZ.Pi + 1", Kind.REJECTED))
        logged = "BigNumberVQZ.Debugging = True\nPrint BigNumberVQZ.Abs(Nil)"
        self.assertTrue(self.output(logged, Kind.LOGS).startswith("VQZ Debug: Abs"))

    def test_routines_of_an_example_serve_later_ones(self) -> None:
        runner = ExampleRunner(self.command)
        square = "Function Square(n As Integer) As Integer\n  Return n * n\nEnd Function\n\n"
        first = runner.add("first", square + "Print Str(Square(3))")
        second = runner.add("second", "Print Str(Square(4))")
        runner.run()
        self.assertEqual((first.output, second.output), ("9", "16"))

    def test_what_shows_something_else_is_refused(self) -> None:
        for code, kind in (
            ("Dim a As Integer", Kind.PRINTS),
            ('Raise New RuntimeException("no", 0)', Kind.PRINTS),
            ("Print undeclared", Kind.PRINTS),
            ('Print "a"', Kind.RAISES),
            ('Print "a"', Kind.LOGS),
            ('Print "a"', Kind.REJECTED),
        ):
            with self.subTest(code=code, kind=kind), self.assertRaises(ExampleError):
                self.output(code, kind)


class MemberTest(unittest.TestCase):
    command: list[str]

    def check(self, **changes) -> None:
        runner = ExampleRunner(self.command)
        member = read_member(SQRT | changes, "Sqrt", "sqrt", runner)
        runner.run()
        member.check()

    def test_sound_member(self) -> None:
        self.check()

    def test_contradictions_are_refused(self) -> None:
        for changes in (
            {"fails": ""},
            {"failing": ""},
            {"routine": SQRT["routine"] | {"canFail": False, "message": ""}},
            {"routine": SQRT["routine"] | {"message": "Root operation failed with number A."}},
            {"routine": SQRT["routine"] | {"message": "Sqrt operation failed."}},
        ):
            with self.subTest(changes=changes), self.assertRaises(ExampleError):
                self.check(**changes)

    def test_messages_fit_with_any_numbers(self) -> None:
        head = "BigNumberErrorExceptionVQZ: "
        two = Accessor("Add", True, "Add operation failed with numbers A and B.")
        self.assertTrue(two.fits(head + "Add operation failed with numbers -1.5 and nil."))
        self.assertFalse(two.fits(head + "Add operation failed with number -1.5."))
        self.assertFalse(two.fits("Add operation failed with numbers 1 and 2."))


class SpeedTest(unittest.TestCase):
    def setUp(self) -> None:
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def test_nothing_measured(self) -> None:
        self.assertEqual(speed.measured(self.folder), "")

    def test_figures(self) -> None:
        """The plug-in's own calls, without the host's part, the smaller class first."""
        rows = [
            {"operation": operation, "bits": bits, "contender": contender, "group": group,
             "median_ns": median, "host_part_ns": 50}
            for operation, bits, contender, group, median in (
                ("add", 2048, "plug-in", "basic", 1284),
                ("add", 256, "plug-in", "basic", 84),
                ("add", 256, "stock", "basic", 1),
                ("host: object", 256, "plug-in", "host", 1),
                ("exp", 2048, "plug-in", "function", 13_900_050))
        ]
        (self.folder / "speed.json").write_text(json.dumps({"results": rows}), encoding="utf-8")
        cells = re.findall(r"<td[^>]*>([^<]*)</td>", speed.measured(self.folder))
        self.assertEqual(cells, ["add", "0.034", "1.23", "exp", "", "13,900"])

    def test_chart(self) -> None:
        """Ratios of arithmetic alone, on an axis of plain numbers from 1 to the next power of ten."""
        rows = [
            {"operation": operation, "bits": bits, "contender": contender, "group": group,
             "median_ns": median, "host_part_ns": 0}
            for operation, bits, contender, group, median in (
                ("sin", 256, "stock", "function", 2000), ("sin", 256, "library", "function", 20),
                ("sin", 2048, "stock", "function", 44000), ("sin", 2048, "library", "function", 100),
                ("add", 256, "stock", "basic", 9), ("add", 256, "library", "basic", 10),
                ("getter", 256, "stock", "call", 9), ("getter", 256, "library", "call", 1),
                ("only stock", 256, "stock", "basic", 9))
        ]
        chart = speed.chart(rows)
        self.assertEqual(re.findall(r"<b>([^<]*)</b>", chart), ["100.0", "440.0", "0.9"])
        self.assertEqual(re.findall(r'style="width:([^"]*)"', chart), ["66.7%", "88.1%", "0.0%"])
        self.assertEqual(re.findall(r'style="left:[^"]*">([^<]*)<', chart), ["1", "10", "100", "1,000"])
        self.assertEqual(re.findall(r"<th>([^<]*)</th>", chart), ["Operation", "sin", "add"])
        picture = speed.picture(rows)
        texts = [text.text for text in ElementTree.fromstring(picture).iter(f"{SVG}text")]
        self.assertEqual(texts, ["BigNumberVQZ", "BiggerNumberVQZ", "1", "10", "100", "1,000",
                                 "sin", "100.0", "440.0", "add", "0.9"])
        self.assertEqual(picture.count("prefers-color-scheme: dark"), 1)

    def test_nothing_to_compare(self) -> None:
        self.assertEqual(speed.chart([]), "")


class AccuracyTest(unittest.TestCase):
    def test_rows_go_by_the_names_of_the_columns(self) -> None:
        rows = AccuracyRows(
            "| page | sum |\n|---|---|\n| Sin | 5 |\n\n"
            "| arguments | values | member | 256 bits |\n|---|---:|---|---:|\n"
            "| to 8 | 34 | `Sin`, Cos and Tan | 9.45 |\n| close to 0 | 3 | Sin | 2^7 |\n"
            "| all | 5 | Add |  |\n| all | 6 | DegToRad | 1 |\n| all | 7 | DegToRad of minutes | 2 |\n"
            "| all | 5 | Multiply | 0.5 |\n| all | 5 | Multiply by UInt32 | 1 |\n")
        first = [("arguments", "to 8"), ("256 bits", "9.45")]
        second = [("arguments", "close to 0"), ("256 bits", "2^7")]
        self.assertEqual(rows.of("Sin", ["BigNumberVQZ"]), [first, second])
        self.assertEqual(rows.of("Tan", ["BigNumberVQZ"]), [first])
        self.assertEqual(rows.of("Operator_AddRight", ["BigNumberVQZ"]), [[("arguments", "all")]])
        for name, types, error in (
            ("DegToRad", ["BigNumberVQZ"], "1"),
            ("DegToRad", ["BigNumberVQZ"] * 3, "2"),
            ("Multiply", ["BigNumberVQZ", "boolean"], "0.5"),
            ("Multiply", ["Integer"], "1"),
            ("Multiply", ["UInt32"], "1"),
        ):
            self.assertEqual(rows.of(name, types), [[("arguments", "all"), ("256 bits", error)]])
        self.assertEqual(rows.of("Round", []), [])


class PageDataTest(unittest.TestCase):
    TEXTS = {
        "parameters": '[types]\ninteger = "any"\nnumber = "a number"\n'
                      '[members.f]\nbase = "2 to 16"\n',
        "related": 'groups = [["f", "g"], ["h", "g", "f"], ["g", "h"]]',
        "search_words": 'g = ["word"]',
    }

    def data(self, **changes: str) -> PageData:
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        for name, text in (self.TEXTS | changes).items():
            (folder / f"{name}.toml").write_text(text, encoding="utf-8")
        return PageData(folder, NUMBER_CLASS)

    def test_parameters_of_a_declaration(self) -> None:
        declaration = 'F(Base as Integer = -1, byref Rest as String, mark as String = ".") as String'
        self.assertEqual(parameters_of(declaration), [
            Parameter("Base", "Integer", "-1", False), Parameter("Rest", "String", "", True),
            Parameter("mark", "String", '"."', False)])
        self.assertEqual(parameters_of("Sqrt as BigNumberVQZ"), [])

    def test_ranges(self) -> None:
        found = self.data().parameters("f", "F(Base as Integer, n as Integer, x as BigNumberVQZ)")
        self.assertEqual([p.range for p in found], ["2 to 16", "any", "a number"])
        for declaration in ("F(n as Integer)", "F(Base as Integer, x as Unheard)"):
            with self.subTest(declaration=declaration), self.assertRaises(ExampleError):
                self.data().parameters("f", declaration)

    def test_related(self) -> None:
        self.assertEqual(self.data().related("f"), ["g", "h"])
        self.assertEqual(self.data().related("other"), [])

    def test_names_that_the_page_lacks_are_refused(self) -> None:
        self.data().check({"f", "g"}, {"h"})
        for changes in (
            {"parameters": "[types]\n[members.h]\n"},
            {"related": 'groups = [["i"]]'},
            {"search_words": 'i = ["word"]'},
        ):
            with self.subTest(changes=changes), self.assertRaises(ExampleError):
                self.data(**changes).check({"f", "g"}, {"h"})


if __name__ == "__main__":
    RunnerTest.command = MemberTest.command = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
