#include "standin/runtime/variants.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <variant>

#include "standin/runtime/text_encoding.hpp"

namespace standin {
namespace {

using host_interface::Currency;
using host_interface::VariantTypeCode;

constexpr std::int64_t CurrencyUnit = 10'000;

bool IsType(const VariantPayload& variant, VariantTypeCode code) {
    return variant.typeCode == static_cast<std::int32_t>(code);
}

/// A number truncated to an integer and clamped to the range of the type.
template <typename Integer>
Integer Truncated(double value) {
    // Both limits are powers of two and therefore exact; the upper one is exclusive.
    constexpr auto Lowest = static_cast<double>(std::numeric_limits<Integer>::min());
    const double limit = std::ldexp(1.0, std::numeric_limits<Integer>::digits);
    if (std::isnan(value)) {
        return 0;
    }
    if (value < Lowest) {
        return std::numeric_limits<Integer>::min();
    }
    return value >= limit ? std::numeric_limits<Integer>::max() : static_cast<Integer>(value);
}

/// The number at the start of a text; 0 when there is none.
template <typename Number>
Number NumberAtStart(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    Number number{};
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

template <typename Number>
std::string Written(Number number) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), end.ptr};
}

std::string WrittenCurrency(Currency amount) {
    const bool negative = amount < 0;
    const std::uint64_t magnitude =
        negative ? 0 - static_cast<std::uint64_t>(amount) : static_cast<std::uint64_t>(amount);
    std::string text = (negative ? "-" : "") + Written(magnitude / CurrencyUnit);
    if (const std::uint64_t rest = magnitude % CurrencyUnit; rest != 0) {
        std::string digits = Written(CurrencyUnit + static_cast<std::int64_t>(rest)).substr(1);
        digits.erase(digits.find_last_not_of('0') + 1);
        text += "." + digits;
    }
    return text;
}

/// A Variant that is being read, its text ready as UTF-8.
class Reader {
public:
    Reader(Host::State& state, Object variant, const char* user)
        : state_(state), payload_(state.objects.PayloadOf<VariantPayload>(variant, user)) {
        if (payload_ == nullptr) {
            return;
        }
        if (const String* held = std::get_if<String>(&payload_->value)) {
            text_ = state.strings.BytesAs(*held, HostTextEncoding::Utf8, user)
                        .value_or(std::string(state.strings.Bytes(*held, user)));
        }
    }

    template <typename Integer>
    Integer AsInteger() const {
        if (IsCurrency()) {
            return static_cast<Integer>(Amount() / CurrencyUnit);
        }
        return Visit<Integer>([](auto integer) { return static_cast<Integer>(integer); },
                              [](double real) { return Truncated<Integer>(real); },
                              [](std::string_view text) { return NumberAtStart<Integer>(text); });
    }

    double AsDouble() const {
        if (IsCurrency()) {
            return static_cast<double>(Amount()) / static_cast<double>(CurrencyUnit);
        }
        return Visit<double>([](auto integer) { return static_cast<double>(integer); },
                             [](double real) { return real; },
                             [](std::string_view text) { return NumberAtStart<double>(text); });
    }

    Currency AsCurrency() const {
        if (IsCurrency()) {
            return Amount();
        }
        const auto scaled = [](double real) {
            return Truncated<Currency>(std::round(real * static_cast<double>(CurrencyUnit)));
        };
        return Visit<Currency>(
            [](auto integer) {
                return static_cast<Currency>(static_cast<std::uint64_t>(integer) * CurrencyUnit);
            },
            scaled, [&](std::string_view text) { return scaled(NumberAtStart<double>(text)); });
    }

    String AsText() const {
        if (payload_ == nullptr) {
            return nullptr;
        }
        if (const String* held = std::get_if<String>(&payload_->value)) {
            state_.strings.Lock(*held, "VariantToString");
            return *held;
        }
        return state_.strings.Make(WrittenValue(), HostTextEncoding::Utf8);
    }

private:
    bool IsCurrency() const {
        return payload_ != nullptr && IsType(*payload_, VariantTypeCode::Currency) &&
               std::holds_alternative<std::int64_t>(payload_->value);
    }

    Currency Amount() const { return std::get<std::int64_t>(payload_->value); }

    template <typename Result, typename OfInteger, typename OfReal, typename OfText>
    Result Visit(OfInteger ofInteger, OfReal ofReal, OfText ofText) const {
        if (payload_ == nullptr) {
            return {};
        }
        if (const auto* number = std::get_if<std::int64_t>(&payload_->value)) {
            return ofInteger(*number);
        }
        if (const auto* number = std::get_if<std::uint64_t>(&payload_->value)) {
            return ofInteger(*number);
        }
        if (const auto* real = std::get_if<double>(&payload_->value)) {
            return ofReal(*real);
        }
        return std::holds_alternative<String>(payload_->value) ? ofText(text_) : Result{};
    }

    std::string WrittenValue() const {
        if (IsCurrency()) {
            return WrittenCurrency(Amount());
        }
        if (IsType(*payload_, VariantTypeCode::Boolean)) {
            return AsInteger<std::int64_t>() != 0 ? "True" : "False";
        }
        if (IsType(*payload_, VariantTypeCode::Single)) {
            return Written(static_cast<float>(AsDouble()));
        }
        return Visit<std::string>([](auto integer) { return Written(integer); },
                                  [](double real) { return Written(real); },
                                  [](std::string_view text) { return std::string(text); });
    }

    Host::State& state_;
    const VariantPayload* payload_;
    std::string text_;
};

}  // namespace

std::int32_t VariantTypeOf(Host::State& state, Object variant, const char* user) {
    const ObjectEntry* entry = state.objects.Find(variant, user);
    if (entry == nullptr) {
        return static_cast<std::int32_t>(VariantTypeCode::Nil);
    }
    switch (entry->type->payload) {
        case Payload::Variant:
            return std::get<VariantPayload>(entry->payload).typeCode;
        case Payload::Date:
            return static_cast<std::int32_t>(VariantTypeCode::Date);
        case Payload::DateTime:
            return static_cast<std::int32_t>(VariantTypeCode::DateTime);
        case Payload::None:
        case Payload::Exception:
        case Payload::MemoryBlock:
            break;
    }
    return static_cast<std::int32_t>(VariantTypeCode::Object);
}

std::int64_t VariantInt64(Host::State& state, Object variant, const char* user) {
    return Reader(state, variant, user).AsInteger<std::int64_t>();
}

std::uint64_t VariantUInt64(Host::State& state, Object variant, const char* user) {
    return Reader(state, variant, user).AsInteger<std::uint64_t>();
}

double VariantDouble(Host::State& state, Object variant, const char* user) {
    return Reader(state, variant, user).AsDouble();
}

Currency VariantCurrency(Host::State& state, Object variant, const char* user) {
    return Reader(state, variant, user).AsCurrency();
}

String VariantText(Host::State& state, Object variant, const char* user) {
    return Reader(state, variant, user).AsText();
}

}  // namespace standin
