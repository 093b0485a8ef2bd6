#include "standin/prompt.hpp"

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <limits>
#include <string_view>

#include "standin/documentation.hpp"
#include "standin/language/names.hpp"
#include "standin/language/session.hpp"
#include "standin/process.hpp"

namespace standin {
namespace {

using language::SameName;
using language::Source;
using process::WriteError;
using process::WriteOutput;

constexpr std::string_view Greeting = "Type an expression or a statement; ? helps, Quit ends.\n";

constexpr std::string_view HelpText =
    R"(An expression prints its value, a statement runs, and variables stay:
  BigNumberVQZ.Pi
  Dim a As BigNumberVQZ = "1.5"
  a.Multiply("2e30")
If, For, Function and the like run when their End is there.
? NAME tells about a member, such as ? Sqrt, or shows a guide, such as ? Six traps; ? WORDS finds
members, guides and recipes by what they are about, such as ? rounding, the best ten of each or
? rounding all. Ctrl-C stops what runs or what was typed; Quit or Ctrl-D ends.
)";

std::string_view Trim(std::string_view text) {
    constexpr std::string_view Blanks = " \t\r";
    const auto first = text.find_first_not_of(Blanks);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
}

Documentation ReadDocumentation(const std::optional<std::string>& file) {
    if (!file) {
        return {};
    }
    const auto text = process::ReadFile(*file);
    if (!text) {
        throw UsageError("cannot read the documentation " + *file);
    }
    return Documentation(*text);
}

/// The best topics that are shown of a question, unless it ends with the word for all.
constexpr std::size_t ShownTopics = 10;
constexpr std::string_view AllWord = " all";

/// Prints the members or guides that a question is about; returns whether there are any.
bool Show(const Documentation& documentation, std::string_view question, Subject subject) {
    const auto before =
        question.substr(0, question.size() - std::min(question.size(), AllWord.size()));
    const bool wantsAll = !before.empty() && SameName(question.substr(before.size()), AllWord);
    const auto words = std::string(wantsAll ? Trim(before) : question);
    const auto limit = wantsAll ? std::numeric_limits<std::size_t>::max() : ShownTopics;
    const auto found = documentation.Matching(words, subject, limit);
    if (found.lines.empty()) {
        return false;
    }
    WriteOutput(
        (subject == Subject::Member ? "Members that are about " : "Guides and recipes about ") +
        language::Quoted(words) + ":\n" + found.lines);
    if (found.more > 0) {
        WriteOutput("  and " + std::to_string(found.more) + " more; ? " + words +
                    " all shows them\n");
    }
    return true;
}

/// Prints help for a line that begins with a question mark, which is left out of `question`.
void Answer(const Documentation& documentation, std::string_view question) {
    const auto words = Trim(question);
    // Whose member it is does not matter: the classes have the same ones.
    const auto name = words.substr(words.rfind('.') + 1);
    if (name.empty()) {
        WriteOutput(HelpText);
        return;
    }
    if (const auto text = documentation.Find(name); !text.empty()) {
        WriteOutput(text);
        return;
    }
    if (documentation.IsEmpty()) {
        WriteOutput("There is no documentation to look in; ./run -i makes it and gives it.\n");
        return;
    }
    const auto similar = documentation.NamesWith(name);
    const bool showsMembers = Show(documentation, words, Subject::Member);
    const bool showsGuides = Show(documentation, words, Subject::Guide);
    if (showsMembers || showsGuides) {
        return;
    }
    WriteOutput("Nothing is known about \"" + std::string(name) + "\"" +
                (similar.empty() ? ".\n" : "; there are:\n" + similar));
}

/// Runs a fragment and reports what went wrong with it. Returns false when more lines must follow.
bool RunFragment(Host& host, language::Session& session, const Source& fragment) {
    try {
        return session.Run(fragment);
    } catch (const language::ProgramError& error) {
        WriteError(fragment.Describe(error));
    } catch (const language::Thrown& thrown) {
        auto* const exception = thrown.exception().object();
        WriteError(host.ClassOf(exception).name + ": " + host.Message(exception) + "\n");
    } catch (const language::OutOfObjects& error) {
        WriteError("OutOfMemoryException: " + std::string(error.what()) + "\n");
    } catch (const language::Interrupted&) {
        WriteError("Interrupted.\n");
    }
    return true;
}

}  // namespace

int RunPrompt(Host& host, const language::TypeTable& types, const CommandLine& line) {
    const auto documentation = ReadDocumentation(line.documentation);
    process::OnInterrupt(language::Machine::Interrupt);
    language::Session session(host, types, process::WriteAtOnce, line.maximumSteps);
    std::string fragment;
    const auto readLine = [&](std::string& text) {
        if (line.showsPrompts) {
            WriteOutput(fragment.empty() ? "> " : "... ");
        }
        process::FlushOutput();
        while (!std::getline(std::cin, text)) {
            // Where Ctrl-C ended the waiting, what was typed so far is dropped.
            if (!language::Machine::TakeInterrupt()) {
                return false;
            }
            std::cin.clear();
            std::clearerr(stdin);
            fragment.clear();
            WriteOutput(line.showsPrompts ? "\n> " : "");
            process::FlushOutput();
        }
        if (language::Machine::TakeInterrupt()) {
            fragment.clear();
        }
        return true;
    };

    WriteOutput(line.showsPrompts ? Greeting : "");
    for (std::string next; readLine(next);) {
        const auto words = Trim(next);
        if (fragment.empty() && SameName(words, "Quit")) {
            return 0;
        }
        if (fragment.empty() && words.starts_with('?')) {
            Answer(documentation, words.substr(1));
            continue;
        }
        fragment += next + "\n";
        try {
            if (RunFragment(host, session, Source("input", fragment))) {
                fragment.clear();
            }
        } catch (const language::Ended& end) {
            return end.status();
        }
    }
    if (!fragment.empty()) {
        WriteError("The input ended before this was whole:\n" + fragment);
    }
    WriteOutput(line.showsPrompts ? "\n" : "");
    return 0;
}

}  // namespace standin
