// Conversions from host values to numbers and back; what becomes of an integer is `NumberFrom` in
// number/value/number_value.hpp. The template arguments of the routines here are
// the name in the debug log and, for those that can fail, the name that a failure is reported
// under.
#pragma once

#include <concepts>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "host/routine.hpp"
#include "host/terminated_text.hpp"
#include "host/variants.hpp"
#include "number/ops/failure_report.hpp"
#include "number/text.hpp"
#include "number/value/number_object.hpp"

namespace vqz {

/// A Currency of the host: the amount times 10,000. A separate type, so that overloads
/// distinguish it from an Int64.
enum class CurrencyAmount : std::int64_t {};

/// The factor between a Currency and its amount, 10,000.
template <typename Value>
Value CurrencyScale() {
    Value scale = NanValue<Value>();
    scale.FromUInt(10000U);
    return scale;
}

// ---------------------------------------------------------------------------------------------
// From host values

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

/// The number as a Double, for the debug log. Out of range it is what ttmath leaves there.
template <typename Value>
double ToDouble(const Value& value) {
    double result = 0.0;
    value.ToDouble(result);
    return result;
}

/// `NumberFrom` a Currency that writes its steps to the debug log.
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

/// Replaces the object's value by the number of a host value.
template <typename Value, typename Host>
void StoreFrom(Object self, Host value) {
    StoreNumberValue(self, StoredNumberFrom<Value>(value));
}

/// "Constructor(value as ...)".
template <typename Value, FixedString LogName, typename Host>
NamedRoutine ConstructFrom() {
    return MakeRoutine<LogName>([](Object self, Host value) { StoreFrom<Value>(self, value); });
}

/// Setter of a property of type `Host`.
template <typename Value, FixedString LogName, typename Host>
NamedRoutine SetProperty() {
    return MakeRoutine<LogName>(
        [](Object self, Integer, Host value) { StoreFrom<Value>(self, value); });
}

/// A new object with the number of a host value.
template <typename Value, typename Host>
Object MakeFrom(Host value) {
    return NewNumberObject(NumberFrom<Value>(value));
}

/// "NumberWith...(value as ...)".
template <typename Value, FixedString LogName, typename Host>
NamedRoutine NumberWith() {
    return MakeUnguardedRoutine<Unguarded::OutOfMemoryEscapes, LogName>(
        [](Host value) { return MakeFrom<Value>(value); });
}

/// A new object with the number that a text in base 10 shows. A failure is reported with the name
/// alone, and the object is made all the same.
template <typename Value>
Object MakeFromText(String text, const char* failureName) {
    const TerminatedText source(text);
    Value number = NanValue<Value>();
    if (number.FromString(source.begin()) != 0) {
        RaiseOverflowException(failureName);
    }
    return NewNumberObject(number);
}

/// "NumberWithString(value as String)".
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine NumberWithText() {
    return MakeUnguardedRoutine<Unguarded::OutOfMemoryEscapes, LogName, Failure::Name, FailureName,
                                EntryLine::NameText>(
        [](String text) { return MakeFromText<Value>(text, FailureName.text); });
}

// ---------------------------------------------------------------------------------------------
// To host values

/// What a conversion gives, and whether the number fits the type. Where it does not, the debug log
/// shows the value, and nobody else looks at it.
template <typename Host>
struct Converted {
    Host value;
    bool fits;
};

/// Converts with the fraction cut off. ttmath counts a negative value as fitting only when the
/// result is negative too: -0.4, which would become 0, does not fit, and neither does any negative
/// value where the type has no sign.
template <std::integral Host, typename Value>
Converted<Host> NumberTo(const Value& value) {
    constexpr ttmath::uint Size = TTMATH_BITS(8 * sizeof(Host));
    std::conditional_t<std::signed_integral<Host>, ttmath::Int<Size>, ttmath::UInt<Size>> words;
    words.SetZero();
    Converted<Host> converted{};
    converted.fits = value.ToInt(words) == 0;
    std::memcpy(&converted.value, words.table, sizeof converted.value);
    return converted;
}

/// Converts to a Double, truncated to its precision; numbers that are too large or too small for
/// one do not fit.
template <std::same_as<double> Host, typename Value>
Converted<Host> NumberTo(const Value& value) {
    Converted<Host> converted{};
    converted.fits = value.ToDouble(converted.value) == 0;
    return converted;
}

/// Getter of a property of type `Host`; 0 after a failure was raised.
template <typename Value, FixedString LogName, FixedString FailureName, typename Host>
NamedRoutine GetProperty() {
    return MakeRoutine<LogName, Failure::OneNumber, FailureName>([](Object self, Integer) -> Host {
        const auto converted = NumberTo<Host>(ReadNumber<Value>(self));
        if (!converted.fits) {
            RaiseOverflowException<Value>(FailureName.text, self);
            return 0;
        }
        return converted.value;
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
    const auto [amount, fits] = NumberTo<std::int64_t>(value);
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
    return MakeRoutine<LogName, Failure::Name, FailureName>([](Object self, Integer) {
        return NumberToCurrency<Value, FailureName>(ReadNumber<Value>(self));
    });
}

// ---------------------------------------------------------------------------------------------
// Variants

/// What a Variant holds, as far as numbers are concerned.
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

/// The content for a type code that `VariantType` returned. Booleans count as Int32, colours as
/// UInt32.
VariantContent VariantContentOf(std::int32_t type);

/// Raises the exception for a Variant that cannot become a number.
void RaiseConversionNotSupported();

/// Setter of "VariantValue". The number is 0 until it is replaced by what the Variant holds.
template <typename Value, FixedString LogName>
NamedRoutine SetVariant() {
    return MakeRoutine<LogName, Failure::Other>([](Object self, Integer, Object variant) {
        StoreNumberValue(self, ZeroValue<Value>());
        switch (VariantContentOf(VariantType(variant))) {
            case VariantContent::Nothing:
                break;
            case VariantContent::SignedInt32:
                StoreFrom<Value>(self, VariantToInt32(variant));
                break;
            case VariantContent::UnsignedInt32:
                StoreFrom<Value>(self, VariantToUInt32(variant));
                break;
            case VariantContent::SignedInt64:
                StoreFrom<Value>(self, VariantToInt64(variant));
                break;
            case VariantContent::UnsignedInt64:
                StoreFrom<Value>(self, VariantToUInt64(variant));
                break;
            case VariantContent::Currency:
                Run<"SetCurrencyValue">(StoreFrom<Value, CurrencyAmount>, self,
                                        CurrencyAmount{VariantToCurrency(variant)});
                break;
            case VariantContent::Single:
            case VariantContent::Double:
                Run<"SetDoubleValue">(StoreFrom<Value, double>, self, VariantToDouble(variant));
                break;
            case VariantContent::Date:
                Run<"SetDoubleValue">(StoreFrom<Value, double>, self, GetDateTotalSeconds(variant));
                break;
            case VariantContent::DateTime:
                Run<"SetDoubleValue">(StoreFrom<Value, double>, self, GetSecondsFrom1970(variant));
                break;
            case VariantContent::Text: {
                const StringReference text = VariantToString(variant);
                Run<"SetStringValue">(StoreText<Value>, self, text.Get(), 10, "StringValue");
                break;
            }
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
}

/// Makes the number of a host value as the "NumberWith..." method called `LogName` does.
template <typename Value, FixedString LogName, typename Host>
Object MakeAs(Host value) {
    return Run<LogName, Unguarded::OutOfMemoryEscapes>(MakeFrom<Value, Host>, value);
}

/// "NumberWithVariant(value as variant)"; null for Nil. A Double is read as a Single here, unlike
/// in the setter of "VariantValue"; the help says so, and it stays so.
template <typename Value, FixedString LogName>
NamedRoutine NumberWithVariant() {
    return MakeUnguardedRoutine<Unguarded::OutOfMemoryEscapes, LogName,
                                Failure::Other>([](Object variant) -> Object {
        if (variant == nullptr) {
            return nullptr;
        }
        switch (VariantContentOf(VariantType(variant))) {
            case VariantContent::Nothing:
                return nullptr;
            case VariantContent::SignedInt32:
                return MakeAs<Value, "NumberWithInt32">(VariantToInt32(variant));
            case VariantContent::SignedInt64:
                return MakeAs<Value, "NumberWithInt64">(VariantToInt64(variant));
            case VariantContent::UnsignedInt32:
                return MakeAs<Value, "NumberWithUInt32">(VariantToUInt32(variant));
            case VariantContent::UnsignedInt64:
                return MakeAs<Value, "NumberWithUInt64">(VariantToUInt64(variant));
            case VariantContent::Single:
                return MakeAs<Value, "NumberWithSingle">(VariantToSingle(variant));
            case VariantContent::Double:
                return MakeAs<Value, "NumberWithDouble">(
                    static_cast<double>(VariantToSingle(variant)));
            case VariantContent::Currency:
                return MakeAs<Value, "NumberWithCurrency">(
                    CurrencyAmount{VariantToCurrency(variant)});
            case VariantContent::Date:
                return MakeAs<Value, "NumberWithDouble">(GetDateTotalSeconds(variant));
            case VariantContent::DateTime:
                return MakeAs<Value, "NumberWithDouble">(GetSecondsFrom1970(variant));
            case VariantContent::Text: {
                const StringReference text = VariantToString(variant);
                return Run<"NumberWithString", Unguarded::OutOfMemoryEscapes, EntryLine::NameText>(
                    [](String value) { return MakeFromText<Value>(value, "Constructor"); },
                    text.Get());
            }
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

/// A machine integer as a number, made when the library is loaded: a constant made at its first use
/// would have to be guarded against other threads.
template <typename Value, auto Constant>
inline const Value NumberConstant = NumberFrom<Value>(Constant);

/// Whether `value` is between the smallest and the largest `Host`, both included.
template <typename Host, typename Value>
bool IsInRangeOf(const Value& value) {
    return NumberConstant<Value, std::numeric_limits<Host>::min()> <= value &&
           value <= NumberConstant<Value, std::numeric_limits<Host>::max()>;
}

/// The range in which "VariantValue" gives a UInt64: -1 to 0. Zero has become an Int32 before this
/// test, so integers beyond Int64 become text; the help says so, and it stays so.
template <typename Value>
bool IsInRangeOfUInt64Variant(const Value& value) {
    return NumberConstant<Value, -1> <= value && value <= NumberConstant<Value, 0>;
}

/// The number as a Variant: an Int32 or Int64 when it is one, else its text.
template <typename Value>
Object VariantOf(Object self) {
    const Value& value = ReadNumber<Value>(self);
    if (value.IsInteger()) {
        const auto narrow = NumberTo<std::int32_t>(value);
        if (IsInRangeOf<std::int32_t>(value) && narrow.fits) {
            return host::Int32ToVariant(narrow.value);
        }
        const auto wide = NumberTo<std::int64_t>(value);
        if (IsInRangeOf<std::int64_t>(value) && wide.fits) {
            return host::Int64ToVariant(wide.value);
        }
        const auto large = NumberTo<std::uint64_t>(value);
        if (IsInRangeOfUInt64Variant(value) && large.fits) {
            return host::UInt64ToVariant(large.value);  // GCOVR_EXCL_LINE: zero is an Int32 above
        }
    }
    const StringReference text(Run<"GetStringValue">(PlainText<Value>, self, "StringValue"));
    return host::StringToVariant(text.Get());
}

/// Getter of "VariantValue".
template <typename Value, FixedString LogName>
NamedRoutine GetVariant() {
    return MakeRoutine<LogName>([](Object self, Integer) { return VariantOf<Value>(self); });
}

}  // namespace vqz
