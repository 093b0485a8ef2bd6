// The documentation of the members, for people at the prompt.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "standin/language/names.hpp"

namespace standin {

/// Texts by the names of members.
class Documentation {
public:
    Documentation() = default;
    /// Reads a file's text: after each line `== Name` follows the text about that member. If
    /// a name has several texts, they are shown in their order.
    explicit Documentation(std::string_view text);

    /// The text of a member, in any letter case; empty when there is none.
    std::string_view Find(std::string_view name) const;
    /// Members whose texts hold all words of a question, in any letter case and with any ending: a
    /// line each, with the first line that tells about it.
    std::string Matching(std::string_view question) const;
    /// The names that contain `part` in any letter case, each in a line of its own.
    std::string NamesWith(std::string_view part) const;

private:
    std::map<std::string, std::string, language::NameLess> texts_;
};

}  // namespace standin
