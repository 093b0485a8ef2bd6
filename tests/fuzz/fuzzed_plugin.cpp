#include "tests/fuzz/fuzzed_plugin.hpp"

#include <algorithm>
#include <cstdlib>

#define DOCTEST_CONFIG_IMPLEMENT
#include <doctest/doctest.h>

#include "plugin/bindings/startup_globals.hpp"
#include "plugin/entry.hpp"

namespace fuzz {
namespace {

/// Ages of hosts with the ways of each to make strings.
constexpr double HostVersions[] = {2011.04, 2012.5, standin::CurrentHostVersion};

/// Members whose time depends on the value: up to a second in the larger precision.
constexpr std::string_view SlowMethods[] = {"Sqrt", "Pow", "Operator_Power"};
/// Shared methods that are quick all the same.
constexpr std::string_view QuickSharedMethods[] = {"NumberWith", "Abs", "Sgn", "Deg",       "Rad",
                                                   "Grad",       "Min", "Max", "LibTypeStr"};

constexpr std::string_view Raised[] = {"BigNumberErrorExceptionVQZ", "NilObjectException",
                                       "OutOfBoundsException", "UnsupportedOperationException"};

bool IsSlow(const tests::Member& member) {
    std::string_view name = member.name();
    name.remove_prefix(name.find('.') + 1);
    const auto begins = [name](std::string_view start) { return name.starts_with(start); };
    return member.hasSelf() ? std::ranges::any_of(SlowMethods, begins)
                            : std::ranges::none_of(QuickSharedMethods, begins);
}

/// Lets doctest's checks work outside of its test cases.
void EndWithFailedChecks() {
    static doctest::Context context;
    context.setAsDefaultForAssertsOutOfTestCases();
    context.setAssertHandler([](const doctest::AssertData& check) {
        if (check.m_failed) {
            std::fprintf(stderr, "%s:%d: %s is %s\n", check.m_file, check.m_line, check.m_expr,
                         check.m_decomp.c_str());
            std::abort();
        }
    });
}

}  // namespace

FuzzedPlugin& FuzzedPlugin::Get() {
    static FuzzedPlugin plugin;
    return plugin;
}

FuzzedPlugin::FuzzedPlugin()
    : host_({.unterminatedStrings = true, .remembersReleased = false}),
      classes_{tests::NumberClass(host_, "BigNumberVQZ", 2 + 8),
               tests::NumberClass(host_, "BiggerNumberVQZ", 16 + 64)} {
    EndWithFailedChecks();
    REALPluginMain(&standin::Host::Resolve);
}

std::size_t FuzzedPlugin::TakeClass(Input& input) {
    return input.Take<std::uint8_t>() < 0xF8 ? 0 : 1;
}

std::array<FuzzedClass, 2> FuzzedPlugin::ClassesWith(bool slowMembers) {
    const auto with = [slowMembers](const tests::NumberClass& number) {
        FuzzedClass fuzzed{number, tests::MembersOf(number)};
        std::erase_if(fuzzed.members, [slowMembers](const tests::Member& member) {
            return IsSlow(member) != slowMembers;
        });
        REQUIRE(!fuzzed.members.empty());
        return fuzzed;
    };
    return {with(classes_[0]), with(classes_[1])};
}

void FuzzedPlugin::SetUp(Input& input) {
    vqz::HostVersion = input.OneOf(HostVersions);
    vqz::DebugEnabled = (input.Take<std::uint8_t>() & 1U) != 0;
}

void FuzzedPlugin::FinishInput() {
    const std::string raised = tests::TakeRaised(host_);
    INFO(raised);
    CHECK((raised.empty() || std::ranges::any_of(Raised, [&](std::string_view name) {
               return raised.starts_with(name);
           })));
    tests::CheckLedger(host_);
    host_.TakeDebugLog();
}

}  // namespace fuzz
