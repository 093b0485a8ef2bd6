// The bindings of host functions: which names they look up, and what they make of the results.
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <doctest/doctest.h>

#include "plugin/bindings/host_functions.hpp"
#include "tests/unit/plugin/direct_host.hpp"

namespace {

using host_interface::BooleanWord;
using tests::DirectHost;

/// The functions that a host of these tests offers, and the names that it was asked for.
std::map<std::string, void*, std::less<>> offered;
std::vector<std::string> asked;

void* ResolveOffered(const char* name) {
    asked.emplace_back(name);
    const auto found = offered.find(name);
    return found == offered.end() ? nullptr : found->second;
}

template <typename Function>
void Offer(const char* name, Function* function) {
    offered[name] = reinterpret_cast<void*>(function);
}

/// Lets bindings ask `ResolveOffered`, which offers nothing at first.
struct OwnResolver {
    OwnResolver() {
        offered.clear();
        asked.clear();
        vqz::HostResolver = &ResolveOffered;
    }
    DirectHost host;  // puts the resolver back
};

std::string TakeAsked() {
    std::string names = tests::Joined(asked);
    asked.clear();
    return names;
}

int calls = 0;

std::int32_t Negated(std::int32_t value) {
    ++calls;
    return -value;
}

template <BooleanWord Answer>
BooleanWord Answering(std::int32_t) {
    ++calls;
    return Answer;
}

using NumberFunction = std::int32_t(std::int32_t);
using PredicateFunction = BooleanWord(std::int32_t);

/// A binding as it is before anything was called: the copy is made before the first test runs.
template <auto& Binding>
const auto Untouched = Binding;

template <typename Result, typename... Arguments>
bool CallsNothing(vqz::HostFunctionSlot<Result(Arguments...)> binding) {
    if constexpr (std::is_void_v<Result>) {
        binding(Arguments{}...);
        return true;
    } else {
        return binding(Arguments{}...) == Result{};
    }
}

template <typename... Arguments, vqz::BooleanWidth Width>
bool CallsNothing(vqz::HostPredicateSlot<BooleanWord(Arguments...), Width> binding) {
    return !binding(Arguments{}...);
}

bool CallsNothing(vqz::GlobalMethodLoader binding) {
    return binding("Anything()") == nullptr;
}

/// How the result of a host function is read.
enum class Shape { PassThrough, LowByte, Word, FixedFirstArgument };

template <typename Result, typename... Arguments>
constexpr Shape ShapeOf(const vqz::HostFunctionSlot<Result(Arguments...)>&) {
    return Shape::PassThrough;
}

template <typename Function, vqz::BooleanWidth Width>
constexpr Shape ShapeOf(const vqz::HostPredicateSlot<Function, Width>&) {
    return Width == vqz::BooleanWidth::LowByte ? Shape::LowByte : Shape::Word;
}

constexpr Shape ShapeOf(const vqz::GlobalMethodLoader&) {
    return Shape::FixedFirstArgument;
}

struct BindingRow {
    std::string names;
    Shape shape;
    Shape expectedShape;
    bool (*callsNothing)();
};

template <auto& Binding>
BindingRow Row(const std::string& names, Shape expectedShape) {
    return {names, ShapeOf(Binding), expectedShape,
            [] { return CallsNothing(Untouched<Binding>); }};
}

}  // namespace

