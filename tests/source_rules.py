"""Checks the rules about which source file may know which other.

usage: source_rules.py SOURCE_FOLDER

Every folder of the plug-in is a layer: a file includes files of its own folder and of lower ones. The
stand-in host and the plug-in know the binary interface and nothing of each other. A file that is compiled with
precompiled headers includes what it uses of them, itself or by way of the project's other files.
"""

import pathlib
import re
import sys

INTERFACE = "interface"
PLATFORM = "platform"

# The folders, lowest first; one that is not named here belongs to the nearest one above it that is.
LAYERS = [
    INTERFACE,
    PLATFORM,
    "plugin/bindings",
    "host",
    "number/kernels",
    "number/value",
    "number/ops",
    "number",
    "plugin/members",
    "plugin",
]
STANDIN_LAYERS = [INTERFACE, "standin/runtime", "standin/language", "standin"]

# The one header that includes ttmath, and the folders that hold no sources of the project.
TTMATH_HEADER = "number/kernels/specialisations.hpp"
NOT_OURS = {".deps", ".git", "build"}

# The file that lists the precompiled headers, the folders of what is compiled with them, and what each header has:
# names that no other header is sure to bring along, though not all of them.
PRECOMPILED_LIST = "cmake/QuickBuild.cmake"
PRECOMPILED_FOR = ["standin", "tests"]
PRECOMPILED = {
    "algorithm": r"std::(?:min|max|clamp|ranges::(?:\w*(?:find|sort|copy|fill|count|equal|replace|transform|bound)\w*"
                 r"|(?:any|all|none)_of|(?:min|max)_element|for_each|reverse|contains|unique))\b",
    "array": r"std::(?:array|to_array)\b",
    "cstdint": r"std::u?int(?:8|16|32|64|ptr)_t\b",
    "functional": r"std::(?:function|less<>|invoke)\b",
    "map": r"std::(?:multi)?map\b",
    "memory": r"std::(?:unique_ptr|shared_ptr|make_unique|make_shared)\b",
    "optional": r"std::(?:optional|nullopt)\b",
    "string": r"std::(?:string|to_string|stoi|stoul|getline)\b",
    "string_view": r"std::string_view\b",
    "utility": r"std::(?:move|pair|exchange|swap|forward|in_range|cmp_\w+)\b",
    "variant": r"std::(?:variant|get_if|holds_alternative|visit|monostate)\b",
    "vector": r"std::vector\b",
}
COMMENT_OR_TEXT = re.compile(r'//.*|"(?:\\.|[^"\\\n])*"')

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
PLATFORM_TEST = re.compile(r"^\s*#.*\b(_WIN32|__MINGW32__|__linux__|__unix__)\b")


def layer_of(name: str, layers: list[str]) -> int | None:
    """The layer of a file, or None when it belongs to none of them."""
    folders = (folder.as_posix() for folder in pathlib.PurePosixPath(name).parents)
    return next((layers.index(folder) for folder in folders if folder in layers), None)


class Sources:
    """The C++ files of the project, by their names relative to its folder."""

    def __init__(self, root: pathlib.Path):
        self.root = root
        self.lines = {}
        for folder in sorted({layer.split("/")[0] for layer in [*LAYERS, *STANDIN_LAYERS]}):
            for path in sorted((root / folder).rglob("*.[ch]pp")):
                name = path.relative_to(root).as_posix()
                self.lines[name] = path.read_text(encoding="utf-8").splitlines()
        self.includes = {name: [] for name in self.lines}
        for name, number, bracket, target in self.all_includes():
            if bracket == '"':
                self.includes[name].append((number, target))

    def all_includes(self):
        for name, lines in self.lines.items():
            for number, line in enumerate(lines, 1):
                if match := INCLUDE.match(line):
                    yield name, number, match[1], match[2]


def unknown_includes(sources: Sources):
    for name, includes in sources.includes.items():
        for number, target in includes:
            if target not in sources.lines:
                yield f'{name}:{number}: "{target}" is no file of the project'


