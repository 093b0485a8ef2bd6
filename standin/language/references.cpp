#include "standin/language/references.hpp"

#include <algorithm>
#include <utility>

#include "standin/language/array_members.hpp"

namespace standin::language {

References::~References() {
    for (auto& element : elements_) {
        if (auto* const place = FindElement(*element.array.array(), element.indices)) {
            std::swap(*place, element.copy);
        }
    }
}

Value& References::Borrow(const Value& array, std::vector<std::int64_t> indices) {
    const auto found = std::ranges::find_if(elements_, [&](const Element& element) {
        return element.array.array() == array.array() && element.indices == indices;
    });
    if (found != elements_.end()) {
        return found->copy;
    }
    const auto& element = *FindElement(*array.array(), indices);
    elements_.push_back({array, std::move(indices), element});
    return elements_.back().copy;
}

}  // namespace standin::language
