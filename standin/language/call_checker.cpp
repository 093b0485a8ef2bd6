// The calls of the expression checker: of functions and routines by name, and of constructors.
#include <algorithm>
#include <utility>

#include "standin/language/dictionary.hpp"
#include "standin/language/expression_checker.hpp"
#include "standin/language/hints.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin::language {
namespace {

constexpr std::string_view ConstructorName = "Constructor";

/// Throws where a function of the language takes no object like the first argument, and the object
/// has something in its place.
void RefuseObject(const std::string& name, const Candidates& candidates,
                  const std::vector<Checked>& arguments, Position at) {
    if (arguments.empty() || arguments.front().type.kind != Kind::Instance ||
        FindOverload(candidates, arguments).outcome != Overload::Outcome::NoneFits) {
        return;
    }
    const auto& model = *arguments.front().type.model;
    const auto hint = FunctionHint(model, candidates);
    if (!hint.empty()) {
        throw ProgramError(at, Quoted(name) + " takes no " + model.name() + hint);
    }
}

}  // namespace

ExpressionChecker::Arguments ExpressionChecker::CheckArguments(
    const syntax::Expressions& expressions) {
    Arguments arguments;
    for (const auto& expression : expressions) {
        arguments.push_back(Check(*expression));
    }
    return arguments;
}

void ExpressionChecker::RequireArray(const syntax::Call& call, const Variable& variable,
                                     Position at) const {
    const auto* name = std::get_if<syntax::Name>(&call.callee->node);
    const Type type = variable.type;
    if (type.kind == Kind::Array || name == nullptr) {
        return;
    }
    const bool hidesFunction =
        !BuiltInsNamed(name->name).empty() ||
        std::ranges::any_of(callables_.routines, [name](const auto& routine) {
            return SameName(routine.signature.name, name->name);
        });
    ProgramError error(at,
                       Quoted(name->name) + " is a variable of type " + NameOf(type) +
                           " here, and takes no arguments" +
                           (hidesFunction ? "; rename it to call the function of that name" : ""));
    error.SetDeclaration(variable.declaredAt);
    throw ProgramError(error);
}

Checked ExpressionChecker::CheckNode(const syntax::Call& call, Position at) {
    if (IsArrayFunction(call)) {
        return CheckArrayCall(call, std::nullopt, at);
    }
    if (const auto variable = FindVariable(*call.callee)) {
        RequireArray(call, *variable, at);
        return CheckElement(MakeVariable(*variable, at), CheckArguments(call.arguments), at);
    }
    if (const auto* member = std::get_if<syntax::Member>(&call.callee->node)) {
        if (const auto* unit = FindUnit(*member->object)) {
            auto arguments = CheckArguments(call.arguments);
            if (auto result = TryRoutine(member->name, *unit, arguments, at)) {
                return std::move(*result);
            }
            if (auto result = TryBuiltIn(*unit + "." + member->name, arguments, at)) {
                return std::move(*result);
            }
        }
        if (const auto* model = FindQualifiedType(*call.callee);
            model && call.arguments.size() == 1) {
            return CastTo(Check(*call.arguments.front()), *types_.Find(model->name()), at);
        }
        auto receiver = CheckReceiver(*member->object, member->name);
        if (receiver.value) {
            if (auto sort = TrySortBy(*receiver.value, member->name, call.arguments, at)) {
                return std::move(*sort);
            }
        }
        return CheckMemberCall(std::move(receiver), member->name, CheckArguments(call.arguments),
                               at);
    }
    const auto* name = std::get_if<syntax::Name>(&call.callee->node);
    if (name == nullptr) {
        return CheckElement(Check(*call.callee), CheckArguments(call.arguments), at);
    }
    if (IsOwnMember(name->name)) {
        return CheckMemberCall(OwnReceiver(at), name->name, CheckArguments(call.arguments), at);
    }
    return CheckNamedCall(name->name, CheckArguments(call.arguments), at);
}

