// Objects of the stand-in host: instance data, references, destructors, exceptions, properties, and
// the values that travel in objects.
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "standin_support.hpp"

using namespace standin_tests;
using host_interface::ClassDefinition;
using host_interface::Integer;
using host_interface::MethodDefinition;
using host_interface::PropertyDefinition;
using host_interface::Routine;
using host_interface::VariantTypeCode;
using standin::Allocation;
using standin::Host;
using standin::HostOptions;
using standin::HostTextEncoding;
using standin::Object;
using standin::String;

namespace {

constexpr std::uint32_t InterfaceVersion = 13;

bool LowByte(host_interface::BooleanWord word) {
    return (word & 0xFFU) != 0;
}

template <typename Function>
Routine AsRoutine(Function* function) {
    return reinterpret_cast<Routine>(function);
}

/// What the routines of the test classes did, in order.
std::vector<std::string>& Events() {
    static std::vector<std::string> events;
    return events;
}

extern "C" {
void BaseDestructor(Object) {
    Events().emplace_back("destroy base");
}
void DerivedDestructor(Object) {
    Events().emplace_back("destroy derived");
}
void KeepingDestructor(Object self) {
    HostFunction<functions::REALLockObject>("REALLockObject")(self);
}
void EmptyConstructor(Object) {
    Events().emplace_back("construct");
}
Integer GetCount(Object, std::int32_t parameter) {
    return 40 + parameter;
}
void SetCount(Object, std::int32_t parameter, Integer value) {
    Events().push_back("count " + std::to_string(parameter) + " = " + std::to_string(value));
}
double GetRatio(Object, std::int32_t) {
    return 0.25;
}
std::int64_t GetAmount(Object, std::int32_t) {
    return -12'345'678'901'234;
}
}

PropertyDefinition Property(const char* name, const char* type, Routine getter, Routine setter,
                            std::int32_t parameter) {
    PropertyDefinition property{};
    property.name = name;
    property.type = type;
    property.getter = getter;
    property.setter = setter;
    property.parameter = parameter;
    return property;
}

/// Two classes, the second below the first, as a plug-in registers them.
struct TestClasses {
    TestClasses() {
        HostFunction<functions::RegisterPluginVersion>("RegisterPluginVersion")(InterfaceVersion);
        base.version = derived.version = InterfaceVersion;
        base.name = "Base";
        base.dataSize = 16;
        base.destructor = AsRoutine(BaseDestructor);
        base.properties = properties.data();
        base.propertyCount = properties.size();
        derived.name = "Derived";
        derived.superName = "BASE";
        derived.dataSize = 32;
        derived.destructor = AsRoutine(DerivedDestructor);
        derived.methods = &constructor;
        derived.methodCount = 1;
        constructor.function = AsRoutine(EmptyConstructor);
        constructor.declaration = "Constructor";
        const auto registerClass =
            HostFunction<functions::PluginRegisterClass>("PluginRegisterClass");
        registerClass(&base);
        registerClass(&derived);
        Events().clear();
    }

    std::array<PropertyDefinition, 3> properties = {
        Property("Count", "Integer", AsRoutine(GetCount), AsRoutine(SetCount), 2),
        Property("Ratio", "Double", AsRoutine(GetRatio), nullptr, 0),
        Property("Amount", "Currency", AsRoutine(GetAmount), nullptr, 0),
    };
    MethodDefinition constructor{};
    ClassDefinition base{};
    ClassDefinition derived{};
};

Object NewInstance(const char* name) {
    return HostFunction<functions::PluginNewInstance>("PluginNewInstance")(name);
}

void Unlock(Object object) {
    HostFunction<functions::REALUnlockObject>("REALUnlockObject")(object);
}

}  // namespace

TEST_CASE("instance data lies at the offset in the class record, zero-filled") {
    Host host;
    TestClasses classes;
    CHECK(host.Violations().empty());
    CHECK(classes.base.instanceDataOffset != 0);
    CHECK(classes.derived.instanceDataOffset >=
          classes.base.instanceDataOffset + classes.base.dataSize);

    Object object = NewInstance("derived");
    REQUIRE(object != nullptr);
    const auto* bytes = reinterpret_cast<const char*>(object);
    CHECK(host.InstanceData(object) == bytes + classes.derived.instanceDataOffset);
    const std::array<char, 32> zeros{};
    CHECK(std::memcmp(bytes + classes.derived.instanceDataOffset, zeros.data(), 32) == 0);
    CHECK(std::memcmp(bytes + classes.base.instanceDataOffset, zeros.data(), 16) == 0);
    Unlock(object);
    CHECK(host.Leaks().empty());
}

