// The part of the grammar that programs and plug-in declarations share: expressions, type names
// and the heads of routines.
#pragma once

#include "standin/language/syntax.hpp"
#include "standin/language/token_cursor.hpp"

namespace standin::language {

/// Levels of one expression, and of statements within one another, that are accepted.
inline constexpr std::size_t MaximumExpressionHeight = 500;
inline constexpr std::size_t MaximumNesting = 100;

/// Counts how deep a recursive parser is; throws ProgramError beyond `MaximumNesting`.
class NestingGuard {
public:
    NestingGuard(std::size_t& depth, Position at) : depth_(depth) {
        if (++depth_ > MaximumNesting) {
            --depth_;
            throw ProgramError(
                at, "nested more than " + std::to_string(MaximumNesting) + " levels deep");
        }
    }
    ~NestingGuard() { --depth_; }
    NestingGuard(const NestingGuard&) = delete;
    NestingGuard& operator=(const NestingGuard&) = delete;

private:
    std::size_t& depth_;
};

/// Parses by recursive descent at a cursor that outlives it. Every function throws ProgramError
/// at the first token that does not fit.
class ExpressionParser {
public:
    explicit ExpressionParser(TokenCursor& cursor) : cursor_(cursor) {}

    syntax::ExpressionPtr ParseExpression();
    /// A name, literal, `New` or parenthesis with the members and arguments that follow it.
    syntax::ExpressionPtr ParsePostfix();
    /// Throws ProgramError at a `++` or `--` that ends the line: there are no such operators.
    void RefuseStep() const;
    /// Expressions with commas between them, at least one.
    syntax::Expressions ParseExpressions();
    /// Arguments in parentheses; none when no parenthesis is there.
    syntax::Expressions ParseOptionalArguments();
    syntax::ExpressionPtr ParseNew();
    syntax::TypeName ParseTypeName();
    /// `Name(parameters) As Type`, the parentheses and the result optional.
    syntax::Signature ParseSignature();
    /// Whether an expression can begin with the current token.
    bool AtExpression() const;

private:
    syntax::ExpressionPtr ParseBinary(int level);
    syntax::ExpressionPtr ParseUnary();
    syntax::ExpressionPtr ParsePower();
    syntax::ExpressionPtr ParseExponent();
    syntax::ExpressionPtr ParsePrimary();
    syntax::ExpressionPtr ParseRealLiteral();
    syntax::ExpressionPtr ParseParenthesis();
    syntax::ExpressionPtr ParseCast();
    syntax::ExpressionPtr ParseAddress();
    syntax::ExpressionPtr ParseConditional();
    syntax::ExpressionPtr ParseClassTest(syntax::ExpressionPtr value);
    syntax::Parameter ParseParameter();
    /// Steps past the `()` or `(,)` that makes an array of what stands before it, if it is there.
    /// Returns the number of dimensions.
    std::size_t TakeBrackets();

    TokenCursor& cursor_;
    std::size_t depth_ = 0;
};

}  // namespace standin::language
