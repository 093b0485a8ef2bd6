// The grammar of statements and routines.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/language/constants.hpp"
#include "standin/language/directives.hpp"
#include "standin/language/errors.hpp"
#include "standin/language/expression_parser.hpp"
#include "standin/language/syntax.hpp"
#include "standin/language/token_cursor.hpp"

namespace standin::language {

/// Parses statements at a cursor that outlives it. A statement with an error is left out, the error
/// goes to the list, and the next statement is looked at.
class StatementParser {
public:
    /// `constants` are those outside of routines.
    StatementParser(TokenCursor& cursor, const Constants& constants, ErrorList& errors)
        : cursor_(cursor),
          expressions_(cursor),
          errors_(errors),
          constants_(&constants),
          directives_(cursor, expressions_, constants_, errors) {}

    ExpressionParser& expressions() { return expressions_; }
    const Constants& constants() const { return constants_; }

    /// Goes to the next line with code. Throws UnclosedError for an `#If` without end.
    void SkipToCode() { directives_.SkipToCode(); }
    /// A statement with the end of its line, into a block unless it has an error.
    void ParseInto(syntax::Block& block);
    /// A whole `Function` or `Sub`.
    syntax::Routine ParseRoutine();
    /// Names that share one `As`: `a, b As Integer = 1`. Each gets a value of its own.
    void ParseDeclarators(std::vector<syntax::Declarator>& declarators);
    /// `Const name [As Type] = value`; the value is known to `#If` from then on.
    syntax::Const ParseConst();
    void ExpectEnd(TokenKind what);
    /// After an error in what began with token `start`: goes behind the end of that.
    void Recover(std::size_t start);
    /// Throws when the line begins with a part of the host's language that there is not.
    void RefuseUnsupported() const;

private:
    using Node = syntax::Statement::Node;

    /// Statements up to a word that ends the block, which is left for the caller.
    syntax::Block ParseBlock(std::initializer_list<TokenKind> ends, TokenKind opener,
                             Position openerAt);
    /// A statement without the end of its line.
    syntax::StatementPtr ParseUnended();
    Node ParseNode();
    syntax::ExpressionPtr ParseOptionalExpression();
    Node ParseAssignmentOrCall();
    /// `a += b` is `a = a + b`: what stands at `start` is the target and the left operand.
    Node ParseCompound(syntax::BinaryOperator operation, std::size_t start,
                       syntax::ExpressionPtr target);
    /// `Redim a(n)` is `a.ResizeTo(n)`.
    Node ParseRedim();
    Node ParseDim();
    /// A name; with `()` or `(last index)` behind it that of an array.
    syntax::Declarator ParseDeclaredName();
    void ParseDeclaredType(syntax::Declarator& declarator);

    Node ParseIf();
    Node ParseSingleLineIf(syntax::ExpressionPtr condition);
    Node ParseSelect();
    std::vector<syntax::Select::Test> ParseCaseTests();
    syntax::BinaryOperator ParseComparison();
    Node ParseFor();
    Node ParseForEach(Position at);
    /// What a For repeats, its Next included, which may name the variable.
    syntax::Block ParseForBody(const std::string& variable, Position at);
    Node ParseWhile();
    Node ParseDo();
    syntax::Do::Test ParseLoopTest();
    syntax::LoopKind ParseLoopKind();
    Node ParseTry();

    /// Whether a block begins with the line that begins with token `start`.
    bool OpensBlock(std::size_t start) const;
    /// Steps past the lines of a block and its end.
    void SkipBlock();
    /// Steps past the block of something unsupported, where it has an end.
    void SkipUnsupported(std::size_t start);

    TokenCursor& cursor_;
    ExpressionParser expressions_;
    ErrorList& errors_;
    /// With those of the routine that is being parsed.
    Constants constants_;
    Directives directives_;
    std::size_t depth_ = 0;
};

}  // namespace standin::language