def wrong_directions(sources: Sources):
    for name, includes in sources.includes.items():
        layers = STANDIN_LAYERS if name.startswith("standin/") else LAYERS
        own = layer_of(name, layers)
        for number, target in includes:
            other = layer_of(target, layers)
            if other is None:
                yield f"{name}:{number}: {target} is none of its business"
            elif other > own:
                yield f"{name}:{number}: {target} lies in a layer above"


def cycles(sources: Sources):
    """One message for each include that closes a circle."""
    state = {}

    def visit(name: str, path: list[str]):
        state[name] = "open"
        for _, target in sources.includes.get(name, []):
            if state.get(target) == "open":
                circle = [*path[path.index(target) :], target]
                yield "these files include each other: " + " -> ".join(circle)
            elif target not in state:
                yield from visit(target, [*path, target])
        state[name] = "done"

    for name in sources.lines:
        if name not in state:
            yield from visit(name, [name])


def platform_leaks(sources: Sources):
    """Only the platform layer of the plug-in knows which system it is built for."""
    within = [name for name in sources.lines if not name.startswith("standin/")]
    for name in within:
        if name.startswith(f"{PLATFORM}/"):
            continue
        for number, line in enumerate(sources.lines[name], 1):
            match = INCLUDE.match(line)
            if PLATFORM_TEST.match(line) or (match and match[2].lower() == "windows.h"):
                yield f"{name}:{number}: only {PLATFORM}/ knows the system"


def includes_of_ttmath(sources: Sources):
    """Every file that needs ttmath sees which of its members have kernels: otherwise it would compile
    the plain ones, and the linker may take either."""
    for folder in sorted(path for path in sources.root.iterdir() if path.name not in NOT_OURS):
        for path in sorted(folder.rglob("*.[ch]pp")):
            name = path.relative_to(sources.root).as_posix()
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                if match and match[2].startswith("ttmath/") and name != TTMATH_HEADER:
                    yield f"{name}:{number}: include {TTMATH_HEADER} instead"


def missing_guards(sources: Sources):
    for name, lines in sources.lines.items():
        if name.endswith(".hpp") and "#pragma once" not in lines:
            yield f"{name}: lacks #pragma once"


def included(root: pathlib.Path, name: str, seen: set[str]) -> set[str]:
    """The headers of the system that a file includes, itself or by way of the project's files."""
    path = root / name
    if name in seen or not path.exists():
        return set()
    seen.add(name)
    headers = set()
    for match in filter(None, map(INCLUDE.match, path.read_text(encoding="utf-8").splitlines())):
        headers |= {match[2]} if match[1] == "<" else included(root, match[2], seen)
    return headers


def hidden_includes(sources: Sources):
    """A missing include of a precompiled header is noticed where the headers are not precompiled only."""
    listed = sources.root / PRECOMPILED_LIST
    if listed.exists():
        names = set(re.findall(r"^ +<(\w+)>$", listed.read_text(encoding="utf-8"), re.MULTILINE))
        yield from (f"{PRECOMPILED_LIST}: <{name}> has no names in source_rules.py, or no line in this file"
                    for name in sorted(names ^ PRECOMPILED.keys()))
    for folder in PRECOMPILED_FOR:
        for path in sorted((sources.root / folder).rglob("*.[ch]pp")):
            name = path.relative_to(sources.root).as_posix()
            text = COMMENT_OR_TEXT.sub("", path.read_text(encoding="utf-8"))
            headers = included(sources.root, name, set())
            for header, pattern in PRECOMPILED.items():
                if header not in headers and (used := re.search(pattern, text)):
                    yield f"{name}: include <{header}> for {used[0]}"


RULES = [unknown_includes, wrong_directions, cycles, platform_leaks, includes_of_ttmath, missing_guards,
         hidden_includes]


def main() -> None:
    sources = Sources(pathlib.Path(sys.argv[1]))
    problems = [problem for rule in RULES for problem in rule(sources)]
    print("\n".join(problems) or f"{len(sources.lines)} files keep the rules")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
