#include "standin/language/operations.hpp"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <cstdlib>
#include <functional>
#include <limits>
#include <string>
#include <utility>

#include "standin/language/names.hpp"
#include "standin/language/text.hpp"
#include "standin/language/unicode.hpp"
#include "standin/language/variant_operations.hpp"

namespace standin::language {
namespace {

using syntax::BinaryOperator;

// Numbers ----------------------------------------------------------------------------------------

template <std::integral Limits>
Limits Saturate(double value) {
    // One beyond the largest number: a power of two, which Double holds exactly.
    constexpr auto Half = std::numeric_limits<Limits>::max() / 2 + 1;
    constexpr auto End = 2.0 * static_cast<double>(Half);
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= End) {
        return std::numeric_limits<Limits>::max();
    }
    if (value <= static_cast<double>(std::numeric_limits<Limits>::min())) {
        return std::numeric_limits<Limits>::min();
    }
    return static_cast<Limits>(value);
}

template <typename To>
To Cast(CurrencyAmount amount) {
    if constexpr (std::same_as<To, CurrencyAmount>) {
        return amount;
    } else if constexpr (std::integral<To>) {
        return static_cast<To>(amount.scaled / CurrencyScale);
    } else {
        return static_cast<To>(static_cast<double>(amount.scaled) / CurrencyScale);
    }
}

template <typename To, std::integral From>
To Cast(From value) {
    if constexpr (std::same_as<To, CurrencyAmount>) {
        return {static_cast<std::int64_t>(static_cast<std::uint64_t>(value) * CurrencyScale)};
    } else {
        return static_cast<To>(value);
    }
}

template <typename To, std::floating_point From>
To Cast(From value) {
    if constexpr (std::same_as<To, CurrencyAmount>) {
        return {Saturate<std::int64_t>(std::nearbyint(static_cast<double>(value) * CurrencyScale))};
    } else if constexpr (std::same_as<To, std::uint64_t>) {
        return value < 0 ? static_cast<To>(Saturate<std::int64_t>(static_cast<double>(value)))
                         : Saturate<std::uint64_t>(static_cast<double>(value));
    } else if constexpr (std::integral<To>) {
        return static_cast<To>(Saturate<std::int64_t>(static_cast<double>(value)));
    } else {
        return static_cast<To>(value);
    }
}

template <typename From, typename To>
Value Convert(const Value& value, const Machine& /*machine*/) {
    return Value::Of(Cast<To>(value.Get<From>()));
}

/// Runs an operation of integers without sign and brings the result back: it wraps.
template <std::integral T, typename Operation>
T Wrapping(T left, T right, Operation operation) {
    using Unsigned = std::make_unsigned_t<T>;
    return static_cast<T>(operation(static_cast<Unsigned>(left), static_cast<Unsigned>(right)));
}

template <std::floating_point T, typename Operation>
T Wrapping(T left, T right, Operation operation) {
    return operation(left, right);
}

template <typename Operation>
CurrencyAmount Wrapping(CurrencyAmount left, CurrencyAmount right, Operation operation) {
    return {Wrapping(left.scaled, right.scaled, operation)};
}

/// The product in ten-thousandths, rounded to the nearest, a half to the even one. Whole part and
/// rest of each factor are multiplied apart, so that nothing is lost before the rounding.
CurrencyAmount Multiply(CurrencyAmount left, CurrencyAmount right) {
    const std::int64_t leftRest = left.scaled % CurrencyScale;
    const std::int64_t rightRest = right.scaled % CurrencyScale;
    const std::int64_t restProduct = leftRest * rightRest;
    const auto wrappingProduct = [](std::int64_t a, std::int64_t b) {
        return static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b);
    };
    std::uint64_t product = wrappingProduct(left.scaled / CurrencyScale, right.scaled) +
                            wrappingProduct(leftRest, right.scaled / CurrencyScale) +
                            static_cast<std::uint64_t>(restProduct / CurrencyScale);
    const std::int64_t lost = std::abs(restProduct % CurrencyScale);
    constexpr std::int64_t Half = CurrencyScale / 2;
    if (lost > Half || (lost == Half && product % 2 != 0)) {
        product += restProduct < 0 ? std::uint64_t(-1) : 1U;
    }
    return {static_cast<std::int64_t>(product)};
}

