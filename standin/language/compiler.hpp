// Turns programs into code that runs: one that is whole, or fragments that build on each other.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "standin/language/class_model.hpp"
#include "standin/language/code.hpp"
#include "standin/language/expression_checker.hpp"
#include "standin/language/scope.hpp"
#include "standin/language/syntax.hpp"

namespace standin::language {

/// Checks one fragment after the other. Each sees the variables and routines of the earlier ones,
/// and may declare them anew.
class Compiler {
public:
    /// What the fragments so far have declared.
    struct Declarations {
        std::vector<DeclaredRoutine> routines;
        Scope variables;
    };

    /// The types must outlive the compiler, and the compiler the code that it makes.
    explicit Compiler(const TypeTable& types);
    Compiler(const Compiler&) = delete;
    Compiler& operator=(const Compiler&) = delete;

    /// The statements of a program outside of its routines. Throws ProgramError at the first
    /// mistake, and may leave declarations behind then.
    code::Block Compile(syntax::Program program);
    /// An expression that stands alone: it is printed, if it has a value.
    code::Block CompileShown(syntax::ExpressionPtr expression);

    Declarations Remember() const { return {callables_.routines, scope_}; }
    /// Forgets what was declared since.
    void Restore(Declarations declarations);

    /// Slots that the frame of the statements needs.
    std::size_t slotCount() const { return scope_.slotCount(); }

private:
    /// Makes a routine known whose body is still to be checked. Throws when one of `siblings` is
    /// the same.
    void DeclareRoutine(syntax::Signature& head, std::vector<DeclaredRoutine>& siblings);
    code::Block CompileStatements(const syntax::Block& statements);

    const TypeTable& types_;
    Callables callables_;
    Scope scope_;
    std::vector<std::unique_ptr<code::Routine>> routines_;
};

}  // namespace standin::language
