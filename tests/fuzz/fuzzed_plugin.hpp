// The plug-in in the host that fuzzed inputs drive it in, with no library between them.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "standin/runtime/host.hpp"
#include "tests/fuzz/input.hpp"
#include "tests/unit/tables/loaded_plugin.hpp"
#include "tests/unit/tables/members.hpp"

namespace fuzz {

/// A number class and those of its members that a target calls.
struct FuzzedClass {
    tests::NumberClass number;
    std::vector<tests::Member> members;
};

/// The host of this process with the plug-in's classes. A failed check ends the process.
class FuzzedPlugin {
public:
    /// The only one, made by the first call. Its host's strings have no NUL behind their text, and
    /// what was released is freed at once, which an address sanitizer watches better.
    static FuzzedPlugin& Get();

    standin::Host& host() { return host_; }
    std::array<tests::NumberClass, 2>& classes() { return classes_; }
    /// The classes with the members that compute long, or with all others.
    std::array<FuzzedClass, 2> ClassesWith(bool slowMembers);

    /// Which class the input is about: rarely the larger precision, which takes a hundred times as
    /// long.
    static std::size_t TakeClass(Input& input);
    /// Takes what the input says of the host's age and of the debug log.
    void SetUp(Input& input);
    /// Requires that at most an exception of a stated class was raised, and that the input left
    /// nothing behind.
    void FinishInput();

private:
    FuzzedPlugin();

    standin::Host host_;
    std::array<tests::NumberClass, 2> classes_;
};

}  // namespace fuzz
