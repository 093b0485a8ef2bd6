// Functions that ask the application and the system, and those that read numbers strictly.
#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>

#include "standin/language/builtins.hpp"
#include "standin/language/constants.hpp"
#include "standin/language/operations.hpp"
#include "standin/language/text.hpp"
#include "standin/language/unicode.hpp"
#include "standin/runtime/platform.hpp"

namespace standin::language {
namespace {

using Arguments = std::vector<Value>;
using HostInteger = std::intptr_t;

/// A message is a line of the output.
Value ShowMessage(const Arguments& arguments, const Machine& machine) {
    machine.Print(machine.host().Utf8(arguments[0].text()));
    return {};
}

Value WriteText(const Arguments& arguments, const Machine& machine) {
    machine.Write(machine.host().Utf8(arguments[0].text()));
    return {};
}

/// All output appears at once.
Value Flush(const Arguments& /*arguments*/, const Machine& /*machine*/) {
    return {};
}

template <char... Characters>
Value Constant(const Arguments& /*arguments*/, const Machine& machine) {
    constexpr std::array Text{Characters...};
    return machine.MakeText(std::string_view(Text.data(), Text.size()));
}

constexpr BuiltInFunction UnixEndOfLine = Constant<'\n'>;
constexpr BuiltInFunction WindowsEndOfLine = Constant<'\r', '\n'>;
constexpr BuiltInFunction ClassicEndOfLine = Constant<'\r'>;

Value ObjectCount(const Arguments& /*arguments*/, const Machine& machine) {
    return Value::Of(machine.host().Counts().objectsAlive);
}

Value MemoryUsed(const Arguments& /*arguments*/, const Machine& /*machine*/) {
    return Value::Of(platform::MemoryUsed());
}

Value Quit(const Arguments& arguments, const Machine& /*machine*/) {
    throw Ended(static_cast<int>(arguments[0].Get<Integer>()));
}

/// The next line of standard input; empty at its end.
Value ReadLine(const Arguments& /*arguments*/, const Machine& machine) {
    std::string line;
    if (!std::getline(std::cin, line)) {
        // What a Ctrl-C ended can go on; what is at its end stays there.
        std::cin.clear();
        std::clearerr(stdin);
    }
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return machine.MakeText(
        line, FindInvalidUtf8(line) ? HostTextEncoding::Unknown : HostTextEncoding::Utf8);
}

/// The number that a text is as a whole, blanks around it left out.
template <typename T, int... Base>
std::optional<T> NumberOf(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    text = first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(" \t") + 1 - first);
    if (text.size() > 1 && text.front() == '+') {
        text.remove_prefix(1);
    }
    T number{};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number, Base...);
    const bool isNumber = result.ec == std::errc{} && result.ptr == text.data() + text.size();
    return isNumber ? std::optional(number) : std::nullopt;
}

/// What is no number of the type in that base raises.
template <typename T, int... Base>
Value Parsed(const Arguments& arguments, const Machine& machine) {
    const auto text = machine.host().Utf8(arguments[0].text());
    const auto number = NumberOf<T, Base...>(text);
    if (!number) {
        machine.Raise("InvalidArgumentException", "The text \"" + text + "\" is no such number.");
    }
    return Value::Of(*number);
}

/// The digits tell all bits: the first one may be the sign's.
template <std::integral T, int Base>
Value ParsedBits(const Arguments& arguments, const Machine& machine) {
    const auto bits = Parsed<std::make_unsigned_t<T>, Base>(arguments, machine);
    return Value::Of(bits.template Get<T>());
}

/// The number that a text begins with, else 0; whole digits exactly.
template <typename T>
Value Leading(const Arguments& arguments, const Machine& machine) {
    const auto text = machine.host().Utf8(arguments[0].text());
    if constexpr (std::integral<T>) {
        const auto digits =
            std::string_view(text).substr(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
        T number{};
        const auto* const end = digits.data() + digits.size();
        const auto result = std::from_chars(digits.data(), end, number);
        const bool goesOn = result.ptr != end &&
                            std::string_view(".eE").find(*result.ptr) != std::string_view::npos;
        if (result.ec == std::errc{} && !goesOn) {
            return Value::Of(number);
        }
        constexpr Kind To = sizeof(T) == 4 ? Kind::Int32 : Kind::Int64;
        return FindConversion(Kind::Double, To)(Value::Of(NumberIn(text)), machine);
    } else {
        return Value::Of(NumberIn(text));
    }
}

Value IsNumeric(const Arguments& arguments, const Machine& machine) {
    return Value::Of(NumberOf<double>(machine.host().Utf8(arguments[0].text())).has_value());
}

constexpr auto Rows = std::to_array<BuiltInRow>({
    {"MessageBox(message As String)", ShowMessage},
    {"MsgBox(message As String)", ShowMessage},
    {"DebugLog(message As String)", ShowMessage, "System"},
    {"Quit(status As Integer = 0)", Quit},
    {"Input() As String", ReadLine},
    {"ReadLine() As String", ReadLine, "StdIn"},
    {"WriteLine(text As String = \"\")", ShowMessage, "StdOut"},
    {"Write(text As String)", WriteText, "StdOut"},
    {"Flush()", Flush, "StdOut"},
    {"EndOfLine() As String", IsWindows ? WindowsEndOfLine : UnixEndOfLine},
    {"Windows() As String", WindowsEndOfLine, "EndOfLine"},
    {"CRLF() As String", WindowsEndOfLine, "EndOfLine"},
    {"UNIX() As String", UnixEndOfLine, "EndOfLine"},
    {"LF() As String", UnixEndOfLine, "EndOfLine"},
    {"Macintosh() As String", ClassicEndOfLine, "EndOfLine"},
    {"CR() As String", ClassicEndOfLine, "EndOfLine"},
    {"ObjectCount() As Integer", ObjectCount, "Runtime"},
    {"MemoryUsed() As Integer", MemoryUsed, "Runtime"},
    {"FromString(text As String) As Integer", Parsed<HostInteger>, "Integer"},
    {"FromString(text As String) As Int32", Parsed<std::int32_t>, "Int32"},
    {"FromString(text As String) As UInt32", Parsed<std::uint32_t>, "UInt32"},
    {"FromString(text As String) As Int64", Parsed<std::int64_t>, "Int64"},
    {"FromString(text As String) As UInt64", Parsed<std::uint64_t>, "UInt64"},
    {"FromString(text As String) As Double", Parsed<double>, "Double"},
    {"FromHex(text As String) As Integer", ParsedBits<HostInteger, 16>, "Integer"},
    {"FromHex(text As String) As Int32", ParsedBits<std::int32_t, 16>, "Int32"},
    {"FromHex(text As String) As UInt32", ParsedBits<std::uint32_t, 16>, "UInt32"},
    {"FromHex(text As String) As Int64", ParsedBits<std::int64_t, 16>, "Int64"},
    {"FromHex(text As String) As UInt64", ParsedBits<std::uint64_t, 16>, "UInt64"},
    {"FromOctal(text As String) As Integer", ParsedBits<HostInteger, 8>, "Integer"},
    {"FromBinary(text As String) As Integer", ParsedBits<HostInteger, 2>, "Integer"},
    {"IsNumeric(text As String) As Boolean", IsNumeric},
    {"ToInteger(text As String) As Integer", Leading<HostInteger>},
    {"ToInt64(text As String) As Int64", Leading<std::int64_t>},
    {"ToDouble(text As String) As Double", Leading<double>},
});

}  // namespace

std::span<const BuiltInRow> ApplicationFunctions() {
    return Rows;
}

}  // namespace standin::language
