#include "standin/language/expression_parser.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "standin/language/constants.hpp"
#include "standin/language/names.hpp"

namespace standin::language {
namespace {

using syntax::BinaryOperator;
using syntax::ExpressionPtr;
using syntax::Expressions;
using syntax::UnaryOperator;

/// Binary operators but `^`, which binds tighter than the unary ones. A higher level binds tighter.
struct BinaryRow {
    TokenKind token;
    BinaryOperator operation;
    int level;
};

constexpr int LowestLevel = 0;
constexpr int ComparisonLevel = 2;

constexpr auto BinaryOperators = std::to_array<BinaryRow>({
    {TokenKind::Or, BinaryOperator::Or, LowestLevel},
    {TokenKind::Xor, BinaryOperator::Xor, LowestLevel},
    {TokenKind::And, BinaryOperator::And, 1},
    {TokenKind::Equal, BinaryOperator::Equal, ComparisonLevel},
    {TokenKind::NotEqual, BinaryOperator::NotEqual, ComparisonLevel},
    {TokenKind::Less, BinaryOperator::Less, ComparisonLevel},
    {TokenKind::LessEqual, BinaryOperator::LessEqual, ComparisonLevel},
    {TokenKind::Greater, BinaryOperator::Greater, ComparisonLevel},
    {TokenKind::GreaterEqual, BinaryOperator::GreaterEqual, ComparisonLevel},
    {TokenKind::Is, BinaryOperator::Is, ComparisonLevel},
    {TokenKind::Plus, BinaryOperator::Add, 3},
    {TokenKind::Minus, BinaryOperator::Subtract, 3},
    {TokenKind::Star, BinaryOperator::Multiply, 4},
    {TokenKind::Slash, BinaryOperator::Divide, 4},
    {TokenKind::Backslash, BinaryOperator::IntegerDivide, 4},
    {TokenKind::Mod, BinaryOperator::Modulo, 4},
});

const BinaryRow* FindBinary(TokenKind token) {
    const auto* row = std::ranges::find(BinaryOperators, token, &BinaryRow::token);
    return row == BinaryOperators.end() ? nullptr : row;
}

std::optional<UnaryOperator> UnaryOf(TokenKind token) {
    switch (token) {
        case TokenKind::Plus:
            return UnaryOperator::Plus;
        case TokenKind::Minus:
            return UnaryOperator::Minus;
        case TokenKind::Not:
            return UnaryOperator::Not;
        default:
            return std::nullopt;
    }
}

std::size_t HeightOf(const ExpressionPtr& expression) {
    return expression ? expression->height : 0;
}

std::size_t HeightOf(const Expressions& expressions) {
    std::size_t height = 0;
    for (const auto& expression : expressions) {
        height = std::max(height, expression->height);
    }
    return height;
}

ExpressionPtr Make(Position at, std::size_t heightBelow, syntax::Expression::Node node) {
    if (heightBelow >= MaximumExpressionHeight) {
        throw ProgramError(at, "the expression has more than " +
                                   std::to_string(MaximumExpressionHeight) +
                                   " levels; compute it in several steps");
    }
    return std::make_unique<syntax::Expression>(
        syntax::Expression{at, heightBelow + 1, std::move(node)});
}

ExpressionPtr MakeUnary(Position at, UnaryOperator operation, ExpressionPtr operand) {
    const auto height = HeightOf(operand);
    return Make(at, height, syntax::Unary{operation, std::move(operand)});
}

ExpressionPtr MakeBinary(Position at, BinaryOperator operation, ExpressionPtr left,
                         ExpressionPtr right) {
    const auto height = std::max(HeightOf(left), HeightOf(right));
    return Make(at, height, syntax::Binary{operation, std::move(left), std::move(right)});
}

/// Throws when the last parameter so far cannot stand where it does.
void RequirePlace(const std::vector<syntax::Parameter>& parameters) {
    const auto& last = parameters.back();
    if (last.isExtended && parameters.size() > 1) {
        throw ProgramError(last.at, "\"Extends\" stands before the first parameter only");
    }
    if (parameters.size() > 1 && parameters[parameters.size() - 2].isParamArray) {
        throw ProgramError(last.at, "nothing can follow a \"ParamArray\"");
    }
    if (last.isParamArray && (last.byRef || last.defaultValue || last.isOptional)) {
        throw ProgramError(last.at, "a \"ParamArray\" is nothing else");
    }
}

}  // namespace

ExpressionPtr ExpressionParser::ParseExpression() {
    const NestingGuard guard(depth_, cursor_.At());
    auto left = ParseBinary(LowestLevel);
    const Position at = cursor_.At();
    if (!cursor_.TryTake(TokenKind::Colon)) {
        return left;
    }
    // `a : b : c` is a Pair with a Pair on its right.
    Expressions sides;
    sides.push_back(std::move(left));
    sides.push_back(ParseExpression());
    const auto height = HeightOf(sides);
    return Make(at, height, syntax::New{{std::string(PairClass), at}, std::move(sides)});
}

ExpressionPtr ExpressionParser::ParseBinary(int level) {
    auto left = ParseUnary();
    for (;;) {
        if (cursor_.IsAt(TokenKind::IsA) && level <= ComparisonLevel) {
            left = ParseClassTest(std::move(left));
            continue;
        }
        const auto* row = FindBinary(cursor_.Kind());
        if (row == nullptr || row->level < level) {
            return left;
        }
        RefuseStep();
        const Position at = cursor_.Take().at;
        left = MakeBinary(at, row->operation, std::move(left), ParseBinary(row->level + 1));
    }
}

void ExpressionParser::RefuseStep() const {
    const auto& sign = cursor_.Current();
    if (!cursor_.IsAtAny({TokenKind::Plus, TokenKind::Minus}) ||
        cursor_.Following().kind != sign.kind) {
        return;
    }
    const auto behind = cursor_.TokenAt(cursor_.Mark() + 2).kind;
    if (behind == TokenKind::EndOfLine || behind == TokenKind::EndOfText) {
        throw ProgramError(sign.at, "there is no " + Quoted(sign.text + sign.text) + "; write a " +
                                        sign.text + "= 1");
    }
}

ExpressionPtr ExpressionParser::ParseClassTest(ExpressionPtr value) {
    const Position at = cursor_.Take().at;
    const auto height = HeightOf(value);
    return Make(at, height, syntax::ClassTest{std::move(value), ParseTypeName()});
}

ExpressionPtr ExpressionParser::ParseUnary() {
    const auto operation = UnaryOf(cursor_.Kind());
    if (!operation) {
        return ParsePower();
    }
    const NestingGuard guard(depth_, cursor_.At());
    const Position at = cursor_.Take().at;
    return MakeUnary(at, *operation, ParseUnary());
}

ExpressionPtr ExpressionParser::ParsePower() {
    auto left = ParsePostfix();
    while (cursor_.IsAt(TokenKind::Caret)) {
        const Position at = cursor_.Take().at;
        left = MakeBinary(at, BinaryOperator::Power, std::move(left), ParseExponent());
    }
    return left;
}

/// An exponent may carry signs of its own: `2 ^ -1`.
ExpressionPtr ExpressionParser::ParseExponent() {
    const auto operation = UnaryOf(cursor_.Kind());
    if (!operation) {
        return ParsePostfix();
    }
    const NestingGuard guard(depth_, cursor_.At());
    const Position at = cursor_.Take().at;
    return MakeUnary(at, *operation, ParseExponent());
}

ExpressionPtr ExpressionParser::ParsePostfix() {
    auto expression = ParsePrimary();
    for (;;) {
        const auto height = HeightOf(expression);
        if (cursor_.TryTake(TokenKind::Dot)) {
            const auto member = cursor_.ExpectWord();
            expression =
                Make(member.at, height, syntax::Member{std::move(expression), member.text});
        } else if (cursor_.IsAt(TokenKind::OpenParenthesis)) {
            const Position at = expression->at;
            auto arguments = ParseOptionalArguments();
            const auto tallest = std::max(height, HeightOf(arguments));
            expression =
                Make(at, tallest, syntax::Call{std::move(expression), std::move(arguments)});
        } else {
            return expression;
        }
    }
}

ExpressionPtr ExpressionParser::ParsePrimary() {
    const Position at = cursor_.At();
    switch (cursor_.Kind()) {
        case TokenKind::Integer:
            return Make(at, 0, syntax::IntegerLiteral{cursor_.Take().integer});
        case TokenKind::Real:
            return ParseRealLiteral();
        case TokenKind::Text:
            return Make(at, 0, syntax::TextLiteral{cursor_.Take().text});
        case TokenKind::True:
        case TokenKind::False:
            return Make(at, 0, syntax::BooleanLiteral{cursor_.Take().kind == TokenKind::True});
        case TokenKind::Nil:
            cursor_.Take();
            return Make(at, 0, syntax::NilLiteral{});
        case TokenKind::Name:
            return Make(at, 0, syntax::Name{cursor_.Take().text});
        case TokenKind::New:
            return ParseNew();
        case TokenKind::CType:
            return ParseCast();
        case TokenKind::AddressOf:
            return ParseAddress();
        case TokenKind::If:
            return ParseConditional();
        case TokenKind::OpenParenthesis:
            return ParseParenthesis();
        default:
            cursor_.Fail("an expression");
    }
}

ExpressionPtr ExpressionParser::ParseRealLiteral() {
    auto literal = cursor_.Expect(TokenKind::Real);
    return Make(literal.at, 0, syntax::RealLiteral{literal.real, std::move(literal.text)});
}

ExpressionPtr ExpressionParser::ParseParenthesis() {
    cursor_.Expect(TokenKind::OpenParenthesis);
    auto inner = ParseExpression();
    cursor_.Expect(TokenKind::CloseParenthesis);
    return inner;
}

ExpressionPtr ExpressionParser::ParseNew() {
    cursor_.Expect(TokenKind::New);
    auto type = ParseTypeName();
    const Position at = type.at;
    auto arguments = ParseOptionalArguments();
    const auto height = HeightOf(arguments);
    return Make(at, height, syntax::New{std::move(type), std::move(arguments)});
}

ExpressionPtr ExpressionParser::ParseCast() {
    const Position at = cursor_.Expect(TokenKind::CType).at;
    cursor_.Expect(TokenKind::OpenParenthesis);
    auto value = ParseExpression();
    cursor_.Expect(TokenKind::Comma);
    auto type = ParseTypeName();
    cursor_.Expect(TokenKind::CloseParenthesis);
    const auto height = HeightOf(value);
    return Make(at, height, syntax::Cast{std::move(value), std::move(type)});
}

ExpressionPtr ExpressionParser::ParseAddress() {
    const Position at = cursor_.Expect(TokenKind::AddressOf).at;
    if (!cursor_.IsAt(TokenKind::Name)) {
        cursor_.Fail("the name of a routine");
    }
    auto routine = ParsePostfix();
    const auto height = HeightOf(routine);
    return Make(at, height, syntax::AddressOf{std::move(routine)});
}

ExpressionPtr ExpressionParser::ParseConditional() {
    const Position at = cursor_.Expect(TokenKind::If).at;
    cursor_.Expect(TokenKind::OpenParenthesis);
    auto condition = ParseExpression();
    cursor_.Expect(TokenKind::Comma);
    auto value = ParseExpression();
    cursor_.Expect(TokenKind::Comma);
    auto otherwise = ParseExpression();
    cursor_.Expect(TokenKind::CloseParenthesis);
    const auto height = std::max({HeightOf(condition), HeightOf(value), HeightOf(otherwise)});
    return Make(at, height,
                syntax::Conditional{std::move(condition), std::move(value), std::move(otherwise)});
}

Expressions ExpressionParser::ParseExpressions() {
    Expressions expressions;
    do {
        expressions.push_back(ParseExpression());
    } while (cursor_.TryTake(TokenKind::Comma));
    return expressions;
}

Expressions ExpressionParser::ParseOptionalArguments() {
    Expressions arguments;
    if (!cursor_.TryTake(TokenKind::OpenParenthesis)) {
        return arguments;
    }
    if (!cursor_.IsAt(TokenKind::CloseParenthesis)) {
        arguments = ParseExpressions();
    }
    cursor_.Expect(TokenKind::CloseParenthesis);
    return arguments;
}

syntax::TypeName ExpressionParser::ParseTypeName() {
    if (!IsWord(cursor_.Current())) {
        cursor_.Fail("the name of a type");
    }
    const auto first = cursor_.Take();
    syntax::TypeName type{first.text, first.at};
    while (cursor_.TryTake(TokenKind::Dot)) {
        type.module += (type.module.empty() ? "" : ".") + type.name;
        type.name = cursor_.ExpectWord().text;
    }
    return type;
}

syntax::Signature ExpressionParser::ParseSignature() {
    syntax::Signature signature;
    const auto name = cursor_.ExpectWord();
    signature.name = name.text;
    signature.at = name.at;
    if (cursor_.TryTake(TokenKind::OpenParenthesis)) {
        if (!cursor_.IsAt(TokenKind::CloseParenthesis)) {
            do {
                signature.parameters.push_back(ParseParameter());
                RequirePlace(signature.parameters);
            } while (cursor_.TryTake(TokenKind::Comma));
        }
        cursor_.Expect(TokenKind::CloseParenthesis);
    }
    if (cursor_.TryTake(TokenKind::As)) {
        signature.result = ParseTypeName();
        signature.result->dimensions = TakeBrackets();
    }
    return signature;
}

std::size_t ExpressionParser::TakeBrackets() {
    if (!cursor_.TryTake(TokenKind::OpenParenthesis)) {
        return 0;
    }
    std::size_t dimensions = 1;
    while (cursor_.TryTake(TokenKind::Comma)) {
        ++dimensions;
    }
    cursor_.Expect(TokenKind::CloseParenthesis);
    return dimensions;
}

syntax::Parameter ExpressionParser::ParseParameter() {
    syntax::Parameter parameter;
    // A parameter may itself be called like one of the words that can precede it.
    for (;;) {
        const bool isName = cursor_.Following().kind == TokenKind::As;
        if (isName || !cursor_.IsAtAny({TokenKind::ByRef, TokenKind::ByVal, TokenKind::Optional,
                                        TokenKind::ParamArray, TokenKind::Extends})) {
            break;
        }
        const auto word = cursor_.Take().kind;
        parameter.byRef = parameter.byRef || word == TokenKind::ByRef;
        parameter.isOptional = parameter.isOptional || word == TokenKind::Optional;
        parameter.isParamArray = parameter.isParamArray || word == TokenKind::ParamArray;
        parameter.isExtended = parameter.isExtended || word == TokenKind::Extends;
    }
    if (SameName(cursor_.Current().text, "Assigns") && IsWord(cursor_.Following()) &&
        cursor_.Following().kind != TokenKind::As) {
        throw ProgramError(cursor_.At(), "\"Assigns\" is not supported here");
    }
    const auto name = cursor_.ExpectWord();
    parameter.name = name.text;
    parameter.at = name.at;
    const auto dimensions = TakeBrackets();
    cursor_.Expect(TokenKind::As);
    parameter.type = ParseTypeName();
    parameter.type.dimensions = parameter.isParamArray ? 1 : dimensions;
    if (cursor_.TryTake(TokenKind::Equal)) {
        parameter.defaultValue = ParseExpression();
        const auto& value = *parameter.defaultValue;
        const auto* sign = std::get_if<syntax::Unary>(&value.node);
        const bool isNamed =
            sign == nullptr ? IsDottedName(value)
                            : sign->operation != UnaryOperator::Not && IsDottedName(*sign->operand);
        if (!IsLiteral(value) && !isNamed) {
            FailWithoutDefault(value.at);
        }
    }
    return parameter;
}

bool ExpressionParser::AtExpression() const {
    return cursor_.IsAtAny({TokenKind::Integer, TokenKind::Real, TokenKind::Text, TokenKind::True,
                            TokenKind::False, TokenKind::Nil, TokenKind::Name, TokenKind::New,
                            TokenKind::CType, TokenKind::If, TokenKind::OpenParenthesis,
                            TokenKind::AddressOf, TokenKind::Plus, TokenKind::Minus,
                            TokenKind::Not});
}

}  // namespace standin::language
