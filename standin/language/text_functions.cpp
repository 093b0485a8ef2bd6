// Functions of the language that search and take apart text. They work on UTF-8 and return it.
#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "standin/language/array_members.hpp"
#include "standin/language/builtins.hpp"
#include "standin/language/unicode.hpp"
#include "standin/runtime/memory_budget.hpp"

namespace standin::language {
namespace {

using Arguments = std::vector<Value>;

constexpr std::string_view Blanks = " \t\r\n";

std::string Utf8Of(const Value& text, const Machine& machine) {
    return machine.host().Utf8(text.text());
}

/// The offset in bytes behind that many characters, at most the end.
std::size_t OffsetBehind(std::string_view text, Integer characters) {
    std::size_t offset = 0;
    for (; characters > 0 && offset < text.size(); --characters) {
        const auto character = DecodeUtf8(text, offset);
        offset += character ? character->size : 1;
    }
    return offset;
}

// Letters and blanks -----------------------------------------------------------------------------

constexpr char RaiseCase(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
}

template <std::string (*Change)(std::string_view)>
Value ChangeCase(const Arguments& arguments, const Machine& machine) {
    return machine.MakeText(Change(Utf8Of(arguments[0], machine)));
}

/// The first letter of each word is large, the others are small.
Value MakeTitle(const Arguments& arguments, const Machine& machine) {
    const auto text = Utf8Of(arguments[0], machine);
    const auto large = Uppercase(text);
    auto title = Lowercase(text);
    bool isFirst = true;
    for (std::size_t offset = 0; offset < text.size();) {
        const auto size = OffsetBehind(std::string_view(text).substr(offset), 1);
        if (isFirst) {
            title.replace(offset, size, large, offset, size);
        }
        isFirst = Blanks.find(text[offset]) != std::string_view::npos;
        offset += size;
    }
    return machine.MakeText(title);
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(Blanks), text.size()));
}

std::string_view WithoutTrailingBlanks(std::string_view text) {
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

std::string_view WithoutBlanks(std::string_view text) {
    return WithoutLeadingBlanks(WithoutTrailingBlanks(text));
}

template <std::string_view (*Trimmed)(std::string_view)>
Value TrimText(const Arguments& arguments, const Machine& machine) {
    return machine.MakeText(Trimmed(Utf8Of(arguments[0], machine)));
}

// Searching --------------------------------------------------------------------------------------

Integer CharactersIn(std::string_view text) {
    Integer count = 0;
    for (std::size_t offset = 0; offset < text.size(); ++count) {
        offset += OffsetBehind(text.substr(offset), 1);
    }
    return count;
}

/// The number of the first character of `wanted`, counted from 1; 0 without it.
Integer NumberOf(std::string_view text, std::string_view wanted, Integer start) {
    const auto found = Lowercase(text).find(Lowercase(wanted), OffsetBehind(text, start - 1));
    return found == std::string_view::npos ? 0 : CharactersIn(text.substr(0, found)) + 1;
}

Value InStr(const Arguments& arguments, const Machine& machine) {
    return Value::Of(NumberOf(Utf8Of(arguments[0], machine), Utf8Of(arguments[1], machine), 1));
}

Value InStrFrom(const Arguments& arguments, const Machine& machine) {
    return Value::Of(NumberOf(Utf8Of(arguments[1], machine), Utf8Of(arguments[2], machine),
                              arguments[0].Get<Integer>()));
}

Value IndexOf(const Arguments& arguments, const Machine& machine) {
    return Value::Of(NumberOf(Utf8Of(arguments[0], machine), Utf8Of(arguments[1], machine), 1) - 1);
}

Value IndexOfFrom(const Arguments& arguments, const Machine& machine) {
    const auto before = std::max<Integer>(arguments[1].Get<Integer>(), 0);
    const Integer first = std::min(before, std::numeric_limits<Integer>::max() - 1) + 1;
    return Value::Of(NumberOf(Utf8Of(arguments[0], machine), Utf8Of(arguments[2], machine), first) -
                     1);
}

Value Contains(const Arguments& arguments, const Machine& machine) {
    return Value::Of(NumberOf(Utf8Of(arguments[0], machine), Utf8Of(arguments[1], machine), 1) > 0);
}

Value BeginsWith(const Arguments& arguments, const Machine& machine) {
    const auto text = Lowercase(Utf8Of(arguments[0], machine));
    return Value::Of(text.starts_with(Lowercase(Utf8Of(arguments[1], machine))));
}

Value EndsWith(const Arguments& arguments, const Machine& machine) {
    const auto text = Lowercase(Utf8Of(arguments[0], machine));
    return Value::Of(text.ends_with(Lowercase(Utf8Of(arguments[1], machine))));
}

// Replacing, and fields between delimiters -------------------------------------------------------

enum class Times : std::uint8_t { Once, Always };

template <Times How>
Value Replace(const Arguments& arguments, const Machine& machine) {
    const auto text = Utf8Of(arguments[0], machine);
    // Both are as long as before.
    const auto small = Lowercase(text);
    const auto wanted = Lowercase(Utf8Of(arguments[1], machine));
    const auto substitute = Utf8Of(arguments[2], machine);
    std::string result;
    std::size_t copied = 0;
    while (!wanted.empty()) {
        const auto found = small.find(wanted, copied);
        if (found == std::string::npos) {
            break;
        }
        MemoryBudget::Require(result.size() + substitute.size());
        result += text.substr(copied, found - copied) + substitute;
        copied = found + wanted.size();
        if (How == Times::Once) {
            break;
        }
    }
    return machine.MakeText(result + text.substr(copied));
}

using FieldList = std::vector<std::string_view, BudgetAllocator<std::string_view>>;

/// What stands between the delimiters; each character when there is no delimiter, and nothing in an
/// empty text.
FieldList Fields(std::string_view text, std::string_view delimiter) {
    FieldList fields;
    if (delimiter.empty()) {
        while (!text.empty()) {
            const auto size = OffsetBehind(text, 1);
            fields.push_back(text.substr(0, size));
            text.remove_prefix(size);
        }
        return fields;
    }
    const auto small = Lowercase(text);
    const auto smallDelimiter = Lowercase(delimiter);
    std::size_t start = text.empty() ? std::string_view::npos : 0;
    while (start != std::string_view::npos) {
        const auto end = small.find(smallDelimiter, start);
        fields.push_back(text.substr(start, end - start));
        start = end == std::string_view::npos ? end : end + delimiter.size();
    }
    return fields;
}

Value MakeArray(const FieldList& fields, const Machine& machine) {
    auto parts = Value::DefaultOf(Type::ArrayOf({Kind::Text}));
    for (const auto field : fields) {
        parts.array()->items.push_back(machine.MakeText(field));
    }
    return parts;
}

Value Split(const Arguments& arguments, const Machine& machine) {
    const auto text = Utf8Of(arguments[0], machine);
    return MakeArray(Fields(text, Utf8Of(arguments[1], machine)), machine);
}

Value Characters(const Arguments& arguments, const Machine& machine) {
    const auto text = Utf8Of(arguments[0], machine);
    return MakeArray(Fields(text, {}), machine);
}

Value JoinParts(const Arguments& arguments, const Machine& machine) {
    const auto& parts = RequireArray(arguments[0], machine).items;
    const auto delimiter = Utf8Of(arguments[1], machine);
    std::string joined;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        MemoryBudget::Require(joined.size() + delimiter.size());
        joined += (i == 0 ? "" : delimiter) + Utf8Of(parts[i], machine);
    }
    return machine.MakeText(joined);
}

