// Names of the host's language: letters count without regard to case.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace standin::language {

/// The lower-case form of an ASCII letter; every other character as it is.
constexpr char FoldCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

/// Whether two names are the same to the language.
constexpr bool SameName(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, FoldCase, FoldCase);
}

/// Orders names so that the same name in another letter case is equal; for maps and sets.
struct NameLess {
    using is_transparent = void;  // NOLINT(readability-identifier-naming): the library's name
    constexpr bool operator()(std::string_view left, std::string_view right) const {
        return std::ranges::lexicographical_compare(left, right, {}, FoldCase, FoldCase);
    }
};

/// How code calls the object that it belongs to.
inline constexpr std::string_view SelfName = "Self";
inline constexpr std::string_view MeName = "Me";
/// The class of two values with a colon between them.
inline constexpr std::string_view PairClass = "Pair";

/// The text in double quotes, as messages show what the user wrote.
inline std::string Quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

/// "a" or "an" before a name; the U of names such as UInt32 sounds like a consonant.
inline std::string WithArticle(std::string_view name) {
    constexpr std::string_view Vowels = "aeio";
    const bool soundsLikeVowel =
        !name.empty() && Vowels.find(FoldCase(name.front())) != std::string_view::npos;
    return (soundsLikeVowel ? "an " : "a ") + std::string(name);
}

/// The base of a number whose prefix is `&` and this letter, such as &hFF.
constexpr std::optional<int> BaseOfPrefix(char letter) {
    switch (FoldCase(letter)) {
        case 'h':
            return 16;
        case 'b':
            return 2;
        case 'o':
            return 8;
        default:
            return std::nullopt;
    }
}

}  // namespace standin::language
