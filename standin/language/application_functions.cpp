// Functions that ask the application and the system, and those that read numbers strictly.
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
#include "standin/language/operations.hpp"
#include "standin/language/unicode.hpp"
#include "standin/runtime/platform.hpp"

namespace standin::language {
namespace {

using Arguments = std::vector<Value>;

/// A message is a line of the output.
Value ShowMessage(const Arguments& arguments, const Machine& machine) {
    machine.Print(machine.host().Utf8(arguments[0].text()));
    return {};
}

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

Value IsNumeric(const Arguments& arguments, const Machine& machine) {
    return Value::Of(NumberOf<double>(machine.host().Utf8(arguments[0].text())).has_value());
}

using HostInteger = std::intptr_t;

constexpr auto Rows = std::to_array<BuiltInRow>({
    {"MessageBox(message As String)", ShowMessage},
    {"MsgBox(message As String)", ShowMessage},
    {"DebugLog(message As String)", ShowMessage, "System"},
    {"Quit(status As Integer = 0)", Quit},
    {"Input() As String", ReadLine},
    {"ReadLine() As String", ReadLine, "StdIn"},
    {"WriteLine(text As String = \"\")", ShowMessage, "StdOut"},
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
    {"ToInteger(text As String) As Integer", Parsed<HostInteger>},
    {"ToInt64(text As String) As Int64", Parsed<std::int64_t>},
    {"ToDouble(text As String) As Double", Parsed<double>},
});

}  // namespace

std::span<const BuiltInRow> ApplicationFunctions() {
    return Rows;
}

}  // namespace standin::language
