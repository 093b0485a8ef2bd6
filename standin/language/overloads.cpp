#include "standin/language/overloads.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace standin::language {
namespace {

using Fits = std::vector<Fit>;

/// A candidate that can take the arguments, and how each of them fits.
struct FittingCandidate {
    std::size_t index;
    Fits fits;
};

/// How each argument fits; nothing when the candidate cannot take them.
std::optional<Fits> FitsOf(const Signature& signature, const std::vector<Checked>& arguments) {
    const auto& parameters = signature.parameters;
    if (!signature.problem.empty() || arguments.size() > parameters.size()) {
        return std::nullopt;
    }
    Fits fits;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        fits.push_back(FitOf(arguments[i], parameters[i]));
    }
    const bool areMissingOptional =
        std::all_of(parameters.begin() + static_cast<std::ptrdiff_t>(arguments.size()),
                    parameters.end(), [](const Parameter& parameter) {
                        return parameter.defaultValue != nullptr && !parameter.byRef;
                    });
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

/// Why the only candidate does not take the arguments.
[[noreturn]] void FailOnly(const std::string& name, const Signature& signature,
                           const std::vector<Checked>& arguments, Position at) {
    RequireUsable(signature.declaration, signature.problem, at);
    const auto& parameters = signature.parameters;
    for (std::size_t i = 0; i < std::min(arguments.size(), parameters.size()); ++i) {
        if (FitOf(arguments[i], parameters[i]) == Fit::None) {
            throw ProgramError(arguments[i].at,
                               Quoted(signature.declaration) + " expects " +
                                   WantedType(parameters[i]) + " for " +
                                   Quoted(parameters[i].name) + ", this is " +
                                   (arguments[i].isVariable ? "" : "a value of type ") +
                                   NameOf(arguments[i].type));
        }
    }
    throw ProgramError(at, Quoted(name) + " has " + std::to_string(arguments.size()) +
                               (arguments.size() == 1 ? " argument, but " : " arguments, but ") +
                               Quoted(signature.declaration) + " takes " +
                               (arguments.size() > parameters.size() ? "fewer" : "more"));
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
                            const std::vector<Checked>& arguments, Position at) {
    const auto overload = FindOverload(candidates, arguments);
    switch (overload.outcome) {
        case Overload::Outcome::One:
            return overload.best.front();
        case Overload::Outcome::Tie:
            throw ProgramError(
                at, Quoted(name) + " with " + TypesOf(arguments) +
                        " fits several equally well: " + ListOf(candidates, overload.best));
        case Overload::Outcome::NoneFits:
            break;
    }
    if (candidates.size() == 1) {
        FailOnly(name, *candidates.front(), arguments, at);
    }
    std::vector<std::size_t> all;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        all.push_back(i);
    }
    throw ProgramError(at, Quoted(name) + " does not take " + TypesOf(arguments) +
                               "; there is: " + ListOf(candidates, all));
}

std::vector<code::Argument> Fill(const Signature& signature, std::vector<Checked> arguments,
                                 Position at, DefaultSource& defaults) {
    std::vector<code::Argument> filled;
    for (std::size_t i = 0; i < signature.parameters.size(); ++i) {
        const auto& parameter = signature.parameters[i];
        auto argument = i < arguments.size() ? std::move(arguments[i])
                                             : defaults.CheckDefault(*parameter.defaultValue, at);
        if (!parameter.byRef) {
            argument = ConvertTo(std::move(argument), parameter.type);
        }
        filled.push_back({std::move(argument.code), parameter.type.kind, parameter.byRef});
    }
    return filled;
}

}  // namespace standin::language
