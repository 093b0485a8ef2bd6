// Every member of the number classes: its declaration as the host parses it, what the help tells of
// it, and the routine behind it with its debug-log name, the name of its failure report and the
// call of ttmath. One description serves both classes; '$' stands for the class's name.
//
// The rows stand in plugin/members/. Their order is the order of the tables that the host gets.
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
