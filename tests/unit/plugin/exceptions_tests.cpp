// Host exceptions: how they are made, and what native ones become.
#include <cstdint>
#include <exception>
#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <typeinfo>

#include <doctest/doctest.h>

#include "host/exceptions.hpp"
#include "number/ops/failure_report.hpp"
#include "number/value/number_object.hpp"
#include "plugin/bindings/host_functions.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "tests/unit/plugin/direct_host.hpp"
#include "tests/unit/plugin/failing_memory.hpp"

namespace {

using host_interface::HostTextEncoding;
using standin::Allocation;
using tests::Described;
using tests::DirectHost;
using tests::HeldObject;
using tests::HeldString;
using tests::LogLines;
using tests::TakeRaised;

/// A native exception of a given base whose text is anything, null included.
template <typename Base>
class Saying : public Base {
public:
    explicit Saying(const char* text) : Base(MakeBase()), text_(text) {}
    const char* what() const noexcept override { return text_; }

private:
    static Base MakeBase() {
        if constexpr (std::is_default_constructible_v<Base>) {
            return Base();
        } else {
            return Base("hidden");
        }
    }

    const char* text_;
};

/// The exception that the host gets for a native one.
template <typename Native>
std::string HandledAs(DirectHost& host, const Native& native) {
    vqz::HandleStdException(native);
    return TakeRaised(host);
}

/// "Message" of the raised exception as the host stores it.
std::string RaisedMessage(DirectHost& host) {
    const HeldObject exception(host.TakeException());
    host_interface::String message = nullptr;
    REQUIRE(vqz::host::REALGetPropValueString(exception.Get(), "Message", &message));
    return Described(HeldString(message).Get());
}

}  // namespace

TEST_CASE("A native exception becomes the host exception of its type") {
    DirectHost host;
    CHECK(HandledAs(host, Saying<std::bad_alloc>("no memory")) ==
          "OutOfMemoryException: Failed to allocate memory: no memory");
    CHECK(HandledAs(host, std::range_error("why")) ==
          "OutOfBoundsException: C++ reports range error: why");
    CHECK(HandledAs(host, std::out_of_range("why")) ==
          "OutOfBoundsException: C++ reports range error: why");
    CHECK(HandledAs(host, std::overflow_error("why")) ==
          "OutOfBoundsException: C++ reports overflow error: why");
    CHECK(HandledAs(host, std::underflow_error("why")) ==
          "OutOfBoundsException: C++ reports underflow error: why");
    CHECK(HandledAs(host, Saying<std::bad_cast>("why")) == "RuntimeException: C++ Exception: why");
    CHECK(HandledAs(host, std::logic_error("why")) == "RuntimeException: C++ Exception: why");
    CHECK(HandledAs(host, std::length_error("why")) == "RuntimeException: C++ Exception: why");
    CHECK(HandledAs(host, std::runtime_error("why")) == "RuntimeException: C++ Exception: why");
    CHECK(HandledAs(host, Saying<std::exception>("why")) == "RuntimeException: C++ Exception: why");
    CHECK(HandledAs(host, Saying<std::bad_array_new_length>("why")) ==
          "OutOfMemoryException: Failed to allocate memory: why");
}

TEST_CASE("The text of the language runtime is passed on unchanged") {
    DirectHost host;
    const std::bad_alloc noMemory;
    const std::bad_cast noCast;
    CHECK(HandledAs(host, noMemory) ==
          std::string("OutOfMemoryException: Failed to allocate memory: ") + noMemory.what());
    CHECK(HandledAs(host, noCast) ==
          std::string("RuntimeException: C++ Exception: ") + noCast.what());
}

TEST_CASE("A native exception without text ends its message with a full stop") {
    DirectHost host;
    for (const char* text : {"", static_cast<const char*>(nullptr)}) {
        CHECK(HandledAs(host, Saying<std::bad_alloc>(text)) ==
              "OutOfMemoryException: Failed to allocate memory.");
        CHECK(HandledAs(host, Saying<std::range_error>(text)) ==
              "OutOfBoundsException: C++ reports range error.");
        CHECK(HandledAs(host, Saying<std::out_of_range>(text)) ==
              "OutOfBoundsException: C++ reports range error.");
        CHECK(HandledAs(host, Saying<std::overflow_error>(text)) ==
              "OutOfBoundsException: C++ reports overflow error.");
        CHECK(HandledAs(host, Saying<std::underflow_error>(text)) ==
              "OutOfBoundsException: C++ reports underflow error.");
        CHECK(HandledAs(host, Saying<std::bad_cast>(text)) == "RuntimeException: C++ Exception.");
    }
}

