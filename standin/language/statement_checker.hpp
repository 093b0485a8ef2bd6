// Checks the statements of one routine, or of the main program, and turns them into code.
#pragma once

#include <optional>
#include <vector>

#include "standin/language/code_arrays.hpp"
#include "standin/language/code_statements.hpp"
#include "standin/language/expression_checker.hpp"
#include "standin/language/scope.hpp"
#include "standin/language/syntax.hpp"

namespace standin::language {

/// The variables that live outside of all frames, by their slots.
using GlobalTypes = std::vector<Type>;

/// Makes the body of one routine, or of the main program. A statement with an error is left out;
/// the error goes to the list.
class StatementChecker {
public:
    /// `result` is what the routine returns; missing in the main program, which returns nothing.
    StatementChecker(const TypeTable& types, const Callables& callables, Scope& scope,
                     GlobalTypes& globals, ErrorList& errors, std::optional<Type> result,
                     const Surroundings& surroundings = {})
        : scope_(scope),
          globals_(globals),
          errors_(errors),
          expressions_(types, callables, scope, errors, surroundings),
          result_(result) {}

    /// The whole body with its parameters, which take the first slots.
    code::Block CheckBody(const syntax::Block& body, const std::vector<Parameter>& parameters,
                          const std::vector<Position>& places);

    /// Statements whose variables stay: a block that is entered and never left.
    code::Block CheckFragment(const syntax::Block& statements);

private:
    /// Statements, in a block of their own that `before` can put variables into.
    template <typename Before>
    code::Block CheckBlock(const syntax::Block& block, Before before);
    code::Block CheckBlock(const syntax::Block& block);
    /// The body of a loop, from which Exit and Continue can lead.
    code::Block CheckLoopBody(const syntax::Block& block, const syntax::LoopTarget& loop);
    code::ExpressionPtr CheckCondition(const syntax::ExpressionPtr& condition);

    void Add(code::Block& block, const syntax::Statement& statement);
    void AddNode(code::Block& block, const syntax::Dim& dim, Position at);
    void AddNode(code::Block& block, const syntax::Const& constant, Position at);
    void AddNode(code::Block& block, const syntax::Assignment& assignment, Position at);
    void AddNode(code::Block& block, const syntax::CallStatement& statement, Position at);
    void AddNode(code::Block& block, const syntax::Print& print, Position at);
    void AddNode(code::Block& block, const syntax::If& statement, Position at);
    void AddNode(code::Block& block, const syntax::Select& select, Position at);
    void AddNode(code::Block& block, const syntax::For& loop, Position at);
    void AddNode(code::Block& block, const syntax::ForEach& loop, Position at);
    void AddNode(code::Block& block, const syntax::While& loop, Position at);
    void AddNode(code::Block& block, const syntax::Do& loop, Position at);
    void AddNode(code::Block& block, const syntax::Exit& exit, Position at);
    void AddNode(code::Block& block, const syntax::Continue& statement, Position at);
    void AddNode(code::Block& block, const syntax::Try& statement, Position at);
    void AddNode(code::Block& block, const syntax::Raise& raise, Position at);
    void AddNode(code::Block& block, const syntax::Return& statement, Position at);

    /// Declares a variable, also when its first value has an error.
    void Declare(code::Block& block, const syntax::Declarator& declarator, Position at);
    void DeclareStatic(code::Block& block, const syntax::Declarator& declarator, Position at);
    /// What is right of a statement's parts, so that more than one error in it is found.
    code::ExpressionPtr TryCondition(const syntax::ExpressionPtr& condition);
    code::ExpressionPtr CheckInitialValue(const syntax::Declarator& declarator, Type type);
    /// The code that gives the variable of a counting loop its values.
    code::ForParts CheckCounting(const syntax::For& loop, Checked first, const Variable& variable);
    code::ForEachParts CheckElements(const syntax::ForEach& loop, Checked array,
                                     const Variable& variable);
    /// The variable of a loop; none when there is an error in it, and then its name is doubtful.
    std::optional<Variable> TryLoopVariable(const std::string& name,
                                            const std::optional<syntax::TypeName>& type,
                                            Position at);
    /// The test of one branch of a Select Case.
    code::ExpressionPtr CheckCase(const syntax::Select::Branch& branch, const Variable& subject);
    /// The variable of a loop: a new one where it has a type, else one that is there.
    Variable LoopVariable(const std::string& name, const std::optional<syntax::TypeName>& type,
                          Position at);
    code::ExpressionPtr CheckCaseTest(const syntax::Select::Test& test, const Variable& subject);
    code::Try::Catch CheckCatch(const syntax::Try::Catch& handler);
    code::StatementPtr MakeLeave(Flow flow, const syntax::LoopTarget& target, Position at) const;

    Scope& scope_;
    GlobalTypes& globals_;
    ErrorList& errors_;
    ExpressionChecker expressions_;
    std::optional<Type> result_;
    /// The loops around the current statement, the innermost last.
    std::vector<syntax::LoopTarget> loops_;
};

}  // namespace standin::language
