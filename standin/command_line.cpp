#include "standin/command_line.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <limits>

#include "standin/language/project.hpp"
#include "standin/language/unicode.hpp"
#include "standin/options.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin {

const std::string_view UsageText = OptionsText;

const std::string_view UsageHint =
    "usage: ./run [options] [PROGRAM [argument...] | - | -e TEXT | -i]; ./run --help tells more\n";

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
    {"--wrong",
     [](CommandLine& line, const std::string& value) {
         if (!BeWrongAbout(value)) {
             throw UsageError("there is no fact \"" + value +
                              "\" to be wrong about; docs/host-facts.md lists them");
         }
         // What is kept of released memory would hide what such a host leaves behind.
         line.host.remembersReleased = false;
     }},
    {"-e", [](CommandLine& line, const std::string& value) { line.text = value; }},
});

/// Whether the text of --help lists the option, with a value where it takes one.
constexpr bool IsListed(std::string_view name, bool takesValue) {
    for (std::size_t place = OptionsText.find("\n  "); place != std::string_view::npos;
         place = OptionsText.find("\n  ", place + 1)) {
        const auto line = OptionsText.substr(place + 3);
        if (!line.starts_with(name)) {
            continue;
        }
        const auto after = line.substr(name.size());
        if (after.front() == '\n') {
            return !takesValue;
        }
        if (after.front() == ' ') {
            return takesValue == (after[1] >= 'A' && after[1] <= 'Z');
        }
    }
    return false;
}

// "-h" is short for "--help", and no option of its own.
static_assert(std::ranges::all_of(Switches, [](const Switch& option) {
    return option.name == "-h" || IsListed(option.name, false);
}));
static_assert(std::ranges::all_of(Settings, [](const Setting& option) {
    return IsListed(option.name, true);
}));

/// How many options the text of --help lists; those of ./run never come here.
constexpr std::size_t CountListed() {
    constexpr std::string_view OwnOfRun[] = {"--target", "--native", "--version"};
    std::size_t count = 0;
    for (std::size_t place = OptionsText.find("\n  -"); place != std::string_view::npos;
         place = OptionsText.find("\n  -", place + 1)) {
        const auto line = OptionsText.substr(place + 3);
        count += std::ranges::none_of(
                     OwnOfRun, [line](std::string_view name) { return line.starts_with(name); })
                     ? 1U
                     : 0U;
    }
    return count;
}
static_assert(CountListed() == Switches.size() - 1 + Settings.size());

/// A word for the application, which only a project has.
void AddArgument(CommandLine& line, const std::string& word) {
    if (!line.file || !language::IsProjectName(*line.file)) {
        throw UsageError("\"" + word +
                         "\" is no argument for a script: only a project has a Run that takes it");
    }
    if (language::FindInvalidUtf8(word)) {
        throw UsageError("an argument for the project is not UTF-8");
    }
    line.arguments.push_back(word);
}

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& words) {
    CommandLine line;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto& word = words[i];
        if (word == "--") {
            std::for_each(words.begin() + static_cast<std::ptrdiff_t>(i) + 1, words.end(),
                          [&line](const std::string& argument) { AddArgument(line, argument); });
            break;
        }
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
        } else if (line.file && language::IsProjectName(*line.file)) {
            AddArgument(line, word);
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
