// The setters of the expression checker: what assigns to a property, an element or a method.
#include <algorithm>
#include <utility>

#include "standin/language/code_units.hpp"
#include "standin/language/expression_checker.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin::language {
namespace {

constexpr auto ReturnHint = "; \"Return\" tells what a Function returns";

}  // namespace

void ExpressionChecker::RefuseRoutine(const std::string& name, Position at) const {
    const bool isRoutine =
        std::ranges::any_of(callables_.routines, [this, &name](const DeclaredRoutine& routine) {
            return SameName(routine.signature.name, name) && IsVisible(routine, false);
        });
    if (isRoutine) {
        throw ProgramError(at, Quoted(name) + " cannot be assigned to" + ReturnHint);
    }
}

code::ExpressionPtr ExpressionChecker::CheckSetter(const syntax::Expression& target,
                                                   const syntax::Expression& value) {
    const auto* call = std::get_if<syntax::Call>(&target.node);
    const auto& named = call == nullptr ? target : *call->callee;
    if (const auto variable = FindVariable(named); variable && call != nullptr) {
        return CheckElementSetter(MakeVariable(*variable, named.at),
                                  CheckArguments(call->arguments), value, target.at);
    }
    const Position at = named.at;
    const auto* ownName = std::get_if<syntax::Name>(&named.node);
    const auto* member = std::get_if<syntax::Member>(&named.node);
    const bool isOwn = ownName != nullptr && IsOwnMember(ownName->name);
    if (member == nullptr && !isOwn) {
        if (ownName != nullptr) {
            RefuseRoutine(ownName->name, target.at);
            // The mistake in the name tells more.
            CheckNode(*ownName, at);
        }
        throw ProgramError(target.at, "this cannot be assigned to");
    }
    const auto& name = isOwn ? ownName->name : member->name;
    auto receiver = isOwn ? OwnReceiver(at) : CheckReceiver(*member->object, member->name);
    if (receiver.model == nullptr) {
        throw ProgramError(at, Quoted(name) + " cannot be assigned to");
    }
    const auto& model = *receiver.model;
    if (call != nullptr && IsArrayProperty(receiver, name)) {
        return CheckElementSetter(CheckMember(std::move(receiver), name, at),
                                  CheckArguments(call->arguments), value, target.at);
    }
    if (call == nullptr) {
        const auto* property = receiver.value ? model.FindProperty(name) : nullptr;
        if (property != nullptr) {
            return WriteProperty(std::move(receiver), *property, false, Check(value), at);
        }
        if (const auto* shared = model.FindSharedProperty(name)) {
            return WriteProperty(std::move(receiver), *shared, true, Check(value), at);
        }
    }
    auto arguments = call == nullptr ? Arguments{} : CheckArguments(call->arguments);
    const auto methods = receiver.value ? model.FindMethods(name) : std::vector<const Method*>{};
    if (!methods.empty()) {
        return CallMethodSetter(std::move(receiver), methods, false, std::move(arguments),
                                Check(value), at);
    }
    const auto shared = model.FindSharedMethods(name);
    if (!shared.empty()) {
        return CallMethodSetter(std::move(receiver), shared, true, std::move(arguments),
                                Check(value), at);
    }
    FailWithoutMember(model, name, at);
}

code::ExpressionPtr ExpressionChecker::WriteProperty(Receiver receiver, const Property& property,
                                                     bool isShared, Checked value, Position at) {
    RequireUsable(property.declaration, property.problem, at);
    auto converted = ConvertTo(std::move(value), property.type);
    if (property.field) {
        RequireAccess(property.isPrivate, *receiver.model, property.name, at);
        return std::make_unique<code::SetField>(std::move(receiver.value->code), *property.field,
                                                std::move(converted.code));
    }
    const bool isReadable = property.getter != nullptr || property.host.function != nullptr;
    if (property.setter == nullptr && property.host.setter == nullptr && isReadable) {
        throw ProgramError(at, Quoted(property.declaration) + " is read-only");
    }
    std::vector<code::Argument> arguments;
    arguments.push_back({std::move(converted.code), property.type.kind, false});
    if (property.host.setter != nullptr) {
        return MakeHostCall(property.host.setter, std::move(receiver), std::move(arguments));
    }
    RequireRoutine(property.setter, property.declaration, at);
    const auto parameter = isShared ? std::nullopt : std::optional(property.parameter);
    code::PluginCall call(LabelOf(*receiver.model, property.declaration), property.setter,
                          std::move(arguments), Kind::None, parameter);
    return MakeCall(isShared ? std::nullopt : std::move(receiver.value), std::move(call),
                    code::NilReceiver::Refused, {Kind::None}, at)
        .code;
}

code::ExpressionPtr ExpressionChecker::CallMethodSetter(Receiver receiver,
                                                        const std::vector<const Method*>& methods,
                                                        bool isShared, Arguments arguments,
                                                        Checked value, Position at) {
    const auto& name = methods.front()->signature.name;
    const auto& method = *methods[RequireOverload(name, SignaturesOf(methods), arguments, at)];
    const auto& signature = method.signature;
    const bool isReadable =
        method.function != nullptr || method.host.function != nullptr || method.routine != nullptr;
    const bool isRefused =
        method.setter != nullptr && IsWrongAbout("compiles-assignment-to-method");
    if (isRefused || (method.setter == nullptr && method.host.setter == nullptr && isReadable)) {
        throw ProgramError(at, Quoted(signature.declaration) + " cannot be assigned to" +
                                   (method.routine == nullptr ? "" : ReturnHint));
    }
    auto filled = Fill(signature, std::move(arguments), at, *this);
    auto converted = ConvertTo(std::move(value), signature.result);
    filled.push_back({std::move(converted.code), signature.result.kind, false});
    if (method.host.setter != nullptr) {
        return MakeHostCall(method.host.setter, std::move(receiver), std::move(filled));
    }
    RequireRoutine(method.setter, signature.declaration, at);
    code::PluginCall call(LabelOf(*receiver.model, signature.declaration), method.setter,
                          std::move(filled), Kind::None);
    return MakeCall(isShared ? std::nullopt : std::move(receiver.value), std::move(call),
                    code::NilReceiver::Refused, {Kind::None}, at)
        .code;
}

}  // namespace standin::language