TEST_CASE("Every binding asks for its own names and answers nothing on a host without them") {
    using enum Shape;
    const BindingRow rows[] = {
        Row<vqz::host::REALBuildString>("REALBuildString\n", PassThrough),
        Row<vqz::host::RuntimeAddString>("RuntimeAddString\n", PassThrough),
        Row<vqz::host::REALBuildStringWithEncoding>("REALBuildStringWithEncoding\n", PassThrough),
        Row<vqz::host::REALConvertString>("REALConvertString\n", PassThrough),
        Row<vqz::host::PluginDisposeStringData>("PluginDisposeStringData\n", PassThrough),
        Row<vqz::host::pluginObjectType>("pluginObjectType\n", PassThrough),
        Row<vqz::host::REALGetPropValueCurrency>(
            "REALGetPropValueCurrency\nREALGetPropValueInt64\n", LowByte),
        Row<vqz::host::REALGetPropValueDouble>("REALGetPropValueDouble\n", Word),
        Row<vqz::host::REALGetPropValueInt>("REALGetPropValueInt\n", Word),
        Row<vqz::host::REALGetPropValueInt64>("REALGetPropValueInt64\n", LowByte),
        Row<vqz::host::REALGetPropValueInteger>(
            HOST_INTERFACE_32_BIT != 0 ? "REALGetPropValueInteger\nREALGetPropValueInt\n"
                                       : "REALGetPropValueInteger\n",
            LowByte),
        Row<vqz::host::REALGetPropValueSingle>("REALGetPropValueSingle\n", LowByte),
        Row<vqz::host::REALGetPropValueString>("REALGetPropValueString\n", Word),
        Row<vqz::host::REALGetPropValueUInt32>("REALGetPropValueUInt32\n", LowByte),
        Row<vqz::host::REALGetPropValueUInt64>("REALGetPropValueUInt64\n", LowByte),
        Row<vqz::host::PluginGetStringData>("PluginGetStringData\n", LowByte),
        Row<vqz::host::REALGetStringEncoding>("REALGetStringEncoding\n", PassThrough),
        Row<vqz::host::REALLoadGlobalMethod>("REALLoadGlobalMethod\n", FixedFirstArgument),
        Row<vqz::host::REALLockObject>("REALLockObject\n", PassThrough),
        Row<vqz::host::REALLockString>("REALLockString\n", PassThrough),
        Row<vqz::host::memoryBlockGetPtr>("memoryBlockGetPtr\n", PassThrough),
        Row<vqz::host::memoryBlockGetSize>("memoryBlockGetSize\n", PassThrough),
        Row<vqz::host::newMemoryBlock>("newMemoryBlock\n", PassThrough),
        Row<vqz::host::Int32ToVariant>("Int32ToVariant\n", PassThrough),
        Row<vqz::host::Int64ToVariant>("Int64ToVariant\n", PassThrough),
        Row<vqz::host::StringToVariant>("StringToVariant\n", PassThrough),
        Row<vqz::host::UInt64ToVariant>("UInt64ToVariant\n", PassThrough),
        Row<vqz::host::RuntimeObjectIsa>("RuntimeObjectIsa\n", LowByte),
        Row<vqz::host::RuntimeRaiseException>("RuntimeRaiseException\n", PassThrough),
        Row<vqz::host::PluginRegisterClass>("PluginRegisterClass\n", PassThrough),
        Row<vqz::host::REALSetPropValueInteger>(
            HOST_INTERFACE_32_BIT != 0 ? "REALSetPropValueInteger\nREALSetPropValueInt\n"
                                       : "REALSetPropValueInteger\n",
            LowByte),
        Row<vqz::host::REALSetPropValueString>("REALSetPropValueString\n", LowByte),
        Row<vqz::host::REALSetStringEncoding>("REALSetStringEncoding\n", PassThrough),
        Row<vqz::host::REALUnlockObject>("REALUnlockObject\n", PassThrough),
        Row<vqz::host::REALUnlockString>("REALUnlockString\n", PassThrough),
        Row<vqz::host::REALinRuntime>("REALinRuntime\n", LowByte),
        Row<vqz::host::PluginNewInstance>("PluginNewInstance\n", PassThrough),
    };
    OwnResolver resolver;
    for (const BindingRow& row : rows) {
        CAPTURE(row.names);
        CHECK(row.callsNothing());
        CHECK(TakeAsked() == row.names);
        CHECK(row.shape == row.expectedShape);
    }
    CHECK(resolver.host.TakeDebugLog().empty());
    CHECK(tests::TakeRaised(resolver.host) == "");
}

TEST_CASE("A function that was found is never looked up again") {
    const OwnResolver resolver;
    vqz::HostFunctionSlot<NumberFunction> binding("Negated");
    Offer("Negated", &Negated);
    CHECK(asked.empty());
    CHECK(binding(5) == -5);
    CHECK(TakeAsked() == "Negated\n");
    offered.clear();
    CHECK(binding(6) == -6);
    CHECK(TakeAsked() == "");
}

TEST_CASE("A function that is missing is asked for at every call") {
    const OwnResolver resolver;
    vqz::HostFunctionSlot<NumberFunction> binding("Negated");
    CHECK(binding(5) == 0);
    CHECK(binding(5) == 0);
    CHECK(TakeAsked() == "Negated\nNegated\n");
    Offer("Negated", &Negated);
    CHECK(binding(5) == -5);
    CHECK(binding(5) == -5);
    CHECK(TakeAsked() == "Negated\n");
}

TEST_CASE("Names are asked for in their exact letter case") {
    const OwnResolver resolver;
    vqz::HostFunctionSlot<NumberFunction> binding("Negated");
    Offer("negated", &Negated);
    CHECK(binding(5) == 0);
}

