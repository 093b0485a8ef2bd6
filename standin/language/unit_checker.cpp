// What the expression checker knows of the program's own modules, classes and routines.
#include <algorithm>
#include <iterator>
#include <utility>

#include "standin/language/application.hpp"
#include "standin/language/array_members.hpp"
#include "standin/language/code_units.hpp"
#include "standin/language/expression_checker.hpp"
#include "standin/language/hints.hpp"
#include "standin/language/suggestions.hpp"
#include "standin/language/unsupported.hpp"

namespace standin::language {
namespace {

/// The words that alone, or before a value, are a statement: a misspelt one looks like a call.
constexpr std::string_view StatementWords[] = {"Continue", "Exit",  "Print",
                                               "Raise",    "Redim", "Return"};

constexpr std::string_view ConstructorName = "Constructor";

}  // namespace

Type ExpressionChecker::RequireType(const syntax::TypeName& name) const {
    return types_.Require(name, errors_);
}

template <typename Declared>
const Declared* ExpressionChecker::FindDeclared(const std::vector<Declared>& list,
                                                std::string_view name,
                                                std::optional<std::string_view> unit) const {
    const Declared* found = nullptr;
    for (const auto& declared : list) {
        const bool fits = SameName(declared.name, name) &&
                          (!unit || SameName(declared.unit, *unit)) &&
                          IsVisible(declared, unit.has_value());
        if (fits && (found == nullptr || SameName(declared.unit, surroundings_.unit))) {
            found = &declared;
        }
    }
    return found;
}

template const UnitVariable* ExpressionChecker::FindDeclared(
    const std::vector<UnitVariable>& list, std::string_view name,
    std::optional<std::string_view> unit) const;
template const UnitConstant* ExpressionChecker::FindDeclared(
    const std::vector<UnitConstant>& list, std::string_view name,
    std::optional<std::string_view> unit) const;

std::optional<Variable> ExpressionChecker::FindVariable(
    const syntax::Expression& expression) const {
    const UnitVariable* found = nullptr;
    if (const auto* name = std::get_if<syntax::Name>(&expression.node)) {
        if (const auto* variable = FindLocal(name->name)) {
            return *variable;
        }
        if (!IsOwnMember(name->name)) {
            found = FindDeclared(callables_.variables, name->name, std::nullopt);
        }
    } else if (const auto* member = std::get_if<syntax::Member>(&expression.node)) {
        if (const auto* unit = FindUnit(*member->object)) {
            found = FindDeclared(callables_.variables, member->name, *unit);
        }
    }
    return found == nullptr ? std::nullopt : std::optional(found->variable);
}

const std::string* ExpressionChecker::FindUnit(const syntax::Expression& expression) const {
    const auto* name = std::get_if<syntax::Name>(&expression.node);
    if (name == nullptr || FindLocal(name->name) != nullptr || IsOwnMember(name->name)) {
        return nullptr;
    }
    const bool isApplication = !callables_.application.empty() &&
                               SameName(surroundings_.unit, callables_.application) &&
                               (SameName(name->name, SelfName) || SameName(name->name, MeName));
    return isApplication ? &callables_.application : &name->name;
}

const Variable* ExpressionChecker::FindLocal(std::string_view name) const {
    const auto* variable = scope_.Find(name);
    return variable == nullptr && SameName(name, MeName) ? scope_.Find(SelfName) : variable;
}

bool ExpressionChecker::IsOwnMember(const std::string& name) const {
    const auto* self = surroundings_.self;
    return self != nullptr &&
           (self->FindProperty(name) != nullptr || !self->FindMethods(name).empty());
}

ExpressionChecker::Receiver ExpressionChecker::OwnReceiver(Position at) const {
    const auto* variable = scope_.Find(SelfName);
    if (variable == nullptr) {
        throw ProgramError(at, "this needs an object of " + surroundings_.self->name());
    }
    return {MakeVariable(*variable, at), surroundings_.self};
}

std::optional<Checked> ExpressionChecker::TryUnitValue(const std::string& unit,
                                                       const std::string& name, Position at) {
    if (const auto* variable = FindDeclared(callables_.variables, name, unit)) {
        return MakeVariable(variable->variable, at);
    }
    if (const auto* constant = FindDeclared(callables_.constants, name, unit)) {
        return CheckConstant(constant->value, at);
    }
    Arguments none;
    if (auto result = TryRoutine(name, unit, none, at)) {
        return result;
    }
    return TryBuiltIn(unit + "." + name, none, at);
}

Checked ExpressionChecker::CheckConstant(const syntax::ConstantValue& value, Position at) {
    return Check(*LiteralOf(value, at));
}

std::optional<Checked> ExpressionChecker::TryRoutine(const std::string& name,
                                                     std::optional<std::string> unit,
                                                     Arguments& arguments, Position at) {
    Candidates candidates;
    std::vector<const code::Routine*> routines;
    const auto collect = [&](bool wantsOwn) {
        for (const auto& routine : callables_.routines) {
            const auto& parameters = routine.signature.parameters;
            const bool isExtension = !parameters.empty() && parameters.front().isExtended;
            const bool isOwn = SameName(routine.unit, surroundings_.unit);
            if (SameName(routine.signature.name, name) && !isExtension &&
                (!unit || SameName(routine.unit, *unit)) && IsVisible(routine, unit.has_value()) &&
                (unit || isOwn == wantsOwn)) {
                candidates.push_back(&routine.signature);
                routines.push_back(routine.code);
            }
        }
    };
    collect(true);
    // Routines of the own module hide those of others.
    if (candidates.empty() && !unit) {
        collect(false);
    }
    if (candidates.empty()) {
        return std::nullopt;
    }
    const auto index = RequireOverload(name, candidates, arguments, at);
    const auto& signature = *candidates[index];
    return Checked{std::make_unique<code::RoutineCall>(
                       *routines[index], Fill(signature, std::move(arguments), at, *this)),
                   signature.result,
                   at,
                   {},
                   false};
}

std::optional<Checked> ExpressionChecker::TryExtension(Checked& receiver, const std::string& name,
                                                       Arguments& arguments, Position at) {
    Candidates candidates;
    std::vector<const code::Routine*> routines;
    for (const auto& routine : callables_.routines) {
        const auto& parameters = routine.signature.parameters;
        const bool isExtension = !parameters.empty() && parameters.front().isExtended &&
                                 FitOf(receiver, parameters.front()) != Fit::None;
        if (isExtension && SameName(routine.signature.name, name) && IsVisible(routine, false)) {
            candidates.push_back(&routine.signature);
            routines.push_back(routine.code);
        }
    }
    if (candidates.empty()) {
        return std::nullopt;
    }
    arguments.insert(arguments.begin(), std::move(receiver));
    const auto index = RequireOverload(name, candidates, arguments, at);
    const auto& signature = *candidates[index];
    return Checked{std::make_unique<code::RoutineCall>(
                       *routines[index], Fill(signature, std::move(arguments), at, *this)),
                   signature.result,
                   at,
                   {},
                   false};
}

bool ExpressionChecker::IsArrayProperty(const Receiver& receiver, const std::string& name) const {
    const auto* property =
        receiver.value && receiver.model != nullptr ? receiver.model->FindProperty(name) : nullptr;
    return property != nullptr && property->type.kind == Kind::Array;
}

void ExpressionChecker::RequireAccess(bool isPrivate, const ClassModel& model,
                                      const std::string& name, Position at) const {
    if (isPrivate && surroundings_.self != &model) {
        throw ProgramError(at, Quoted(name) + " of " + model.name() + " is not seen here");
    }
}

Checked ExpressionChecker::CheckNode(const syntax::AddressOf& /*address*/, Position at) {
    throw ProgramError(at, "\"AddressOf\" is supported for the Sort of an array only");
}

Checked ExpressionChecker::ConstructOwn(const ClassModel& model, Arguments arguments, Position at) {
    std::vector<Type> fields;
    std::ranges::transform(model.properties, std::back_inserter(fields), &Property::type);
    const code::Routine* constructor = nullptr;
    std::vector<code::Argument> filled;
    const auto constructors = model.FindMethods(ConstructorName);
    if (!constructors.empty()) {
        const auto index =
            RequireOverload("New " + model.name(), SignaturesOf(constructors), arguments, at);
        RequireAccess(constructors[index]->isPrivate, model, std::string(ConstructorName), at);
        constructor = constructors[index]->routine;
        filled = Fill(constructors[index]->signature, std::move(arguments), at, *this);
    } else if (!arguments.empty()) {
        throw ProgramError(at, model.name() + " has no constructor that takes arguments");
    }
    return {std::make_unique<code::NewProgramObject>(
                model.info(), std::move(fields), model.initialiser, constructor, std::move(filled)),
            {Kind::Instance, &model},
            at,
            {},
            false};
}

void ExpressionChecker::FailWithoutName(const std::string& name, Position at) const {
    const bool isInIncomplete = surroundings_.self != nullptr && surroundings_.self->isIncomplete;
    if (errors_.IsDoubtful(name) || isInIncomplete) {
        throw FollowingError(at, "the declaration has an error");
    }
    auto names = scope_.Names();
    for (const auto& routine : callables_.routines) {
        names.emplace_back(routine.signature.name);
    }
    for (const auto& variable : callables_.variables) {
        names.emplace_back(variable.name);
    }
    for (const auto& constant : callables_.constants) {
        names.emplace_back(constant.name);
    }
    for (const auto& builtIn : callables_.builtIns) {
        names.emplace_back(builtIn.signature.name);
    }
    const auto types = types_.Names();
    names.insert(names.end(), types.begin(), types.end());
    const auto members = BuiltInsOf(name);
    if (!members.empty()) {
        std::string list;
        for (const auto member : members) {
            list += (list.empty() ? "" : ", ") + std::string(member);
        }
        throw ProgramError(at, "of " + Quoted(name) + " only this is supported here: " + list);
    }
    if (IsUnsupported(name)) {
        throw ProgramError(at, Quoted(name) + " is not supported here");
    }
    names.insert(names.end(), std::begin(StatementWords), std::end(StatementWords));
    throw ProgramError(at, "there is nothing named " + Quoted(name) + SuggestionFor(name, names));
}

std::vector<const BuiltIn*> ExpressionChecker::BuiltInsNamed(std::string_view name) const {
    std::vector<const BuiltIn*> found;
    for (const auto& builtIn : callables_.builtIns) {
        if (SameName(builtIn.signature.name, name)) {
            found.push_back(&builtIn);
        }
    }
    return found;
}

std::vector<std::string_view> ExpressionChecker::BuiltInsOf(std::string_view module) const {
    std::vector<std::string_view> names;
    const auto prefix = std::string(module) + ".";
    for (const auto& builtIn : callables_.builtIns) {
        const std::string_view name = builtIn.signature.name;
        if (SameName(name.substr(0, prefix.size()), prefix) &&
            std::ranges::find(names, name) == names.end()) {
            names.push_back(name);
        }
    }
    return names;
}

const ClassModel* ExpressionChecker::FindQualifiedType(const syntax::Expression& expression) const {
    const auto* member = std::get_if<syntax::Member>(&expression.node);
    const auto* unit = member == nullptr ? nullptr : FindUnit(*member->object);
    const auto type = unit == nullptr ? std::nullopt : types_.Find(member->name, *unit);
    return type ? type->model : nullptr;
}

void ExpressionChecker::FailWithoutUnitMember(const std::string& unit, const std::string& name,
                                              Position at) const {
    if (errors_.IsDoubtful(name)) {
        throw FollowingError(at, "the declaration has an error");
    }
    const bool isApplication = SameName(unit, callables_.application);
    if (isApplication && IsUnsupportedMember(ApplicationBase, name)) {
        throw ProgramError(at, Quoted(unit + "." + name) + " is not supported here");
    }
    std::vector<std::string_view> names;
    const auto collect = [&](const auto& declared, const std::string& declaredName) {
        if (SameName(declared.unit, unit) && IsVisible(declared, true)) {
            names.emplace_back(declaredName);
        }
    };
    for (const auto& routine : callables_.routines) {
        collect(routine, routine.signature.name);
    }
    for (const auto& variable : callables_.variables) {
        collect(variable, variable.name);
    }
    for (const auto& constant : callables_.constants) {
        collect(constant, constant.name);
    }
    throw ProgramError(at, (isApplication ? "" : "the module ") + Quoted(unit) + " has no member " +
                               Quoted(name) + " that is seen here" + SuggestionFor(name, names));
}

void ExpressionChecker::FailWithoutValueMember(Type type, const std::string& name,
                                               Position at) const {
    const bool isArray = type.kind == Kind::Array;
    if (IsUnsupportedMember(isArray ? "Array" : NameOf(type), name)) {
        throw ProgramError(at, Quoted(name) + " of " + NameOf(type) + " is not supported here");
    }
    std::vector<std::string_view> names;
    if (isArray) {
        for (const auto& member : ArrayMembers()) {
            names.push_back(member.declaration.substr(0, member.declaration.find('(')));
        }
    } else {
        for (const auto& builtIn : callables_.builtIns) {
            names.emplace_back(builtIn.signature.name);
        }
    }
    throw ProgramError(
        at, NameOf(type) + " has no member " + Quoted(name) + SuggestionFor(name, names));
}

void ExpressionChecker::FailWithoutMember(const ClassModel& model, const std::string& name,
                                          Position at) const {
    const bool isDoubtful = model.isIncomplete || errors_.IsDoubtful(name);
    if (model.origin() != ClassModel::Origin::Host && isDoubtful) {
        throw FollowingError(at, "the declaration has an error");
    }
    for (const auto* type = &model; type != nullptr; type = type->super()) {
        if (IsUnsupportedMember(type->name(), name)) {
            throw ProgramError(at, Quoted(name) + " of " + model.name() + " is not supported here");
        }
    }
    throw ProgramError(at, model.name() + " has no member " + Quoted(name) +
                               SuggestionFor(name, model.MemberNames()) +
                               MemberHint(model, name, BuiltInsNamed(name)));
}

}  // namespace standin::language
