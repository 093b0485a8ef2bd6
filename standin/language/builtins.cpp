#include "standin/language/builtins.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <span>
#include <string>
#include <utility>

#include "standin/language/format.hpp"
#include "standin/language/operations.hpp"
#include "standin/language/parser.hpp"
#include "standin/language/text.hpp"
#include "standin/language/unicode.hpp"
#include "standin/language/variant_operations.hpp"

namespace standin::language {
namespace {

using Arguments = std::vector<Value>;

// Text of values ---------------------------------------------------------------------------------

template <typename T>
Value TextOfNumber(const Arguments& arguments, const Machine& machine) {
    const auto value = arguments[0].Get<T>();
    if constexpr (std::floating_point<T>) {
        return machine.MakeText(ShortestText(value));
    } else if constexpr (std::same_as<T, CurrencyAmount>) {
        return machine.MakeText(TextOf(value));
    } else {
        return machine.MakeText(std::to_string(value));
    }
}

Value TextOfBoolean(const Arguments& arguments, const Machine& machine) {
    return machine.MakeText(TextOf(arguments[0].IsTrue()));
}

Value Formatted(const Arguments& arguments, const Machine& machine) {
    const auto pattern = machine.host().Utf8(arguments[1].text());
    return machine.MakeText(FormatNumber(arguments[0].Get<double>(), pattern));
}

Value TextItself(const Arguments& arguments, const Machine& /*machine*/) {
    return arguments[0];
}

template <std::unsigned_integral T, int Base>
Value Digits(const Arguments& arguments, const Machine& machine) {
    std::array<char, 64> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), arguments[0].Get<T>(), Base);
    std::string text(buffer.data(), result.ptr);
    std::ranges::transform(text, text.begin(), [](char digit) {
        return digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit;
    });
    return machine.MakeText(text);
}

/// A number of another kind than the integers, without its fraction.
template <Kind From, int Base>
Value DigitsOfReal(const Arguments& arguments, const Machine& machine) {
    const auto whole = FindConversion(From, Kind::Int64)(arguments[0], machine);
    return Digits<std::uint64_t, Base>({whole}, machine);
}

/// As many bits as the value that the Variant holds has.
template <int Base>
Value DigitsOfVariant(const Arguments& arguments, const Machine& machine) {
    const Kind held = HeldKind(arguments[0], machine);
    const auto whole = FindUnboxing(Kind::Int64)(arguments[0], machine);
    return held == Kind::Int32 || held == Kind::UInt32
               ? Digits<std::uint32_t, Base>({whole}, machine)
               : Digits<std::uint64_t, Base>({whole}, machine);
}

Value Val(const Arguments& arguments, const Machine& machine) {
    return Value::Of(NumberIn(machine.host().Utf8(arguments[0].text())));
}

Value VarType(const Arguments& arguments, const Machine& machine) {
    return Value::Of(machine.host().VariantType(arguments[0].object()));
}

Value MakeVariant(std::int32_t typeCode, const VariantValue& contents, const Machine& machine) {
    auto variant = Value::Adopt(machine.host().MakeVariant(typeCode, contents));
    if (variant.object() == nullptr) {
        machine.Raise("OutOfMemoryException", "There is no memory for a new Variant.");
    }
    return variant;
}

/// A Variant with any type code, also one that no value of the language has; what it holds is taken
/// from another.
Value VariantOfType(const Arguments& arguments, const Machine& machine) {
    return MakeVariant(static_cast<std::int32_t>(arguments[0].Get<Integer>()),
                       machine.host().VariantContents(arguments[1].object()), machine);
}

/// A colour. No type of the language holds one, so it is a Variant from the start.
Value MakeColor(const Arguments& arguments, const Machine& machine) {
    std::uint64_t color = 0;
    for (const auto& part : arguments) {
        color = color << 8U | (part.Get<std::uint64_t>() & 0xFFU);
    }
    return MakeVariant(static_cast<std::int32_t>(host_interface::VariantTypeCode::Color), color,
                       machine);
}

// Parts of text ----------------------------------------------------------------------------------

/// How a text is cut: into the characters of its encoding, or into bytes.
enum class Unit : std::uint8_t { Character, Byte };

/// The bytes of a text and its units in it.
class Units {
public:
    Units(const Value& text, Unit unit, const Machine& machine)
        : bytes_(machine.host().Bytes(text.text())),
          encoding_(machine.host().Encoding(text.text())),
          bounds_(unit == Unit::Byte ? std::vector<std::size_t>{}
                                     : CharacterBounds(bytes_, encoding_)) {}

