// Functions of the language that search and take apart text. They work on UTF-8 and return it.
#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "standin/language/array_members.hpp"
#include "standin/language/builtins.hpp"
#include "standin/language/names.hpp"
#include "standin/language/unicode.hpp"
#include "standin/runtime/memory_budget.hpp"

namespace standin::language {
namespace {

using Arguments = std::vector<Value>;

constexpr std::string_view Blanks = " \t\r\n";

std::string Utf8Of(const Value& text, const Machine& machine) {
    return machine.host().Utf8(text.text());
}

// Letters and blanks -----------------------------------------------------------------------------

constexpr char RaiseCase(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
}

template <char (*Change)(char)>
Value ChangeCase(const Arguments& arguments, const Machine& machine) {
    auto text = Utf8Of(arguments[0], machine);
    std::ranges::transform(text, text.begin(), Change);
    return machine.MakeText(text);
}

/// The first letter of each word is large, the others are small.
Value MakeTitle(const Arguments& arguments, const Machine& machine) {
    auto text = Utf8Of(arguments[0], machine);
    bool isFirst = true;
    for (auto& character : text) {
        character = isFirst ? RaiseCase(character) : FoldCase(character);
        isFirst = Blanks.find(character) != std::string_view::npos;
    }
    return machine.MakeText(text);
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

/// Where `wanted` begins in the text from an offset on, without regard to the case of ASCII
/// letters; npos without it.
std::size_t Find(std::string_view text, std::string_view wanted, std::size_t from) {
    const auto rest = text.substr(std::min(from, text.size()));
    const auto* const found =
        std::search(rest.begin(), rest.end(), wanted.begin(), wanted.end(),
                    [](char a, char b) { return FoldCase(a) == FoldCase(b); });
    const bool isThere = found != rest.end() || wanted.empty();
    return isThere ? from + static_cast<std::size_t>(found - rest.begin()) : std::string_view::npos;
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

Integer CharactersIn(std::string_view text) {
    Integer count = 0;
    for (std::size_t offset = 0; offset < text.size(); ++count) {
        offset += OffsetBehind(text.substr(offset), 1);
    }
    return count;
}

/// The number of the first character of `wanted`, counted from 1; 0 without it.
Integer NumberOf(std::string_view text, std::string_view wanted, Integer start) {
    const auto found = Find(text, wanted, OffsetBehind(text, start - 1));
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
    const auto before = std::max<Integer>(arguments[2].Get<Integer>(), 0);
    const Integer first = std::min(before, std::numeric_limits<Integer>::max() - 1) + 1;
    return Value::Of(NumberOf(Utf8Of(arguments[0], machine), Utf8Of(arguments[1], machine), first) -
                     1);
}

Value Contains(const Arguments& arguments, const Machine& machine) {
    return Value::Of(NumberOf(Utf8Of(arguments[0], machine), Utf8Of(arguments[1], machine), 1) > 0);
}

Value BeginsWith(const Arguments& arguments, const Machine& machine) {
    const auto text = Utf8Of(arguments[0], machine);
    const auto wanted = Utf8Of(arguments[1], machine);
    return Value::Of(SameName(std::string_view(text).substr(0, wanted.size()), wanted));
}

Value EndsWith(const Arguments& arguments, const Machine& machine) {
    const auto text = Utf8Of(arguments[0], machine);
    const auto wanted = Utf8Of(arguments[1], machine);
    const auto from = text.size() - std::min(text.size(), wanted.size());
    return Value::Of(SameName(std::string_view(text).substr(from), wanted));
}

// Replacing, and fields between delimiters -------------------------------------------------------

enum class Times : std::uint8_t { Once, Always };

template <Times How>
Value Replace(const Arguments& arguments, const Machine& machine) {
    const auto text = Utf8Of(arguments[0], machine);
    const auto wanted = Utf8Of(arguments[1], machine);
    const auto substitute = Utf8Of(arguments[2], machine);
    std::string result;
    std::size_t copied = 0;
    while (!wanted.empty()) {
        const auto found = Find(text, wanted, copied);
        if (found == std::string_view::npos) {
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
    std::size_t start = text.empty() ? std::string_view::npos : 0;
    while (start != std::string_view::npos) {
        const auto end = Find(text, delimiter, start);
        fields.push_back(text.substr(start, end - start));
        start = end == std::string_view::npos ? end : end + delimiter.size();
    }
    return fields;
}

Value Split(const Arguments& arguments, const Machine& machine) {
    const auto text = Utf8Of(arguments[0], machine);
    auto parts = Value::DefaultOf(Type::ArrayOf({Kind::Text}));
    for (const auto field : Fields(text, Utf8Of(arguments[1], machine))) {
        parts.array()->items.push_back(machine.MakeText(field));
    }
    return parts;
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

constexpr auto Functions = std::to_array<BuiltInRow>({
    {"Uppercase(text As String) As String", ChangeCase<RaiseCase>},
    {"Lowercase(text As String) As String", ChangeCase<FoldCase>},
    {"Titlecase(text As String) As String", MakeTitle},
    {"Trim(text As String) As String", TrimText<WithoutBlanks>},
    {"LTrim(text As String) As String", TrimText<WithoutLeadingBlanks>},
    {"RTrim(text As String) As String", TrimText<WithoutTrailingBlanks>},
    {"InStr(text As String, find As String) As Integer", InStr},
    {"InStr(start As Integer, text As String, find As String) As Integer", InStrFrom},
    {"IndexOf(text As String, find As String, start As Integer = 0) As Integer", IndexOf},
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
    {"CountFields(text As String, delimiter As String) As Integer", CountFields},
    {"StrComp(left As String, right As String, mode As Integer) As Integer", CompareBytes},
    {"NthField(text As String, delimiter As String, number As Integer) As String", NthField},
});

}  // namespace

std::span<const BuiltInRow> TextFunctions() {
    return Functions;
}

}  // namespace standin::language
