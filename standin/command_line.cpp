#include "standin/command_line.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <limits>

namespace standin {

const std::string_view UsageText =
    R"(usage: ./run [options] [PROGRAM | - | -e TEXT | -i]

PROGRAM is a project, NAME.xojo_project, or a file in the host's language, `-` reads it from standard input, -e takes its text; -i runs
line by line what is typed.

  --library FILE       the plug-in library to load (./run gives it)
  --documentation FILE what -i tells about the members (./run gives it)
  --prompts            -i shows where a line is expected (./run gives it on a terminal)
  --list [NAME]        every registered class with its members as the host sees them, or those with
                       that name
  --dump               the registered tables, entry by entry
  --ledger             counts of strings and objects at the end, on standard error
  --debug-log          the plug-in's log lines, on standard error
  --max-steps N        ends a program that takes more than N steps
  --max-memory BYTES   ends a program that needs more for its text, objects and arrays
  --help               this text

What kind of host to be:
  --host-version V     the host's version; `none` for a host that tells no version
  --without FUNCTION   a host that lacks this function (repeatable)
  --built-application  a built application instead of the development environment
  --constructor-on-new new instances made by the plug-in run their empty constructor
  --unterminated-strings
                       the byte after a string's text is not 0
  --misaligned-stack   the plug-in is called with a stack aligned to 4 bytes only
  --changed-control-word
                       the plug-in is called with another x87 control word
  --blocks-without-data
                       memory blocks have a size but no data
  --spare-references   what is released too often lives on, and the ledger tells by how many
                       references it is off
  --fail-string N      the N-th string that is made while the program runs fails
  --fail-object N      the N-th object that is made while the program runs fails

Exit status: 0; 1 for an exception nobody caught; 2 for an error in the program or in the call;
3 when strings or objects were leaked or released too often; 4 when the plug-in crashed.
)";

const std::string_view UsageHint =
    "usage: ./run [options] [PROGRAM | - | -e TEXT | -i]; ./run --help tells more\n";

namespace {

double ReadVersion(const std::string& word) {
    double version = 0.0;
    const auto* const end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, version);
    if (result.ec != std::errc{} || result.ptr != end || !std::isfinite(version) || version < 0) {
        throw UsageError("--host-version takes a number such as 2015.01, or none, not \"" + word +
                         "\"");
    }
    return version;
}

template <typename Count = int>
Count ReadCount(const std::string& option, const std::string& word) {
    Count count = 0;
    const auto* const end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, count);
    if (result.ec != std::errc{} || result.ptr != end || count < 1) {
        throw UsageError(option + " takes a number from 1, not \"" + word + "\"");
    }
    return count;
}

/// An option without a value.
struct Switch {
    std::string_view name;
    void (*set)(CommandLine&);
};

constexpr auto Switches = std::to_array<Switch>({
    {"-i", [](CommandLine& line) { line.task = Task::Prompt; }},
    {"--prompts", [](CommandLine& line) { line.showsPrompts = true; }},
    {"--list", [](CommandLine& line) { line.task = Task::List; }},
    {"--dump", [](CommandLine& line) { line.task = Task::Dump; }},
    {"--help", [](CommandLine& line) { line.task = Task::Help; }},
    {"-h", [](CommandLine& line) { line.task = Task::Help; }},
    {"--ledger", [](CommandLine& line) { line.showsLedger = true; }},
    {"--debug-log", [](CommandLine& line) { line.showsDebugLog = true; }},
    {"--built-application", [](CommandLine& line) { line.host.builtApplication = true; }},
    {"--constructor-on-new",
     [](CommandLine& line) { line.host.newInstanceRunsConstructor = true; }},
    {"--unterminated-strings", [](CommandLine& line) { line.host.unterminatedStrings = true; }},
    {"--misaligned-stack", [](CommandLine& line) { line.host.misalignedStack = true; }},
    {"--changed-control-word", [](CommandLine& line) { line.host.changedControlWord = true; }},
    {"--spare-references", [](CommandLine& line) { line.host.spareReferences = 1U << 20U; }},
    {"--blocks-without-data", [](CommandLine& line) { line.host.blocksWithoutData = true; }},
});

/// An option with a value.
struct Setting {
    std::string_view name;
    void (*set)(CommandLine&, const std::string& value);
};

constexpr auto Settings = std::to_array<Setting>({
    {"--library", [](CommandLine& line, const std::string& value) { line.library = value; }},
    {"--documentation",
     [](CommandLine& line, const std::string& value) { line.documentation = value; }},
    {"--without",
     [](CommandLine& line, const std::string& value) { line.host.missing.insert(value); }},
    {"--host-version",
     [](CommandLine& line, const std::string& value) {
         line.host.version = value == "none" ? std::nullopt : std::optional(ReadVersion(value));
     }},
    {"--fail-string",
     [](CommandLine& line, const std::string& value) {
         line.failingString = ReadCount("--fail-string", value);
     }},
    {"--fail-object",
     [](CommandLine& line, const std::string& value) {
         line.failingObject = ReadCount("--fail-object", value);
     }},
    {"--max-steps",
     [](CommandLine& line, const std::string& value) {
         line.maximumSteps = ReadCount<std::uint64_t>("--max-steps", value);
     }},
    {"--max-memory",
     [](CommandLine& line, const std::string& value) {
         line.maximumMemory = ReadCount<std::size_t>("--max-memory", value);
     }},
    {"-e", [](CommandLine& line, const std::string& value) { line.text = value; }},
});

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& words) {
    CommandLine line;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto& word = words[i];
        if (const auto* found = std::ranges::find(Switches, word, &Switch::name);
            found != Switches.end()) {
            found->set(line);
        } else if (const auto* setting = std::ranges::find(Settings, word, &Setting::name);
                   setting != Settings.end()) {
            if (++i == words.size()) {
                throw UsageError(word + " needs a value");
            }
            setting->set(line, words[i]);
        } else if (word.size() > 1 && word.front() == '-') {
            throw UsageError("unknown option " + word);
        } else if (line.file) {
            throw UsageError("more than one program: " + *line.file + " and " + word);
        } else {
            line.file = word;
        }
    }
    if (line.task == Task::Help) {
        return line;
    }
    if (line.library.empty()) {
        throw UsageError("no library is given");
    }
    if (line.task == Task::Prompt && (line.file || line.text)) {
        throw UsageError("-i takes no program");
    }
    if (line.task == Task::Dump && line.file) {
        throw UsageError("--dump takes no program");
    }
    if (line.task == Task::Run && line.file.has_value() == line.text.has_value()) {
        throw UsageError(line.file ? "both a program file and -e are given"
                                   : "no program is given");
    }
    return line;
}

}  // namespace standin
