#include "standin/prompt.hpp"

#include <cstdio>
#include <iostream>
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
? NAME tells about a member, such as ? Sqrt, or shows a guide, such as ? Five traps; ? WORDS finds
members, guides and recipes by what they are about, such as ? rounding. Ctrl-C stops what runs or
what was typed; Quit or Ctrl-D ends.
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
    const auto members = documentation.Matching(words, Subject::Member);
    const auto guides = documentation.Matching(words, Subject::Guide);
    const auto about = " about \"" + std::string(words) + "\":\n";
    WriteOutput(members.empty() ? "" : "Members that are" + about + members);
    WriteOutput(guides.empty() ? "" : "Guides and recipes" + about + guides);
    if (!members.empty() || !guides.empty()) {
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
