#include "standin/language/conversions.hpp"

#include <algorithm>
#include <utility>

#include "standin/language/code_expressions.hpp"
#include "standin/language/errors.hpp"
#include "standin/language/hints.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin::language {
namespace {

constexpr std::string_view ConvertOperator = "Operator_Convert";

/// How well a value fits without any Operator_Convert.
Fit PlainFit(const Checked& value, Type to) {
    const Type from = value.type;
    if (from == to) {
        return Fit::Exact;
    }
    const auto isOfPlugin = [](Type type) {
        return type.kind == Kind::Instance && type.model->info().record != nullptr;
    };
    if (from.kind == Kind::Nil) {
        if (isOfPlugin(to) && IsWrongAbout("compiles-nil-argument")) {
            return Fit::None;
        }
        const bool takesNil = IsHandle(to.kind) || to.kind == Kind::TextEncoding;
        return takesNil ? Fit::Exact : Fit::None;
    }
    if (from.kind == Kind::Instance && to.kind == Kind::Instance) {
        return from.model->IsA(*to.model) ? Fit::Widening : Fit::None;
    }
    if (IsNumber(from.kind) && IsNumber(to.kind)) {
        return Widens(from.kind, to.kind) ? Fit::Widening : Fit::Narrowing;
    }
    if (isOfPlugin(from) && IsWrongAbout("compiles-number-in-variant")) {
        return Fit::None;
    }
    const bool isBoxed =
        to.kind == Kind::Variant && (IsHandle(from.kind) || FindBoxing(from.kind) != nullptr);
    const bool isUnboxed =
        from.kind == Kind::Variant && (IsHandle(to.kind) || FindUnboxing(to.kind) != nullptr);
    return isBoxed || isUnboxed ? Fit::Boxing : Fit::None;
}

/// The Operator_Convert that makes an object of the class from the value: the one whose parameter
/// fits best, if one does without loss.
const Method* FindConversionIn(const Checked& value, const ClassModel& model) {
    if (model.info().record != nullptr && IsWrongAbout("compiles-conversion-in")) {
        return nullptr;
    }
    const Method* best = nullptr;
    auto bestFit = Fit::Converting;
    for (const auto* method : model.FindMethods(ConvertOperator)) {
        const auto& signature = method->signature;
        if (!signature.problem.empty() || signature.parameters.size() != 1) {
            continue;
        }
        const auto fit = PlainFit(value, signature.parameters.front().type);
        if (fit < bestFit) {
            best = method;
            bestFit = fit;
        }
    }
    return best;
}

/// The Operator_Convert that returns an object as a value of that type.
const Method* FindConversionOut(Type from, Type to) {
    if (from.kind != Kind::Instance ||
        (from.model->info().record != nullptr && IsWrongAbout("compiles-conversion-out"))) {
        return nullptr;
    }
    const auto methods = from.model->FindMethods(ConvertOperator);
    const auto found = std::ranges::find_if(methods, [to](const Method* method) {
        return method->signature.parameters.empty() && method->signature.result == to;
    });
    return found == methods.end() ? nullptr : *found;
}

std::string LabelOf(const ClassModel& model, const Method& method) {
    return model.name() + "." + method.signature.declaration;
}

Checked ConvertIn(Checked value, Type to, const Method& method) {
    const Position at = value.at;
    auto argument = ConvertTo(std::move(value), method.signature.parameters.front().type);
    std::vector<code::Argument> arguments;
    arguments.push_back({std::move(argument.code), argument.type.kind, false});
    if (method.host.function != nullptr) {
        return {std::make_unique<code::BuiltInCall>(method.host.function, std::move(arguments)),
                to,
                at,
                {},
                false};
    }
    RequireRoutine(method.function, method.signature.declaration, at);
    code::PluginCall call(LabelOf(*to.model, method), method.function, std::move(arguments),
                          Kind::None);
    return {
        std::make_unique<code::NewObject>(to.model->info(), std::move(call)), to, at, {}, false};
}

Checked ConvertOut(Checked value, Type to, const Method& method) {
    const Position at = value.at;
    if (method.host.function != nullptr) {
        std::vector<code::Argument> arguments;
        arguments.push_back({std::move(value.code), Kind::Instance, false});
        return {std::make_unique<code::HostMemberCall>(method.host.function, std::move(arguments)),
                to,
                at,
                {},
                false};
    }
    RequireRoutine(method.function, method.signature.declaration, at);
    code::PluginCall call(LabelOf(*value.type.model, method), method.function, {}, to.kind);
    return {std::make_unique<code::InstanceCall>(std::move(value.code), std::move(call),
                                                 code::NilReceiver::Passed),
            to,
            at,
            {},
            false};
}

/// A whole literal becomes one of the other kind at once; one with a decimal point an amount.
Checked ConvertNumber(Checked value, Type to) {
    if (to.kind == Kind::Currency && value.amount) {
        return {
            std::make_unique<code::Constant>(Value::Of(*value.amount)), to, value.at, {}, false};
    }
    const auto conversion = FindConversion(value.type.kind, to.kind);
    const auto literal = IsInteger(to.kind) ? value.literal : std::nullopt;
    return {std::make_unique<code::UnaryOperation>(conversion, std::move(value.code)), to, value.at,
            literal, false};
}

/// Into or out of a Variant. An object comes out as one of its class or raises.
Checked ConvertVariant(Checked value, Type to) {
    const Position at = value.at;
    const auto function =
        to.kind == Kind::Variant ? FindBoxing(value.type.kind) : FindUnboxing(to.kind);
    if (function != nullptr) {
        return {std::make_unique<code::UnaryOperation>(function, std::move(value.code)),
                to,
                at,
                {},
                false};
    }
    if (to.kind == Kind::Instance) {
        auto hint = VariantHint(*to.model, value.code->written().text);
        return {std::make_unique<code::ClassCast>(std::move(value.code), to.model->info(),
                                                  std::move(hint)),
                to,
                at,
                {},
                false};
    }
    return {std::move(value.code), to, at, {}, false};
}

Checked ConvertPlain(Checked value, Type to) {
    if (value.type == to) {
        return value;
    }
    if (value.type.kind == Kind::Nil) {
        return {std::make_unique<code::Constant>(Value::DefaultOf(to)), to, value.at, {}, false};
    }
    if (value.type.kind == Kind::Variant || to.kind == Kind::Variant) {
        return ConvertVariant(std::move(value), to);
    }
    if (IsNumber(to.kind)) {
        return ConvertNumber(std::move(value), to);
    }
    return {std::move(value.code), to, value.at, {}, false};
}

}  // namespace

