// What the tests of the stand-in host share: its functions as a plug-in gets them, and readings of
// its reports.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "standin/runtime/host.hpp"

namespace standin_tests {

namespace functions = host_interface::functions;

/// A host function by name, as the resolver hands it to a plug-in.
template <typename Function>
Function* HostFunction(const char* name) {
    auto* function = reinterpret_cast<Function*>(standin::Host::Resolve(name));
    const bool offered = function != nullptr;
    REQUIRE_MESSAGE(offered, name);
    return function;
}

/// The violations so far, which are forgotten.
inline std::vector<std::string> TakeViolations(standin::Host& host) {
    std::vector<std::string> violations = host.Violations();
    host.ResetLedger();
    return violations;
}

/// The one line of a report; a report of another length fails the test.
inline std::string Only(const std::vector<std::string>& lines) {
    REQUIRE(lines.size() == 1);
    return lines.front();
}

inline bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

}  // namespace standin_tests
