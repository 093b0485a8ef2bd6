// Directives: which lines of a program are there at all.
#pragma once

#include <vector>

#include "standin/language/constants.hpp"
#include "standin/language/errors.hpp"
#include "standin/language/expression_parser.hpp"
#include "standin/language/token_cursor.hpp"

namespace standin::language {

/// Leads a cursor past empty lines, pragmas and what `#If` leaves out.
class Directives {
public:
    Directives(TokenCursor& cursor, ExpressionParser& expressions, const Constants& constants,
               ErrorList& errors)
        : cursor_(cursor), expressions_(expressions), constants_(constants), errors_(errors) {}

    /// Goes to the next line with code, or to the end of the text. Throws UnclosedError there for
    /// an `#If` without end.
    void SkipToCode();

private:
    void TakePragma();
    /// From `#If` or `#ElseIf` to the branch that is there, or behind the `#EndIf`.
    void TakeCondition();
    void SkipBranch();
    void SkipToEnd();

    TokenCursor& cursor_;
    ExpressionParser& expressions_;
    const Constants& constants_;
    ErrorList& errors_;
    /// Where each `#If` around the place stands.
    std::vector<Position> open_;
};

}  // namespace standin::language
