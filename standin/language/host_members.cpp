#include "standin/language/host_members.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <initializer_list>
#include <iterator>
#include <span>
#include <string>

#include "standin/language/dictionary.hpp"
#include "standin/language/names.hpp"
#include "standin/language/operations.hpp"
#include "standin/language/pair.hpp"

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
    machine.host().SetErrorNumber(arguments[0].object(), arguments[1].Get<Integer>());
    return {};
}

Value FillException(const Arguments& arguments, const Machine& machine) {
    Host& host = machine.host();
    host.SetMessage(arguments[0].object(), host.Utf8(arguments[1].text()));
    host.SetErrorNumber(arguments[0].object(), arguments[2].Get<Integer>());
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

/// A size for a MemoryBlock: what is no size raises, and so does more than there could be.
std::size_t RequireSize(const Value& value, const Machine& machine) {
    constexpr Integer LargestSize = 256 * 1024 * 1024;
    const auto size = value.Get<Integer>();
    if (size < 0) {
        machine.Raise("OutOfBoundsException", "A MemoryBlock has no negative size.");
    }
    if (size > LargestSize) {
        machine.Raise("OutOfMemoryException", "There is no memory for so large a MemoryBlock.");
    }
    return static_cast<std::size_t>(size);
}

Value MakeMemoryBlock(const Arguments& arguments, const Machine& machine) {
    const std::string bytes(RequireSize(arguments[0], machine), '\0');
    return RequireMade(machine.host().MakeMemoryBlock(bytes), "MemoryBlock", machine);
}

Value GetSize(const Arguments& arguments, const Machine& machine) {
    return Value::Of(machine.host().BlockBytes(arguments[0].object()).size());
}

Value SetSize(const Arguments& arguments, const Machine& machine) {
    machine.host().ResizeBlock(arguments[0].object(), RequireSize(arguments[1], machine));
    return {};
}

/// The bytes from an offset on, of which there must be `size`.
std::span<std::byte> BytesAt(const Arguments& arguments, std::size_t size, const Machine& machine) {
    const auto bytes = machine.host().BlockBytes(arguments[0].object());
    const auto offset = arguments[1].Get<Integer>();
    if (offset < 0 || size > bytes.size() ||
        static_cast<std::size_t>(offset) > bytes.size() - size) {
        machine.Raise("OutOfBoundsException", "The MemoryBlock ends before that.");
    }
    return bytes.subspan(static_cast<std::size_t>(offset), size);
}

/// Between the order of bytes in a number here and the one that the block is to have.
void OrderBytes(std::span<std::byte> bytes, const Arguments& arguments, const Machine& machine) {
    if (machine.host().IsBigEndian(arguments[0].object())) {
        std::ranges::reverse(bytes);
    }
}

Value IsLittleEndian(const Arguments& arguments, const Machine& machine) {
    return Value::Of(!machine.host().IsBigEndian(arguments[0].object()));
}

Value SetLittleEndian(const Arguments& arguments, const Machine& machine) {
    machine.host().SetBigEndian(arguments[0].object(), !arguments[1].IsTrue());
    return {};
}

/// A text becomes a block of its bytes where one is wanted, and the other way round.
Value BlockOfText(const Arguments& arguments, const Machine& machine) {
    Host& host = machine.host();
    return RequireMade(host.MakeMemoryBlock(host.Bytes(arguments[0].text())), "MemoryBlock",
                       machine);
}

Value TextOfBlock(const Arguments& arguments, const Machine& machine) {
    const auto bytes = machine.host().BlockBytes(arguments[0].object());
    return machine.MakeText({reinterpret_cast<const char*>(bytes.data()), bytes.size()},
                            HostTextEncoding::Unknown);
}

template <typename T>
Value GetNumber(const Arguments& arguments, const Machine& machine) {
    std::array<std::byte, sizeof(T)> bytes;
    std::ranges::copy(BytesAt(arguments, sizeof(T), machine), bytes.begin());
    OrderBytes(bytes, arguments, machine);
    return Value::Of(std::bit_cast<T>(bytes));
}

template <typename T>
Value SetNumber(const Arguments& arguments, const Machine& machine) {
    auto bytes = std::bit_cast<std::array<std::byte, sizeof(T)>>(arguments[2].Get<T>());
    OrderBytes(bytes, arguments, machine);
    std::ranges::copy(bytes, BytesAt(arguments, sizeof(T), machine).begin());
    return {};
}

Value GetBytes(const Arguments& arguments, const Machine& machine) {
    const auto size = static_cast<std::size_t>(arguments[2].Get<Integer>());
    const auto bytes = BytesAt(arguments, size, machine);
    const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return machine.MakeText(text, HostTextEncoding::Unknown);
}

/// Exactly that many bytes: a longer text is cut, a shorter one leaves zeros behind it.
Value SetBytes(const Arguments& arguments, const Machine& machine) {
    const auto size = static_cast<std::size_t>(arguments[2].Get<Integer>());
    const auto bytes = std::as_writable_bytes(BytesAt(arguments, size, machine));
    const auto text = machine.host().Bytes(arguments[3].text());
    const auto given = std::as_bytes(std::span(text)).first(std::min(text.size(), bytes.size()));
    const auto rest = std::ranges::copy(given, bytes.begin()).out;
    std::fill(rest, bytes.end(), std::byte{});
    return {};
}

// Date and DateTime ------------------------------------------------------------------------------

Value MakeDateTime(const Arguments& arguments, const Machine& machine) {
    return RequireMade(machine.host().MakeDateTime(arguments[0].Get<double>()), "DateTime",
                       machine);
}

Value GetSeconds(const Arguments& arguments, const Machine& machine) {
    return Value::Of(machine.host().Seconds(arguments[0].object()));
}

Value SetSeconds(const Arguments& arguments, const Machine& machine) {
    machine.host().SetSeconds(arguments[0].object(), arguments[1].Get<double>());
    return {};
}

/// A Date counts its seconds from the beginning of 1904.
constexpr double SecondsFrom1904To1970 = 2082844800.0;

Value MakeDateNow(const Arguments& /*arguments*/, const Machine& machine) {
    const auto now = static_cast<double>(std::time(nullptr));
    return RequireMade(machine.host().MakeDate(SecondsFrom1904To1970 + now), "Date", machine);
}

Value CopyDate(const Arguments& arguments, const Machine& machine) {
    machine.RequireObject(arguments[0]);
    const double seconds = machine.host().Seconds(arguments[0].object());
    return RequireMade(machine.host().MakeDate(seconds), "Date", machine);
}

/// Year, month, day, hour, minute, second. Months and days beyond their ends count on.
Value MakeDateOf(const Arguments& arguments, const Machine& machine) {
    const auto part = [&arguments](std::size_t index) {
        return static_cast<std::int64_t>(arguments[index].Get<std::int32_t>());
    };
    const std::int64_t months = part(0) * 12 + part(1) - 1;
    const std::int64_t year = (months - (months % 12 + 12) % 12) / 12;
    const auto month = static_cast<unsigned>((months % 12 + 12) % 12 + 1);
    constexpr std::int64_t LargestYear = 32767;
    if (year < -LargestYear || year > LargestYear) {
        machine.Raise("OutOfBoundsException", "A Date has no such year.");
    }
    using namespace std::chrono;
    const sys_days firstOfMonth =
        std::chrono::year(static_cast<int>(year)) / std::chrono::month(month) / 1;
    const std::int64_t days = firstOfMonth.time_since_epoch().count() + part(2) - 1;
    const std::int64_t seconds = ((days * 24 + part(3)) * 60 + part(4)) * 60 + part(5);
    return RequireMade(
        machine.host().MakeDate(SecondsFrom1904To1970 + static_cast<double>(seconds)), "Date",
        machine);
}

// Variant ----------------------------------------------------------------------------------------

/// The object that a Variant is; a Variant that holds a value, or another object, raises.
template <const char* ClassName>
Value Itself(const Arguments& arguments, const Machine& machine) {
    const auto* info = machine.host().FindClass(ClassName);
    if (info != nullptr) {
        RequireObjectOf(arguments[0], *info, machine);
    }
    return arguments[0];
}

constexpr char ObjectClass[] = "Object";
constexpr char DateClass[] = "Date";
constexpr char DateTimeClass[] = "DateTime";

Value TypeCode(const Arguments& arguments, const Machine& machine) {
    return Value::Of(machine.host().VariantType(arguments[0].object()));
}

Value IsNull(const Arguments& arguments, const Machine& machine) {
    return Value::Of(machine.host().VariantType(arguments[0].object()) == 0);
}

constexpr auto Properties = std::to_array<HostMember>({
    {"RuntimeException", "Message As String", GetMessage, SetMessage},
    {"RuntimeException", "ErrorNumber As Integer", GetErrorNumber, SetErrorNumber},
    {"MemoryBlock", "Size As Integer", GetSize, SetSize},
    {"MemoryBlock", "LittleEndian As Boolean", IsLittleEndian, SetLittleEndian},
    {"Date", "TotalSeconds As Double", GetSeconds, SetSeconds},
    {"DateTime", "SecondsFrom1970 As Double", GetSeconds, nullptr},
    {"Variant", "Type As Integer", TypeCode, nullptr},
    {"Variant", "IsNull As Boolean", IsNull, nullptr},
    {"Variant", "BooleanValue As Boolean", Unboxed<Kind::Boolean>, nullptr},
    {"Variant", "IntegerValue As Integer", Unboxed<IntegerKind>, nullptr},
    {"Variant", "Int32Value As Int32", Unboxed<Kind::Int32>, nullptr},
    {"Variant", "UInt32Value As UInt32", Unboxed<Kind::UInt32>, nullptr},
    {"Variant", "Int64Value As Int64", Unboxed<Kind::Int64>, nullptr},
    {"Variant", "UInt64Value As UInt64", Unboxed<Kind::UInt64>, nullptr},
    {"Variant", "SingleValue As Single", Unboxed<Kind::Single>, nullptr},
    {"Variant", "DoubleValue As Double", Unboxed<Kind::Double>, nullptr},
    {"Variant", "CurrencyValue As Currency", Unboxed<Kind::Currency>, nullptr},
    {"Variant", "StringValue As String", Unboxed<Kind::Text>, nullptr},
    {"Variant", "ObjectValue As Object", Itself<ObjectClass>, nullptr},
    {"Variant", "DateValue As Date", Itself<DateClass>, nullptr},
    {"Variant", "DateTimeValue As DateTime", Itself<DateTimeClass>, nullptr},
});

constexpr auto Methods = std::to_array<HostMember>({
    {"MemoryBlock", "Byte(offset As Integer) As Integer", GetNumber<std::uint8_t>,
     SetNumber<std::uint8_t>},
    {"MemoryBlock", "Int8Value(offset As Integer) As Integer", GetNumber<std::int8_t>,
     SetNumber<std::int8_t>},
    {"MemoryBlock", "UInt8Value(offset As Integer) As Integer", GetNumber<std::uint8_t>,
     SetNumber<std::uint8_t>},
    {"MemoryBlock", "Int16Value(offset As Integer) As Integer", GetNumber<std::int16_t>,
     SetNumber<std::int16_t>},
    {"MemoryBlock", "UInt16Value(offset As Integer) As Integer", GetNumber<std::uint16_t>,
     SetNumber<std::uint16_t>},
    {"MemoryBlock", "Int32Value(offset As Integer) As Int32", GetNumber<std::int32_t>,
     SetNumber<std::int32_t>},
    {"MemoryBlock", "UInt32Value(offset As Integer) As UInt32", GetNumber<std::uint32_t>,
     SetNumber<std::uint32_t>},
    {"MemoryBlock", "Int64Value(offset As Integer) As Int64", GetNumber<std::int64_t>,
     SetNumber<std::int64_t>},
    {"MemoryBlock", "UInt64Value(offset As Integer) As UInt64", GetNumber<std::uint64_t>,
     SetNumber<std::uint64_t>},
    {"MemoryBlock", "SingleValue(offset As Integer) As Single", GetNumber<float>, SetNumber<float>},
    {"MemoryBlock", "DoubleValue(offset As Integer) As Double", GetNumber<double>,
     SetNumber<double>},
    {"MemoryBlock", "CurrencyValue(offset As Integer) As Currency", GetNumber<CurrencyAmount>,
     SetNumber<CurrencyAmount>},
    {"MemoryBlock", "StringValue(offset As Integer, size As Integer) As String", GetBytes,
     SetBytes},
    {"MemoryBlock", "Operator_Convert(text As String)", BlockOfText, nullptr},
    {"MemoryBlock", "Operator_Convert() As String", TextOfBlock, nullptr},
});

constexpr auto Constructors = std::to_array<HostMember>({
    {"RuntimeException", "Constructor(message As String = \"\", errorNumber As Integer = 0)",
     FillException, nullptr},
});

constexpr auto Factories = std::to_array<HostMember>({
    {"MemoryBlock", "Constructor(size As Integer)", MakeMemoryBlock, nullptr},
    {"Date", "Constructor()", MakeDateNow, nullptr},
    {"Date", "Constructor(other As Date)", CopyDate, nullptr},
    {"Date",
     "Constructor(year As Int32, month As Int32, day As Int32, hour As Int32 = 0, minute As Int32 "
     "= 0, "
     "second As Int32 = 0)",
     MakeDateOf, nullptr},
    {"DateTime", "Constructor(secondsFrom1970 As Double)", MakeDateTime, nullptr},
});

using Members = std::span<const HostMember>;

std::vector<HostMember> Of(std::string_view className, std::initializer_list<Members> tables) {
    std::vector<HostMember> found;
    for (const auto& members : tables) {
        std::ranges::copy_if(members, std::back_inserter(found),
                             [className](const HostMember& member) {
                                 return SameName(member.className, className);
                             });
    }
    return found;
}

}  // namespace

std::vector<HostMember> HostPropertiesOf(std::string_view className) {
    return Of(className, {Properties, DictionaryProperties(), PairProperties()});
}

std::vector<HostMember> HostMethodsOf(std::string_view className) {
    return Of(className, {Methods, DictionaryMethods()});
}

std::vector<HostMember> HostConstructorsOf(std::string_view className) {
    return Of(className, {Constructors});
}

std::vector<HostMember> HostFactoriesOf(std::string_view className) {
    return Of(className, {Factories, DictionaryFactories(), PairFactories()});
}

}  // namespace standin::language
