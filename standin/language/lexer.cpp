#include "standin/language/lexer.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <system_error>
#include <utility>

#include "standin/language/names.hpp"

namespace standin::language {
namespace {

struct Spelling {
    std::string_view text;
    TokenKind kind;
};

/// Longer punctuation stands before its own beginnings.
constexpr auto Punctuation = std::to_array<Spelling>({
    {"<>", TokenKind::NotEqual},
    {"<=", TokenKind::LessEqual},
    {">=", TokenKind::GreaterEqual},
    {"+=", TokenKind::PlusEqual},
    {"-=", TokenKind::MinusEqual},
    {"*=", TokenKind::StarEqual},
    {"/=", TokenKind::SlashEqual},
    {"<", TokenKind::Less},
    {">", TokenKind::Greater},
    {"=", TokenKind::Equal},
    {"+", TokenKind::Plus},
    {"-", TokenKind::Minus},
    {"*", TokenKind::Star},
    {"/", TokenKind::Slash},
    {"\\", TokenKind::Backslash},
    {"^", TokenKind::Caret},
    {"(", TokenKind::OpenParenthesis},
    {")", TokenKind::CloseParenthesis},
    {",", TokenKind::Comma},
    {".", TokenKind::Dot},
    {":", TokenKind::Colon},
});

constexpr auto ReservedWords = std::to_array<Spelling>({
    {"AddressOf", TokenKind::AddressOf},
    {"And", TokenKind::And},
    {"As", TokenKind::As},
    {"ByRef", TokenKind::ByRef},
    {"ByVal", TokenKind::ByVal},
    {"Call", TokenKind::Call},
    {"Case", TokenKind::Case},
    {"Catch", TokenKind::Catch},
    {"Class", TokenKind::Class},
    {"Const", TokenKind::Const},
    {"Continue", TokenKind::Continue},
    {"CType", TokenKind::CType},
    {"Dim", TokenKind::Dim},
    {"Do", TokenKind::Do},
    {"DownTo", TokenKind::DownTo},
    {"Each", TokenKind::Each},
    {"Else", TokenKind::Else},
    {"ElseIf", TokenKind::ElseIf},
    {"End", TokenKind::End},
    {"Enum", TokenKind::Enum},
    {"Exception", TokenKind::Exception},
    {"Exit", TokenKind::Exit},
    {"Extends", TokenKind::Extends},
    {"False", TokenKind::False},
    {"Finally", TokenKind::Finally},
    {"For", TokenKind::For},
    {"Function", TokenKind::Function},
    {"If", TokenKind::If},
    {"In", TokenKind::In},
    {"Is", TokenKind::Is},
    {"IsA", TokenKind::IsA},
    {"Loop", TokenKind::Loop},
    {"Mod", TokenKind::Mod},
    {"Module", TokenKind::Module},
    {"New", TokenKind::New},
    {"Next", TokenKind::Next},
    {"Nil", TokenKind::Nil},
    {"Not", TokenKind::Not},
    {"Optional", TokenKind::Optional},
    {"Or", TokenKind::Or},
    {"ParamArray", TokenKind::ParamArray},
    {"Print", TokenKind::Print},
    {"Raise", TokenKind::Raise},
    {"Redim", TokenKind::Redim},
    {"Return", TokenKind::Return},
    {"Select", TokenKind::Select},
    {"Static", TokenKind::Static},
    {"Step", TokenKind::Step},
    {"Sub", TokenKind::Sub},
    {"Then", TokenKind::Then},
    {"To", TokenKind::To},
    {"True", TokenKind::True},
    {"Try", TokenKind::Try},
    {"Until", TokenKind::Until},
    {"Var", TokenKind::Var},
    {"Wend", TokenKind::Wend},
    {"While", TokenKind::While},
    {"Xor", TokenKind::Xor},
});

/// Names that the parser takes, but nothing can be declared as.
constexpr auto HostWords = std::to_array<std::string_view>({
    "AddHandler", "Assigns",       "Boolean",       "Color",      "Currency",  "Declare",
    "Delegate",   "Double",        "GoTo",          "Implements", "Inherits",  "Int16",
    "Int32",      "Int64",         "Int8",          "Integer",    "Interface", "Me",
    "Namespace",  "Object",        "Private",       "Property",   "Protected", "Public",
    "RaiseEvent", "RemoveHandler", "Self",          "Shared",     "Single",    "String",
    "Structure",  "Super",         "UInt16",        "UInt32",     "UInt64",    "UInt8",
    "UInteger",   "Variant",       "WeakAddressOf",
});

constexpr auto Directives = std::to_array<Spelling>({
    {"#If", TokenKind::HashIf},
    {"#ElseIf", TokenKind::HashElseIf},
    {"#Else", TokenKind::HashElse},
    {"#EndIf", TokenKind::HashEndIf},
    {"#Pragma", TokenKind::HashPragma},
    {"#Tag", TokenKind::HashTag},
});

/// Tags of a project's file whose contents are no code.
constexpr std::string_view ForeignTags[] = {"Note", "ViewBehavior"};

constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Letters of every script may stand in a name: all bytes of a multi-byte character count.
constexpr bool IsNameStart(char character) {
    const char folded = FoldCase(character);
    return (folded >= 'a' && folded <= 'z') || static_cast<unsigned char>(character) >= 0x80;
}

constexpr bool IsNamePart(char character) {
    return IsNameStart(character) || IsDigit(character) || character == '_';
}

constexpr bool IsBlank(char character) {
    return character == ' ' || character == '\t';
}

constexpr char CommentQuote = '\'';

class Lexer {
public:
    Lexer(std::string_view text, Position start) : text_(text), start_(start) {}

