// The statements that hold others, and the routines.
#include <utility>

#include "standin/language/names.hpp"
#include "standin/language/statement_parser.hpp"

namespace standin::language {

using syntax::BinaryOperator;
using syntax::LoopKind;

syntax::Statement::Node StatementParser::ParseIf() {
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
    ExpectBlockEnd(TokenKind::If);
    return result;
}

syntax::Statement::Node StatementParser::ParseSingleLineIf(syntax::ExpressionPtr condition) {
    const NestingGuard guard(depth_, cursor_.At());
    syntax::If result;
    result.branches.push_back({std::move(condition), {}});
    result.branches.front().body.push_back(ParseUnended());
    if (cursor_.TryTake(TokenKind::Else)) {
        result.otherwise.push_back(ParseUnended());
    }
    return result;
}

void StatementParser::ExpectEnd(TokenKind what) {
    if (!isClosed_) {
        return;
    }
    cursor_.Expect(TokenKind::End);
    if (cursor_.TryTake(what)) {
        return;
    }
    errors_.Try([&] { cursor_.Expect(what); });
    SkipToEndOfLine();
}

void StatementParser::ExpectBlockEnd(TokenKind what) {
    if (isClosed_ && cursor_.IsAt(TokenKind::End) &&
        cursor_.Following().kind == TokenKind::EndOfLine) {
        cursor_.Take();
        return;
    }
    ExpectEnd(what);
}

void StatementParser::ExpectLoopEnd(TokenKind what) {
    if (!isClosed_ || cursor_.TryTake(what)) {
        return;
    }
    errors_.Try([&] { cursor_.Expect(what); });
    SkipToEndOfLine();
}

syntax::Statement::Node StatementParser::ParseSelect() {
    const Position at = cursor_.Take().at;
    cursor_.Expect(TokenKind::Case);
    syntax::Select select;
    select.subject = expressions_.ParseExpression();
    cursor_.ExpectEndOfLine();
    SkipToCode();
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
    ExpectBlockEnd(TokenKind::Select);
    return select;
}

std::vector<syntax::Select::Test> StatementParser::ParseCaseTests() {
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

BinaryOperator StatementParser::ParseComparison() {
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

syntax::Statement::Node StatementParser::ParseFor() {
    const Position at = cursor_.Take().at;
    if (cursor_.TryTake(TokenKind::Each)) {
        return ParseForEach(at);
    }
    const auto variable = cursor_.ExpectNewName();
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

syntax::Statement::Node StatementParser::ParseForEach(Position at) {
    const auto variable = cursor_.ExpectNewName();
    syntax::ForEach loop{variable.text, variable.at, {}, {}, {}};
    if (cursor_.TryTake(TokenKind::As)) {
        loop.type = expressions_.ParseTypeName();
    }
    cursor_.Expect(TokenKind::In);
    loop.array = expressions_.ParseExpression();
    loop.body = ParseForBody(loop.variable, at);
    return loop;
}

syntax::Block StatementParser::ParseForBody(const std::string& variable, Position at) {
    auto body = ParseBlock({TokenKind::Next}, TokenKind::For, at);
    ExpectLoopEnd(TokenKind::Next);
    if (isClosed_ && cursor_.IsAt(TokenKind::Name)) {
        const auto name = cursor_.Take();
        if (!SameName(name.text, variable)) {
            throw ProgramError(name.at, "\"Next\" names " + Quoted(name.text) +
                                            ", but the loop counts " + Quoted(variable));
        }
    }
    return body;
}

syntax::Statement::Node StatementParser::ParseWhile() {
    const Position at = cursor_.Take().at;
    auto condition = expressions_.ParseExpression();
    auto body = ParseBlock({TokenKind::Wend}, TokenKind::While, at);
    ExpectLoopEnd(TokenKind::Wend);
    return syntax::While{std::move(condition), std::move(body)};
}

syntax::Statement::Node StatementParser::ParseDo() {
    const Position at = cursor_.Take().at;
    syntax::Do loop;
    loop.before = ParseLoopTest();
    loop.body = ParseBlock({TokenKind::Loop}, TokenKind::Do, at);
    ExpectLoopEnd(TokenKind::Loop);
    if (isClosed_) {
        loop.after = ParseLoopTest();
    }
    return loop;
}

syntax::Do::Test StatementParser::ParseLoopTest() {
    const bool isWhile = cursor_.IsAt(TokenKind::While);
    if (!cursor_.IsAtAny({TokenKind::While, TokenKind::Until})) {
        return {};
    }
    cursor_.Take();
    return {expressions_.ParseExpression(), isWhile};
}

syntax::LoopTarget StatementParser::ParseLoopTarget() {
    if (cursor_.TryTake(TokenKind::For)) {
        syntax::LoopTarget target{LoopKind::For, {}};
        if (cursor_.IsAt(TokenKind::Name)) {
            target.variable = cursor_.Take().text;
        }
        return target;
    }
    if (cursor_.TryTake(TokenKind::While)) {
        return {LoopKind::While, {}};
    }
    return {cursor_.TryTake(TokenKind::Do) ? LoopKind::Do : LoopKind::Any, {}};
}

syntax::Statement::Node StatementParser::ParseTry() {
    const Position at = cursor_.Take().at;
    const auto ends = {TokenKind::Catch, TokenKind::Finally, TokenKind::End};
    syntax::Try result;
    result.body = ParseBlock(ends, TokenKind::Try, at);
    result.catches = ParseHandlers(TokenKind::Catch, ends, TokenKind::Try, at);
    const bool hasFinally = cursor_.TryTake(TokenKind::Finally);
    if (hasFinally) {
        result.finally = ParseBlock({TokenKind::End}, TokenKind::Try, at);
    }
    if (isClosed_ && result.catches.empty() && !hasFinally) {
        cursor_.Fail(R"("Catch" or "Finally")");
    }
    ExpectBlockEnd(TokenKind::Try);
    return result;
}

std::vector<syntax::Try::Catch> StatementParser::ParseHandlers(
    TokenKind word, std::initializer_list<TokenKind> ends, TokenKind opener, Position openerAt) {
    std::vector<syntax::Try::Catch> handlers;
    while (cursor_.IsAt(word)) {
        syntax::Try::Catch handler{{}, cursor_.Take().at, {}, {}};
        if (cursor_.IsAt(TokenKind::Name)) {
            handler.at = cursor_.At();
            handler.name = cursor_.Take().text;
            if (cursor_.TryTake(TokenKind::As)) {
                handler.type = expressions_.ParseTypeName();
            }
        }
        handler.body = ParseBlock(ends, opener, openerAt);
        handlers.push_back(std::move(handler));
    }
    return handlers;
}

syntax::Routine StatementParser::ParseRoutine() {
    const auto head = cursor_.Take();
    if (!cursor_.IsAt(TokenKind::Name)) {
        cursor_.Fail("a name");
    }
    RequireNewName(cursor_.Current().text, cursor_.At());
    const auto outside = constants_;
    syntax::Routine routine{expressions_.ParseSignature(), {}};
    for (const auto& parameter : routine.signature.parameters) {
        RequireNewName(parameter.name, parameter.at);
    }
    const bool isFunction = head.kind == TokenKind::Function;
    if (isFunction != routine.signature.result.has_value()) {
        throw ProgramError(cursor_.At(), isFunction ? "a Function needs \"As\" and its type"
                                                    : "a Sub returns nothing");
    }
    cursor_.ExpectEndOfLine();
    const auto ends = {TokenKind::Exception, TokenKind::Finally, TokenKind::End};
    routine.body = ParseBlock(ends, head.kind, head.at);
    if (isClosed_ && !cursor_.IsAt(TokenKind::End)) {
        GuardBody(routine, head);
    }
    ExpectEnd(head.kind);
    if (isClosed_) {
        cursor_.ExpectEndOfLine();
    }
    isClosed_ = true;
    constants_ = outside;
    return routine;
}

void StatementParser::GuardBody(syntax::Routine& routine, const Token& head) {
    const Position at = cursor_.At();
    syntax::Try guarded;
    guarded.body = std::move(routine.body);
    guarded.catches = ParseHandlers(TokenKind::Exception,
                                    {TokenKind::Exception, TokenKind::Finally, TokenKind::End},
                                    head.kind, head.at);
    if (cursor_.TryTake(TokenKind::Finally)) {
        guarded.finally = ParseBlock({TokenKind::End}, head.kind, head.at);
    }
    routine.body.clear();
    routine.body.push_back(
        std::make_unique<syntax::Statement>(syntax::Statement{at, std::move(guarded)}));
}

}  // namespace standin::language
