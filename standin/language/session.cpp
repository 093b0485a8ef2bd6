#include "standin/language/session.hpp"

#include <optional>
#include <utility>
#include <variant>

#include "standin/language/parser.hpp"
#include "standin/language/program.hpp"

namespace standin::language {
namespace {

using Fragment = std::variant<syntax::Program, syntax::ExpressionPtr>;

/// The expression that makes up the whole program; null when there is more to it, or less.
syntax::ExpressionPtr* LoneExpression(syntax::Program& program) {
    if (!program.routines.empty() || program.main.size() != 1) {
        return nullptr;
    }
    auto* const call = std::get_if<syntax::CallStatement>(&program.main.front()->node);
    return call == nullptr ? nullptr : &call->call;
}

/// Statements where they can be, else an expression. Of two mistakes the one that is further on
/// tells more.
Fragment ParseFragment(std::string_view text) {
    std::optional<ProgramError> mistake;
    try {
        auto program = ParseProgram(text);
        auto* const expression = LoneExpression(program);
        return expression == nullptr ? Fragment(std::move(program)) : std::move(*expression);
    } catch (const UnclosedError&) {
        throw;
    } catch (const ProgramError& error) {
        mistake = error;
    }
    try {
        return ParseExpression(text);
    } catch (const ProgramError& error) {
        throw error.position() > mistake->position() ? error : *mistake;
    }
}

}  // namespace

Session::Session(Host& host, const TypeTable& types, Machine::Output print,
                 std::uint64_t maximumSteps)
    : compiler_(types), machine_(host, std::move(print), maximumSteps), frame_(machine_, 0) {}

bool Session::Run(const Source& fragment) {
    fragment.Validate();
    std::optional<Fragment> parsed;
    try {
        parsed = ParseFragment(fragment.text());
    } catch (const UnclosedError&) {
        return false;
    } catch (const ProgramError& error) {
        if (error.position() >= fragment.text().size()) {
            return false;
        }
        throw;
    }
    auto before = compiler_.Remember();
    try {
        auto* const program = std::get_if<syntax::Program>(&*parsed);
        Execute(program != nullptr
                    ? compiler_.Compile(std::move(*program))
                    : compiler_.CompileShown(std::get<syntax::ExpressionPtr>(std::move(*parsed))));
    } catch (...) {
        compiler_.Restore(std::move(before));
        frame_.slots.resize(compiler_.slotCount());
        throw;
    }
    return true;
}

void Session::Execute(const code::Block& block) {
    frame_.slots.resize(compiler_.slotCount());
    RunStatements(block, frame_);
}

}  // namespace standin::language