Value MultiplyCurrency(const Value& left, const Value& right, const Machine& /*machine*/) {
    return Value::Of(Multiply(left.Get<CurrencyAmount>(), right.Get<CurrencyAmount>()));
}

template <typename T, typename Operation>
Value Compute(const Value& left, const Value& right, const Machine& /*machine*/) {
    return Value::Of(Wrapping(left.Get<T>(), right.Get<T>(), Operation{}));
}

template <std::floating_point T>
Value RaiseToPower(const Value& left, const Value& right, const Machine& /*machine*/) {
    return Value::Of(std::pow(left.Get<T>(), right.Get<T>()));
}

template <std::floating_point T>
Value DivideReal(const Value& left, const Value& right, const Machine& /*machine*/) {
    static_assert(std::numeric_limits<T>::is_iec559, "division by 0 gives infinity or NaN");
    return Value::Of(left.Get<T>() / right.Get<T>());
}

/// The most negative number divided by -1 has no room for its result: it wraps to itself.
template <std::integral T>
bool IsNegation(T divisor) {
    return std::signed_integral<T> && divisor == static_cast<T>(-1);
}

template <std::integral T>
T RequireDivisor(const Value& value, const Machine& machine) {
    const T divisor = value.Get<T>();
    if (divisor == 0) {
        machine.Raise("RuntimeException", "Division by zero.");
    }
    return divisor;
}

template <std::integral T>
Value DivideInteger(const Value& left, const Value& right, const Machine& machine) {
    const T divisor = RequireDivisor<T>(right, machine);
    const T dividend = left.Get<T>();
    return Value::Of(IsNegation(divisor) ? Wrapping(T{0}, dividend, std::minus<>{})
                                         : static_cast<T>(dividend / divisor));
}

template <std::integral T>
Value Remainder(const Value& left, const Value& right, const Machine& machine) {
    const T divisor = RequireDivisor<T>(right, machine);
    return Value::Of(IsNegation(divisor) ? T{0} : static_cast<T>(left.Get<T>() % divisor));
}

template <typename T>
BinaryFunction FindNumberOperation(BinaryOperator operation) {
    if (operation == BinaryOperator::Add) {
        return Compute<T, std::plus<>>;
    }
    if (operation == BinaryOperator::Subtract) {
        return Compute<T, std::minus<>>;
    }
    if (operation == BinaryOperator::Multiply) {
        if constexpr (std::same_as<T, CurrencyAmount>) {
            return MultiplyCurrency;
        } else {
            return Compute<T, std::multiplies<>>;
        }
    }
    if constexpr (std::floating_point<T>) {
        if (operation == BinaryOperator::Divide) {
            return DivideReal<T>;
        }
        if (operation == BinaryOperator::Power) {
            return RaiseToPower<T>;
        }
    }
    if constexpr (std::integral<T>) {
        switch (operation) {
            case BinaryOperator::IntegerDivide:
                return DivideInteger<T>;
            case BinaryOperator::Modulo:
                return Remainder<T>;
            case BinaryOperator::And:
                return Compute<T, std::bit_and<>>;
            case BinaryOperator::Or:
                return Compute<T, std::bit_or<>>;
            case BinaryOperator::Xor:
                return Compute<T, std::bit_xor<>>;
            default:
                break;
        }
    }
    return nullptr;
}

template <typename T>
Value Negate(const Value& value, const Machine& machine) {
    if constexpr (std::floating_point<T>) {
        return Value::Of(-value.Get<T>());
    } else {
        return Compute<T, std::minus<>>(Value::Of(0), value, machine);
    }
}

template <std::integral T>
Value Complement(const Value& value, const Machine& /*machine*/) {
    return Value::Of(static_cast<T>(~value.Get<T>()));
}

Value NotBoolean(const Value& value, const Machine& /*machine*/) {
    return Value::Of(!value.IsTrue());
}

