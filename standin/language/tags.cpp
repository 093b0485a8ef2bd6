#include "standin/language/tags.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <span>
#include <utility>

#include "standin/language/constants.hpp"
#include "standin/language/names.hpp"
#include "standin/language/parser.hpp"

namespace standin::language {
namespace {

constexpr std::string_view Blanks = " \t";

std::string_view Trim(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

struct Foreign {
    std::string_view tag;
    std::string_view name;
};

constexpr auto ForeignItems = std::to_array<Foreign>({
    {"DesktopWindow", "Windows"},
    {"Interface", "Interfaces"},
    {"IOSView", "Views"},
    {"MobileScreen", "Screens"},
    {"Report", "Reports"},
    {"Toolbar", "Toolbars"},
    {"WebPage", "Web pages"},
    {"WebView", "Web pages"},
    {"Window", "Windows"},
});

constexpr auto ForeignMembers = std::to_array<Foreign>({
    {"ComputedProperty", "Computed properties"},
    {"DelegateDeclaration", "Delegates"},
    {"Events", "Events of controls"},
    {"ExternalMethod", "Declares"},
    {"Hook", "Event definitions"},
    {"MenuHandler", "Menu handlers"},
    {"Structure", "Structures"},
    {"Using", "\"Using\" clauses"},
});

void Refuse(const Token& token, std::span<const Foreign> rows) {
    const Tag tag(token);
    for (const auto& row : rows) {
        if (tag.Is(row.tag)) {
            throw ProgramError(token.at, std::string(row.name) + " are not supported here");
        }
    }
}

int DigitOf(char character) {
    constexpr std::string_view Digits = "0123456789abcdef";
    const auto found = Digits.find(FoldCase(character));
    return found == std::string_view::npos ? -1 : static_cast<int>(found);
}

/// A default as it is meant: `\x3D` and the like are characters, `\"` begins a text.
std::string Unescaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isCode = text[i] == '\\' && i + 3 < text.size() && text[i + 1] == 'x' &&
                            DigitOf(text[i + 2]) >= 0 && DigitOf(text[i + 3]) >= 0;
        if (isCode) {
            result += static_cast<char>(DigitOf(text[i + 2]) * 16 + DigitOf(text[i + 3]));
            i += 3;
        } else if (text[i] == '\\' && i + 1 < text.size()) {
            result += text[++i];
        } else {
            result += text[i];
        }
    }
    return result;
}

}  // namespace

Tag::Tag(const Token& token) : text_(Trim(token.text)), at_(token.at) {}

bool Tag::Is(std::string_view name) const {
    return SameName(text_.substr(0, text_.find_first_of(", \t")), name);
}

std::optional<std::string_view> Tag::Text(std::string_view key) const {
    for (auto rest = text_; !rest.empty();) {
        const auto comma = rest.find(',');
        if (comma == std::string_view::npos) {
            break;
        }
        rest = Trim(rest.substr(comma + 1));
        const auto equals = rest.find('=');
        if (equals != std::string_view::npos && SameName(Trim(rest.substr(0, equals)), key)) {
            const auto value = rest.substr(equals + 1);
            return Trim(value.substr(0, value.find(',')));
        }
    }
    return std::nullopt;
}

std::optional<std::uint64_t> Tag::Number(std::string_view key) const {
    auto text = Text(key);
    if (!text) {
        return std::nullopt;
    }
    const bool isHexadecimal = SameName(text->substr(0, 2), "&h");
    const auto digits = text->substr(isHexadecimal ? 2 : 0);
    std::uint64_t number = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number,
                                        isHexadecimal ? 16 : 10);
    return result.ec == std::errc{} ? std::optional(number) : std::nullopt;
}

syntax::Constant Tag::ReadConstant() const {
    constexpr std::string_view Beginning = "Default = \\\"";
    constexpr std::string_view Ending = "\", Scope";
    const auto name = Text("Name");
    const auto first = text_.find(Beginning);
    const auto last = text_.rfind(Ending);
    if (!name || name->empty() || first == std::string_view::npos ||
        last == std::string_view::npos || last < first + Beginning.size()) {
        throw ProgramError(at_, "this tag declares no constant with a name and a default");
    }
    const auto start = first + Beginning.size();
    auto value = Unescaped(text_.substr(start, last - start));
    const auto scope = Text("Scope").value_or("");
    syntax::Constant constant{std::string(*name), at_, value, syntax::Visibility::Global};
    if (SameName(scope, "Private")) {
        constant.visibility = syntax::Visibility::Private;
    } else if (SameName(scope, "Protected")) {
        constant.visibility = syntax::Visibility::Qualified;
    }
    if (!SameName(Text("Type").value_or("String"), "String")) {
        try {
            constant.value = Evaluate(*ParseExpression(value), Constants());
        } catch (const ProgramError&) {
            throw ProgramError(at_, Quoted(value) + " is no value for a constant");
        }
    }
    return constant;
}

void RefuseForeignItem(const Token& token) {
    Refuse(token, ForeignItems);
}

void RefuseForeignMember(const Token& token) {
    Refuse(token, ForeignMembers);
}

}  // namespace standin::language
