// All members against hosts that go wrong: Nil everywhere, functions that are missing, allocations
// that fail, stacks and control words that are not what a compiler expects.
#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "tests/unit/tables/loaded_plugin.hpp"
#include "tests/unit/tables/members.hpp"
#include "tests/unit/tables/recipes.hpp"

namespace {

using host_interface::Integer;
using standin::Allocation;
using tests::HeldObject;
using tests::HeldString;
using tests::LoadedPlugin;
using tests::Member;
using tests::MembersOf;
using tests::NumberClass;
using tests::Object;
using tests::OwnedSamples;
using tests::Recipe;
using tests::Recipes;
using tests::Samples;
using tests::TakeRaised;

/// What a call may raise.
const std::set<std::string, std::less<>> ExpectedExceptions = {"",
                                                               "BigNumberErrorExceptionVQZ",
                                                               "NilObjectException",
                                                               "OutOfBoundsException",
                                                               "OutOfMemoryException",
                                                               "RuntimeException",
                                                               "UnsupportedOperationException"};

/// The class of the exception that was raised; empty when there was none.
std::string TakeRaisedClass(standin::Host& host) {
    const std::string raised = TakeRaised(host);
    return raised.substr(0, raised.find(':'));
}

/// Functions that a host of any age offers and the library asks for by name.
constexpr const char* HostFunctions[] = {
    "REALBuildString",          "RuntimeAddString",        "REALBuildStringWithEncoding",
    "REALConvertString",        "PluginGetStringData",     "pluginObjectType",
    "REALGetPropValueCurrency", "REALGetPropValueDouble",  "REALGetPropValueInt",
    "REALGetPropValueInt64",    "REALGetPropValueInteger", "REALGetPropValueSingle",
    "REALGetPropValueString",   "REALGetPropValueUInt32",  "REALGetPropValueUInt64",
    "REALGetStringEncoding",    "REALLoadGlobalMethod",    "memoryBlockGetPtr",
    "memoryBlockGetSize",       "newMemoryBlock",          "Int32ToVariant",
    "Int64ToVariant",           "StringToVariant",         "UInt64ToVariant",
    "RuntimeObjectIsa",         "RuntimeRaiseException",   "REALSetPropValueInteger",
    "REALSetPropValueString",   "REALSetStringEncoding",   "REALinRuntime",
    "PluginNewInstance",        "VariantToDouble",         "VariantToSingle",
    "VariantToInt32",           "VariantToInt64",          "VariantToUInt32",
    "VariantToUInt64",          "VariantToString"};

/// Whether a member computes nothing that takes long, so that it can be called over and over.
bool IsQuick(const Member& member) {
    return member.hasSelf() || member.name().find(".NumberWith") != std::string::npos;
}

/// What members of the text, flag and arithmetic kind return, one a line: the same on every host
/// whose differences do not matter to them.
std::string SampleResults(LoadedPlugin& plugin) {
    std::string results;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject left = number.Make("-12.5");
        const HeldObject right = number.Make("3");
        const HeldString accented =
            plugin.MakeString("7.25\xE9", host_interface::HostTextEncoding::Latin1);
        const HeldObject read = number.Unconstructed();
        number.Call<void>("Constructor(value as String)", read.Get(), accented.Get());
        results += number.Text(read.Get()) + "\n";
        for (const char* operation :
             {"Operator_Add(other as $) as $", "Operator_Subtract(other as $) as $",
              "Operator_Multiply(other as $) as $", "Operator_Divide(other as $) as $"}) {
            const auto result = number.Call<HeldObject>(operation, left.Get(), right.Get());
            results += result ? number.Text(result.Get()) + "\n" : "Nil\n";
        }
        const auto failed = number.Call<HeldObject>(
            "Divide(other as $, round as boolean = true) as $", left.Get(), nullptr, true);
        results += failed ? "a result\n" : TakeRaised(plugin.host()) + "\n";
        results += std::to_string(number.Call<Integer>("Operator_Compare(other as $) as Integer",
                                                       left.Get(), right.Get())) +
                   "\n";
    }
    return results;
}

}  // namespace

TEST_CASE("Members that read change no operand, and answer a number or raise, never both") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        for (const char* value : {"0.5", "-4", "0"}) {
            Recipe recipe = Recipes().front();
            recipe.self = value;
            const OwnedSamples owned(plugin, number, recipe);
            const Samples samples = owned.Get();
            const std::string self = number.ValueBytes(samples.self);
            const std::string argument = number.ValueBytes(samples.number);
            for (const Member& member : MembersOf(number)) {
                if (member.writesSelf()) {
                    continue;
                }
                CAPTURE(member.name());
                CAPTURE(value);
                const bool answered = member.Call(samples);
                const std::string raised = TakeRaisedClass(plugin.host());
                CHECK(ExpectedExceptions.contains(raised));
                CHECK((!member.givesNumber() || answered == raised.empty()));
                CHECK(number.ValueBytes(samples.self) == self);
                CHECK(number.ValueBytes(samples.number) == argument);
                CHECK(plugin.host().References(samples.self) == 1);
                CHECK(plugin.host().References(samples.number) == 1);
                CHECK(plugin.host().References(samples.text) == 1);
            }
        }
    }
}

