// Every member of a number class as something that can be called, whatever it is: what it takes
// and gives is read from its declaration.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
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

/// What a call returned.
struct Answer {
    /// Whether it is something that is not null, 0 or false.
    bool given = false;
    /// The result as text, equal for equal results: a number and a memory block by their bytes, a
    /// text by encoding and bytes; then what "byref" arguments were left as.
    std::string shown;
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
    /// Whether it returns a number of its own class.
    bool givesNumber() const { return resultType_ == "number"; }
    /// The type of its result, "number" for its own class; empty when it returns nothing.
    const std::string& resultType() const { return resultType_; }
    /// Whether it has an argument of that type; "self" is one, too.
    bool Takes(std::string_view type) const;

    /// Calls the routine and drops the reference that it returns.
    Answer CallForAnswer(const Samples& samples) const;
    /// The same. True when it returned something that is not null, 0 or false.
    bool Call(const Samples& samples) const { return CallForAnswer(samples).given; }

private:
    friend std::vector<Member> MembersOf(const NumberClass& number);

    standin::CallArguments Arguments(const Samples& samples, String& afterText,
                                     std::uint8_t& valueRead) const;
    Answer Take(const standin::ReturnValue& result) const;

    NumberClass class_;
    std::string name_;
    Routine routine_ = nullptr;
    bool hasSelf_ = false;
    bool writesSelf_ = false;
    std::vector<std::string> argumentTypes_;
    std::string resultType_;

    explicit Member(NumberClass number) : class_(std::move(number)) {}
};

/// All getters, setters, methods and shared methods of a class that have a routine. The switch of
/// the debug log is left out.
std::vector<Member> MembersOf(const NumberClass& number);

}  // namespace tests
