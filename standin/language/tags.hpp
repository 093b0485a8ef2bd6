// The tags of a project's files, which stand around the members of a module or class.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "standin/language/lexer.hpp"
#include "standin/language/syntax.hpp"

namespace standin::language {

/// One tag: its name, and `Key = Value` behind it with commas between.
class Tag {
public:
    /// `token` is of the kind HashTag and outlives the tag.
    explicit Tag(const Token& token);

    bool Is(std::string_view name) const;
    /// The value of a key; none when it is not there.
    std::optional<std::string_view> Text(std::string_view key) const;
    /// The same of one that is written as `&h21` or `33`. None when it is no number.
    std::optional<std::uint64_t> Number(std::string_view key) const;
    /// What a tag `Constant` declares. Throws ProgramError for one that is broken.
    syntax::Constant ReadConstant() const;

private:
    std::string_view text_;
    Position at_;
};

/// Throws ProgramError for a tag of an item, or of a member of one, that is not supported.
void RefuseForeignItem(const Token& token);
void RefuseForeignMember(const Token& token);

}  // namespace standin::language
