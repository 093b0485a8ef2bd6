#include "standin/language/suggestions.hpp"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include "standin/language/names.hpp"

namespace standin::language {
namespace {

/// Longer names are not compared: nobody misspells them, and it would take long.
constexpr std::size_t LongestName = 64;

/// How many letters must be put in, left out, changed or swapped with their neighbour to get from
/// one name to the other.
std::size_t Distance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> beforeLast(to.size() + 1);
    std::vector<std::size_t> last(to.size() + 1);
    std::vector<std::size_t> current(to.size() + 1);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 1; i <= from.size(); ++i) {
        current[0] = i;
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const char a = FoldCase(from[i - 1]);
            const char b = FoldCase(to[j - 1]);
            current[j] =
                std::min({last[j] + 1, current[j - 1] + 1, last[j - 1] + (a == b ? 0 : 1)});
            const bool isSwapped =
                i > 1 && j > 1 && a == FoldCase(to[j - 2]) && FoldCase(from[i - 2]) == b;
            if (isSwapped) {
                current[j] = std::min(current[j], beforeLast[j - 2] + 1);
            }
        }
        std::swap(beforeLast, last);
        std::swap(last, current);
    }
    return last.back();
}

}  // namespace

std::string SuggestionFor(std::string_view name, const std::vector<std::string_view>& names) {
    if (name.size() > LongestName) {
        return {};
    }
    std::string_view nearest;
    // A third of the letters may be wrong.
    std::size_t least = name.size() / 3 + 1;
    for (const auto candidate : names) {
        if (candidate.size() > LongestName || candidate.starts_with("Operator_")) {
            continue;
        }
        const auto distance = Distance(name, candidate);
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest.empty() ? std::string() : "; did you mean " + Quoted(nearest) + "?";
}

}  // namespace standin::language
