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

    def test_a_folder_is_a_layer_apart_from_the_folder_that_it_is_in(self):
        files = {
            "plugin/bindings/a.hpp": '#include "host/b.hpp"\n',
            "plugin/c.hpp": '#include "host/b.hpp"\n',
            "number/ops/d.hpp": '#include "number/e.hpp"\n',
            "number/e.hpp": "",
            "host/b.hpp": '#include "plugin/bindings/f.hpp"\n',
            "plugin/bindings/f.hpp": "",
        }
        problems = problems_of(source_rules.wrong_directions, files)
        self.assertEqual([problem.split(":")[0] for problem in problems],
                         ["number/ops/d.hpp", "plugin/bindings/a.hpp"])

    def test_a_folder_without_a_layer_of_its_own_is_in_that_of_the_folder_around_it(self):
        files = {
            "number/kernels/deeper/a.hpp": '#include "number/kernels/b.hpp"\n',
            "number/kernels/b.hpp": '#include "number/value/c.hpp"\n',
            "number/value/c.hpp": "",
        }
        problems = problems_of(source_rules.wrong_directions, files)
        self.assertIn("number/kernels/b.hpp:1", *problems)

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

    def test_a_file_includes_what_it_uses_of_the_precompiled_headers(self):
        files = {
            "tests/a.cpp": "#include <vector>\nstd::vector<std::string> names;  // no std::map\n",
            "tests/b.cpp": '#include "tests/b.hpp"\nstd::string text = "std::optional";\n',
            "tests/b.hpp": "#pragma once\n#include <string>\n",
        }
        self.assertEqual(problems_of(source_rules.hidden_includes, files),
                         ["tests/a.cpp: include <string> for std::string"])

    def test_each_precompiled_header_has_its_names(self):
        files = {"cmake/QuickBuild.cmake": "".join(f"      <{name}>\n" for name in source_rules.PRECOMPILED)}
        self.assertEqual(problems_of(source_rules.hidden_includes, files), [])
        files["cmake/QuickBuild.cmake"] += "      <span>\n"
        self.assertIn("<span>", *problems_of(source_rules.hidden_includes, files))


if __name__ == "__main__":
    unittest.main()