    std::vector<Token> Run() {
        while (offset_ < text_.size()) {
            try {
                if (SkipBlanks()) {
                    Next();
                }
            } catch (const ProgramError& error) {
                AddMistake(error);
            }
        }
        AddEndOfLine(0);
        Add(TokenKind::EndOfText, 0);
        return std::move(tokens_);
    }

private:
    std::string_view Rest() const { return text_.substr(offset_); }
    char Peek(std::size_t ahead = 0) const {
        return offset_ + ahead < text_.size() ? text_[offset_ + ahead] : '\0';
    }

    Token& Add(TokenKind kind, std::size_t size) {
        tokens_.push_back(
            {kind, start_ + offset_, std::string(text_.substr(offset_, size)), 0, 0.0});
        offset_ += size;
        return tokens_.back();
    }

    /// The token knows whether a comment that looks like a text stood before it.
    void AddEndOfLine(std::size_t size) {
        auto& end = Add(TokenKind::EndOfLine, size);
        if (std::exchange(isBehindQuote_, false)) {
            end.text = CommentQuote;
        }
    }

    /// The rest of the line becomes one token.
    void AddMistake(const ProgramError& error) {
        tokens_.push_back({TokenKind::Mistake, start_ + error.position(), error.what(), 0, 0.0});
        SkipLine();
    }

    /// Skips blanks, comments and continued line ends. False at the end of the text.
    bool SkipBlanks() {
        for (;;) {
            while (IsBlank(Peek())) {
                ++offset_;
            }
            if (AtComment()) {
                isBehindQuote_ = Peek() == CommentQuote;
                SkipLine();
            } else if (!SkipContinuation()) {
                return offset_ < text_.size();
            }
        }
    }

    bool AtComment() const {
        if (Peek() == CommentQuote || Rest().starts_with("//")) {
            return true;
        }
        constexpr std::string_view Remark = "rem";
        return SameName(Rest().substr(0, Remark.size()), Remark) &&
               !IsNamePart(Peek(Remark.size()));
    }

    void SkipLine() { offset_ = std::min(text_.find_first_of("\r\n", offset_), text_.size()); }

    /// A lone underscore at the end of a line (blanks and a comment may follow it).
    bool SkipContinuation() {
        if (Peek() != '_' || IsNamePart(Peek(1))) {
            return false;
        }
        const std::size_t start = offset_++;
        while (IsBlank(Peek())) {
            ++offset_;
        }
        if (AtComment()) {
            SkipLine();
        }
        if (LineEndSize() == 0) {
            throw ProgramError(start, "\"_\" continues a line only at the line's end");
        }
        offset_ += LineEndSize();
        return true;
    }

    std::size_t LineEndSize() const {
        if (Rest().starts_with("\r\n")) {
            return 2;
        }
        return Peek() == '\n' || Peek() == '\r' ? 1 : 0;
    }

    void Next() {
        const char first = Peek();
        if (const std::size_t size = LineEndSize(); size > 0) {
            AddEndOfLine(size);
        } else if (IsNameStart(first)) {
            ReadWord();
        } else if (IsDigit(first) || (first == '.' && IsDigit(Peek(1)))) {
            ReadNumber();
        } else if (first == '&') {
            ReadPrefixedInteger();
        } else if (first == '"') {
            ReadText();
        } else if (first == '#') {
            ReadDirective();
        } else {
            ReadPunctuation();
        }
    }