    std::size_t count() const { return bounds_.empty() ? bytes_.size() : bounds_.size() - 1; }

    /// `length` units from the one with that index, as far as they are there. Negative numbers
    /// count as 0.
    Value Cut(std::int64_t start, std::int64_t length, const Machine& machine) const {
        const auto end = static_cast<std::int64_t>(count());
        const auto first = std::clamp<std::int64_t>(start, 0, end);
        const auto last = first + std::clamp<std::int64_t>(length, 0, end - first);
        const auto from = ByteOffset(first);
        return machine.MakeText(std::string_view(bytes_).substr(from, ByteOffset(last) - from),
                                encoding_);
    }

private:
    std::size_t ByteOffset(std::int64_t index) const {
        const auto unit = static_cast<std::size_t>(index);
        return bounds_.empty() ? unit : bounds_[unit];
    }

    std::string bytes_;
    HostTextEncoding encoding_;
    std::vector<std::size_t> bounds_;
};

template <Unit By>
Value Length(const Arguments& arguments, const Machine& machine) {
    return Value::Of(Units(arguments[0], By, machine).count());
}

template <Unit By>
Value Left(const Arguments& arguments, const Machine& machine) {
    return Units(arguments[0], By, machine).Cut(0, arguments[1].Get<Integer>(), machine);
}

template <Unit By>
Value Right(const Arguments& arguments, const Machine& machine) {
    const Units units(arguments[0], By, machine);
    const auto length = std::max<std::int64_t>(arguments[1].Get<Integer>(), 0);
    return units.Cut(static_cast<std::int64_t>(units.count()) - length, length, machine);
}

/// The first unit has the number 1.
template <Unit By>
Value Middle(const Arguments& arguments, const Machine& machine) {
    const Units units(arguments[0], By, machine);
    const std::int64_t start = std::max<Integer>(arguments[1].Get<Integer>(), 1);
    const std::int64_t length = arguments[2].Get<Integer>();
    return units.Cut(start - 1, length, machine);
}

/// The first character has the index 0.
Value MiddleFrom(const Arguments& arguments, const Machine& machine) {
    const auto start = std::max<std::int64_t>(arguments[1].Get<std::int32_t>(), 0);
    return Units(arguments[0], Unit::Character, machine)
        .Cut(start, arguments[2].Get<std::int32_t>(), machine);
}

// Characters and encodings -----------------------------------------------------------------------

Value Chr(const Arguments& arguments, const Machine& machine) {
    const auto codePoint = arguments[0].Get<Integer>();
    return machine.MakeText(EncodeUtf8(static_cast<char32_t>(codePoint)));
}

Value ChrByte(const Arguments& arguments, const Machine& machine) {
    const auto byte = static_cast<char>(arguments[0].Get<Integer>());
    return machine.MakeText(std::string_view(&byte, 1), HostTextEncoding::Unknown);
}

Value Asc(const Arguments& arguments, const Machine& machine) {
    const auto text = machine.host().Utf8(arguments[0].text());
    if (text.empty()) {
        return Value::Of(0);
    }
    const auto firstByte = static_cast<unsigned char>(text.front());
    const auto character = DecodeUtf8(text, 0).value_or(DecodedCharacter{firstByte, 1});
    return Value::Of(character.codePoint);
}

Value AscByte(const Arguments& arguments, const Machine& machine) {
    const auto bytes = machine.host().Bytes(arguments[0].text());
    return Value::Of(bytes.empty() ? 0 : static_cast<unsigned char>(bytes.front()));
}

HostTextEncoding EncodingIn(const Value& value) {
    return static_cast<HostTextEncoding>(value.Get<std::uint32_t>());
}

Value ConvertEncoding(const Arguments& arguments, const Machine& machine) {
    if (arguments[0].text() == nullptr) {
        return arguments[0];
    }
    auto text = Value::Adopt(machine.host().Convert(arguments[0].text(), EncodingIn(arguments[1])));
    if (text.text() == nullptr) {
        machine.Raise("RuntimeException", "The text cannot be converted to that encoding.");
    }
    return text;
}

Value DefineEncoding(const Arguments& arguments, const Machine& machine) {
    return machine.MakeText(machine.host().Bytes(arguments[0].text()), EncodingIn(arguments[1]));
}

Value EncodingOf(const Arguments& arguments, const Machine& machine) {
    const auto encoding = machine.host().Encoding(arguments[0].text());
    return Value::Of(static_cast<std::uint32_t>(encoding));
}

