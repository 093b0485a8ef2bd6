#include "standin/language/tags.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

#include "standin/language/constants.hpp"
#include "standin/language/names.hpp"
#include "standin/language/parser.hpp"
#include "standin/language/suggestions.hpp"

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

constexpr std::string_view EndWord = "End";

/// The tags that are supported. The lexer steps past all that stands in a Note and a ViewBehavior,
/// their ends included.
constexpr std::string_view OwnTags[] = {"Class",    "Module",   "Method", "Event",
                                        "Property", "Constant", "Enum"};
/// Parts of tags that are not.
constexpr std::string_view ForeignParts[] = {"Getter", "Setter", "WindowCode"};
/// Tags without an end of their own.
constexpr std::string_view SingleTags[] = {"Note", "ViewBehavior", "Instance"};

/// The names of all tags that have an end.
std::vector<std::string_view> ClosedTags() {
    std::vector<std::string_view> names(std::begin(OwnTags), std::end(OwnTags));
    names.insert(names.end(), std::begin(ForeignParts), std::end(ForeignParts));
    for (const auto rows :
         {std::span<const Foreign>(ForeignItems), std::span<const Foreign>(ForeignMembers)}) {
        for (const auto& row : rows) {
            names.push_back(row.tag);
        }
    }
    return names;
}

bool IsAmong(std::span<const std::string_view> names, std::string_view wanted) {
    return std::ranges::any_of(names,
                               [wanted](std::string_view name) { return SameName(name, wanted); });
}

/// How messages show a tag.
std::string Shown(std::string_view name) {
    return Quoted("#tag " + std::string(name));
}

/// Pairs the tags of a file with their ends.
class TagChecker {
public:
    explicit TagChecker(ErrorList& errors) : errors_(errors), names_(ClosedTags()) {}

    void Take(const Tag& tag) {
        if (IsEnd(tag)) {
            TakeEnd(tag);
        } else if (IsAmong(names_, tag.name())) {
            open_.push_back(tag);
        } else if (!IsAmong(SingleTags, tag.name())) {
            errors_.Add(ProgramError(
                tag.at(), "there is no " + Shown(tag.name()) + SuggestionFor(tag.name(), names_)));
        }
    }
    void Finish() {
        while (!open_.empty()) {
            DropUnclosed();
        }
    }

private:
    static bool IsEnd(const Tag& tag) {
        return SameName(tag.name().substr(0, EndWord.size()), EndWord);
    }
    void TakeEnd(const Tag& end) {
        const auto name = end.name().substr(EndWord.size());
        if (!IsAmong(names_, name)) {
            errors_.Add(ProgramError(
                end.at(), "there is no " + Shown(end.name()) +
                              (open_.empty() ? ""
                                             : "; " + Shown(open_.back().name()) + " ends with " +
                                                   EndOf(open_.back()))));
            if (!open_.empty()) {
                open_.pop_back();
            }
            return;
        }
        const bool isOpen =
            std::ranges::any_of(open_, [&end](const Tag& tag) { return tag.IsEndedBy(end); });
        if (!isOpen) {
            errors_.Add(ProgramError(end.at(), "there is no " + Shown(name) + " before this"));
            return;
        }
        while (!open_.back().IsEndedBy(end)) {
            DropUnclosed();
        }
        open_.pop_back();
    }
    void DropUnclosed() {
        errors_.Add(ProgramError(open_.back().at(), "this " + Shown(open_.back().name()) +
                                                        " has no " + EndOf(open_.back())));
        open_.pop_back();
    }
    static std::string EndOf(const Tag& tag) {
        return Shown(std::string(EndWord) + std::string(tag.name()));
    }

    ErrorList& errors_;
    std::vector<std::string_view> names_;
    std::vector<Tag> open_;
};

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
    return SameName(this->name(), name);
}

bool Tag::IsEndedBy(const Tag& other) const {
    return SameName(std::string(EndWord) + std::string(name()), other.name());
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

std::optional<std::string> Tag::ReadInstance() const {
    constexpr std::string_view Beginning = "\\\"";
    const auto language = Text("Language").value_or("Default");
    if (!SameName(language, "Default")) {
        throw ProgramError(at_, "Values of constants for one language, here " + Quoted(language) +
                                    ", are not supported here");
    }
    const auto first = text_.find(Beginning);
    if (!Text("Platform") || !Text("Definition") || first == std::string_view::npos ||
        text_.size() < first + Beginning.size() + 1 || !text_.ends_with('"')) {
        throw ProgramError(at_, "this tag has no platform with a definition");
    }
    if (!SameName(*Text("Platform"), IsWindows ? "Windows" : "Linux")) {
        return std::nullopt;
    }
    const auto start = first + Beginning.size();
    return Unescaped(text_.substr(start, text_.size() - 1 - start));
}

syntax::Constant Tag::ReadConstant(std::span<const Tag> instances) const {
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
    for (const auto& instance : instances) {
        value = instance.ReadInstance().value_or(value);
    }
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

void CheckTags(const TokenCursor& cursor, ErrorList& errors) {
    TagChecker checker(errors);
    auto previous = TokenKind::EndOfLine;
    for (std::size_t mark = 0; cursor.TokenAt(mark).kind != TokenKind::EndOfText; ++mark) {
        const auto& token = cursor.TokenAt(mark);
        if (token.kind == TokenKind::HashTag) {
            checker.Take(Tag(token));
        } else if (token.kind == TokenKind::Mistake && previous == TokenKind::HashTag) {
            // What the tag swallows holds the ends of the others.
            errors.Add(ProgramError(token.at, token.text));
            return;
        }
        previous = token.kind;
    }
    checker.Finish();
}

void RefuseForeignItem(const TokenCursor& cursor) {
    for (std::size_t mark = 0; cursor.TokenAt(mark).kind != TokenKind::EndOfText; ++mark) {
        if (cursor.TokenAt(mark).kind == TokenKind::HashTag) {
            Refuse(cursor.TokenAt(mark), ForeignItems);
        }
    }
}

void RefuseForeignMember(const Token& token) {
    Refuse(token, ForeignMembers);
}

}  // namespace standin::language
