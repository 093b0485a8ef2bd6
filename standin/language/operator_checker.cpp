// The operators of the expression checker: which of them are the language's, and which a class has.
#include <algorithm>
#include <utility>

#include "standin/language/expression_checker.hpp"
#include "standin/language/hints.hpp"
#include "standin/language/operators.hpp"
#include "standin/language/variant_operations.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin::language {
namespace {

using syntax::BinaryOperator;

constexpr std::string_view NegateOperator = "Operator_Negate";
constexpr std::string_view NotOperator = "Operator_Not";
constexpr std::string_view RightSuffix = "Right";

const OperatorRow& RowOf(BinaryOperator operation) {
    return *std::ranges::find(Operators, operation, &OperatorRow::operation);
}

bool IsComparison(BinaryOperator operation) {
    return RowOf(operation).method == CompareOperator;
}

bool IsObject(const Checked& value) {
    return IsHandle(value.type.kind);
}

/// Two Variants are not compared by identity: what they hold would have to be.
bool HaveIdentity(const Checked& left, const Checked& right) {
    const bool hasNil = left.type.kind == Kind::Nil || right.type.kind == Kind::Nil;
    const bool hasVariant = left.type.kind == Kind::Variant || right.type.kind == Kind::Variant;
    return IsObject(left) && IsObject(right) && (hasNil || !hasVariant);
}

/// Whether one operand is a Variant and the other one too or what one can hold, but no object.
bool AreHeld(const Checked& left, const Checked& right) {
    const auto isHeld = [](const Checked& value) {
        return value.type.kind == Kind::Variant || FindBoxing(value.type.kind) != nullptr;
    };
    const bool hasVariant = left.type.kind == Kind::Variant || right.type.kind == Kind::Variant;
    return hasVariant && isHeld(left) && isHeld(right);
}

/// Whether the operands may be exchanged, or the language knows that they were.
bool MayExchange(BinaryOperator operation) {
    switch (operation) {
        case BinaryOperator::Power:
        case BinaryOperator::Divide:
        case BinaryOperator::IntegerDivide:
        case BinaryOperator::Modulo:
        case BinaryOperator::Subtract:
            return false;
        default:
            return true;
    }
}

/// How one of two operands can become what the operator takes.
std::string OperandHint(const OperatorRow& row, const Checked& left, const Checked& right) {
    const bool isText = left.type.kind == Kind::Text || right.type.kind == Kind::Text;
    const bool isNumber = IsNumber(left.type.kind) || IsNumber(right.type.kind);
    if (isText && isNumber && row.operation == BinaryOperator::Add) {
        return "; use Str to join texts, Val to add numbers";
    }
    const bool isLeft = left.type.kind == Kind::Instance;
    const bool isRight = right.type.kind == Kind::Instance;
    if (!isLeft && !isRight) {
        const bool isOfEnum = left.type.kind == Kind::Enumeration;
        const auto& value = isOfEnum ? left : right;
        return value.type.kind == Kind::Enumeration
                   ? ConversionHint(value, isOfEnum ? right.type : left.type)
                   : std::string();
    }
    const auto& model = isLeft ? *left.type.model : *right.type.model;
    const auto ofRight = std::string(row.method) + std::string(RightSuffix);
    if (!row.method.empty() && model.FindMethods(row.method).empty() &&
        model.FindMethods(ofRight).empty()) {
        return OperatorHint(model, row.method);
    }
    if (isLeft && isRight) {
        return ClassesHint(left, right);
    }
    if (isLeft) {
        return ConversionHint(right, left.type);
    }
    const auto text = MayExchange(row.operation) ? TextOffer::Allowed : TextOffer::Refused;
    return ConversionHint(left, right.type, text);
}

/// Why an operator cannot stand between two operands.
[[noreturn]] void FailOperator(BinaryOperator operation, const Checked& left, const Checked& right,
                               Position at) {
    if (IsIncomplete(left.type) || IsIncomplete(right.type)) {
        throw FollowingError(at, "the class has an error");
    }
    const auto& row = RowOf(operation);
    std::string message = Quoted(row.sign) + " cannot stand between " + NameOf(left.type) +
                          " and " + NameOf(right.type);
    for (const auto* operand : {&left, &right}) {
        if (operand->type.kind != Kind::Instance || row.method.empty()) {
            continue;
        }
        for (const auto* method : operand->type.model->FindMethods(row.method)) {
            message += "; there is " + Quoted(method->signature.declaration);
        }
        break;
    }
    throw ProgramError(at, message + OperandHint(row, left, right));
}

bool FitsIn(std::int64_t literal, Kind kind) {
    return WithNumberType(kind, [literal]<typename T>(std::type_identity<T>) {
        if constexpr (std::is_integral_v<T>) {
            return std::in_range<T>(literal);
        } else {
            return false;
        }
    });
}

/// The kind in which two numbers meet. A whole literal takes the integer kind of the other operand
/// where it fits, one with a decimal point takes the side of Currency.
Kind MeetingKind(const Checked& left, const Checked& right) {
    const Kind leftKind = left.type.kind;
    const Kind rightKind = right.type.kind;
    const bool isRightOnlyLiteral = right.literal && !left.literal;
    const bool isLeftOnlyLiteral = left.literal && !right.literal;
    if (isRightOnlyLiteral && FitsIn(*right.literal, leftKind)) {
        return leftKind;
    }
    if (isLeftOnlyLiteral && FitsIn(*left.literal, rightKind)) {
        return rightKind;
    }
    const bool isAmountOnRight = leftKind == Kind::Currency && right.amount;
    const bool isAmountOnLeft = rightKind == Kind::Currency && left.amount;
    return isAmountOnRight || isAmountOnLeft ? Kind::Currency : CommonKind(leftKind, rightKind);
}

}  // namespace

