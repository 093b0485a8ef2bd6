#include "standin/language/parser.hpp"

#include <algorithm>
#include <optional>
#include <utility>

#include "standin/language/expression_parser.hpp"
#include "standin/language/names.hpp"

namespace standin::language {
namespace {

using syntax::BinaryOperator;
using syntax::Block;
using syntax::LoopKind;

class StatementParser {
public:
    explicit StatementParser(std::string_view text) : cursor_(text), expressions_(cursor_) {}

    syntax::Program ParseProgram() {
        syntax::Program program;
        for (cursor_.SkipEmptyLines(); !cursor_.IsAt(TokenKind::EndOfText);
             cursor_.SkipEmptyLines()) {
            if (cursor_.IsAtAny({TokenKind::Function, TokenKind::Sub})) {
                program.routines.push_back(ParseRoutine());
            } else {
                program.main.push_back(ParseStatement());
            }
        }
        return program;
    }

private:
    using Statement = syntax::Statement::Node;

    /// Statements up to a word that ends the block, which is left for the caller.
    Block ParseBlock(std::initializer_list<TokenKind> ends, TokenKind opener, Position openerAt) {
        const NestingGuard guard(depth_, cursor_.At());
        Block block;
        for (cursor_.SkipEmptyLines(); !cursor_.IsAtAny(ends); cursor_.SkipEmptyLines()) {
            if (cursor_.IsAt(TokenKind::EndOfText)) {
                throw UnclosedError(openerAt, "this " + Describe(opener) + " is never closed");
            }
            block.push_back(ParseStatement());
        }
        return block;
    }

    syntax::StatementPtr ParseStatement() {
        auto statement = ParseUnended();
        cursor_.ExpectEndOfLine();
        return statement;
    }

    /// A statement without the end of its line.
    syntax::StatementPtr ParseUnended() {
        const Position at = cursor_.At();
        auto node = ParseNode();
        return std::make_unique<syntax::Statement>(syntax::Statement{at, std::move(node)});
    }

    Statement ParseNode() {
        switch (cursor_.Kind()) {
            case TokenKind::Dim:
            case TokenKind::Var:
                return ParseDim();
            case TokenKind::Const:
                return ParseConst();
            case TokenKind::If:
                return ParseIf();
            case TokenKind::Select:
                return ParseSelect();
            case TokenKind::For:
                return ParseFor();
            case TokenKind::While:
                return ParseWhile();
            case TokenKind::Do:
                return ParseDo();
            case TokenKind::Exit:
                cursor_.Take();
                return syntax::Exit{ParseLoopKind()};
            case TokenKind::Continue:
                cursor_.Take();
                return syntax::Continue{ParseLoopKind()};
            case TokenKind::Try:
                return ParseTry();
            case TokenKind::Raise:
                cursor_.Take();
                return syntax::Raise{expressions_.ParseExpression()};
            case TokenKind::Return:
                cursor_.Take();
                return syntax::Return{ParseOptionalExpression()};
            case TokenKind::Print:
                cursor_.Take();
                return syntax::Print{ParseOptionalExpression()};
            case TokenKind::Redim:
                return ParseRedim();
            case TokenKind::Call:
                cursor_.Take();
                return syntax::CallStatement{expressions_.ParsePostfix()};
            case TokenKind::Function:
            case TokenKind::Sub:
                throw ProgramError(cursor_.At(), "a " + Describe(cursor_.Kind()) +
                                                     " cannot stand inside another block");
            default:
                return ParseAssignmentOrCall();
        }
    }

    syntax::ExpressionPtr ParseOptionalExpression() {
        return expressions_.AtExpression() ? expressions_.ParseExpression() : nullptr;
    }

    Statement ParseAssignmentOrCall() {
        if (!cursor_.IsAtAny({TokenKind::Name, TokenKind::OpenParenthesis, TokenKind::CType})) {
            cursor_.Fail("a statement");
        }
        const auto start = cursor_.Mark();
        auto target = expressions_.ParsePostfix();
        if (cursor_.TryTake(TokenKind::Equal)) {
            return syntax::Assignment{std::move(target), expressions_.ParseExpression()};
        }
        if (const auto operation = CompoundOperator(cursor_.Kind())) {
            return ParseCompound(*operation, start, std::move(target));
        }
        // The arguments of a call that stands alone need no parentheses.
        const bool hasArguments = std::holds_alternative<syntax::Call>(target->node);
        if (!hasArguments && expressions_.AtExpression()) {
            const Position at = target->at;
            const auto height = target->height;
            syntax::Call call{std::move(target), expressions_.ParseExpressions()};
            target = std::make_unique<syntax::Expression>(
                syntax::Expression{at, height + 1, std::move(call)});
        }
        return syntax::CallStatement{std::move(target)};
    }