TEST_CASE("the last release runs the destructors, from the class up to its ancestors") {
    Host host;
    TestClasses classes;
    Object object = NewInstance("Derived");
    HostFunction<functions::REALLockObject>("REALLockObject")(object);
    CHECK(host.References(object) == 2);
    Unlock(object);
    CHECK(Events().empty());
    Unlock(object);
    CHECK(Events() == std::vector<std::string>{"destroy derived", "destroy base"});
    CHECK(host.Leaks().empty());
}

TEST_CASE("a new instance runs the empty constructor only in a host that does so") {
    {
        Host host;
        TestClasses classes;
        Unlock(NewInstance("Derived"));
        CHECK(Events() == std::vector<std::string>{"destroy derived", "destroy base"});
    }
    Host host(HostOptions{.newInstanceRunsConstructor = true});
    TestClasses classes;
    Unlock(NewInstance("Derived"));
    CHECK(Events() == std::vector<std::string>{"construct", "destroy derived", "destroy base"});
    CHECK(NewInstance("NoSuchClass") == nullptr);
    CHECK(NewInstance(nullptr) == nullptr);
    CHECK(host.Leaks().empty());
}

TEST_CASE("class references answer for the class and its descendants, in any letter case") {
    Host host;
    TestClasses classes;
    const auto reference = HostFunction<functions::pluginObjectType>("pluginObjectType");
    const auto isa = HostFunction<functions::RuntimeObjectIsa>("RuntimeObjectIsa");
    Object derived = NewInstance("Derived");
    Object base = NewInstance("Base");
    const host_interface::BooleanWord answer = isa(derived, reference("bAsE"));
    CHECK((answer & 0xFFU) == 1);
    CHECK((answer >> 8U) != 0);
    CHECK(LowByte(isa(derived, reference("Derived"))));
    CHECK(LowByte(isa(derived, reference("Object"))));
    CHECK_FALSE(LowByte(isa(base, reference("Derived"))));
    CHECK_FALSE(LowByte(isa(nullptr, reference("Derived"))));
    CHECK(reference("NoSuchClass") == nullptr);
    CHECK(host.Violations().empty());
    CHECK_FALSE(LowByte(isa(base, nullptr)));
    CHECK(Contains(Only(TakeViolations(host)), "RuntimeObjectIsa: the reference is of no class"));
    Unlock(derived);
    Unlock(base);
}

TEST_CASE("wrong use of objects is told with the class") {
    Host host;
    TestClasses classes;
    Object object = NewInstance("Base");
    Unlock(object);
    Unlock(object);
    CHECK(Only(TakeViolations(host)) == "REALUnlockObject: object #1 (Base) was released before");
    CHECK(Events().size() == 1);

    Object leaked = NewInstance("Base");
    CHECK(Only(host.Leaks()) == "still alive: object #2 (Base), references: 1");
    Unlock(leaked);

    Object overrun = NewInstance("Base");
    static_cast<char*>(host.InstanceData(overrun))[16] = 1;
    Unlock(overrun);
    CHECK(Contains(Only(TakeViolations(host)), "the memory around the instance data of object #3"));

    auto* foreign = reinterpret_cast<Object>(&classes);
    HostFunction<functions::REALLockObject>("REALLockObject")(foreign);
    CHECK(Only(TakeViolations(host)) == "REALLockObject: the handle is no object of this host");
}

TEST_CASE("a destructor may not keep its object") {
    Host host;
    TestClasses classes;
    classes.base.destructor = AsRoutine(KeepingDestructor);
    HostFunction<functions::PluginRegisterClass>("PluginRegisterClass")(&classes.base);
    Unlock(NewInstance("Base"));
    CHECK(Contains(Only(TakeViolations(host)), "the destructor of object #1 (Base)"));
}