/// The code of a base encoding in a format, whether anybody knows it or not.
Value GetTextEncoding(const Arguments& arguments, const Machine& /*machine*/) {
    const auto base = arguments[0].Get<std::uint32_t>() & 0xFFFFU;
    const auto variant = arguments[1].Get<std::uint32_t>() & 0x3FFU;
    const auto format = arguments[2].Get<std::uint32_t>() & 0x3FU;
    return Value::Of(base | variant << 16U | format << 26U);
}

constexpr auto Rows = std::to_array<BuiltInRow>({
    {"Str(value As Int32) As String", TextOfNumber<std::int32_t>},
    {"Str(value As UInt32) As String", TextOfNumber<std::uint32_t>},
    {"Str(value As Int64) As String", TextOfNumber<std::int64_t>},
    {"Str(value As UInt64) As String", TextOfNumber<std::uint64_t>},
    {"Str(value As Single) As String", TextOfNumber<float>},
    {"Str(value As Double) As String", TextOfNumber<double>},
    {"Str(value As Currency) As String", TextOfNumber<CurrencyAmount>},
    {"Str(value As Int8) As String", TextOfNumber<std::int8_t>},
    {"Str(value As UInt8) As String", TextOfNumber<std::uint8_t>},
    {"Str(value As Int16) As String", TextOfNumber<std::int16_t>},
    {"Str(value As UInt16) As String", TextOfNumber<std::uint16_t>},
    {"Str(value As Double, pattern As String) As String", Formatted},
    {"Format(value As Double, pattern As String) As String", Formatted},
    {"Str(value As Boolean) As String", TextOfBoolean},
    {"Str(value As Variant) As String", Unboxed<Kind::Text>},
    {"VarType(value As Variant) As Integer", VarType},
    {"VariantOfType(typeCode As Integer, value As Variant) As Variant", VariantOfType},
    {"RGB(red As Integer, green As Integer, blue As Integer) As Variant", MakeColor},
    {"Val(text As String) As Double", Val},
    {"CStr(value As Variant) As String", Unboxed<Kind::Text>},
    {"CDbl(value As Variant) As Double", Unboxed<Kind::Double>},
    {"CLong(value As Variant) As Int64", Unboxed<Kind::Int64>},
    {"Hex(value As Int32) As String", Digits<std::uint32_t, 16>},
    {"Hex(value As UInt32) As String", Digits<std::uint32_t, 16>},
    {"Hex(value As Int64) As String", Digits<std::uint64_t, 16>},
    {"Hex(value As UInt64) As String", Digits<std::uint64_t, 16>},
    {"Hex(value As Double) As String", DigitsOfReal<Kind::Double, 16>},
    {"Hex(value As Currency) As String", DigitsOfReal<Kind::Currency, 16>},
    {"Hex(value As Variant) As String", DigitsOfVariant<16>},
    {"Oct(value As Int32) As String", Digits<std::uint32_t, 8>},
    {"Oct(value As UInt32) As String", Digits<std::uint32_t, 8>},
    {"Oct(value As Int64) As String", Digits<std::uint64_t, 8>},
    {"Oct(value As UInt64) As String", Digits<std::uint64_t, 8>},
    {"Oct(value As Double) As String", DigitsOfReal<Kind::Double, 8>},
    {"Oct(value As Currency) As String", DigitsOfReal<Kind::Currency, 8>},
    {"Oct(value As Variant) As String", DigitsOfVariant<8>},
    {"Bin(value As Int32) As String", Digits<std::uint32_t, 2>},
    {"Bin(value As UInt32) As String", Digits<std::uint32_t, 2>},
    {"Bin(value As Int64) As String", Digits<std::uint64_t, 2>},
    {"Bin(value As UInt64) As String", Digits<std::uint64_t, 2>},
    {"Bin(value As Double) As String", DigitsOfReal<Kind::Double, 2>},
    {"Bin(value As Currency) As String", DigitsOfReal<Kind::Currency, 2>},
    {"Bin(value As Variant) As String", DigitsOfVariant<2>},
    {"Len(text As String) As Integer", Length<Unit::Character>},
    {"LenB(text As String) As Integer", Length<Unit::Byte>},
    {"Left(text As String, length As Integer) As String", Left<Unit::Character>},
    {"LeftB(text As String, length As Integer) As String", Left<Unit::Byte>},
    {"Right(text As String, length As Integer) As String", Right<Unit::Character>},
    {"RightB(text As String, length As Integer) As String", Right<Unit::Byte>},
    {"Mid(text As String, start As Integer, length As Integer = 2147483647) As String",
     Middle<Unit::Character>},
    {"MidB(text As String, start As Integer, length As Integer = 2147483647) As String",
     Middle<Unit::Byte>},
    {"Middle(text As String, index As Integer, length As Integer = 2147483647) As String",
     MiddleFrom},
    {"Chr(codePoint As Integer) As String", Chr},
    {"Chr(codePoint As Integer) As String", Chr, "String"},
    {"ChrB(byte As Integer) As String", ChrByte},
    {"Asc(text As String) As Integer", Asc},
    {"ChrByte(byte As Integer) As String", ChrByte, "String"},
    {"AscB(text As String) As Integer", AscByte},
    {"AscByte(text As String) As Integer", AscByte},
    {"ConvertEncoding(text As String, encoding As TextEncoding) As String", ConvertEncoding},
    {"DefineEncoding(text As String, encoding As TextEncoding) As String", DefineEncoding},
    {"Encoding(text As String) As TextEncoding", EncodingOf},
    {"GetTextEncoding(base As Integer, variant As Integer = 0, format As Integer = 0)"
     " As TextEncoding",
     GetTextEncoding},
});

