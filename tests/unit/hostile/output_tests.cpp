// What a member has written when memory runs out in the middle of it: outputs are set before the
// step that fails or not at all, and a value is the old one, or the 0 that it is made first.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "tests/unit/support/library_memory.hpp"
#include "tests/unit/tables/loaded_plugin.hpp"
#include "tests/unit/tables/recipes.hpp"

namespace {

using host_interface::Integer;
using tests::HeldObject;
using tests::HeldString;
using tests::LibraryMemory;
using tests::LoadedPlugin;
using tests::MemorySource;
using tests::NumberClass;
using tests::String;
using tests::TakeRaised;

constexpr std::string_view OutOfMemory =
    "OutOfMemoryException: Failed to allocate memory: std::bad_alloc";
constexpr const char* SetStringValue =
    "SetStringValue(Text As String, Base as Integer, byref AfterText as String, Byref ValueRead as "
    "boolean)";

/// What "SetStringValue" left: "AFTERTEXT VALUEREAD VALUE", and what it raised.
struct Left {
    std::string outputs;
    std::string raised;
    bool failed = false;
};

/// "SetStringValue" of an object that is 7, whose outputs hold something before, while the n-th
/// allocation fails; 0 is none.
Left ReadText(LoadedPlugin& plugin, NumberClass& number, std::string_view text, int n) {
    const HeldObject object = number.Make("7");
    const HeldString source = plugin.MakeString(text);
    String afterText = plugin.MakeString("before").Release();
    std::uint8_t valueRead = 0xA5;
    if (n > 0) {
        LibraryMemory::Fail(MemorySource::Language, n, false);
    }
    number.Call<void>(SetStringValue, object.Get(), source.Get(), Integer{10}, &afterText,
                      &valueRead);
    Left left;
    left.failed = LibraryMemory::StopFailing() > 0;
    left.raised = TakeRaised(plugin.host());
    const HeldString rest(afterText);
    left.outputs = (rest ? plugin.host().Bytes(rest.Get()) : "none") + " " +
                   std::to_string(valueRead) + " " + number.Text(object.Get());
    return left;
}

/// The outputs for each allocation that fails, one after the other, and at last for none.
std::vector<std::string> OutputsWhileFailing(LoadedPlugin& plugin, NumberClass& number,
                                             std::string_view text) {
    std::vector<std::string> outputs;
    for (int n = 1;; ++n) {
        const Left left = ReadText(plugin, number, text, n);
        outputs.push_back(left.outputs);
        if (!left.failed) {
            return outputs;
        }
        CHECK(left.raised == OutOfMemory);
    }
}

}  // namespace

TEST_CASE("Reading text sets its outputs before it stores the value") {
    LoadedPlugin plugin;
    const LibraryMemory memory(plugin.library().entry());
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const std::vector<std::string> outputs =
            OutputsWhileFailing(plugin, number, "12.5 and a rest");
        REQUIRE(outputs.size() >= 2);
        CHECK(outputs.back() == " and a rest 1 12.5");
        CHECK(outputs[outputs.size() - 2] == " and a rest 1 7");

        const std::vector<std::string> ofNothing = OutputsWhileFailing(plugin, number, "no number");
        REQUIRE(ofNothing.size() >= 2);
        CHECK(ofNothing.back() == "no number 0 0");
        CHECK(ofNothing[ofNothing.size() - 2] == "no number 0 7");
    }
}

TEST_CASE("Reading text clears its outputs before it reads") {
    // The text has to be copied there, since no NUL follows it.
    LoadedPlugin plugin(standin::HostOptions{.unterminatedStrings = true});
    const LibraryMemory memory(plugin.library().entry());
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const std::vector<std::string> outputs = OutputsWhileFailing(
            plugin, number, "1234567890123456789012345678901234567890 and a rest");
        REQUIRE(outputs.size() >= 3);
        CHECK(outputs.front() == "none 0 7");
        CHECK(outputs[outputs.size() - 2] == " and a rest 1 7");
        CHECK(outputs.back().starts_with(" and a rest 1 1.2345678901234567890123456789012345678"));
    }
}

TEST_CASE("Text that fails sets the outputs before the failure is reported") {
    LoadedPlugin plugin;
    const LibraryMemory memory(plugin.library().entry());
    const std::string tooLarge = "1e" + std::string(1000, '9') + " and a rest";
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        bool reported = false;
        for (int n = 1;; ++n) {
            const Left left = ReadText(plugin, number, tooLarge, n);
            if (!left.failed) {
                CHECK(left.outputs == " and a rest 1 NaN");
                break;
            }
            // Neither the report nor the value that is stored behind it takes the outputs back.
            CHECK(left.outputs == " and a rest 1 7");
            reported |= left.raised.starts_with("BigNumberErrorExceptionVQZ: ");
        }
        CHECK(reported);
    }
}

TEST_CASE("A Variant that is set makes the number 0 before anything else, and replaces that last") {
    LoadedPlugin plugin;
    const LibraryMemory memory(plugin.library().entry());
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        int variants = 0;
        for (const tests::Recipe& recipe : tests::Recipes()) {
            if (recipe.variant == nullptr) {
                continue;
            }
            CAPTURE(recipe.name);
            const HeldObject variant = recipe.variant(plugin, number);
            std::vector<std::string> values;
            for (bool failed = true; failed;) {
                const HeldObject object = number.Make("7");
                LibraryMemory::Fail(MemorySource::Language, static_cast<int>(values.size()) + 1,
                                    false);
                number.Set("VariantValue", object.Get(), variant.Get());
                failed = LibraryMemory::StopFailing() > 0;
                values.push_back(number.Text(object.Get()));
                CHECK((TakeRaised(plugin.host()) == OutOfMemory) == failed);
                if (values.size() == 2 && recipe.name == "pointer") {
                    break;
                }
            }
            REQUIRE(values.size() >= 2);
            CHECK(values.front() == "7");
            for (std::size_t index = 1; index + 1 < values.size(); ++index) {
                CHECK(values[index] == "0");
            }
            CHECK((values.back() == "0") == (recipe.name == "pointer"));
            ++variants;
        }
        CHECK(variants >= 10);
    }
}
