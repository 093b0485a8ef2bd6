// The arrays of the expression checker: their elements, their methods and how they are made.
#include <algorithm>
#include <iterator>
#include <utility>

#include "standin/language/array_members.hpp"
#include "standin/language/code_arrays.hpp"
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

}  // namespace

Checked ExpressionChecker::CheckElement(Checked array, const syntax::Expressions& indices,
                                        Position at) {
    auto index = CheckIndex(array, indices, at);
    const Type type = array.type.ElementType();
    return {std::make_unique<code::Element>(std::move(array.code), std::move(index)),
            type,
            at,
            {},
            false};
}

code::ExpressionPtr ExpressionChecker::CheckIndex(const Checked& array,
                                                  const syntax::Expressions& indices, Position at) {
    if (array.type.kind != Kind::Array) {
        throw ProgramError(at, "this is not something that takes arguments");
    }
    if (indices.size() != 1) {
        throw ProgramError(at, "an array takes one index");
    }
    return CheckAs(*indices.front(), {Kind::Int64});
}

code::ExpressionPtr ExpressionChecker::CheckElementSetter(const syntax::Call& element,
                                                          const syntax::Expression& value,
                                                          Position at) {
    auto array = Check(*element.callee);
    auto index = CheckIndex(array, element.arguments, at);
    auto converted = CheckAs(value, array.type.ElementType());
    return std::make_unique<code::SetElement>(std::move(array.code), std::move(index),
                                              std::move(converted));
}

std::optional<Checked> ExpressionChecker::TryArrayMember(Checked& array, const std::string& name,
                                                         Arguments& arguments, Position at) {
    const auto members = ArrayMembers();
    const auto member = std::ranges::find_if(members, [&name](const ArrayMember& candidate) {
        return candidate.declaration.size() > name.size() &&
               SameName(candidate.declaration.substr(0, name.size()), name) &&
               candidate.declaration[name.size()] == '(';
    });
    if (array.type.kind != Kind::Array || member == members.end()) {
        return std::nullopt;
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
    std::vector<code::ExpressionPtr> items;
    std::ranges::transform(values, std::back_inserter(items), [type](Checked& value) {
        return ConvertTo(std::move(value), type).code;
    });
    return {std::make_unique<code::ArrayOfValues>(type, std::move(items)),
            Type::ArrayOf(type),
            at,
            {},
            false};
}

}  // namespace standin::language
