// The tags of a project's files, which stand around the members of a module or class.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "standin/language/errors.hpp"
#include "standin/language/lexer.hpp"
#include "standin/language/syntax.hpp"
#include "standin/language/token_cursor.hpp"

namespace standin::language {

/// One tag: its name, and `Key = Value` behind it with commas between.
class Tag {
public:
    /// `token` is of the kind HashTag and outlives the tag.
    explicit Tag(const Token& token);

    bool Is(std::string_view name) const;
    /// Whether another tag is the end of this one: `EndMethod` of `Method`.
    bool IsEndedBy(const Tag& other) const;
    /// The word that it begins with.
    std::string_view name() const { return text_.substr(0, text_.find_first_of(", \t")); }
    /// Where it stands.
    Position at() const { return at_; }
    /// The value of a key; none when it is not there.
    std::optional<std::string_view> Text(std::string_view key) const;
    /// The same of one that is written as `&h21` or `33`. None when it is no number.
    std::optional<std::uint64_t> Number(std::string_view key) const;
    /// What a tag `Constant` declares, of whose values that for the platform counts, if one of the
    /// tags `Instance` in it has one. Throws ProgramError for a tag that is broken.
    syntax::Constant ReadConstant(std::span<const Tag> instances) const;

private:
    /// The value of an `Instance` for this platform; nothing for another platform.
    std::optional<std::string> ReadInstance() const;

    std::string_view text_;
    Position at_;
};

/// Adds an error for each tag that there is not, that is not closed, or that closes nothing.
void CheckTags(const TokenCursor& cursor, ErrorList& errors);

/// Throws ProgramError for a file that holds an item that is not supported.
void RefuseForeignItem(const TokenCursor& cursor);
/// The same for the tag of a member of an item.
void RefuseForeignMember(const Token& token);

}  // namespace standin::language