TEST_CASE("A native exception's text is not cut, however long it is") {
    DirectHost host;
    for (const std::size_t length : {400U, 470U, 480U, 490U, 500U, 511U, 512U, 600U, 100000U}) {
        CAPTURE(length);
        const std::string text(length, 'x');
        CHECK(HandledAs(host, std::out_of_range(text)) ==
              "OutOfBoundsException: C++ reports range error: " + text);
    }
}

TEST_CASE("Without memory a usual message is complete, and a long one keeps its start") {
    DirectHost host;
    const tests::FailingBuffers failing;
    CHECK(HandledAs(host, Saying<std::bad_alloc>("std::bad_alloc")) ==
          "OutOfMemoryException: Failed to allocate memory: std::bad_alloc");
    const std::string cut = HandledAs(host, std::out_of_range(std::string(5000, 'x')));
    const std::string start =
        "OutOfBoundsException: C++ reports range error: " + std::string(400, 'x');
    CHECK(cut.substr(0, start.size()) == start);
}

TEST_CASE("A native exception of no known type is a RuntimeException with a line in the log") {
    DirectHost host;
    CHECK(host.LogOf([] { vqz::HandleUnknownException(); }) ==
          LogLines({"Unnamed C++ Exception."}));
    CHECK(TakeRaised(host) == "RuntimeException: Sorry, but there was an unnamed C++ Exception.");
    vqz::HandleUnknownException();
    CHECK(host.TakeDebugLog().empty());
    CHECK(TakeRaised(host) != "");
}

TEST_CASE("The guard lets no native exception out and answers the neutral result") {
    DirectHost host;
    SUBCASE("a body that returns") {
        CHECK(vqz::MethodBoundaryGuard([] { return 5; }) == 5);
        CHECK(TakeRaised(host) == "");
    }
    SUBCASE("a body that throws a standard exception") {
        const int result = vqz::MethodBoundaryGuard([]() -> int { throw std::out_of_range("x"); });
        CHECK(result == 0);
        CHECK(TakeRaised(host) == "OutOfBoundsException: C++ reports range error: x");
    }
    SUBCASE("a body that throws anything else") {
        const host_interface::Object result =
            vqz::MethodBoundaryGuard([]() -> host_interface::Object { throw 5; });
        CHECK(result == nullptr);
        CHECK(TakeRaised(host) ==
              "RuntimeException: Sorry, but there was an unnamed C++ Exception.");
    }
    SUBCASE("a body without result keeps what it changed before it threw") {
        int changed = 0;
        vqz::MethodBoundaryGuard([&] {
            changed = 1;
            throw std::bad_alloc();
        });
        CHECK(changed == 1);
        CHECK(host.Raises() == 1);
        TakeRaised(host);
    }
}

TEST_CASE("An exception is raised with its class, its message as UTF-8 and error number 0") {
    DirectHost host;
    vqz::RaiseHostException("NilObjectException", "Not initialized");
    CHECK(RaisedMessage(host) == "UTF-8 4E 6F 74 20 69 6E 69 74 69 61 6C 69 7A 65 64");
    vqz::RaiseHostException("UnsupportedOperationException", "Caf\xC3\xA9");
    CHECK(RaisedMessage(host) == "UTF-8 43 61 66 C3 A9");
    vqz::RaiseHostException("IllegalCastException", "x");
    CHECK(TakeRaised(host) == "IllegalCastException: x");
    CHECK(host.Raises() == 3);
    CHECK(host.Counts().stringsAlive == 0);
    CHECK(host.Counts().objectsAlive == 0);
}

TEST_CASE("An exception without a message has an empty one") {
    DirectHost host;
    for (const char* message : {"", static_cast<const char*>(nullptr)}) {
        vqz::RaiseHostException("RuntimeException", message);
        CHECK(RaisedMessage(host) == "null");
    }
}

TEST_CASE("A class that the host cannot make is replaced by RuntimeException") {
    DirectHost host;
    SUBCASE("because it does not know the class") {
        vqz::RaiseHostException("NoSuchException", "message");
        CHECK(TakeRaised(host) == "RuntimeException: message");
    }
    SUBCASE("because the first object fails") {
        host.FailAllocation(Allocation::Object, 1, false);
        vqz::RaiseHostException("OutOfBoundsException", "message");
        CHECK(TakeRaised(host) == "RuntimeException: message");
    }
    SUBCASE("and when that fails too, nothing is raised") {
        host.FailAllocation(Allocation::Object, 1, true);
        vqz::RaiseHostException("OutOfBoundsException", "message");
        vqz::RaiseOverflowException("Root");
        vqz::RaiseParameterOutOfBounds(1, 2, 3, "p", "m");
        vqz::HandleStdException(std::logic_error("x"));
        vqz::HandleUnknownException();
        host.StopFailing();
        CHECK(host.Raises() == 0);
        CHECK(TakeRaised(host) == "");
    }
}

