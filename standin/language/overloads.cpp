#include "standin/language/overloads.hpp"

#include <algorithm>
#include <optional>
#include <utility>

#include "standin/language/code_arrays.hpp"
#include "standin/language/code_expressions.hpp"
#include "standin/language/hints.hpp"
#include "standin/language/wrong_overloads.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin::language {
namespace {

using Fits = std::vector<Fit>;

/// A candidate that can take the arguments, and how each of them fits.
struct FittingCandidate {
    std::size_t index;
    Fits fits;
};

/// Whether an array stands where its elements could as well.
bool IsWholeArray(const Signature& signature, const std::vector<Checked>& arguments) {
    const auto& parameters = signature.parameters;
    return !parameters.empty() && arguments.size() == parameters.size() &&
           parameters.back().isParamArray && arguments.back().type == parameters.back().type;
}

/// How each argument fits; nothing when the candidate cannot take them.
std::optional<Fits> FitsOf(const Signature& signature, const std::vector<Checked>& arguments) {
    const auto& parameters = signature.parameters;
    const bool takesAll = !parameters.empty() && parameters.back().isParamArray;
    if (!signature.problem.empty() || (arguments.size() > parameters.size() && !takesAll)) {
        return std::nullopt;
    }
    Fits fits;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const auto& parameter = parameters[std::min(i, parameters.size() - 1)];
        fits.push_back(parameter.isParamArray && !IsWholeArray(signature, arguments)
                           ? FitOf(arguments[i], parameter.type.ElementType())
                           : FitOf(arguments[i], parameter));
    }
    const auto given = std::min(arguments.size(), parameters.size());
    const bool areMissingOptional =
        std::all_of(parameters.begin() + static_cast<std::ptrdiff_t>(given), parameters.end(),
                    [](const Parameter& parameter) {
                        return (parameter.defaultValue != nullptr || parameter.isOptional ||
                                parameter.isParamArray) &&
                               !parameter.byRef;
                    });
    if (given < parameters.size() && parameters.back().defaultValue != nullptr &&
        IsWrongAbout("compiles-left-out-arguments")) {
        return std::nullopt;
    }
    const bool doAllFit = std::ranges::find(fits, Fit::None) == fits.end();
    return areMissingOptional && doAllFit ? std::optional(fits) : std::nullopt;
}

/// Whether `left` fits at least as well in every argument, and better in one.
bool IsBetter(const Fits& left, const Fits& right) {
    return left != right && std::ranges::equal(left, right, [](Fit a, Fit b) { return a <= b; });
}

std::string TypesOf(const std::vector<Checked>& arguments) {
    std::string text;
    for (const auto& argument : arguments) {
        text += (text.empty() ? "" : ", ") + NameOf(argument.type);
    }
    return "(" + text + ")";
}

std::string ListOf(const Candidates& candidates, const std::vector<std::size_t>& indices) {
    std::string text;
    for (const auto index : indices) {
        text += (text.empty() ? "" : ", ") + Quoted(candidates[index]->declaration);
    }
    return text;
}

std::string WantedType(const Parameter& parameter) {
    return (parameter.byRef ? "a variable of type " : "") + NameOf(parameter.type);
}

/// What can be done where a value of the right type cannot be passed by reference.
std::string ReferenceHint(const Checked& argument, const Parameter& parameter) {
    const bool isRightType = argument.type == parameter.type && !argument.isVariable;
    return isRightType ? "; put it into a variable first" : "";
}

/// Whether the host has more in the class than there is here.
bool IsPartOfHostClass(const ClassModel* model) {
    return model != nullptr && model->origin() == ClassModel::Origin::Host &&
           model->info().record == nullptr;
}

/// How an argument of an `Enum` becomes the number that one of the candidates takes in its place.
std::string NumberHint(const Candidates& candidates, const std::vector<Checked>& arguments) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool takesNumber = std::ranges::any_of(candidates, [i](const Signature* candidate) {
            return i < candidate->parameters.size() && IsNumber(candidate->parameters[i].type.kind);
        });
        if (takesNumber && arguments[i].type.kind == Kind::Enumeration) {
            return ConversionHint(arguments[i], {IntegerKind});
        }
    }
    return {};
}

/// Why the only candidate does not take the arguments.
[[noreturn]] void FailOnly(const std::string& name, const Signature& signature,
                           const std::vector<Checked>& arguments, Position at,
                           const ClassModel* model) {
    RequireUsable(signature.declaration, signature.problem, at);
    const auto& parameters = signature.parameters;
    for (std::size_t i = 0; i < std::min(arguments.size(), parameters.size()); ++i) {
        if (!parameters[i].isParamArray && FitOf(arguments[i], parameters[i]) == Fit::None) {
            throw ProgramError(
                arguments[i].at,
                Quoted(signature.declaration) + " expects " + WantedType(parameters[i]) + " for " +
                    Quoted(parameters[i].name) + ", this is " +
                    (arguments[i].isVariable ? "" : "a value of type ") +
                    NameOf(arguments[i].type) +
                    (parameters[i].byRef ? ReferenceHint(arguments[i], parameters[i])
                                         : ConversionHint(arguments[i], parameters[i].type)));
        }
    }
    throw ProgramError(at,
                       Quoted(name) + " has " + std::to_string(arguments.size()) +
                           (arguments.size() == 1 ? " argument, but " : " arguments, but ") +
                           Quoted(signature.declaration) + " takes " +
                           (arguments.size() > parameters.size()    ? "fewer"
                            : arguments.size() == parameters.size() ? "others"
                                                                    : "more") +
                           (model == nullptr ? "" : ParameterHint(*model, name)) +
                           (IsPartOfHostClass(model) ? "; nothing else is supported here" : ""));
}

}  // namespace

