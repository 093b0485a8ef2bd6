// The functions measured by reference values that another library computed. What is measured is
// also the table of the documentation.
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
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

/// Measures the members of one class.
template <typename AnyNumber>
class Accuracy {
public:
    /// How far a member is off at one value, or nothing where the class's range ends.
    std::optional<double> Measure(const std::string& member, const ReferenceValue& value) {
        if (!IsInRange<AnyNumber>(value.result)) {
            return std::nullopt;
        }
        std::vector<tests::HeldObject> objects;
        std::vector<std::uintptr_t> words;
        for (const BinaryNumber& argument : value.arguments) {
            const auto number = ToNumber<AnyNumber>(argument);
            if (!number) {
                return std::nullopt;
            }
            objects.push_back(class_.Make(number));
            words.push_back(class_.Word(objects.back().Get()));
        }
        // For the members that round when they are told to.
        words.push_back(1);
        const auto result = class_.ReadAndRelease(
            class_.Call(class_.RoutineOf(member), words, standin::ReturnKind::Word));
        if (!tests::TakeRaised(loaded_.host()).empty() || !result) {
            return std::numeric_limits<double>::infinity();
        }
        return UnitsOff(*result, value.result);
    }

    ~Accuracy() { tests::CheckLedger(loaded_.host()); }

private:
    LoadedHost loaded_;
    NumberClass<AnyNumber> class_{loaded_};
};

/// What was measured in one part of a function's domain.
struct MeasuredRegion {
    std::string function;
    std::string region;
    std::size_t values = 0;
    double limit = 0;
    /// The largest error, or nothing when all of the region is out of the class's range.
    std::optional<double> largest;
    /// Where it was seen.
    std::string worst;
};

template <typename AnyNumber>
MeasuredRegion Measured(Accuracy<AnyNumber>& accuracy, const ReferenceFunction& function,
                        const ReferenceRegion& region) {
    MeasuredRegion measured{
        .function = function.name,
        .region = region.name,
        .values = region.values.size(),
        .limit = AnyNumber::MantissaBits > 256 ? region.limit2048 : region.limit256,
        .largest = {},
        .worst = {}};
    for (std::size_t index = 0; index < region.values.size(); index += Step<AnyNumber>) {
        const ReferenceValue& value = region.values[index];
        const auto units = accuracy.Measure(function.member, value);
        // Nothing is less than any error.
        if (measured.largest < units) {
            measured.largest = units;
            measured.worst = value.expression;
        }
    }
    return measured;
}

/// All regions of all functions, measured once.
template <typename AnyNumber>
const std::vector<MeasuredRegion>& AllMeasured() {
    static const std::vector<MeasuredRegion> all = [] {
        std::vector<MeasuredRegion> regions;
        Accuracy<AnyNumber> accuracy;
        for (const ReferenceFunction& function : ReadReference(REFERENCE_FOLDER)) {
            for (const ReferenceRegion& region : function.regions) {
                regions.push_back(Measured(accuracy, function, region));
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

/// The table, a row for each part of a function's domain.
std::string AccuracyTable() {
    std::ostringstream table;
    table << "| member | arguments | values | 256 bits | 2048 bits |\n"
             "|---|---|---:|---:|---:|\n";
    const auto& large = AllMeasured<Number2048>();
    auto ofLarge = large.begin();
    for (const MeasuredRegion& ofSmall : AllMeasured<Number256>()) {
        table << "| " << ofSmall.function << " | " << ofSmall.region << " | " << ofSmall.values
              << " | " << Shown(ofSmall.largest) << " | " << Shown(ofLarge->largest) << " |\n";
        ++ofLarge;
    }
    return table.str();
}

}  // namespace

TEST_CASE_TEMPLATE("functions are as close to the reference as stated", AnyNumber, Number256,
                   Number2048) {
    const auto& regions = AllMeasured<AnyNumber>();
    REQUIRE(!regions.empty());
    for (const MeasuredRegion& measured : regions) {
        CHECK_MESSAGE(measured.largest.value_or(0) <= measured.limit, measured.worst);
    }
}

TEST_CASE("every function has reference values over its whole domain") {
    constexpr std::size_t fewest = 30;
    std::set<std::string> members;
    for (const ReferenceFunction& function : ReadReference(REFERENCE_FOLDER)) {
        std::size_t count = 0;
        for (const ReferenceRegion& region : function.regions) {
            count += region.values.size();
        }
        const bool constant = function.regions.front().values.front().arguments.empty();
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

// Prints what docs/accuracy.md shows: --no-skip --test-case="table of accuracy".
TEST_CASE("table of accuracy" * doctest::skip()) {
    std::cout << AccuracyTable();
}

}  // namespace operation_tests
