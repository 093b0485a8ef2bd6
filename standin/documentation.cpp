#include "standin/documentation.hpp"

#include <algorithm>

namespace standin {
namespace {

/// The first line of a text, which is taken from it, without its end.
std::string_view TakeLine(std::string_view& text) {
    const auto end = text.find('\n');
    auto line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

bool ContainsName(std::string_view name, std::string_view part) {
    const auto isSame = [](char left, char right) {
        return language::FoldCase(left) == language::FoldCase(right);
    };
    return std::search(name.begin(), name.end(), part.begin(), part.end(), isSame) != name.end();
}

}  // namespace

Documentation::Documentation(std::string_view text) {
    constexpr std::string_view Heading = "== ";
    std::string* current = nullptr;
    while (!text.empty()) {
        const auto line = TakeLine(text);
        if (line.starts_with(Heading)) {
            current = &texts_[std::string(line.substr(Heading.size()))];
        } else if (current != nullptr) {
            *current += std::string(line) + "\n";
        }
    }
}

std::string_view Documentation::Find(std::string_view name) const {
    const auto found = texts_.find(name);
    return found == texts_.end() ? std::string_view() : found->second;
}

std::string Documentation::NamesWith(std::string_view part) const {
    std::string names;
    for (const auto& [name, text] : texts_) {
        if (ContainsName(name, part)) {
            names += "  " + name + "\n";
        }
    }
    return names;
}

}  // namespace standin
