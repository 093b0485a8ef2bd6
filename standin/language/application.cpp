#include "standin/language/application.hpp"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "standin/language/names.hpp"
#include "standin/language/parser.hpp"
#include "standin/language/suggestions.hpp"

namespace standin::language {
namespace {

struct Event {
    std::string_view name;
    std::string_view declaration;
};

constexpr Event Events[] = {
    {RunEvent, "Run(args() As String) As Integer"},
    {UnhandledEvent, "UnhandledException(error As RuntimeException) As Boolean"},
};

const Event* FindDeclared(std::string_view name) {
    const auto* found = std::ranges::find_if(
        Events, [name](const Event& event) { return SameName(event.name, name); });
    return found == std::end(Events) ? nullptr : found;
}

bool AreSameType(const syntax::TypeName& left, const syntax::TypeName& right) {
    return SameName(left.name, right.name) && left.dimensions == right.dimensions;
}

/// Whether two heads take and return the same; the names of the parameters are free.
bool AreAlike(const syntax::Signature& left, const syntax::Signature& right) {
    return left.result && right.result && AreSameType(*left.result, *right.result) &&
           std::ranges::equal(left.parameters, right.parameters,
                              [](const syntax::Parameter& a, const syntax::Parameter& b) {
                                  return AreSameType(a.type, b.type) && a.byRef == b.byRef;
                              });
}

/// Where files have no tags, a routine is an event by its name.
bool IsEvent(const syntax::Routine& routine) {
    return routine.tag == syntax::RoutineTag::Event ||
           (routine.tag == syntax::RoutineTag::None &&
            FindDeclared(routine.signature.name) != nullptr);
}

void RequireEvent(const syntax::Signature& signature) {
    const auto* event = FindDeclared(signature.name);
    if (event == nullptr) {
        std::vector<std::string_view> names;
        std::string list;
        for (const auto& other : Events) {
            names.push_back(other.name);
            list += (list.empty() ? "" : " and ") + std::string(other.name);
        }
        const auto suggestion = SuggestionFor(signature.name, names);
        throw ProgramError(signature.at,
                           "a " + std::string(ApplicationBase) + " has no event " +
                               Quoted(signature.name) +
                               (suggestion.empty() ? "; it has " + list : suggestion));
    }
    if (!AreAlike(signature, ParseDeclaration(event->declaration))) {
        throw ProgramError(signature.at, "the host declares this event as Function " +
                                             std::string(event->declaration));
    }
}

}  // namespace

void CheckEvents(syntax::Unit& unit, ErrorList& errors) {
    for (auto& routine : unit.routines) {
        const bool isRight = errors.Try([&] {
            if (unit.isApplication && IsEvent(routine)) {
                RequireEvent(routine.signature);
            } else if (routine.tag == syntax::RoutineTag::Event && !unit.isIncomplete) {
                throw ProgramError(routine.signature.at,
                                   Quoted(unit.name) + " has no events: it does not inherit from " +
                                       std::string(ApplicationBase));
            }
        });
        if (!isRight) {
            routine.body.clear();
        }
    }
}

const syntax::Routine* FindEvent(const syntax::Unit& unit, std::string_view name) {
    const auto found = std::ranges::find_if(unit.routines, [name](const auto& routine) {
        return IsEvent(routine) && SameName(routine.signature.name, name);
    });
    return found == unit.routines.end() ? nullptr : &*found;
}

}  // namespace standin::language