TEST_CASE("The fallback name counts only when the first name is missing, and is kept then") {
    const OwnResolver resolver;
    vqz::HostFunctionSlot<NumberFunction> binding("First", "Second");
    SUBCASE("both are there") {
        Offer("First", &Negated);
        Offer("Second", &Answering<7>);
        CHECK(binding(5) == -5);
        CHECK(TakeAsked() == "First\n");
    }
    SUBCASE("only the fallback is there") {
        Offer("Second", &Negated);
        CHECK(binding(5) == -5);
        CHECK(TakeAsked() == "First\nSecond\n");
        Offer("First", &Answering<7>);
        CHECK(binding(5) == -5);
        CHECK(TakeAsked() == "");
    }
    SUBCASE("none is there") {
        CHECK(binding(5) == 0);
        CHECK(binding(5) == 0);
        CHECK(TakeAsked() == "First\nSecond\nFirst\nSecond\n");
    }
}

TEST_CASE("Two bindings with one name keep what they found apart") {
    const OwnResolver resolver;
    auto currency = Untouched<vqz::host::REALGetPropValueCurrency>;
    auto int64 = Untouched<vqz::host::REALGetPropValueInt64>;
    std::int64_t value = 0;
    CHECK_FALSE(int64(nullptr, "LongValue", &value));
    Offer(
        "REALGetPropValueInt64",
        +[](host_interface::Object, const char* name, std::int64_t* out) -> BooleanWord {
            *out = std::string_view(name) == "CurrencyValue" ? 12345 : 67890;
            return 0xA5A5A501;
        });
    asked.clear();
    CHECK(currency(nullptr, "CurrencyValue", &value));
    CHECK(value == 12345);
    CHECK(TakeAsked() == "REALGetPropValueCurrency\nREALGetPropValueInt64\n");
    CHECK(int64(nullptr, "LongValue", &value));
    CHECK(value == 67890);
    CHECK(TakeAsked() == "REALGetPropValueInt64\n");
}

TEST_CASE("A Boolean is read from the low byte or from the whole word") {
    const OwnResolver resolver;
    struct Row {
        PredicateFunction* function;
        bool inLowByte;
        bool inWord;
    };
    const Row rows[] = {
        {&Answering<0x00000000>, false, false}, {&Answering<0x00000001>, true, true},
        {&Answering<0xA5A5A500>, false, true},  {&Answering<0xA5A5A501>, true, true},
        {&Answering<0x00000100>, false, true},  {&Answering<0x00000080>, true, true},
        {&Answering<0x80000000>, false, true},  {&Answering<0xFFFFFFFF>, true, true},
    };
    for (const Row& row : rows) {
        Offer("Answering", row.function);
        CAPTURE(row.function(0));
        vqz::LowBytePredicate<PredicateFunction> lowByte("Answering");
        vqz::WordPredicate<PredicateFunction> word("Answering");
        CHECK(lowByte(0) == row.inLowByte);
        // 64-bit hosts have low bytes only.
        CHECK(word(0) == (HOST_INTERFACE_32_BIT != 0 ? row.inWord : row.inLowByte));
    }
}

TEST_CASE("A global method is loaded from no module") {
    const OwnResolver resolver;
    static const char* module = "not called";
    static std::string declaration;
    Offer(
        "REALLoadGlobalMethod", +[](const char* moduleName, const char* text) -> void* {
            module = moduleName;
            declaration = text;
            return &declaration;
        });
    vqz::GlobalMethodLoader load("REALLoadGlobalMethod");
    CHECK(load("VarType(value As Variant) As Integer") == &declaration);
    CHECK(module == nullptr);
    CHECK(declaration == "VarType(value As Variant) As Integer");
}

TEST_CASE("Every argument and every kind of result passes through unchanged") {
    const OwnResolver resolver;
    Offer(
        "Reader", +[](host_interface::Object object, const char* name, double* out) -> BooleanWord {
            *out = object == nullptr && std::string_view(name) == "DoubleValue" ? 2.5 : 0.0;
            return 1;
        });
    vqz::WordPredicate<host_interface::functions::REALGetPropValueDouble> reader("Reader");
    double real = 0.0;
    CHECK(reader(nullptr, "DoubleValue", &real));
    CHECK(real == 2.5);

    Offer(
        "Wide", +[](std::int64_t value) { return value - 1; });
    vqz::HostFunctionSlot<std::int64_t(std::int64_t)> wide("Wide");
    CHECK(wide(INT64_MIN + 1) == INT64_MIN);

    Offer(
        "Nothing", +[](std::int32_t) { ++calls; });
    vqz::HostFunctionSlot<void(std::int32_t)> nothing("Nothing");
    calls = 0;
    nothing(1);
    CHECK(calls == 1);
}
