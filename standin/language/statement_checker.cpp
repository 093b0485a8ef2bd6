#include "standin/language/statement_checker.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "standin/language/code_units.hpp"
#include "standin/language/names.hpp"

namespace standin::language {
namespace {

using syntax::BinaryOperator;
using syntax::LoopKind;

/// No program can write these names.
constexpr auto HiddenName = "(Select Case)";
constexpr auto HiddenElement = "(For Each)";

template <typename Node, typename... Parts>
void Append(code::Block& block, Position at, Parts&&... parts) {
    block.statements.push_back(std::make_unique<Node>(at, std::forward<Parts>(parts)...));
}

/// Code that gives a variable its value.
void AppendAssign(code::Block& block, Position at, const Variable& variable,
                  code::ExpressionPtr value) {
    Append<code::Assign>(block, at, ExpressionChecker::MakeVariable(variable, at).code,
                         std::move(value));
}

code::ExpressionPtr MakeDefault(Type type) {
    return std::make_unique<code::DefaultValue>(type);
}

std::string NameOf(LoopKind kind) {
    constexpr auto Names = std::to_array<std::string_view>({"", "For", "While", "Do"});
    return Quoted(Names[static_cast<std::size_t>(kind)]);
}

}  // namespace

code::Block StatementChecker::CheckBody(const syntax::Block& body,
                                        const std::vector<Parameter>& parameters,
                                        const std::vector<Position>& places) {
    return CheckBlock(body, [&] {
        for (std::size_t i = 0; i < parameters.size(); ++i) {
            const auto& parameter = parameters[i];
            scope_.DeclareParameter(parameter.name, parameter.type, parameter.byRef, places[i]);
        }
    });
}

code::Block StatementChecker::CheckFragment(const syntax::Block& statements) {
    code::Block code;
    scope_.EnterBlock();
    for (const auto& statement : statements) {
        Add(code, *statement);
    }
    return code;
}

template <typename Before>
code::Block StatementChecker::CheckBlock(const syntax::Block& block, Before before) {
    code::Block code;
    scope_.EnterBlock();
    before();
    for (const auto& statement : block) {
        Add(code, *statement);
    }
    scope_.LeaveBlock(code);
    return code;
}

code::Block StatementChecker::CheckBlock(const syntax::Block& block) {
    return CheckBlock(block, [] {});
}

code::Block StatementChecker::CheckLoopBody(const syntax::Block& block,
                                            const syntax::LoopTarget& loop) {
    loops_.push_back(loop);
    auto code = CheckBlock(block);
    loops_.pop_back();
    return code;
}

code::ExpressionPtr StatementChecker::CheckCondition(const syntax::ExpressionPtr& condition) {
    return condition ? expressions_.CheckAs(*condition, {Kind::Boolean}) : nullptr;
}

void StatementChecker::Add(code::Block& block, const syntax::Statement& statement) {
    const auto depth = scope_.depth();
    const auto loops = loops_.size();
    const bool isRight = errors_.Try([&] {
        std::visit([&](const auto& node) { AddNode(block, node, statement.at); }, statement.node);
    });
    if (!isRight) {
        scope_.LeaveTo(depth);
        loops_.resize(loops);
    }
}

code::ExpressionPtr StatementChecker::TryCondition(const syntax::ExpressionPtr& condition) {
    code::ExpressionPtr code;
    errors_.Try([&] { code = CheckCondition(condition); });
    return code;
}

void StatementChecker::AddNode(code::Block& block, const syntax::Dim& dim, Position at) {
    for (const auto& declarator : dim.declarators) {
        const bool isRight = errors_.Try([&] {
            if (dim.isStatic) {
                DeclareStatic(block, declarator, at);
            } else {
                Declare(block, declarator, at);
            }
        });
        if (!isRight) {
            errors_.Doubt(declarator.name);
        }
    }
}

void StatementChecker::Declare(code::Block& block, const syntax::Declarator& declarator,
                               Position at) {
    const auto type = expressions_.RequireType(declarator.type);
    // The value cannot see the variable yet.
    code::ExpressionPtr value;
    errors_.Try([&] { value = CheckInitialValue(declarator, type); });
    const auto variable = scope_.Declare(declarator.name, type, declarator.at);
    if (type.kind == Kind::Instance && !declarator.initialiser) {
        scope_.BeginAsNil(declarator.name);
    }
    AppendAssign(block, at, variable, std::move(value));
}

void StatementChecker::DeclareStatic(code::Block& block, const syntax::Declarator& declarator,
                                     Position at) {
    const auto type = expressions_.RequireType(declarator.type);
    code::ExpressionPtr value;
    errors_.Try([&] { value = CheckInitialValue(declarator, type); });
    const auto slot = globals_.size();
    globals_.push_back(type);
    globals_.push_back({Kind::Boolean});
    scope_.DeclareGlobal(declarator.name, type, slot, declarator.at);
    Append<code::InitialiseOnce>(block, at, slot, slot + 1, std::move(value));
}

code::ExpressionPtr StatementChecker::CheckInitialValue(const syntax::Declarator& declarator,
                                                        Type type) {
    if (!declarator.lastIndices.empty()) {
        std::vector<code::ExpressionPtr> lastIndices;
        for (const auto& lastIndex : declarator.lastIndices) {
            lastIndices.push_back(expressions_.CheckAs(*lastIndex, {Kind::Int64}));
        }
        return std::make_unique<code::NewArray>(type, std::move(lastIndices));
    }
    return declarator.initialiser ? expressions_.CheckAs(*declarator.initialiser, type)
                                  : MakeDefault(type);
}

void StatementChecker::AddNode(code::Block& block, const syntax::Const& constant, Position at) {
    const auto declare = [&] {
        auto value = expressions_.Check(*constant.value);
        expressions_.RequireConstant(*constant.value);
        const auto type = constant.type ? expressions_.RequireType(*constant.type) : value.type;
        if (!IsNumber(type.kind) && type.kind != Kind::Boolean && type.kind != Kind::Text) {
            throw ProgramError(at, "a constant is a number, a Boolean or a String, this is " +
                                       language::NameOf(type));
        }
        value = ConvertTo(std::move(value), type);
        const auto variable = scope_.Declare(constant.name, value.type, at, true);
        AppendAssign(block, at, variable, std::move(value.code));
    };
    if (!errors_.Try(declare)) {
        errors_.Doubt(constant.name);
    }
}

void StatementChecker::AddNode(code::Block& block, const syntax::Assignment& assignment,
                               Position at) {
    const auto variable = expressions_.FindVariable(*assignment.target);
    if (!variable) {
        Append<code::Perform>(block, at,
                              expressions_.CheckSetter(*assignment.target, *assignment.value));
        return;
    }
    if (variable->isConstant) {
        throw ProgramError(at, "a constant cannot be assigned to");
    }
    MarkAssigned(variable->isAssigned);
    AppendAssign(block, at, *variable, expressions_.CheckAs(*assignment.value, variable->type));
}

void StatementChecker::AddNode(code::Block& block, const syntax::CallStatement& statement,
                               Position at) {
    const bool isCall = !std::holds_alternative<syntax::New>(statement.call->node) &&
                        !expressions_.FindVariable(*statement.call);
    if (!isCall) {
        throw ProgramError(at, "this does nothing; a statement is a call or an assignment");
    }
    auto call = expressions_.CheckCall(*statement.call);
    if (call.type.kind != Kind::None && !statement.dropsResult) {
        throw ProgramError(at, "this returns " + language::NameOf(call.type) +
                                   ", which nothing takes; \"Call\" before it drops it");
    }
    Append<code::Perform>(block, at, std::move(call.code));
}

void StatementChecker::AddNode(code::Block& block, const syntax::Print& print, Position at) {
    auto text = expressions_.CheckAsText(*print.value);
    Append<code::Print>(block, at, std::move(text));
}

void StatementChecker::AddNode(code::Block& block, const syntax::If& statement, Position at) {
    std::vector<code::Branches::Branch> branches;
    for (const auto& branch : statement.branches) {
        auto condition = TryCondition(branch.condition);
        branches.push_back({std::move(condition), CheckBlock(branch.body)});
    }
    if (!statement.otherwise.empty()) {
        branches.push_back({nullptr, CheckBlock(statement.otherwise)});
    }
    Append<code::Branches>(block, at, std::move(branches));
}

/// The subject is computed once, into a variable that the tests compare.
void StatementChecker::AddNode(code::Block& block, const syntax::Select& select, Position at) {
    code::Block code;
    scope_.EnterBlock();
    std::optional<Variable> variable;
    errors_.Try([&] {
        auto subject = expressions_.Check(*select.subject);
        variable = scope_.Declare(HiddenName, subject.type, at);
        AppendAssign(code, at, *variable, std::move(subject.code));
    });
    std::vector<code::Branches::Branch> branches;
    for (const auto& branch : select.branches) {
        code::ExpressionPtr condition;
        if (variable) {
            errors_.Try([&] { condition = CheckCase(branch, *variable); });
        }
        branches.push_back({std::move(condition), CheckBlock(branch.body)});
    }
    if (!select.otherwise.empty()) {
        branches.push_back({nullptr, CheckBlock(select.otherwise)});
    }
    Append<code::Branches>(code, at, std::move(branches));
    scope_.LeaveBlock(code);
    Append<code::Compound>(block, at, std::move(code));
}

code::ExpressionPtr StatementChecker::CheckCase(const syntax::Select::Branch& branch,
                                                const Variable& subject) {
    code::ExpressionPtr condition;
    for (const auto& test : branch.tests) {
        auto fulfilled = CheckCaseTest(test, subject);
        if (condition) {
            fulfilled = std::make_unique<code::ShortCircuit>(true, std::move(condition),
                                                             std::move(fulfilled));
        }
        condition = std::move(fulfilled);
    }
    return condition;
}

code::ExpressionPtr StatementChecker::CheckCaseTest(const syntax::Select::Test& test,
                                                    const Variable& subject) {
    const Position at = test.value->at;
    const auto compare = [&](BinaryOperator comparison, const syntax::Expression& value) {
        return expressions_
            .Apply(comparison, ExpressionChecker::MakeVariable(subject, at),
                   expressions_.Check(value), at)
            .code;
    };
    if (!test.last) {
        return compare(test.comparison, *test.value);
    }
    auto isFromFirst = compare(BinaryOperator::GreaterEqual, *test.value);
    return std::make_unique<code::ShortCircuit>(false, std::move(isFromFirst),
                                                compare(BinaryOperator::LessEqual, *test.last));
}

void StatementChecker::AddNode(code::Block& block, const syntax::For& loop, Position at) {
    code::Block code;
    scope_.EnterBlock();
    // The first value cannot see the variable that the loop declares.
    std::optional<Checked> first;
    errors_.Try([&] { first = expressions_.Check(*loop.first); });
    const auto variable = TryLoopVariable(loop.variable, loop.type, loop.variableAt);
    std::optional<code::ForParts> parts;
    if (first && variable) {
        errors_.Try([&] { parts = CheckCounting(loop, std::move(*first), *variable); });
    }
    auto body = CheckLoopBody(loop.body, {LoopKind::For, loop.variable});
    if (parts) {
        parts->body = std::move(body);
        code.statements.push_back(code::MakeForLoop(at, variable->type.kind, std::move(*parts)));
    }
    scope_.LeaveBlock(code);
    Append<code::Compound>(block, at, std::move(code));
}

code::ForParts StatementChecker::CheckCounting(const syntax::For& loop, Checked first,
                                               const Variable& variable) {
    code::ForParts parts;
    parts.isDownward = loop.isDownward;
    parts.first = ConvertTo(std::move(first), variable.type).code;
    if (!IsNumber(variable.type.kind) || variable.isConstant) {
        throw ProgramError(loop.variableAt, "a loop counts in a variable of a number type");
    }
    const Position at = loop.variableAt;
    parts.variable = ExpressionChecker::MakeVariable(variable, at).code;
    parts.last = expressions_.CheckAs(*loop.last, variable.type);
    const auto one =
        std::make_unique<syntax::Expression>(syntax::Expression{at, 1, syntax::IntegerLiteral{1}});
    parts.step = expressions_.CheckAs(loop.step ? *loop.step : *one, variable.type);
    return parts;
}

std::optional<Variable> StatementChecker::TryLoopVariable(
    const std::string& name, const std::optional<syntax::TypeName>& type, Position at) {
    std::optional<Variable> variable;
    if (!errors_.Try([&] { variable = LoopVariable(name, type, at); })) {
        errors_.Doubt(name);
    }
    return variable;
}

Variable StatementChecker::LoopVariable(const std::string& name,
                                        const std::optional<syntax::TypeName>& type, Position at) {
    if (type) {
        return scope_.Declare(name, expressions_.RequireType(*type), at);
    }
    const syntax::Expression named{at, 1, syntax::Name{name}};
    const auto found = expressions_.FindVariable(named);
    if (!found) {
        // What it is instead tells more, where it is anything.
        expressions_.Check(named);
        throw ProgramError(at, "there is no variable " + Quoted(name));
    }
    return *found;
}

void StatementChecker::AddNode(code::Block& block, const syntax::ForEach& loop, Position at) {
    code::Block code;
    scope_.EnterBlock();
    std::optional<Checked> array;
    errors_.Try([&] { array = expressions_.CheckElements(*loop.array); });
    const auto variable = TryLoopVariable(loop.variable, loop.type, loop.variableAt);
    std::optional<code::ForEachParts> parts;
    if (array && variable) {
        errors_.Try([&] { parts = CheckElements(loop, std::move(*array), *variable); });
    }
    auto body = CheckLoopBody(loop.body, {LoopKind::For, loop.variable});
    if (parts) {
        parts->body = std::move(body);
        Append<code::ForEachLoop>(code, at, std::move(*parts));
    }
    scope_.LeaveBlock(code);
    Append<code::Compound>(block, at, std::move(code));
}

code::ForEachParts StatementChecker::CheckElements(const syntax::ForEach& loop, Checked array,
                                                   const Variable& variable) {
    const Position at = loop.variableAt;
    if (variable.isConstant) {
        throw ProgramError(at, "a constant cannot be assigned to");
    }
    MarkAssigned(variable.isAssigned);
    const auto element = scope_.Declare(HiddenElement, array.type.ElementType(), at);
    code::ForEachParts parts;
    parts.array = std::move(array.code);
    parts.element = ExpressionChecker::MakeVariable(element, at).code;
    parts.variable = ExpressionChecker::MakeVariable(variable, at).code;
    auto value = ExpressionChecker::MakeVariable(element, at);
    parts.converted = ConvertTo(std::move(value), variable.type).code;
    return parts;
}

void StatementChecker::AddNode(code::Block& block, const syntax::While& loop, Position at) {
    auto condition = TryCondition(loop.condition);
    Append<code::ConditionalLoop>(block, at, code::LoopTest{std::move(condition), true},
                                  CheckLoopBody(loop.body, {LoopKind::While, {}}),
                                  code::LoopTest{});
}

void StatementChecker::AddNode(code::Block& block, const syntax::Do& loop, Position at) {
    code::LoopTest before{TryCondition(loop.before.condition), loop.before.wanted};
    auto body = CheckLoopBody(loop.body, {LoopKind::Do, {}});
    code::LoopTest after{TryCondition(loop.after.condition), loop.after.wanted};
    Append<code::ConditionalLoop>(block, at, std::move(before), std::move(body), std::move(after));
}

void StatementChecker::AddNode(code::Block& block, const syntax::Exit& exit, Position at) {
    block.statements.push_back(MakeLeave(Flow::Exit, exit.loop, at));
}

void StatementChecker::AddNode(code::Block& block, const syntax::Continue& statement, Position at) {
    block.statements.push_back(MakeLeave(Flow::Continue, statement.loop, at));
}

code::StatementPtr StatementChecker::MakeLeave(Flow flow, const syntax::LoopTarget& target,
                                               Position at) const {
    const auto isMeant = [&target](const syntax::LoopTarget& loop) {
        return (target.kind == LoopKind::Any || target.kind == loop.kind) &&
               (target.variable.empty() || SameName(target.variable, loop.variable));
    };
    const auto found = std::find_if(loops_.rbegin(), loops_.rend(), isMeant);
    if (found == loops_.rend()) {
        const auto kind = target.kind == LoopKind::Any ? "" : NameOf(target.kind) + " ";
        const auto name = target.variable.empty() ? "" : " over " + Quoted(target.variable);
        throw ProgramError(at, "there is no " + kind + "loop" + name + " around this");
    }
    return std::make_unique<code::LeaveLoop>(at, flow, static_cast<int>(found - loops_.rbegin()));
}

void StatementChecker::AddNode(code::Block& block, const syntax::Try& statement, Position at) {
    auto body = CheckBlock(statement.body);
    std::vector<code::Try::Catch> catches;
    for (const auto& handler : statement.catches) {
        catches.push_back(CheckCatch(handler));
    }
    Append<code::Try>(block, at, std::move(body), std::move(catches),
                      CheckBlock(statement.finally));
}

code::Try::Catch StatementChecker::CheckCatch(const syntax::Try::Catch& handler) {
    Type type;
    const bool isRight = errors_.Try([&] {
        type = expressions_.RequireType(
            handler.type.value_or(syntax::TypeName{"RuntimeException", handler.at}));
        if (type.kind != Kind::Instance || !type.model->IsException()) {
            throw ProgramError(handler.type->at, NameOf(type) + " is not an exception");
        }
    });
    if (!isRight) {
        errors_.Doubt(handler.name);
    }
    code::Try::Catch result{{}, isRight ? &type.model->info() : nullptr, {}};
    result.body = CheckBlock(handler.body, [&] {
        if (isRight && !handler.name.empty()) {
            result.slot = scope_.Declare(handler.name, type, handler.at).slot;
        }
    });
    return result;
}

void StatementChecker::AddNode(code::Block& block, const syntax::Raise& raise, Position at) {
    auto exception = expressions_.Check(*raise.exception);
    const bool isException =
        exception.type.kind == Kind::Nil ||
        (exception.type.kind == Kind::Instance && exception.type.model->IsException());
    if (!isException) {
        throw ProgramError(raise.exception->at,
                           language::NameOf(exception.type) + " is not an exception");
    }
    Append<code::Raise>(block, at, std::move(exception.code));
}

void StatementChecker::AddNode(code::Block& block, const syntax::Return& statement, Position at) {
    const auto type = result_.value_or(Type{});
    const bool wantsValue = type.kind != Kind::None;
    if (!wantsValue && statement.value) {
        throw ProgramError(statement.value->at, "only a Function returns a value");
    }
    if (wantsValue && !statement.value) {
        throw ProgramError(at, "a Function returns a value, here " + language::NameOf(type));
    }
    Append<code::Return>(block, at,
                         wantsValue ? expressions_.CheckAs(*statement.value, type) : nullptr);
}

}  // namespace standin::language
