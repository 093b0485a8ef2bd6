// The interactive prompt: lines of the host's language, each run as soon as it is whole.
#pragma once

#include <optional>
#include <string>

#include "standin/command_line.hpp"
#include "standin/language/class_model.hpp"
#include "standin/runtime/host.hpp"

namespace standin {

/// Reads lines from standard input until it ends or one says Quit. Mistakes and exceptions are
/// reported and do not end it. Returns the exit status: 0, or what a Quit was given. Throws
/// UsageError when the documentation cannot be read.
int RunPrompt(Host& host, const language::TypeTable& types, const CommandLine& line);

}  // namespace standin
