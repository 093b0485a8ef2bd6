// Projects that are saved as text: one file lists the others.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "standin/language/source.hpp"

namespace standin::language {

/// Reads a file; none when it cannot be read.
using FileReader = std::function<std::optional<std::string>(const std::string& name)>;

/// Whether a file's name is that of a project.
bool IsProjectName(std::string_view name);

/// Adds the files of the modules and classes that a project lists, of which `source` holds the
/// text. Throws ProgramError for what is wrong with the project.
void AddProjectFiles(Source& source, const FileReader& read);

}  // namespace standin::language