TEST_CASE("A host string given as message stays the caller's") {
    DirectHost host;
    const HeldString message(host.MakeString("caller's", HostTextEncoding::Latin1));
    vqz::RaiseHostExceptionWithString("OutOfBoundsException", message.Get());
    CHECK(host.References(message.Get()) == 2);
    CHECK(TakeRaised(host) == "OutOfBoundsException: caller's");
    CHECK(host.References(message.Get()) == 1);
    vqz::RaiseHostExceptionWithString("OutOfBoundsException", nullptr);
    CHECK(TakeRaised(host) == "OutOfBoundsException: ");
}

TEST_CASE("A failed operation is reported by its name, with one line in the log") {
    DirectHost host;
    host.RegisterClasses();
    for (const std::string name :
         {"Constructor", "DegToDeg", "DegToRad", "DegToGrad", "Root", "CurrencyValue"}) {
        CHECK(host.LogOf([&] { vqz::RaiseOverflowException(name.c_str()); }) ==
              LogLines({"RaiseOverflowException"}));
        CHECK(TakeRaised(host) == "BigNumberErrorExceptionVQZ: " + name + " operation failed.");
    }
    vqz::RaiseOverflowException("Root");
    CHECK(RaisedMessage(host).substr(0, 17) == "ASCII 52 6F 6F 74");
    CHECK(host.TakeDebugLog().empty());
    vqz::RaiseOverflowException(static_cast<const char*>(nullptr));
    CHECK(TakeRaised(host) == "BigNumberErrorExceptionVQZ:  operation failed.");
}

TEST_CASE_TEMPLATE("A failed operation is reported with two numbers, with one line in the log",
                   Value, vqz::BigNumberValue, vqz::BiggerNumberValue) {
    DirectHost host;
    host.RegisterClasses();
    const Value first = "12.5";
    const Value second = "-3";
    const Value tiny = "0.1";
    const Value huge = "123456789012345678901234567890";
    const auto nan = vqz::NanValue<Value>();
    struct Row {
        const Value* first;
        const Value* second;
        const char* numbers;
    };
    const Row rows[] = {
        {&first, &second, "12.5 and -3"},
        {&first, nullptr, "12.5 and nil"},
        {nullptr, &second, "nil and -3"},
        {nullptr, nullptr, "nil and nil"},
        {&nan, &tiny, "NaN and 0.1"},
        {&huge, &first, "1.2345678901234567890123456789e+29 and 12.5"},
    };
    for (const Row& row : rows) {
        CHECK(host.LogOf([&] { vqz::RaiseOverflowException("Div", row.first, row.second); }) ==
              LogLines({"RaiseOverflowException"}));
        CHECK(TakeRaised(host) ==
              std::string("BigNumberErrorExceptionVQZ: Div operation failed with numbers ") +
                  row.numbers + ".");
    }
    vqz::RaiseOverflowException("A", &second, &second);
    CHECK(RaisedMessage(host).substr(0, 8) == "ASCII 41");
}

TEST_CASE_TEMPLATE("A failed operation is reported with one number, with two lines in the log",
                   Value, vqz::BigNumberValue, vqz::BiggerNumberValue) {
    DirectHost host;
    host.RegisterClasses();
    const std::string lines = LogLines({"RaiseOverflowException", "RaiseOverflowException"});
    const auto report = [](host_interface::Object number) {
        vqz::RaiseOverflowException<Value>("Sqrt", number);
    };
    const std::string head = "BigNumberErrorExceptionVQZ: Sqrt operation failed with number ";

    const HeldObject number(vqz::NewNumberObject<Value>("-4"));
    CHECK(host.LogOf([&] { report(number.Get()); }) == lines);
    CHECK(TakeRaised(host) == head + "-4.");

    CHECK(host.LogOf([&] { report(nullptr); }) == lines);
    CHECK(TakeRaised(host) == head + "nil.");

    const HeldObject unconstructed(host.MakeObject(host.ClassOf(number.Get())));
    CHECK(host.LogOf([&] { report(unconstructed.Get()); }) == lines);
    CHECK(TakeRaised(host) == head + "nil.");
}

