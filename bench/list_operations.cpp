// Prints the rows of the benchmark as JSON, for the driver: each operation with its group and with
// what the host gets from a call of it.
#include <iostream>

#include "bench/operations.hpp"

namespace {

using bench::Group;
using bench::Shape;

const char* NameOf(Group group) {
    switch (group) {
        case Group::Basic:
            return "basic";
        case Group::Function:
            return "function";
        case Group::Text:
            return "text";
        case Group::Call:
            return "call";
    }
    return "";
}

/// What the host has to do for an operation.
const char* HostPart(Shape shape) {
    switch (shape) {
        case Shape::OneNumber:
        case Shape::TwoNumbers:
        case Shape::RoundedPair:
        case Shape::NumberAndInt:
        case Shape::Constant:
            return "object";
        case Shape::TextOut:
            return "new text";
        case Shape::TextIn:
            return "known text";
        default:
            return "nothing";
    }
}

}  // namespace

int main() {
    const char* separator = "{\n";
    for (const bench::Operation& operation : bench::Operations) {
        std::cout << separator << "  \"" << operation.name << R"(": {"group": ")"
                  << NameOf(operation.group) << R"(", "host": ")" << HostPart(operation.shape)
                  << "\"}";
        separator = ",\n";
    }
    std::cout << "\n}\n";
}
