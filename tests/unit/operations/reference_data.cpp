#include "tests/unit/operations/reference_data.hpp"

#include <algorithm>
#include <bit>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace operation_tests {
namespace {

constexpr std::size_t WordBits = 32;

// Integers --------------------------------------------------------------------------------------

std::size_t BitLength(const WideInteger& integer) {
    std::size_t words = integer.size();
    while (words > 0 && integer[words - 1] == 0) {
        --words;
    }
    return words == 0
               ? 0
               : words * WordBits - static_cast<std::size_t>(std::countl_zero(integer[words - 1]));
}

WideInteger ShiftedLeft(const WideInteger& integer, std::size_t bits) {
    const std::size_t words = bits / WordBits;
    WideInteger shifted(integer.size() + words + 1, 0);
    for (std::size_t index = 0; index < integer.size(); ++index) {
        const std::uint64_t wide = std::uint64_t{integer[index]} << (bits % WordBits);
        shifted[index + words] |= static_cast<std::uint32_t>(wide);
        shifted[index + words + 1] |= static_cast<std::uint32_t>(wide >> WordBits);
    }
    return shifted;
}

/// left + sign * right in as many words as `left` has; returns whether it wrapped.
template <typename Left, typename Right>
bool AddTo(Left& left, const Right& right, int sign) {
    std::int64_t carry = 0;
    for (std::size_t index = 0; index < left.size(); ++index) {
        const std::int64_t word = index < right.size() ? right[index] : 0;
        const std::int64_t sum = left[index] + sign * word + carry;
        left[index] = static_cast<std::uint32_t>(sum);
        carry = sum >> WordBits;
    }
    return carry != 0;
}

/// |left + sign * right|.
WideInteger Combined(WideInteger left, WideInteger right, int sign) {
    const std::size_t size = std::max(left.size(), right.size()) + 1;
    left.resize(size);
    right.resize(size);
    if (sign < 0 && std::ranges::lexicographical_compare(left.rbegin(), left.rend(), right.rbegin(),
                                                         right.rend())) {
        std::swap(left, right);
    }
    AddTo(left, right, sign);
    return left;
}

/// integer * 2^scale, rounded to a Double's precision.
double ToDouble(const WideInteger& integer, std::int64_t scale) {
    double value = 0;
    for (auto word = integer.rbegin(); word != integer.rend(); ++word) {
        const auto place = static_cast<std::int64_t>(WordBits) * (integer.rend() - word - 1);
        value += std::ldexp(*word, static_cast<int>(place + scale));
    }
    return value;
}

// Exponents -------------------------------------------------------------------------------------

WideExponent WideOf(std::int64_t value) {
    WideExponent wide;
    wide.fill(value < 0 ? 0xFFFFFFFF : 0);
    wide[0] = static_cast<std::uint32_t>(value);
    wide[1] = static_cast<std::uint32_t>(value >> WordBits);
    return wide;
}

template <typename Words>
WideExponent WideOf(const Words& words) {
    WideExponent wide;
    wide.fill(words.back() >> 31 == 0 ? 0 : 0xFFFFFFFF);
    std::ranges::copy(words, wide.begin());
    return wide;
}

WideExponent Sum(WideExponent left, const WideExponent& right, int sign = 1) {
    AddTo(left, right, sign);
    return left;
}

/// Whether the first words hold the whole value.
bool FitsWords(const WideExponent& wide, std::size_t words) {
    const std::uint32_t sign = wide[words - 1] >> 31 == 0 ? 0 : 0xFFFFFFFF;
    return std::all_of(wide.begin() + static_cast<std::ptrdiff_t>(words), wide.end(),
                       [sign](std::uint32_t word) { return word == sign; });
}

std::int64_t Narrow(const WideExponent& wide) {
    return static_cast<std::int64_t>(std::uint64_t{wide[1]} << WordBits | wide[0]);
}

// Texts -----------------------------------------------------------------------------------------

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> pieces(1);
    for (const char character : text) {
        if (character == separator) {
            pieces.emplace_back();
        } else {
            pieces.back() += character;
        }
    }
    return pieces;
}

