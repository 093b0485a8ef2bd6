#include "standin/documentation.hpp"

#include <algorithm>
#include <cstddef>
#include <vector>

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

bool IsWordPart(char character) {
    const char folded = language::FoldCase(character);
    return (folded >= 'a' && folded <= 'z') || (folded >= '0' && folded <= '9');
}

std::vector<std::string_view> WordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    while (!text.empty()) {
        const auto size =
            static_cast<std::size_t>(std::ranges::find_if_not(text, IsWordPart) - text.begin());
        if (size > 0) {
            words.push_back(text.substr(0, size));
        }
        text.remove_prefix(std::min(size + 1, text.size()));
    }
    return words;
}

/// The first line of prose: one that ends like a sentence.
std::string Summary(std::string_view text) {
    while (!text.empty()) {
        auto line = TakeLine(text);
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        if (line.ends_with('.')) {
            return std::string(line);
        }
    }
    return {};
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

std::string Documentation::Matching(std::string_view question) const {
    const auto words = WordsOf(question);
    std::string found;
    for (const auto& [name, text] : texts_) {
        std::string all = name;
        all.append(" ").append(text);
        const auto there = WordsOf(all);
        const bool fits = std::ranges::all_of(words, [&there](std::string_view word) {
            return std::ranges::any_of(there, [word](std::string_view candidate) {
                return language::SameName(candidate.substr(0, word.size()), word);
            });
        });
        if (fits && !words.empty()) {
            found += "  " + name + ": " + Summary(text) + "\n";
        }
    }
    return found;
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