    void ReadWord() {
        std::size_t size = 1;
        while (IsNamePart(Peek(size))) {
            ++size;
        }
        const auto word = Rest().substr(0, size);
        const auto* found = std::ranges::find_if(ReservedWords, [word](const Spelling& reserved) {
            return SameName(reserved.text, word);
        });
        Add(found == ReservedWords.end() ? TokenKind::Name : found->kind, size);
    }

    void ReadNumber() {
        std::size_t size = SkipDigits(0);
        bool isReal = false;
        if (Peek(size) == '.' && IsDigit(Peek(size + 1))) {
            isReal = true;
            size = SkipDigits(size + 1);
        }
        if (FoldCase(Peek(size)) == 'e') {
            const bool isSigned = Peek(size + 1) == '+' || Peek(size + 1) == '-';
            const std::size_t digits = size + (isSigned ? 2 : 1);
            if (IsDigit(Peek(digits))) {
                isReal = true;
                size = SkipDigits(digits);
            }
        }
        if (IsNamePart(Peek(size))) {
            throw ProgramError(offset_ + size, "a number is directly followed by " +
                                                   Quoted(std::string(1, Peek(size))));
        }
        if (isReal) {
            AddReal(size);
        } else {
            AddInteger(size, Rest().substr(0, size), 10);
        }
    }

    std::size_t SkipDigits(std::size_t ahead) const {
        while (IsDigit(Peek(ahead))) {
            ++ahead;
        }
        return ahead;
    }

    void AddReal(std::size_t size) {
        const auto digits = Rest().substr(0, size);
        double value = 0.0;
        const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (result.ec != std::errc{}) {
            throw ProgramError(
                offset_, "the number " + std::string(digits) + " is outside the range of Double");
        }
        Add(TokenKind::Real, size).real = value;
    }

    void AddInteger(std::size_t size, std::string_view digits, int base) {
        std::uint64_t value = 0;
        const auto* const end = digits.data() + digits.size();
        const auto result = std::from_chars(digits.data(), end, value, base);
        if (result.ec == std::errc::result_out_of_range) {
            throw ProgramError(offset_, "the number " + std::string(Rest().substr(0, size)) +
                                            " does not fit in 64 bits");
        }
        if (result.ec != std::errc{} || result.ptr != end) {
            throw ProgramError(offset_, Quoted(Rest().substr(0, size)) + " is not a number");
        }
        Add(TokenKind::Integer, size).integer = value;
    }

    [[noreturn]] void FailAmpersand() const {
        const char kind = FoldCase(Peek(1));
        if ((kind == FoldCase('c') || kind == FoldCase('u')) && IsNamePart(Peek(2))) {
            throw ProgramError(offset_, "literals that begin with " + Quoted(Rest().substr(0, 2)) +
                                            " are not supported here");
        }
        throw ProgramError(offset_,
                           R"("&" begins a number in the forms &h, &o and &b; "+" joins texts)");
    }

    /// Whether an `&` is meant to join what stands before it: behind a text, or directly behind the
    /// end of any other value.
    bool JoinsValue() const {
        const auto kind = tokens_.empty() ? TokenKind::EndOfLine : tokens_.back().kind;
        const bool endsValue = kind == TokenKind::Name || kind == TokenKind::CloseParenthesis ||
                               kind == TokenKind::Integer || kind == TokenKind::Real;
        return kind == TokenKind::Text || (endsValue && !IsBlank(text_[offset_ - 1]));
    }

    void ReadPrefixedInteger() {
        const auto base = BaseOfPrefix(Peek(1));
        if (!base || JoinsValue()) {
            FailAmpersand();
        }
        std::size_t size = 2;
        while (IsNamePart(Peek(size))) {
            ++size;
        }
        AddInteger(size, Rest().substr(2, size - 2), *base);
    }

    void ReadText() {
        const std::size_t start = offset_;
        std::string value;
        std::size_t end = offset_ + 1;
        for (;; ++end) {
            if (end >= text_.size() || text_[end] == '\n' || text_[end] == '\r') {
                throw ProgramError(start, "the text is not closed with a quotation mark");
            }
            if (text_[end] == '"') {
                const bool isDoubled = end + 1 < text_.size() && text_[end + 1] == '"';
                if (!isDoubled) {
                    break;
                }
                ++end;
            }
            value += text_[end];
        }
        Add(TokenKind::Text, end + 1 - start).text = std::move(value);
    }

