// Numbers from host values and back. Functions that answer a routine take the debug-log name and,
// where they can fail, the name that the failure is reported under.
#pragma once

#include <concepts>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "host/exceptions.hpp"
#include "host/variants.hpp"
#include "number/number_object.hpp"
#include "number/ops/failure_report.hpp"
#include "number/routine.hpp"
#include "number/text.hpp"

namespace vqz {

/// The host's Currency as a type of its own, so that it is told from a plain Int64: the amount
/// times 10,000.
enum class CurrencyAmount : std::int64_t {};

/// What a Currency is scaled by.
template <typename Value>
Value CurrencyScale() {
    Value scale = NanValue<Value>();
    scale.FromUInt(10000U);
    return scale;
}

// ---------------------------------------------------------------------------------------------
// From host values

/// The exact number of an integer. The magnitude is converted, so that the most negative value of
/// each type is exact too.
template <typename Value, std::integral Host>
Value NumberFrom(Host value) {
    const bool negative = value < 0;
    const auto bits = static_cast<ttmath::ulint>(value);
    Value number = NanValue<Value>();
    number.FromUInt(negative ? 0 - bits : bits);
    if (negative) {
        number.SetSign();
    }
    return number;
}

/// The exact number of a Double or Single; an infinite one or a NaN gives NaN.
template <typename Value, std::floating_point Host>
Value NumberFrom(Host value) {
    Value number = NanValue<Value>();
    number.FromDouble(static_cast<double>(value));
    return number;
}

/// The number of a Currency: a ten-thousandth rounded to the number's precision.
template <typename Value, std::same_as<CurrencyAmount> Host>
Value NumberFrom(Host currency) {
    auto number = NumberFrom<Value>(static_cast<std::int64_t>(currency));
    number.Div(CurrencyScale<Value>(), true);
    return number;
}

template <typename Value>
double ToDouble(const Value& value) {
    double result = 0.0;
    value.ToDouble(result);
    return result;
}

/// `NumberFrom` a Currency that tells the debug log of its steps.
template <typename Value>
Value CurrencyToNumber(CurrencyAmount currency) {
    if (DebugEnabled) {
        LogInt64("CurrencyToNumber", static_cast<std::int64_t>(currency));
    }
    auto number = NumberFrom<Value>(currency);
    if (DebugEnabled) {
        LogDouble("n", ToDouble(number));
    }
    return number;
}

/// The number that a constructor or setter makes of a host value.
template <typename Value, typename Host>
Value StoredNumberFrom(Host value) {
    if constexpr (std::same_as<Host, CurrencyAmount>) {
        return CurrencyToNumber<Value>(value);
    } else {
        return NumberFrom<Value>(value);
    }
}

/// Makes the number of a host value the object's own.
template <typename Value, FixedString LogName, typename Host>
void SetFrom(Object self, Host value) {
    MethodBoundaryGuard([&] {
        LogEntry<LogName>();
        StoreNumberValue(self, StoredNumberFrom<Value>(value));
    });
}

/// "Constructor(value as ...)".
template <typename Value, FixedString LogName, typename Host>
NamedRoutine ConstructFrom() {
    return Named<LogName>([](Object self, Host value) { SetFrom<Value, LogName>(self, value); });
}

/// Setter of a property of type `Host`.
template <typename Value, FixedString LogName, typename Host>
NamedRoutine SetProperty() {
    return Named<LogName>(
        [](Object self, Integer, Host value) { SetFrom<Value, LogName>(self, value); });
}

/// A new object with the number of a host value. Like all "NumberWith" methods it carries no guard.
template <typename Value, FixedString LogName, typename Host>
Object MakeFrom(Host value) {
    LogEntry<LogName>();
    return NewNumberObject(NumberFrom<Value>(value));
}

/// "NumberWith...(value as ...)".
template <typename Value, FixedString LogName, typename Host>
NamedRoutine NumberWith() {
    return Named<LogName>([](Host value) { return MakeFrom<Value, LogName>(value); });
}

/// A new object with the number that a text in base 10 shows. A failure is reported with the name
/// alone, and the object is made all the same.
template <typename Value, FixedString LogName, FixedString FailureName>
Object MakeFromText(String text) {
    const TerminatedText source(text);
    if (DebugEnabled) {
        LogText(LogName.text, source.begin());
    }
    Value number = NanValue<Value>();
    if (number.FromString(source.begin()) != 0) {
        RaiseOverflowException(FailureName.text);
    }
    return NewNumberObject(number);
}

/// "NumberWithString(value as String)".
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine NumberWithText() {
    return Named<LogName, Failure::Name, FailureName>(
        [](String text) { return MakeFromText<Value, LogName, FailureName>(text); });
}

// ---------------------------------------------------------------------------------------------
// To host values

/// Converts with the fraction cut; false when the value does not fit. A negative value must give a
/// result with the sign bit: -0.4 does not fit, and no negative value fits without a sign.
template <std::integral Host, typename Value>
bool NumberTo(const Value& value, Host& result) {
    constexpr ttmath::uint Size = TTMATH_BITS(8 * sizeof(Host));
    std::conditional_t<std::signed_integral<Host>, ttmath::Int<Size>, ttmath::UInt<Size>> words;
    words.SetZero();
    const bool fits = value.ToInt(words) == 0;
    std::memcpy(&result, words.table, sizeof result);
    return fits;
}

/// Converts to a Double, cut to its precision; false when the value is too large or too small for
/// one.
template <std::same_as<double> Host, typename Value>
bool NumberTo(const Value& value, Host& result) {
    return value.ToDouble(result) == 0;
}

/// Getter of a property of type `Host`; 0 after a failure was raised.
template <typename Value, FixedString LogName, FixedString FailureName, typename Host>
NamedRoutine GetProperty() {
    return Named<LogName, Failure::OneNumber, FailureName>([](Object self, Integer) {
        return MethodBoundaryGuard([&]() -> Host {
            LogEntry<LogName>();
            Host result = 0;
            if (!NumberTo<Host>(ReadNumber<Value>(self), result)) {
                RaiseOverflowException<Value>(FailureName.text, self);
                return 0;
            }
            return result;
        });
    });
}

/// The amount times 10,000, rounded to an integer, halves away from zero; 0 after a failure was
/// raised. The debug log shows each step under labels of one letter.
template <typename Value, FixedString FailureName>
std::int64_t NumberToCurrency(Value value) {
    const Value scale = CurrencyScale<Value>();
    if (DebugEnabled) {
        LogDouble("NumberToCurrency", ToDouble(value));
        LogDouble("f", ToDouble(scale));
    }
    value.Mul(scale, true);
    if (DebugEnabled) {
        LogDouble("x", ToDouble(value));
    }
    const auto roundCarry = value.Round();
    std::int64_t amount = 0;
    const bool fits = NumberTo<std::int64_t>(value, amount);
    if (DebugEnabled) {
        LogUInt("v", roundCarry);
        LogDouble("x", ToDouble(value));
        LogUInt("r", fits ? 0 : 1);
        LogInt64("n", amount);
    }
    if (!fits) {
        RaiseOverflowException(FailureName.text);
        return 0;
    }
    return amount;
}

/// Getter of "CurrencyValue".
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine GetCurrency() {
    return Named<LogName, Failure::Name, FailureName>([](Object self, Integer) {
        return MethodBoundaryGuard([&] {
            LogEntry<LogName>();
            return NumberToCurrency<Value, FailureName>(ReadNumber<Value>(self));
        });
    });
}

// ---------------------------------------------------------------------------------------------
// Variants

/// What a Variant's type code means to a number.
enum class VariantContent {
    Nothing,
    SignedInt32,
    SignedInt64,
    UnsignedInt32,
    UnsignedInt64,
    Single,
    Double,
    Currency,
    Date,
    DateTime,
    Text,
    NumberOrOther,
    Unsupported
};

/// Booleans count as Int32, colours as UInt32.
VariantContent VariantContentOf(std::int32_t type);

/// Raises what a Variant that cannot become a number gives.
void RaiseConversionNotSupported();

/// Setter of "VariantValue". The number is 0 until it is replaced by what the Variant holds.
template <typename Value, FixedString LogName>
NamedRoutine SetVariant() {
    return Named<LogName, Failure::Other>([](Object self, Integer, Object variant) {
        MethodBoundaryGuard([&] {
            LogEntry<LogName>();
            StoreNumberValue(self, ZeroValue<Value>());
            switch (VariantContentOf(VariantType(variant))) {
                case VariantContent::Nothing:
                    break;
                case VariantContent::SignedInt32:
                    StoreNumberValue(self, NumberFrom<Value>(VariantToInt32(variant)));
                    break;
                case VariantContent::UnsignedInt32:
                    StoreNumberValue(self, NumberFrom<Value>(VariantToUInt32(variant)));
                    break;
                case VariantContent::SignedInt64:
                    StoreNumberValue(self, NumberFrom<Value>(VariantToInt64(variant)));
                    break;
                case VariantContent::UnsignedInt64:
                    StoreNumberValue(self, NumberFrom<Value>(VariantToUInt64(variant)));
                    break;
                case VariantContent::Currency:
                    SetFrom<Value, "SetCurrencyValue">(self,
                                                       CurrencyAmount{VariantToCurrency(variant)});
                    break;
                case VariantContent::Single:
                case VariantContent::Double:
                    SetFrom<Value, "SetDoubleValue">(self, VariantToDouble(variant));
                    break;
                case VariantContent::Date:
                    SetFrom<Value, "SetDoubleValue">(self, GetDateTotalSeconds(variant));
                    break;
                case VariantContent::DateTime:
                    SetFrom<Value, "SetDoubleValue">(self, GetSecondsFrom1970(variant));
                    break;
                case VariantContent::Text:
                    SetTextOf<Value, "SetStringValue", "StringValue">(
                        self, VariantToString(variant).Get(), 10);
                    break;
                case VariantContent::NumberOrOther:
                    if (ObjectIsA(variant, NumberClass<Value>::Name.text)) {
                        StoreNumberValue(self, ReadNumber<Value>(variant));
                        break;
                    }
                    [[fallthrough]];
                case VariantContent::Unsupported:
                    RaiseConversionNotSupported();
            }
        });
    });
}

/// "NumberWithVariant(value as variant)"; null for Nil. A Double is read as a Single here, unlike
/// in the setter of "VariantValue": programs know this method by that precision.
template <typename Value, FixedString LogName>
NamedRoutine NumberWithVariant() {
    return Named<LogName, Failure::Other>([](Object variant) -> Object {
        LogEntry<LogName>();
        if (variant == nullptr) {
            return nullptr;
        }
        switch (VariantContentOf(VariantType(variant))) {
            case VariantContent::Nothing:
                return nullptr;
            case VariantContent::SignedInt32:
                return MakeFrom<Value, "NumberWithInt32">(VariantToInt32(variant));
            case VariantContent::SignedInt64:
                return MakeFrom<Value, "NumberWithInt64">(VariantToInt64(variant));
            case VariantContent::UnsignedInt32:
                return MakeFrom<Value, "NumberWithUInt32">(VariantToUInt32(variant));
            case VariantContent::UnsignedInt64:
                return MakeFrom<Value, "NumberWithUInt64">(VariantToUInt64(variant));
            case VariantContent::Single:
                return MakeFrom<Value, "NumberWithSingle">(VariantToSingle(variant));
            case VariantContent::Double:
                return MakeFrom<Value, "NumberWithDouble">(
                    static_cast<double>(VariantToSingle(variant)));
            case VariantContent::Currency:
                return MakeFrom<Value, "NumberWithCurrency">(
                    CurrencyAmount{VariantToCurrency(variant)});
            case VariantContent::Date:
                return MakeFrom<Value, "NumberWithDouble">(GetDateTotalSeconds(variant));
            case VariantContent::DateTime:
                return MakeFrom<Value, "NumberWithDouble">(GetSecondsFrom1970(variant));
            case VariantContent::Text:
                return MakeFromText<Value, "NumberWithString", "Constructor">(
                    VariantToString(variant).Get());
            case VariantContent::NumberOrOther:
                if (ObjectIsA(variant, NumberClass<Value>::Name.text)) {
                    return NewNumberObject(ReadNumber<Value>(variant));
                }
                break;
            case VariantContent::Unsupported:
                break;
        }
        RaiseConversionNotSupported();
        return nullptr;
    });
}

/// Whether `value` lies between the smallest and the largest `Host`, both included.
template <typename Host, typename Value>
bool IsInRangeOf(const Value& value) {
    static const auto smallest = NumberFrom<Value>(std::numeric_limits<Host>::min());
    static const auto largest = NumberFrom<Value>(std::numeric_limits<Host>::max());
    return smallest <= value && value <= largest;
}

/// The range in which "VariantValue" gives a UInt64: -1 to 0. Zero is an Int32 before it gets here,
/// so integers beyond Int64 become text; programs count on that.
template <typename Value>
bool IsInRangeOfUInt64Variant(const Value& value) {
    static const auto smallest = NumberFrom<Value>(-1);
    static const auto largest = NumberFrom<Value>(0);
    return smallest <= value && value <= largest;
}

/// The number as a Variant: an Int32 or Int64 when it is one, else its text.
template <typename Value>
Object VariantOf(Object self) {
    const Value& value = ReadNumber<Value>(self);
    if (value.IsInteger()) {
        std::int32_t narrow = 0;
        if (IsInRangeOf<std::int32_t>(value) && NumberTo<std::int32_t>(value, narrow)) {
            return Int32ToVariant(narrow);
        }
        std::int64_t wide = 0;
        if (IsInRangeOf<std::int64_t>(value) && NumberTo<std::int64_t>(value, wide)) {
            return Int64ToVariant(wide);
        }
        std::uint64_t unsignedWide = 0;
        if (IsInRangeOfUInt64Variant(value) && NumberTo<std::uint64_t>(value, unsignedWide)) {
            return UInt64ToVariant(unsignedWide);  // GCOVR_EXCL_LINE: zero is an Int32 above
        }
    }
    const StringReference text(TextOf<Value, "GetStringValue", "StringValue">(self));
    return StringToVariant(text.Get());
}

/// Getter of "VariantValue".
template <typename Value, FixedString LogName>
NamedRoutine GetVariant() {
    return Named<LogName>([](Object self, Integer) {
        return MethodBoundaryGuard([&] {
            LogEntry<LogName>();
            return VariantOf<Value>(self);
        });
    });
}

}  // namespace vqz
