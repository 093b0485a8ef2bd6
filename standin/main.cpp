// The command: loads a plug-in library in the stand-in host and runs a program against it, or
// what is typed.
#include <exception>
#include <string>

#include "standin/command_line.hpp"
#include "standin/language/listing.hpp"
#include "standin/language/plugin_call.hpp"
#include "standin/language/program.hpp"
#include "standin/language/project.hpp"
#include "standin/process.hpp"
#include "standin/prompt.hpp"
#include "standin/runtime/host.hpp"
#include "standin/runtime/memory_budget.hpp"

namespace standin {
namespace {

using language::CallLabel;
using language::Source;
using process::WriteError;
using process::WriteOutput;

/// How the command ends; the numbers are its exit status.
enum class Status { Good = 0, Unhandled = 1, Wrong = 2, Unbalanced = 3, Crashed = 4 };

Source ReadSource(const CommandLine& line) {
    if (line.text) {
        return {"-e", *line.text};
    }
    if (*line.file == "-") {
        return {"-", process::ReadStandardInput()};
    }
    auto text = process::ReadFile(*line.file);
    if (!text) {
        throw UsageError("cannot read the program " + *line.file);
    }
    return {*line.file, *text};
}

void SendDebugLog(Host& host, bool shows) {
    host.SetDebugSink([shows](std::string_view text) {
        if (shows) {
            WriteError(std::string(text) + (text.ends_with('\n') ? "" : "\n"));
        }
    });
}

void ReportUnhandled(Host& host, const Source& source, const language::Thrown& thrown) {
    auto* const exception = thrown.exception().object();
    WriteError("Unhandled " + host.ClassOf(exception).name + ": " + host.Message(exception) +
               "\n  at " + source.NameLine(thrown.position()) + "\n");
}

/// From now on allocations fail, and memory is limited, as the command line says.
void SetLimits(Host& host, const CommandLine& line) {
    if (line.failingString) {
        host.FailAllocation(Allocation::String, *line.failingString, false);
    }
    if (line.failingObject) {
        host.FailAllocation(Allocation::Object, *line.failingObject, false);
    }
    if (line.maximumMemory) {
        MemoryBudget::SetLimit(*line.maximumMemory);
    }
}

Status RunProgram(Host& host, Source& source, const language::TypeTable& types,
                  const CommandLine& line) {
    try {
        if (line.file && language::IsProjectName(*line.file)) {
            language::AddProjectFiles(source, process::ReadFile);
        }
        const language::Program program(source, types, line.arguments);
        SetLimits(host, line);
        return static_cast<Status>(program.Run(host, process::WriteAtOnce, line.maximumSteps));
    } catch (const language::ProgramError& error) {
        WriteError(source.Describe(error));
        return Status::Wrong;
    } catch (const language::Thrown& thrown) {
        host.StopFailing();
        ReportUnhandled(host, source, thrown);
        return Status::Unhandled;
    } catch (const language::OutOfObjects& error) {
        WriteError("Unhandled OutOfMemoryException: " + std::string(error.what()) + "\n  at " +
                   source.NameLine(error.position()) + "\n");
        return Status::Unhandled;
    }
}

/// Reports what was leaked or released too often. Returns whether nothing was.
bool ReportLedger(const Host& host, bool showsCounts) {
    if (showsCounts) {
        const auto counts = host.Counts();
        WriteError("strings: " + std::to_string(counts.stringsMade) + " made, " +
                   std::to_string(counts.stringsAlive) +
                   " alive\nobjects: " + std::to_string(counts.objectsMade) + " made, " +
                   std::to_string(counts.objectsAlive) +
                   " alive\nstring data: " + std::to_string(counts.stringDataHeld) + " held\n");
        for (const auto& missing : host.options().missing) {
            if (const auto found = host.lookups().find(missing); found != host.lookups().end()) {
                WriteError("looked for in vain: " + missing + ", " + std::to_string(found->second) +
                           " times\n");
            }
        }
    }
    const auto leaks = host.Leaks();
    if (!leaks.empty()) {
        WriteError("The ledger is not clean:\n");
        for (const auto& leak : leaks) {
            WriteError("  " + leak + "\n");
        }
    }
    return leaks.empty();
}

Status Perform(const CommandLine& line) {
    std::optional<Source> source;
    if (line.task == Task::Run) {
        source = ReadSource(line);
    }
    Host host(line.host);
    SendDebugLog(host, line.showsDebugLog);
    std::optional<PluginLibrary> library;
    {
        const CallLabel label("the library's entry");
        library.emplace(line.library);
    }
    Status status = Status::Good;
    const language::TypeTable types(host);
    if (line.task == Task::Run) {
        status = RunProgram(host, *source, types, line);
    } else if (line.task == Task::Prompt) {
        SetLimits(host, line);
        status = static_cast<Status>(RunPrompt(host, types, line));
    } else {
        WriteOutput(line.task == Task::List
                        ? language::ListClasses(host, types, line.file.value_or(""))
                        : DumpTables(host));
    }
    host.StopFailing();
    return ReportLedger(host, line.showsLedger) ? status : Status::Unbalanced;
}

Status Main(const std::vector<std::string>& words) {
    try {
        const auto line = ReadCommandLine(words);
        if (line.task == Task::Help) {
            WriteOutput(UsageText);
            return Status::Good;
        }
        return Perform(line);
    } catch (const UsageError& error) {
        WriteError(std::string(error.what()) + "\n" + std::string(UsageHint));
    } catch (const std::exception& error) {
        WriteError(std::string(error.what()) + "\n");
    }
    return Status::Wrong;
}

}  // namespace
}  // namespace standin

int main(int argc, char** argv) {
    standin::process::ReportCrashes(standin::language::CallLabel::Current,
                                    static_cast<int>(standin::Status::Crashed));
    const auto status = standin::Main(standin::process::Arguments(argc, argv));
    standin::process::FlushOutput();
    return static_cast<int>(status);
}
