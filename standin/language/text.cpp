#include "standin/language/text.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <system_error>

#include "standin/language/names.hpp"
#include "standin/language/unicode.hpp"

namespace standin::language {
namespace {

constexpr bool IsBigEndianUtf16(HostTextEncoding encoding) {
    return encoding == HostTextEncoding::Utf16BigEndian;
}

/// The 16-bit unit at an offset that has room for one.
unsigned UnitAt(std::string_view bytes, std::size_t offset, HostTextEncoding encoding) {
    const auto first = static_cast<unsigned char>(bytes[offset]);
    const auto second = static_cast<unsigned char>(bytes[offset + 1]);
    return IsBigEndianUtf16(encoding) ? first * 256U + second : second * 256U + first;
}

std::size_t Utf16CharacterSize(std::string_view bytes, std::size_t offset,
                               HostTextEncoding encoding) {
    const auto isBetween = [&](std::size_t at, unsigned first, unsigned last) {
        return at + 2 <= bytes.size() && UnitAt(bytes, at, encoding) >= first &&
               UnitAt(bytes, at, encoding) <= last;
    };
    const bool isPair = isBetween(offset, 0xD800, 0xDBFF) && isBetween(offset + 2, 0xDC00, 0xDFFF);
    return isPair ? 4 : 2;
}

std::size_t CharacterSize(std::string_view bytes, std::size_t offset, HostTextEncoding encoding) {
    switch (encoding) {
        case HostTextEncoding::Utf8:
            return DecodeUtf8(bytes, offset).value_or(DecodedCharacter{0, 1}).size;
        case HostTextEncoding::Utf16:
        case HostTextEncoding::Utf16BigEndian:
        case HostTextEncoding::Utf16LittleEndian:
            return Utf16CharacterSize(bytes, offset, encoding);
        case HostTextEncoding::Utf32:
        case HostTextEncoding::Utf32BigEndian:
        case HostTextEncoding::Utf32LittleEndian:
            return 4;
        default:
            return 1;
    }
}

template <typename Real>
std::string Shortest(Real value) {
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), result.ptr};
}

/// The number base that `&h`, `&b` or `&o` announces.
std::optional<int> PrefixBase(std::string_view text) {
    return text.size() < 2 || text[0] != '&' ? std::nullopt : BaseOfPrefix(text[1]);
}

constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

std::optional<double> NotFinite(std::string_view text) {
    if (SameName(text, "inf")) {
        return std::numeric_limits<double>::infinity();
    }
    if (SameName(text, "nan")) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return std::nullopt;
}

double UnsignedNumberIn(std::string_view text) {
    if (const auto base = PrefixBase(text)) {
        std::uint64_t value = 0;
        std::from_chars(text.data() + 2, text.data() + text.size(), value, *base);
        return static_cast<double>(value);
    }
    if (const auto value = NotFinite(text)) {
        return *value;
    }
    const bool isNumber = !text.empty() && (IsDigit(text[0]) || text[0] == '.');
    if (!isNumber) {
        return 0.0;
    }
    // from_chars leaves numbers outside the range alone; strtod knows what they tend to.
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        return std::strtod(std::string(text).c_str(), nullptr);
    }
    return value;
}

}  // namespace

std::vector<std::size_t> CharacterBounds(std::string_view bytes, HostTextEncoding encoding) {
    std::vector<std::size_t> bounds;
    std::size_t offset = 0;
    while (offset < bytes.size()) {
        bounds.push_back(offset);
        offset = std::min(offset + CharacterSize(bytes, offset, encoding), bytes.size());
    }
    bounds.push_back(offset);
    return bounds;
}

Value Join(const Value& left, const Value& right, const Machine& machine) {
    if (left.text() == nullptr) {
        return right;
    }
    if (right.text() == nullptr) {
        return left;
    }
    Host& host = machine.host();
    const auto leftEncoding = host.Encoding(left.text());
    const auto rightEncoding = host.Encoding(right.text());
    const bool isLeftKnown = leftEncoding != HostTextEncoding::Unknown;
    const bool isRightKnown = rightEncoding != HostTextEncoding::Unknown;
    if (leftEncoding == rightEncoding || !isLeftKnown || !isRightKnown) {
        return machine.MakeText(host.Bytes(left.text()) + host.Bytes(right.text()),
                                isLeftKnown ? leftEncoding : rightEncoding);
    }
    return machine.MakeText(host.Utf8(left.text()) + host.Utf8(right.text()));
}

std::string ShortestText(double value) {
    return Shortest(value);
}

std::string ShortestText(float value) {
    return Shortest(value);
}

std::string TextOf(CurrencyAmount amount) {
    const auto magnitude = amount.scaled < 0 ? 0U - static_cast<std::uint64_t>(amount.scaled)
                                             : static_cast<std::uint64_t>(amount.scaled);
    std::string text = amount.scaled < 0 ? "-" : "";
    text += std::to_string(magnitude / CurrencyScale);
    auto fraction = std::to_string(CurrencyScale + magnitude % CurrencyScale);
    fraction.front() = '.';
    fraction.erase(fraction.find_last_not_of('0') + 1);
    return fraction == "." ? text : text + fraction;
}

std::string_view TextOf(bool value) {
    return value ? "True" : "False";
}

std::optional<CurrencyAmount> AmountIn(std::string_view digits, bool isNegative) {
    constexpr std::size_t Places = 4;
    const auto point = std::min(digits.find('.'), digits.size());
    auto fraction = digits.substr(std::min(point + 1, digits.size()));
    fraction = fraction.substr(0, fraction.find_last_not_of('0') + 1);
    const bool isPlain = digits.find_first_not_of("0123456789.") == std::string_view::npos;
    if (!isPlain || fraction.size() > Places) {
        return std::nullopt;
    }
    auto all = std::string(digits.substr(0, point)) + std::string(fraction);
    all.append(Places - fraction.size(), '0');
    std::uint64_t magnitude = 0;
    const auto result = std::from_chars(all.data(), all.data() + all.size(), magnitude);
    constexpr auto Largest = std::uint64_t{std::numeric_limits<std::int64_t>::max()};
    if (result.ec != std::errc{} || magnitude > Largest + (isNegative ? 1 : 0)) {
        return std::nullopt;
    }
    return CurrencyAmount{static_cast<std::int64_t>(isNegative ? 0U - magnitude : magnitude)};
}

double NumberIn(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    const bool isSigned = !text.empty() && (text[0] == '-' || text[0] == '+');
    const bool isNegative = isSigned && text[0] == '-';
    const double magnitude = UnsignedNumberIn(text.substr(isSigned ? 1 : 0));
    return isNegative ? -magnitude : magnitude;
}

}  // namespace standin::language