Candidates SignaturesOf(const std::vector<const Method*>& methods) {
    Candidates candidates;
    for (const auto* method : methods) {
        candidates.push_back(&method->signature);
    }
    return candidates;
}

Overload FindOverload(const Candidates& candidates, const std::vector<Checked>& arguments) {
    std::vector<FittingCandidate> fitting;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (auto fits = FitsOf(*candidates[i], arguments)) {
            fitting.push_back({i, std::move(*fits)});
        }
    }
    Overload overload;
    for (const auto& candidate : fitting) {
        const bool isBeaten =
            std::ranges::any_of(fitting, [&candidate](const FittingCandidate& other) {
                return IsBetter(other.fits, candidate.fits);
            });
        if (!isBeaten) {
            overload.best.push_back(candidate.index);
        }
    }
    if (!overload.best.empty()) {
        overload.outcome =
            overload.best.size() == 1 ? Overload::Outcome::One : Overload::Outcome::Tie;
    }
    return overload;
}

std::size_t RequireOverload(const std::string& name, const Candidates& candidates,
                            const std::vector<Checked>& arguments, Position at,
                            const ClassModel* model) {
    const auto overload = FindOverload(candidates, arguments);
    switch (overload.outcome) {
        case Overload::Outcome::One:
            return CalledOverload(name, candidates, overload.best.front(), arguments, at);
        case Overload::Outcome::Tie:
            throw ProgramError(
                at, Quoted(name) + " with " + TypesOf(arguments) + " fits several equally well: " +
                        ListOf(candidates, overload.best) + TieHint(model, candidates, arguments));
        case Overload::Outcome::NoneFits:
            break;
    }
    const bool isDoubtful = std::ranges::any_of(
        arguments, [](const Checked& argument) { return IsIncomplete(argument.type); });
    if (isDoubtful || (model != nullptr && model->isIncomplete)) {
        throw FollowingError(at, "the class has an error");
    }
    if (candidates.size() == 1) {
        FailOnly(name, *candidates.front(), arguments, at, model);
    }
    if (const auto hint = NumberHint(candidates, arguments); !hint.empty()) {
        throw ProgramError(at, Quoted(name) + " does not take " + TypesOf(arguments) + hint);
    }
    const bool isNew = model != nullptr && SameName(candidates.front()->name, "Constructor");
    std::vector<std::size_t> all;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        all.push_back(i);
    }
    throw ProgramError(
        at, Quoted(name) + " does not take " + TypesOf(arguments) +
                (IsPartOfHostClass(model) ? "; supported here is: " : "; there is: ") +
                ListOf(candidates, all) + (isNew ? AssignmentHint(*model, arguments) : ""));
}

/// The arguments from an index on as one array.
static code::ExpressionPtr CollectFrom(std::size_t first, std::vector<Checked>& arguments,
                                       Type element) {
    std::vector<code::ExpressionPtr> items;
    for (auto i = first; i < arguments.size(); ++i) {
        items.push_back(ConvertTo(std::move(arguments[i]), element).code);
    }
    return std::make_unique<code::ArrayOfValues>(element, std::move(items));
}

std::vector<code::Argument> Fill(const Signature& signature, std::vector<Checked> arguments,
                                 Position at, DefaultSource& defaults) {
    std::vector<code::Argument> filled;
    const bool isWholeArray = IsWholeArray(signature, arguments);
    for (std::size_t i = 0; i < signature.parameters.size(); ++i) {
        const auto& parameter = signature.parameters[i];
        if (parameter.isParamArray && !isWholeArray) {
            filled.push_back(
                {CollectFrom(i, arguments, parameter.type.ElementType()), Kind::Array, false});
            break;
        }
        if (i >= arguments.size() &&
            (parameter.defaultValue == nullptr || IsWrongAbout("default-values"))) {
            filled.push_back(
                {std::make_unique<code::DefaultValue>(parameter.type), parameter.type.kind, false});
            continue;
        }
        auto argument =
            i < arguments.size() ? std::move(arguments[i]) : defaults.CheckDefault(parameter, at);
        if (parameter.byRef) {
            MarkAssigned(argument.code->written().isAssigned);
        } else {
            argument = ConvertTo(std::move(argument), parameter.type);
        }
        filled.push_back({std::move(argument.code), parameter.type.kind, parameter.byRef});
    }
    return filled;
}

}  // namespace standin::language