    static std::optional<BinaryOperator> CompoundOperator(TokenKind kind) {
        switch (kind) {
            case TokenKind::PlusEqual:
                return BinaryOperator::Add;
            case TokenKind::MinusEqual:
                return BinaryOperator::Subtract;
            case TokenKind::StarEqual:
                return BinaryOperator::Multiply;
            case TokenKind::SlashEqual:
                return BinaryOperator::Divide;
            default:
                return std::nullopt;
        }
    }

    /// `a += b` is `a = a + b`: what stands at `start` is the target and the left operand.
    Statement ParseCompound(BinaryOperator operation, std::size_t start,
                            syntax::ExpressionPtr target) {
        const Position at = cursor_.At();
        cursor_.Rewind(start);
        auto left = expressions_.ParsePostfix();
        cursor_.Take();
        auto right = expressions_.ParseExpression();
        const auto height = std::max(left->height, right->height);
        syntax::Binary binary{operation, std::move(left), std::move(right)};
        return syntax::Assignment{std::move(target),
                                  std::make_unique<syntax::Expression>(
                                      syntax::Expression{at, height + 1, std::move(binary)})};
    }

    /// `Redim a(n)` is `a.ResizeTo(n)`.
    Statement ParseRedim() {
        const Position at = cursor_.Take().at;
        auto sized = expressions_.ParsePostfix();
        auto* const call = std::get_if<syntax::Call>(&sized->node);
        if (call == nullptr) {
            throw ProgramError(at, "\"Redim\" takes an array with its last index in parentheses");
        }
        syntax::Member resize{std::move(call->callee), "ResizeTo"};
        call->callee = std::make_unique<syntax::Expression>(
            syntax::Expression{at, sized->height, std::move(resize)});
        ++sized->height;
        return syntax::CallStatement{std::move(sized)};
    }

    Statement ParseDim() {
        cursor_.Take();
        syntax::Dim dim;
        do {
            ParseDeclarators(dim.declarators);
        } while (cursor_.TryTake(TokenKind::Comma));
        return dim;
    }

    /// Names that share one `As`: `a, b As Integer = 1`. Each gets a value of its own.
    void ParseDeclarators(std::vector<syntax::Declarator>& declarators) {
        std::vector<syntax::Declarator> started;
        do {
            started.push_back(ParseDeclaredName());
        } while (cursor_.TryTake(TokenKind::Comma));
        cursor_.Expect(TokenKind::As);
        const auto typeStart = cursor_.Mark();
        for (auto& declarator : started) {
            cursor_.Rewind(typeStart);
            ParseDeclaredType(declarator);
            declarators.push_back(std::move(declarator));
        }
    }

    /// A name; with `()` or `(last index)` behind it that of an array.
    syntax::Declarator ParseDeclaredName() {
        const auto name = cursor_.ExpectName();
        syntax::Declarator declarator{name.text, name.at, {}, nullptr};
        if (cursor_.TryTake(TokenKind::OpenParenthesis)) {
            declarator.type.isArray = true;
            if (!cursor_.IsAt(TokenKind::CloseParenthesis)) {
                declarator.lastIndex = expressions_.ParseExpression();
            }
            cursor_.Expect(TokenKind::CloseParenthesis);
        }
        return declarator;
    }

    void ParseDeclaredType(syntax::Declarator& declarator) {
        const bool isArray = declarator.type.isArray;
        if (cursor_.IsAt(TokenKind::New) && !isArray) {
            declarator.initialiser = expressions_.ParseNew();
            declarator.type = std::get<syntax::New>(declarator.initialiser->node).type;
            return;
        }
        declarator.type = expressions_.ParseTypeName();
        declarator.type.isArray = isArray;
        if (declarator.lastIndex == nullptr && cursor_.TryTake(TokenKind::Equal)) {
            declarator.initialiser = expressions_.ParseExpression();
        }
    }

    Statement ParseConst() {
        cursor_.Take();
        syntax::Const constant;
        constant.name = cursor_.ExpectName().text;
        if (cursor_.TryTake(TokenKind::As)) {
            constant.type = expressions_.ParseTypeName();
        }
        cursor_.Expect(TokenKind::Equal);
        constant.value = expressions_.ParseExpression();
        return constant;
    }

    Statement ParseIf() {
        const Position at = cursor_.Take().at;
        syntax::If result;
        auto condition = expressions_.ParseExpression();
        cursor_.Expect(TokenKind::Then);
        if (!cursor_.IsAt(TokenKind::EndOfLine)) {
            return ParseSingleLineIf(std::move(condition));
        }
        const auto ends = {TokenKind::ElseIf, TokenKind::Else, TokenKind::End};
        result.branches.push_back({std::move(condition), ParseBlock(ends, TokenKind::If, at)});
        while (cursor_.TryTake(TokenKind::ElseIf)) {
            condition = expressions_.ParseExpression();
            cursor_.Expect(TokenKind::Then);
            result.branches.push_back({std::move(condition), ParseBlock(ends, TokenKind::If, at)});
        }
        if (cursor_.TryTake(TokenKind::Else)) {
            result.otherwise = ParseBlock({TokenKind::End}, TokenKind::If, at);
        }
        ExpectEnd(TokenKind::If);
        return result;
    }

