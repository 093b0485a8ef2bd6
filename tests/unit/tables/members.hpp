// Every member of a number class as something that can be called, whatever it is: what it takes
// and gives is read from its declaration.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tests/unit/tables/loaded_plugin.hpp"

namespace tests {

/// What the arguments of a call are made from: one value for each kind of type.
struct Samples {
    Object self = nullptr;
    Object number = nullptr;
    String text = nullptr;
    Object variant = nullptr;
    Object memoryBlock = nullptr;
    std::int32_t integer = 2;
    double real = 2.5;
    bool flag = true;
};

/// A routine of a number class with the types of its arguments and its result, in lower case.
class Member {
public:
    /// "class.declaration", and "(set)" for a setter.
    const std::string& name() const { return name_; }
    /// Whether it is called with an object of the class.
    bool hasSelf() const { return hasSelf_; }
    /// Whether it gives its object a value: a constructor or a setter.
    bool writesSelf() const { return writesSelf_; }
    /// Whether it answers a number of its own class.
    bool givesNumber() const { return resultType_ == "number"; }

    /// Calls the routine and drops what it answers. True when it answered something that is not
    /// null, 0 or false.
    bool Call(const Samples& samples) const;

private:
    friend std::vector<Member> MembersOf(const NumberClass& number);

    std::string name_;
    Routine routine_ = nullptr;
    bool hasSelf_ = false;
    bool writesSelf_ = false;
    std::vector<std::string> argumentTypes_;
    std::string resultType_;
};

/// All getters, setters, methods and shared methods of a class that have a routine.
std::vector<Member> MembersOf(const NumberClass& number);

}  // namespace tests
