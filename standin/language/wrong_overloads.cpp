#include "standin/language/wrong_overloads.hpp"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string_view>

#include "standin/language/errors.hpp"
#include "standin/language/names.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin::language {
namespace {

/// What stands as an argument.
enum class Form : std::uint8_t { Value, WholeLiteral, WideLiteral, RealLiteral };

Form FormOf(const Checked& argument) {
    if (argument.literal) {
        const bool isNarrow = *argument.literal >= std::numeric_limits<std::int32_t>::min() &&
                              *argument.literal <= std::numeric_limits<std::int32_t>::max();
        return isNarrow ? Form::WholeLiteral : Form::WideLiteral;
    }
    return argument.amount ? Form::RealLiteral : Form::Value;
}

/// A call with one argument that goes to the routine for another type.
struct WrongCall {
    Fact fact;
    std::string_view routine;
    Form form;
    /// The type of the parameter that fits best; None stands for any.
    Kind best;
    /// The type of the parameter that is taken in its place.
    Kind taken;
};

constexpr std::string_view Constructor = "Constructor";

constexpr WrongCall WrongCalls[] = {
    {"constructor-of-int32", Constructor, Form::Value, Kind::Int32, Kind::UInt32},
    {"constructor-of-int64", Constructor, Form::Value, Kind::Int64, Kind::Int32},
    {"constructor-of-uint32", Constructor, Form::Value, Kind::UInt32, Kind::Int32},
    {"constructor-of-uint64", Constructor, Form::Value, Kind::UInt64, Kind::Int64},
    {"constructor-of-single", Constructor, Form::Value, Kind::Single, Kind::Int32},
    {"constructor-of-double", Constructor, Form::Value, Kind::Double, Kind::Single},
    {"constructor-of-currency", Constructor, Form::Value, Kind::Currency, Kind::Double},
    {"constructor-of-number", Constructor, Form::Value, Kind::Instance, Kind::Text},
    {"constructor-of-whole-literal", Constructor, Form::WholeLiteral, Kind::None, Kind::UInt32},
    {"constructor-of-wide-literal", Constructor, Form::WideLiteral, Kind::None, Kind::Int32},
    {"constructor-of-real-literal", Constructor, Form::RealLiteral, Kind::Double, Kind::Single},
    {"overload-by-type", "Multiply", Form::Value, IntegerKind, Kind::UInt32},
};

bool Applies(const WrongCall& call, const Signature& best, const Checked& argument) {
    return IsWrongAbout(call.fact) && SameName(best.name, call.routine) &&
           call.form == FormOf(argument) &&
           (call.best == Kind::None || call.best == best.parameters.front().type.kind);
}

/// More constructors than any class of the host's own has.
constexpr std::size_t SmallestPluginClass = 4;

/// Whether the host takes the argument for one of several constructors and cannot decide.
bool IsUndecided(const Checked& argument) {
    if (argument.type.kind == Kind::Text) {
        return IsWrongAbout("compiles-constructor-of-string");
    }
    return IsNumber(argument.type.kind) &&
           (FormOf(argument) == Form::Value ? IsWrongAbout("compiles-constructor-of-value")
                                            : IsWrongAbout("compiles-constructor-of-literal"));
}

[[noreturn]] void FailToDecide(const std::string& name, Position at) {
    throw ProgramError(at, Quoted(name) + " fits several equally well");
}

}  // namespace

std::size_t CalledOverload(const std::string& name, const Candidates& candidates, std::size_t best,
                           const std::vector<Checked>& arguments, Position at) {
    const auto& signature = *candidates[best];
    if (IsWrongAbout("compiles-overload-by-count") && SameName(signature.name, "DegToRad")) {
        FailToDecide(name, at);
    }
    if (arguments.size() != 1) {
        return best;
    }
    const auto& argument = arguments.front();
    if (SameName(signature.name, Constructor) && candidates.size() > SmallestPluginClass &&
        IsUndecided(argument)) {
        FailToDecide(name, at);
    }
    const auto* const call = std::ranges::find_if(
        WrongCalls, [&](const WrongCall& row) { return Applies(row, signature, argument); });
    if (call == std::end(WrongCalls)) {
        return best;
    }
    const auto taken = std::ranges::find_if(candidates, [call](const Signature* candidate) {
        return candidate->parameters.size() == 1 &&
               candidate->parameters.front().type.kind == call->taken;
    });
    return taken == candidates.end() ? best : static_cast<std::size_t>(taken - candidates.begin());
}

void RequireUnambiguous(const ClassModel& model, const std::string& name, Position at) {
    const auto methods = model.FindMethods(name);
    const bool isTwice =
        (IsWrongAbout("compiles-shared-and-instance") && !methods.empty() &&
         !model.FindSharedMethods(name).empty()) ||
        (IsWrongAbout("compiles-property-and-method") && !methods.empty() &&
         methods.front()->host.function == nullptr && model.FindProperty(name) != nullptr);
    if (isTwice) {
        FailToDecide(name, at);
    }
}

}  // namespace standin::language
