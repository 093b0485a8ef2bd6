#include "standin/language/hints.hpp"

#include <algorithm>

#include "standin/language/names.hpp"
#include "standin/language/operators.hpp"
#include "standin/language/overloads.hpp"
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

/// Whether a class has exactly one constructor that fits the value best, and takes it without loss.
bool IsConstructedOf(const ClassModel& model, const Checked& value) {
    const auto candidates = SignaturesOf(model.FindMethods("Constructor"));
    std::vector<Checked> arguments;
    arguments.push_back({nullptr, value.type, value.at, value.literal, false, value.amount});
    const auto overload = FindOverload(candidates, arguments);
    return overload.outcome == Overload::Outcome::One &&
           FitOf(value, candidates[overload.best.front()]->parameters.front()) < Fit::Narrowing;
}

/// The shared method that makes an object of the class of one value of that very type.
const Method* FindFactory(const ClassModel& model, Type type) {
    const auto found = std::ranges::find_if(model.sharedMethods, [&](const Method& method) {
        const auto& signature = method.signature;
        return signature.problem.empty() && signature.parameters.size() == 1 &&
               signature.parameters.front().type == type &&
               signature.result == Type{Kind::Instance, &model};
    });
    return found == model.sharedMethods.end() ? nullptr : &*found;
}

/// `value` is the argument as it is written.
std::string FactoryHint(const ClassModel& model, Type type, const std::string& value = "...") {
    const auto* factory = FindFactory(model, type);
    return factory == nullptr
               ? std::string()
               : "; write " + model.name() + "." + factory->signature.name + "(" + value + ")";
}

/// A literal as it is written; empty for any other value.
std::string LiteralIn(const Checked& value) {
    if (value.literal) {
        return std::to_string(*value.literal);
    }
    return value.amount ? TextOf(*value.amount) : std::string();
}

/// A literal as a text, where that becomes an object by itself, and `New Class(5)`.
std::string ConstructionHint(const Checked& value, Type to, TextOffer text) {
    const auto literal = LiteralIn(value);
    const Checked asText{nullptr, {Kind::Text}, value.at, {}, false};
    const bool takesText =
        text == TextOffer::Allowed && !literal.empty() && FitOf(asText, to) != Fit::None;
    return "; write " + (takesText ? Quoted(literal) + " or " : "") + "New " + NameOf(to) + "(" +
           (literal.empty() ? "..." : literal) + ")";
}

bool IsInstanceOf(Type type, const ClassModel& model) {
    return type.kind == Kind::Instance && model.IsA(*type.model);
}

/// The names of a method's parameters in parentheses; nothing where there are none.
std::string ParametersOf(const Signature& signature) {
    std::string names;
    for (const auto& parameter : signature.parameters) {
        names += (names.empty() ? "" : ", ") + parameter.name;
    }
    return names.empty() ? names : "(" + names + ")";
}

/// Whether a function makes something of a number, as the object is one.
bool TakesNumber(const Signature& function) {
    return !function.parameters.empty() && IsNumber(function.parameters.front().type.kind);
}

/// The property in which a function of the language finds the object as a number: as the integer
/// that it takes, or else as what it returns.
std::string NumberHint(const ClassModel& model, const Candidates& functions) {
    const bool takesInteger = std::ranges::all_of(functions, [](const Signature* function) {
        return !function->parameters.empty() && IsInteger(function->parameters.front().type.kind);
    });
    return PropertyHint(model, takesInteger ? functions.front()->parameters.front().type
                                            : functions.front()->result);
}

/// Names that other types and languages have, and what is meant by them.
enum class Meaning : std::uint8_t { ToText, FromText };

struct ForeignName {
    std::string_view name;
    Meaning meaning;
};

constexpr ForeignName ForeignNames[] = {
    {"AsString", Meaning::ToText},     {"AsText", Meaning::ToText},
    {"Text", Meaning::ToText},         {"ToStr", Meaning::ToText},
    {"ToText", Meaning::ToText},       {"Value", Meaning::ToText},
    {"FromString", Meaning::FromText}, {"FromText", Meaning::FromText},
    {"Parse", Meaning::FromText},
};

/// Long names of functions, and how the language calls these.
struct LongName {
    std::string_view name;
    std::string_view shortName;
};

constexpr LongName LongNames[] = {
    {"AbsoluteValue", "Abs"}, {"Ceiling", "Ceil"},    {"Exponential", "Exp"},
    {"Logarithm", "Log"},     {"SquareRoot", "Sqrt"},
};

/// What there is in place of a member with a name that is used elsewhere.
std::string ForeignNameHint(const ClassModel& model, std::string_view name) {
    for (const auto& row : ForeignNames) {
        if (SameName(row.name, name)) {
            return row.meaning == Meaning::ToText ? PropertyHint(model, {Kind::Text})
                                                  : FactoryHint(model, {Kind::Text});
        }
    }
    for (const auto& row : LongNames) {
        if (SameName(row.name, name)) {
            return FunctionHint(model, row.shortName);
        }
    }
    return {};
}

}  // namespace

std::string ConversionHint(const Checked& value, Type to, TextOffer text) {
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
    if (from.kind == Kind::Enumeration && (IsNumber(to.kind) || to.kind == Kind::Text)) {
        return to.kind == Kind::Text ? "; write Str(Integer(...))" : "; write Integer(...)";
    }
    if (IsNumber(from.kind) && to.kind == Kind::Enumeration) {
        return "; write " + NameOf(to) + "(...)";
    }
    if (from.kind == Kind::Instance && to.kind == Kind::Instance && to.model->IsA(*from.model)) {
        return "; use CType";
    }
    if (to.kind == Kind::Instance && IsConstructedOf(*to.model, value)) {
        return ConstructionHint(value, to, text);
    }
    return from.kind == Kind::Instance ? PropertyHint(*from.model, to) : std::string();
}

