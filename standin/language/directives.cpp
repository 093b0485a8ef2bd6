#include "standin/language/directives.hpp"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace standin::language {

void Directives::SkipToCode() {
    for (;;) {
        switch (cursor_.Kind()) {
            case TokenKind::EndOfLine:
                cursor_.SkipLine();
                break;
            case TokenKind::HashPragma:
                TakePragma();
                break;
            case TokenKind::HashIf:
                open_.push_back(cursor_.At());
                TakeCondition();
                break;
            case TokenKind::HashElseIf:
            case TokenKind::HashElse:
            case TokenKind::HashEndIf:
                if (!open_.empty()) {
                    SkipToEnd();
                    open_.pop_back();
                } else {
                    if (errors_.empty()) {
                        errors_.Add(ProgramError(cursor_.At(), "there is no \"#If\" before this"));
                    }
                    cursor_.SkipLine();
                }
                break;
            case TokenKind::EndOfText:
                if (!open_.empty()) {
                    const auto at = open_.front();
                    open_.clear();
                    throw UnclosedError(at, "this \"#If\" is never closed");
                }
                return;
            default:
                return;
        }
    }
}

void Directives::TakePragma() {
    constexpr std::string_view ErrorWord = "error";
    std::string_view text = cursor_.Current().text;
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (SameName(text.substr(0, ErrorWord.size()), ErrorWord)) {
        errors_.Add(ProgramError(cursor_.At(), "#Pragma " + std::string(text)));
    }
    cursor_.SkipLine();
}

void Directives::TakeCondition() {
    for (;;) {
        bool holds = cursor_.IsAt(TokenKind::HashElse);
        if (!holds) {
            errors_.Try([&] {
                cursor_.Take();
                const auto condition = expressions_.ParseExpression();
                cursor_.TryTake(TokenKind::Then);
                holds = IsTrue(*condition, constants_);
                if (!cursor_.IsAt(TokenKind::EndOfLine)) {
                    cursor_.Fail("the end of the line");
                }
            });
        }
        cursor_.SkipLine();
        if (holds) {
            return;
        }
        SkipBranch();
        if (cursor_.IsAt(TokenKind::EndOfText)) {
            return;
        }
        if (cursor_.IsAt(TokenKind::HashEndIf)) {
            cursor_.SkipLine();
            open_.pop_back();
            return;
        }
    }
}

void Directives::SkipBranch() {
    for (std::size_t depth = 0; !cursor_.IsAt(TokenKind::EndOfText); cursor_.SkipLine()) {
        const bool isEnd = cursor_.IsAt(TokenKind::HashEndIf);
        const bool isOther = cursor_.IsAtAny({TokenKind::HashElseIf, TokenKind::HashElse});
        if (depth == 0 && (isEnd || isOther)) {
            return;
        }
        if (cursor_.IsAt(TokenKind::HashIf)) {
            ++depth;
        } else if (isEnd) {
            --depth;
        }
    }
}

void Directives::SkipToEnd() {
    while (cursor_.IsAtAny({TokenKind::HashElseIf, TokenKind::HashElse})) {
        cursor_.SkipLine();
        SkipBranch();
    }
    if (cursor_.IsAt(TokenKind::EndOfText)) {
        const auto at = open_.back();
        open_.clear();
        throw UnclosedError(at, "this \"#If\" is never closed");
    }
    cursor_.SkipLine();
}

}  // namespace standin::language