TEST_CASE("the asked allocation of an object fails") {
    Host host;
    host.FailAllocation(Allocation::Object, 1, false);
    CHECK(NewInstance("RuntimeException") == nullptr);
    host.FailAllocation(Allocation::Object, 1, true);
    CHECK(HostFunction<functions::newMemoryBlock>("newMemoryBlock")(4) == nullptr);
    CHECK(HostFunction<functions::Int32ToVariant>("Int32ToVariant")(4) == nullptr);
    host.StopFailing();
    Object exception = NewInstance("RuntimeException");
    CHECK(exception != nullptr);
    Unlock(exception);
    CHECK(host.Leaks().empty());
}

TEST_CASE("an exception keeps its message in its encoding and its number") {
    Host host;
    const auto setText = HostFunction<functions::REALSetPropValueString>("REALSetPropValueString");
    const auto setNumber =
        HostFunction<functions::REALSetPropValueInteger>("REALSetPropValueInteger");
    const auto getText = HostFunction<functions::REALGetPropValueString>("REALGetPropValueString");
    const auto getNumber =
        HostFunction<functions::REALGetPropValueInteger>("REALGetPropValueInteger");
    Object exception = NewInstance("outofboundsexception");
    REQUIRE(exception != nullptr);
    CHECK(host.ClassOf(exception).name == "OutOfBoundsException");
    CHECK(host.Message(exception).empty());

    String message = host.MakeString("caf\xE9", HostTextEncoding::Latin1);
    const host_interface::BooleanWord answer = setText(exception, "mESSAGE", message);
    CHECK((answer & 0xFFU) == 1);
    CHECK((answer >> 8U) != 0);
    host.Unlock(message);
    CHECK(host.Message(exception) == "caf\xC3\xA9");
    CHECK(LowByte(setNumber(exception, "ErrorNumber", -7)));
    CHECK(host.ErrorNumber(exception) == -7);

    Integer number = 0;
    CHECK(LowByte(getNumber(exception, "errornumber", &number)));
    CHECK(number == -7);
    String text = nullptr;
    CHECK(LowByte(getText(exception, "Message", &text)));
    CHECK(host.Bytes(text) == "caf\xE9");
    host.Unlock(text);

    CHECK_FALSE(LowByte(setText(exception, "NoSuchProperty", nullptr)));
    CHECK_FALSE(LowByte(setNumber(exception, "Message", 1)));
    CHECK_FALSE(LowByte(getNumber(exception, "Message", &number)));
    CHECK_FALSE(LowByte(getNumber(nullptr, "ErrorNumber", &number)));
    CHECK(number == -7);

    host.SetMessage(exception, "other");
    CHECK(host.Message(exception) == "other");
    Unlock(exception);
    CHECK(host.Leaks().empty());
}

TEST_CASE("the host keeps the first raised exception until it is taken") {
    Host host;
    const auto raise = HostFunction<functions::RuntimeRaiseException>("RuntimeRaiseException");
    Object first = NewInstance("RuntimeException");
    Object second = NewInstance("NilObjectException");
    raise(first);
    raise(second);
    Unlock(first);
    Unlock(second);
    CHECK(host.Raises() == 2);
    CHECK(host.Counts().objectsAlive == 1);
    CHECK(host.Leaks().front() == "a raised exception was not taken");
    Object taken = host.TakeException();
    CHECK(taken == first);
    CHECK(host.TakeException() == nullptr);
    host.Unlock(taken);

    raise(nullptr);
    CHECK(Contains(Only(TakeViolations(host)), "no exception to raise"));
    Object block = host.MakeMemoryBlock("abc");
    raise(block);
    CHECK(Contains(Only(TakeViolations(host)), "class \"MemoryBlock\" is no exception"));
    host.Unlock(block);
    CHECK(host.Leaks().empty());
}

