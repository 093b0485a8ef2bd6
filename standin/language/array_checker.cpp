// The arrays of the expression checker: their elements, their methods and how they are made.
#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "standin/language/array_members.hpp"
#include "standin/language/code_arrays.hpp"
#include "standin/language/dictionary.hpp"
#include "standin/language/expression_checker.hpp"
#include "standin/language/parser.hpp"

namespace standin::language {
namespace {

constexpr std::string_view ArrayFunction = "Array";

/// The type in which the values of an array meet when nothing else tells it.
Type MeetingType(const std::vector<Checked>& values, Position at) {
    Type meeting = values.front().type;
    for (const auto& value : values) {
        if (IsNumber(meeting.kind) && IsNumber(value.type.kind)) {
            meeting.kind = CommonKind(meeting.kind, value.type.kind);
        } else if (FitOf(value, meeting) == Fit::None) {
            throw ProgramError(
                value.at, "an array of " + NameOf(meeting) + " cannot hold " + NameOf(value.type));
        }
    }
    if (meeting.kind == Kind::Nil || meeting.kind == Kind::Array) {
        throw ProgramError(at, "there is no array of " + NameOf(meeting));
    }
    return meeting;
}

std::vector<code::ExpressionPtr> ConvertAll(std::vector<Checked> values, Type type) {
    std::vector<code::ExpressionPtr> converted;
    std::ranges::transform(values, std::back_inserter(converted), [type](Checked& value) {
        return ConvertTo(std::move(value), type).code;
    });
    return converted;
}

/// Throws where an array cannot order its elements by itself.
void RequireOrder(Type element, Position at) {
    if (!IsNumber(element.kind) && element.kind != Kind::Text) {
        throw ProgramError(at, "an array of " + NameOf(element) +
                                   " has no order of its own; write Sort(AddressOf Routine), with "
                                   "a Function that takes two " +
                                   NameOf(element) + " and returns an Integer");
    }
}

const ArrayMember* FindArrayMember(std::string_view name) {
    const auto members = ArrayMembers();
    const auto member = std::ranges::find_if(members, [name](const ArrayMember& candidate) {
        return candidate.declaration.size() > name.size() &&
               SameName(candidate.declaration.substr(0, name.size()), name) &&
               candidate.declaration[name.size()] == '(';
    });
    return member == members.end() ? nullptr : &*member;
}

}  // namespace

Checked ExpressionChecker::CheckElement(Checked array, Arguments indices, Position at) {
    const Type type = array.type.ElementType();
    auto checked = CheckIndices(array, std::move(indices), at);
    return {std::make_unique<code::Element>(std::move(array.code), std::move(checked)),
            type,
            at,
            {},
            true};
}

std::vector<code::ExpressionPtr> ExpressionChecker::CheckIndices(const Checked& array,
                                                                 Arguments indices, Position at) {
    if (array.type.kind != Kind::Array) {
        throw ProgramError(at, "this is not something that takes arguments");
    }
    const auto dimensions = array.type.dimensions;
    if (indices.size() != dimensions) {
        throw ProgramError(at, dimensions == 1
                                   ? "an array takes one index"
                                   : "this array takes " + std::to_string(dimensions) + " indices");
    }
    return ConvertAll(std::move(indices), {Kind::Int64});
}

code::ExpressionPtr ExpressionChecker::CheckElementSetter(Checked array, Arguments indices,
                                                          const syntax::Expression& value,
                                                          Position at) {
    auto checked = CheckIndices(array, std::move(indices), at);
    auto converted = CheckAs(value, array.type.ElementType());
    return std::make_unique<code::SetElement>(std::move(array.code), std::move(checked),
                                              std::move(converted));
}

std::optional<Checked> ExpressionChecker::TryArrayMember(Checked& array, const std::string& name,
                                                         Arguments& arguments, Position at) {
    const auto* member = FindArrayMember(name);
    if (array.type.kind != Kind::Array || member == nullptr) {
        return std::nullopt;
    }
    if (array.type.dimensions > 1) {
        if (member->function == FindArrayMember("ResizeTo")->function) {
            auto indices = CheckIndices(array, std::move(arguments), at);
            return Checked{
                std::make_unique<code::ResizeArray>(std::move(array.code), std::move(indices)),
                {Kind::None},
                at,
                {},
                false};
        }
        if (member->function != FindArrayMember("Ubound")->function) {
            throw ProgramError(at, "an array of several dimensions has no " + Quoted(name));
        }
    }
    if (member->function == FindArrayMember("Sort")->function && arguments.empty()) {
        RequireOrder(array.type.ElementType(), at);
    }
    const auto signature =
        types_.Resolve(ParseDeclaration(member->declaration), std::string(member->declaration),
                       array.type.ElementType());
    RequireOverload(name, {&signature}, arguments, at);
    auto filled = Fill(signature, std::move(arguments), at, *this);
    filled.insert(filled.begin(), {std::move(array.code), Kind::Array, false});
    return Checked{std::make_unique<code::BuiltInCall>(member->function, std::move(filled)),
                   signature.result,
                   at,
                   {},
                   false};
}

std::optional<Checked> ExpressionChecker::TrySortBy(Checked& array, const std::string& name,
                                                    const syntax::Expressions& arguments,
                                                    Position at) {
    const auto* address =
        arguments.size() == 1 ? std::get_if<syntax::AddressOf>(&arguments.front()->node) : nullptr;
    if (array.type.kind != Kind::Array || array.type.dimensions != 1 || address == nullptr ||
        !SameName(name, "Sort")) {
        return std::nullopt;
    }
    auto comparison =
        FindComparison(*address->routine, array.type.ElementType(), arguments.front()->at);
    return Checked{std::make_unique<code::SortBy>(std::move(array.code), *comparison.routine,
                                                  std::move(comparison.object)),
                   {Kind::None},
                   at,
                   {},
                   false};
}

ExpressionChecker::Comparison ExpressionChecker::FindComparison(const syntax::Expression& routine,
                                                                Type element, Position at) {
    const auto* name = std::get_if<syntax::Name>(&routine.node);
    const auto* member = std::get_if<syntax::Member>(&routine.node);
    if (name == nullptr && member == nullptr) {
        throw ProgramError(at, "\"AddressOf\" takes the name of a routine alone");
    }
    const auto& wanted = name != nullptr ? name->name : member->name;
    const auto compares = [element](const Signature& signature) {
        return signature.result == Type{IntegerKind} && signature.parameters.size() == 2 &&
               std::ranges::all_of(signature.parameters, [element](const Parameter& parameter) {
                   return parameter.type == element && !parameter.byRef;
               });
    };
    const auto* unit = member == nullptr ? nullptr : FindUnit(*member->object);
    const bool isOwn = member == nullptr && IsOwnMember(wanted);
    for (const auto& declared : callables_.routines) {
        const bool isThere =
            unit == nullptr ? member == nullptr && !isOwn : SameName(declared.unit, *unit);
        if (isThere && SameName(declared.signature.name, wanted) && compares(declared.signature) &&
            IsVisible(declared, unit != nullptr)) {
            return {declared.code, nullptr};
        }
    }
    const bool isOfObject = member != nullptr && (unit == nullptr || FindVariable(*member->object));
    if (isOwn || isOfObject) {
        auto receiver = isOwn ? OwnReceiver(at) : CheckReceiver(*member->object, wanted);
        const auto methods = receiver.model == nullptr || !receiver.value
                                 ? std::vector<const Method*>()
                                 : receiver.model->FindMethods(wanted);
        for (const auto* method : methods) {
            if (method->routine != nullptr && compares(method->signature)) {
                RequireAccess(method->isPrivate, *receiver.model, wanted, at);
                return {method->routine, std::move(receiver.value->code)};
            }
        }
    }
    throw ProgramError(at, "there is no Function " + Quoted(wanted) + " that takes two " +
                               NameOf(element) + " and returns an Integer");
}

bool ExpressionChecker::IsArrayFunction(const syntax::Call& call) const {
    const auto* name = std::get_if<syntax::Name>(&call.callee->node);
    return name != nullptr && SameName(name->name, ArrayFunction) &&
           scope_.Find(name->name) == nullptr;
}

Checked ExpressionChecker::CheckArrayCall(const syntax::Call& call, std::optional<Type> element,
                                          Position at) {
    auto values = CheckArguments(call.arguments);
    if (values.empty() && !element) {
        throw ProgramError(at, "an array without values needs a variable that tells its type");
    }
    const Type type = element ? *element : MeetingType(values, at);
    return {std::make_unique<code::ArrayOfValues>(type, ConvertAll(std::move(values), type)),
            Type::ArrayOf(type),
            at,
            {},
            false};
}

Checked ExpressionChecker::CheckElements(const syntax::Expression& expression) {
    auto value = Check(expression);
    if (value.type.kind == Kind::Instance && value.type.model->name() == DictionaryClass) {
        return {MakeHostCall(MakeDictionaryEntries, {std::move(value), nullptr}, {}),
                Type::ArrayOf({Kind::Variant}),
                expression.at,
                {},
                false};
    }
    if (value.type.kind != Kind::Array) {
        throw ProgramError(
            value.at, "\"For Each\" takes an array or a Dictionary, this is " + NameOf(value.type));
    }
    return value;
}

}  // namespace standin::language
