#include "standin/language/compiler.hpp"

#include <algorithm>
#include <string>
#include <utility>

#include "standin/language/parser.hpp"
#include "standin/language/statement_checker.hpp"

namespace standin::language {
namespace {

DeclaredRoutine Declare(syntax::Signature& syntax, const code::Routine& code,
                        const TypeTable& types) {
    // Names and types are still needed for the body; only the defaults move.
    syntax::Signature head{syntax.name, syntax.at, {}, syntax.result};
    std::string declaration;
    for (auto& parameter : syntax.parameters) {
        declaration += (declaration.empty() ? "" : ", ") +
                       std::string(parameter.byRef ? "ByRef " : "") + parameter.name +
                       (parameter.type.isArray ? "()" : "") + " As " + parameter.type.name;
        head.parameters.push_back({parameter.name, parameter.at, parameter.type, parameter.byRef,
                                   std::move(parameter.defaultValue)});
    }
    declaration = syntax.name + "(" + declaration + ")";
    if (syntax.result) {
        declaration += " As " + syntax.result->name;
    }
    return {types.Resolve(std::move(head), std::move(declaration)), &code};
}

/// Whether no program can tell which of the two a call means.
bool AreSame(const DeclaredRoutine& left, const DeclaredRoutine& right) {
    return SameName(left.signature.name, right.signature.name) &&
           std::ranges::equal(left.signature.parameters, right.signature.parameters, {},
                              &Parameter::type, &Parameter::type);
}

/// Throws when a default does not fit its parameter, even if no call needs it.
void CheckDefaults(const Signature& signature, const TypeTable& types, const Callables& callables) {
    const Scope nothing;
    ExpressionChecker checker(types, callables, nothing);
    for (const auto& parameter : signature.parameters) {
        if (parameter.defaultValue) {
            checker.CheckAs(*parameter.defaultValue, parameter.type);
        }
    }
}

}  // namespace

Compiler::Compiler(const TypeTable& types) : types_(types), callables_{MakeBuiltIns(types), {}} {}

code::Block Compiler::Compile(syntax::Program program) {
    std::vector<DeclaredRoutine> declared;
    for (auto& routine : program.routines) {
        DeclareRoutine(routine.signature, declared);
    }
    auto main = CompileStatements(program.main);
    for (std::size_t i = 0; i < declared.size(); ++i) {
        const auto& signature = declared[i].signature;
        auto& code = *routines_[routines_.size() - declared.size() + i];
        Scope scope(&scope_);
        StatementChecker checker(types_, callables_, scope, signature.result);
        code.result = signature.result;
        code.body = checker.CheckBody(program.routines[i].body, signature.parameters,
                                      program.routines[i].signature.parameters);
        code.slotCount = scope.slotCount();
    }
    return main;
}

void Compiler::DeclareRoutine(syntax::Signature& head, std::vector<DeclaredRoutine>& siblings) {
    routines_.push_back(std::make_unique<code::Routine>());
    const auto declared = Declare(head, *routines_.back(), types_);
    const auto isSame = [&](const auto& other) { return AreSame(other, declared); };
    if (std::ranges::any_of(siblings, isSame)) {
        throw ProgramError(head.at, Quoted(head.name) + " is declared already");
    }
    CheckDefaults(declared.signature, types_, callables_);
    std::erase_if(callables_.routines, isSame);
    callables_.routines.push_back(declared);
    siblings.push_back(declared);
}

code::Block Compiler::CompileStatements(const syntax::Block& statements) {
    StatementChecker checker(types_, callables_, scope_, std::nullopt);
    auto code = checker.CheckFragment(statements);
    scope_.ShareAll();
    return code;
}

code::Block Compiler::CompileShown(syntax::ExpressionPtr expression) {
    const Position at = expression->at;
    ExpressionChecker checker(types_, callables_, scope_);
    syntax::Statement::Node node;
    if (checker.CheckCall(*expression).type.kind != Kind::None) {
        node = syntax::Print{std::move(expression)};
    } else {
        node = syntax::CallStatement{std::move(expression)};
    }
    syntax::Block statements;
    statements.push_back(
        std::make_unique<syntax::Statement>(syntax::Statement{at, std::move(node)}));
    return CompileStatements(statements);
}

void Compiler::Restore(Declarations declarations) {
    callables_.routines = std::move(declarations.routines);
    scope_ = std::move(declarations.variables);
}

}  // namespace standin::language
