#include "standin/language/host_members.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

#include "standin/language/names.hpp"

namespace standin::language {
namespace {

using Arguments = std::vector<Value>;

// RuntimeException -------------------------------------------------------------------------------

Value GetMessage(const Arguments& arguments, const Machine& machine) {
    return machine.MakeText(machine.host().Message(arguments[0].object()));
}

Value SetMessage(const Arguments& arguments, const Machine& machine) {
    Host& host = machine.host();
    host.SetMessage(arguments[0].object(), host.Utf8(arguments[1].text()));
    return {};
}

Value GetErrorNumber(const Arguments& arguments, const Machine& machine) {
    return Value::Of(machine.host().ErrorNumber(arguments[0].object()));
}

Value SetErrorNumber(const Arguments& arguments, const Machine& machine) {
    machine.host().SetErrorNumber(arguments[0].object(), arguments[1].Get<std::int32_t>());
    return {};
}

Value FillException(const Arguments& arguments, const Machine& machine) {
    Host& host = machine.host();
    host.SetMessage(arguments[0].object(), host.Utf8(arguments[1].text()));
    host.SetErrorNumber(arguments[0].object(), arguments[2].Get<std::int32_t>());
    return {};
}

// MemoryBlock ------------------------------------------------------------------------------------

/// An object that the host made, or OutOfMemoryException.
Value RequireMade(Object object, std::string_view className, const Machine& machine) {
    auto made = Value::Adopt(object);
    if (made.object() == nullptr) {
        machine.Raise("OutOfMemoryException",
                      "There is no memory for a new " + std::string(className) + ".");
    }
    return made;
}

Value MakeMemoryBlock(const Arguments& arguments, const Machine& machine) {
    const auto size = arguments[0].Get<std::int32_t>();
    if (size < 0) {
        machine.Raise("OutOfBoundsException", "A MemoryBlock has no negative size.");
    }
    const std::string bytes(static_cast<std::size_t>(size), '\0');
    return RequireMade(machine.host().MakeMemoryBlock(bytes), "MemoryBlock", machine);
}

Value GetSize(const Arguments& arguments, const Machine& machine) {
    return Value::Of(machine.host().BlockBytes(arguments[0].object()).size());
}

/// The bytes from an offset on, of which there must be `size`.
std::span<std::byte> BytesAt(const Arguments& arguments, std::size_t size, const Machine& machine) {
    const auto bytes = machine.host().BlockBytes(arguments[0].object());
    const auto offset = arguments[1].Get<std::int32_t>();
    if (offset < 0 || size > bytes.size() ||
        static_cast<std::size_t>(offset) > bytes.size() - size) {
        machine.Raise("OutOfBoundsException", "The MemoryBlock ends before that.");
    }
    return bytes.subspan(static_cast<std::size_t>(offset), size);
}

template <typename T>
Value GetNumber(const Arguments& arguments, const Machine& machine) {
    T number{};
    std::memcpy(&number, BytesAt(arguments, sizeof number, machine).data(), sizeof number);
    return Value::Of(number);
}

template <typename T>
Value SetNumber(const Arguments& arguments, const Machine& machine) {
    const auto number = arguments[2].Get<T>();
    std::memcpy(BytesAt(arguments, sizeof number, machine).data(), &number, sizeof number);
    return {};
}

Value GetBytes(const Arguments& arguments, const Machine& machine) {
    const auto size = static_cast<std::uint32_t>(arguments[2].Get<std::int32_t>());
    const auto bytes = BytesAt(arguments, size, machine);
    const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return machine.MakeText(text, HostTextEncoding::Unknown);
}

// Date and DateTime ------------------------------------------------------------------------------

Value MakeDate(const Arguments& arguments, const Machine& machine) {
    return RequireMade(machine.host().MakeDate(arguments[0].Get<double>()), "Date", machine);
}

Value MakeDateTime(const Arguments& arguments, const Machine& machine) {
    return RequireMade(machine.host().MakeDateTime(arguments[0].Get<double>()), "DateTime",
                       machine);
}

Value GetSeconds(const Arguments& arguments, const Machine& machine) {
    return Value::Of(machine.host().Seconds(arguments[0].object()));
}

constexpr auto Properties = std::to_array<HostMember>({
    {"RuntimeException", "Message As String", GetMessage, SetMessage},
    {"RuntimeException", "ErrorNumber As Integer", GetErrorNumber, SetErrorNumber},
    {"MemoryBlock", "Size As Integer", GetSize, nullptr},
    {"Date", "TotalSeconds As Double", GetSeconds, nullptr},
    {"DateTime", "SecondsFrom1970 As Double", GetSeconds, nullptr},
});

constexpr auto Methods = std::to_array<HostMember>({
    {"MemoryBlock", "Byte(offset As Integer) As Integer", GetNumber<std::uint8_t>,
     SetNumber<std::uint8_t>},
    {"MemoryBlock", "Int32Value(offset As Integer) As Int32", GetNumber<std::int32_t>,
     SetNumber<std::int32_t>},
    {"MemoryBlock", "UInt32Value(offset As Integer) As UInt32", GetNumber<std::uint32_t>,
     SetNumber<std::uint32_t>},
    {"MemoryBlock", "Int64Value(offset As Integer) As Int64", GetNumber<std::int64_t>,
     SetNumber<std::int64_t>},
    {"MemoryBlock", "UInt64Value(offset As Integer) As UInt64", GetNumber<std::uint64_t>,
     SetNumber<std::uint64_t>},
    {"MemoryBlock", "DoubleValue(offset As Integer) As Double", GetNumber<double>,
     SetNumber<double>},
    {"MemoryBlock", "StringValue(offset As Integer, size As Integer) As String", GetBytes, nullptr},
});

constexpr auto Constructors = std::to_array<HostMember>({
    {"RuntimeException", "Constructor(message As String = \"\", errorNumber As Integer = 0)",
     FillException, nullptr},
});

constexpr auto Factories = std::to_array<HostMember>({
    {"MemoryBlock", "Constructor(size As Integer)", MakeMemoryBlock, nullptr},
    {"Date", "Constructor(totalSeconds As Double)", MakeDate, nullptr},
    {"DateTime", "Constructor(secondsFrom1970 As Double)", MakeDateTime, nullptr},
});

std::vector<HostMember> Of(std::string_view className, std::span<const HostMember> members) {
    std::vector<HostMember> found;
    for (const auto& member : members) {
        if (SameName(member.className, className)) {
            found.push_back(member);
        }
    }
    return found;
}

}  // namespace

std::vector<HostMember> HostPropertiesOf(std::string_view className) {
    return Of(className, Properties);
}

std::vector<HostMember> HostMethodsOf(std::string_view className) {
    return Of(className, Methods);
}

std::vector<HostMember> HostConstructorsOf(std::string_view className) {
    return Of(className, Constructors);
}

std::vector<HostMember> HostFactoriesOf(std::string_view className) {
    return Of(className, Factories);
}

}  // namespace standin::language