std::string VariantHint(const ClassModel& model, const std::string& variant) {
    return FactoryHint(model, {Kind::Variant}, variant.empty() ? "..." : variant);
}

std::string ClassesHint(const Checked& left, const Checked& right) {
    auto hint = ConversionHint(right, left.type);
    const bool areRelated =
        left.type.model->IsA(*right.type.model) || right.type.model->IsA(*left.type.model);
    if (areRelated || !IsConstructedOf(*left.type.model, right) ||
        !IsConstructedOf(*right.type.model, left)) {
        return hint;
    }
    return hint + " or New " + NameOf(right.type) + "(...); either may round";
}

std::string MemberHint(const ClassModel& model, std::string_view name,
                       const std::vector<const BuiltIn*>& functions) {
    const auto method = "Operator_" + std::string(name);
    const auto* found = std::ranges::find_if(
        Operators, [&method](const OperatorRow& row) { return SameName(row.method, method); });
    if (found != Operators.end() && !model.FindMethods(method).empty()) {
        return "; write a " + std::string(found->sign) + " b";
    }
    if (functions.empty() || !TakesNumber(functions.front()->signature)) {
        return ForeignNameHint(model, name);
    }
    Candidates candidates;
    for (const auto* function : functions) {
        candidates.push_back(&function->signature);
    }
    return NumberHint(model, candidates);
}

std::string OperatorHint(const ClassModel& model, std::string_view operatorMethod) {
    const auto word = operatorMethod.substr(operatorMethod.find('_') + 1);
    const Signature* shortest = nullptr;
    for (const auto& method : model.methods) {
        const auto& signature = method.signature;
        const bool isNamed = signature.name.ends_with(word) && signature.name != operatorMethod;
        if (isNamed && signature.parameters.size() == 1 &&
            IsInstanceOf(signature.parameters.front().type, model) &&
            (shortest == nullptr || signature.name.size() < shortest->name.size())) {
            shortest = &signature;
        }
    }
    return shortest == nullptr ? std::string() : "; write a." + shortest->name + "(b)";
}

std::string FunctionHint(const ClassModel& model, std::string_view name) {
    if (const auto methods = model.FindMethods(name); !methods.empty()) {
        return "; write value." + methods.front()->signature.name;
    }
    return SharedMethodHint(model, model.FindSharedMethods(name), 0);
}

std::string FunctionHint(const ClassModel& model, const Candidates& functions) {
    const auto& function = *functions.front();
    auto method = FunctionHint(model, function.name);
    if (!method.empty() || !TakesNumber(function)) {
        return method;
    }
    // Of two objects the language's own operators choose without any loss.
    const bool isLargest = SameName(function.name, "Max");
    if ((isLargest || SameName(function.name, "Min")) &&
        !model.FindMethods(CompareOperator).empty()) {
        return isLargest ? "; write If(a > b, a, b)" : "; write If(a < b, a, b)";
    }
    return NumberHint(model, functions);
}

std::string SharedMethodHint(const ClassModel& model, const std::vector<const Method*>& methods,
                             std::size_t count) {
    for (const auto* method : methods) {
        const auto& parameters = method->signature.parameters;
        if (parameters.size() > count && IsInstanceOf(parameters.front().type, model)) {
            return "; write " + model.name() + "." + method->signature.name +
                   ParametersOf(method->signature);
        }
    }
    return {};
}

std::string AssignmentHint(const ClassModel& model, const std::vector<Checked>& arguments) {
    for (const auto& method : model.methods) {
        const auto& signature = method.signature;
        const auto& parameters = signature.parameters;
        const bool takesThem =
            method.setter != nullptr && parameters.size() + 1 == arguments.size() &&
            signature.result == arguments.front().type &&
            std::equal(parameters.begin(), parameters.end(), arguments.begin() + 1,
                       [](const Parameter& parameter, const Checked& argument) {
                           return FitOf(argument, parameter) != Fit::None;
                       });
        if (takesThem) {
            return "; write value." + signature.name + ParametersOf(signature) +
                   " = ..., with a new object as value";
        }
    }
    return {};
}

std::string ReceiverHint(const ClassModel& model, std::string_view name) {
    const auto methods = model.FindMethods(name);
    return "; write value." + std::string(name) +
           (methods.empty() ? std::string() : ParametersOf(methods.front()->signature));
}

std::string TieHint(const ClassModel* model, const Candidates& candidates,
                    const std::vector<Checked>& arguments) {
    if (arguments.size() > 1) {
        return "; assign the values to variables of the types that are meant first";
    }
    const bool takesObject =
        model != nullptr && std::ranges::any_of(candidates, [model](const Signature* candidate) {
            return !candidate->parameters.empty() &&
                   IsInstanceOf(candidate->parameters.front().type, *model);
        });
    if (takesObject && !arguments.empty()) {
        const auto& argument = arguments.front();
        const bool isConstructed =
            argument.type.kind != Kind::Instance && IsConstructedOf(*model, argument);
        auto hint = isConstructed ? ConversionHint(argument, {Kind::Instance, model})
                                  : FactoryHint(*model, argument.type);
        if (!hint.empty()) {
            return hint;
        }
    }
    // Where Integer is an Int64, say, a variable of either type fits both.
    const auto takeItsType = std::ranges::count_if(candidates, [&](const Signature* candidate) {
        return !arguments.empty() && !candidate->parameters.empty() &&
               candidate->parameters.front().type.kind == arguments.front().type.kind;
    });
    if (takeItsType > 1) {
        return {};
    }
    return "; assign the value to a variable of the type that is meant first";
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
