#include "standin/language/errors.hpp"

#include <algorithm>
#include <utility>

namespace standin::language {

void ErrorList::Add(const ProgramError& error) {
    errors_.push_back(error);
    const auto& further = error.further();
    errors_.insert(errors_.end(), further.begin(), further.end());
}

void ErrorList::AddUnclosed(const UnclosedError& error) {
    Add(error);
    isUnfinished_ = true;
}

const ProgramError& ErrorList::First() const {
    return *std::ranges::min_element(errors_, {}, &ProgramError::position);
}

void ErrorList::ThrowIfAny() const {
    if (errors_.empty()) {
        return;
    }
    auto sorted = errors_;
    std::ranges::stable_sort(sorted, {}, &ProgramError::position);
    auto first = sorted.front();
    sorted.erase(sorted.begin());
    first.SetFurther(std::move(sorted));
    throw ProgramError(std::move(first));
}

}  // namespace standin::language
