// Every member that computes gives bit for bit what the bare arithmetic library gives for the same
// operands, fails where that one fails, with the right message, and leaves its operands alone.
#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/unit/operations/bare_calls.hpp"
#include "tests/unit/operations/cases.hpp"
#include "tests/unit/operations/number_building.hpp"
#include "tests/unit/operations/number_class.hpp"

namespace operation_tests {
namespace {

/// How often the log says "RaiseOverflowException" for one failure.
int OverflowLines(Report report) {
    switch (report) {
        case Report::None:
            return 0;
        case Report::NameOnly:
        case Report::WorkingValue:
            return 1;
        case Report::OneNumber:
        case Report::TwoNumbers:
            return 2;
    }
    return 0;
}

/// The mantissa and exponent of a NaN have no meaning.
template <typename AnyNumber>
AnyNumber Comparable(const AnyNumber& number) {
    return number.IsNan() ? AnyNumber{.flags = number.flags} : number;
}

/// Whether the exponent needs more than two words.
template <typename AnyNumber>
bool HasHugeExponent(const AnyNumber& number) {
    const std::uint32_t sign = number.exponent.back() >> 31 == 0 ? 0 : 0xFFFFFFFF;
    return std::ranges::any_of(number.exponent.begin() + 2, number.exponent.end(),
                               [sign](std::uint32_t word) { return word != sign; });
}

/// The texts of numbers, each made once: those of the largest numbers take long.
template <typename AnyNumber>
class Texts {
public:
    const std::string& Of(const Operand<AnyNumber>& number) {
        static const std::string nil = "nil";
        if (!number) {
            return nil;
        }
        std::ostringstream key;
        key << *number;
        const auto [entry, isNew] = texts_.try_emplace(key.str());
        if (isNew) {
            entry->second = TextOf(*number);
        }
        return entry->second;
    }

private:
    std::map<std::string, std::string> texts_;
};

/// The text of the machine word that a product was made with.
std::string FactorText(Extra extra, std::uint32_t word) {
    return extra == Extra::Integer ? std::to_string(static_cast<std::int32_t>(word))
                                   : std::to_string(word);
}

template <typename AnyNumber>
class ExactTest {
public:
    ExactTest() { loaded_.SetDebugging(true); }
    ~ExactTest() {
        loaded_.SetDebugging(false);
        tests::CheckLedger(loaded_.host());
    }

    /// Tries all members of the family that take that many numbers.
    void Run(Family family, std::size_t arity) {
        // Members of one call are tried with the same operands, so that it is made once.
        std::map<typename Operation<AnyNumber>::Call, std::vector<const Operation<AnyNumber>*>>
            members;
        for (const Operation<AnyNumber>& operation : Operations<AnyNumber>()) {
            if (operation.family == family && operation.arity == arity) {
                members[operation.call].push_back(&operation);
            }
        }
        for (const auto& [call, operations] : members) {
            RunMembers(operations);
        }
    }

    /// Tries one member with one set of operands.
    void Run(std::string_view declaration, std::vector<Operand<AnyNumber>> numbers) {
        const auto operations = Operations<AnyNumber>();
        const auto operation =
            std::ranges::find(operations, declaration, &Operation<AnyNumber>::declaration);
        REQUIRE((operation != operations.end()));
        const Tuple tuple{.numbers = std::move(numbers), .extra = 0};
        Compare(*operation, tuple, operation->call(ArgumentsOf(tuple)));
    }

private:
    using Tuple = OperandTuple<AnyNumber>;

    void RunMembers(const std::vector<const Operation<AnyNumber>*>& members) {
        for (const Tuple& tuple : CasesOf(*members.front())) {
            const Outcome<AnyNumber> outcome = members.front()->call(ArgumentsOf(tuple));
            if (outcome.failed && IsSlowToReport(*members.front(), tuple) && IsLeftOut()) {
                continue;
            }
            for (const Operation<AnyNumber>* member : members) {
                Compare(*member, tuple, outcome);
            }
        }
    }

    /// Whether a failure prints a number of huge exponent, which takes 2048 bits many milliseconds.
    static bool IsSlowToReport(const Operation<AnyNumber>& operation, const Tuple& tuple) {
        return AnyNumber::MantissaBits > 256 && operation.report != Report::NameOnly &&
               std::ranges::any_of(tuple.numbers, [](const Operand<AnyNumber>& number) {
                   return number && HasHugeExponent(*number);
               });
    }

