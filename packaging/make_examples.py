"""Makes the console project of the examples: one module for each script, and the application that runs them.

usage: make_examples.py [--check] EXAMPLES_FOLDER

Writes Examples.xojo_project and the folder Examples beside the scripts; with --check it writes nothing and
fails when what is there is not what it would write. In a module the statements of the script are the method
`Run`, and its routines and whole-numbered constants are private members; so no routine of an example uses
variables of the main program.
"""

import argparse
import dataclasses
import pathlib
import re
import sys

NAME = "Examples"
# The first example is the one to begin with; the others follow in the order of their names.
FIRST = "tour"
PROJECT_HEAD = """\
Type=Console
RBProjectVersion=2021.021
MinIDEVersion=20070100
OrigIDEVersion=00000000
"""
PROJECT_TAIL = f"""\
MajorVersion=1
MinorVersion=0
SubVersion=0
NonRelease=0
Release=0
AutoIncrementVersionInformation=False
BuildFlags=&h4100
BuildLanguage=&h0
DebugLanguage=&h0
IncludePDB=False
IsWebProject=False
LinuxBuildArchitecture=1
LinuxX86Name={NAME}
MacBuildArchitecture=4
MacCarbonMachName={NAME}
OptimizationLevel=0
UseBuildsFolder=True
WindowsBuildArchitecture=1
WindowsName={NAME}.exe
"""
# What the project prints last where the IDE runs it.
LAST_LINE = "Enter closes this window."
ROUTINE = re.compile(r"(Function|Sub) (\w+)")
CONSTANT = re.compile(r"Const (\w+) = (\d+)")
CATCHES = re.compile(r"\s*Try\b")


@dataclasses.dataclass
class Example:
    """A script, and the module that it becomes."""

    script: str
    constants: list[tuple[str, str]]
    routines: list[list[str]]
    main: list[str]

    @property
    def module(self) -> str:
        return "".join(word.capitalize() for word in self.script.split("_")) + "Example"


def read_example(path: pathlib.Path) -> Example:
    """Takes the constants, and the routines with the comments right before them, out of the statements."""
    main: list[str] = []
    constants: list[tuple[str, str]] = []
    routines: list[list[str]] = []
    lines = iter(path.read_text(encoding="utf-8").splitlines())
    for line in lines:
        if constant := CONSTANT.fullmatch(line):
            constants.append((constant[1], constant[2]))
            continue
        head = ROUTINE.match(line)
        if head is None:
            main.append(line)
            continue
        comment: list[str] = []
        while main and main[-1].startswith("'"):
            comment.insert(0, "  " + main.pop())
        while main and not main[-1]:
            main.pop()
        main.append("")
        body = list(iter(lambda: next(lines), f"End {head[1]}"))
        routines.append([f"Private {line}", *quiet(comment + body), f"End {head[1]}"])
    return Example(path.stem, constants, routines, indented(quiet(tidy(main))))


def quiet(body: list[str]) -> list[str]:
    """Keeps the debugger from stopping at the exceptions that the statements catch."""
    if not any(CATCHES.match(line) for line in body):
        return body
    indent = re.match(" *", body[0])[0]
    return [f"{indent}#Pragma BreakOnExceptions False", *body]


def tidy(lines: list[str]) -> list[str]:
    """Without empty lines at both ends, and with one at the most between others."""
    text = re.sub(r"\n{3,}", "\n\n", "\n".join(lines))
    return text.strip("\n").split("\n")


def tagged(tag: str, lines: list[str], attributes: str = "") -> str:
    """A member in its tags, as the environment writes it: inside, tabs for the levels of tags."""
    inside = "".join(f"\t\t{line}\n" for line in lines)
    return f"\t#tag {tag}{attributes}\n{inside}\t#tag End{tag}\n\n\n"


def indented(lines: list[str]) -> list[str]:
    """The statements of a member, two spaces farther in than its head; empty lines too."""
    return ["  " + line for line in lines]


def module_text(example: Example) -> str:
    members = tagged("Method", ["Protected Sub Run()", *example.main, "End Sub"],
                     ", Flags = &h1")
    for routine in example.routines:
        members += tagged("Method", routine, ", Flags = &h21")
    for name, value in example.constants:
        members += tagged("Constant", [], f", Name = {name}, Type = Double, Dynamic = False, "
                                          f"Default = \\\"{value}\", Scope = Private")
    return (f"#tag Module\nProtected Module {example.module}\n{members}"
            "\t#tag ViewBehavior\n\t#tag EndViewBehavior\nEnd Module\n#tag EndModule\n")


def application_text(examples: list[Example]) -> str:
    """Runs the example that the first argument names, or all of them."""
    run = ["Function Run(args() as String) As Integer",
           "  ' Runs the example that the first argument names; without one, all of them.",
           "  #Pragma BreakOnExceptions False",
           "  Dim name As String",
           "  If Ubound(args) >= 1 Then name = args(1)",
           "  Dim found As Boolean = (name = \"\")",
           "  "]
    for example in examples:
        run += [f"  If name = \"\" Or name = \"{example.script}\" Then",
                f"    {example.module}.Run",
                "    found = True",
                "  End If"]
    run += ["  ",
            "  If Not found Then",
            "    Print \"There is no example \" + name + \"; there are:\"",
            *(f"    Print \"  {example.script}\"" for example in examples),
            "    Return 1",
            "  End If",
            "  #If DebugBuild Then",
            "    ' The console window of a program that the IDE runs is gone with the program.",
            f"    Print \"{LAST_LINE}\"",
            "    Call Input",
            "  #EndIf",
            "  Return 0",
            "End Function"]
    return (f"#tag Class\nProtected Class App\nInherits ConsoleApplication\n{tagged('Event', run)}"
            "\t#tag ViewBehavior\n\t#tag EndViewBehavior\nEnd Class\n#tag EndClass\n")


def project_text(examples: list[Example]) -> str:
    items = [("Class", "App"), *(("Module", example.module) for example in examples)]
    lines = [f"{kind}={name};{NAME}/{name}.xojo_code;&h{number:016X};&h{0:016X};false\n"
             for number, (kind, name) in enumerate(items, 1)]
    return PROJECT_HEAD + "".join(lines) + PROJECT_TAIL


def project_files(folder: pathlib.Path) -> dict[pathlib.Path, str]:
    """The files of the project, by their paths."""
    scripts = sorted(folder.glob("*.xojo_script"), key=lambda path: (path.stem != FIRST, path.stem))
    examples = [read_example(script) for script in scripts]
    files = {folder / f"{NAME}.xojo_project": project_text(examples),
             folder / NAME / "App.xojo_code": application_text(examples)}
    for example in examples:
        files[folder / NAME / f"{example.module}.xojo_code"] = module_text(example)
    return files


def main() -> None:
    parser = argparse.ArgumentParser(usage=__doc__.split("usage: ")[1])
    parser.add_argument("--check", action="store_true")
    parser.add_argument("folder", type=pathlib.Path)
    given = parser.parse_args()
    files = project_files(given.folder)
    strangers = set((given.folder / NAME).glob("*")) - set(files)
    if given.check:
        old = [path for path, text in files.items()
               if not path.exists() or path.read_bytes() != text.encode()]
        if old or strangers:
            sys.exit("these are not what the examples make; run packaging/make_examples.py examples:\n"
                     + "\n".join(f"  {path}" for path in sorted([*old, *strangers])))
        return
    for path in strangers:
        path.unlink()
    for path, text in files.items():
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(text.encode())


if __name__ == "__main__":
    main()