    Statement ParseSingleLineIf(syntax::ExpressionPtr condition) {
        const NestingGuard guard(depth_, cursor_.At());
        syntax::If result;
        result.branches.push_back({std::move(condition), {}});
        result.branches.front().body.push_back(ParseUnended());
        if (cursor_.TryTake(TokenKind::Else)) {
            result.otherwise.push_back(ParseUnended());
        }
        return result;
    }

    void ExpectEnd(TokenKind what) {
        cursor_.Expect(TokenKind::End);
        cursor_.Expect(what);
    }

    Statement ParseSelect() {
        const Position at = cursor_.Take().at;
        cursor_.Expect(TokenKind::Case);
        syntax::Select select;
        select.subject = expressions_.ParseExpression();
        cursor_.ExpectEndOfLine();
        cursor_.SkipEmptyLines();
        const auto ends = {TokenKind::Case, TokenKind::Else, TokenKind::End};
        while (cursor_.IsAt(TokenKind::Case) && cursor_.Following().kind != TokenKind::Else) {
            cursor_.Take();
            auto tests = ParseCaseTests();
            select.branches.push_back({std::move(tests), ParseBlock(ends, TokenKind::Select, at)});
        }
        cursor_.TryTake(TokenKind::Case);
        if (cursor_.TryTake(TokenKind::Else)) {
            select.otherwise = ParseBlock({TokenKind::End}, TokenKind::Select, at);
        }
        ExpectEnd(TokenKind::Select);
        return select;
    }

    std::vector<syntax::Select::Test> ParseCaseTests() {
        std::vector<syntax::Select::Test> tests;
        do {
            syntax::Select::Test test{BinaryOperator::Equal, nullptr, nullptr};
            if (cursor_.TryTake(TokenKind::Is)) {
                test.comparison = ParseComparison();
            }
            test.value = expressions_.ParseExpression();
            if (cursor_.TryTake(TokenKind::To)) {
                test.last = expressions_.ParseExpression();
            }
            tests.push_back(std::move(test));
        } while (cursor_.TryTake(TokenKind::Comma));
        return tests;
    }

    BinaryOperator ParseComparison() {
        switch (cursor_.Take().kind) {
            case TokenKind::Equal:
                return BinaryOperator::Equal;
            case TokenKind::NotEqual:
                return BinaryOperator::NotEqual;
            case TokenKind::Less:
                return BinaryOperator::Less;
            case TokenKind::LessEqual:
                return BinaryOperator::LessEqual;
            case TokenKind::Greater:
                return BinaryOperator::Greater;
            case TokenKind::GreaterEqual:
                return BinaryOperator::GreaterEqual;
            default:
                cursor_.Fail("a comparison after \"Is\"");
        }
    }

    Statement ParseFor() {
        const Position at = cursor_.Take().at;
        if (cursor_.TryTake(TokenKind::Each)) {
            return ParseForEach(at);
        }
        const auto variable = cursor_.ExpectName();
        syntax::For loop{variable.text, variable.at, {}, {}, {}, {}, false, {}};
        if (cursor_.TryTake(TokenKind::As)) {
            loop.type = expressions_.ParseTypeName();
        }
        cursor_.Expect(TokenKind::Equal);
        loop.first = expressions_.ParseExpression();
        if (!cursor_.IsAtAny({TokenKind::To, TokenKind::DownTo})) {
            cursor_.Fail(R"("To" or "DownTo")");
        }
        loop.isDownward = cursor_.Take().kind == TokenKind::DownTo;
        loop.last = expressions_.ParseExpression();
        if (cursor_.TryTake(TokenKind::Step)) {
            loop.step = expressions_.ParseExpression();
        }
        loop.body = ParseForBody(loop.variable, at);
        return loop;
    }

    Statement ParseForEach(Position at) {
        const auto variable = cursor_.ExpectName();
        syntax::ForEach loop{variable.text, variable.at, {}, {}, {}};
        if (cursor_.TryTake(TokenKind::As)) {
            loop.type = expressions_.ParseTypeName();
        }
        cursor_.Expect(TokenKind::In);
        loop.array = expressions_.ParseExpression();
        loop.body = ParseForBody(loop.variable, at);
        return loop;
    }