Checked ExpressionChecker::CheckNode(const syntax::Unary& unary, Position at) {
    auto operand = Check(*unary.operand);
    const Type type = operand.type;
    if (unary.operation == syntax::UnaryOperator::Plus) {
        if (!IsNumber(type.kind)) {
            throw ProgramError(at, "\"+\" cannot stand before " + NameOf(type));
        }
        operand.isVariable = false;
        return operand;
    }
    const bool isMinus = unary.operation == syntax::UnaryOperator::Minus;
    if (type.kind == Kind::Instance) {
        const auto methods = type.model->FindMethods(isMinus ? NegateOperator : NotOperator);
        if (!methods.empty() && !IsWrongAbout("compiles-negation")) {
            return CallMethod({std::move(operand), type.model}, methods, false, {}, at);
        }
    }
    if (const auto* literal = std::get_if<syntax::IntegerLiteral>(&unary.operand->node);
        isMinus && literal != nullptr) {
        return MakeInteger(literal->value, true, at);
    }
    if (const auto* literal = std::get_if<syntax::RealLiteral>(&unary.operand->node);
        isMinus && literal != nullptr) {
        return MakeReal(*literal, true, at);
    }
    const bool isVariant = type.kind == Kind::Variant;
    const auto variantFunction = isMinus ? NegateVariant : ComplementVariant;
    const auto plainFunction = isMinus ? FindNegation(type.kind) : FindComplement(type.kind);
    const auto function = isVariant ? variantFunction : plainFunction;
    if (function == nullptr) {
        throw ProgramError(at, std::string(isMinus ? "\"-\"" : "\"Not\"") +
                                   " cannot stand before " + NameOf(type));
    }
    return {std::make_unique<code::UnaryOperation>(function, std::move(operand.code)),
            type,
            at,
            {},
            false};
}

Checked ExpressionChecker::CheckNode(const syntax::Binary& binary, Position at) {
    auto left = Check(*binary.left);
    return Apply(binary.operation, std::move(left), Check(*binary.right), at);
}

