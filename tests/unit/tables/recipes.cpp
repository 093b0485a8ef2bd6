#include "tests/unit/tables/recipes.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace tests {
namespace {

using host_interface::VariantTypeCode;

template <VariantTypeCode Code, typename Held>
HeldObject Integer(LoadedPlugin& plugin, NumberClass&) {
    return HeldObject(plugin.host().MakeVariant(static_cast<std::int32_t>(Code), Held{70000}));
}

template <VariantTypeCode Code>
HeldObject Real(LoadedPlugin& plugin, NumberClass&) {
    return HeldObject(plugin.host().MakeVariant(static_cast<std::int32_t>(Code), 2.5));
}

HeldObject Text(LoadedPlugin& plugin, NumberClass&) {
    const HeldString text = plugin.MakeString("-7.25");
    return HeldObject(
        plugin.host().MakeVariant(static_cast<std::int32_t>(VariantTypeCode::String), text.Get()));
}

HeldObject Number(LoadedPlugin&, NumberClass& number) {
    return number.Make("8.5");
}

HeldObject Date(LoadedPlugin& plugin, NumberClass&) {
    return HeldObject(plugin.host().MakeDate(3.5));
}

HeldObject DateTime(LoadedPlugin& plugin, NumberClass&) {
    return HeldObject(plugin.host().MakeDateTime(4.5));
}

HeldObject Pointer(LoadedPlugin& plugin, NumberClass&) {
    return HeldObject(plugin.host().MakeVariant(static_cast<std::int32_t>(VariantTypeCode::Ptr),
                                                std::int64_t{1}));
}

HeldObject NumberOf(NumberClass& number, const char* text) {
    if (text == nullptr) {
        return {};
    }
    return std::string_view(text) == "NaN" ? number.MakeNan() : number.Make(text);
}

HeldObject BlockOf(LoadedPlugin& plugin, NumberClass& number, BlockSample kind) {
    const auto part = [&](const char* name) {
        const HeldObject source = number.Make("-3.75");
        return number.Get<HeldObject>(name, source.Get());
    };
    switch (kind) {
        case BlockSample::Mantissa:
            return part("DataMantissa");
        case BlockSample::Exponent:
            return part("DataExponent");
        case BlockSample::OfNoUse:
            return HeldObject(plugin.host().MakeMemoryBlock("seven b"));
        case BlockSample::None:
            break;
    }
    return {};
}

// More digits than a short text of the language's library holds, so that showing them takes memory.
constexpr const char* Long = "-123456789012345678901234567890.5";

constexpr std::array<std::string_view, 2> OnNumbers = {"self", "number"};
constexpr std::array<std::string_view, 1> OnText = {"string"};
constexpr std::array<std::string_view, 1> OnVariants = {"variant"};
constexpr std::array<std::string_view, 1> OnBlocks = {"memoryblock"};

constexpr Recipe OfVariant(std::string_view name, MakeVariant make) {
    return {.name = name, .variant = make, .concerns = OnVariants};
}

constexpr std::array AllRecipes = {
    Recipe{.name = "usual", .variant = Integer<VariantTypeCode::Int32, std::int64_t>},
    Recipe{.name = "nothing", .number = nullptr, .text = "", .block = BlockSample::None},
    Recipe{.name = "no numbers", .self = "NaN", .number = "NaN", .concerns = OnNumbers},
    Recipe{.name = "long numbers", .self = Long, .number = Long, .concerns = OnNumbers},
    Recipe{.name = "long number and zero", .self = Long, .number = "0", .concerns = OnNumbers},
    Recipe{.name = "huge number", .self = "-1.25e300", .concerns = OnNumbers},
    Recipe{.name = "no number in the text, no such base",
           .self = Long,
           .text = "a text without any number in it",
           .integer = 17,
           .concerns = OnText},
    Recipe{.name = "text of two bytes a character",
           .text = {"\x31\0\x2E\0\x35\0\xE9\0", 8},
           .encoding = HostTextEncoding::Utf16,
           .integer = 10,
           .concerns = OnText},
    Recipe{.name = "accented text",
           .text = "1.5\xE9",
           .encoding = HostTextEncoding::Latin1,
           .integer = 10,
           .concerns = OnText},
    Recipe{.name = "text of unknown encoding",
           .text = "1.5\xE9",
           .encoding = HostTextEncoding::Unknown,
           .integer = 10,
           .concerns = OnText},
    Recipe{.name = "long text",
           .text = "12345678901234567890123456789012345678901234567890.5 and a rest",
           .integer = 10,
           .concerns = OnText},
    OfVariant("Int64", Integer<VariantTypeCode::Int64, std::int64_t>),
    OfVariant("UInt32", Integer<VariantTypeCode::Int32, std::uint64_t>),
    OfVariant("UInt64", Integer<VariantTypeCode::Int64, std::uint64_t>),
    OfVariant("Boolean", Integer<VariantTypeCode::Boolean, std::int64_t>),
    OfVariant("Currency", Integer<VariantTypeCode::Currency, std::int64_t>),
    OfVariant("Single", Real<VariantTypeCode::Single>),
    OfVariant("Double", Real<VariantTypeCode::Double>),
    OfVariant("Date", Date),
    OfVariant("DateTime", DateTime),
    OfVariant("text", Text),
    OfVariant("number", Number),
    OfVariant("pointer", Pointer),
    Recipe{.name = "mantissa", .block = BlockSample::Mantissa, .concerns = OnBlocks},
    Recipe{.name = "block of no use", .block = BlockSample::OfNoUse, .concerns = OnBlocks},
};

}  // namespace

bool Recipe::Concerns(const Member& member) const {
    return concerns.empty() ||
           std::ranges::any_of(concerns, [&](std::string_view type) { return member.Takes(type); });
}

std::span<const Recipe> Recipes() {
    return AllRecipes;
}

OwnedSamples::OwnedSamples(LoadedPlugin& plugin, NumberClass& number, const Recipe& recipe)
    : self_(NumberOf(number, recipe.self)),
      number_(NumberOf(number, recipe.number)),
      text_(plugin.MakeString(recipe.text, recipe.encoding)),
      variant_(recipe.variant == nullptr ? HeldObject() : recipe.variant(plugin, number)),
      memoryBlock_(BlockOf(plugin, number, recipe.block)),
      integer_(recipe.integer) {}

}  // namespace tests
