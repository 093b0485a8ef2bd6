// Programs of any text in the host's language, with the sample plug-in.
#include <memory>
#include <string>
#include <string_view>

#include "standin/language/class_model.hpp"
#include "standin/language/program.hpp"
#include "standin/runtime/host.hpp"
#include "standin/runtime/memory_budget.hpp"
#include "tests/fuzz/input.hpp"

extern "C" void REALPluginMain(host_interface::Resolver resolver);

namespace {

constexpr std::uint64_t MaximumSteps = 2000;
constexpr std::size_t MaximumMemory = 1'000'000;

/// A host with the sample plug-in's classes.
struct SampleHost {
    SampleHost() { REALPluginMain(&standin::Host::Resolve); }

    standin::Host host{{.remembersReleased = false}};
};

/// What the language says of a program, as the command would; nothing else may come out of it.
void Run(const std::string& text) {
    static SampleHost sample;
    static const standin::language::TypeTable types(sample.host);
    const standin::language::Source source("fuzz", text);
    standin::MemoryBudget::SetLimit(MaximumMemory);
    try {
        const standin::language::Program program(source, types);
        program.Run(
            sample.host, [](std::string_view) {}, MaximumSteps);
    } catch (const standin::language::ProgramError& error) {
        source.Describe(error);
    } catch (const standin::language::Thrown& thrown) {
        source.Locate(thrown.position());
    } catch (const standin::language::OutOfObjects& error) {
        source.Locate(error.position());
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Run(std::string(fuzz::Input({data, size}).Rest()));
    const auto leaks = standin::Host::Current().Leaks();
    if (!leaks.empty()) {
        std::fprintf(stderr, "%s\n", leaks.front().c_str());
        std::abort();
    }
    return 0;
}
