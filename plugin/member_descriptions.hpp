// All members of the number classes, put together from the files of plugin/members/. A row there
// has a member's declaration as the host parses it, the text of the help, and the routine with its
// debug-log name, the name of its failure report and the call of ttmath. A row serves both classes;
// each '$' in a declaration is replaced by the name of the class.
//
// The order of the rows is the order of the tables that the host gets.
#pragma once

#include <tuple>

#include "plugin/members/constants.hpp"
#include "plugin/members/constructors.hpp"
#include "plugin/members/description.hpp"
#include "plugin/members/functions.hpp"
#include "plugin/members/makers.hpp"
#include "plugin/members/methods.hpp"
#include "plugin/members/operators.hpp"
#include "plugin/members/properties.hpp"

namespace vqz {

/// The methods, in several arrays of rows.
template <typename Value, HelpTexts Texts>
auto NumberMethods() {
    return std::tuple(NumberNamedMethods<Value, Texts>(), NumberConstructors<Value, Texts>(),
                      NumberOperators<Value, Texts>());
}

/// The shared methods, in several arrays of rows.
template <typename Value, HelpTexts Texts>
auto NumberSharedMethods() {
    return std::tuple(NumberMakers<Value, Texts>(), NumberFunctions<Value, Texts>(),
                      NumberConstants<Value, Texts>(), NumberMakerWithUInteger<Value, Texts>());
}

}  // namespace vqz
