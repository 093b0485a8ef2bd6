// Facts about the host that a plug-in relies on and that this host can turn round, one at a time,
// so that a test can show which check of a program notices.
//
// The names are those of docs/host-facts.md, which says what each of them means.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>

namespace standin {

/// The names of the facts that can be turned round.
inline constexpr std::string_view FactNames[] = {
    // Objects and their references.
    "instance-zero",
    "constructor-runs",
    "destructor-runs",
    "result-object-reference",
    "result-text-reference",
    "argument-object-reference",
    "argument-text-reference",
    "exception-reference",
    // Nil.
    "nil-argument",
    "nil-receiver",
    "nil-receiver-of-setter",
    "nil-compared",
    // Exceptions.
    "exception-raised",
    "exception-class",
    "exception-super-class",
    "exception-message",
    "exception-number",
    // Which constructor takes a value, and what arrives there.
    "constructor-of-int32",
    "constructor-of-int64",
    "constructor-of-uint32",
    "constructor-of-uint64",
    "constructor-of-single",
    "constructor-of-double",
    "constructor-of-currency",
    "constructor-of-number",
    "constructor-of-whole-literal",
    "constructor-of-wide-literal",
    "constructor-of-real-literal",
    // Values that are passed to routines and returned by them.
    "argument-boolean",
    "argument-integer",
    "argument-uinteger",
    "argument-int32",
    "argument-uint32",
    "argument-int64",
    "argument-uint64",
    "argument-single",
    "argument-double",
    "argument-currency",
    "result-boolean",
    "result-integer",
    "result-int64",
    "result-uint64",
    "result-double",
    "result-currency",
    "default-values",
    "byref-text",
    "byref-text-released",
    "byref-boolean",
    "overload-by-type",
    // Operators.
    "order-of-operands",
    "order-of-comparison",
    // Variants, dates and memory blocks.
    "variant-of-boolean",
    "variant-of-int32",
    "variant-of-int64",
    "variant-of-uint32",
    "variant-of-uint64",
    "variant-of-single",
    "variant-of-double",
    "variant-of-currency",
    "variant-of-string",
    "variant-of-color",
    "variant-of-date",
    "variant-of-datetime",
    "variant-of-number",
    "variant-of-nil",
    "variant-from-int32",
    "variant-from-int64",
    "variant-from-string",
    "block-returned",
    "block-passed",
    // Text.
    "text-in-utf8",
    "text-in-utf16",
    "text-in-latin1",
    "text-of-unknown-encoding",
    "text-returned-as-utf8",
    "text-returned-as-ascii",
    "text-empty",
    // What the compiler accepts.
    "compiles-operator-left",
    "compiles-operator-right",
    "compiles-negation",
    "compiles-comparison",
    "compiles-conversion-in",
    "compiles-conversion-out",
    "compiles-assignment-to-method",
    "compiles-left-out-arguments",
    "compiles-constructor-of-string",
    "compiles-constructor-of-value",
    "compiles-constructor-of-literal",
    "compiles-overload-by-count",
    "compiles-shared-and-instance",
    "compiles-property-and-method",
    "compiles-nil-argument",
    "compiles-hidden-members",
    "compiles-number-in-variant",
};

/// One of `FactNames`; another name in the source is a compile error.
class Fact {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a literal stands where a fact is meant
    consteval Fact(const char* name) : index_(IndexOf(name)) {
        if (index_ == std::size(FactNames)) {
            throw "there is no such fact";
        }
    }

    /// The place of the name in `FactNames`; their number for another name.
    static constexpr std::size_t IndexOf(std::string_view name) {
        return static_cast<std::size_t>(std::ranges::find(FactNames, name) - std::begin(FactNames));
    }

    std::size_t index() const { return index_; }

private:
    std::size_t index_;
};

namespace wrong_facts {
/// The place in `FactNames` of the fact that is turned round; by default none.
inline std::size_t current = std::size(FactNames);
}  // namespace wrong_facts

/// Turns the fact of that name round for the rest of the process. Returns whether there is one.
inline bool BeWrongAbout(std::string_view name) {
    const auto index = Fact::IndexOf(name);
    if (index == std::size(FactNames)) {
        return false;
    }
    wrong_facts::current = index;
    return true;
}

/// Whether that fact is turned round.
inline bool IsWrongAbout(Fact fact) {
    return wrong_facts::current == fact.index();
}

/// Of facts that each belong to a case, the one of the case that is given.
template <typename Case>
struct FactOf {
    Case of;
    Fact fact;
};

/// Whether the fact that belongs to the case is turned round.
template <typename Case>
bool IsWrongAbout(std::span<const FactOf<Case>> facts, Case of) {
    return std::ranges::any_of(
        facts, [of](const FactOf<Case>& row) { return row.of == of && IsWrongAbout(row.fact); });
}

}  // namespace standin