    /// What a For repeats, its Next included, which may name the variable.
    Block ParseForBody(const std::string& variable, Position at) {
        auto body = ParseBlock({TokenKind::Next}, TokenKind::For, at);
        cursor_.Take();
        if (cursor_.IsAt(TokenKind::Name)) {
            const auto name = cursor_.Take();
            if (!SameName(name.text, variable)) {
                throw ProgramError(name.at, "\"Next\" names " + Quoted(name.text) +
                                                ", but the loop counts " + Quoted(variable));
            }
        }
        return body;
    }

    Statement ParseWhile() {
        const Position at = cursor_.Take().at;
        auto condition = expressions_.ParseExpression();
        auto body = ParseBlock({TokenKind::Wend}, TokenKind::While, at);
        cursor_.Take();
        return syntax::While{std::move(condition), std::move(body)};
    }

    Statement ParseDo() {
        const Position at = cursor_.Take().at;
        syntax::Do loop;
        loop.before = ParseLoopTest();
        loop.body = ParseBlock({TokenKind::Loop}, TokenKind::Do, at);
        cursor_.Take();
        loop.after = ParseLoopTest();
        return loop;
    }

    syntax::Do::Test ParseLoopTest() {
        const bool isWhile = cursor_.IsAt(TokenKind::While);
        if (!cursor_.IsAtAny({TokenKind::While, TokenKind::Until})) {
            return {};
        }
        cursor_.Take();
        return {expressions_.ParseExpression(), isWhile};
    }

    LoopKind ParseLoopKind() {
        if (cursor_.TryTake(TokenKind::For)) {
            return LoopKind::For;
        }
        if (cursor_.TryTake(TokenKind::While)) {
            return LoopKind::While;
        }
        return cursor_.TryTake(TokenKind::Do) ? LoopKind::Do : LoopKind::Any;
    }

    Statement ParseTry() {
        const Position at = cursor_.Take().at;
        const auto ends = {TokenKind::Catch, TokenKind::Finally, TokenKind::End};
        syntax::Try result;
        result.body = ParseBlock(ends, TokenKind::Try, at);
        while (cursor_.IsAt(TokenKind::Catch)) {
            syntax::Try::Catch handler{{}, cursor_.Take().at, {}, {}};
            if (cursor_.IsAt(TokenKind::Name)) {
                handler.at = cursor_.At();
                handler.name = cursor_.Take().text;
                if (cursor_.TryTake(TokenKind::As)) {
                    handler.type = expressions_.ParseTypeName();
                }
            }
            handler.body = ParseBlock(ends, TokenKind::Try, at);
            result.catches.push_back(std::move(handler));
        }
        const bool hasFinally = cursor_.TryTake(TokenKind::Finally);
        if (hasFinally) {
            result.finally = ParseBlock({TokenKind::End}, TokenKind::Try, at);
        }
        if (result.catches.empty() && !hasFinally) {
            cursor_.Fail(R"("Catch" or "Finally")");
        }
        ExpectEnd(TokenKind::Try);
        return result;
    }

    syntax::Routine ParseRoutine() {
        const auto head = cursor_.Take();
        if (!cursor_.IsAt(TokenKind::Name)) {
            cursor_.Fail("a name");
        }
        syntax::Routine routine{expressions_.ParseSignature(), {}};
        const bool isFunction = head.kind == TokenKind::Function;
        if (isFunction != routine.signature.result.has_value()) {
            throw ProgramError(cursor_.At(), isFunction ? "a Function needs \"As\" and its type"
                                                        : "a Sub returns nothing");
        }
        cursor_.ExpectEndOfLine();
        routine.body = ParseBlock({TokenKind::End}, head.kind, head.at);
        ExpectEnd(head.kind);
        cursor_.ExpectEndOfLine();
        return routine;
    }

    TokenCursor cursor_;
    ExpressionParser expressions_;
    std::size_t depth_ = 0;
};

/// Runs a parser over a text that must hold nothing else.
template <typename Parse>
auto ParseWhole(std::string_view text, Parse parse) {
    TokenCursor cursor(text);
    ExpressionParser expressions(cursor);
    auto result = parse(expressions);
    cursor.SkipEmptyLines();
    if (!cursor.IsAt(TokenKind::EndOfText)) {
        cursor.Fail("the end");
    }
    return result;
}

}  // namespace

syntax::Program ParseProgram(std::string_view text) {
    return StatementParser(text).ParseProgram();
}

syntax::ExpressionPtr ParseExpression(std::string_view text) {
    return ParseWhole(text, [](ExpressionParser& parser) { return parser.ParseExpression(); });
}

syntax::Signature ParseDeclaration(std::string_view text) {
    return ParseWhole(text, [](ExpressionParser& parser) { return parser.ParseSignature(); });
}

syntax::TypeName ParseTypeName(std::string_view text) {
    return ParseWhole(text, [](ExpressionParser& parser) { return parser.ParseTypeName(); });
}

}  // namespace standin::language
