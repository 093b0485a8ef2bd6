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

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "help"))

import speed  # noqa: E402
from examples import ExampleError, ExampleRunner, Kind  # noqa: E402
from members import Accessor, read_member  # noqa: E402

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

    def test_chart_has_a_name(self) -> None:
        (self.folder / "speed.svg").write_text("<?xml?>\n<svg width='1'/>", encoding="utf-8")
        chart = speed.measured(self.folder)
        self.assertRegex(chart, r"^<figure><svg role=.img. aria-label=[^>]+ width='1'/></figure>$")


if __name__ == "__main__":
    RunnerTest.command = MemberTest.command = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