Value CountFields(const Arguments& arguments, const Machine& machine) {
    const auto text = Utf8Of(arguments[0], machine);
    return Value::Of(Fields(text, Utf8Of(arguments[1], machine)).size());
}

/// The field with that number, counted from 1; empty where there is none.
Value NthField(const Arguments& arguments, const Machine& machine) {
    const auto text = Utf8Of(arguments[0], machine);
    const auto fields = Fields(text, Utf8Of(arguments[1], machine));
    const auto number = arguments[2].Get<Integer>();
    const bool isThere = number >= 1 && static_cast<std::size_t>(number) <= fields.size();
    return machine.MakeText(isThere ? fields[static_cast<std::size_t>(number) - 1]
                                    : std::string_view{});
}

/// -1, 0 or 1 for the order of the bytes of two texts; the host's other modes are refused.
Value CompareBytes(const Arguments& arguments, const Machine& machine) {
    if (arguments[2].Get<Integer>() != 0) {
        machine.Raise("UnsupportedOperationException", "StrComp compares by bytes only, mode 0.");
    }
    const int order = machine.host()
                          .Bytes(arguments[0].text())
                          .compare(machine.host().Bytes(arguments[1].text()));
    return Value::Of((order > 0) - (order < 0));
}

// Bytes as text ----------------------------------------------------------------------------------

constexpr std::string_view HexDigits = "0123456789ABCDEF";
constexpr std::string_view Base64Digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char Padding = '=';

std::string BytesOf(const Value& text, const Machine& machine) {
    return machine.host().Bytes(text.text());
}

/// Two digits a byte, with a space between the bytes where that is wanted.
Value EncodeHex(const Arguments& arguments, const Machine& machine) {
    const auto bytes = BytesOf(arguments[0], machine);
    const std::string_view separator = arguments[1].IsTrue() ? " " : "";
    MemoryBudget::Require(bytes.size() * 3);
    std::string text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        text += text.empty() ? "" : separator;
        text += HexDigits[code >> 4U];
        text += HexDigits[code & 0xFU];
    }
    return machine.MakeText(text);
}

