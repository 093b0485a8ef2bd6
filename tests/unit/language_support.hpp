// What the tests of the language share: a host with the sample plug-in, and programs run in it.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "interface/host_interface.hpp"
#include "standin/language/class_model.hpp"
#include "standin/language/code.hpp"
#include "standin/language/program.hpp"
#include "standin/language/project.hpp"
#include "standin/language/session.hpp"
#include "standin/language/source.hpp"
#include "standin/runtime/host.hpp"

extern "C" void REALPluginMain(host_interface::Resolver resolver);

namespace language_tests {

/// What is expected at the width that Integer has here.
inline std::string PerWidth(const std::string& at32Bits, const std::string& at64Bits) {
    return sizeof(host_interface::Integer) == 4 ? at32Bits : at64Bits;
}

/// A host in which the sample plug-in is registered. Its end checks that the ledger is clean.
class SampleHost {
public:
    explicit SampleHost(standin::HostOptions options = {}) : host_(std::move(options)) {
        REALPluginMain(standin::Host::Resolve);
        types_ = std::make_unique<standin::language::TypeTable>(host_);
    }
    ~SampleHost() {
        for (const auto& leak : host_.Leaks()) {
            FAIL_CHECK(leak);
        }
    }
    SampleHost(const SampleHost&) = delete;
    SampleHost& operator=(const SampleHost&) = delete;

    standin::Host& host() { return host_; }
    const standin::language::TypeTable& types() const { return *types_; }

    /// What a program prints, a line each; an exception that it does not catch, and the line that
    /// raised it, come last. An error in the program comes instead, with its line and column.
    std::string Run(const std::string& text) { return RunAs<Whole>(text); }

    /// What one expression shows at a prompt, without the end of the line. Columns count as if
    /// "Print " stood before it.
    std::string Show(const std::string& expression) {
        auto output = RunAs<Shown>("     (" + expression + ")");
        if (output.ends_with('\n')) {
            output.pop_back();
        }
        return output;
    }

private:
    /// The two ways to run a text.
    struct Whole {
        static void Run(const standin::language::Source& source, SampleHost& sample,
                        const standin::language::Machine::Output& print) {
            standin::language::Program(source, *sample.types_).Run(sample.host_, print);
        }
    };
    struct Shown {
        static void Run(const standin::language::Source& source, SampleHost& sample,
                        const standin::language::Machine::Output& print) {
            standin::language::Session(sample.host_, *sample.types_, print).Run(source);
        }
    };

    template <typename Way>
    std::string RunAs(const std::string& text) {
        const standin::language::Source source("test", text);
        std::string output;
        try {
            Way::Run(source, *this, [&output](std::string_view written) { output += written; });
        } catch (const standin::language::ProgramError& error) {
            const auto place = source.Locate(error.position());
            return std::to_string(place.line) + ":" + std::to_string(place.column) + ": " +
                   error.what();
        } catch (const standin::language::Thrown& thrown) {
            auto* const exception = thrown.exception().object();
            output += "Unhandled " + host_.ClassOf(exception).name + ": " +
                      host_.Message(exception) + " (line " +
                      std::to_string(source.Locate(thrown.position()).line) + ")\n";
        } catch (const standin::language::OutOfObjects&) {
            output += "Out of objects\n";
        }
        return output;
    }

    standin::Host host_;
    std::unique_ptr<standin::language::TypeTable> types_;
};

/// All errors of a text, as the command shows them.
inline std::string ErrorsIn(SampleHost& sample, const std::string& text) {
    const standin::language::Source source("p", text);
    try {
        const standin::language::Program program(source, sample.types());
    } catch (const standin::language::ProgramError& error) {
        return source.Describe(error);
    }
    return "none";
}

/// What the project of that name prints, with its exit status, its files being these and no others;
/// or the first line of its errors.
inline std::string RunProject(SampleHost& sample, const std::string& project,
                              const std::map<std::string, std::string>& files,
                              const std::vector<std::string>& arguments = {}) {
    standin::language::Source source(project, files.at(project));
    std::string output;
    try {
        standin::language::AddProjectFiles(
            source, [&files](const std::string& name) -> std::optional<std::string> {
                const auto found = files.find(name);
                return found == files.end() ? std::nullopt : std::optional(found->second);
            });
        const standin::language::Program program(source, sample.types(), arguments);
        const int status =
            program.Run(sample.host(), [&output](std::string_view written) { output += written; });
        return output + std::to_string(status);
    } catch (const standin::language::ProgramError& error) {
        const auto report = source.Describe(error);
        return report.substr(0, report.find('\n'));
    }
}

}  // namespace language_tests