TEST_CASE("Nil as receiver of members that read, and as every argument, crashes nothing") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject unconstructed = number.Unconstructed();
        const HeldObject scratch = number.Make("1");
        for (const Member& member : MembersOf(number)) {
            CAPTURE(member.name());
            for (const Object missing : {Object{}, unconstructed.Get()}) {
                Samples samples;
                samples.self = member.writesSelf() ? scratch.Get() : missing;
                samples.number = missing;
                member.Call(samples);
                CHECK(ExpectedExceptions.contains(TakeRaisedClass(plugin.host())));
                CHECK(plugin.host().Raises() < 100000);
            }
            // The member of an object that is there, with nothing given.
            Samples samples;
            samples.self = scratch.Get();
            member.Call(samples);
            CHECK(ExpectedExceptions.contains(TakeRaisedClass(plugin.host())));
        }
        CHECK(number.ValueBytes(unconstructed.Get()).empty());
    }
}

TEST_CASE("Every member survives the failure of each single allocation of the host") {
    for (const Allocation kind : {Allocation::String, Allocation::Object}) {
        LoadedPlugin plugin;
        for (NumberClass& number : plugin.classes()) {
            const OwnedSamples samples(plugin, number);
            for (const Member& member : MembersOf(number)) {
                CAPTURE(member.name());
                const int mostAllocations = IsQuick(member) ? 4 : 1;
                for (int failing = 1; failing <= mostAllocations; ++failing) {
                    for (const bool fromThenOn : {false, true}) {
                        CAPTURE(failing);
                        CAPTURE(fromThenOn);
                        plugin.host().FailAllocation(kind, failing, fromThenOn);
                        member.Call(samples.Get());
                        plugin.host().StopFailing();
                        CHECK(ExpectedExceptions.contains(TakeRaisedClass(plugin.host())));
                    }
                }
            }
        }
    }
}

TEST_CASE("A number that the host cannot make is Nil, without an exception") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        for (const Member& member : MembersOf(number)) {
            if (!member.givesNumber()) {
                continue;
            }
            CAPTURE(member.name());
            // Every member works with one of these numbers; domains differ.
            bool works = false;
            for (const char* value : {"2", "0.5"}) {
                Recipe recipe = Recipes().front();
                recipe.self = value;
                recipe.number = value;
                const OwnedSamples samples(plugin, number, recipe);
                works = member.Call(samples.Get());
                TakeRaised(plugin.host());
                if (works) {
                    plugin.host().FailAllocation(Allocation::Object, 1, true);
                    CHECK_FALSE(member.Call(samples.Get()));
                    plugin.host().StopFailing();
                    CHECK(TakeRaised(plugin.host()) == "");
                    break;
                }
            }
            CHECK(works);
        }
    }
}

TEST_CASE("A text that the host cannot make is no text, without an exception") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("12.5");
        for (const Member& member : MembersOf(number)) {
            const std::string_view name = member.name();
            if (!name.ends_with(" as String") && !name.ends_with(".StringValue")) {
                continue;
            }
            CAPTURE(member.name());
            plugin.host().FailAllocation(Allocation::String, 1, true);
            CHECK_FALSE(member.Call({.self = object.Get(), .integer = 10}));
            plugin.host().StopFailing();
            CHECK(TakeRaised(plugin.host()) == "");
        }
    }
}

TEST_CASE("A failure report whose exception cannot be made becomes a RuntimeException or nothing") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject one = number.Make("1");
        const auto divide = [&] {
            return number.Call<HeldObject>("Operator_Divide(other as $) as $", one.Get(), nullptr);
        };
        const std::string message = "Operator_Divide operation failed with numbers 1 and nil.";
        plugin.host().FailAllocation(Allocation::Object, 1, false);
        CHECK_FALSE(divide());
        CHECK(TakeRaised(plugin.host()) == "RuntimeException: " + message);
        plugin.host().FailAllocation(Allocation::Object, 1, true);
        CHECK_FALSE(divide());
        plugin.host().StopFailing();
        CHECK(TakeRaised(plugin.host()) == "");
        CHECK_FALSE(divide());
        CHECK(TakeRaised(plugin.host()) == "BigNumberErrorExceptionVQZ: " + message);
    }
}

