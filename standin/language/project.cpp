#include "standin/language/project.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "standin/language/errors.hpp"
#include "standin/language/names.hpp"

namespace standin::language {
namespace {

constexpr std::string_view Extension = ".xojo_project";

/// Items without code, which a console project may list.
constexpr std::string_view SilentItems[] = {"Folder", "BuildSteps"};

struct Line {
    std::string_view text;
    Position at;
};

std::vector<Line> LinesOf(std::string_view text) {
    std::vector<Line> lines;
    for (std::size_t start = 0; start < text.size();) {
        const auto end = std::min(text.find_first_of("\r\n", start), text.size());
        lines.push_back({text.substr(start, end - start), start});
        start = end + 1;
    }
    return lines;
}

std::vector<std::string_view> Parts(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const auto end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

/// The name of a file that a project names, which may have been saved on another system.
std::string PathBeside(std::string_view project, std::string_view relative) {
    std::string path(project.substr(0, project.find_last_of("/\\") + 1));
    path += relative;
    std::ranges::replace(path, '\\', '/');
    return path;
}

/// What stands behind `Key=` of a line that names an item: `Name;Path;&hID;&hParent;flag`.
struct Item {
    std::string_view kind;
    std::string_view name;
    std::string_view path;
    /// The id of the item around it.
    std::string_view parent;
    Position at;
};

/// The parts of an item.
constexpr std::size_t ItemParts = 5;
constexpr std::string_view ModuleKind = "Module";

class ProjectReader {
public:
    ProjectReader(Source& source, const FileReader& read) : source_(source), read_(read) {}

    void Run() {
        const std::string text(source_.text());
        const auto lines = LinesOf(text);
        bool isFirst = true;
        for (const auto& line : lines) {
            RememberModule(line.text);
        }
        for (const auto& line : lines) {
            if (line.text.find_first_not_of(" \t") == std::string_view::npos) {
                continue;
            }
            errors_.Try([&] { Read(line, isFirst); });
            isFirst = false;
        }
        if (errors_.empty() && isFirst) {
            errors_.Add(ProgramError(0, "the project is empty"));
        } else if (errors_.empty() && source_.files().size() == 1) {
            errors_.Add(ProgramError(0, "the project lists no class and no module"));
        }
        errors_.ThrowIfAny();
    }

private:
    /// Modules can stand behind the classes in them.
    void RememberModule(std::string_view line) {
        const auto equals = line.find('=');
        if (equals == std::string_view::npos || !SameName(line.substr(0, equals), ModuleKind)) {
            return;
        }
        const auto parts = Parts(line.substr(equals + 1), ';');
        if (parts.size() == ItemParts) {
            modules_.emplace(parts[2], parts[0]);
        }
    }

    void Read(const Line& line, bool isFirst) {
        const auto equals = line.text.find('=');
        const auto key = line.text.substr(0, equals);
        if (equals == std::string_view::npos || key.empty()) {
            throw ProgramError(line.at, "this is no line of a project, which are all Key=Value");
        }
        const auto value = line.text.substr(equals + 1);
        if (isFirst != SameName(key, "Type")) {
            throw ProgramError(line.at, isFirst ? "a project begins with its type, Type=Console"
                                                : "the type of the project stands here again");
        }
        if (isFirst) {
            if (!SameName(value, "Console")) {
                throw ProgramError(line.at + equals + 1,
                                   "projects of the type " + Quoted(value) +
                                       " are not supported here, only console applications");
            }
            return;
        }
        const auto parts = Parts(value, ';');
        const bool isSilent = std::ranges::any_of(
            SilentItems, [key](std::string_view kind) { return SameName(kind, key); });
        const bool hasCode = SameName(key, "Class") || SameName(key, ModuleKind);
        if (parts.size() == ItemParts && !isSilent) {
            Add({key, parts[0], parts[1], parts[3], line.at}, hasCode);
        } else if (hasCode) {
            throw ProgramError(line.at, "an item is written Kind=Name;Path;&hID;&hParentID;false");
        }
    }

    void Add(const Item& item, bool hasCode) {
        if (!hasCode) {
            // Settings can have semicolons as well; items have a path and ids.
            if (item.path.find('.') != std::string_view::npos) {
                throw ProgramError(
                    item.at, "items of the kind " + Quoted(item.kind) + " are not supported here");
            }
            return;
        }
        const auto name = PathBeside(source_.name(), item.path);
        const auto text = read_(name);
        if (!text) {
            throw ProgramError(item.at,
                               "cannot read the file " + name + " of " + Quoted(item.name));
        }
        const auto module = modules_.find(item.parent);
        source_.Add(name, *text,
                    {std::string(item.kind), std::string(item.name),
                     module == modules_.end() ? std::string() : module->second});
    }

    Source& source_;
    const FileReader& read_;
    /// The names of the modules by their ids.
    std::map<std::string, std::string, NameLess> modules_;
    ErrorList errors_;
};

}  // namespace

bool IsProjectName(std::string_view name) {
    return name.size() > Extension.size() &&
           SameName(name.substr(name.size() - Extension.size()), Extension);
}

void AddProjectFiles(Source& source, const FileReader& read) {
    source.Validate();
    ProjectReader(source, read).Run();
}

}  // namespace standin::language
