// Constants that are known before a program runs: those of the host and those that it declares.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "standin/language/names.hpp"
#include "standin/language/syntax.hpp"
#include "standin/runtime/host.hpp"

namespace standin::language {

/// Whether programs run on Windows.
#ifdef _WIN32
inline constexpr bool IsWindows = true;
#else
inline constexpr bool IsWindows = false;
#endif

/// Constants by their names, also by those with a module in front: `Module.Name`.
class Constants {
public:
    /// What is not found is looked for in `outer`, if there is one.
    explicit Constants(const Constants* outer = nullptr) : outer_(outer) {}

    void Set(const std::string& name, syntax::ConstantValue value) {
        values_.insert_or_assign(name, std::move(value));
    }
    /// Null when there is none of that name.
    const syntax::ConstantValue* Find(std::string_view name) const;

private:
    const Constants* outer_;
    std::map<std::string, syntax::ConstantValue, NameLess> values_;
};

/// What the host tells of itself: `XojoVersion`, `TargetWindows` and the like.
Constants HostConstants(const Host& host);

/// Returns the constant of a name, maybe with a module's before it; null when there is none.
using ConstantSearch = std::function<const syntax::ConstantValue*(std::string_view name)>;

/// The value of an expression of constants and literals. Throws ProgramError for any other.
syntax::ConstantValue Evaluate(const syntax::Expression& expression, const ConstantSearch& find);
syntax::ConstantValue Evaluate(const syntax::Expression& expression, const Constants& constants);

/// Whether a condition of constants holds. Throws ProgramError when it is no Boolean.
bool IsTrue(const syntax::Expression& condition, const Constants& constants);

/// Whether it is a name, or several with dots between.
bool IsDottedName(const syntax::Expression& expression);
/// The same as it is written.
std::string DottedName(const syntax::Expression& expression);
/// Whether it is a literal, or a number with a sign.
bool IsLiteral(const syntax::Expression& expression);

/// Throws ProgramError: a parameter's default can be nothing like this.
[[noreturn]] void FailWithoutDefault(Position at);

/// The value as the literal that it is.
syntax::ExpressionPtr LiteralOf(const syntax::ConstantValue& value, Position at);

}  // namespace standin::language
