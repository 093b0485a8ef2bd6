// The variables that can be seen at a place of a program.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/language/code.hpp"
#include "standin/language/code_expressions.hpp"
#include "standin/language/names.hpp"
#include "standin/language/types.hpp"

namespace standin::language {

/// A variable or constant, and the slot that holds it.
struct Variable {
    Type type;
    std::size_t slot = 0;
    code::VariableKind kind = code::VariableKind::Local;
    bool isConstant = false;
    /// Whether the program assigns anything to it; null where it does not begin as Nil.
    std::shared_ptr<bool> isAssigned = {};
    /// Where it is declared in the text that is compiled; nothing for one of an earlier text.
    std::optional<Position> declaredAt = {};
};

/// The blocks around a place, from the routine's parameters to the innermost block. Variables of
/// blocks that follow each other share slots in a routine, but not in the main program.
class Scope {
public:
    /// `main` holds the main program's variables, which a routine sees behind its own; null in
    /// the main program itself.
    explicit Scope(const Scope* main = nullptr) : main_(main) {}

    void EnterBlock();
    /// Lets routines see the variables of all blocks.
    void ShareAll();
    /// Ends the innermost block and tells `block` the slots that were its own.
    void LeaveBlock(code::Block& block);

    /// Adds a variable to the innermost block. Throws ProgramError when the block has that name.
    Variable Declare(const std::string& name, Type type, Position at, bool isConstant = false);
    /// From now on it counts whether anything is assigned to a variable of the innermost block.
    void BeginAsNil(const std::string& name);
    /// Adds a variable that lives outside of the frame.
    void DeclareGlobal(const std::string& name, Type type, std::size_t slot, Position at);
    /// Adds a parameter; ByRef ones refer to the caller's variable.
    void DeclareParameter(const std::string& name, Type type, bool byRef, Position at);
    /// Another text follows, in which no variable is declared yet.
    void ForgetPlaces();
    /// How many blocks are around the place; `LeaveTo` ends those that are more.
    std::size_t depth() const { return levels_.size(); }
    void LeaveTo(std::size_t depth);
    /// The names that can be seen.
    std::vector<std::string_view> Names() const;
    /// The nearest variable of that name; null when there is none.
    const Variable* Find(std::string_view name) const;

    /// Slots that a frame needs.
    std::size_t slotCount() const { return slotCount_; }

private:
    struct Level {
        std::map<std::string, Variable, NameLess> variables;
        std::size_t firstSlot;
    };

    void DropLevel();

    std::vector<Level> levels_;
    /// The variables that routines see behind their own.
    std::map<std::string, Variable, NameLess> shared_;
    const Scope* main_;
    std::size_t nextSlot_ = 0;
    std::size_t slotCount_ = 0;
};

}  // namespace standin::language