    /// Of failures that are slow to report every eighth is enough; at 256 bits none is left out.
    bool IsLeftOut() { return slowReports_++ % 8 != 0; }

    static Arguments<AnyNumber> ArgumentsOf(const Tuple& tuple) {
        Arguments<AnyNumber> arguments{.numbers = {}, .extra = tuple.extra};
        for (const Operand<AnyNumber>& number : tuple.numbers) {
            arguments.numbers.push_back(number.value_or(Nan<AnyNumber>()));
        }
        return arguments;
    }

    void Compare(const Operation<AnyNumber>& operation, const Tuple& tuple,
                 const Outcome<AnyNumber>& outcome) {
        const standin::LedgerCounts before = loaded_.host().Counts();
        const Observation<AnyNumber> expected = Expected(operation, tuple, outcome);
        const Observation<AnyNumber> seen = Observe(operation, tuple);
        CHECK_MESSAGE(seen == expected, Described(operation, tuple, seen, expected));

        const standin::LedgerCounts after = loaded_.host().Counts();
        CHECK_MESSAGE(after.objectsAlive == before.objectsAlive,
                      std::string(operation.declaration));
        CHECK_MESSAGE(after.stringsAlive == before.stringsAlive,
                      std::string(operation.declaration));
    }

    /// What the plug-in is to make of the bare library's outcome.
    Observation<AnyNumber> Expected(const Operation<AnyNumber>& operation, const Tuple& tuple,
                                    const Outcome<AnyNumber>& outcome) {
        Observation<AnyNumber> expected;
        expected.log = tests::LogLines({operation.logName});
        if (outcome.failed) {
            for (int line = 0; line < OverflowLines(operation.report); ++line) {
                expected.log += tests::LogLines({"RaiseOverflowException"});
            }
            expected.raised =
                "BigNumberErrorExceptionVQZ: " + Message(operation, tuple, outcome.number);
        } else if (operation.answer == Answer::Number) {
            expected.result = Comparable(outcome.number);
        } else {
            expected.result = outcome.integer;
        }
        return expected;
    }

    std::string Message(const Operation<AnyNumber>& operation, const Tuple& tuple,
                        const AnyNumber& workingValue) {
        const std::string head = std::string(operation.failureName) + " operation failed";
        switch (operation.report) {
            case Report::None:
                return "(no failure was expected)";
            case Report::NameOnly:
                return head + ".";
            case Report::OneNumber:
                return head + " with number " + texts_.Of(tuple.numbers[0]) + ".";
            case Report::TwoNumbers:
                return head + " with numbers " + texts_.Of(tuple.numbers[0]) + " and " +
                       texts_.Of(tuple.numbers[1]) + ".";
            case Report::WorkingValue:
                break;
        }
        const std::string second = operation.extra == Extra::None
                                       ? texts_.Of(tuple.numbers[1])
                                       : FactorText(operation.extra, tuple.extra);
        return head + " with numbers " + texts_.Of(workingValue) + " and " + second + ".";
    }

    /// Calls the member; the operands must be afterwards what they were before.
    Observation<AnyNumber> Observe(const Operation<AnyNumber>& operation, const Tuple& tuple) {
        standin::Host& host = loaded_.host();
        std::vector<tests::HeldObject> objects;
        std::vector<std::uintptr_t> words;
        for (const Operand<AnyNumber>& number : tuple.numbers) {
            objects.push_back(class_.Make(number));
            words.push_back(class_.Word(objects.back().Get()));
        }
        if (operation.extra != Extra::None) {
            words.push_back(
                operation.extra == Extra::Integer
                    ? static_cast<std::uintptr_t>(static_cast<std::int32_t>(tuple.extra))
                    : tuple.extra);
        }

        Observation<AnyNumber> seen;
        host.TakeDebugLog();
        const std::uintptr_t answer =
            class_.Call(class_.RoutineOf(operation.declaration), words, standin::ReturnKind::Word);
        seen.log = tests::Joined(host.TakeDebugLog());
        seen.raised = tests::TakeRaised(host);
        if (operation.answer == Answer::Integer) {
            seen.result = static_cast<std::intptr_t>(answer);
        } else if (operation.answer == Answer::Boolean) {
            seen.result = static_cast<std::intptr_t>(answer & 0xFF);
        } else if (const auto number = class_.ReadAndRelease(answer)) {
            seen.result = Comparable(*number);
        }

        for (std::size_t index = 0; index < objects.size(); ++index) {
            if (tuple.numbers[index]) {
                CHECK_MESSAGE(class_.Read(objects[index].Get()) == *tuple.numbers[index],
                              std::string(operation.declaration));
            }
        }
        return seen;
    }

