"""Tests that the rules of source_rules.py notice what breaks them."""

import pathlib
import tempfile
import unittest

import source_rules


def problems_of(rule, files: dict[str, str]) -> list[str]:
    """What the rule finds in a project that has just these files."""
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        for name, text in files.items():
            path = root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return list(rule(source_rules.Sources(root)))


class SourceRules(unittest.TestCase):
    def test_a_lower_layer_does_not_know_a_higher_one(self):
        files = {"host/a.hpp": '#include "number/b.hpp"\n', "number/b.hpp": ""}
        self.assertIn("above", *problems_of(source_rules.wrong_directions, files))

    def test_a_higher_layer_knows_a_lower_one(self):
        files = {"number/b.hpp": '#include "host/a.hpp"\n', "host/a.hpp": ""}
        self.assertEqual(problems_of(source_rules.wrong_directions, files), [])

    def test_bindings_lie_below_the_host_services_and_class_tables_above_the_numbers(self):
        files = {
            "plugin/host_functions.hpp": '#include "host/a.hpp"\n',
            "plugin/class_tables.hpp": '#include "number/b.hpp"\n',
            "host/a.hpp": "",
            "number/b.hpp": "",
        }
        self.assertIn("host_functions.hpp:1", *problems_of(source_rules.wrong_directions, files))

    def test_the_plugin_and_the_stand_in_host_do_not_know_each_other(self):
        files = {
            "host/a.hpp": '#include "standin/runtime/host.hpp"\n',
            "standin/runtime/host.hpp": '#include "host/a.hpp"\n',
        }
        self.assertEqual(len(problems_of(source_rules.wrong_directions, files)), 2)

    def test_files_do_not_include_each_other(self):
        files = {
            "host/a.hpp": '#include "host/b.hpp"\n',
            "host/b.hpp": '#include "host/c.hpp"\n',
            "host/c.hpp": '#include "host/a.hpp"\n',
        }
        self.assertIn("each other", *problems_of(source_rules.cycles, files))

    def test_one_header_alone_includes_ttmath(self):
        files = {
            "number/kernels/specialisations.hpp": "#include <ttmath/ttmath.h>\n",
            "number/text.hpp": '#include "number/kernels/specialisations.hpp"\n',
            "tests/unit/a.cpp": "#include <ttmath/ttmathbig.h>\n",
            "build/a.cpp": "#include <ttmath/ttmath.h>\n",
        }
        self.assertIn("tests/unit/a.cpp:1", *problems_of(source_rules.includes_of_ttmath, files))

    def test_only_the_platform_layer_knows_the_system(self):
        files = {
            "host/a.cpp": "#ifdef _WIN32\n#include <windows.h>\n#endif\n",
            "platform/p.cpp": "#ifdef _WIN32\n#include <windows.h>\n#endif\n",
        }
        self.assertEqual(len(problems_of(source_rules.platform_leaks, files)), 2)

    def test_an_include_names_a_file_from_the_top(self):
        files = {"host/a.cpp": '#include "b.hpp"\n', "host/b.hpp": ""}
        self.assertIn("no file", *problems_of(source_rules.unknown_includes, files))

    def test_a_header_is_guarded(self):
        self.assertIn("lacks", *problems_of(source_rules.missing_guards, {"host/a.hpp": "\n"}))


if __name__ == "__main__":
    unittest.main()