TEST_CASE("the properties of a plug-in are read and set through its routines") {
    Host host;
    TestClasses classes;
    Object object = NewInstance("Derived");
    Integer count = 0;
    CHECK(LowByte(HostFunction<functions::REALGetPropValueInteger>("REALGetPropValueInteger")(
        object, "COUNT", &count)));
    CHECK(count == 42);
    CHECK(LowByte(HostFunction<functions::REALSetPropValueInteger>("REALSetPropValueInteger")(
        object, "count", -5)));
    // The 32-bit functions are the same ones where an Integer has 32 bits, and only there.
    constexpr bool IsNarrow = sizeof(Integer) == sizeof(std::int32_t);
    std::int32_t narrow = 0;
    CHECK(LowByte(HostFunction<functions::REALGetPropValueInt>("REALGetPropValueInt")(
              object, "Count", &narrow)) == IsNarrow);
    CHECK(narrow == (IsNarrow ? 42 : 0));
    CHECK(Events() == std::vector<std::string>{"count 2 = -5"});
    double ratio = 0.0;
    CHECK(LowByte(HostFunction<functions::REALGetPropValueDouble>("REALGetPropValueDouble")(
        object, "Ratio", &ratio)));
    CHECK(ratio == 0.25);
    std::int64_t amount = 0;
    CHECK(LowByte(HostFunction<functions::REALGetPropValueCurrency>("REALGetPropValueCurrency")(
        object, "Amount", &amount)));
    CHECK(amount == -12'345'678'901'234);
    CHECK_FALSE(LowByte(
        HostFunction<functions::REALSetPropValueInt>("REALSetPropValueInt")(object, "Ratio", 1)));
    Unlock(object);
    CHECK(host.Leaks().empty());
}

TEST_CASE("memory blocks") {
    Host host;
    const auto make = HostFunction<functions::newMemoryBlock>("newMemoryBlock");
    const auto pointer = HostFunction<functions::memoryBlockGetPtr>("memoryBlockGetPtr");
    const auto size = HostFunction<functions::memoryBlockGetSize>("memoryBlockGetSize");
    Object block = make(8);
    REQUIRE(block != nullptr);
    CHECK(size(block) == 8);
    std::memcpy(pointer(block), "12345678", 8);
    CHECK(std::memcmp(host.BlockBytes(block).data(), "12345678", 8) == 0);

    Object empty = make(0);
    CHECK(size(empty) == 0);
    CHECK(pointer(empty) != nullptr);
    CHECK(make(-1) == nullptr);
    CHECK(make(std::numeric_limits<std::int32_t>::max()) == nullptr);
    CHECK(pointer(nullptr) == nullptr);
    CHECK(size(nullptr) == 0);
    host.Unlock(block);
    host.Unlock(empty);
    CHECK(host.Leaks().empty());
    CHECK(size(block) == 0);
    CHECK(Only(TakeViolations(host)) ==
          "memoryBlockGetSize: object #1 (MemoryBlock) was released before");
}

TEST_CASE("a host may give memory blocks without a data pointer") {
    Host host(HostOptions{.blocksWithoutData = true});
    Object block = HostFunction<functions::newMemoryBlock>("newMemoryBlock")(8);
    REQUIRE(block != nullptr);
    CHECK(HostFunction<functions::memoryBlockGetPtr>("memoryBlockGetPtr")(block) == nullptr);
    CHECK(HostFunction<functions::memoryBlockGetSize>("memoryBlockGetSize")(block) == 8);
    host.Unlock(block);
    CHECK(host.Leaks().empty());
}

TEST_CASE("with spare references the account tells by how many it is off") {
    Host host(HostOptions{.spareReferences = 100});
    String text = host.MakeString("abc", HostTextEncoding::Ascii);
    Object exception = host.MakeObject(*host.FindClass("RuntimeException"));
    host.SetMessage(exception, "an exception's own text");
    CHECK(host.Counts().stringReferences == 1);
    CHECK(host.Counts().objectReferences == 1);
    host.Unlock(exception);
    CHECK(Only(host.Leaks()) == "references of strings: off by 1");
    host.Unlock(text);
    CHECK(host.Leaks().empty());

    // What is released too often lives on.
    host.Unlock(text);
    host.Unlock(exception);
    CHECK(host.Leaks() == std::vector<std::string>{"references of strings: off by -1",
                                                   "references of objects: off by -1"});
    CHECK(host.Bytes(text) == "abc");
    CHECK(host.Message(exception) == "an exception's own text");
    host.Lock(text);
    host.Lock(exception);
    CHECK(host.Leaks().empty());
}

