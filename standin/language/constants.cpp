#include "standin/language/constants.hpp"

#include <cmath>
#include <compare>
#include <concepts>
#include <type_traits>
#include <utility>

#include "standin/language/operations.hpp"
#include "standin/language/text.hpp"
#include "standin/language/unicode.hpp"

namespace standin::language {
namespace {

using syntax::BinaryOperator;
using syntax::ConstantValue;
using syntax::UnaryOperator;

ConstantValue Real(double value) {
    return syntax::RealLiteral{value, ShortestText(std::abs(value))};
}

/// The value as a number; none for text and Booleans.
std::optional<double> NumberOf(const ConstantValue& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*integer);
    }
    const auto* real = std::get_if<syntax::RealLiteral>(&value);
    return real == nullptr ? std::nullopt : std::optional(real->value);
}

[[noreturn]] void Fail(Position at) {
    throw ProgramError(at, "only constants can stand here");
}

bool IsComparison(BinaryOperator operation) {
    return operation >= BinaryOperator::Equal && operation <= BinaryOperator::GreaterEqual;
}

std::optional<ConstantValue> Logic(BinaryOperator operation, bool left, bool right) {
    switch (operation) {
        case BinaryOperator::And:
            return left && right;
        case BinaryOperator::Or:
            return left || right;
        case BinaryOperator::Xor:
        case BinaryOperator::NotEqual:
            return left != right;
        case BinaryOperator::Equal:
            return left == right;
        default:
            return std::nullopt;
    }
}

/// Whole numbers whose result is a whole number within 64 bits; none for everything else.
std::optional<ConstantValue> WholeNumber(BinaryOperator operation, std::int64_t left,
                                         std::int64_t right) {
    std::int64_t result = 0;
    bool overflows = true;
    if (operation == BinaryOperator::Add) {
        overflows = __builtin_add_overflow(left, right, &result);
    } else if (operation == BinaryOperator::Subtract) {
        overflows = __builtin_sub_overflow(left, right, &result);
    } else if (operation == BinaryOperator::Multiply) {
        overflows = __builtin_mul_overflow(left, right, &result);
    } else if (right > 0 && operation == BinaryOperator::IntegerDivide) {
        return left / right;
    } else if (right > 0 && operation == BinaryOperator::Modulo) {
        return left % right;
    }
    return overflows ? std::nullopt : std::optional<ConstantValue>(result);
}

std::optional<ConstantValue> Arithmetic(BinaryOperator operation, double left, double right) {
    switch (operation) {
        case BinaryOperator::Add:
            return Real(left + right);
        case BinaryOperator::Subtract:
            return Real(left - right);
        case BinaryOperator::Multiply:
            return Real(left * right);
        case BinaryOperator::Divide:
            return Real(left / right);
        case BinaryOperator::Power:
            return Real(std::pow(left, right));
        default:
            return std::nullopt;
    }
}

std::optional<ConstantValue> Apply(BinaryOperator operation, const ConstantValue& left,
                                   const ConstantValue& right) {
    const auto* leftFlag = std::get_if<bool>(&left);
    const auto* rightFlag = std::get_if<bool>(&right);
    if (leftFlag != nullptr && rightFlag != nullptr) {
        return Logic(operation, *leftFlag, *rightFlag);
    }
    const auto* leftText = std::get_if<std::string>(&left);
    const auto* rightText = std::get_if<std::string>(&right);
    if (leftText != nullptr && rightText != nullptr) {
        if (operation == BinaryOperator::Add) {
            return *leftText + *rightText;
        }
        const bool isEquality =
            operation == BinaryOperator::Equal || operation == BinaryOperator::NotEqual;
        return isEquality
                   ? std::optional<ConstantValue>((Lowercase(*leftText) == Lowercase(*rightText)) ==
                                                  (operation == BinaryOperator::Equal))
                   : std::nullopt;
    }
    const auto leftNumber = NumberOf(left);
    const auto rightNumber = NumberOf(right);
    if (!leftNumber || !rightNumber) {
        return std::nullopt;
    }
    if (IsComparison(operation)) {
        return Fulfils(*leftNumber <=> *rightNumber, operation);
    }
    const auto* leftWhole = std::get_if<std::int64_t>(&left);
    const auto* rightWhole = std::get_if<std::int64_t>(&right);
    if (leftWhole != nullptr && rightWhole != nullptr) {
        if (auto result = WholeNumber(operation, *leftWhole, *rightWhole)) {
            return result;
        }
    }
    return Arithmetic(operation, *leftNumber, *rightNumber);
}