TEST_CASE("A parse that fails for want of a converted text stores zero") {
    for (const double version : {2011.99, 2023.04}) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        LoadedPlugin plugin(version);
        for (NumberClass& number : plugin.classes()) {
            const HeldObject object = number.Make("7");
            const HeldString text =
                plugin.MakeString({"\x31\0\x32\0", 4}, host_interface::HostTextEncoding::Utf16);
            plugin.host().FailAllocation(Allocation::String, 1, false);
            number.Set("StringValue", object.Get(), text.Get());
            plugin.host().StopFailing();
            CHECK(TakeRaised(plugin.host()) == "");
            CHECK(number.Text(object.Get()) == "0");
        }
    }
}

TEST_CASE("A host that lacks any single function crashes nothing and loses nothing") {
    for (const double version : {2011.99, 2023.04}) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        for (const char* missing : HostFunctions) {
            CAPTURE(version);
            CAPTURE(missing);
            LoadedPlugin plugin(standin::HostOptions{.version = version, .missing = {missing}});
            for (NumberClass& number : plugin.classes()) {
                const OwnedSamples samples(plugin, number);
                for (const Member& member : MembersOf(number)) {
                    CAPTURE(member.name());
                    if (!IsQuick(member)) {
                        continue;
                    }
                    member.Call(samples.Get());
                    CHECK(ExpectedExceptions.contains(TakeRaisedClass(plugin.host())));
                }
            }
        }
    }
}

TEST_CASE("What a missing function costs is what it would have done, and no more") {
    // The text of a sum, the text read from UTF-16, and the exception of a failed division.
    struct Outcome {
        std::string sum;
        std::string read;
        std::string raised;
    };
    struct Row {
        double hostVersion;
        const char* missing;
        Outcome outcome;
    };
    const std::string failure =
        "BigNumberErrorExceptionVQZ: Operator_Divide operation failed with numbers 2 and nil.";
    const std::string noMessage = "BigNumberErrorExceptionVQZ: ";
    const Row rows[] = {
        {2023.04, "(nothing)", {"5", "12", failure}},
        {2011.99, "(nothing)", {"5", "12", failure}},
#if HOST_INTERFACE_32_BIT
        {2023.04, "PluginGetStringData", {"5", "0", failure}},
#else
        // Nothing but this function reads a text there: every number made of one is 0.
        {2023.04,
         "PluginGetStringData",
         {"0", "0",
          "BigNumberErrorExceptionVQZ: Operator_Divide operation failed with numbers 0 and nil."}},
#endif
        {2011.99, "PluginGetStringData", {"5", "12", failure}},
        {2023.04, "REALConvertString", {"5", "12", failure}},
        {2011.99, "REALConvertString", {"5", "0", failure}},
        {2023.04, "REALBuildStringWithEncoding", {"null", "null", noMessage}},
        {2011.99, "REALBuildStringWithEncoding", {"5", "12", failure}},
        {2023.04, "REALBuildString", {"5", "12", failure}},
        {2011.99, "REALBuildString", {"null", "null", noMessage}},
        {2011.99, "REALSetStringEncoding", {"5", "12", failure}},
        {2023.04, "RuntimeAddString", {"5", "12", noMessage}},
        {2023.04, "REALSetPropValueString", {"5", "12", noMessage}},
        {2023.04, "REALSetPropValueInteger", {"5", "12", failure}},
        {2023.04, "RuntimeRaiseException", {"5", "12", ""}},
        {2023.04, "PluginNewInstance", {"Nil", "12", ""}},
    };
    for (const Row& row : rows) {
        if (!tests::HasHosts(row.hostVersion)) {
            continue;
        }
        CAPTURE(row.hostVersion);
        CAPTURE(row.missing);
        LoadedPlugin plugin(
            standin::HostOptions{.version = row.hostVersion, .missing = {row.missing}});
        for (NumberClass& number : plugin.classes()) {
            const HeldObject two = number.Make("2");
            const HeldObject three = number.Make("3");
            const auto sum =
                number.Call<HeldObject>("Operator_Add(other as $) as $", two.Get(), three.Get());
            CHECK((sum ? number.Text(sum.Get()) : "Nil") == row.outcome.sum);

            const HeldString text =
                plugin.MakeString({"\x31\0\x32\0", 4}, host_interface::HostTextEncoding::Utf16);
            const HeldObject read = number.Make("7");
            number.Set("StringValue", read.Get(), text.Get());
            CHECK(number.Text(read.Get()) == row.outcome.read);
            CHECK(TakeRaised(plugin.host()) == "");

            CHECK_FALSE(
                number.Call<HeldObject>("Operator_Divide(other as $) as $", two.Get(), nullptr));
            CHECK(TakeRaised(plugin.host()) == row.outcome.raised);
        }
    }
}