Fit FitOf(const Checked& value, Type to) {
    const auto fit = PlainFit(value, to);
    if (fit != Fit::None) {
        return fit;
    }
    const bool convertsIn =
        to.kind == Kind::Instance && FindConversionIn(value, *to.model) != nullptr;
    return convertsIn || FindConversionOut(value.type, to) != nullptr ? Fit::Converting : Fit::None;
}

Fit FitOf(const Checked& argument, const Parameter& parameter) {
    if (!parameter.byRef) {
        return FitOf(argument, parameter.type);
    }
    return argument.isVariable && argument.type == parameter.type ? Fit::Exact : Fit::None;
}

Checked ConvertTo(Checked value, Type to) {
    if (PlainFit(value, to) != Fit::None) {
        return ConvertPlain(std::move(value), to);
    }
    if (to.kind == Kind::Instance) {
        if (const auto* method = FindConversionIn(value, *to.model)) {
            return ConvertIn(std::move(value), to, *method);
        }
    }
    if (const auto* method = FindConversionOut(value.type, to)) {
        return ConvertOut(std::move(value), to, *method);
    }
    if (IsIncomplete(value.type) || IsIncomplete(to)) {
        throw FollowingError(value.at, "the class has an error");
    }
    if (value.type.kind == Kind::Array && to.kind == Kind::Variant) {
        throw ProgramError(value.at, "an array in a Variant is not supported here");
    }
    throw ProgramError(value.at, "expected " + NameOf(to) + ", this is " + NameOf(value.type) +
                                     ConversionHint(value, to));
}

void RequireUsable(const std::string& declaration, const std::string& problem, Position at) {
    if (!problem.empty()) {
        throw ProgramError(at, "cannot use " + Quoted(declaration) + ": " + problem);
    }
}

void RequireRoutine(host_interface::Routine routine, const std::string& declaration, Position at) {
    if (routine == nullptr) {
        throw ProgramError(at, "no routine for " + Quoted(declaration));
    }
}

bool HasTextForm(Type type) {
    return type.kind == Kind::Variant || FindConversionOut(type, Type{Kind::Text}) != nullptr;
}

}  // namespace standin::language
