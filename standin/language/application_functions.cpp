// Functions that ask the application and the system, and those that read numbers strictly.
#include <array>
#include <charconv>
#include <concepts>
#include <string>
#include <string_view>
#include <system_error>

#include "standin/language/builtins.hpp"
#include "standin/language/operations.hpp"
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

/// A text that is a number as a whole, blanks around it left out; anything else raises.
template <typename T>
Value Parsed(const Arguments& arguments, const Machine& machine) {
    const auto given = machine.host().Utf8(arguments[0].text());
    std::string_view text = given;
    const auto first = text.find_first_not_of(" \t");
    text = first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(" \t") + 1 - first);
    if (text.size() > 1 && text.front() == '+') {
        text.remove_prefix(1);
    }
    T number{};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc{} || result.ptr != text.data() + text.size()) {
        machine.Raise("InvalidArgumentException", "The text \"" + given + "\" is no such number.");
    }
    return Value::Of(number);
}

using HostInteger = std::intptr_t;

constexpr auto Rows = std::to_array<BuiltInRow>({
    {"MessageBox(message As String)", ShowMessage},
    {"MsgBox(message As String)", ShowMessage},
    {"DebugLog(message As String)", ShowMessage, "System"},
    {"ObjectCount() As Integer", ObjectCount, "Runtime"},
    {"MemoryUsed() As Integer", MemoryUsed, "Runtime"},
    {"FromString(text As String) As Integer", Parsed<HostInteger>, "Integer"},
    {"FromString(text As String) As Int32", Parsed<std::int32_t>, "Int32"},
    {"FromString(text As String) As UInt32", Parsed<std::uint32_t>, "UInt32"},
    {"FromString(text As String) As Int64", Parsed<std::int64_t>, "Int64"},
    {"FromString(text As String) As UInt64", Parsed<std::uint64_t>, "UInt64"},
    {"FromString(text As String) As Double", Parsed<double>, "Double"},
    {"ToInteger(text As String) As Integer", Parsed<HostInteger>},
    {"ToInt64(text As String) As Int64", Parsed<std::int64_t>},
    {"ToDouble(text As String) As Double", Parsed<double>},
});

}  // namespace

std::span<const BuiltInRow> ApplicationFunctions() {
    return Rows;
}

}  // namespace standin::language
