// The functions measured by reference values that another library computed. What is measured is
// also the table of the documentation.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/unit/operations/bare_calls.hpp"
#include "tests/unit/operations/number_building.hpp"
#include "tests/unit/operations/number_class.hpp"
#include "tests/unit/operations/reference_data.hpp"

namespace operation_tests {
namespace {

/// Reads every n-th value only, where measuring takes long.
#if defined(THOROUGH_OPERATION_TESTS)
constexpr std::size_t SlowStep = 1;
#else
constexpr std::size_t SlowStep = 5;
#endif

template <typename AnyNumber>
constexpr std::size_t Step = AnyNumber::MantissaBits > 256 ? SlowStep : 1;

/// Calls the members of one class.
template <typename AnyNumber>
class Members {
public:
    /// What a member returns for these arguments, which the class has to hold; nothing where it
    /// fails.
    Operand<AnyNumber> Call(const std::string& member, const std::vector<BinaryNumber>& arguments) {
        std::vector<tests::HeldObject> objects;
        std::vector<std::uintptr_t> words;
        for (const BinaryNumber& argument : arguments) {
            objects.push_back(class_.Make(ToNumber<AnyNumber>(argument).value()));
            words.push_back(class_.Word(objects.back().Get()));
        }
        if (member.find("as UInt32)") != std::string::npos) {
            words.back() = LowestWord(arguments.back());
        }
        // For the members that round when they are told to.
        words.push_back(1);
        const auto result = class_.ReadAndRelease(
            class_.Call(class_.RoutineOf(member), words, standin::ReturnKind::Word));
        return tests::TakeRaised(loaded_.host()).empty() ? result : std::nullopt;
    }

    /// How far a member is off at one value, or nothing where the class's range ends.
    std::optional<double> UnitsOffAt(const std::string& member, const ReferenceValue& value) {
        if (!IsInRange<AnyNumber>(value.result) ||
            !std::ranges::all_of(value.arguments, IsInRange<AnyNumber>)) {
            return std::nullopt;
        }
        const auto result = Call(member, value.arguments);
        return result ? UnitsOff(*result, value.result) : std::numeric_limits<double>::infinity();
    }

