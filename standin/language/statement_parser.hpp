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
    /// Steps past the `End` of a block. Another word behind it than that of the block is an error,
    /// but ends the block as well.
    void ExpectEnd(TokenKind what);
    /// The same for the end of a statement, where `End` alone will do.
    void ExpectBlockEnd(TokenKind what);
    /// Adds that a block is not closed before the current line, once for all blocks that are not
    /// closed before it. The next `ExpectEnd` expects nothing.
    void LeaveUnclosed(TokenKind opener, Position openerAt);
    /// The block that is open at the end of the text, which may be unfinished, if there is one.
    const std::optional<UnclosedError>& unclosedAtEnd() const { return unclosedAtEnd_; }
    /// Adds an error for an `End` of something that is not open, and steps past its line.
    void RefuseEnd();
    /// After an error in what began with token `start`: goes behind the end of that, or to the line
    /// that ends a block around it.
    void Recover(std::size_t start);
    /// Makes all names of the current line doubtful, and goes to the next one.
    void SkipDoubtfulLine();
    /// Throws when the line begins with a part of the host's language that there is not.
    void RefuseUnsupported() const;

    /// While it lives, a block of that kind is open.
    class OpenBlock {
    public:
        OpenBlock(StatementParser& parser, TokenKind opener) : open_(parser.open_) {
            open_.push_back(opener);
        }
        ~OpenBlock() { open_.pop_back(); }
        OpenBlock(const OpenBlock&) = delete;
        OpenBlock& operator=(const OpenBlock&) = delete;

    private:
        std::vector<TokenKind>& open_;
    };

private:
    using Node = syntax::Statement::Node;

    /// Statements up to a word that ends the block, which is left for the caller. Leaves the block
    /// unclosed where its end is missing: where the end of a block around it stands, the head of a
    /// routine or the end of the text.
    syntax::Block ParseBlock(std::initializer_list<TokenKind> ends, TokenKind opener,
                             Position openerAt);
    /// Whether the block stops here: at one of its ends, or for a loop at that of any loop. An
    /// `End` that belongs to nothing is an error in a routine and stepped over.
    bool StopsBlock(std::initializer_list<TokenKind> ends, TokenKind opener);
    /// Makes the names doubtful that the lines from an opening word to the current one declare.
    void DoubtDeclarations(Position openerAt);
    /// Whether the line that begins with a token ends a block of that kind, or begins another part
    /// of it.
    bool BelongsTo(std::size_t line, TokenKind opener) const;
    /// Whether the line ends one of the first `count` blocks that are open.
    bool EndsOpenBlock(std::size_t line, std::size_t count) const;
    /// Whether the line can stand in no block of statements: the head of a routine or a module, or
    /// a tag.
    bool IsOutsideOfStatements(std::size_t line) const;
    /// Steps past what is left of the line, its end excepted.
    void SkipToEndOfLine();
    /// Steps past the word that ends a loop; another one is an error, but ends the loop as well.
    void ExpectLoopEnd(TokenKind what);
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
    Node ParseExit();
    syntax::LoopTarget ParseLoopTarget();
    Node ParseTry();
    /// The handlers of an exception, each up to one of the ends.
    std::vector<syntax::Try::Catch> ParseHandlers(TokenKind word,
                                                  std::initializer_list<TokenKind> ends,
                                                  TokenKind opener, Position openerAt);

    /// `Exception` and `Finally` at the end of a routine: its body becomes that of a Try with them.
    void GuardBody(syntax::Routine& routine, const Token& head);

    /// The word that a line begins with, what may stand before the head of a routine left out.
    TokenKind HeadOf(std::size_t line) const;
    /// Whether a block begins with the line that begins with token `start`.
    bool OpensBlock(std::size_t start) const;
    /// Makes the names of the line that begins with token `start` doubtful.
    void DoubtNames(std::size_t start);
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
    /// The blocks around the place, the innermost last.
    std::vector<TokenKind> open_;
    /// The token before which a block was last found not to be closed.
    std::optional<std::size_t> unclosedBefore_;
    std::optional<UnclosedError> unclosedAtEnd_;
    /// Whether the block that was parsed last was closed.
    bool isClosed_ = true;
};

/// Who sees what is declared behind a word such as `Private`; nothing for any other word.
std::optional<syntax::Visibility> VisibilityOf(const Token& token);

}  // namespace standin::language