/// Reads "-0x1f" or "0x1f".
WideInteger ReadHex(std::string_view text, bool& negative) {
    negative = text.starts_with('-');
    text.remove_prefix(negative ? 3 : 2);
    WideInteger integer(text.size() / 8 + 1, 0);
    std::size_t place = 0;
    for (auto digit = text.rbegin(); digit != text.rend(); ++digit, ++place) {
        const auto value =
            static_cast<std::uint32_t>(std::string_view("0123456789abcdef").find(*digit));
        integer[place / 8] |= value << (place % 8 * 4);
    }
    return integer;
}

BinaryNumber ReadNumber(const std::string& text) {
    BinaryNumber number;
    if (text == "0") {
        return number;
    }
    const std::size_t mark = text.find('p');
    number.integer = ReadHex(std::string_view(text).substr(0, mark), number.negative);
    bool negative = false;
    AddTo(number.exponent, ReadHex(std::string_view(text).substr(mark + 1), negative), 1);
    if (negative) {
        number.exponent = Sum(WideExponent{}, number.exponent, -1);
    }
    return number;
}

/// The lines of a file, split into fields.
std::vector<std::vector<std::string>> ReadLines(const std::filesystem::path& path) {
    std::ifstream file(path);
    std::vector<std::vector<std::string>> lines;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(Split(line, '|'));
    }
    return lines;
}

[[noreturn]] void RejectLine(const std::filesystem::path& path, const std::string& kind) {
    throw std::runtime_error(path.string() + " has a line of no known kind: " + kind);
}

/// Reads the chosen arguments of a function.
ReferenceFunction ReadFunction(const std::filesystem::path& path) {
    ReferenceFunction function{.name = path.stem().string(), .member = {}, .regions = {}};
    std::ranges::replace(function.name, '_', ' ');
    for (const auto& fields : ReadLines(path)) {
        if (fields[0] == "member") {
            function.member = fields.at(1);
        } else if (fields[0] == "region") {
            ReferenceRegion region{.name = fields.at(1), .bound = {}, .values = {}, .worst = {}};
            if (!fields.at(2).empty()) {
                region.bound = std::stod(fields.at(2));
            }
            function.regions.push_back(std::move(region));
        } else if (fields[0] == "value" && !function.regions.empty()) {
            function.regions.back().values.push_back({.expression = fields.at(1),
                                                      .arguments = ReadNumbers(fields.at(2)),
                                                      .result = ReadNumber(fields.at(3))});
        } else {
            RejectLine(path, fields[0]);
        }
    }
    return function;
}

/// Adds what was drawn for a function.
void ReadWorst(const std::filesystem::path& path, ReferenceFunction& function) {
    ReferenceRegion* region = nullptr;
    for (const auto& fields : ReadLines(path)) {
        if (fields[0] == "region") {
            const auto found =
                std::ranges::find(function.regions, fields.at(1), &ReferenceRegion::name);
            if (found == function.regions.end()) {
                throw std::runtime_error(path.string() +
                                         " has a region of its own: " + fields.at(1));
            }
            region = &*found;
            region->drawn = std::stoul(fields.at(2));
        } else if (fields[0] == "worst" && region != nullptr) {
            region->worst[std::stoi(fields.at(1))] = {
                .expression = function.name + ", " + region->name + ": the worst that was drawn",
                .arguments = ReadNumbers(fields.at(2)),
                .result = ReadNumber(fields.at(3))};
        } else {
            RejectLine(path, fields[0]);
        }
    }
}

/// The exponent that the number has with a mantissa of that many bits.
WideExponent NormalisedExponent(const BinaryNumber& number, int mantissaBits) {
    const auto shift = static_cast<std::int64_t>(BitLength(number.integer)) - mantissaBits;
    return Sum(number.exponent, WideOf(shift));
}

}  // namespace

