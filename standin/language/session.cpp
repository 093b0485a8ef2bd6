#include "standin/language/session.hpp"

#include <utility>
#include <variant>

#include "standin/language/parser.hpp"
#include "standin/language/program.hpp"

namespace standin::language {
namespace {

using Fragment = std::variant<syntax::Program, syntax::ExpressionPtr>;

/// The expression that makes up the whole program; null when there is more to it, or less.
syntax::ExpressionPtr* LoneExpression(syntax::Program& program) {
    const bool isLone = program.routines.empty() && program.units.empty() &&
                        program.enumerations.empty() && program.main.size() == 1;
    if (!isLone) {
        return nullptr;
    }
    auto* const call = std::get_if<syntax::CallStatement>(&program.main.front()->node);
    return call == nullptr || call->dropsResult ? nullptr : &call->call;
}

/// Statements where they can be, else an expression. Of two mistakes the one that is further on
/// tells more. Errors go to the list.
Fragment ParseFragment(std::string_view text, Constants& constants, ErrorList& errors) {
    auto program = ParseProgram(text, constants, errors);
    if (errors.empty()) {
        auto* const expression = LoneExpression(program);
        return expression == nullptr ? Fragment(std::move(program)) : std::move(*expression);
    }
    if (errors.IsUnfinished()) {
        return program;
    }
    try {
        auto expression = ParseExpression(text);
        errors = ErrorList();
        return expression;
    } catch (const ProgramError& error) {
        if (error.position() > errors.First().position()) {
            errors = ErrorList();
            errors.Add(error);
        }
    }
    return program;
}

}  // namespace

Session::Session(Host& host, const TypeTable& types, Machine::Output print,
                 std::uint64_t maximumSteps)
    : compiler_(types), machine_(host, std::move(print), maximumSteps), frame_(machine_, 0) {}

bool Session::Run(const Source& fragment) {
    fragment.Validate();
    ErrorList errors;
    Constants constants(&compiler_.constants());
    auto parsed = ParseFragment(fragment.text(), constants, errors);
    if (!errors.empty() &&
        (errors.IsUnfinished() || errors.First().position() >= fragment.text().size())) {
        return false;
    }
    compiler_.ForgetPlaces();
    auto before = compiler_.Remember();
    const auto typesBefore = compiler_.typeCount();
    code::Block block;
    try {
        auto* const program = std::get_if<syntax::Program>(&parsed);
        block = program != nullptr
                    ? compiler_.Compile(std::move(*program), errors)
                    : compiler_.CompileShown(*std::get<syntax::ExpressionPtr>(parsed));
    } catch (...) {
        compiler_.ForgetTypes(typesBefore);
        compiler_.Restore(std::move(before));
        throw;
    }
    try {
        Execute(block);
    } catch (...) {
        compiler_.Restore(std::move(before));
        frame_.slots.resize(compiler_.slotCount());
        throw;
    }
    return true;
}

void Session::Execute(const code::Block& block) {
    AddGlobals(compiler_.globals(), machine_);
    frame_.slots.resize(compiler_.slotCount());
    RunStatements(block, frame_);
}

}  // namespace standin::language