TEST_CASE("variants of the host's own making") {
    Host host;
    const auto typeOf =
        reinterpret_cast<functions::VarType*>(HostFunction<functions::REALLoadGlobalMethod>(
            "REALLoadGlobalMethod")(nullptr, "VarType(value As Variant) As Integer"));
    REQUIRE((typeOf != nullptr));
    const auto toInt32 = HostFunction<functions::VariantToInt32>("VariantToInt32");
    const auto toInt64 = HostFunction<functions::VariantToInt64>("VariantToInt64");
    const auto toUInt64 = HostFunction<functions::VariantToUInt64>("VariantToUInt64");
    const auto toDouble = HostFunction<functions::VariantToDouble>("VariantToDouble");
    const auto toString = HostFunction<functions::VariantToString>("VariantToString");

    Object small = HostFunction<functions::Int32ToVariant>("Int32ToVariant")(-5);
    CHECK(typeOf(small) == 2);
    CHECK(toInt32(small) == -5);
    CHECK(toDouble(small) == -5.0);
    host.Unlock(small);

    Object large = HostFunction<functions::Int64ToVariant>("Int64ToVariant")(1'099'511'627'776);
    CHECK(typeOf(large) == 3);
    CHECK(toInt64(large) == 1'099'511'627'776);
    CHECK(toInt32(large) == 0);
    host.Unlock(large);

    constexpr std::uint64_t Most = std::numeric_limits<std::uint64_t>::max();
    Object unsignedOne = HostFunction<functions::UInt64ToVariant>("UInt64ToVariant")(Most);
    CHECK(typeOf(unsignedOne) == 3);
    CHECK(toUInt64(unsignedOne) == Most);
    CHECK(host.ClassOf(unsignedOne).name == "_VariantUInt64");
    host.Unlock(unsignedOne);

    String text = host.MakeString("12.5", HostTextEncoding::Ascii);
    Object textVariant = HostFunction<functions::StringToVariant>("StringToVariant")(text);
    host.Unlock(text);
    CHECK(typeOf(textVariant) == 8);
    CHECK(toDouble(textVariant) == 12.5);
    String read = toString(textVariant);
    CHECK(host.Bytes(read) == "12.5");
    host.Unlock(read);
    host.Unlock(textVariant);

    CHECK(typeOf(nullptr) == 0);
    CHECK(toInt32(nullptr) == 0);
    CHECK(toString(nullptr) == nullptr);
    CHECK(host.Leaks().empty());
}