/// A function's newer name, which programs use as a member: `count.ToString`.
struct OtherName {
    std::string_view name;
    std::string_view newName;
};

constexpr auto OtherNames = std::to_array<OtherName>({
    {"Str", "ToString"},
    {"Len", "Length"},
    {"LenB", "Bytes"},
    {"Hex", "ToHex"},
    {"Oct", "ToOctal"},
    {"Bin", "ToBinary"},
    {"LTrim", "TrimLeft"},
    {"RTrim", "TrimRight"},
});

struct EncodingName {
    std::string_view name;
    HostTextEncoding encoding;
};

constexpr auto EncodingNames = std::to_array<EncodingName>({
    {"ASCII", HostTextEncoding::Ascii},
    {"UTF8", HostTextEncoding::Utf8},
    {"UTF16", HostTextEncoding::Utf16},
    {"UTF16BE", HostTextEncoding::Utf16BigEndian},
    {"UTF16LE", HostTextEncoding::Utf16LittleEndian},
    {"UTF32", HostTextEncoding::Utf32},
    {"UTF32BE", HostTextEncoding::Utf32BigEndian},
    {"UTF32LE", HostTextEncoding::Utf32LittleEndian},
    {"ISOLatin1", HostTextEncoding::Latin1},
    {"WindowsANSI", HostTextEncoding::WindowsAnsi},
    {"WindowsLatin1", HostTextEncoding::WindowsAnsi},
    {"MacRoman", HostTextEncoding::MacRoman},
});

}  // namespace

std::vector<BuiltIn> MakeBuiltIns(const TypeTable& types) {
    std::vector<BuiltIn> builtIns;
    for (const auto& table : {std::span<const BuiltInRow>(Rows), TextFunctions(), MathFunctions(),
                              ApplicationFunctions()}) {
        for (const auto& row : table) {
            auto signature = types.Resolve(ParseDeclaration(row.declaration), row.declaration);
            if (row.module != nullptr) {
                signature.name = std::string(row.module) + "." + signature.name;
            }
            builtIns.push_back({signature, row.function});
            for (const auto& other : OtherNames) {
                if (SameName(other.name, signature.name)) {
                    signature.name = other.newName;
                    builtIns.push_back({signature, row.function});
                    break;
                }
            }
        }
    }
    for (auto& builtIn : builtIns) {
        const auto& signature = builtIn.signature;
        builtIn.isForVariantsOnly =
            !signature.parameters.empty() &&
            signature.parameters.front().type.kind == Kind::Variant &&
            std::ranges::count_if(builtIns, [&signature](const BuiltIn& other) {
                return SameName(other.signature.name, signature.name);
            }) > 1;
    }
    return builtIns;
}

BuiltInFunction FindTextFunction(Kind kind) {
    if (kind == Kind::Text) {
        return TextItself;
    }
    if (kind == Kind::Boolean) {
        return TextOfBoolean;
    }
    if (!IsNumber(kind)) {
        return nullptr;
    }
    return WithNumberType(
        kind, []<typename T>(std::type_identity<T>) -> BuiltInFunction { return TextOfNumber<T>; });
}

std::optional<HostTextEncoding> FindEncoding(std::string_view name) {
    const auto* found = std::ranges::find_if(
        EncodingNames, [name](const EncodingName& row) { return SameName(row.name, name); });
    return found == EncodingNames.end() ? std::nullopt : std::optional(found->encoding);
}

}  // namespace standin::language