Checked ExpressionChecker::Apply(BinaryOperator operation, Checked left, Checked right,
                                 Position at) {
    if (operation == BinaryOperator::Is) {
        if (!IsObject(left) || !IsObject(right)) {
            throw ProgramError(at, "\"Is\" stands between objects");
        }
        return CompareIdentity(operation, std::move(left), std::move(right), at);
    }
    if (IsComparison(operation)) {
        return Compare(operation, std::move(left), std::move(right), at);
    }
    if (IsObject(left) || IsObject(right)) {
        if (auto result = TryOperator(operation, left, right, at)) {
            return std::move(*result);
        }
    }
    // A class without the operator takes part in joining text where it has a text form.
    const Type text{Kind::Text};
    if (operation == BinaryOperator::Add && (left.type == text || right.type == text) &&
        FitOf(left, text) != Fit::None && FitOf(right, text) != Fit::None) {
        left = ConvertTo(std::move(left), text);
        right = ConvertTo(std::move(right), text);
    }
    if (IsNumber(left.type.kind) && IsNumber(right.type.kind)) {
        return ApplyToNumbers(operation, std::move(left), std::move(right), at);
    }
    if (AreHeld(left, right)) {
        return ApplyToVariants(FindVariantOperation(operation), std::move(left), std::move(right),
                               {Kind::Variant}, at);
    }
    const auto function =
        left.type == right.type ? FindOperation(operation, left.type.kind) : nullptr;
    if (function == nullptr) {
        FailOperator(operation, left, right, at);
    }
    const Type type = left.type;
    const bool isBoolean = type.kind == Kind::Boolean;
    if (isBoolean && operation != BinaryOperator::Xor) {
        return MakeBoolean(
            std::make_unique<code::ShortCircuit>(operation == BinaryOperator::Or,
                                                 std::move(left.code), std::move(right.code)),
            at);
    }
    return {std::make_unique<code::BinaryOperation>(function, std::move(left.code),
                                                    std::move(right.code)),
            type,
            at,
            {},
            false};
}

Checked ExpressionChecker::ApplyToNumbers(BinaryOperator operation, Checked left, Checked right,
                                          Position at) {
    const Kind kind = WorkingKind(operation, MeetingKind(left, right));
    const auto function = FindOperation(operation, kind);
    if (function == nullptr) {
        FailOperator(operation, left, right, at);
    }
    auto leftCode = ConvertTo(std::move(left), {kind}).code;
    auto rightCode = ConvertTo(std::move(right), {kind}).code;
    return {std::make_unique<code::BinaryOperation>(function, std::move(leftCode),
                                                    std::move(rightCode)),
            {kind},
            at,
            {},
            false};
}

Checked ExpressionChecker::ApplyToVariants(BinaryFunction function, Checked left, Checked right,
                                           Type result, Position at) {
    const Type variant{Kind::Variant};
    auto leftCode = ConvertTo(std::move(left), variant).code;
    auto rightCode = ConvertTo(std::move(right), variant).code;
    return {std::make_unique<code::BinaryOperation>(function, std::move(leftCode),
                                                    std::move(rightCode)),
            result,
            at,
            {},
            false};
}

Checked ExpressionChecker::Compare(BinaryOperator operation, Checked left, Checked right,
                                   Position at) {
    if (auto result = TryCompareOperator(operation, left, right, at)) {
        return std::move(*result);
    }
    const bool isEquality =
        operation == BinaryOperator::Equal || operation == BinaryOperator::NotEqual;
    if (isEquality && HaveIdentity(left, right)) {
        return CompareIdentity(operation, std::move(left), std::move(right), at);
    }
    if (left.type.kind == Kind::TextEncoding || right.type.kind == Kind::TextEncoding) {
        const Type encoding{Kind::TextEncoding};
        if (isEquality && FitOf(left, encoding) != Fit::None &&
            FitOf(right, encoding) != Fit::None) {
            left = ConvertTo(std::move(left), encoding);
            right = ConvertTo(std::move(right), encoding);
        }
    }
    if (left.type.kind == Kind::Variant || right.type.kind == Kind::Variant) {
        const Type variant{Kind::Variant};
        if (FitOf(left, variant) != Fit::None && FitOf(right, variant) != Fit::None) {
            left = ConvertTo(std::move(left), variant);
            right = ConvertTo(std::move(right), variant);
        }
    }
    const auto byValue = FindVariantComparison(operation);
    if (byValue != nullptr && AreHeld(left, right)) {
        return ApplyToVariants(byValue, std::move(left), std::move(right), {Kind::Boolean}, at);
    }
    const bool isOrdered = isEquality || left.type.kind == Kind::Enumeration ||
                           left.type.kind == Kind::Variant || left.type.kind == Kind::Text ||
                           (IsNumber(left.type.kind) && IsNumber(right.type.kind));
    const auto order = FindOrder(left.type.kind, right.type.kind);
    const bool areOtherEnumerations =
        left.type.kind == Kind::Enumeration && left.type != right.type;
    if (order == nullptr || !isOrdered || areOtherEnumerations) {
        FailOperator(operation, left, right, at);
    }
    return MakeBoolean(std::make_unique<code::Comparison>(order, operation, std::move(left.code),
                                                          std::move(right.code)),
                       at);
}