/// The bytes that digits of so many bits each tell one after the other. All other characters are
/// passed over, and so are bits at the end that make up no byte.
template <unsigned Bits>
std::string Decoded(std::string_view text, std::string_view digits, bool foldsCase) {
    std::string bytes;
    std::uint32_t pending = 0;
    unsigned count = 0;
    for (const char character : text) {
        const auto digit = digits.find(foldsCase ? RaiseCase(character) : character);
        if (digit == std::string_view::npos) {
            continue;
        }
        pending = pending << Bits | static_cast<std::uint32_t>(digit);
        count += Bits;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(pending >> count & 0xFFU);
        }
    }
    return bytes;
}

Value DecodeHex(const Arguments& arguments, const Machine& machine) {
    return machine.MakeText(Decoded<4>(BytesOf(arguments[0], machine), HexDigits, true),
                            HostTextEncoding::Unknown);
}

/// Four digits for three bytes, in lines of a length; in one line where that is 0.
Value EncodeBase64(const Arguments& arguments, const Machine& machine) {
    const auto bytes = BytesOf(arguments[0], machine);
    const auto lineLength =
        static_cast<std::size_t>(std::max<Integer>(arguments[1].Get<Integer>(), 0));
    MemoryBudget::Require(bytes.size() * 4);
    std::string text;
    std::size_t lineStart = 0;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        std::uint32_t group = 0;
        const auto size = std::min<std::size_t>(bytes.size() - i, 3);
        for (std::size_t j = 0; j < 3; ++j) {
            group = group << 8U | (j < size ? static_cast<unsigned char>(bytes[i + j]) : 0U);
        }
        if (lineLength > 0 && text.size() - lineStart >= lineLength) {
            text += "\r\n";
            lineStart = text.size();
        }
        for (std::size_t j = 0; j < 4; ++j) {
            text += j <= size ? Base64Digits[group >> (18U - 6U * j) & 0x3FU] : Padding;
        }
    }
    return machine.MakeText(text);
}

Value DecodeBase64(const Arguments& arguments, const Machine& machine) {
    const auto text = BytesOf(arguments[0], machine);
    const auto encoding = static_cast<HostTextEncoding>(arguments[1].Get<std::uint32_t>());
    return machine.MakeText(
        Decoded<6>(std::string_view(text).substr(0, text.find(Padding)), Base64Digits, false),
        encoding);
}

constexpr auto Functions = std::to_array<BuiltInRow>({
    {"Uppercase(text As String) As String", ChangeCase<Uppercase>},
    {"Lowercase(text As String) As String", ChangeCase<Lowercase>},
    {"Titlecase(text As String) As String", MakeTitle},
    {"Trim(text As String) As String", TrimText<WithoutBlanks>},
    {"LTrim(text As String) As String", TrimText<WithoutLeadingBlanks>},
    {"RTrim(text As String) As String", TrimText<WithoutTrailingBlanks>},
    {"InStr(text As String, find As String) As Integer", InStr},
    {"InStr(start As Integer, text As String, find As String) As Integer", InStrFrom},
    {"IndexOf(text As String, find As String) As Integer", IndexOf},
    {"IndexOf(text As String, start As Integer, find As String) As Integer", IndexOfFrom},
    {"Contains(text As String, find As String) As Boolean", Contains},
    {"BeginsWith(text As String, find As String) As Boolean", BeginsWith},
    {"EndsWith(text As String, find As String) As Boolean", EndsWith},
    {"Replace(text As String, find As String, substitute As String) As String",
     Replace<Times::Once>},
    {"ReplaceAll(text As String, find As String, substitute As String) As String",
     Replace<Times::Always>},
    {"Split(text As String, delimiter As String = \" \") As String()", Split},
    {"ToArray(text As String, delimiter As String = \",\") As String()", Split},
    {"FromArray(parts() As String, delimiter As String = \"\") As String", JoinParts, "String"},
    {"Join(parts() As String, delimiter As String = \" \") As String", JoinParts},
    {"Characters(text As String) As String()", Characters},
    {"EncodeHex(bytes As String, hasSpaces As Boolean = False) As String", EncodeHex},
    {"DecodeHex(text As String) As String", DecodeHex},
    {"EncodeBase64(bytes As String, lineLength As Integer = 76) As String", EncodeBase64},
    {"DecodeBase64(text As String, encoding As TextEncoding = Nil) As String", DecodeBase64},
    {"CountFields(text As String, delimiter As String) As Integer", CountFields},
    {"StrComp(left As String, right As String, mode As Integer) As Integer", CompareBytes},
    {"NthField(text As String, delimiter As String, number As Integer) As String", NthField},
});

}  // namespace

std::span<const BuiltInRow> TextFunctions() {
    return Functions;
}

}  // namespace standin::language