class Evaluator {
public:
    Evaluator(const ConstantSearch& find, Position at) : find_(find), at_(at) {}

    ConstantValue operator()(const syntax::BooleanLiteral& literal) const { return literal.value; }
    ConstantValue operator()(const syntax::TextLiteral& literal) const { return literal.value; }
    ConstantValue operator()(const syntax::RealLiteral& literal) const { return literal; }
    ConstantValue operator()(const syntax::IntegerLiteral& literal) const {
        return std::in_range<std::int64_t>(literal.value)
                   ? ConstantValue(static_cast<std::int64_t>(literal.value))
                   : Real(static_cast<double>(literal.value));
    }
    ConstantValue operator()(const syntax::Name& name) const { return Named(name.name); }
    ConstantValue operator()(const syntax::Member& member) const {
        if (!IsDottedName(*member.object)) {
            Fail(at_);
        }
        return Named(DottedName(*member.object) + "." + member.name);
    }
    ConstantValue operator()(const syntax::Unary& unary) const {
        auto operand = Evaluate(*unary.operand, find_);
        const auto* flag = std::get_if<bool>(&operand);
        if (unary.operation == UnaryOperator::Not) {
            return flag == nullptr ? throw ProgramError(at_, "\"Not\" takes a Boolean here")
                                   : ConstantValue(!*flag);
        }
        const auto number = NumberOf(operand);
        if (!number) {
            Fail(at_);
        }
        if (unary.operation == UnaryOperator::Plus) {
            return operand;
        }
        const auto negated = Apply(BinaryOperator::Subtract, std::int64_t{0}, operand);
        return std::holds_alternative<std::int64_t>(operand) && negated ? *negated : Real(-*number);
    }
    ConstantValue operator()(const syntax::Binary& binary) const {
        auto result =
            Apply(binary.operation, Evaluate(*binary.left, find_), Evaluate(*binary.right, find_));
        if (!result) {
            throw ProgramError(at_, "this cannot be computed of constants");
        }
        return std::move(*result);
    }
    template <typename Other>
    ConstantValue operator()(const Other& /*other*/) const {
        Fail(at_);
    }

private:
    ConstantValue Named(const std::string& name) const {
        const auto* value = find_(name);
        if (value == nullptr) {
            throw ProgramError(at_, "there is no constant " + Quoted(name));
        }
        return *value;
    }

    const ConstantSearch& find_;
    Position at_;
};

}  // namespace

const ConstantValue* Constants::Find(std::string_view name) const {
    const auto found = values_.find(name);
    if (found != values_.end()) {
        return &found->second;
    }
    return outer_ == nullptr ? nullptr : outer_->Find(name);
}

Constants HostConstants(const Host& host) {
    constexpr bool Has64Bits = sizeof(void*) == 8;
#if defined(__aarch64__) || defined(__arm__)
    constexpr bool IsArm = true;
#else
    constexpr bool IsArm = false;
#endif
    Constants constants;
    const auto version = Real(host.options().version.value_or(0.0));
    constants.Set("XojoVersion", version);
    constants.Set("RBVersion", version);
    constants.Set("Target32Bit", !Has64Bits);
    constants.Set("Target64Bit", Has64Bits);
    constants.Set("TargetWindows", IsWindows);
    constants.Set("TargetWin32", IsWindows);
    constants.Set("TargetLinux", !IsWindows);
    constants.Set("TargetARM", IsArm);
    constants.Set("TargetX86", !IsArm);
    constants.Set("TargetConsole", true);
    constants.Set("TargetLittleEndian", true);
    constants.Set("DebugBuild", !host.options().builtApplication);
    for (const auto* name : {"TargetMacOS", "TargetDesktop", "TargetWeb", "TargetIOS",
                             "TargetAndroid", "TargetMobile", "TargetHasGUI", "TargetBigEndian"}) {
        constants.Set(name, false);
    }
    return constants;
}

