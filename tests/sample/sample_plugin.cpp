// A plug-in for the tests of the language: one class whose members take and return every type,
// with defaults, ByRef arguments, overloads and operators, and members that misbehave on request.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "interface/host_interface.hpp"

namespace {

using namespace host_interface;

struct HostFunctions {
    functions::REALBuildStringWithEncoding* buildString;
    functions::PluginGetStringData* getStringData;
    functions::PluginDisposeStringData* disposeStringData;
    functions::REALLockString* lockString;
    functions::REALUnlockString* unlockString;
    functions::REALLockObject* lockObject;
    functions::REALUnlockObject* unlockObject;
    functions::PluginNewInstance* newInstance;
    functions::RuntimeRaiseException* raise;
    functions::REALSetPropValueString* setString;
    functions::memoryBlockGetSize* getBlockSize;
};

HostFunctions host;

constexpr auto Utf8 = static_cast<std::uint32_t>(HostTextEncoding::Utf8);

ClassDefinition sampleClass{};
ClassDefinition exceptionClass{};

/// The value of an object; Nil reads as -1.
std::int32_t Read(Object object) {
    if (object == nullptr) {
        return -1;
    }
    return *reinterpret_cast<std::int32_t*>(reinterpret_cast<char*>(object) +
                                            sampleClass.instanceDataOffset);
}

void Write(Object object, std::int32_t value) {
    std::memcpy(reinterpret_cast<char*>(object) + sampleClass.instanceDataOffset, &value,
                sizeof value);
}

String Make(const std::string& text) {
    return host.buildString(text.data(), static_cast<std::int32_t>(text.size()), Utf8);
}

std::string Text(String text) {
    StringData data{};
    if (text == nullptr || host.getStringData(text, Utf8, &data) == 0) {
        return {};
    }
    std::string bytes(data.data, data.length);
    host.disposeStringData(&data);
    return bytes;
}

Object MakeSample(std::int32_t value) {
    Object object = host.newInstance("Sample");
    if (object != nullptr) {
        Write(object, value);
    }
    return object;
}

void Raise(const char* className, const std::string& message) {
    Object exception = host.newInstance(className);
    String text = Make(message);
    host.setString(exception, "Message", text);
    host.unlockString(text);
    host.raise(exception);
    host.unlockObject(exception);
}

Integer instances = 0;
Integer counter = 0;

// Life -------------------------------------------------------------------------------------------

void Construct(Object self) {
    ++instances;
    Write(self, 0);
}

void ConstructInt32(Object self, std::int32_t value) {
    ++instances;
    Write(self, value);
}

/// Keeps the upper half of a value beyond 32 bits, so that a program sees that all of it arrived.
void ConstructInt64(Object self, std::int64_t value) {
    ++instances;
    const bool fits = value == static_cast<std::int32_t>(value);
    Write(self, static_cast<std::int32_t>(fits ? value : value >> 32U));
}

void ConstructString(Object self, String value) {
    ++instances;
    const auto text = Text(value);
    if (text == "bad") {
        Raise("SampleException", "bad text");
        return;
    }
    Write(self, static_cast<std::int32_t>(std::strtol(text.c_str(), nullptr, 10)));
}

void ConstructCopy(Object self, Object other) {
    ++instances;
    Write(self, Read(other));
}

void Destroy(Object /*self*/) {
    --instances;
}

String ConvertToString(Object self) {
    return Make("Sample " + std::to_string(Read(self)));
}

// Properties -------------------------------------------------------------------------------------

Integer GetValue(Object self, std::int32_t parameter) {
    return Read(self) + parameter;
}

void SetValue(Object self, std::int32_t parameter, Integer value) {
    Write(self, static_cast<std::int32_t>(value - parameter));
}

/// Only the low byte of a Boolean counts.
BooleanWord GetIsOdd(Object self, std::int32_t /*parameter*/) {
    return 0xA5A5A500U | ((Read(self) & 1) != 0 ? 1U : 0U);
}

Integer GetCounter() {
    return counter;
}

void SetCounter(Integer value) {
    counter = value;
}

Integer GetInstances() {
    return instances;
}

// Methods ----------------------------------------------------------------------------------------

String Describe(Object self, BooleanWord boolean, Integer integer, std::uint32_t unsigned32,
                std::int64_t wide, std::uint64_t unsignedWide, float single, double real,
                std::int64_t currency, String text, Object other) {
    return Make(std::to_string(Read(self)) + " " + std::to_string(boolean & 0xFFU) + " " +
                std::to_string(integer) + " " + std::to_string(unsigned32) + " " +
                std::to_string(wide) + " " + std::to_string(unsignedWide) + " " +
                std::to_string(single) + " " + std::to_string(real) + " " +
                std::to_string(currency) + " " + Text(text) + " " + std::to_string(Read(other)));
}

void Change(Object /*self*/, std::uint8_t* boolean, Integer* integer, std::uint64_t* wide,
            float* single, double* real, String* text, Object* other) {
    *boolean = *boolean == 0 ? 1 : 0;
    *integer += 1;
    *wide += 1;
    *single *= 2;
    *real *= 2;
    const auto longer = Text(*text) + "!";
    host.unlockString(*text);
    *text = Make(longer);
    const auto value = Read(*other);
    host.unlockObject(*other);
    *other = MakeSample(value + 1);
}

/// Drops the variable before the text is read. A text that is the variable's own string is gone
/// then, and reading it is use after free.
String SwapCareless(Object /*self*/, String text, String* variable) {
    host.unlockString(*variable);
    *variable = Make("dropped");
    return Make(Text(text));
}

/// The same with the text held: one variable may be both.
String Swap(Object /*self*/, String text, String* variable) {
    host.lockString(text);
    host.unlockString(*variable);
    *variable = Make("dropped");
    const auto result = Text(text);
    host.unlockString(text);
    return Make(result);
}

String Greet(Object /*self*/, String name, Integer times, BooleanWord loud, double factor,
             String end) {
    std::string text;
    for (Integer i = 0; i < times; ++i) {
        text += "hello " + Text(name) + Text(end);
    }
    return Make(text + ((loud & 0xFFU) != 0 ? "!" : ".") + std::to_string(factor));
}

Integer GetCell(Object self, Integer index) {
    return Read(self) * 10 + index;
}

void SetCell(Object self, Integer index, Integer value) {
    Write(self, static_cast<std::int32_t>(value - index));
}

template <int Number>
Integer Which() {
    return Number;
}

std::uint64_t ReturnUInt64() {
    return 0xFEDCBA9876543210U;
}

std::int64_t ReturnInt64() {
    return -5'000'000'000;
}

std::uint32_t ReturnUInt32() {
    return 0xFFFFFFFFU;
}

float ReturnSingle() {
    return 0.1F;
}

double ReturnDouble() {
    return 0.1;
}

std::int64_t ReturnCurrency() {
    return -12'500;
}

String ReturnNoString() {
    return nullptr;
}

Object ReturnNil() {
    return nullptr;
}

void Nothing(Object /*self*/) {}

Object Echo(Object /*self*/, Object value) {
    host.lockObject(value);
    return value;
}

void Replace(Object /*self*/, Object* variant) {
    host.unlockObject(*variant);
    *variant = MakeSample(7);
}

Integer GetBlockSize(Object /*self*/, Object block) {
    return block == nullptr ? -1 : host.getBlockSize(block);
}

// Operators --------------------------------------------------------------------------------------

Object Add(Object self, Object other) {
    return MakeSample(Read(self) + Read(other));
}

Object AddInteger(Object self, Integer other) {
    return MakeSample(static_cast<std::int32_t>(Read(self) + other));
}

Object SubtractRight(Object self, Object other) {
    return MakeSample(Read(other) - Read(self));
}

Object Negate(Object self) {
    return MakeSample(-Read(self));
}

Integer Compare(Object self, Object other) {
    return Read(self) - Read(other);
}

// Misbehaviour -----------------------------------------------------------------------------------

Object Fail(Object /*self*/, String message) {
    Raise("SampleException", Text(message));
    return MakeSample(99);
}

void Crash(Object /*self*/) {
    volatile std::uintptr_t nowhere = 8;
    *reinterpret_cast<volatile int*>(nowhere) = 1;
}

void Abort(Object /*self*/) {
    std::abort();
}

void LeakString(Object /*self*/) {
    Make("forgotten");
}

void OverRelease(Object /*self*/, String text) {
    host.unlockString(text);
}

// Tables -----------------------------------------------------------------------------------------

template <typename Function>
Routine AsRoutine(Function* function) {
    return reinterpret_cast<Routine>(function);
}

PropertyDefinition Property(const char* name, const char* type, Routine getter, Routine setter,
                            std::int32_t parameter = 0) {
    return {nullptr, name, type, flags::RunTimeOnly, getter, setter, parameter, {}, 0, nullptr};
}

MethodDefinition Method(const char* declaration, Routine function, Routine setter = nullptr) {
    return {function, setter, declaration, flags::AllTargets, 0, nullptr};
}

PropertyDefinition properties[] = {
    Property("Value", "Integer", AsRoutine(GetValue), AsRoutine(SetValue)),
    Property("ValuePlusTen", "integer", AsRoutine(GetValue), AsRoutine(SetValue), 10),
    Property("IsOdd", "Boolean", AsRoutine(GetIsOdd), nullptr),
    Property("Later", "Integer", nullptr, nullptr),
    Property("Strange", "Colour", AsRoutine(GetValue), nullptr),
};

PropertyDefinition sharedProperties[] = {
    Property("Counter", "Integer", AsRoutine(GetCounter), AsRoutine(SetCounter)),
    Property("Instances", "Integer", AsRoutine(GetInstances), nullptr),
};

MethodDefinition methods[] = {
    Method("Constructor", AsRoutine(Construct)),
    Method("Constructor(value as Int32)", AsRoutine(ConstructInt32)),
    Method("Constructor(value as Int64)", AsRoutine(ConstructInt64)),
    Method("Constructor(value as String)", AsRoutine(ConstructString)),
    Method("Constructor(other as Sample)", AsRoutine(ConstructCopy)),
    Method("Operator_Convert(value as String)", AsRoutine(ConstructString)),
    Method("Operator_Convert as String", AsRoutine(ConvertToString)),
    Method("Describe(b as Boolean, i as Integer, u as UInt32, l as Int64, ul as uint64, "
           "s as single, d as double, c as Currency, t as String, o as Sample) as String",
           AsRoutine(Describe)),
    Method("Change(byref b as Boolean, ByRef i as Integer, ByRef u as UInt64, Byref s as Single, "
           "byref d as Double, byref t as String, byref o as Sample)",
           AsRoutine(Change)),
    Method("Swap(text as String, byref variable as String) as String", AsRoutine(Swap)),
    Method("SwapCareless(text as String, byref variable as String) as String",
           AsRoutine(SwapCareless)),
    Method("Greet(name as String = \"you\", times as Integer = 2, loud as boolean = true, "
           "factor as Double = -1.5, end as String = \" \"\"\") as String",
           AsRoutine(Greet)),
    Method("Cell(index as Integer) as Integer", AsRoutine(GetCell), AsRoutine(SetCell)),
    Method("Fixed(index as Integer) as Integer", AsRoutine(GetCell)),
    Method("Nothing()", AsRoutine(Nothing)),
    Method("Echo(value as variant) as Variant", AsRoutine(Echo)),
    Method("Replace(byref value as Variant)", AsRoutine(Replace)),
    Method("BlockSize(block as MemoryBlock) as Integer", AsRoutine(GetBlockSize)),
    Method("Operator_Add(other as Sample) as Sample", AsRoutine(Add)),
    Method("Operator_Add(other as Integer) as Sample", AsRoutine(AddInteger)),
    Method("Operator_AddRight(other as Sample) as Sample", AsRoutine(Add)),
    Method("Operator_SubtractRight(other as Sample) as Sample", AsRoutine(SubtractRight)),
    Method("Operator_Multiply(other as Sample) as Sample", nullptr),
    Method("Operator_Negate as Sample", AsRoutine(Negate)),
    Method("Operator_Compare(other as Sample) as Integer", AsRoutine(Compare)),
    Method("Fail(message as String) as Sample", AsRoutine(Fail)),
    Method("Crash", AsRoutine(Crash)),
    Method("Abort", AsRoutine(Abort)),
    Method("LeakString", AsRoutine(LeakString)),
    Method("OverRelease(text as String)", AsRoutine(OverRelease)),
    Method("Missing(value as Integer) as Sample", nullptr),
    Method("Broken(value as", AsRoutine(Nothing)),
    Method("Unknown(value as Colour)", AsRoutine(Nothing)),
};

MethodDefinition sharedMethods[] = {
    Method("Which(value as Int32) as Integer", AsRoutine(Which<1>)),
    Method("Which(value as Int64) as Integer", AsRoutine(Which<2>)),
    Method("Which(value as Double) as Integer", AsRoutine(Which<3>)),
    Method("Which(value as String) as Integer", AsRoutine(Which<4>)),
    Method("Which(value as Sample) as Integer", AsRoutine(Which<5>)),
    Method("Pair(a as Integer, b as Double) as Integer", AsRoutine(Which<6>)),
    Method("Pair(a as Double, b as Integer) as Integer", AsRoutine(Which<7>)),
    Method("Wide(value as Int64) as Integer", AsRoutine(Which<8>)),
    Method("Wide(value as Sample) as Integer", AsRoutine(Which<9>)),
    Method("OfUInt32(value as UInt32) as Integer", AsRoutine(Which<10>)),
    Method("Twice(value as Integer) as Integer", AsRoutine(Which<11>)),
    Method("Twice(value as Int64) as Integer", AsRoutine(Which<12>)),
    Method("AUInt64 as UInt64", AsRoutine(ReturnUInt64)),
    Method("AnInt64 as Int64", AsRoutine(ReturnInt64)),
    Method("AUInt32 as UInt32", AsRoutine(ReturnUInt32)),
    Method("ASingle as Single", AsRoutine(ReturnSingle)),
    Method("ADouble as Double", AsRoutine(ReturnDouble)),
    Method("ACurrency as Currency", AsRoutine(ReturnCurrency)),
    Method("NoString as String", AsRoutine(ReturnNoString)),
    Method("NoSample as Sample", AsRoutine(ReturnNil)),
};

template <typename Entry, std::size_t Count>
constexpr std::uint32_t CountOf(Entry (&)[Count]) {
    return Count;
}

constexpr std::uint32_t InterfaceVersion = 13;

void FillClasses() {
    sampleClass = {};
    sampleClass.version = InterfaceVersion;
    sampleClass.name = "Sample";
    sampleClass.dataSize = 16;
    sampleClass.destructor = AsRoutine(Destroy);
    sampleClass.properties = properties;
    sampleClass.propertyCount = CountOf(properties);
    sampleClass.methods = methods;
    sampleClass.methodCount = CountOf(methods);
    sampleClass.flags = flags::AllTargets;
    sampleClass.sharedProperties = sharedProperties;
    sampleClass.sharedPropertyCount = CountOf(sharedProperties);
    sampleClass.sharedMethods = sharedMethods;
    sampleClass.sharedMethodCount = CountOf(sharedMethods);
    exceptionClass = {};
    exceptionClass.version = InterfaceVersion;
    exceptionClass.name = "SampleException";
    exceptionClass.superName = "RuntimeException";
    exceptionClass.flags = flags::AllTargets;
}

template <typename Function>
void Bind(Function*& function, Resolver resolve, const char* name) {
    function = reinterpret_cast<Function*>(resolve(name));
}

}  // namespace

