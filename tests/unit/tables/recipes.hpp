// Values to call any member of a number class with, so that all of them are called in the same
// ways: with what they work on, and with what makes them fail.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

#include "tests/unit/tables/loaded_plugin.hpp"
#include "tests/unit/tables/members.hpp"

namespace tests {

/// A Variant for a class, made anew for each call.
using MakeVariant = HeldObject (*)(LoadedPlugin& plugin, NumberClass& number);

/// Which memory block a call gets.
enum class BlockSample { None, Mantissa, Exponent, OfNoUse };

/// One way to call members: a value for each kind of argument.
struct Recipe {
    std::string_view name;
    /// Numbers by their text; null is Nil.
    const char* self = "0.5";
    const char* number = "2";
    /// An empty text is a null handle.
    std::string_view text = "12.5";
    HostTextEncoding encoding = HostTextEncoding::Utf8;
    std::int32_t integer = 2;
    /// Null is the Variant Nil.
    MakeVariant variant = nullptr;
    BlockSample block = BlockSample::Exponent;
    /// The types of argument that this recipe is about: members that take none of them are called
    /// by it as by the first one. Empty for all.
    std::span<const std::string_view> concerns = {};

    /// Whether a member is called in a way of its own by this recipe.
    bool Concerns(const Member& member) const;
};

/// All recipes. By the first one members succeed as far as they can.
std::span<const Recipe> Recipes();

/// The values of a recipe, alive as long as this.
class OwnedSamples {
public:
    OwnedSamples(LoadedPlugin& plugin, NumberClass& number,
                 const Recipe& recipe = Recipes().front());

    Samples Get() const {
        return {.self = self_.Get(),
                .number = number_.Get(),
                .text = text_.Get(),
                .variant = variant_.Get(),
                .memoryBlock = memoryBlock_.Get(),
                .integer = integer_};
    }

private:
    HeldObject self_;
    HeldObject number_;
    HeldString text_;
    HeldObject variant_;
    HeldObject memoryBlock_;
    std::int32_t integer_;
};

}  // namespace tests
