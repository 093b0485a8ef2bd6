#include "standin/language/program.hpp"

#include <algorithm>
#include <new>
#include <utility>

#include "standin/language/expression_checker.hpp"
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

bool HaveSameParameters(const Signature& left, const Signature& right) {
    return std::ranges::equal(left.parameters, right.parameters, {}, &Parameter::type,
                              &Parameter::type);
}

/// Throws when an earlier routine has the same name and the same types of parameters.
void RequireNew(const DeclaredRoutine& routine, const std::vector<DeclaredRoutine>& earlier,
                Position at) {
    for (const auto& other : earlier) {
        if (SameName(other.signature.name, routine.signature.name) &&
            HaveSameParameters(other.signature, routine.signature)) {
            throw ProgramError(at, Quoted(routine.signature.name) + " is declared already");
        }
    }
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

Program::Program(const Source& source, const TypeTable& types) {
    source.Validate();
    auto syntax = ParseProgram(source.text());
    Callables callables{MakeBuiltIns(types), {}};
    for (auto& routine : syntax.routines) {
        routines_.push_back(std::make_unique<code::Routine>());
        auto declared = Declare(routine.signature, *routines_.back(), types);
        RequireNew(declared, callables.routines, routine.signature.at);
        CheckDefaults(declared.signature, types, callables);
        callables.routines.push_back(std::move(declared));
    }
    Scope mainScope;
    StatementChecker main(types, callables, mainScope, std::nullopt);
    main_.body = main.CheckBody(syntax.main, {}, {});
    main_.slotCount = mainScope.slotCount();
    for (std::size_t i = 0; i < routines_.size(); ++i) {
        const auto& signature = callables.routines[i].signature;
        Scope scope(&mainScope);
        StatementChecker checker(types, callables, scope, signature.result);
        routines_[i]->result = signature.result;
        routines_[i]->body = checker.CheckBody(syntax.routines[i].body, signature.parameters,
                                               syntax.routines[i].signature.parameters);
        routines_[i]->slotCount = scope.slotCount();
    }
}

void Program::Run(Host& host, const Machine::Output& print, std::uint64_t maximumSteps) const {
    Machine machine(host, print, maximumSteps);
    Frame frame(machine, main_.slotCount);
    try {
        main_.body.Execute(frame);
    } catch (const std::bad_alloc&) {
        throw ProgramError(machine.position, "the program needs more memory than there is for it");
    }
}

}  // namespace standin::language
