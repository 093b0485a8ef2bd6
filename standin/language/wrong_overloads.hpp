// The routine that a host calls which is wrong about one of the facts of wrong_facts.hpp.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "standin/language/overloads.hpp"

namespace standin::language {

/// The index of the candidate that this host calls in place of the one that fits best, `best`,
/// which is what it calls unless it is wrong about that. Throws ProgramError where it cannot
/// decide.
std::size_t CalledOverload(const std::string& name, const Candidates& candidates, std::size_t best,
                           const std::vector<Checked>& arguments, Position at);

/// Throws ProgramError when the host takes a name for two members of the class and cannot decide:
/// for a method of instances and a shared one, or for a property and a method.
void RequireUnambiguous(const ClassModel& model, const std::string& name, Position at);

}  // namespace standin::language