TEST_CASE("A host without a function that releases only keeps what it would release") {
    // What stays alive is the host's own doing, so it is expected here and forgotten.
    for (const char* missing :
         {"REALUnlockString", "REALUnlockObject", "PluginDisposeStringData"}) {
        CAPTURE(missing);
        LoadedPlugin plugin(standin::HostOptions{.missing = {missing}});
        SampleResults(plugin);
        for (const std::string& violation : plugin.host().Violations()) {
            // The library cannot help it: its record is used up before it is filled again.
            CHECK(std::string_view(missing) == "PluginDisposeStringData");
            CHECK(violation.starts_with("PluginGetStringData: the record is filled again, but"));
        }
        plugin.host().ResetLedger();
    }
}

TEST_CASE("An error number that cannot be set does not matter, by either name") {
    using Missing = std::set<std::string, std::less<>>;
    for (const Missing& missing : {Missing{"REALSetPropValueInteger"},
                                   Missing{"REALSetPropValueInteger", "REALSetPropValueInt"}}) {
        LoadedPlugin plugin(standin::HostOptions{.missing = missing});
        NumberClass& number = plugin.bigNumber();
        const HeldObject one = number.Make("1");
        CHECK_FALSE(
            number.Call<HeldObject>("Operator_Divide(other as $) as $", one.Get(), nullptr));
        CHECK(TakeRaised(plugin.host()) ==
              "BigNumberErrorExceptionVQZ: Operator_Divide operation failed with numbers 1 and "
              "nil.");
        // 64-bit hosts have the first name only.
        CHECK(plugin.host().lookups().contains("REALSetPropValueInt") ==
              (HOST_INTERFACE_32_BIT != 0));
    }
}

TEST_CASE("Every member can be called, and asks for no function that hosts do not have") {
    LoadedPlugin plugin;
    const std::set<std::string, std::less<>> rare = {
        "REALGetRBVersion", "RegisterPluginVersion",   "PluginRegisterClass",
        "REALLockString",   "REALUnlockString",        "REALLockObject",
        "REALUnlockObject", "PluginDisposeStringData", "REALSetPropValueInt"};
    for (NumberClass& number : plugin.classes()) {
        const OwnedSamples samples(plugin, number);
        for (const Member& member : MembersOf(number)) {
            CAPTURE(member.name());
            member.Call(samples.Get());
            CHECK(ExpectedExceptions.contains(TakeRaisedClass(plugin.host())));
        }
    }
    for (const auto& lookup : plugin.host().lookups()) {
        const std::string& name = lookup.first;
        CAPTURE(name);
        const bool known = rare.contains(name) ||
                           std::ranges::find(HostFunctions, name) != std::end(HostFunctions);
        CHECK(known);
        // Every one is there, so it is asked for once: twice where two bindings have one name.
        CHECK(lookup.second <= 2);
    }
}

TEST_CASE("Results do not depend on the host's age, alignment, control word or habits") {
    const std::string expected = [] {
        LoadedPlugin plugin;
        return SampleResults(plugin);
    }();
    CHECK(expected.starts_with(
        "7.25\n-9.5\n-15.5\n-37.5\n-4.1666666666666666666666666666666666666666666666"));
    const standin::HostOptions hosts[] = {
        {.version = std::nullopt},
        {.version = 2011.99},
        {.version = 2012.0},
        {.builtApplication = true},
        {.newInstanceRunsConstructor = true},
        {.unterminatedStrings = true},
#if HOST_INTERFACE_32_BIT
        {.misalignedStack = true},
        {.changedControlWord = true},
        {.version = 2011.99,
         .builtApplication = true,
         .newInstanceRunsConstructor = true,
         .unterminatedStrings = true,
         .misalignedStack = true,
         .changedControlWord = true},
#endif
    };
    for (std::size_t index = 0; index < std::size(hosts); ++index) {
        CAPTURE(index);
        if (!tests::HasHosts(hosts[index].version)) {
            continue;
        }
        LoadedPlugin plugin(hosts[index]);
        CHECK(SampleResults(plugin) == expected);
    }
}

#if HOST_INTERFACE_32_BIT
TEST_CASE("Every member works on a stack of four-byte alignment and with any control word") {
    LoadedPlugin plugin(standin::HostOptions{.misalignedStack = true, .changedControlWord = true});
    for (NumberClass& number : plugin.classes()) {
        const OwnedSamples samples(plugin, number);
        for (const Member& member : MembersOf(number)) {
            CAPTURE(member.name());
            member.Call(samples.Get());
            CHECK(ExpectedExceptions.contains(TakeRaisedClass(plugin.host())));
        }
    }
}
#endif
