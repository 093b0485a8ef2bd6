// The words that the command is called with.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "standin/runtime/host.hpp"

namespace standin {

/// The call of the command is wrong; `what` says how.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What to do with the plug-in library.
enum class Task { Run, Prompt, List, Dump, Help };

struct CommandLine {
    Task task = Task::Run;
    std::string library;
    HostOptions host;
    /// The program: a file's name, `-` for standard input, or the text itself.
    std::optional<std::string> file;
    std::optional<std::string> text;
    /// What the application of a project is called with.
    std::vector<std::string> arguments;
    /// A file that documents the members, for the prompt.
    std::optional<std::string> documentation;
    /// Whether the prompt marks where a line is expected, which only a person needs.
    bool showsPrompts = false;
    bool showsDebugLog = false;
    bool showsLedger = false;
    /// Steps that the program may take, and bytes that it may hold.
    std::uint64_t maximumSteps = std::numeric_limits<std::uint64_t>::max();
    std::optional<std::size_t> maximumMemory;
    /// Which allocation of the running program fails, counted from 1.
    std::optional<int> failingString;
    std::optional<int> failingObject;
};

/// Reads the words after the command's own name. Throws UsageError.
CommandLine ReadCommandLine(const std::vector<std::string>& words);

/// How the command is called, for people; and the short form, for who called it wrongly.
extern const std::string_view UsageText;
extern const std::string_view UsageHint;

}  // namespace standin