Checked ExpressionChecker::CompareIdentity(BinaryOperator operation, Checked left, Checked right,
                                           Position at) {
    const bool wanted = operation != BinaryOperator::NotEqual;
    return MakeBoolean(
        std::make_unique<code::Identity>(wanted, std::move(left.code), std::move(right.code)), at);
}

std::optional<Checked> ExpressionChecker::TryOperator(BinaryOperator operation, Checked& left,
                                                      Checked& right, Position at) {
    const auto name = std::string(RowOf(operation).method);
    if (IsWrongAbout("order-of-operands") && left.type.kind == Kind::Text &&
        FitOf(left, right.type) == Fit::Converting) {
        left = ConvertTo(std::move(left), right.type);
    }
    if (!IsWrongAbout("compiles-operator-left")) {
        if (auto result = TryOperatorOf(name, left, right, false, at)) {
            return result;
        }
    }
    if (IsWrongAbout("compiles-operator-right")) {
        return std::nullopt;
    }
    return TryOperatorOf(name + std::string(RightSuffix), right, left, true, at);
}

std::optional<Checked> ExpressionChecker::TryCompareOperator(BinaryOperator operation,
                                                             Checked& left, Checked& right,
                                                             Position at) {
    const std::string name(CompareOperator);
    const bool hasNil = left.type.kind == Kind::Nil || right.type.kind == Kind::Nil;
    if (IsWrongAbout("compiles-comparison") || (hasNil && IsWrongAbout("nil-compared"))) {
        return std::nullopt;
    }
    bool isMirrored = false;
    auto call = TryOperatorOf(name, left, right, false, at);
    if (!call) {
        isMirrored = !IsWrongAbout("order-of-comparison");
        call = TryOperatorOf(name, right, left, true, at);
    }
    if (!call) {
        return std::nullopt;
    }
    auto result = ConvertTo(std::move(*call), {IntegerKind});
    return MakeBoolean(
        std::make_unique<code::ComparedByOperator>(std::move(result.code), operation, isMirrored),
        at);
}

std::optional<Checked> ExpressionChecker::TryOperatorOf(const std::string& name, Checked& receiver,
                                                        Checked& argument, bool isReceiverRight,
                                                        Position at) {
    if (receiver.type.kind != Kind::Instance) {
        return std::nullopt;
    }
    const auto& model = *receiver.type.model;
    const auto methods = model.FindMethods(name);
    std::vector<Checked> arguments;
    arguments.push_back(std::move(argument));
    const auto candidates = SignaturesOf(methods);
    const auto overload = FindOverload(candidates, arguments);
    if (overload.outcome == Overload::Outcome::NoneFits) {
        argument = std::move(arguments.front());
        return std::nullopt;
    }
    const auto& method = *methods[RequireOverload(name, candidates, arguments, at)];
    auto call = MakePluginCall(model, method, std::move(arguments), at);
    return Checked{std::make_unique<code::InstanceCall>(std::move(receiver.code), std::move(call),
                                                        code::NilReceiver::Passed, isReceiverRight),
                   method.signature.result,
                   at,
                   {},
                   false};
}

}  // namespace standin::language
