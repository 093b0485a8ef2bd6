#include "standin/documentation.hpp"

#include <algorithm>
#include <utility>
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

/// The first sentence of the paragraph after the first empty line.
std::string Summary(std::string_view text) {
    while (!text.empty() && !TakeLine(text).empty()) {
    }
    std::string paragraph;
    while (!text.empty()) {
        const auto line = TakeLine(text);
        if (line.empty()) {
            break;
        }
        paragraph.append(paragraph.empty() ? "" : " ").append(line);
        const auto end = paragraph.find(". ");
        if (end != std::string::npos || line.ends_with('.')) {
            return paragraph.substr(0, end == std::string::npos ? end : end + 1);
        }
    }
    // A colon leads to what stands below the paragraph.
    if (paragraph.ends_with(':')) {
        paragraph.back() = '.';
    }
    return paragraph;
}

/// Whether a list with commas has the item, in any letter case.
bool HasItem(std::string_view list, std::string_view item) {
    constexpr std::string_view Separator = ", ";
    while (!list.empty()) {
        const auto end = list.find(Separator);
        if (language::SameName(list.substr(0, end), item)) {
            return true;
        }
        list.remove_prefix(end == std::string_view::npos ? list.size() : end + Separator.size());
    }
    return false;
}

/// Whether each word of a question begins a word of the text, in any letter case.
bool HoldsAllWords(std::string_view text, std::string_view question) {
    const auto there = WordsOf(text);
    const auto words = WordsOf(question);
    return !words.empty() && std::ranges::all_of(words, [&there](std::string_view word) {
        return std::ranges::any_of(there, [word](std::string_view candidate) {
            return language::SameName(candidate.substr(0, word.size()), word);
        });
    });
}

}  // namespace

Documentation::Documentation(std::string_view text) {
    constexpr std::string_view MemberHeading = "== ";
    constexpr std::string_view GuideHeading = "=== ";
    constexpr std::string_view OtherWords = "? ";
    Topic* current = nullptr;
    while (!text.empty()) {
        const auto line = TakeLine(text);
        if (line.starts_with(MemberHeading)) {
            current = &topics_[std::string(line.substr(MemberHeading.size()))];
        } else if (line.starts_with(GuideHeading)) {
            current = &topics_[std::string(line.substr(GuideHeading.size()))];
            current->subject = Subject::Guide;
        } else if (current == nullptr) {
            continue;
        } else if (line.starts_with(OtherWords)) {
            current->otherWords.append(current->otherWords.empty() ? "" : ", ")
                .append(line.substr(OtherWords.size()));
        } else {
            current->text.append(line).append("\n");
        }
    }
}

std::string_view Documentation::Find(std::string_view name) const {
    const auto found = topics_.find(name);
    return found == topics_.end() ? std::string_view() : found->second.text;
}

std::optional<Documentation::Match> Documentation::MatchOf(const std::string& name,
                                                           const Topic& topic,
                                                           std::string_view question) {
    std::string searched = name + " " + topic.otherWords;
    if (HasItem(topic.otherWords, question) || HoldsAllWords(searched, question)) {
        return Match::Name;
    }
    if (topic.subject != Subject::Member) {
        return std::nullopt;
    }
    if (HoldsAllWords(searched.append(" ").append(Summary(topic.text)), question)) {
        return Match::Summary;
    }
    const bool isInText = HoldsAllWords(searched.append(" ").append(topic.text), question);
    return isInText ? std::optional(Match::Text) : std::nullopt;
}

Documentation::Found Documentation::Matching(std::string_view question, Subject subject,
                                             std::size_t limit) const {
    std::vector<std::pair<Match, std::string>> matches;
    for (const auto& [name, topic] : topics_) {
        const auto match = topic.subject == subject ? MatchOf(name, topic, question) : std::nullopt;
        if (match) {
            matches.emplace_back(*match, "  " + name + ": " + Summary(topic.text) + "\n");
        }
    }
    if (matches.size() > limit) {
        std::ranges::stable_sort(matches, {}, &std::pair<Match, std::string>::first);
    }
    Found found;
    const auto shown = std::min(limit, matches.size());
    for (std::size_t i = 0; i < shown; ++i) {
        found.lines += matches[i].second;
    }
    found.more = matches.size() - shown;
    return found;
}

std::string Documentation::NamesWith(std::string_view part) const {
    std::string names;
    for (const auto& [name, topic] : topics_) {
        if (ContainsName(name, part)) {
            names += "  " + name + "\n";
        }
    }
    return names;
}

}  // namespace standin
