// The members that compute, each with what the bare arithmetic library gives for it and with what
// the plug-in is to log and to report. Nothing of the plug-in's code takes part.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "tests/unit/operations/number.hpp"

namespace operation_tests {

/// The machine word that a member takes after its numbers.
enum class Extra { None, Round, Integer, UInt32 };

/// What a member returns.
enum class Answer { Number, Integer, Boolean };

/// Which form of message a failure has.
enum class Report {
    /// The member never fails.
    None,
    /// "NAME operation failed with number A."
    OneNumber,
    /// "NAME operation failed with numbers A and B."
    TwoNumbers,
    /// The same, but the first number is what the failed computation left.
    WorkingValue,
    /// "NAME operation failed."
    NameOnly,
};

/// What kind of computation it is. All but arithmetic are series, which take long at 2048 bits.
enum class Family {
    Arithmetic,
    Powers,
    Trigonometric,
    InverseTrigonometric,
    Hyperbolic,
    InverseHyperbolic,
};

/// What a member computes with.
template <typename AnyNumber>
struct Arguments {
    std::vector<AnyNumber> numbers;
    std::uint32_t extra = 0;
};

/// What the arithmetic library made of it.
template <typename AnyNumber>
struct Outcome {
    bool failed = false;
    /// The result, or what a failed computation left.
    AnyNumber number{};
    /// The result of a member that returns an Integer or a Boolean.
    std::int32_t integer = 0;
};

/// One member of a class.
template <typename AnyNumber>
struct Operation {
    using Call = Outcome<AnyNumber> (*)(const Arguments<AnyNumber>&);

    /// As the host reads it, with '$' for the class's name.
    const char* declaration;
    const char* logName;
    Report report;
    /// What a failure's message begins with.
    const char* failureName;
    /// How many numbers it takes, the receiver included.
    std::size_t arity;
    Extra extra;
    Answer answer;
    Family family;
    Call call;
};

/// A constant of a class.
template <typename AnyNumber>
struct Constant {
    const char* declaration;
    AnyNumber value;
};

/// All members of one precision that compute with numbers.
template <typename AnyNumber>
std::span<const Operation<AnyNumber>> Operations();

/// All constants of one precision.
template <typename AnyNumber>
std::span<const Constant<AnyNumber>> Constants();

/// A number's text with the library's default format.
template <typename AnyNumber>
std::string TextOf(const AnyNumber& number);

}  // namespace operation_tests
