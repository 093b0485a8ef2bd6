#include "standin/language/expression_checker.hpp"

#include <limits>
#include <utility>

#include "standin/language/hints.hpp"
#include "standin/language/text.hpp"

namespace standin::language {
namespace {

/// Longer chains of names are left out of messages.
constexpr std::size_t LongestWrittenName = 60;

/// A name, or several with dots between them, as they are written; empty for anything else.
std::string WrittenName(const syntax::Expression& expression) {
    if (const auto* name = std::get_if<syntax::Name>(&expression.node)) {
        return name->name.size() > LongestWrittenName ? std::string() : name->name;
    }
    const auto* member = std::get_if<syntax::Member>(&expression.node);
    if (member == nullptr || member->name.size() > LongestWrittenName) {
        return {};
    }
    const auto object = WrittenName(*member->object);
    const bool isShown =
        !object.empty() && object.size() + member->name.size() < LongestWrittenName;
    return isShown ? object + "." + member->name : std::string();
}

}  // namespace

Checked ExpressionChecker::MakeConstant(Value value, Type type, Position at) {
    return {std::make_unique<code::Constant>(std::move(value)), type, at, {}, false};
}

Checked ExpressionChecker::MakeBoolean(code::ExpressionPtr code, Position at) {
    return {std::move(code), {Kind::Boolean}, at, {}, false};
}

Checked ExpressionChecker::Check(const syntax::Expression& expression) {
    auto checked = CheckCall(expression);
    if (checked.type.kind == Kind::None) {
        throw ProgramError(expression.at, "this returns no value");
    }
    return checked;
}

Checked ExpressionChecker::CheckCall(const syntax::Expression& expression) {
    auto checked = std::visit([&](const auto& node) { return CheckNode(node, expression.at); },
                              expression.node);
    checked.code->SetText(WrittenName(expression));
    return checked;
}

code::ExpressionPtr ExpressionChecker::CheckAs(const syntax::Expression& expression, Type type) {
    const auto* call = std::get_if<syntax::Call>(&expression.node);
    if (type.kind == Kind::Array && call != nullptr && IsArrayFunction(*call)) {
        return CheckArrayCall(*call, type.ElementType(), expression.at).code;
    }
    return ConvertTo(Check(expression), type).code;
}

code::ExpressionPtr ExpressionChecker::CheckAsText(const syntax::Expression& expression) {
    auto value = Check(expression);
    if (FitOf(value, {Kind::Text}) == Fit::None) {
        throw ProgramError(value.at, "\"Print\" takes a String, this is " + NameOf(value.type) +
                                         (FindTextFunction(value.type.kind) ? "; use Str"
                                          : value.type.kind == Kind::Enumeration
                                              ? ConversionHint(value, {Kind::Text})
                                              : ""));
    }
    return ConvertTo(std::move(value), {Kind::Text}).code;
}

code::ExpressionPtr ExpressionChecker::CheckAsShown(const syntax::Expression& expression) {
    auto value = Check(expression);
    if (HasTextForm(value.type)) {
        return ConvertTo(std::move(value), {Kind::Text}).code;
    }
    const auto function = FindTextFunction(value.type.kind);
    if (function == nullptr) {
        throw ProgramError(value.at, NameOf(value.type) + " cannot be printed");
    }
    std::vector<code::Argument> arguments;
    arguments.push_back({std::move(value.code), value.type.kind, false});
    return std::make_unique<code::BuiltInCall>(function, std::move(arguments));
}

Checked ExpressionChecker::CheckDefault(const Parameter& parameter, Position at) {
    auto checked = Check(*parameter.defaultValue);
    if (parameter.type.kind == Kind::Enumeration) {
        checked = CastTo(std::move(checked), parameter.type, at);
    }
    checked.at = at;
    return checked;
}

std::shared_ptr<const syntax::Expression> ExpressionChecker::ResolveDefault(
    std::shared_ptr<const syntax::Expression> written, Type type) {
    const Position at = written->at;
    if (type.kind == Kind::Instance && !std::holds_alternative<syntax::NilLiteral>(written->node)) {
        throw ProgramError(at, "the default of an object can only be Nil");
    }
    if (const auto item = FindItem(*written, type)) {
        return LiteralOf(*item, at);
    }
    if (!IsLiteral(*written)) {
        const auto find = [this](std::string_view name) { return FindConstant(name); };
        written = LiteralOf(Evaluate(*written, find), at);
    }
    CheckAs(*written, type);
    return written;
}

std::optional<std::int64_t> ExpressionChecker::FindItem(const syntax::Expression& expression,
                                                        Type type) {
    const auto* member = std::get_if<syntax::Member>(&expression.node);
    if (member == nullptr || FindConstant(DottedName(expression)) != nullptr) {
        return std::nullopt;
    }
    const auto* model = CheckReceiver(*member->object, member->name).model;
    if (model == nullptr || model->origin() != ClassModel::Origin::Enumeration) {
        FailWithoutDefault(expression.at);
    }
    const auto* item = model->FindItem(member->name);
    if (item == nullptr) {
        FailWithoutMember(*model, member->name, expression.at);
    }
    if (type.model != model) {
        throw ProgramError(expression.at,
                           "expected " + NameOf(type) + ", this is " + model->name());
    }
    return item->value;
}

void ExpressionChecker::RequireConstant(const syntax::Expression& expression) const {
    if (const auto* unary = std::get_if<syntax::Unary>(&expression.node)) {
        return RequireConstant(*unary->operand);
    }
    if (const auto* binary = std::get_if<syntax::Binary>(&expression.node)) {
        RequireConstant(*binary->left);
        return RequireConstant(*binary->right);
    }
    const auto* name = std::get_if<syntax::Name>(&expression.node);
    const auto* variable = name == nullptr ? nullptr : FindLocal(name->name);
    const bool isConstant =
        variable != nullptr
            ? variable->isConstant
            : IsDottedName(expression) && FindConstant(DottedName(expression)) != nullptr;
    if (!isConstant && !IsLiteral(expression)) {
        throw ProgramError(expression.at,
                           "the value of a constant consists of literals and constants");
    }
}

const syntax::ConstantValue* ExpressionChecker::FindConstant(std::string_view name) const {
    const auto dot = name.rfind('.');
    const bool isQualified = dot != std::string_view::npos;
    const auto unit = isQualified ? std::optional(name.substr(0, dot)) : std::nullopt;
    if (const auto* constant =
            FindDeclared(callables_.constants, isQualified ? name.substr(dot + 1) : name, unit)) {
        return &constant->value;
    }
    const auto* ofMain = callables_.mainConstants.Find(name);
    return ofMain == nullptr ? types_.constants().Find(name) : ofMain;
}

Checked ExpressionChecker::CheckNode(const syntax::IntegerLiteral& literal, Position at) {
    return MakeInteger(literal.value, false, at);
}

Checked ExpressionChecker::MakeInteger(std::uint64_t magnitude, bool isNegative, Position at) {
    constexpr auto LargestInt64 = std::uint64_t{std::numeric_limits<std::int64_t>::max()};
    if (magnitude > LargestInt64 + (isNegative ? 1 : 0)) {
        if (isNegative) {
            throw ProgramError(at, "the number does not fit in 64 bits");
        }
        return MakeConstant(Value::Of(magnitude), {Kind::UInt64}, at);
    }
    const auto value = static_cast<std::int64_t>(isNegative ? 0U - magnitude : magnitude);
    const bool isInteger = std::in_range<Integer>(value);
    auto constant = MakeConstant(Value::Of(value), {isInteger ? IntegerKind : Kind::Int64}, at);
    constant.literal = value;
    return constant;
}

Checked ExpressionChecker::MakeReal(const syntax::RealLiteral& literal, bool isNegative,
                                    Position at) {
    const double value = isNegative ? -literal.value : literal.value;
    auto constant = MakeConstant(Value::Of(value), {Kind::Double}, at);
    constant.amount = AmountIn(literal.digits, isNegative);
    return constant;
}

Checked ExpressionChecker::CheckNode(const syntax::RealLiteral& literal, Position at) {
    return MakeReal(literal, false, at);
}

Checked ExpressionChecker::CheckNode(const syntax::TextLiteral& literal, Position at) {
    return {std::make_unique<code::TextConstant>(literal.value), {Kind::Text}, at, {}, false};
}

Checked ExpressionChecker::CheckNode(const syntax::BooleanLiteral& literal, Position at) {
    return MakeConstant(Value::Of(literal.value), {Kind::Boolean}, at);
}

Checked ExpressionChecker::CheckNode(const syntax::NilLiteral& /*literal*/, Position at) {
    return MakeConstant(Value::Adopt(Object{}), {Kind::Nil}, at);
}

Checked ExpressionChecker::MakeVariable(const Variable& variable, Position at) {
    using enum code::VariableKind;
    code::ExpressionPtr code;
    switch (variable.kind) {
        case Local:
            code = std::make_unique<code::Variable<Local>>(variable.slot);
            break;
        case Main:
            code = std::make_unique<code::Variable<Main>>(variable.slot);
            break;
        case Reference:
            code = std::make_unique<code::Variable<Reference>>(variable.slot);
            break;
        case Global:
            code = std::make_unique<code::Variable<Global>>(variable.slot);
            break;
    }
    code->SetAssigned(variable.isAssigned);
    return {std::move(code), variable.type, at, {}, !variable.isConstant};
}

Checked ExpressionChecker::CheckNode(const syntax::Name& name, Position at) {
    if (const auto* variable = FindLocal(name.name)) {
        return MakeVariable(*variable, at);
    }
    if (IsOwnMember(name.name)) {
        return CheckMember(OwnReceiver(at), name.name, at);
    }
    if (const auto* variable = FindDeclared(callables_.variables, name.name, std::nullopt)) {
        return MakeVariable(variable->variable, at);
    }
    if (const auto* constant = FindDeclared(callables_.constants, name.name, std::nullopt)) {
        return CheckConstant(constant->value, at);
    }
    if (const auto* constant = types_.constants().Find(name.name)) {
        return CheckConstant(*constant, at);
    }
    return CheckNamedCall(name.name, {}, at);
}

Checked ExpressionChecker::CheckNode(const syntax::Conditional& conditional, Position at) {
    auto condition = CheckAs(*conditional.condition, {Kind::Boolean});
    auto value = Check(*conditional.value);
    auto otherwise = Check(*conditional.otherwise);
    const bool areNumbers = IsNumber(value.type.kind) && IsNumber(otherwise.type.kind);
    Type type = FitOf(otherwise, value.type) != Fit::None ? value.type : otherwise.type;
    if (areNumbers) {
        type = {CommonKind(value.type.kind, otherwise.type.kind)};
    }
    auto valueCode = ConvertTo(std::move(value), type).code;
    auto otherwiseCode = ConvertTo(std::move(otherwise), type).code;
    return {std::make_unique<code::Conditional>(std::move(condition), std::move(valueCode),
                                                std::move(otherwiseCode)),
            type,
            at,
            {},
            false};
}

Checked ExpressionChecker::CheckNode(const syntax::Cast& cast, Position at) {
    return CastTo(Check(*cast.value), RequireType(cast.type), at);
}

Checked ExpressionChecker::CastTo(Checked value, Type type, Position at) {
    const bool isDowncast = value.type.kind == Kind::Instance && type.kind == Kind::Instance &&
                            type.model->IsA(*value.type.model);
    const bool isEnumeration = (value.type.kind == Kind::Enumeration && IsInteger(type.kind)) ||
                               (IsInteger(value.type.kind) && type.kind == Kind::Enumeration);
    if (isEnumeration) {
        const Kind from = IsInteger(value.type.kind) ? value.type.kind : Kind::Int64;
        const Kind to = IsInteger(type.kind) ? type.kind : Kind::Int64;
        return {
            std::make_unique<code::UnaryOperation>(FindConversion(from, to), std::move(value.code)),
            type,
            at,
            {},
            false};
    }
    if (!isDowncast) {
        auto converted = ConvertTo(std::move(value), type);
        converted.at = at;
        converted.literal.reset();
        converted.isVariable = false;
        return converted;
    }
    return {std::make_unique<code::ClassCast>(std::move(value.code), type.model->info()),
            type,
            at,
            {},
            false};
}

Checked ExpressionChecker::CheckNode(const syntax::ClassTest& test, Position at) {
    auto value = Check(*test.value);
    const auto type = RequireType(test.type);
    if (!IsHandle(value.type.kind) || type.kind != Kind::Instance) {
        throw ProgramError(at, "\"IsA\" stands between an object and a class");
    }
    return MakeBoolean(std::make_unique<code::ClassTest>(std::move(value.code), type.model->info()),
                       at);
}

}  // namespace standin::language
