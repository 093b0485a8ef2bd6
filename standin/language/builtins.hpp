// The functions that are part of the language.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "standin/language/class_model.hpp"
#include "standin/language/code.hpp"

namespace standin::language {

/// A function as a table row.
struct BuiltInRow {
    const char* declaration;
    BuiltInFunction function;
    /// The module or type whose name stands before it; null for none.
    const char* module = nullptr;
};

/// The tables that stand in files of their own.
std::span<const BuiltInRow> TextFunctions();
std::span<const BuiltInRow> MathFunctions();
std::span<const BuiltInRow> ApplicationFunctions();

/// A function with its declaration, from which overloads are chosen as for a plug-in's methods.
struct BuiltIn {
    Signature signature;
    BuiltInFunction function;
    /// Whether it is the overload for Variants, which takes nothing that would become one first.
    bool isForVariantsOnly = false;
};

/// All functions of the language.
std::vector<BuiltIn> MakeBuiltIns(const TypeTable& types);

/// The function that returns a value of that kind as text; null where there is none.
BuiltInFunction FindTextFunction(Kind kind);

/// The module whose members are the text encodings.
inline constexpr std::string_view EncodingsModule = "Encodings";

/// The encoding of that name in the module.
std::optional<HostTextEncoding> FindEncoding(std::string_view name);

}  // namespace standin::language
