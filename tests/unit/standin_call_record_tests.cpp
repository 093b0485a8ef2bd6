// The record of a plug-in's calls.
#include <string>

#include <doctest/doctest.h>

#include "standin/runtime/call_record.hpp"

TEST_CASE("Numbers in a message have a common sign in the record of calls") {
    struct Row {
        std::string message;
        std::string shape;
    };
    const Row rows[] = {
        {"", ""},
        {"no number", "no number"},
        {"7", "#"},
        {"-7 and 8.", "# and #."},
        {"numbers 1.25e+300 and -0.5e-7.", "numbers # and #."},
        {"Range is 32 to 32, but value is 7.", "Range is # to #, but value is #."},
        {"Int64Value, Ln10", "Int64Value, Ln10"},
        {"a-1", "a-#"},
        {"5-", "#-"},
        {"- 5", "- #"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.message);
        CHECK(standin::WithoutNumbers(row.message) == row.shape);
    }
}