    ~Members() { tests::CheckLedger(loaded_.host()); }

private:
    LoadedHost loaded_;
    NumberClass<AnyNumber> class_{loaded_};
};

/// What was measured in one part of a function's domain.
struct MeasuredRegion {
    std::string function;
    std::string region;
    /// How many arguments were measured, those of measure.py included.
    std::size_t values = 0;
    std::optional<double> bound;
    /// The largest error, or nothing when all of the region is out of the class's range.
    std::optional<double> largest;
    /// Where it was seen.
    std::string worst;
};

template <typename AnyNumber>
MeasuredRegion Measured(Members<AnyNumber>& members, const ReferenceFunction& function,
                        const ReferenceRegion& region) {
    MeasuredRegion measured{.function = function.name,
                            .region = region.name,
                            .values = region.values.size() + region.drawn,
                            .bound = region.bound,
                            .largest = {},
                            .worst = {}};
    const auto measure = [&](const ReferenceValue& value) {
        const auto units = members.UnitsOffAt(function.member, value);
        // An empty optional compares less than any error.
        if (measured.largest < units) {
            measured.largest = units;
            measured.worst = value.expression;
        }
    };
    for (std::size_t index = 0; index < region.values.size(); index += Step<AnyNumber>) {
        measure(region.values[index]);
    }
    if (const auto worst = region.worst.find(AnyNumber::MantissaBits);
        worst != region.worst.end()) {
        measure(worst->second);
    }
    return measured;
}

/// All regions of all functions, measured once.
template <typename AnyNumber>
const std::vector<MeasuredRegion>& AllMeasured() {
    static const std::vector<MeasuredRegion> all = [] {
        std::vector<MeasuredRegion> regions;
        Members<AnyNumber> members;
        for (const ReferenceFunction& function : ReadReference(REFERENCE_FOLDER)) {
            for (const ReferenceRegion& region : function.regions) {
                regions.push_back(Measured(members, function, region));
            }
        }
        return regions;
    }();
    return all;
}

/// An error as the documentation shows it: a decimal, or the power of two that it stays below.
std::string Shown(std::optional<double> units) {
    if (!units) {
        return "";
    }
    if (std::isinf(*units)) {
        return "fails";
    }
    if (*units >= 1000) {
        return "2^" + std::to_string(std::ilogb(*units) + 1);
    }
    char text[32] = {};
    std::snprintf(text, sizeof text, "%.2f", *units);
    return text;
}

/// The number that `Shown` wrote, made large enough for what it rounded.
double ReadShown(const std::string& text) {
    if (text == "fails") {
        return std::numeric_limits<double>::infinity();
    }
    return text.starts_with("2^") ? std::ldexp(1.0, std::stoi(text.substr(2)))
                                  : std::stod(text) + 0.005;
}

std::string ShownBound(std::optional<double> bound) {
    std::ostringstream text;
    if (bound) {
        text << *bound;
    }
    return text.str();
}

/// The table, a row for each part of a function's domain.
std::string AccuracyTable() {
    std::ostringstream table;
    table << "| member | arguments | values | 256 bits | 2048 bits | bound |\n"
             "|---|---|---:|---:|---:|---:|\n";
    const auto& large = AllMeasured<Number2048>();
    auto ofLarge = large.begin();
    for (const MeasuredRegion& ofSmall : AllMeasured<Number256>()) {
        table << "| " << ofSmall.function << " | " << ofSmall.region << " | " << ofSmall.values
              << " | " << Shown(ofSmall.largest) << " | " << Shown(ofLarge->largest) << " | "
              << ShownBound(ofSmall.bound) << " |\n";
        ++ofLarge;
    }
    return table.str();
}

/// The figures of the documentation, by the beginnings of the rows: "| MEMBER | ARGUMENTS |".
std::map<std::string, std::array<std::string, 2>> DocumentedFigures() {
    std::map<std::string, std::array<std::string, 2>> figures;
    std::ifstream file(ACCURACY_DOCUMENTATION);
    for (std::string line; std::getline(file, line);) {
        std::vector<std::string> cells;
        std::istringstream row(line);
        for (std::string cell; std::getline(row, cell, '|');) {
            const std::size_t first = cell.find_first_not_of(' ');
            cells.push_back(first == std::string::npos
                                ? ""
                                : cell.substr(first, cell.find_last_not_of(' ') + 1 - first));
        }
        constexpr std::size_t columns = 6;
        if (cells.size() == columns + 1) {
            figures["| " + cells[1] + " | " + cells[2] + " |"] = {cells[4], cells[5]};
        }
    }
    return figures;
}

/// Calls the members that the lines of the input name, and prints what they return.
template <typename AnyNumber>
void AnswerInput() {
    Members<AnyNumber> members;
    for (std::string member, arguments;
         std::getline(std::cin, member, '|') && std::getline(std::cin, arguments);) {
        const auto result = members.Call(member, ReadNumbers(arguments));
        if (result && !result->IsNan()) {
            std::cout << "result " << (result->IsNegative() ? "- " : "+ ")
                      << HexOf(result->exponent) << ' ' << HexOf(result->mantissa) << '\n';
        } else {
            std::cout << "result fails\n";
        }
    }
}

}  // namespace

TEST_CASE_TEMPLATE("functions are as close to the reference as stated", AnyNumber, Number256,
                   Number2048) {
    const auto& regions = AllMeasured<AnyNumber>();
    REQUIRE(!regions.empty());
    const auto documented = DocumentedFigures();
    constexpr std::size_t column = AnyNumber::MantissaBits > 256 ? 1 : 0;
    for (const MeasuredRegion& measured : regions) {
        const std::string row = "| " + measured.function + " | " + measured.region + " |";
        const auto figures = documented.find(row);
        REQUIRE_MESSAGE((figures != documented.end()), row);
        if (measured.largest) {
            CHECK_MESSAGE(*measured.largest <= ReadShown(figures->second[column]), measured.worst);
            CHECK_MESSAGE(*measured.largest <= measured.bound.value_or(*measured.largest),
                          measured.worst);
        }
    }
}

TEST_CASE("every function has reference values over its whole domain") {
    constexpr std::size_t fewest = 30;
    constexpr std::size_t fewestDrawn = 1000;
    std::set<std::string> members;
    for (const ReferenceFunction& function : ReadReference(REFERENCE_FOLDER)) {
        const bool constant = function.regions.front().values.front().arguments.empty();
        std::size_t count = 0;
        for (const ReferenceRegion& region : function.regions) {
            count += region.values.size();
            CHECK_MESSAGE((constant || region.drawn >= fewestDrawn), function.name, region.name);
            CHECK_MESSAGE((constant || region.worst.contains(2048)), function.name, region.name);
        }
        CHECK_MESSAGE(count >= (constant ? 1 : fewest), function.name);
        members.insert(function.member);
    }
    for (const Operation<Number256>& operation : Operations<Number256>()) {
        if (operation.family != Family::Arithmetic && operation.report != Report::None) {
            const bool measured = members.contains(operation.declaration) ||
                                  std::string_view(operation.declaration).starts_with("Operator_");
            CHECK_MESSAGE(measured, std::string(operation.declaration));
        }
    }
}

TEST_CASE("the distance from a reference value is measured in units in the last place") {
    const ReferenceFunction function = ReadReference(REFERENCE_FOLDER).front();
    const BinaryNumber two{.negative = false, .integer = {1}, .exponent = {1}};
    const auto exact = ToNumber<Number256>(two).value();
    CHECK(exact == Whole<Number256>(2));
    CHECK(UnitsOff(exact, two) == 0);
    CHECK(UnitsOff(OneUnitOutward(exact), two) == 1);
    CHECK(UnitsOff(OneUnitInward(exact), two) == 0.5);
    CHECK(UnitsOff(Whole<Number256>(3), two) == std::ldexp(1.0, 254));
    CHECK(UnitsOff(Whole<Number256>(-2), two) == std::ldexp(1.0, 256));
    CHECK(std::isinf(UnitsOff(Nan<Number256>(), two)));
    CHECK(std::isinf(UnitsOff(Whole<Number256>(0), two)));
    CHECK(UnitsOff(Whole<Number256>(0), BinaryNumber{}) == 0);
    CHECK(!function.member.empty());
}

#if defined(THOROUGH_OPERATION_TESTS)
TEST_CASE("the documentation shows what is measured") {
    std::ifstream file(ACCURACY_DOCUMENTATION);
    std::ostringstream text;
    text << file.rdbuf();
    const bool shown = text.str().find(AccuracyTable()) != std::string::npos;
    CHECK_MESSAGE(shown, AccuracyTable());
}
#endif

// Calls members for tests/reference/measure.py. The first line of the input is 256 or 2048. Each of
// the others, "MEMBER|ARGUMENT ...", gives a line "result SIGN EXPONENT MANTISSA" of the words as
// they are, or "result fails".
TEST_CASE("results of arguments from the input" * doctest::skip()) {
    std::string bits;
    std::getline(std::cin, bits);
    if (bits == "256") {
        AnswerInput<Number256>();
    } else {
        AnswerInput<Number2048>();
    }
}

// Prints what docs/accuracy.md shows: --no-skip --test-case="table of accuracy".
TEST_CASE("table of accuracy" * doctest::skip()) {
    std::cout << AccuracyTable();
}

}  // namespace operation_tests
