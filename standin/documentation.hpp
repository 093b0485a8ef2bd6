// The documentation of the members and the guides, for people at the prompt.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "standin/language/names.hpp"

namespace standin {

/// What a text of the documentation is about.
enum class Subject { Member, Guide };

/// Texts by the names of members and by the titles of guides.
class Documentation {
public:
    Documentation() = default;
    /// Reads a file's text: after each line `== Name` follows the text about that member, after
    /// `=== Title` that of a guide. A line `? word, words` holds other words to find the text by.
    /// Of a text, the paragraph after the first empty line begins with a summary. If a name has
    /// several texts, they are shown in their order.
    explicit Documentation(std::string_view text);

    bool IsEmpty() const { return topics_.empty(); }
    /// The text of a member or guide, in any letter case; empty when there is none.
    std::string_view Find(std::string_view name) const;
    /// Members or guides that a question is about.
    struct Found {
        /// A line each, with the first sentence of the text.
        std::string lines;
        /// How many there are beyond the limit.
        std::size_t more = 0;
    };
    /// Members or guides that a question is about, in any letter case. They have the question among
    /// their other words, or hold all words of the question with any ending: members in the whole
    /// text, guides in the title and the other words. Where there are more than the limit, those
    /// come first that have the words in their names or other words, then those that have them in
    /// their summaries.
    Found Matching(std::string_view question, Subject subject, std::size_t limit) const;
    /// The names that contain `part` in any letter case, each in a line of its own.
    std::string NamesWith(std::string_view part) const;

private:
    struct Topic {
        Subject subject = Subject::Member;
        std::string text;
        std::string otherWords;
    };

    /// Where a topic has what a question is about, the best first.
    enum class Match { Name, Summary, Text };

    /// Nothing for a topic that a question is not about.
    static std::optional<Match> MatchOf(const std::string& name, const Topic& topic,
                                        std::string_view question);

    std::map<std::string, Topic, language::NameLess> topics_;
};

}  // namespace standin