TEST_CASE("A failed operation is reported even when the host cannot make the text") {
    const auto overflow = [] { vqz::RaiseOverflowException("Root"); };
    const auto twoNumbers = [] {
        const vqz::BigNumberValue value = "1";
        vqz::RaiseOverflowException("Div", &value, &value);
    };
    for (const std::function<void()>& raise :
         {std::function<void()>(overflow), std::function<void()>(twoNumbers)}) {
        for (int failing = 1; failing <= 12; ++failing) {
            CAPTURE(failing);
            DirectHost host;
            host.RegisterClasses();
            host.FailAllocation(Allocation::String, failing, false);
            raise();
            host.StopFailing();
            const std::string raised = TakeRaised(host);
            CHECK(raised.substr(0, 27) == "BigNumberErrorExceptionVQZ:");
        }
    }
}

TEST_CASE("A value out of bounds is reported with its range") {
    DirectHost host;
    struct Row {
        std::int64_t value;
        std::int64_t minimum;
        std::int64_t end;
        const char* parameter;
        const char* method;
        const char* message;
    };
    const Row rows[] = {
        {8, 256, 257, "MemoryBlock.Size", "DataMantissa",
         "The parameter MemoryBlock.Size to method DataMantissa is too small. Range is 256 to 256, "
         "but value is 8."},
        {300, 256, 257, "MemoryBlock.Size", "DataMantissa",
         "The parameter MemoryBlock.Size to method DataMantissa is too big. Range is 256 to 256, "
         "but value is 300."},
        {257, 256, 257, "p", "m",
         "The parameter p to method m is too big. Range is 256 to 256, but value is 257."},
        {255, 256, 257, "p", "m",
         "The parameter p to method m is too small. Range is 256 to 256, but value is 255."},
        // Only a value below the minimum is small.
        {256, 256, 257, "p", "m",
         "The parameter p to method m is too big. Range is 256 to 256, but value is 256."},
        {5, 0, 5, nullptr, "m",
         "The parameter ? to method m is too big. Range is 0 to 4, but value is 5."},
        {5, 0, 5, nullptr, nullptr,
         "The parameter ?  is too big. Range is 0 to 4, but value is 5."},
        {-1, 0, 5, "p", "", "The parameter p  is too small. Range is 0 to 4, but value is -1."},
        {-1, 0, 5, "", nullptr, "The parameter   is too small. Range is 0 to 4, but value is -1."},
        {INT64_MIN, INT64_MIN + 1, INT64_MAX, "p", "m",
         "The parameter p to method m is too small. Range is -9223372036854775807 to "
         "9223372036854775806, but value is -9223372036854775808."},
        {INT64_MAX, -4294967296, 4294967297, "p", "m",
         "The parameter p to method m is too big. Range is -4294967296 to 4294967296, but value is "
         "9223372036854775807."},
        // Signed, and wider than 32 bits.
        {4294967295, 4294967296, 4294967298, "p", "m",
         "The parameter p to method m is too small. Range is 4294967296 to 4294967297, but value "
         "is 4294967295."},
        {1, 2, 3, "caf\xC3\xA9 %d", "%s",
         "The parameter caf\xC3\xA9 %d to method %s is too small. Range is 2 to 2, but value is "
         "1."},
    };
    const int buffersBefore = tests::LivingBuffers();
    for (const Row& row : rows) {
        vqz::RaiseParameterOutOfBounds(row.value, row.minimum, row.end, row.parameter, row.method);
        CHECK(TakeRaised(host) == std::string("OutOfBoundsException: ") + row.message);
    }
    CHECK(tests::LivingBuffers() == buffersBefore);
}

TEST_CASE("Long names of a value out of bounds are shown whole") {
    DirectHost host;
    const std::string parameter(3000, 'p');
    const std::string method(5000, 'm');
    vqz::RaiseParameterOutOfBounds(INT64_MIN, INT64_MIN + 1, INT64_MIN + 2, parameter.c_str(),
                                   method.c_str());
    CHECK(TakeRaised(host) == "OutOfBoundsException: The parameter " + parameter + " to method " +
                                  method +
                                  " is too small. Range is -9223372036854775807 to "
                                  "-9223372036854775807, but value is -9223372036854775808.");
}

TEST_CASE("Without memory a value out of bounds is reported without its range") {
    DirectHost host;
    const tests::FailingBuffers failing;
    vqz::RaiseParameterOutOfBounds(5, 0, 5, "p", "m");
    CHECK(TakeRaised(host) == "OutOfBoundsException: Out of Bounds");
}
