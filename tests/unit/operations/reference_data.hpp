// Reference values from tests/reference: numbers in exact binary, wider than any of ours, and how
// far a result is from one.
#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/unit/operations/number.hpp"

namespace operation_tests {

/// An integer without sign, least significant word first; leading words may be 0.
using WideInteger = std::vector<std::uint32_t>;

/// An integer in two's complement that is wide enough for every exponent and its sums.
using WideExponent = std::array<std::uint32_t, 18>;

/// integer * 2^exponent. Zero has no bits.
struct BinaryNumber {
    bool negative = false;
    WideInteger integer;
    WideExponent exponent{};
};

/// One value of a function.
struct ReferenceValue {
    /// The call, as text for people.
    std::string expression;
    std::vector<BinaryNumber> arguments;
    BinaryNumber result;
};

/// A part of a function's domain.
struct ReferenceRegion {
    std::string name;
    /// The error, in units in the last place, that is never exceeded, where there is a reason for
    /// such a bound.
    std::optional<double> bound;
    /// Chosen arguments, which both classes hold.
    std::vector<ReferenceValue> values;
    /// How many arguments were drawn besides, for each class.
    std::size_t drawn = 0;
    /// Those of them with the largest error in a class, by the bits of its mantissa.
    std::map<int, ReferenceValue> worst;
};

/// What one file holds.
struct ReferenceFunction {
    std::string name;
    /// The member's declaration with '$' for the class's name.
    std::string member;
    std::vector<ReferenceRegion> regions;
};

/// All functions, by name: the chosen arguments from the files of the folder, the worst of the
/// drawn ones from those of its folder "worst". Throws std::runtime_error about a file that cannot
/// be read.
std::vector<ReferenceFunction> ReadReference(const std::string& folder);

/// Reads numbers between spaces, each written as [-]0xINTEGERp[-]0xPOWER, or 0.
std::vector<BinaryNumber> ReadNumbers(const std::string& text);

/// The lowest word of a number that is an integer.
std::uint32_t LowestWord(const BinaryNumber& number);

/// The same number in a class, or nothing when its exponent is out of the class's range. It has to
/// fit the mantissa.
template <typename AnyNumber>
std::optional<AnyNumber> ToNumber(const BinaryNumber& number);

/// Whether a class has exponents for numbers of this size.
template <typename AnyNumber>
bool IsInRange(const BinaryNumber& number);

/// The distance of a result from the true value, in units of the last place that the class's
/// mantissa has at the true value. Infinite for NaN and for a zero or a sign out of place.
template <typename AnyNumber>
double UnitsOff(const AnyNumber& result, const BinaryNumber& truth);

}  // namespace operation_tests
