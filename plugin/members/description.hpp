// The types of the rows of members: what the host gets, and what the help says about the member.
//
// The texts of the help are in the rows, but not in the library: the rows that the library is made
// of drop them at compile time.
#pragma once

#include <cstdint>

#include "host/fixed_string.hpp"
#include "host/routine.hpp"
#include "interface/host_interface.hpp"
#include "number/value/number_value.hpp"

namespace vqz {

/// The sections that the help sorts members into.
enum class Section {
    Making,
    HostValues,
    Text,
    Tests,
    Operators,
    Arithmetic,
    Rounding,
    Bits,
    Powers,
    Trigonometry,
    Hyperbolic,
    Angles,
    Constants,
    Inside
};

/// What becomes of the help's texts: the library drops them, the help's generator keeps them.
enum class HelpTexts { Dropped, Kept };

/// A text of the help that no member goes without: leaving it out or empty is a compile error.
template <HelpTexts>
struct RequiredText {
    const char* text;

    // Implicit, so that a literal can stand where a text is.
    consteval RequiredText(const char* literal)  // NOLINT(google-explicit-constructor)
        : text(*literal == '\0' ? throw "a text of the help is empty" : literal) {}
};

template <>
struct RequiredText<HelpTexts::Dropped> {
    consteval RequiredText(const char* literal) {  // NOLINT(google-explicit-constructor)
        static_cast<void>(RequiredText<HelpTexts::Kept>(literal));
    }
};

/// A text of the help that a member may go without.
template <HelpTexts>
struct OptionalText {
    const char* text = "";

    constexpr OptionalText() = default;
    consteval OptionalText(const char* literal)  // NOLINT(google-explicit-constructor)
        : text(literal) {}
};

template <>
struct OptionalText<HelpTexts::Dropped> {
    constexpr OptionalText() = default;
    consteval OptionalText(const char* /*literal*/) {}  // NOLINT(google-explicit-constructor)
};

/// The routine of a row. The library drops the names here: the routine itself has those that it
/// needs.
template <HelpTexts>
struct RowRoutine : NamedRoutine {
    RowRoutine(const NamedRoutine& routine = {})  // NOLINT(google-explicit-constructor)
        : NamedRoutine(routine) {}
};

template <>
struct RowRoutine<HelpTexts::Dropped> {
    Routine function;

    RowRoutine(const NamedRoutine& routine = {})  // NOLINT(google-explicit-constructor)
        : function(routine.function) {}
};

/// What the help says of a member in addition to the rest of the row.
template <HelpTexts Texts>
struct MemberHelp {
    Section section;
    /// One sentence: what the member is or does.
    RequiredText<Texts> summary;
    /// Whatever else there is to know; words between backticks are code.
    OptionalText<Texts> details = {};
    /// What the arguments and the result are measured in.
    OptionalText<Texts> units = {};
    /// The range of the result.
    OptionalText<Texts> range = {};
    /// What follows "Fails for" in the help. A routine that can fail needs it; no other may have
    /// it.
    OptionalText<Texts> fails = {};
    /// A program of a few lines that prints something. The help shows what it prints.
    RequiredText<Texts> example;
    /// Programs that fail, with an empty line between them. The help shows what they raise.
    OptionalText<Texts> failing = {};
};

/// A property: name and type as the host reads them. Without a setter it is read-only.
template <HelpTexts Texts>
struct PropertyDescription {
    const char* name;
    const char* type;
    RowRoutine<Texts> getter;
    RowRoutine<Texts> setter = {};
    std::uint32_t flags = host_interface::flags::RunTimeOnly;
    bool hidden = false;
    MemberHelp<Texts> help;
};

/// A method. A setter makes it assignable. The host does not show a hidden one.
template <HelpTexts Texts>
struct MethodDescription {
    const char* declaration;
    RowRoutine<Texts> function;
    MemberHelp<Texts> help;
    RowRoutine<Texts> setter = {};
    bool hidden = false;
};

/// A declaration with the class's name put in the place of each '$'.
template <typename Value, FixedString Pattern>
inline constexpr const char* Declaration = Substituted<Pattern, NumberClass<Value>::Name>::Text;

}  // namespace vqz