/// The numbers in the types in which they are compared: mixed signs by value, everything else in
/// the common type of C++, which is exact enough for what meets here.
template <typename Left, typename Right>
std::partial_ordering OrderNumbers(const Value& left, const Value& right) {
    if constexpr (std::same_as<Left, CurrencyAmount> || std::same_as<Right, CurrencyAmount>) {
        if constexpr (std::same_as<Left, Right>) {
            return left.Get<Left>().scaled <=> right.Get<Right>().scaled;
        } else {
            return Cast<double>(left.Get<Left>()) <=> Cast<double>(right.Get<Right>());
        }
    } else if constexpr (std::integral<Left> && std::integral<Right>) {
        const auto a = left.Get<Left>();
        const auto b = right.Get<Right>();
        if (std::cmp_equal(a, b)) {
            return std::partial_ordering::equivalent;
        }
        return std::cmp_less(a, b) ? std::partial_ordering::less : std::partial_ordering::greater;
    } else {
        return static_cast<double>(left.Get<Left>()) <=> static_cast<double>(right.Get<Right>());
    }
}

// Variants ---------------------------------------------------------------------------------------

using host_interface::VariantTypeCode;

Value MakeVariant(VariantTypeCode code, VariantValue contents, const Machine& machine) {
    auto variant =
        Value::Adopt(machine.host().MakeVariant(static_cast<std::int32_t>(code), contents));
    if (variant.object() == nullptr) {
        machine.Raise("OutOfMemoryException", "There is no memory for a new Variant.");
    }
    return variant;
}

/// The class of an object; null for Nil and for a Variant that holds a value.
const ClassInfo* ClassOfObject(const Value& object, const Machine& machine) {
    if (object.object() == nullptr) {
        return nullptr;
    }
    Host& host = machine.host();
    const auto& actual = host.ClassOf(object.object());
    const auto* variant = host.FindClass("Variant");
    const bool holdsValue = variant != nullptr && actual.IsA(*variant);
    return holdsValue ? nullptr : &actual;
}

/// What a number type is called in a Variant. Unsigned ones share the code of the signed ones.
template <typename T>
constexpr VariantTypeCode CodeOf = sizeof(T) == 4 ? VariantTypeCode::Int32 : VariantTypeCode::Int64;
template <>
constexpr VariantTypeCode CodeOf<float> = VariantTypeCode::Single;
template <>
constexpr VariantTypeCode CodeOf<double> = VariantTypeCode::Double;
template <>
constexpr VariantTypeCode CodeOf<CurrencyAmount> = VariantTypeCode::Currency;

template <typename T>
Value BoxNumber(const Value& value, const Machine& machine) {
    const T number = value.Get<T>();
    if constexpr (std::floating_point<T>) {
        return MakeVariant(CodeOf<T>, static_cast<double>(number), machine);
    } else if constexpr (std::same_as<T, CurrencyAmount>) {
        return MakeVariant(CodeOf<T>, number.scaled, machine);
    } else if constexpr (std::unsigned_integral<T>) {
        return MakeVariant(CodeOf<T>, std::uint64_t{number}, machine);
    } else {
        return MakeVariant(CodeOf<T>, std::int64_t{number}, machine);
    }
}

Value BoxBoolean(const Value& value, const Machine& machine) {
    return MakeVariant(VariantTypeCode::Boolean, std::int64_t{value.IsTrue() ? 1 : 0}, machine);
}

Value BoxText(const Value& value, const Machine& machine) {
    return MakeVariant(VariantTypeCode::String, value.text(), machine);
}

template <typename T>
Value UnboxNumber(const Value& value, const Machine& machine) {
    RequireHeldValue(value, "number", machine);
    Host& host = machine.host();
    if constexpr (std::floating_point<T>) {
        return Value::Of(static_cast<T>(host.VariantAsDouble(value.object())));
    } else if constexpr (std::same_as<T, CurrencyAmount>) {
        return Value::Of(CurrencyAmount{host.VariantAsCurrency(value.object())});
    } else {
        const auto contents = host.VariantContents(value.object());
        const auto* wide = std::get_if<std::uint64_t>(&contents);
        return Value::Of(wide != nullptr ? static_cast<T>(*wide)
                                         : static_cast<T>(host.VariantAsInt64(value.object())));
    }
}

