// A walk over tokens, shared by the parsers.
#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standin/language/lexer.hpp"

namespace standin::language {

/// Stands on one token of a text and moves forward.
class TokenCursor {
public:
    /// `start` is the position of the text's first byte.
    explicit TokenCursor(std::string_view text, Position start = 0)
        : tokens_(Tokenize(text, start)) {}

    /// The token stood on; at the end it stays EndOfText.
    const Token& Current() const { return tokens_[index_]; }
    TokenKind Kind() const { return Current().kind; }
    Position At() const { return Current().at; }
    const Token& Following() const { return tokens_[std::min(index_ + 1, tokens_.size() - 1)]; }

    bool IsAt(TokenKind kind) const { return Kind() == kind; }
    bool IsAtAny(std::initializer_list<TokenKind> kinds) const {
        return std::ranges::find(kinds, Kind()) != kinds.end();
    }

    /// Returns the token stood on and steps past it.
    Token Take() {
        Token token = Current();
        if (!IsAt(TokenKind::EndOfText)) {
            ++index_;
        }
        return token;
    }

    /// Steps past a token of that kind, if it is there.
    bool TryTake(TokenKind kind) {
        if (!IsAt(kind)) {
            return false;
        }
        Take();
        return true;
    }

    /// Steps past a token of that kind or throws ProgramError.
    Token Expect(TokenKind kind) {
        if (!IsAt(kind)) {
            Fail(Describe(kind));
        }
        return Take();
    }

    /// A name that must not be a reserved word.
    Token ExpectName() { return Expect(TokenKind::Name); }

    /// The name of something that is declared: none that the host's language has reserved.
    Token ExpectNewName() {
        RequireNewName(Current().text, At());
        return ExpectName();
    }

    /// A name where reserved words are welcome: after a dot, in a plug-in's declaration.
    Token ExpectWord() {
        if (!IsWord(Current())) {
            Fail("a name");
        }
        return Take();
    }

    /// Steps past the end of the line or throws ProgramError.
    void ExpectEndOfLine() {
        if (!IsAt(TokenKind::EndOfText)) {
            Expect(TokenKind::EndOfLine);
        }
    }

    /// The place stood on, to come back to with `Rewind`.
    std::size_t Mark() const { return index_; }
    void Rewind(std::size_t mark) { index_ = mark; }
    const Token& TokenAt(std::size_t mark) const { return tokens_[mark]; }

    /// The first token of the line stood on.
    std::size_t StartOfLine() const { return StartOfLine(index_); }
    std::size_t StartOfLine(std::size_t mark) const {
        while (mark > 0 && tokens_[mark - 1].kind != TokenKind::EndOfLine) {
            --mark;
        }
        return mark;
    }
    /// The last token of the line that holds `mark`, its end left out.
    std::size_t EndOfLine(std::size_t mark) const {
        while (tokens_[mark].kind != TokenKind::EndOfLine &&
               tokens_[mark].kind != TokenKind::EndOfText) {
            ++mark;
        }
        return mark == 0 ? 0 : mark - 1;
    }
    /// Steps past the rest of the line and its end.
    void SkipLine() {
        while (!IsAtAny({TokenKind::EndOfLine, TokenKind::EndOfText})) {
            ++index_;
        }
        if (IsAt(TokenKind::EndOfLine)) {
            ++index_;
        }
    }

    void SkipEmptyLines() {
        while (TryTake(TokenKind::EndOfLine)) {
        }
    }

    /// Throws ProgramError at the token stood on: what was expected there, and what is.
    [[noreturn]] void Fail(const std::string& expected) const {
        if (IsAt(TokenKind::Mistake)) {
            throw ProgramError(At(), Current().text);
        }
        throw ProgramError(At(), "expected " + expected + ", found " + Describe(Current()));
    }

private:
    std::vector<Token> tokens_;
    std::size_t index_ = 0;
};

}  // namespace standin::language
