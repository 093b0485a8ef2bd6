#include "standin/language/expression_checker.hpp"

#include <algorithm>
#include <limits>
#include <utility>

#include "standin/language/array_members.hpp"
#include "standin/language/code_units.hpp"
#include "standin/language/suggestions.hpp"
#include "standin/language/text.hpp"

namespace standin::language {
namespace {

constexpr std::string_view ConstructorName = "Constructor";

Checked MakeConstant(Value value, Type type, Position at) {
    return {std::make_unique<code::Constant>(std::move(value)), type, at, {}, false};
}

std::string LabelOf(const ClassModel& model, const std::string& declaration) {
    return model.name() + "." + declaration;
}

/// A call of a plug-in's routine as code; shared members have no receiver.
Checked MakeCall(std::optional<Checked> receiver, code::PluginCall call, code::NilReceiver nil,
                 Type result, Position at) {
    if (!receiver) {
        return {std::make_unique<code::SharedCall>(std::move(call)), result, at, {}, false};
    }
    return {std::make_unique<code::InstanceCall>(std::move(receiver->code), std::move(call), nil),
            result,
            at,
            {},
            false};
}

}  // namespace

Checked ExpressionChecker::MakeBoolean(code::ExpressionPtr code, Position at) {
    return {std::move(code), {Kind::Boolean}, at, {}, false};
}

// Literals, names, members -----------------------------------------------------------------------

Checked ExpressionChecker::Check(const syntax::Expression& expression) {
    auto checked = CheckCall(expression);
    if (checked.type.kind == Kind::None) {
        throw ProgramError(expression.at, "this returns no value");
    }
    return checked;
}

Checked ExpressionChecker::CheckCall(const syntax::Expression& expression) {
    return std::visit([&](const auto& node) { return CheckNode(node, expression.at); },
                      expression.node);
}

code::ExpressionPtr ExpressionChecker::CheckAs(const syntax::Expression& expression, Type type) {
    const auto* call = std::get_if<syntax::Call>(&expression.node);
    if (type.kind == Kind::Array && call != nullptr && IsArrayFunction(*call)) {
        return CheckArrayCall(*call, type.ElementType(), expression.at).code;
    }
    return ConvertTo(Check(expression), type).code;
}

code::ExpressionPtr ExpressionChecker::CheckAsText(const syntax::Expression& expression) {
    auto value = Check(expression);
    if (FitOf(value, {Kind::Text}) == Fit::None) {
        throw ProgramError(value.at, "\"Print\" takes a String, this is " + NameOf(value.type) +
                                         (FindTextFunction(value.type.kind) ? "; use Str" : ""));
    }
    return ConvertTo(std::move(value), {Kind::Text}).code;
}

code::ExpressionPtr ExpressionChecker::CheckAsShown(const syntax::Expression& expression) {
    auto value = Check(expression);
    if (HasTextForm(value.type)) {
        return ConvertTo(std::move(value), {Kind::Text}).code;
    }
    const auto function = FindTextFunction(value.type.kind);
    if (function == nullptr) {
        throw ProgramError(value.at, NameOf(value.type) + " cannot be printed");
    }
    std::vector<code::Argument> arguments;
    arguments.push_back({std::move(value.code), value.type.kind, false});
    return std::make_unique<code::BuiltInCall>(function, std::move(arguments));
}

Checked ExpressionChecker::CheckDefault(const syntax::Expression& literal, Position at) {
    auto checked = Check(literal);
    checked.at = at;
    return checked;
}

Checked ExpressionChecker::CheckNode(const syntax::IntegerLiteral& literal, Position at) {
    return MakeInteger(literal.value, false, at);
}

Checked ExpressionChecker::MakeInteger(std::uint64_t magnitude, bool isNegative, Position at) {
    constexpr auto LargestInt64 = std::uint64_t{std::numeric_limits<std::int64_t>::max()};
    if (magnitude > LargestInt64 + (isNegative ? 1 : 0)) {
        if (isNegative) {
            throw ProgramError(at, "the number does not fit in 64 bits");
        }
        return MakeConstant(Value::Of(magnitude), {Kind::UInt64}, at);
    }
    const auto value = static_cast<std::int64_t>(isNegative ? 0U - magnitude : magnitude);
    const bool isInteger = std::in_range<Integer>(value);
    auto constant = MakeConstant(Value::Of(value), {isInteger ? IntegerKind : Kind::Int64}, at);
    constant.literal = value;
    return constant;
}

Checked ExpressionChecker::MakeReal(const syntax::RealLiteral& literal, bool isNegative,
                                    Position at) {
    const double value = isNegative ? -literal.value : literal.value;
    auto constant = MakeConstant(Value::Of(value), {Kind::Double}, at);
    constant.amount = AmountIn(literal.digits, isNegative);
    return constant;
}

Checked ExpressionChecker::CheckNode(const syntax::RealLiteral& literal, Position at) {
    return MakeReal(literal, false, at);
}

Checked ExpressionChecker::CheckNode(const syntax::TextLiteral& literal, Position at) {
    return {std::make_unique<code::TextConstant>(literal.value), {Kind::Text}, at, {}, false};
}

Checked ExpressionChecker::CheckNode(const syntax::BooleanLiteral& literal, Position at) {
    return MakeConstant(Value::Of(literal.value), {Kind::Boolean}, at);
}

Checked ExpressionChecker::CheckNode(const syntax::NilLiteral& /*literal*/, Position at) {
    return MakeConstant(Value::Adopt(Object{}), {Kind::Nil}, at);
}

Checked ExpressionChecker::MakeVariable(const Variable& variable, Position at) {
    using enum code::VariableKind;
    code::ExpressionPtr code;
    switch (variable.kind) {
        case Local:
            code = std::make_unique<code::Variable<Local>>(variable.slot);
            break;
        case Main:
            code = std::make_unique<code::Variable<Main>>(variable.slot);
            break;
        case Reference:
            code = std::make_unique<code::Variable<Reference>>(variable.slot);
            break;
        case Global:
            code = std::make_unique<code::Variable<Global>>(variable.slot);
            break;
    }
    return {std::move(code), variable.type, at, {}, !variable.isConstant};
}

Checked ExpressionChecker::CheckNode(const syntax::Name& name, Position at) {
    if (const auto* variable = scope_.Find(name.name)) {
        return MakeVariable(*variable, at);
    }
    if (IsOwnMember(name.name)) {
        return CheckMember(OwnReceiver(at), name.name, at);
    }
    if (const auto* variable = FindDeclared(callables_.variables, name.name, std::nullopt)) {
        return MakeVariable(variable->variable, at);
    }
    if (const auto* constant = FindDeclared(callables_.constants, name.name, std::nullopt)) {
        return CheckConstant(constant->value, at);
    }
    if (const auto* constant = types_.constants().Find(name.name)) {
        return CheckConstant(*constant, at);
    }
    return CheckNamedCall(name.name, {}, at);
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
    return CheckMember(CheckReceiver(*member.object), member.name, at);
}

ExpressionChecker::Receiver ExpressionChecker::CheckReceiver(const syntax::Expression& expression) {
    const auto* name = std::get_if<syntax::Name>(&expression.node);
    const auto* member = std::get_if<syntax::Member>(&expression.node);
    if (name != nullptr && scope_.Find(name->name) == nullptr) {
        if (const auto* model = types_.FindClass(name->name)) {
            return {std::nullopt, model};
        }
        if (callables_.units.contains(name->name)) {
            throw ProgramError(expression.at, "the module " + Quoted(name->name) +
                                                  " has no such member that is seen here");
        }
    }
    // An Enum may bear the name of its module before it.
    if (member != nullptr && FindUnit(*member->object) != nullptr) {
        const auto* model = types_.FindClass(member->name);
        if (model != nullptr && model->origin() == ClassModel::Origin::Enumeration) {
            return {std::nullopt, model};
        }
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
        const auto& items = receiver.model->items;
        const auto item = std::ranges::find_if(
            items, [&name](const auto& candidate) { return SameName(candidate.name, name); });
        if (item != items.end()) {
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
        throw ProgramError(at, Quoted(name) + " needs an object of " + model.name());
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
    const std::string type = NameOf(value.type);
    if (auto result = TryExtension(value, name, arguments, at)) {
        return std::move(*result);
    }
    const bool isArray = value.type.kind == Kind::Array;
    arguments.insert(arguments.begin(), std::move(value));
    if (auto result = TryBuiltIn(name, arguments, at)) {
        return std::move(*result);
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
    throw ProgramError(at, type + " has no member " + Quoted(name) + SuggestionFor(name, names));
}

Checked ExpressionChecker::ReadProperty(Receiver receiver, const Property& property, bool isShared,
                                        Position at) {
    RequireUsable(property.declaration, property.problem, at);
    if (property.field) {
        RequireAccess(property.isPrivate, *receiver.model, property.name, at);
        return {std::make_unique<code::Field>(std::move(receiver.value->code), *property.field),
                property.type,
                at,
                {},
                false};
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
    const auto& method = *methods[RequireOverload(name, SignaturesOf(methods), arguments, at)];
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

// Calls ------------------------------------------------------------------------------------------

ExpressionChecker::Arguments ExpressionChecker::CheckArguments(
    const syntax::Expressions& expressions) {
    Arguments arguments;
    for (const auto& expression : expressions) {
        arguments.push_back(Check(*expression));
    }
    return arguments;
}

Checked ExpressionChecker::CheckNode(const syntax::Call& call, Position at) {
    if (IsArrayFunction(call)) {
        return CheckArrayCall(call, std::nullopt, at);
    }
    if (const auto variable = FindVariable(*call.callee)) {
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
        auto receiver = CheckReceiver(*member->object);
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
    for (const auto& builtIn : callables_.builtIns) {
        if (SameName(builtIn.signature.name, name)) {
            candidates.push_back(&builtIn.signature);
            functions.push_back(builtIn.function);
        }
    }
    if (candidates.empty()) {
        return std::nullopt;
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

Checked ExpressionChecker::CheckNode(const syntax::Conditional& conditional, Position at) {
    auto condition = CheckAs(*conditional.condition, {Kind::Boolean});
    auto value = Check(*conditional.value);
    auto otherwise = Check(*conditional.otherwise);
    const bool areNumbers = IsNumber(value.type.kind) && IsNumber(otherwise.type.kind);
    Type type = FitOf(otherwise, value.type) != Fit::None ? value.type : otherwise.type;
    if (areNumbers) {
        type = {CommonKind(value.type.kind, otherwise.type.kind)};
    }
    auto valueCode = ConvertTo(std::move(value), type).code;
    auto otherwiseCode = ConvertTo(std::move(otherwise), type).code;
    return {std::make_unique<code::Conditional>(std::move(condition), std::move(valueCode),
                                                std::move(otherwiseCode)),
            type,
            at,
            {},
            false};
}

Checked ExpressionChecker::CheckNode(const syntax::Cast& cast, Position at) {
    return CastTo(Check(*cast.value), RequireType(cast.type), at);
}

Checked ExpressionChecker::CastTo(Checked value, Type type, Position at) {
    const bool isDowncast = value.type.kind == Kind::Instance && type.kind == Kind::Instance &&
                            type.model->IsA(*value.type.model);
    const bool isEnumeration = (value.type.kind == Kind::Enumeration && IsInteger(type.kind)) ||
                               (IsInteger(value.type.kind) && type.kind == Kind::Enumeration);
    if (isEnumeration) {
        const Kind from = IsInteger(value.type.kind) ? value.type.kind : Kind::Int64;
        const Kind to = IsInteger(type.kind) ? type.kind : Kind::Int64;
        return {
            std::make_unique<code::UnaryOperation>(FindConversion(from, to), std::move(value.code)),
            type,
            at,
            {},
            false};
    }
    if (!isDowncast) {
        auto converted = ConvertTo(std::move(value), type);
        converted.at = at;
        converted.literal.reset();
        converted.isVariable = false;
        return converted;
    }
    return {std::make_unique<code::ClassCast>(std::move(value.code), type.model->info()),
            type,
            at,
            {},
            false};
}

Checked ExpressionChecker::CheckNode(const syntax::ClassTest& test, Position at) {
    auto value = Check(*test.value);
    const auto type = RequireType(test.type);
    if (!IsHandle(value.type.kind) || type.kind != Kind::Instance) {
        throw ProgramError(at, "\"IsA\" stands between an object and a class");
    }
    return MakeBoolean(std::make_unique<code::ClassTest>(std::move(value.code), type.model->info()),
                       at);
}

// New --------------------------------------------------------------------------------------------

Checked ExpressionChecker::CheckNode(const syntax::New& creation, Position at) {
    const auto type = RequireType(creation.type);
    if (type.kind != Kind::Instance) {
        throw ProgramError(at, NameOf(type) + " is not a class");
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
        RequireOverload("New " + model.name(), SignaturesOf(constructors), arguments, at);
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
    auto call = MakePluginCall(model, method, std::move(arguments), at);
    return {std::make_unique<code::NewObject>(model.info(), std::move(call)), type, at, {}, false};
}

// Setters ----------------------------------------------------------------------------------------

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
            // The mistake in the name tells more.
            CheckNode(*ownName, at);
        }
        throw ProgramError(target.at, "this cannot be assigned to");
    }
    const auto& name = isOwn ? ownName->name : member->name;
    auto receiver = isOwn ? OwnReceiver(at) : CheckReceiver(*member->object);
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
    if (method.setter == nullptr && method.host.setter == nullptr && isReadable) {
        throw ProgramError(at, Quoted(signature.declaration) + " cannot be assigned to");
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
