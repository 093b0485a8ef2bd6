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

bool AnswersObject(Shape shape) {
    return shape == Shape::OneNumber || shape == Shape::TwoNumbers || shape == Shape::RoundedPair ||
           shape == Shape::NumberAndInt || shape == Shape::Constant;
}

}  // namespace

int main() {
    const char* separator = "{\n";
    for (const bench::Operation& operation : bench::Operations) {
        std::cout << separator << "  \"" << operation.name << R"(": {"group": ")"
                  << NameOf(operation.group) << R"(", "answer": ")"
                  << (AnswersObject(operation.shape) ? "object" : "value") << "\"}";
        separator = ",\n";
    }
    std::cout << "\n}\n";
}
