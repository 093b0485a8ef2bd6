// The types in the declarations of members.
#pragma once

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tests {

/// The text in lower case.
inline std::string Lower(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](unsigned char character) {
        return static_cast<char>(std::tolower(character));
    });
    return lower;
}

/// The last word of a declaration or of a parameter, its default value left out.
inline std::string TypeAtEnd(std::string_view declaration) {
    declaration = declaration.substr(0, declaration.find(" ="));
    return std::string(declaration.substr(declaration.rfind(' ') + 1));
}

/// The types that a declaration names, in lower case.
struct Signature {
    std::vector<std::string> argumentTypes;
    std::string resultType;
};

/// The types of a declaration such as "add(other as number, round as boolean = true) as number".
inline Signature SignatureOf(std::string_view declaration) {
    Signature signature;
    const std::size_t open = declaration.find('(');
    const std::size_t close = declaration.rfind(')');
    const bool hasList = open != std::string_view::npos;
    std::string_view list = hasList ? declaration.substr(open + 1, close - open - 1) : "";
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(", "), list.size());
        const std::string_view parameter = list.substr(0, end);
        const bool byReference = parameter.starts_with("byref ");
        signature.argumentTypes.push_back((byReference ? "byref " : "") + TypeAtEnd(parameter));
        list.remove_prefix(std::min(end + 2, list.size()));
    }
    const std::string_view tail = hasList ? declaration.substr(close + 1) : declaration;
    if (const std::size_t as = tail.rfind(" as "); as != std::string_view::npos) {
        signature.resultType = TypeAtEnd(tail);
    }
    return signature;
}

}  // namespace tests
