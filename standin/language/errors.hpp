// The errors of a program, collected so that all of them can be shown.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "standin/language/names.hpp"
#include "standin/language/source.hpp"

namespace standin::language {

/// An error that may only be there because of an earlier one, such as an unknown name whose
/// declaration has an error itself. It is not shown.
class FollowingError : public ProgramError {
public:
    using ProgramError::ProgramError;
};

/// Collects errors while the rest of the program is looked at.
class ErrorList {
public:
    /// Adds an error with its further ones.
    void Add(const ProgramError& error);
    /// Adds that the text ends inside a block.
    void AddUnclosed(const UnclosedError& error);

    /// Remembers a name whose declaration may have been lost to an error.
    void Doubt(const std::string& name) { doubtful_.insert(name); }
    bool IsDoubtful(std::string_view name) const { return doubtful_.contains(name); }

    bool empty() const { return errors_.empty(); }
    std::size_t count() const { return errors_.size(); }
    /// The first one in the order of the text; there must be one.
    const ProgramError& First() const;
    /// Whether the only thing wrong is that the text ends inside a block.
    bool IsUnfinished() const { return isUnfinished_ && errors_.size() == 1; }
    /// Throws the first error in the order of the text, with all others as its further ones.
    void ThrowIfAny() const;

    /// Runs an action; a ProgramError that it throws is added. Tells whether it threw none.
    /// UnclosedError passes: nothing follows the place where it is thrown.
    template <typename Action>
    bool Try(Action&& action) {
        try {
            action();
            return true;
        } catch (const UnclosedError&) {
            throw;
        } catch (const FollowingError&) {
            return false;
        } catch (const ProgramError& error) {
            Add(error);
            return false;
        }
    }

private:
    std::vector<ProgramError> errors_;
    bool isUnfinished_ = false;
    std::set<std::string, NameLess> doubtful_;
};

}  // namespace standin::language
