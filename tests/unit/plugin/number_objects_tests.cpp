// The values behind number objects: where they live, and what happens when there is no memory.
#include <cstring>
#include <new>
#include <string>

#include <doctest/doctest.h>

#include "host/exceptions.hpp"
#include "number/value/number_object.hpp"
#include "tests/unit/plugin/direct_host.hpp"
#include "tests/unit/plugin/failing_memory.hpp"

namespace {

using standin::Allocation;
using tests::DirectHost;
using tests::HeldObject;
using tests::TakeRaised;

constexpr int NegativeFlag = 128;
constexpr int NanFlag = 64;
constexpr int ZeroFlag = 32;

template <typename Value>
std::string TextOf(host_interface::Object object) {
    return vqz::ReadNumber<Value>(object).ToString();
}

}  // namespace

TEST_CASE("The two precisions have the exponents and mantissas that programs count on") {
    CHECK(sizeof(vqz::BigNumberValue().exponent) == 8);
    CHECK(sizeof(vqz::BigNumberValue().mantissa) == 32);
    CHECK(sizeof(vqz::BiggerNumberValue().exponent) == 64);
    CHECK(sizeof(vqz::BiggerNumberValue().mantissa) == 256);
    CHECK(std::string(vqz::BigNumberValue::LibTypeStr()) == "no_asm_32");
}

TEST_CASE_TEMPLATE("The nil value is a zero with the NaN flag and nothing else", Value,
                   vqz::BigNumberValue, vqz::BiggerNumberValue) {
    const Value& nil = vqz::NilNumberValue<Value>;
    CHECK(static_cast<int>(nil.info) == NanFlag + ZeroFlag);
    CHECK(nil.exponent.IsZero());
    CHECK(nil.mantissa.IsZero());
    CHECK(static_cast<int>(vqz::ZeroValue<Value>().info) == ZeroFlag);
    CHECK(vqz::ZeroValue<Value>().mantissa.IsZero());
    CHECK(vqz::ZeroValue<Value>().exponent.IsZero());
    CHECK((static_cast<int>(Value("-1").info) & NegativeFlag) != 0);
}

TEST_CASE_TEMPLATE("What is missing reads as the nil value", Value, vqz::BigNumberValue,
                   vqz::BiggerNumberValue) {
    DirectHost host;
    host.RegisterClasses();
    const HeldObject unconstructed(
        host.MakeObject(*host.FindClass(vqz::NumberClass<Value>::Name.text)));
    for (const host_interface::Object object : {host_interface::Object{}, unconstructed.Get()}) {
        CHECK(vqz::FindNumber<Value>(object) == nullptr);
        CHECK(&vqz::ReadNumber<Value>(object) == &vqz::NilNumberValue<Value>);
    }
}

TEST_CASE_TEMPLATE("A stored value is a copy of its own, in the place that the host chose", Value,
                   vqz::BigNumberValue, vqz::BiggerNumberValue) {
    DirectHost host;
    host.RegisterClasses();
    Value value = "12.5";
    const HeldObject object(vqz::NewNumberObject(value));
    REQUIRE(object);
    CHECK(host.ClassOf(object.Get()).name == vqz::NumberClass<Value>::Name.View());
    CHECK(host.References(object.Get()) == 1);
    const Value* stored = nullptr;
    std::memcpy(&stored, host.InstanceData(object.Get()), sizeof stored);
    CHECK(stored == vqz::FindNumber<Value>(object.Get()));
    CHECK(stored != &value);
    value = 7;
    CHECK(TextOf<Value>(object.Get()) == "12.5");

    vqz::StoreNumberValue(object.Get(), *stored);
    CHECK(TextOf<Value>(object.Get()) == "12.5");

    vqz::DropNumberValue<Value>(object.Get());
    CHECK(vqz::FindNumber<Value>(object.Get()) == nullptr);
    vqz::DropNumberValue<Value>(object.Get());
    CHECK(vqz::FindNumber<Value>(object.Get()) == nullptr);
}

TEST_CASE_TEMPLATE("A host that makes no object gives null and raises nothing", Value,
                   vqz::BigNumberValue, vqz::BiggerNumberValue) {
    DirectHost host;
    host.RegisterClasses();
    host.FailAllocation(Allocation::Object, 1, false);
    CHECK(vqz::NewNumberObject<Value>("5") == nullptr);
    CHECK(TakeRaised(host) == "");
}

TEST_CASE("Without memory for a value the object keeps the one it has") {
    // Nothing else in the process has the size of a value of the larger class.
    using Value = vqz::BiggerNumberValue;
    DirectHost host;
    host.RegisterClasses();
    const HeldObject object(vqz::NewNumberObject<Value>("5"));
    const auto* before = vqz::FindNumber<Value>(object.Get());
    {
        const tests::FailingNew failing(sizeof(Value));
        vqz::MethodBoundaryGuard(
            [&] { vqz::StoreNumberValue(object.Get(), vqz::ZeroValue<Value>()); });
    }
    CHECK(TakeRaised(host) == std::string("OutOfMemoryException: Failed to allocate memory: ") +
                                  std::bad_alloc().what());
    CHECK(vqz::FindNumber<Value>(object.Get()) == before);
    CHECK(TextOf<Value>(object.Get()) == "5");
}

TEST_CASE("Without memory for a value a new object is given back to the host") {
    using Value = vqz::BiggerNumberValue;
    DirectHost host;
    host.RegisterClasses();
    const std::uint64_t aliveBefore = host.Counts().objectsAlive;
    {
        const tests::FailingNew failing(sizeof(Value));
        CHECK(vqz::MethodBoundaryGuard(
                  [] { return vqz::NewNumberObject(vqz::ZeroValue<Value>()); }) == nullptr);
    }
    CHECK(TakeRaised(host).substr(0, 21) == "OutOfMemoryException:");
    CHECK(host.Counts().objectsAlive == aliveBefore);
}
