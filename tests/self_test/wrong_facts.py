"""Checks that the self-test notices each fact about the host that is not as the library needs it.

usage: wrong_facts.py SOURCES [--facts NAME...] -- COMMAND...

COMMAND starts the stand-in host with the library; its option --wrong makes a host that is wrong about one
fact. The facts are those of docs/host-facts.md, which have to be the same as the ones that the stand-in
can be wrong about.

A fact that shows while the program runs turns a check of its name red. A fact of the compiler has it
refuse lines of the unit that is named after it, with the error that the document tells; without that unit
the program runs.
"""

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

FACT_ROW = re.compile(r"^\| `([a-z0-9-]+)` \|", re.MULTILINE)
FACT_NAMES = re.compile(r"FactNames\[\] = \{(.*?)\};", re.DOTALL)
OF_COMPILER = "compiles-"
# Enough for the checks that count what is left behind, and far less than what a user lets them do.
ROUNDS = 2000
ERROR = re.compile(r"^(.*?)(?:\.xojo_code)?:(\d+):\d+: error: (.*)$", re.MULTILINE)
LAST_LINE = re.compile(r"\d+ checks, (\d+) failed\n$")


def facts_of(sources: pathlib.Path) -> list[str]:
    """The facts of the document; ends the test when the stand-in has others."""
    documented = FACT_ROW.findall((sources / "docs/host-facts.md").read_text("utf-8"))
    header = (sources / "standin/runtime/wrong_facts.hpp").read_text("utf-8")
    turned = re.findall(r'"([a-z0-9-]+)"', FACT_NAMES.search(header)[1])
    problems = [f"{name} stands in docs/host-facts.md twice"
                for name in set(documented) if documented.count(name) > 1]
    problems += [f"docs/host-facts.md lists {name}, which the stand-in cannot be wrong about"
                 for name in documented if name not in turned]
    problems += [f"the stand-in can be wrong about {name}, which docs/host-facts.md does not list"
                 for name in turned if name not in documented]
    if problems:
        sys.exit("\n".join(problems))
    return documented


def unchecked_facts(facts: list[str], project: pathlib.Path) -> list[str]:
    """Facts without a check of their name, and checks of the host whose name is no fact."""
    code = {path.stem: path.read_text("utf-8") for path in project.glob("*.xojo_code")}
    own = "\n".join(text for name, text in code.items() if not name.endswith("NumberChecks"))
    named = set(re.findall(r'\b(?:Check\w+|MissFailure)\("([^"]*)"', own))
    return ([f"no check is named {fact}" for fact in facts if fact not in named] +
            [f"the check {name} is of no fact in docs/host-facts.md"
             for name in sorted(named - set(facts))])


def with_constant(project: pathlib.Path, name: str, value: str) -> None:
    """Sets a constant of the copied project's settings."""
    path = project / "Settings.xojo_code"
    text, count = re.subn(rf'(Name = {name},.*Default = \\")\w+"', rf'\g<1>{value}"',
                          path.read_text("utf-8"))
    if count != 1:
        sys.exit(f"Settings has no constant {name}")
    path.write_text(text, "utf-8")


def run(command: list[str], fact: str, project: pathlib.Path) -> subprocess.CompletedProcess:
    result = subprocess.run([*command, "--wrong", fact, str(project / "SelfTest.xojo_project")],
                            stdin=subprocess.DEVNULL, capture_output=True, check=False,
                            text=True, encoding="utf-8", errors="replace")
    result.stdout = result.stdout.replace("\r\n", "\n")
    result.stderr = result.stderr.replace("\r\n", "\n")
    return result


def shown(result: subprocess.CompletedProcess) -> str:
    return f"  status {result.returncode}\n  " + "\n  ".join(
        (result.stdout + result.stderr).splitlines()[-12:])


def problem_at_run_time(command: list[str], fact: str, project: pathlib.Path) -> str | None:
    result = run(command, fact, project)
    if result.returncode != 0 and f"\nFAILED {fact}: " in "\n" + result.stdout:
        return None
    return f"{fact}: no check of that name fails\n{shown(result)}"


def unit_of(fact: str) -> str:
    """The name of the method that a compiler refuses."""
    return "".join(word.capitalize() for word in fact.removeprefix(OF_COMPILER).split("-"))


def refused_units(errors: str, project: pathlib.Path) -> set[str]:
    """The constants whose lines the errors are in; lines outside of any are named by their place."""
    units = set()
    for path, line, _ in ERROR.findall(errors):
        file = project / (pathlib.PureWindowsPath(path).name + ".xojo_code")
        before = file.read_text("utf-8").splitlines()[:int(line)]
        open_conditions = []
        for code in before:
            if match := re.match(r"\s*#If (.*) Then", code):
                open_conditions.append(match[1])
            elif re.match(r"\s*#EndIf", code):
                open_conditions.pop()
        names = set(re.findall(r"\bk(\w+)", " ".join(open_conditions)))
        units |= names or {f"{file.name}:{line}"}
    return units


def words_of_error(sources: pathlib.Path, fact: str) -> str:
    """What the document says that the stand-in says."""
    row = re.search(rf"^\| `{fact}` \|.*$", (sources / "docs/host-facts.md").read_text("utf-8"),
                    re.MULTILINE)
    return row[0].split(" | ")[3].strip("`")


def problem_of_compiler(command: list[str], fact: str, words: str,
                        project: pathlib.Path) -> str | None:
    unit = unit_of(fact)
    with_constant(project, f"k{unit}", "True")
    refused = run(command, fact, project)
    errors = ERROR.findall(refused.stderr)
    if refused.returncode != 2 or not errors:
        return f"{fact}: the program is not refused\n{shown(refused)}"
    if words not in refused.stderr:
        return f"{fact}: the error is not {words}\n{shown(refused)}"
    places = refused_units(refused.stderr, project)
    if unit not in places:
        return f"{fact}: what is refused lies outside of its unit, {unit}\n{shown(refused)}"
    outside = [place for place in places if ":" in place]
    if outside:
        return f"{fact}: refused are also lines of no unit, {', '.join(outside)}\n{shown(refused)}"
    with_constant(project, f"k{unit}", "False")
    rest = run(command, fact, project)
    with_constant(project, f"k{unit}", "True")
    last = LAST_LINE.search(rest.stdout)
    if last is None or last[1] != "0":
        return f"{fact}: without the unit {unit} the rest does not run\n{shown(rest)}"
    return None


def main() -> None:
    separator = sys.argv.index("--")
    parser = argparse.ArgumentParser(usage=__doc__.split("usage: ")[1])
    parser.add_argument("sources", type=pathlib.Path)
    parser.add_argument("--facts", nargs="+")
    given = parser.parse_args(sys.argv[1:separator])
    command = sys.argv[separator + 1:]
    facts = facts_of(given.sources)
    with tempfile.TemporaryDirectory() as folder:
        project = pathlib.Path(folder) / "SelfTest"
        shutil.copytree(given.sources / "examples/SelfTest", project)
        problems = unchecked_facts(facts, project)
        with_constant(project, "kRounds", str(ROUNDS))
        for fact in given.facts or facts:
            if fact.startswith(OF_COMPILER):
                problem = problem_of_compiler(command, fact, words_of_error(given.sources, fact),
                                              project)
            else:
                problem = problem_at_run_time(command, fact, project)
            problems += [problem] if problem else []
    of_compiler = sum(fact.startswith(OF_COMPILER) for fact in facts)
    print(f"{len(facts)} facts, {of_compiler} of them of the compiler; {len(problems)} problems")
    if problems:
        sys.exit("\n".join(problems))


if __name__ == "__main__":
    main()