Value UnboxBoolean(const Value& value, const Machine& machine) {
    RequireHeldValue(value, "Boolean", machine);
    Host& host = machine.host();
    const auto text = Value::Adopt(host.VariantAsString(value.object()));
    return Value::Of(host.VariantAsDouble(value.object()) != 0.0 ||
                     SameName(host.Utf8(text.text()), "True"));
}

Value UnboxText(const Value& value, const Machine& machine) {
    RequireHeldValue(value, "String", machine);
    return Value::Adopt(machine.host().VariantAsString(value.object()));
}

// Booleans and text ------------------------------------------------------------------------------

template <typename Operation>
Value ComputeBoolean(const Value& left, const Value& right, const Machine& /*machine*/) {
    return Value::Of(Operation{}(left.IsTrue(), right.IsTrue()) ? 1 : 0);
}

std::partial_ordering OrderWords(const Value& left, const Value& right) {
    return left.Get<std::int64_t>() <=> right.Get<std::int64_t>();
}

Value JoinText(const Value& left, const Value& right, const Machine& machine) {
    return Join(left, right, machine);
}

std::partial_ordering OrderText(const Value& left, const Value& right) {
    Host& host = Host::Current();
    return Lowercase(host.Utf8(left.text())) <=> Lowercase(host.Utf8(right.text()));
}

/// Text by text, integers and amounts exactly, everything else as real numbers. Objects are equal
/// to themselves only, and so is Nil.
std::partial_ordering OrderVariants(const Value& left, const Value& right) {
    if (left.object() == right.object()) {
        return std::partial_ordering::equivalent;
    }
    Host& host = Host::Current();
    const auto a = host.VariantContents(left.object());
    const auto b = host.VariantContents(right.object());
    if (std::holds_alternative<std::monostate>(a) || std::holds_alternative<std::monostate>(b)) {
        return std::partial_ordering::unordered;
    }
    if (std::holds_alternative<String>(a) && std::holds_alternative<String>(b)) {
        const auto text = [&host](const Value& variant) {
            return Value::Adopt(host.VariantAsString(variant.object()));
        };
        return OrderText(text(left), text(right));
    }
    constexpr auto Currency = static_cast<std::int32_t>(VariantTypeCode::Currency);
    const bool areSame = (host.VariantType(left.object()) == Currency) ==
                         (host.VariantType(right.object()) == Currency);
    const auto order = [&]<typename Left, typename Right>(const Left& x, const Right& y) {
        if constexpr (std::integral<Left> && std::integral<Right>) {
            if (areSame) {
                return OrderNumbers<Left, Right>(Value::Of(x), Value::Of(y));
            }
        }
        return host.VariantAsDouble(left.object()) <=> host.VariantAsDouble(right.object());
    };
    return std::visit(order, a, b);
}

}  // namespace

UnaryFunction FindConversion(Kind from, Kind to) {
    return WithNumberType(from, [to]<typename From>(std::type_identity<From>) {
        return WithNumberType(to, []<typename To>(std::type_identity<To>) -> UnaryFunction {
            return Convert<From, To>;
        });
    });
}

UnaryFunction FindBoxing(Kind from) {
    if (from == Kind::Boolean) {
        return BoxBoolean;
    }
    if (from == Kind::Text) {
        return BoxText;
    }
    if (!IsNumber(from)) {
        return nullptr;
    }
    return WithNumberType(
        from, []<typename T>(std::type_identity<T>) -> UnaryFunction { return BoxNumber<T>; });
}

UnaryFunction FindUnboxing(Kind to) {
    if (to == Kind::Boolean) {
        return UnboxBoolean;
    }
    if (to == Kind::Text) {
        return UnboxText;
    }
    if (!IsNumber(to)) {
        return nullptr;
    }
    return WithNumberType(
        to, []<typename T>(std::type_identity<T>) -> UnaryFunction { return UnboxNumber<T>; });
}

bool IsObjectOf(const Value& object, const ClassInfo& info, const Machine& machine) {
    const auto* actual = ClassOfObject(object, machine);
    return actual != nullptr && actual->IsA(info);
}

