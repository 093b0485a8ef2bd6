"""Tests that a row of the member tables without the texts that it needs does not compile.

usage: texts_test.py SOURCE_FOLDER COMPILER_WORD...
"""

import subprocess
import sys
import unittest

ROW = """
#include "plugin/members/description.hpp"
vqz::MethodDescription<vqz::HelpTexts::Dropped> row = {{
    "Zero as BigNumberVQZ", {{}}, {{.section = vqz::Section::Constants, {help}}}}};
"""


class TextsTest(unittest.TestCase):
    command: list[str]

    def compiles(self, help_texts: str) -> bool:
        """Whether a row compiles for the library, which drops the texts but wants to see them."""
        result = subprocess.run(self.command, input=ROW.format(help=help_texts), text=True,
                                capture_output=True, check=False)
        return result.returncode == 0

    def test_summary_and_example_are_needed(self) -> None:
        self.assertTrue(self.compiles('.summary = "0.", .example = "Print 0"'))
        self.assertFalse(self.compiles('.example = "Print 0"'))
        self.assertFalse(self.compiles('.summary = "0."'))
        self.assertFalse(self.compiles('.summary = "", .example = "Print 0"'))
        self.assertFalse(self.compiles('.summary = "0.", .example = ""'))


if __name__ == "__main__":
    source, *compiler = sys.argv[1:]
    TextsTest.command = [*compiler, "-std=c++20", "-fsyntax-only", "-I", source, "-x", "c++", "-"]
    unittest.main(argv=sys.argv[:1])