TEST_CASE("variants of every kind answer as every type and through their properties") {
    Host host;
    const auto code = [](VariantTypeCode type) { return static_cast<std::int32_t>(type); };
    const auto textOf = [&](Object variant) {
        String text = host.VariantAsString(variant);
        std::string bytes = host.Utf8(text);
        host.Unlock(text);
        return bytes;
    };

    Object amount = host.MakeVariant(code(VariantTypeCode::Currency), std::int64_t{-12'345'600});
    CHECK(host.VariantType(amount) == 6);
    CHECK(host.VariantAsCurrency(amount) == -12'345'600);
    CHECK(host.VariantAsDouble(amount) == -1234.56);
    CHECK(host.VariantAsInt64(amount) == -1234);
    CHECK(textOf(amount) == "-1234.56");
    std::int64_t currency = 0;
    // A host without a reader for Currency reads it as a 64-bit integer.
    CHECK(LowByte(HostFunction<functions::REALGetPropValueInt64>("REALGetPropValueInt64")(
        amount, "CurrencyValue", &currency)));
    CHECK(currency == -12'345'600);
    host.Unlock(amount);

    Object real = host.MakeVariant(code(VariantTypeCode::Double), 0.1);
    CHECK(host.VariantAsCurrency(real) == 1000);
    CHECK(textOf(real) == "0.1");
    float single = 0.0F;
    CHECK(LowByte(HostFunction<functions::REALGetPropValueSingle>("REALGetPropValueSingle")(
        real, "SingleValue", &single)));
    CHECK(single == 0.1F);
    Integer type = 0;
    CHECK(LowByte(HostFunction<functions::REALGetPropValueInteger>("REALGetPropValueInteger")(
        real, "Type", &type)));
    CHECK(type == 5);
    host.Unlock(real);

    Object huge = host.MakeVariant(code(VariantTypeCode::Double), 1e300);
    CHECK(host.VariantAsInt64(huge) == std::numeric_limits<std::int64_t>::max());
    host.Unlock(huge);
    Object nan =
        host.MakeVariant(code(VariantTypeCode::Double), std::numeric_limits<double>::quiet_NaN());
    CHECK(host.VariantAsInt64(nan) == 0);
    host.Unlock(nan);

    Object truth = host.MakeVariant(code(VariantTypeCode::Boolean), std::int64_t{1});
    CHECK(host.VariantType(truth) == 11);
    CHECK(textOf(truth) == "True");
    host.Unlock(truth);

    Object unsignedOne =
        host.MakeVariant(code(VariantTypeCode::Int32), std::uint64_t{4'000'000'000});
    CHECK(host.ClassOf(unsignedOne).name == "_VariantUInt32");
    CHECK(HostFunction<functions::VariantToUInt32>("VariantToUInt32")(unsignedOne) ==
          4'000'000'000U);
    host.Unlock(unsignedOne);

    Object strange = host.MakeVariant(4096 + 2, {});
    CHECK(host.VariantType(strange) == 4098);
    CHECK(host.VariantAsDouble(strange) == 0.0);
    CHECK(textOf(strange).empty());
    host.Unlock(strange);
    CHECK(host.Leaks().empty());
}

TEST_CASE("objects and dates are variants of themselves") {
    Host host;
    const auto readDouble =
        HostFunction<functions::REALGetPropValueDouble>("REALGetPropValueDouble");
    double seconds = 0.0;
    Object date = host.MakeDate(3.5e9);
    CHECK(host.VariantType(date) == 7);
    CHECK(LowByte(readDouble(date, "totalseconds", &seconds)));
    CHECK(seconds == 3.5e9);
    CHECK_FALSE(LowByte(readDouble(date, "SecondsFrom1970", &seconds)));
    Object dateTime = host.MakeDateTime(-1.5);
    CHECK(host.VariantType(dateTime) == 38);
    CHECK(LowByte(readDouble(dateTime, "SecondsFrom1970", &seconds)));
    CHECK(seconds == -1.5);
    CHECK(host.Seconds(dateTime) == -1.5);
    Object exception = NewInstance("RuntimeException");
    CHECK(host.VariantType(exception) == 9);
    host.Unlock(date);
    host.Unlock(dateTime);
    host.Unlock(exception);
    CHECK(host.Leaks().empty());
}

TEST_CASE("a host may lack functions, global methods and classes") {
    Host host(HostOptions{.missing = {"REALGetRBVersion", "VariantToDouble", "_VariantUInt32",
                                      "vartype( value as variant ) as INTEGER"}});
    CHECK(Host::Resolve("VariantToDouble") == nullptr);
    CHECK(Host::Resolve("VariantToInt32") != nullptr);
    CHECK(Host::Resolve("varianttoint32") == nullptr);
    CHECK(Host::Resolve("REALGetRBVersion") == nullptr);
    CHECK(Host::Resolve("NoSuchFunction") == nullptr);
    CHECK(Host::Resolve("NoSuchFunction") == nullptr);
    CHECK(host.lookups().at("NoSuchFunction") == 2);
    CHECK(HostFunction<functions::REALLoadGlobalMethod>("REALLoadGlobalMethod")(
              nullptr, "VarType(value As Variant) As Integer") == nullptr);
    CHECK(HostFunction<functions::pluginObjectType>("pluginObjectType")("_VariantUInt32") ==
          nullptr);
    Object plain = host.MakeVariant(2, std::uint64_t{1});
    CHECK(host.ClassOf(plain).name == "Variant");
    CHECK(host.VariantType(plain) == 2);
    host.Unlock(plain);
    CHECK(host.Leaks().empty());
}

TEST_CASE("a global method is taken away by its name as well") {
    Host host(HostOptions{.missing = {"vartype"}});
    CHECK(HostFunction<functions::REALLoadGlobalMethod>("REALLoadGlobalMethod")(
              nullptr, "VarType(value As Variant) As Integer") == nullptr);
    CHECK(Host::Resolve("VariantToDouble") != nullptr);
}

TEST_CASE("a host tells its version and whether it is a built application") {
    {
        Host host(HostOptions{.version = 2015.04, .builtApplication = true});
        CHECK(HostFunction<functions::REALGetRBVersion>("REALGetRBVersion")() == 2015.04);
        const host_interface::BooleanWord answer =
            HostFunction<functions::REALinRuntime>("REALinRuntime")();
        CHECK((answer & 0xFFU) == 1);
        CHECK((answer >> 8U) != 0);
    }
    Host host;
    CHECK(HostFunction<functions::REALGetRBVersion>("REALGetRBVersion")() ==
          standin::CurrentHostVersion);
    CHECK((HostFunction<functions::REALinRuntime>("REALinRuntime")() & 0xFFU) == 0);
}
