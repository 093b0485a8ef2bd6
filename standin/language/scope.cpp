#include "standin/language/scope.hpp"

#include <algorithm>

namespace standin::language {

void Scope::EnterBlock() {
    levels_.push_back({{}, nextSlot_});
}

void Scope::ShareAll() {
    for (const auto& level : levels_) {
        for (auto [name, variable] : level.variables) {
            if (variable.kind == code::VariableKind::Local) {
                variable.kind = code::VariableKind::Main;
            }
            shared_.insert_or_assign(name, variable);
        }
    }
}

void Scope::LeaveBlock(code::Block& block) {
    block.firstSlot = levels_.back().firstSlot;
    block.endSlot = nextSlot_;
    DropLevel();
}

void Scope::LeaveTo(std::size_t depth) {
    while (levels_.size() > depth) {
        DropLevel();
    }
}

void Scope::DropLevel() {
    // A routine that runs before the declaration of a variable of the main program must not find in
    // its slot what belonged to a block.
    if (main_ != nullptr) {
        nextSlot_ = levels_.back().firstSlot;
    }
    levels_.pop_back();
}

std::vector<std::string_view> Scope::Names() const {
    std::vector<std::string_view> names;
    for (const auto& level : levels_) {
        for (const auto& [name, variable] : level.variables) {
            names.push_back(name);
        }
    }
    if (main_ != nullptr) {
        for (const auto& [name, variable] : main_->shared_) {
            names.push_back(name);
        }
    }
    return names;
}

void Scope::DeclareGlobal(const std::string& name, Type type, std::size_t slot, Position at) {
    const Variable variable{
        .type = type, .slot = slot, .kind = code::VariableKind::Global, .declaredAt = at};
    if (!levels_.back().variables.emplace(name, variable).second) {
        throw ProgramError(at, Quoted(name) + " is declared already");
    }
}

Variable Scope::Declare(const std::string& name, Type type, Position at, bool isConstant) {
    Variable variable{.type = type, .slot = nextSlot_, .isConstant = isConstant, .declaredAt = at};
    if (!levels_.back().variables.emplace(name, variable).second) {
        throw ProgramError(at, Quoted(name) + " is declared already");
    }
    ++nextSlot_;
    slotCount_ = std::max(slotCount_, nextSlot_);
    return variable;
}

void Scope::ForgetPlaces() {
    for (auto& level : levels_) {
        for (auto& [name, variable] : level.variables) {
            variable.declaredAt.reset();
        }
    }
    for (auto& [name, variable] : shared_) {
        variable.declaredAt.reset();
    }
}

void Scope::BeginAsNil(const std::string& name) {
    levels_.back().variables.find(name)->second.isAssigned = std::make_shared<bool>(false);
}

void Scope::DeclareParameter(const std::string& name, Type type, bool byRef, Position at) {
    Declare(name, type, at);
    if (byRef) {
        levels_.back().variables.find(name)->second.kind = code::VariableKind::Reference;
    }
}

const Variable* Scope::Find(std::string_view name) const {
    const auto level =
        std::find_if(levels_.rbegin(), levels_.rend(),
                     [name](const Level& candidate) { return candidate.variables.contains(name); });
    if (level != levels_.rend()) {
        return &level->variables.find(name)->second;
    }
    if (main_ == nullptr) {
        return nullptr;
    }
    const auto found = main_->shared_.find(name);
    return found == main_->shared_.end() ? nullptr : &found->second;
}

}  // namespace standin::language