    static std::string Described(const Operation<AnyNumber>& operation, const Tuple& tuple,
                                 const Observation<AnyNumber>& seen,
                                 const Observation<AnyNumber>& expected) {
        std::ostringstream text;
        text << operation.declaration << " word " << tuple.extra << '\n';
        for (const Operand<AnyNumber>& number : tuple.numbers) {
            text << "operand  ";
            if (number) {
                text << *number << '\n';
            } else {
                text << "Nil\n";
            }
        }
        text << "seen     " << seen << "\nexpected " << expected;
        return text.str();
    }

    LoadedHost loaded_;
    NumberClass<AnyNumber> class_{loaded_};
    Texts<AnyNumber> texts_;
    int slowReports_ = 0;
};

}  // namespace

TEST_CASE_TEMPLATE("arithmetic on one number is exact", AnyNumber, Number256, Number2048) {
    ExactTest<AnyNumber>().Run(Family::Arithmetic, 1);
}

TEST_CASE_TEMPLATE("arithmetic on two numbers is exact", AnyNumber, Number256, Number2048) {
    ExactTest<AnyNumber>().Run(Family::Arithmetic, 2);
}

TEST_CASE_TEMPLATE("arithmetic on three numbers is exact", AnyNumber, Number256, Number2048) {
    ExactTest<AnyNumber>().Run(Family::Arithmetic, 3);
}

TEST_CASE_TEMPLATE("roots, exponentials and logarithms of one number are exact", AnyNumber,
                   Number256, Number2048) {
    ExactTest<AnyNumber>().Run(Family::Powers, 1);
}

TEST_CASE_TEMPLATE("powers, roots and logarithms of two numbers are exact", AnyNumber, Number256,
                   Number2048) {
    ExactTest<AnyNumber>().Run(Family::Powers, 2);
}

TEST_CASE_TEMPLATE("trigonometric functions are exact", AnyNumber, Number256, Number2048) {
    ExactTest<AnyNumber>().Run(Family::Trigonometric, 1);
}

TEST_CASE_TEMPLATE("inverse trigonometric functions are exact", AnyNumber, Number256, Number2048) {
    ExactTest<AnyNumber>().Run(Family::InverseTrigonometric, 1);
}

TEST_CASE_TEMPLATE("hyperbolic functions are exact", AnyNumber, Number256, Number2048) {
    ExactTest<AnyNumber>().Run(Family::Hyperbolic, 1);
}

TEST_CASE_TEMPLATE("inverse hyperbolic functions are exact", AnyNumber, Number256, Number2048) {
    ExactTest<AnyNumber>().Run(Family::InverseHyperbolic, 1);
}

TEST_CASE_TEMPLATE("long calls come to an end and are exact", AnyNumber, Number256, Number2048) {
    constexpr int bits = AnyNumber::MantissaBits;
    constexpr auto power = "Pow(other as $) as $";
    constexpr auto root = "Root(value as $, index as $) as $";
    // The largest odd integer, and a fraction with all its bits.
    const auto integer = OneUnitInward(Scaled<AnyNumber>(1, bits));
    AnyNumber third;
    third.mantissa.fill(0xAAAAAAAA);
    SetExponent(third, -(bits + 1));
    ExactTest<AnyNumber> test;
    test.Run(power, {OneUnitOutward(Whole<AnyNumber>(1)), integer});
    test.Run(power, {Whole<AnyNumber>(-1), integer});
    test.Run(power, {third, integer});
    test.Run(power, {Largest<AnyNumber>(), third});
    test.Run(root, {integer, integer});
    test.Run(root, {integer, Whole<AnyNumber>(3)});
    test.Run(root, {Largest<AnyNumber>(), Whole<AnyNumber>(3)});
    test.Run("Sin(value as $) as $", {integer});
    test.Run("Tan(value as $) as $", {OneUnitOutward(Scaled<AnyNumber>(1, bits - 1))});
    test.Run("ACos(value as $) as $", {OneUnitOutward(Scaled<AnyNumber>(1, -1))});

    // Leading zero bits, as Rand leaves them, are what logarithms take longest over.
    AnyNumber unnormalised = third;
    unnormalised.mantissa.back() = 0;
    AnyNumber other = unnormalised;
    other.mantissa[0] = 1;
    test.Run("Log(value as $, base as $) as $", {unnormalised, other});
    test.Run(power, {unnormalised, third});
}

}  // namespace operation_tests
