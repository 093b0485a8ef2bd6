// Conversions from numbers to host text and back. The template arguments of the routines here are
// the name in the debug log and the name that a failure is reported under.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "host/rb_text.hpp"
#include "host/routine.hpp"
#include "host/strings.hpp"
#include "host/terminated_text.hpp"
#include "number/ops/failure_report.hpp"
#include "number/text_limit.hpp"
#include "number/value/number_object.hpp"

namespace vqz {

/// The 32-bit number nearest to an Integer: ttmath takes no wider ones.
inline std::int32_t Nearest32(Integer value) {
    return static_cast<std::int32_t>(std::clamp<Integer>(value, INT32_MIN, INT32_MAX));
}

/// The default format in another base. With a base outside of 2 to 16 formatting fails.
inline TextFormat FormatWithBase(Integer base) {
    TextFormat format;
    format.base = static_cast<ttmath::uint>(Nearest32(base));
    return format;
}

/// The decimal separator: the first byte of `comma`, or "." when there is none.
inline char DecimalSeparator(String comma) {
    constexpr char Default = '.';
    rbText text(comma);
    const char* bytes = text.Utf8Text();
    return text.Utf8Length() > 0 && *bytes != '\0' ? *bytes : Default;
}

/// The number's text as a host string that the caller owns; null after a failure was raised.
template <typename Value>
String FormatNumber(Object self, const TextFormat& format, const char* failureName) {
    const Value& value = ReadNumber<Value>(self);
    if constexpr (HOST_INTERFACE_32_BIT == 0) {
        RefuseGiantText(value, format);
    }
    std::string text;
    if (value.ToString(text, format) != 0) {
        RaiseOverflowException<Value>(failureName, self);
        return nullptr;
    }
    return REALBuildUnicodeString(text.data(), static_cast<std::int64_t>(text.size()),
                                  HostTextEncoding::Utf8)
        .Release();
}

/// `FormatNumber` with all digits in base 10.
template <typename Value>
String PlainText(Object self, const char* failureName) {
    return FormatNumber<Value>(self, TextFormat(), failureName);
}

/// Getter of the property "StringValue".
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine GetText() {
    return MakeRoutine<LogName>(
        [](Object self, Integer) { return PlainText<Value>(self, FailureName.text); });
}

/// "Operator_Convert as String": it calls the getter of "StringValue", which writes the log line.
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine ConvertToText() {
    NamedRoutine routine = MakeUnguardedRoutine<Unguarded::GuardedInside, NotLogged>(
        [](Object self) { return Run<LogName>(PlainText<Value>, self, FailureName.text); });
    routine.logName = LogName.text;
    return routine;
}

/// Getter of "StringValue(Base)".
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine GetTextInBase() {
    return MakeRoutine<LogName, Failure::OneNumber, FailureName>([](Object self, Integer base) {
        return FormatNumber<Value>(self, FormatWithBase(base), FailureName.text);
    });
}

/// "GetStringValue" with all its options.
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine GetTextFormatted() {
    return MakeRoutine<LogName, Failure::OneNumber, FailureName>(
        [](Object self, Integer base, BooleanWord scientific, Integer scientificFrom, Integer round,
           BooleanWord trimZeros, String comma) {
            TextFormat format = FormatWithBase(base);
            format.scient = IsTrue(scientific);
            format.scient_from = Nearest32(scientificFrom);
            format.round = Nearest32(round);
            format.trim_zeroes = IsTrue(trimZeros);
            // ttmath narrows the separator to a char again, so the sign extension does no harm.
            format.comma = static_cast<ttmath::uint>(DecimalSeparator(comma));
            return FormatNumber<Value>(self, format, FailureName.text);
        });
}

/// Parses text into the object's value and reports a failure with it. The value is replaced by
/// whatever was read, also after a failure.
template <typename Value>
void StoreText(Object self, String text, Integer base, const char* failureName) {
    Value value = NanValue<Value>();
    const TerminatedText source(text);
    if (value.FromString(source.begin(), static_cast<ttmath::uint>(Nearest32(base))) != 0) {
        RaiseOverflowException<Value>(failureName, self);
    }
    StoreNumberValue(self, value);
}

/// "Constructor(value as String)": text in base 10.
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine ConstructFromText() {
    return MakeRoutine<LogName, Failure::OneNumber, FailureName>(
        [](Object self, String text) { StoreText<Value>(self, text, 10, FailureName.text); });
}

/// Setter of the property "StringValue": text in base 10.
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine SetText() {
    return MakeRoutine<LogName, Failure::OneNumber, FailureName>(
        [](Object self, Integer, String text) {
            StoreText<Value>(self, text, 10, FailureName.text);
        });
}

/// Setter of "StringValue(Base)".
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine SetTextInBase() {
    return MakeRoutine<LogName, Failure::OneNumber, FailureName>(
        [](Object self, Integer base, String text) {
            StoreText<Value>(self, text, base, FailureName.text);
        });
}

/// "SetStringValue": parses, and returns the rest of the text and whether digits were read. The
/// text is held from the start, so that one variable may be both the text and the rest.
template <typename Value, FixedString LogName, FixedString FailureName>
NamedRoutine SetTextAndReturnRest() {
    return MakeRoutine<LogName, Failure::OneNumber, FailureName>([](Object self, String text,
                                                                    Integer base, String* afterText,
                                                                    std::uint8_t* valueRead) {
        const StringReference held = StringReference::Share(text);
        StringReference(std::exchange(*afterText, nullptr)).Reset();
        *valueRead = 0;

        Value value = NanValue<Value>();
        const TerminatedText source(text);
        const char* after = source.begin();
        bool digitsRead = false;
        const bool failed =
            value.FromString(source.begin(), static_cast<ttmath::uint>(Nearest32(base)), &after,
                             &digitsRead) != 0;
        *valueRead = digitsRead ? 1 : 0;
        *afterText =
            REALBuildUnicodeString(after, source.end() - after, HostTextEncoding::Utf8).Release();
        if (failed) {
            RaiseOverflowException<Value>(FailureName.text, self);
        }
        StoreNumberValue(self, value);
    });
}

}  // namespace vqz