    void ReadDirective() {
        std::size_t size = 1;
        while (IsNamePart(Peek(size))) {
            ++size;
        }
        const auto word = Rest().substr(0, size);
        const auto* found = std::ranges::find_if(
            Directives, [word](const Spelling& row) { return SameName(row.text, word); });
        if (found == Directives.end()) {
            throw ProgramError(offset_, Quoted(word) + " is not supported here");
        }
        const bool takesLine =
            found->kind == TokenKind::HashPragma || found->kind == TokenKind::HashTag;
        Add(found->kind, size);
        if (takesLine) {
            const auto first = offset_;
            SkipLine();
            tokens_.back().text = text_.substr(first, offset_ - first);
        } else if (found->kind == TokenKind::HashEndIf) {
            SkipLine();
        }
        if (found->kind == TokenKind::HashTag) {
            SkipForeignLines(tokens_.back().text);
        }
    }

    /// Skips what stands between a tag and its end, where that is no code.
    void SkipForeignLines(std::string_view tag) {
        tag.remove_prefix(std::min(tag.find_first_not_of(" \t"), tag.size()));
        for (const auto name : ForeignTags) {
            if (!SameName(tag.substr(0, name.size()), name)) {
                continue;
            }
            const auto tagStart = tokens_.back().at - start_;
            while (offset_ < text_.size() && !AtEndOfTag(name)) {
                offset_ += std::max<std::size_t>(LineEndSize(), 1);
            }
            if (offset_ == text_.size()) {
                throw ProgramError(tagStart,
                                   "this \"#tag " + std::string(name) + "\" is never closed");
            }
            SkipLine();
            return;
        }
    }

    /// Whether `#tag End...` of that tag stands here.
    bool AtEndOfTag(std::string_view name) const {
        constexpr std::string_view Beginning = "#tag End";
        const auto rest = Rest();
        return SameName(rest.substr(0, Beginning.size()), Beginning) &&
               SameName(rest.substr(std::min(Beginning.size(), rest.size()), name.size()), name);
    }

    void ReadPunctuation() {
        for (const auto& [text, kind] : Punctuation) {
            if (Rest().starts_with(text)) {
                Add(kind, text.size());
                return;
            }
        }
        throw ProgramError(offset_, Unexpected(Peek()));
    }

    static std::string Unexpected(char character) {
        const auto code = static_cast<unsigned char>(character);
        if (code >= 0x20 && code < 0x7F) {
            return "unexpected character " + Quoted(std::string(1, character));
        }
        return "unexpected character with the code " + std::to_string(code);
    }

    std::string_view text_;
    Position start_;
    std::size_t offset_ = 0;
    bool isBehindQuote_ = false;
    std::vector<Token> tokens_;
};

}  // namespace

std::string Describe(TokenKind kind) {
    switch (kind) {
        case TokenKind::EndOfText:
            return "the end of the program";
        case TokenKind::EndOfLine:
            return "the end of the line";
        case TokenKind::Mistake:
            return "a mistake";
        case TokenKind::HashPragma:
            return "\"#Pragma\"";
        case TokenKind::HashTag:
            return "\"#tag\"";
        case TokenKind::Name:
            return "a name";
        case TokenKind::Integer:
        case TokenKind::Real:
            return "a number";
        case TokenKind::Text:
            return "a text";
        default:
            break;
    }
    const auto hasKind = [kind](const Spelling& spelling) { return spelling.kind == kind; };
    if (const auto* word = std::ranges::find_if(ReservedWords, hasKind);
        word != ReservedWords.end()) {
        return Quoted(word->text);
    }
    if (const auto* directive = std::ranges::find_if(Directives, hasKind);
        directive != Directives.end()) {
        return Quoted(directive->text);
    }
    return Quoted(std::ranges::find_if(Punctuation, hasKind)->text);
}

std::string Describe(const Token& token) {
    switch (token.kind) {
        case TokenKind::EndOfLine:
            return token.text.starts_with(CommentQuote)
                       ? "a comment; a text stands between double quotes"
                       : Describe(token.kind);
        case TokenKind::EndOfText:
        case TokenKind::Text:
        case TokenKind::HashPragma:
        case TokenKind::HashTag:
            return Describe(token.kind);
        default:
            return Quoted(token.text);
    }
}

bool IsWord(const Token& token) {
    return !token.text.empty() && token.kind != TokenKind::Text &&
           token.kind != TokenKind::Mistake && IsNameStart(token.text.front());
}

void RequireNewName(std::string_view name, Position at) {
    if (std::ranges::any_of(HostWords, [name](auto word) { return SameName(word, name); })) {
        throw ProgramError(at, Quoted(name) + " is a reserved word and cannot be a name");
    }
}

std::vector<Token> Tokenize(std::string_view text, Position start) {
    return Lexer(text, start).Run();
}

}  // namespace standin::language
