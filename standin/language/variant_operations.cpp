#include "standin/language/variant_operations.hpp"

#include <algorithm>
#include <string>
#include <variant>

#include "standin/language/names.hpp"
#include "standin/language/operators.hpp"

namespace standin::language {
namespace {

using host_interface::VariantTypeCode;
using syntax::BinaryOperator;

/// The kind in which a held value is computed with.
Kind AsNumberKind(Kind held) {
    if (held == Kind::Text) {
        return Kind::Double;
    }
    return held == Kind::Boolean ? IntegerKind : held;
}

/// The kind in which two held values meet.
Kind MeetingKind(BinaryOperator operation, Kind left, Kind right) {
    const bool areAlike = left == right && !IsNumber(left);
    if (areAlike && FindOperation(operation, left) != nullptr) {
        return left;
    }
    return WorkingKind(operation, CommonKind(AsNumberKind(left), AsNumberKind(right)));
}

template <BinaryOperator Operation>
Value Compute(const Value& left, const Value& right, const Machine& machine) {
    const Kind leftKind = HeldKind(left, machine);
    const Kind rightKind = HeldKind(right, machine);
    const Kind kind = MeetingKind(Operation, leftKind, rightKind);
    const auto function = FindOperation(Operation, kind);
    if (function == nullptr) {
        const auto* row = std::ranges::find(Operators, Operation, &OperatorRow::operation);
        machine.Raise("TypeMismatchException",
                      Quoted(row->sign) + " cannot stand between Variants that hold " +
                          NameOf({leftKind}) + " and " + NameOf({rightKind}) + ".");
    }
    const auto unbox = FindUnboxing(kind);
    return FindBoxing(kind)(function(unbox(left, machine), unbox(right, machine), machine),
                            machine);
}

template <BinaryOperator Operation>
Value Compare(const Value& left, const Value& right, const Machine& machine) {
    HeldKind(left, machine);
    HeldKind(right, machine);
    return Value::Of(Fulfils(FindOrder(Kind::Variant, Kind::Variant)(left, right), Operation));
}

}  // namespace

BinaryFunction FindVariantOperation(BinaryOperator operation) {
    switch (operation) {
        case BinaryOperator::Power:
            return Compute<BinaryOperator::Power>;
        case BinaryOperator::Multiply:
            return Compute<BinaryOperator::Multiply>;
        case BinaryOperator::Divide:
            return Compute<BinaryOperator::Divide>;
        case BinaryOperator::IntegerDivide:
            return Compute<BinaryOperator::IntegerDivide>;
        case BinaryOperator::Modulo:
            return Compute<BinaryOperator::Modulo>;
        case BinaryOperator::Add:
            return Compute<BinaryOperator::Add>;
        case BinaryOperator::Subtract:
            return Compute<BinaryOperator::Subtract>;
        case BinaryOperator::And:
            return Compute<BinaryOperator::And>;
        case BinaryOperator::Or:
            return Compute<BinaryOperator::Or>;
        case BinaryOperator::Xor:
            return Compute<BinaryOperator::Xor>;
        default:
            return nullptr;
    }
}

Value NegateVariant(const Value& value, const Machine& machine) {
    const Kind kind = AsNumberKind(HeldKind(value, machine));
    return FindBoxing(kind)(FindNegation(kind)(FindUnboxing(kind)(value, machine), machine),
                            machine);
}

Value ComplementVariant(const Value& value, const Machine& machine) {
    const Kind kind = HeldKind(value, machine);
    const auto function = FindComplement(kind);
    if (function == nullptr) {
        machine.Raise("TypeMismatchException", "\"Not\" cannot stand before a Variant that holds " +
                                                   WithArticle(NameOf({kind})) + ".");
    }
    return FindBoxing(kind)(function(FindUnboxing(kind)(value, machine), machine), machine);
}

BinaryFunction FindVariantComparison(BinaryOperator operation) {
    switch (operation) {
        case BinaryOperator::Less:
            return Compare<BinaryOperator::Less>;
        case BinaryOperator::LessEqual:
            return Compare<BinaryOperator::LessEqual>;
        case BinaryOperator::Greater:
            return Compare<BinaryOperator::Greater>;
        case BinaryOperator::GreaterEqual:
            return Compare<BinaryOperator::GreaterEqual>;
        default:
            return nullptr;
    }
}

Kind HeldKind(const Value& variant, const Machine& machine) {
    RequireHeldValue(variant, "value to compute with", machine);
    Host& host = machine.host();
    const auto contents = host.VariantContents(variant.object());
    const bool isUnsigned = std::holds_alternative<std::uint64_t>(contents);
    switch (static_cast<VariantTypeCode>(host.VariantType(variant.object()))) {
        case VariantTypeCode::Boolean:
            return Kind::Boolean;
        case VariantTypeCode::Int32:
            return isUnsigned ? Kind::UInt32 : Kind::Int32;
        case VariantTypeCode::Single:
            return Kind::Single;
        case VariantTypeCode::Currency:
            return Kind::Currency;
        default:
            break;
    }
    if (std::holds_alternative<String>(contents)) {
        return Kind::Text;
    }
    if (std::holds_alternative<double>(contents)) {
        return Kind::Double;
    }
    if (isUnsigned) {
        return Kind::UInt64;
    }
    return std::holds_alternative<std::int64_t>(contents) ? Kind::Int64 : IntegerKind;
}

}  // namespace standin::language