void RequireHeldValue(const Value& variant, std::string_view wanted, const Machine& machine) {
    if (const auto* actual = ClassOfObject(variant, machine)) {
        machine.Raise("TypeMismatchException",
                      "The Variant holds an object of " + actual->name + ", which is no " +
                          std::string(wanted) + "; assign it to a variable of that class first.");
    }
}

void RequireObjectOf(const Value& object, const ClassInfo& info, const Machine& machine,
                     std::string_view hint) {
    if (object.object() == nullptr || IsObjectOf(object, info, machine)) {
        return;
    }
    const auto* actual = ClassOfObject(object, machine);
    const auto what =
        actual == nullptr
            ? "This Variant holds " + WithArticle(NameOf({HeldKind(object, machine)})) + ", not "
            : "A " + actual->name + " is not ";
    machine.Raise("IllegalCastException",
                  what + WithArticle(info.name) +
                      (actual == nullptr ? std::string(hint) : std::string()) + ".");
}

UnaryFunction FindNegation(Kind kind) {
    if (!IsNumber(kind)) {
        return nullptr;
    }
    return WithNumberType(
        kind, []<typename T>(std::type_identity<T>) -> UnaryFunction { return Negate<T>; });
}

UnaryFunction FindComplement(Kind kind) {
    if (kind == Kind::Boolean) {
        return NotBoolean;
    }
    if (!IsInteger(kind)) {
        return nullptr;
    }
    return WithNumberType(kind, []<typename T>(std::type_identity<T>) -> UnaryFunction {
        if constexpr (std::integral<T>) {
            return Complement<T>;
        } else {
            return nullptr;
        }
    });
}

Kind WorkingKind(BinaryOperator operation, Kind common) {
    switch (operation) {
        case BinaryOperator::Power:
            return Kind::Double;
        case BinaryOperator::Divide:
            return common == Kind::Single ? Kind::Single : Kind::Double;
        case BinaryOperator::IntegerDivide:
        case BinaryOperator::Modulo:
            return IsInteger(common) ? common : Kind::Int64;
        default:
            return common;
    }
}

BinaryFunction FindOperation(BinaryOperator operation, Kind kind) {
    if (IsNumber(kind)) {
        return WithNumberType(kind, [operation]<typename T>(std::type_identity<T>) {
            return FindNumberOperation<T>(operation);
        });
    }
    if (kind == Kind::Text && operation == BinaryOperator::Add) {
        return JoinText;
    }
    if (kind == Kind::Boolean) {
        switch (operation) {
            case BinaryOperator::And:
                return ComputeBoolean<std::logical_and<>>;
            case BinaryOperator::Or:
                return ComputeBoolean<std::logical_or<>>;
            case BinaryOperator::Xor:
                return ComputeBoolean<std::not_equal_to<>>;
            default:
                break;
        }
    }
    return nullptr;
}

OrderFunction FindOrder(Kind left, Kind right) {
    if (IsNumber(left) && IsNumber(right)) {
        return WithNumberType(left, [right]<typename Left>(std::type_identity<Left>) {
            return WithNumberType(right,
                                  []<typename Right>(std::type_identity<Right>) -> OrderFunction {
                                      return OrderNumbers<Left, Right>;
                                  });
        });
    }
    if (left != right) {
        return nullptr;
    }
    if (left == Kind::Text) {
        return OrderText;
    }
    if (left == Kind::Variant) {
        return OrderVariants;
    }
    const bool isWord =
        left == Kind::Boolean || left == Kind::TextEncoding || left == Kind::Enumeration;
    return isWord ? OrderWords : nullptr;
}

bool Fulfils(std::partial_ordering order, BinaryOperator comparison) {
    switch (comparison) {
        case BinaryOperator::Equal:
            return order == 0;
        case BinaryOperator::NotEqual:
            return order != 0;
        case BinaryOperator::Less:
            return order < 0;
        case BinaryOperator::LessEqual:
            return order <= 0;
        case BinaryOperator::Greater:
            return order > 0;
        default:
            return order >= 0;
    }
}

}  // namespace standin::language
