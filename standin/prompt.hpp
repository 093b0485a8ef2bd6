// The interactive prompt: lines of the host's language, each run as soon as it is whole.
#pragma once

#include <optional>
#include <string>

#include "standin/command_line.hpp"
#include "standin/language/class_model.hpp"
#include "standin/runtime/host.hpp"

namespace standin {

/// Reads lines from standard input until it ends or one says Quit. Mistakes and exceptions are
/// reported and do not end it. Throws UsageError when the documentation cannot be read.
void RunPrompt(Host& host, const language::TypeTable& types, const CommandLine& line);

}  // namespace standin
