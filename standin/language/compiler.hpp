// Turns programs into code that runs: one that is whole, or fragments that build on each other.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "standin/language/class_model.hpp"
#include "standin/language/code.hpp"
#include "standin/language/errors.hpp"
#include "standin/language/expression_checker.hpp"
#include "standin/language/scope.hpp"
#include "standin/language/statement_checker.hpp"
#include "standin/language/syntax.hpp"

namespace standin::language {

/// Checks one fragment after the other. Each sees the variables and routines of the earlier ones,
/// and may declare them anew.
class Compiler {
public:
    /// What the fragments so far have declared.
    struct Declarations {
        Callables callables;
        Scope variables;
    };

    /// The types must outlive the compiler, and the compiler the code that it makes.
    explicit Compiler(const TypeTable& types);
    Compiler(const Compiler&) = delete;
    Compiler& operator=(const Compiler&) = delete;

    /// The statements of a program outside of its routines. Throws ProgramError for its errors,
    /// those that are in the list already included, and may leave declarations behind then.
    code::Block Compile(syntax::Program program, ErrorList& errors);
    /// The same for a project: its one statement starts the application with these words, the first
    /// of which is the program's own name. The application's result is that of the frame.
    code::Block CompileProject(syntax::Program program, const std::vector<std::string>& words,
                               ErrorList& errors);
    /// An expression that stands alone: it is printed, if it has a value.
    code::Block CompileShown(const syntax::Expression& expression);

    Declarations Remember() const { return {callables_, scope_}; }
    /// Forgets what was declared since, the types excepted: there may be objects of them.
    void Restore(Declarations declarations);
    /// Another text follows, in which nothing is declared yet.
    void ForgetPlaces();
    /// Forgets the types of a program that has errors.
    void ForgetTypes(std::size_t count) { types_.KeepFirst(count); }
    std::size_t typeCount() const { return types_.declaredCount(); }

    /// What the host tells of itself.
    const Constants& constants() const { return types_.constants(); }
    /// The variables outside of the frame.
    const GlobalTypes& globals() const { return globals_; }

    /// Slots that the frame of the statements needs.
    std::size_t slotCount() const { return scope_.slotCount(); }

private:
    /// A routine whose head is known and whose body is still to be checked.
    struct Pending {
        Signature signature;
        code::Routine* code;
        const syntax::Routine* routine;
        Surroundings surroundings;
    };

    void DeclareTypes(syntax::Program& program, ErrorList& errors);
    /// The constants of the modules and classes, and those of the main program.
    void DeclareConstants(const syntax::Program& program, ErrorList& errors);
    void DeclareConstant(const syntax::Unit& unit, const syntax::Constant& constant);
    void DeclareModule(syntax::Unit& unit, ErrorList& errors);
    void DeclareClass(syntax::Unit& unit, ErrorList& errors);
    void DeclareMethod(ClassModel& model, syntax::Routine& routine, ErrorList& errors);
    /// Throws when one of the siblings, those of the same text and module, is the same.
    void DeclareRoutine(syntax::Routine& routine, const std::string& unit,
                        std::vector<DeclaredRoutine>& siblings, ErrorList& errors);
    code::Routine& NewRoutine();
    /// The head of a routine with its types and defaults resolved. A default with an error becomes
    /// that of its type.
    Signature Resolve(syntax::Signature& syntax, const Surroundings& surroundings,
                      ErrorList& errors) const;
    /// Statements of the main frame.
    code::Block CompileStatements(const syntax::Block& statements, ErrorList& errors,
                                  std::optional<Type> result, const Surroundings& surroundings);
    code::Block CompileAll(syntax::Program& program, ErrorList& errors, std::optional<Type> result);
    void CompileBody(const Pending& pending, ErrorList& errors);

    TypeTable types_;
    Callables callables_;
    Scope scope_;
    GlobalTypes globals_;
    std::vector<std::unique_ptr<code::Routine>> routines_;
    /// What the program that is being compiled still needs.
    std::vector<Pending> pending_;
    /// The first values of the variables of its modules.
    std::vector<std::pair<Surroundings, syntax::Block>> starts_;
    /// Routines that stand in no text: those that fill new objects.
    std::vector<std::unique_ptr<syntax::Routine>> made_;
};

}  // namespace standin::language
