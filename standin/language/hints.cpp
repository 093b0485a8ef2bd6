#include "standin/language/hints.hpp"

#include <algorithm>

#include "standin/language/names.hpp"
#include "standin/language/operators.hpp"
#include "standin/language/text.hpp"

namespace standin::language {
namespace {

/// The property that tells an object as a value of that type: the only one of the type, or else the
/// first whose name begins with the type's.
const Property* FindValueProperty(const ClassModel& model, Type type) {
    const Property* found = nullptr;
    std::size_t count = 0;
    const auto typeName = NameOf(type);
    for (const auto& property : model.properties) {
        if (property.type != type || !property.problem.empty()) {
            continue;
        }
        ++count;
        if (SameName(std::string_view(property.name).substr(0, typeName.size()), typeName)) {
            return &property;
        }
        found = &property;
    }
    return count == 1 ? found : nullptr;
}

std::string PropertyHint(const ClassModel& model, Type type) {
    const bool isValue =
        type.kind == Kind::Text || type.kind == Kind::Boolean || IsNumber(type.kind);
    const auto* property = isValue ? FindValueProperty(model, type) : nullptr;
    return property == nullptr ? std::string() : "; use its " + property->name;
}

/// Whether a class has a constructor that takes the value without loss.
bool IsConstructedOf(const ClassModel& model, const Checked& value) {
    return std::ranges::any_of(model.FindMethods("Constructor"), [&value](const Method* method) {
        const auto& parameters = method->signature.parameters;
        return method->signature.problem.empty() && parameters.size() == 1 &&
               FitOf(value, parameters.front()) < Fit::Narrowing;
    });
}

/// A literal as it is written; empty for any other value.
std::string LiteralIn(const Checked& value) {
    if (value.literal) {
        return std::to_string(*value.literal);
    }
    return value.amount ? TextOf(*value.amount) : std::string();
}

/// A literal as a text, where that becomes an object by itself, and `New Class(5)`.
std::string ConstructionHint(const Checked& value, Type to) {
    const auto literal = LiteralIn(value);
    const Checked text{nullptr, {Kind::Text}, value.at, {}, false};
    const bool takesText = !literal.empty() && FitOf(text, to) != Fit::None;
    return "; write " + (takesText ? Quoted(literal) + " or " : "") + "New " + NameOf(to) + "(" +
           (literal.empty() ? "..." : literal) + ")";
}

/// Whether a function makes something of a number, as the object is one.
bool TakesNumber(const Signature& function) {
    return !function.parameters.empty() && IsNumber(function.parameters.front().type.kind);
}

}  // namespace

std::string ConversionHint(const Checked& value, Type to) {
    const Type from = value.type;
    if (IsNumber(from.kind) && to.kind == Kind::Text) {
        return "; use Str";
    }
    if (from.kind == Kind::Text && IsNumber(to.kind)) {
        return "; use Val";
    }
    if (from == to) {
        return {};
    }
    if (from.kind == Kind::Instance && to.kind == Kind::Instance && to.model->IsA(*from.model)) {
        return "; use CType";
    }
    if (to.kind == Kind::Instance && IsConstructedOf(*to.model, value)) {
        return ConstructionHint(value, to);
    }
    return from.kind == Kind::Instance ? PropertyHint(*from.model, to) : std::string();
}

std::string MemberHint(const ClassModel& model, std::string_view name,
                       const std::vector<const BuiltIn*>& functions) {
    const auto method = "Operator_" + std::string(name);
    const auto* found = std::ranges::find_if(
        Operators, [&method](const OperatorRow& row) { return SameName(row.method, method); });
    if (found != Operators.end() && !model.FindMethods(method).empty()) {
        return "; write a " + std::string(found->sign) + " b";
    }
    return functions.empty() || !TakesNumber(functions.front()->signature)
               ? std::string()
               : PropertyHint(model, functions.front()->signature.result);
}

std::string FunctionHint(const ClassModel& model, const Signature& function) {
    const auto methods = model.FindMethods(function.name);
    if (!methods.empty()) {
        return "; write value." + methods.front()->signature.name;
    }
    return TakesNumber(function) ? PropertyHint(model, function.result) : std::string();
}

std::string ParameterHint(const ClassModel& model, std::string_view method) {
    for (const auto& other : model.methods) {
        for (const auto& parameter : other.signature.parameters) {
            if (SameName(parameter.name, method)) {
                return "; " + Quoted(other.signature.name) + " has a parameter of that name";
            }
        }
    }
    return {};
}

}  // namespace standin::language
