// Tokens of the host's language.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "standin/language/source.hpp"

namespace standin::language {

/// What a token is: punctuation, a literal, a name, or one of the reserved words.
enum class TokenKind : std::uint8_t {
    EndOfText,
    EndOfLine,
    /// What the language does not have, up to the end of its line; `text` tells what is wrong.
    Mistake,
    Name,
    Integer,
    Real,
    Text,
    // Punctuation.
    Plus,
    PlusEqual,
    Minus,
    MinusEqual,
    Star,
    StarEqual,
    Slash,
    SlashEqual,
    Backslash,
    Caret,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    OpenParenthesis,
    CloseParenthesis,
    Comma,
    Dot,
    Colon,
    // Directives. `text` of a pragma and of a tag is the rest of the line.
    HashIf,
    HashElseIf,
    HashElse,
    HashEndIf,
    HashPragma,
    HashTag,
    // Reserved words.
    AddressOf,
    And,
    As,
    ByRef,
    ByVal,
    Call,
    Case,
    Catch,
    Class,
    Const,
    Continue,
    CType,
    Dim,
    Do,
    DownTo,
    Each,
    Else,
    ElseIf,
    End,
    Enum,
    Exception,
    Exit,
    Extends,
    False,
    Finally,
    For,
    Function,
    If,
    In,
    Is,
    IsA,
    Loop,
    Mod,
    Module,
    New,
    Next,
    Nil,
    Not,
    Optional,
    Or,
    ParamArray,
    Print,
    Raise,
    Redim,
    Return,
    Select,
    Static,
    Step,
    Sub,
    Then,
    To,
    True,
    Try,
    Until,
    Var,
    Wend,
    While,
    Xor,
};

/// One token with its place and, for literals, its value.
struct Token {
    TokenKind kind = TokenKind::EndOfText;
    Position at = 0;
    /// The token as written; for a text literal its value.
    std::string text;
    std::uint64_t integer = 0;
    double real = 0.0;
};

/// How messages speak of a token kind: `"Then"`, `a name`, `the end of the line`.
std::string Describe(TokenKind kind);
/// How messages speak of one token that was found: `"foo"`, `the end of the line`.
std::string Describe(const Token& token);
/// Whether a token has the shape of a name: a name or a reserved word.
bool IsWord(const Token& token);

/// Throws ProgramError at `at` for a name that the host's language has reserved: for one of its
/// types, or for what there is not here.
void RequireNewName(std::string_view name, Position at);

/// The tokens of a text, the last one being EndOfText with an EndOfLine before it. `start` is the
/// position of the text's first byte.
std::vector<Token> Tokenize(std::string_view text, Position start = 0);

}  // namespace standin::language
