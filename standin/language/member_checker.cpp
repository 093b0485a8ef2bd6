// The members of the expression checker: what stands behind a dot, read or called.
#include <algorithm>
#include <utility>

#include "standin/language/code_units.hpp"
#include "standin/language/expression_checker.hpp"
#include "standin/language/hints.hpp"
#include "standin/language/unsupported.hpp"
#include "standin/language/wrong_overloads.hpp"

namespace standin::language {
namespace {

/// Throws where a shared method is called on the object that it takes as an argument.
void RequireSharedCall(const ClassModel& model, const std::vector<const Method*>& methods,
                       const std::vector<Checked>& arguments, Position at) {
    const bool takesAsMany = std::ranges::any_of(methods, [&arguments](const Method* method) {
        return method->signature.parameters.size() == arguments.size();
    });
    const auto hint =
        takesAsMany ? std::string() : SharedMethodHint(model, methods, arguments.size());
    if (!hint.empty()) {
        throw ProgramError(at, Quoted(methods.front()->signature.name) +
                                   " is a shared method that takes the object" + hint);
    }
}

}  // namespace

std::string ExpressionChecker::LabelOf(const ClassModel& model, const std::string& declaration) {
    return model.name() + "." + declaration;
}

Checked ExpressionChecker::MakeCall(std::optional<Checked> receiver, code::PluginCall call,
                                    code::NilReceiver nil, Type result, Position at) {
    if (!receiver) {
        return {std::make_unique<code::SharedCall>(std::move(call)), result, at, {}, false};
    }
    return {std::make_unique<code::InstanceCall>(std::move(receiver->code), std::move(call), nil),
            result,
            at,
            {},
            false};
}

Checked ExpressionChecker::CheckNode(const syntax::Member& member, Position at) {
    const auto* module = std::get_if<syntax::Name>(&member.object->node);
    if (module != nullptr && SameName(module->name, EncodingsModule) &&
        scope_.Find(module->name) == nullptr) {
        const auto encoding = FindEncoding(member.name);
        if (!encoding) {
            throw ProgramError(at, "there is no encoding " + Quoted(member.name));
        }
        return MakeConstant(Value::Of(static_cast<std::uint32_t>(*encoding)), {Kind::TextEncoding},
                            at);
    }
    if (const auto* unit = FindUnit(*member.object)) {
        if (auto value = TryUnitValue(*unit, member.name, at)) {
            return std::move(*value);
        }
    }
    return CheckMember(CheckReceiver(*member.object, member.name), member.name, at);
}

ExpressionChecker::Receiver ExpressionChecker::CheckReceiver(const syntax::Expression& expression,
                                                             const std::string& member) {
    const auto* name = std::get_if<syntax::Name>(&expression.node);
    if (name != nullptr && scope_.Find(name->name) == nullptr) {
        if (const auto* model = types_.FindClass(name->name)) {
            return {std::nullopt, model};
        }
        if (callables_.units.contains(name->name)) {
            FailWithoutUnitMember(name->name, member, expression.at);
        }
        if (types_.Find(name->name) && IsUnsupportedMember(name->name, member)) {
            throw ProgramError(expression.at,
                               Quoted(name->name + "." + member) + " is not supported here");
        }
    }
    if (const auto* model = FindQualifiedType(expression)) {
        return {std::nullopt, model};
    }
    auto value = Check(expression);
    // Values that are no objects have methods, but no class.
    const ClassModel* model = nullptr;
    if (IsHandle(value.type.kind)) {
        model = types_.FindClass(NameOf(value.type));
    }
    return {std::move(value), model};
}

/// A name after a dot without arguments: a property first, else a method.
Checked ExpressionChecker::CheckMember(Receiver receiver, const std::string& name, Position at) {
    if (receiver.model != nullptr && !receiver.value) {
        if (const auto* item = receiver.model->FindItem(name)) {
            return MakeConstant(Value::Of(item->value), {Kind::Enumeration, receiver.model}, at);
        }
    }
    if (receiver.model == nullptr) {
        return CheckValueMember(std::move(*receiver.value), name, {}, at);
    }
    if (receiver.value) {
        if (const auto* property = receiver.model->FindProperty(name)) {
            return ReadProperty(std::move(receiver), *property, false, at);
        }
    }
    if (const auto* property = receiver.model->FindSharedProperty(name)) {
        return ReadProperty(std::move(receiver), *property, true, at);
    }
    return CheckMemberCall(std::move(receiver), name, {}, at);
}

Checked ExpressionChecker::CheckMemberCall(Receiver receiver, const std::string& name,
                                           Arguments arguments, Position at) {
    if (receiver.model == nullptr) {
        return CheckValueMember(std::move(*receiver.value), name, std::move(arguments), at);
    }
    const auto& model = *receiver.model;
    if (!arguments.empty() && IsArrayProperty(receiver, name)) {
        return CheckElement(CheckMember(std::move(receiver), name, at), std::move(arguments), at);
    }
    if (receiver.value) {
        const auto methods = model.FindMethods(name);
        if (!methods.empty()) {
            return CallMethod(std::move(receiver), methods, false, std::move(arguments), at);
        }
    }
    const auto shared = model.FindSharedMethods(name);
    if (!shared.empty()) {
        if (receiver.value) {
            RequireSharedCall(model, shared, arguments, at);
        }
        return CallMethod(std::move(receiver), shared, true, std::move(arguments), at);
    }
    const bool isProperty =
        model.FindProperty(name) != nullptr || model.FindSharedProperty(name) != nullptr;
    if (isProperty && receiver.value && arguments.empty()) {
        return CheckMember(std::move(receiver), name, at);
    }
    if (isProperty && receiver.value) {
        throw ProgramError(at, Quoted(name) + " is a property and takes no arguments");
    }
    if (isProperty || !model.FindMethods(name).empty()) {
        throw ProgramError(
            at, Quoted(name) + " needs an object of " + model.name() + ReceiverHint(model, name));
    }
    if (receiver.value) {
        if (auto result = TryExtension(*receiver.value, name, arguments, at)) {
            return std::move(*result);
        }
    }
    FailWithoutMember(model, name, at);
}

Checked ExpressionChecker::CheckValueMember(Checked value, const std::string& name,
                                            Arguments arguments, Position at) {
    if (auto result = TryArrayMember(value, name, arguments, at)) {
        return std::move(*result);
    }
    const Type type = value.type;
    if (auto result = TryExtension(value, name, arguments, at)) {
        return std::move(*result);
    }
    // A function of that name takes something else.
    if (IsUnsupportedMember(NameOf(type), name)) {
        FailWithoutValueMember(type, name, at);
    }
    arguments.insert(arguments.begin(), std::move(value));
    if (auto result = TryBuiltIn(name, arguments, at)) {
        return std::move(*result);
    }
    FailWithoutValueMember(type, name, at);
}

Checked ExpressionChecker::ReadProperty(Receiver receiver, const Property& property, bool isShared,
                                        Position at) {
    RequireUsable(property.declaration, property.problem, at);
    RequireUnambiguous(*receiver.model, property.name, at);
    if (property.field) {
        RequireAccess(property.isPrivate, *receiver.model, property.name, at);
        return {std::make_unique<code::Field>(std::move(receiver.value->code), *property.field),
                property.type,
                at,
                {},
                true};
    }
    if (property.host.function != nullptr) {
        return {MakeHostCall(property.host.function, std::move(receiver), {}),
                property.type,
                at,
                {},
                false};
    }
    RequireRoutine(property.getter, property.declaration, at);
    const auto parameter = isShared ? std::nullopt : std::optional(property.parameter);
    code::PluginCall call(LabelOf(*receiver.model, property.declaration), property.getter, {},
                          property.type.kind, parameter);
    return MakeCall(isShared ? std::nullopt : std::move(receiver.value), std::move(call),
                    code::NilReceiver::Passed, property.type, at);
}

Checked ExpressionChecker::CallMethod(Receiver receiver, const std::vector<const Method*>& methods,
                                      bool isShared, Arguments arguments, Position at) {
    const auto& name = methods.front()->signature.name;
    RequireUnambiguous(*receiver.model, name, at);
    const auto& method =
        *methods[RequireOverload(name, SignaturesOf(methods), arguments, at, receiver.model)];
    if (method.routine != nullptr) {
        RequireAccess(method.isPrivate, *receiver.model, name, at);
        auto filled = Fill(method.signature, std::move(arguments), at, *this);
        filled.insert(filled.begin(), {std::move(receiver.value->code), Kind::Instance, false});
        return {std::make_unique<code::RoutineCall>(*method.routine, std::move(filled), true),
                method.signature.result,
                at,
                {},
                false};
    }
    if (method.host.function != nullptr) {
        auto filled = Fill(method.signature, std::move(arguments), at, *this);
        return {MakeHostCall(method.host.function, std::move(receiver), std::move(filled)),
                method.signature.result,
                at,
                {},
                false};
    }
    auto call = MakePluginCall(*receiver.model, method, std::move(arguments), at);
    // What returns nothing is there for what it does to the object.
    const Type result = method.signature.result;
    const bool reads = result.kind != Kind::None;
    return MakeCall(isShared ? std::nullopt : std::move(receiver.value), std::move(call),
                    reads ? code::NilReceiver::Passed : code::NilReceiver::Refused, result, at);
}

code::ExpressionPtr ExpressionChecker::MakeHostCall(BuiltInFunction function, Receiver receiver,
                                                    std::vector<code::Argument> arguments) {
    const Kind kind = receiver.value->type.kind;
    arguments.insert(arguments.begin(), {std::move(receiver.value->code), kind, false});
    // Nil is a Variant like any other.
    if (kind == Kind::Variant) {
        return std::make_unique<code::BuiltInCall>(function, std::move(arguments));
    }
    return std::make_unique<code::HostMemberCall>(function, std::move(arguments));
}

code::PluginCall ExpressionChecker::MakePluginCall(const ClassModel& model, const Method& method,
                                                   Arguments arguments, Position at) {
    const auto& signature = method.signature;
    RequireRoutine(method.function, signature.declaration, at);
    return {LabelOf(model, signature.declaration), method.function,
            Fill(signature, std::move(arguments), at, *this), signature.result.kind};
}

}  // namespace standin::language
