// Texts as template arguments.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace vqz {

/// A text literal that can be a template argument.
template <std::size_t Size>
struct FixedString {
    char text[Size] = {};

    // Implicit, so that a literal can stand where a FixedString parameter is.
    consteval FixedString(const char (&literal)[Size]) {  // NOLINT(google-explicit-constructor)
        std::copy_n(literal, Size, text);
    }

    constexpr std::string_view View() const { return {text, Size - 1}; }
};

/// `Pattern` with `Insert` in the place of every '$', as NUL-terminated text in static storage.
template <FixedString Pattern, FixedString Insert>
struct Substituted {
    static constexpr std::size_t Size = [] {
        const auto places = std::ranges::count(Pattern.View(), '$');
        return Pattern.View().size() + 1 +
               static_cast<std::size_t>(places) * (Insert.View().size() - 1);
    }();

    static constexpr std::array<char, Size> Characters = [] {
        std::array<char, Size> result = {};
        auto* end = result.data();
        for (const char character : Pattern.View()) {
            if (character == '$') {
                end = std::ranges::copy(Insert.View(), end).out;
            } else {
                *end++ = character;
            }
        }
        return result;
    }();
    // The text fills the array up to the final NUL.
    static_assert(std::string_view(Characters.data()).size() + 1 == Size);

    static constexpr const char* Text = Characters.data();
};

}  // namespace vqz