std::vector<BinaryNumber> ReadNumbers(const std::string& text) {
    std::vector<BinaryNumber> numbers;
    if (!text.empty()) {
        for (const std::string& number : Split(text, ' ')) {
            numbers.push_back(ReadNumber(number));
        }
    }
    return numbers;
}

std::vector<ReferenceFunction> ReadReference(const std::string& folder) {
    std::vector<ReferenceFunction> functions;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".txt" && entry.path().stem() != "requirements") {
            functions.push_back(ReadFunction(entry.path()));
            ReadWorst(entry.path().parent_path() / "worst" / entry.path().filename(),
                      functions.back());
        }
    }
    std::ranges::sort(functions, {}, &ReferenceFunction::name);
    return functions;
}

std::uint32_t LowestWord(const BinaryNumber& number) {
    return number.integer.empty()
               ? 0
               : ShiftedLeft(number.integer, static_cast<std::size_t>(Narrow(number.exponent)))[0];
}

template <typename AnyNumber>
bool IsInRange(const BinaryNumber& number) {
    return number.integer.empty() || FitsWords(NormalisedExponent(number, AnyNumber::MantissaBits),
                                               AnyNumber::ExponentBits / WordBits);
}

template <typename AnyNumber>
std::optional<AnyNumber> ToNumber(const BinaryNumber& number) {
    if (number.integer.empty()) {
        return AnyNumber{.flags = number_flags::Zero};
    }
    if (!IsInRange<AnyNumber>(number)) {
        return std::nullopt;
    }
    AnyNumber converted;
    const auto exponent = NormalisedExponent(number, AnyNumber::MantissaBits);
    std::copy_n(exponent.begin(), converted.exponent.size(), converted.exponent.begin());
    const auto mantissa =
        ShiftedLeft(number.integer,
                    static_cast<std::size_t>(AnyNumber::MantissaBits) - BitLength(number.integer));
    std::copy_n(mantissa.begin(), converted.mantissa.size(), converted.mantissa.begin());
    converted.flags = number.negative ? number_flags::Negative : 0;
    return converted;
}

template <typename AnyNumber>
double UnitsOff(const AnyNumber& result, const BinaryNumber& truth) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr std::int64_t bits = AnyNumber::MantissaBits;
    if (result.IsNan() || result.IsZero() != truth.integer.empty()) {
        return infinity;
    }
    if (result.IsZero()) {
        return 0;
    }
    const WideExponent apart = Sum(WideOf(result.exponent), truth.exponent, -1);
    // Further apart the numbers differ by more than all their bits.
    const std::int64_t farthest = 4 * bits + 4096;
    if (!FitsWords(apart, 2) || std::abs(Narrow(apart)) > farthest) {
        return infinity;
    }
    const std::int64_t shift = Narrow(apart);
    const WideInteger mantissa(result.mantissa.begin(), result.mantissa.end());
    const int sign = result.IsNegative() == truth.negative ? -1 : 1;
    const WideInteger difference =
        shift >= 0
            ? Combined(ShiftedLeft(mantissa, static_cast<std::size_t>(shift)), truth.integer, sign)
            : Combined(mantissa, ShiftedLeft(truth.integer, static_cast<std::size_t>(-shift)),
                       sign);
    const auto truthBits = static_cast<std::int64_t>(BitLength(truth.integer));
    return ToDouble(difference, std::min<std::int64_t>(shift, 0) - (truthBits - bits));
}

template bool IsInRange<Number256>(const BinaryNumber&);
template bool IsInRange<Number2048>(const BinaryNumber&);
template std::optional<Number256> ToNumber(const BinaryNumber&);
template std::optional<Number2048> ToNumber(const BinaryNumber&);
template double UnitsOff(const Number256&, const BinaryNumber&);
template double UnitsOff(const Number2048&, const BinaryNumber&);

}  // namespace operation_tests
