// Prints what the rows of the member tables hold for the help, as JSON: the titles of the
// sections, and an object for each member of BigNumberVQZ, in the order of the tables.
#include <array>
#include <cstddef>
#include <iostream>
#include <string>
#include <string_view>
#include <tuple>

#include "host/exceptions.hpp"
#include "number/ops/failure_report.hpp"
#include "number/value/number_value.hpp"
#include "plugin/member_descriptions.hpp"

namespace vqz {
namespace {

/// The titles of the sections, in the order of `Section`, which is the order of the page.
constexpr auto SectionTitles = std::to_array<std::string_view>({
    "Making numbers",
    "Values of the language",
    "Text",
    "Tests",
    "Operators",
    "Arithmetic",
    "Rounding",
    "Bits",
    "Powers, roots and logarithms",
    "Trigonometric functions",
    "Hyperbolic functions",
    "Angles",
    "Constants and random numbers",
    "Inside a number",
});
static_assert(SectionTitles.size() == static_cast<std::size_t>(Section::Inside) + 1);

/// The message of a failure with A and B in the places of the numbers; empty when the routine has
/// none of its own.
std::string FailureMessage(const NamedRoutine& routine) {
    const std::string name = routine.failureName == nullptr ? "" : routine.failureName;
    switch (routine.failure) {
        case Failure::None:
        case Failure::Other:
            return "";
        case Failure::Name:
            return name + OperationFailed;
        case Failure::OneNumber:
            return name + FailedWithNumber + "A.";
        case Failure::TwoNumbers:
            return name + FailedWithNumbers + "A and B.";
    }
    return "";
}

/// Writes JSON, value by value.
class JsonWriter {
public:
    explicit JsonWriter(std::ostream& stream) : stream_(stream) {}

    void Open(char bracket) {
        Separate();
        stream_ << bracket;
        isFirst_ = true;
    }

    void Close(char bracket) {
        stream_ << bracket;
        isFirst_ = false;
    }

    void Name(std::string_view name) {
        Separate();
        Quote(name);
        stream_ << ": ";
        isFirst_ = true;
    }

    void Text(std::string_view text) {
        Separate();
        Quote(text);
    }

    void Text(std::string_view name, std::string_view text) {
        Name(name);
        Text(text);
    }

    void Flag(std::string_view name, bool value) {
        Name(name);
        Separate();
        stream_ << (value ? "true" : "false");
    }

private:
    /// A comma and a new line before every value but the first of an object or array, and none
    /// between a name and its value.
    void Separate() {
        if (!isFirst_) {
            stream_ << ",\n";
        }
        isFirst_ = false;
    }

    /// The rows hold printable ASCII and line ends.
    void Quote(std::string_view text) {
        stream_ << '"';
        for (const char character : text) {
            switch (character) {
                case '"':
                case '\\':
                    stream_ << '\\' << character;
                    break;
                case '\n':
                    stream_ << "\\n";
                    break;
                default:
                    stream_ << character;
            }
        }
        stream_ << '"';
    }

    std::ostream& stream_;
    bool isFirst_ = true;
};

void Describe(JsonWriter& json, std::string_view name, const NamedRoutine& routine) {
    if (routine.function == nullptr) {
        return;
    }
    json.Name(name);
    json.Open('{');
    json.Text("logName", routine.logName == nullptr ? "" : routine.logName);
    json.Flag("canFail", routine.failure != Failure::None);
    json.Text("message", FailureMessage(routine));
    json.Close('}');
}

void Describe(JsonWriter& json, const MemberHelp<HelpTexts::Kept>& help) {
    json.Text("section", SectionTitles.at(static_cast<std::size_t>(help.section)));
    json.Text("summary", help.summary.text);
    json.Text("details", help.details.text);
    json.Text("units", help.units.text);
    json.Text("range", help.range.text);
    json.Text("fails", help.fails.text);
    json.Text("example", help.example.text);
    json.Text("failing", help.failing.text);
}

void Describe(JsonWriter& json, const PropertyDescription<HelpTexts::Kept>& row) {
    json.Text("declaration", std::string(row.name) + " as " + row.type);
    json.Flag("isProperty", true);
    json.Flag("isHidden", row.hidden);
    Describe(json, "routine", row.getter);
    Describe(json, "setter", row.setter);
    Describe(json, row.help);
}

void Describe(JsonWriter& json, const MethodDescription<HelpTexts::Kept>& row) {
    json.Text("declaration", row.declaration);
    json.Flag("isProperty", false);
    json.Flag("isHidden", row.hidden);
    Describe(json, "routine", row.function);
    Describe(json, "setter", row.setter);
    Describe(json, row.help);
}

template <typename Rows>
void DescribeRows(JsonWriter& json, const Rows& rows, bool areShared) {
    for (const auto& row : rows) {
        json.Open('{');
        json.Flag("isShared", areShared);
        Describe(json, row);
        json.Close('}');
    }
}

template <typename... Parts>
void DescribeParts(JsonWriter& json, const std::tuple<Parts...>& parts, bool areShared) {
    std::apply([&](const auto&... rows) { (DescribeRows(json, rows, areShared), ...); }, parts);
}

void DescribeAll() {
    constexpr auto Kept = HelpTexts::Kept;
    JsonWriter json(std::cout);
    json.Open('{');
    json.Name("sections");
    json.Open('[');
    for (const auto title : SectionTitles) {
        json.Text(title);
    }
    json.Close(']');
    json.Name("members");
    json.Open('[');
    DescribeRows(json, NumberProperties<BigNumberValue, Kept>(), false);
    DescribeRows(json, NumberSharedProperties<Kept>(), true);
    DescribeParts(json, NumberMethods<BigNumberValue, Kept>(), false);
    DescribeParts(json, NumberSharedMethods<BigNumberValue, Kept>(), true);
    json.Close(']');
    json.Close('}');
    std::cout << '\n';
}

}  // namespace
}  // namespace vqz

int main() {
    vqz::DescribeAll();
    return std::cout.flush() ? 0 : 1;
}
