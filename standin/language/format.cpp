#include "standin/language/format.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <vector>

namespace standin::language {
namespace {

/// Digits behind the point that are computed; more would show how a Double is made.
constexpr int MaximumDecimals = 30;

/// A pattern, taken apart.
struct Pattern {
    std::string before;
    std::string behind;
    int wholeDigits = 0;
    int decimals = 0;
    int leastDecimals = 0;
    int exponentDigits = 0;
    bool hasDigits = false;
    bool hasGroups = false;
    bool isPercent = false;
    bool showsPlus = false;
    bool showsExponentPlus = false;
};

std::string_view Section(std::string_view pattern, double value) {
    std::vector<std::string_view> sections;
    for (;;) {
        const auto end = pattern.find(';');
        sections.push_back(pattern.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        pattern.remove_prefix(end + 1);
    }
    if (value < 0 && sections.size() > 1) {
        return sections[1];
    }
    return std::fpclassify(value) == FP_ZERO && sections.size() > 2 ? sections[2] : sections[0];
}

bool IsExponent(std::string_view rest) {
    return rest.size() > 2 && (rest[0] == 'e' || rest[0] == 'E') &&
           (rest[1] == '+' || rest[1] == '-');
}

/// Takes `E+000` from the pattern; returns how many characters it is.
std::size_t ReadExponent(std::string_view rest, Pattern& pattern) {
    pattern.showsExponentPlus = rest[1] == '+';
    std::size_t size = 2;
    for (; size < rest.size() && (rest[size] == '0' || rest[size] == '#'); ++size) {
        ++pattern.exponentDigits;
    }
    return size;
}

Pattern Read(std::string_view text) {
    Pattern pattern;
    bool isBehindPoint = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char character = text[i];
        auto& literal = pattern.hasDigits ? pattern.behind : pattern.before;
        if (character == '0' || character == '#') {
            pattern.hasDigits = true;
            int& count = isBehindPoint ? pattern.decimals : pattern.wholeDigits;
            count += isBehindPoint || character == '0' ? 1 : 0;
            if (isBehindPoint && character == '0') {
                pattern.leastDecimals = pattern.decimals;
            }
        } else if (character == '.') {
            isBehindPoint = true;
            pattern.hasDigits = true;
        } else if (character == ',') {
            pattern.hasGroups = true;
        } else if (character == '+') {
            pattern.showsPlus = true;
        } else if (pattern.hasDigits && IsExponent(text.substr(i))) {
            i += ReadExponent(text.substr(i), pattern) - 1;
        } else if (character == '-') {
            // A negative number shows its sign in any case.
            continue;
        } else if (character == '\\' && i + 1 < text.size()) {
            literal += text[++i];
        } else {
            pattern.isPercent = pattern.isPercent || character == '%';
            literal += character;
        }
    }
    pattern.decimals = std::min(pattern.decimals, MaximumDecimals);
    pattern.leastDecimals = std::min(pattern.leastDecimals, MaximumDecimals);
    return pattern;
}

std::string Grouped(const std::string& digits) {
    constexpr std::size_t GroupSize = 3;
    std::string grouped;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % GroupSize == 0) {
            grouped += ',';
        }
        grouped += digits[i];
    }
    return grouped;
}

/// The digits of a number that is not negative, with its point.
std::string Digits(double value, const Pattern& pattern) {
    std::array<char, 400> buffer{};
    const int size = std::snprintf(buffer.data(), buffer.size(), "%.*f", pattern.decimals, value);
    std::string text(buffer.data(), static_cast<std::size_t>(std::max(size, 0)));
    const auto point = std::min(text.find('.'), text.size());
    std::string whole = text.substr(0, point);
    std::string fraction = point < text.size() ? text.substr(point + 1) : "";
    while (fraction.size() > static_cast<std::size_t>(pattern.leastDecimals) &&
           fraction.back() == '0') {
        fraction.pop_back();
    }
    if (whole == "0" && pattern.wholeDigits == 0) {
        whole.clear();
    }
    const auto least = static_cast<std::size_t>(pattern.wholeDigits);
    whole.insert(0, whole.size() < least ? least - whole.size() : 0, '0');
    if (pattern.hasGroups) {
        whole = Grouped(whole);
    }
    return fraction.empty() ? whole : whole + "." + fraction;
}

std::string Exponent(int exponent, const Pattern& pattern) {
    auto digits = std::to_string(std::abs(exponent));
    const auto least = static_cast<std::size_t>(pattern.exponentDigits);
    digits.insert(0, digits.size() < least ? least - digits.size() : 0, '0');
    const auto* const sign = exponent < 0 ? "-" : pattern.showsExponentPlus ? "+" : "";
    return std::string("e") + sign + digits;
}

}  // namespace

std::string FormatNumber(double value, std::string_view pattern) {
    if (!std::isfinite(value)) {
        return std::isnan(value) ? "nan" : value < 0 ? "-inf" : "inf";
    }
    const bool hasOwnNegative = value < 0 && pattern.find(';') != std::string_view::npos;
    const auto form = Read(Section(pattern, value));
    double magnitude = std::abs(value) * (form.isPercent ? 100.0 : 1.0);
    std::string exponent;
    if (form.exponentDigits > 0) {
        int power = std::fpclassify(magnitude) == FP_ZERO
                        ? 0
                        : static_cast<int>(std::floor(std::log10(magnitude)));
        double scaled = magnitude / std::pow(10.0, power);
        // Rounding may lead to one digit more.
        const double half = 0.5 / std::pow(10.0, form.decimals);
        if (scaled + half >= 10.0) {
            ++power;
            scaled = magnitude / std::pow(10.0, power);
        }
        magnitude = scaled;
        exponent = Exponent(power, form);
    }
    std::string sign;
    if (value < 0 && !hasOwnNegative) {
        sign = "-";
    } else if (value >= 0 && form.showsPlus) {
        sign = "+";
    }
    const auto digits = form.hasDigits ? Digits(magnitude, form) : "";
    return sign + form.before + digits + exponent + form.behind;
}

}  // namespace standin::language