extern "C" void REALPluginMain(Resolver resolve);

void REALPluginMain(Resolver resolve) {
    Bind(host.buildString, resolve, "REALBuildStringWithEncoding");
    Bind(host.getStringData, resolve, "PluginGetStringData");
    Bind(host.disposeStringData, resolve, "PluginDisposeStringData");
    Bind(host.lockString, resolve, "REALLockString");
    Bind(host.unlockString, resolve, "REALUnlockString");
    Bind(host.lockObject, resolve, "REALLockObject");
    Bind(host.unlockObject, resolve, "REALUnlockObject");
    Bind(host.newInstance, resolve, "PluginNewInstance");
    Bind(host.raise, resolve, "RuntimeRaiseException");
    Bind(host.setString, resolve, "REALSetPropValueString");
    Bind(host.getBlockSize, resolve, "memoryBlockGetSize");
    functions::RegisterPluginVersion* tellVersion = nullptr;
    functions::PluginRegisterClass* registerClass = nullptr;
    Bind(tellVersion, resolve, "RegisterPluginVersion");
    Bind(registerClass, resolve, "PluginRegisterClass");
    FillClasses();
    instances = 0;
    counter = 0;
    tellVersion(static_cast<std::int32_t>(InterfaceVersion));
    registerClass(&sampleClass);
    registerClass(&exceptionClass);
}