Checked ExpressionChecker::CheckNamedCall(const std::string& name, Arguments arguments,
                                          Position at) {
    if (auto result = TryRoutine(name, std::nullopt, arguments, at)) {
        return std::move(*result);
    }
    if (auto result = TryBuiltIn(name, arguments, at)) {
        return std::move(*result);
    }
    // `Ubound(a)` is `a.Ubound`.
    if (!arguments.empty() && arguments.front().type.kind == Kind::Array) {
        auto array = std::move(arguments.front());
        arguments.erase(arguments.begin());
        return CheckValueMember(std::move(array), name, std::move(arguments), at);
    }
    if (const auto type = types_.Find(name)) {
        if (arguments.size() == 1) {
            return CastTo(std::move(arguments.front()), *type, at);
        }
        throw ProgramError(at, Quoted(name) + " is a type, not a value");
    }
    FailWithoutName(name, at);
}

std::optional<Checked> ExpressionChecker::TryBuiltIn(const std::string& name, Arguments& arguments,
                                                     Position at) {
    Candidates candidates;
    std::vector<BuiltInFunction> functions;
    const bool isVariant = !arguments.empty() && arguments.front().type.kind == Kind::Variant;
    for (const auto& builtIn : callables_.builtIns) {
        const bool isTaken = isVariant || !builtIn.isForVariantsOnly;
        if (isTaken && SameName(builtIn.signature.name, name)) {
            candidates.push_back(&builtIn.signature);
            functions.push_back(builtIn.function);
        }
    }
    if (candidates.empty()) {
        return std::nullopt;
    }
    RefuseObject(name, candidates, arguments, at);
    if (arguments.size() > 1 && SameName(name, "MsgBox")) {
        throw ProgramError(at, "buttons and a title of \"MsgBox\" are not supported here");
    }
    const auto index = RequireOverload(name, candidates, arguments, at);
    const auto& signature = *candidates[index];
    return Checked{std::make_unique<code::BuiltInCall>(
                       functions[index], Fill(signature, std::move(arguments), at, *this)),
                   signature.result,
                   at,
                   {},
                   false};
}

Checked ExpressionChecker::CheckNode(const syntax::New& creation, Position at) {
    const auto type = RequireType(creation.type);
    if (type.kind != Kind::Instance) {
        throw ProgramError(at, NameOf(type) + " is not a class");
    }
    if (type.model->name() == DictionaryEntryClass) {
        throw ProgramError(at, NameOf(type) +
                                   " has no constructor; a For Each over a Dictionary makes "
                                   "the entries, and New Pair(left, right) a pair");
    }
    return Construct(*type.model, CheckArguments(creation.arguments), at);
}

Checked ExpressionChecker::Construct(const ClassModel& model, Arguments arguments, Position at) {
    const Type type{Kind::Instance, &model};
    if (model.origin() == ClassModel::Origin::Program) {
        return ConstructOwn(model, std::move(arguments), at);
    }
    const auto constructors = model.FindMethods(ConstructorName);
    if (constructors.empty()) {
        if (!arguments.empty()) {
            throw ProgramError(at, model.name() + " has no constructor that takes arguments");
        }
        return {std::make_unique<code::NewObject>(model.info(), std::nullopt), type, at, {}, false};
    }
    const auto index =
        RequireOverload("New " + model.name(), SignaturesOf(constructors), arguments, at, &model);
    const auto& method = *constructors[index];
    if (const auto function = method.host.function) {
        auto filled = Fill(method.signature, std::move(arguments), at, *this);
        code::ExpressionPtr code;
        if (method.isFactory) {
            code = std::make_unique<code::BuiltInCall>(function, std::move(filled));
        } else {
            code = std::make_unique<code::NewHostObject>(model.info(), function, std::move(filled));
        }
        return {std::move(code), type, at, {}, false};
    }
    if (arguments.empty() && IsWrongAbout("constructor-runs")) {
        return {std::make_unique<code::NewObject>(model.info(), std::nullopt), type, at, {}, false};
    }
    auto call = MakePluginCall(model, method, std::move(arguments), at);
    return {std::make_unique<code::NewObject>(model.info(), std::move(call)), type, at, {}, false};
}

}  // namespace standin::language
