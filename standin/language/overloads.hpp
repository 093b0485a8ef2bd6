// Which of several routines of one name a call means.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "standin/language/class_model.hpp"
#include "standin/language/conversions.hpp"
#include "standin/language/plugin_call.hpp"

namespace standin::language {

/// Routines of one name, as they were declared.
using Candidates = std::vector<const Signature*>;

/// The heads of methods, in their order.
Candidates SignaturesOf(const std::vector<const Method*>& methods);

/// What a search among candidates found.
struct Overload {
    enum class Outcome : std::uint8_t { One, NoneFits, Tie };
    Outcome outcome = Outcome::NoneFits;
    /// The one that fits best; with a tie, those that fit equally well.
    std::vector<std::size_t> best;
};

/// Compares how the arguments fit each candidate. One wins when no other fits better in any
/// argument, and it fits better than each other in at least one.
Overload FindOverload(const Candidates& candidates, const std::vector<Checked>& arguments);

/// The index of the candidate that is meant. Throws ProgramError that names the candidates when
/// none fits or several fit equally well; `name` is what the user called, a member of `model` if
/// that is given.
std::size_t RequireOverload(const std::string& name, const Candidates& candidates,
                            const std::vector<Checked>& arguments, Position at,
                            const ClassModel* model = nullptr);

/// Turns the defaults of parameters into checked expressions.
class DefaultSource {
public:
    virtual ~DefaultSource() = default;
    /// The default of a parameter that has one. `at` is the call; the default's own place is in
    /// another text.
    virtual Checked CheckDefault(const Parameter& parameter, Position at) = 0;
};

/// The arguments as the parameters want them, missing ones filled from their defaults.
std::vector<code::Argument> Fill(const Signature& signature, std::vector<Checked> arguments,
                                 Position at, DefaultSource& defaults);

}  // namespace standin::language