ConstantValue Evaluate(const syntax::Expression& expression, const ConstantSearch& find) {
    return std::visit(Evaluator(find, expression.at), expression.node);
}

ConstantValue Evaluate(const syntax::Expression& expression, const Constants& constants) {
    return Evaluate(expression,
                    [&constants](std::string_view name) { return constants.Find(name); });
}

bool IsTrue(const syntax::Expression& condition, const Constants& constants) {
    const auto value = Evaluate(condition, constants);
    const auto* flag = std::get_if<bool>(&value);
    if (flag == nullptr) {
        throw ProgramError(condition.at, "a condition is a Boolean");
    }
    return *flag;
}

bool IsDottedName(const syntax::Expression& expression) {
    const auto* member = std::get_if<syntax::Member>(&expression.node);
    return member != nullptr ? IsDottedName(*member->object)
                             : std::holds_alternative<syntax::Name>(expression.node);
}

std::string DottedName(const syntax::Expression& expression) {
    const auto* member = std::get_if<syntax::Member>(&expression.node);
    return member != nullptr ? DottedName(*member->object) + "." + member->name
                             : std::get<syntax::Name>(expression.node).name;
}

bool IsLiteral(const syntax::Expression& expression) {
    if (const auto* unary = std::get_if<syntax::Unary>(&expression.node)) {
        const auto& operand = unary->operand->node;
        return unary->operation != UnaryOperator::Not &&
               (std::holds_alternative<syntax::IntegerLiteral>(operand) ||
                std::holds_alternative<syntax::RealLiteral>(operand));
    }
    return std::holds_alternative<syntax::IntegerLiteral>(expression.node) ||
           std::holds_alternative<syntax::RealLiteral>(expression.node) ||
           std::holds_alternative<syntax::TextLiteral>(expression.node) ||
           std::holds_alternative<syntax::BooleanLiteral>(expression.node) ||
           std::holds_alternative<syntax::NilLiteral>(expression.node);
}

void FailWithoutDefault(Position at) {
    throw ProgramError(at, "a default is a literal, a constant or a value of an \"Enum\"");
}

syntax::ExpressionPtr LiteralOf(const ConstantValue& value, Position at) {
    const auto make = [at](syntax::Expression::Node node) {
        return std::make_unique<syntax::Expression>(syntax::Expression{at, 1, std::move(node)});
    };
    const auto negative = [&](syntax::Expression::Node node) {
        syntax::Unary unary{UnaryOperator::Minus, make(std::move(node))};
        return std::make_unique<syntax::Expression>(syntax::Expression{at, 2, std::move(unary)});
    };
    return std::visit(
        [&]<typename T>(const T& item) {
            if constexpr (std::same_as<T, bool>) {
                return make(syntax::BooleanLiteral{item});
            } else if constexpr (std::same_as<T, std::string>) {
                return make(syntax::TextLiteral{item});
            } else if constexpr (std::same_as<T, std::int64_t>) {
                const auto magnitude = static_cast<std::uint64_t>(item);
                return item < 0 ? negative(syntax::IntegerLiteral{0U - magnitude})
                                : make(syntax::IntegerLiteral{magnitude});
            } else {
                return item.value < 0 ? negative(syntax::RealLiteral{-item.value, item.digits})
                                      : make(item);
            }
        },
        value);
}

}  // namespace standin::language
