// How often the library looks up a function, a class or a method of its host: once for what is
// there, again at each call for what is missing.
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "tests/unit/tables/members.hpp"
#include "tests/unit/tables/recipes.hpp"
#include "tests/unit/tables/watched_plugin.hpp"

namespace {

using host_interface::VariantTypeCode;
using tests::HeldObject;
using tests::HeldString;
using tests::HostTextEncoding;
using tests::LoadedPlugin;
using tests::LookupCounts;
using tests::Member;
using tests::NumberClass;
using tests::NumberWithVariant;
using tests::Recipe;
using tests::Replace;
using tests::Shown;
using tests::TakeRaised;
using tests::WatchedPlugin;

namespace functions = host_interface::functions;

/// The names of the classes that the library looked up in the host, each followed by a blank.
std::string classesAsked;
bool knowsClasses = true;

host_interface::ClassReference AskedClass(const char* name) {
    classesAsked += std::string(name) + " ";
    static const auto original =
        reinterpret_cast<functions::pluginObjectType*>(standin::Host::Resolve("pluginObjectType"));
    return knowsClasses ? original(name) : nullptr;
}

int methodsLoaded = 0;
bool knowsMethods = true;

void* LoadedMethod(const char* module, const char* declaration) {
    ++methodsLoaded;
    CHECK(module == nullptr);
    CHECK(std::string_view(declaration) == "VarType(value As Variant) As Integer");
    static const auto original = reinterpret_cast<functions::REALLoadGlobalMethod*>(
        standin::Host::Resolve("REALLoadGlobalMethod"));
    return knowsMethods ? original(module, declaration) : nullptr;
}

int integersRead = 0;

host_interface::BooleanWord CountedInteger(host_interface::Object object, const char* property,
                                           host_interface::Integer* value) {
    ++integersRead;
    CHECK(std::string_view(property) == "Type");
    static const auto original = reinterpret_cast<functions::REALGetPropValueInteger*>(
        standin::Host::Resolve("REALGetPropValueInteger"));
    return original(object, property, value);
}

int timesLent = 0;
int timesGivenBack = 0;
int timesAskedForEncoding = 0;

host_interface::BooleanWord CountedLoan(host_interface::String text, std::uint32_t encoding,
                                        host_interface::StringData* out) {
    ++timesLent;
    static const auto original = reinterpret_cast<functions::PluginGetStringData*>(
        standin::Host::Resolve("PluginGetStringData"));
    return original(text, encoding, out);
}

void CountedReturn(host_interface::StringData* data) {
    ++timesGivenBack;
    static const auto original = reinterpret_cast<functions::PluginDisposeStringData*>(
        standin::Host::Resolve("PluginDisposeStringData"));
    original(data);
}

std::uint32_t CountedEncoding(host_interface::String text) {
    ++timesAskedForEncoding;
    static const auto original = reinterpret_cast<functions::REALGetStringEncoding*>(
        standin::Host::Resolve("REALGetStringEncoding"));
    return original(text);
}

int timesAskedForVersion = 0;

double ToldVersion() {
    ++timesAskedForVersion;
    return standin::CurrentHostVersion;
}

int timesAskedForRuntime = 0;

host_interface::BooleanWord NotInRuntime() {
    ++timesAskedForRuntime;
    return 0;
}

/// A host that counts these calls, from 0.
std::vector<tests::Replacement> CountedFunctions() {
    classesAsked.clear();
    knowsClasses = true;
    methodsLoaded = 0;
    knowsMethods = true;
    timesAskedForVersion = 0;
    timesAskedForRuntime = 0;
    return {Replace<functions::pluginObjectType>("pluginObjectType", &AskedClass),
            Replace<functions::REALLoadGlobalMethod>("REALLoadGlobalMethod", &LoadedMethod),
            Replace<functions::REALGetRBVersion>("REALGetRBVersion", &ToldVersion),
            Replace<functions::REALinRuntime>("REALinRuntime", &NotInRuntime)};
}

/// Calls every member of both classes: by the first recipe, and by each other one if it does not
/// take long.
void CallEverything(LoadedPlugin& plugin) {
    for (NumberClass& number : plugin.classes()) {
        for (const Member& member : MembersOf(number)) {
            const bool isFunction = !member.hasSelf() && member.Takes("number");
            for (const Recipe& recipe : tests::Recipes()) {
                if (&recipe == tests::Recipes().data() ||
                    (!isFunction && recipe.Concerns(member) && recipe.name != "huge number")) {
                    const tests::OwnedSamples samples(plugin, number, recipe);
                    member.Call(samples.Get());
                    TakeRaised(plugin.host());
                }
            }
        }
    }
}

HeldObject Variant(WatchedPlugin& plugin, VariantTypeCode code, standin::VariantValue value) {
    return HeldObject(plugin.host().MakeVariant(static_cast<std::int32_t>(code), value));
}

/// What a call makes the library look up.
struct Lookups {
    const char* call;
    std::function<void(WatchedPlugin&, NumberClass&)> make;
    /// The functions that the host lacks.
    std::vector<const char*> missing;
    /// What each such call looks up once everything that is there was found.
    const char* expected;
};

template <typename Value>
auto Read(VariantTypeCode code, Value value) {
    return [code, value](WatchedPlugin& plugin, NumberClass& number) {
        NumberWithVariant(number, Variant(plugin, code, value).Get());
    };
}

void SetReal(WatchedPlugin& plugin, NumberClass& number) {
    const HeldObject object = number.Make("7");
    number.Set("VariantValue", object.Get(), Variant(plugin, VariantTypeCode::Double, 2.5).Get());
}

void ReadText(WatchedPlugin& plugin, NumberClass& number) {
    const HeldString text = plugin.MakeString("5");
    NumberWithVariant(number, Variant(plugin, VariantTypeCode::String, text.Get()).Get());
}

void ReadAccents(WatchedPlugin& plugin, NumberClass& number) {
    const HeldObject object = number.Unconstructed();
    const HeldString text = plugin.MakeString("5\xE9", HostTextEncoding::Latin1);
    number.Call<void>("Constructor(value as String)", object.Get(), text.Get());
}

void ReadDate(WatchedPlugin& plugin, NumberClass& number) {
    NumberWithVariant(number, HeldObject(plugin.host().MakeDate(3.5)).Get());
}

void ReadDateTime(WatchedPlugin& plugin, NumberClass& number) {
    NumberWithVariant(number, HeldObject(plugin.host().MakeDateTime(3.5)).Get());
}

void ReadObject(WatchedPlugin& plugin, NumberClass& number) {
    NumberWithVariant(number, HeldObject(plugin.host().MakeMemoryBlock("x")).Get());
}

template <const char* const& Text>
void MakeVariantOf(WatchedPlugin&, NumberClass& number) {
    const HeldObject object = number.Make(Text);
    number.Get<HeldObject>("VariantValue", object.Get());
}

constexpr const char* Narrow = "5";
constexpr const char* Wide = "1099511627776";
constexpr const char* Fraction = "1.5";

void GetMantissa(WatchedPlugin&, NumberClass& number) {
    const HeldObject object = number.Make("5");
    number.Get<HeldObject>("DataMantissa", object.Get());
}

void SetMantissa(WatchedPlugin& plugin, NumberClass& number) {
    const HeldObject object = number.Make("5");
    const HeldObject block(plugin.host().MakeMemoryBlock("x"));
    number.Set("DataMantissa", object.Get(), block.Get());
}

void Negate(WatchedPlugin&, NumberClass& number) {
    const HeldObject object = number.Make("5");
    number.Call<HeldObject>("Negate as $", object.Get());
}

void FailToDivide(WatchedPlugin&, NumberClass& number) {
    const HeldObject one = number.Make("1");
    number.Call<HeldObject>("Operator_Divide(other as $) as $", one.Get(), nullptr);
}

}  // namespace

TEST_CASE("A host that has everything is asked once for each function") {
    for (const standin::HostOptions& options :
         {standin::HostOptions{}, standin::HostOptions{.version = 2011.99},
          standin::HostOptions{.unterminatedStrings = true}}) {
        if (!tests::HasHosts(options.version)) {
            continue;
        }
        CAPTURE(options.version.value());
        WatchedPlugin plugin({}, options);
        const LookupCounts atStart = WatchedPlugin::TakeLookups();
        CHECK(Shown(atStart) ==
              "PluginRegisterClass 1, REALGetRBVersion 1, REALinRuntime 1, "
              "RegisterPluginVersion 1");
        CallEverything(plugin.loaded());
        const LookupCounts later = WatchedPlugin::TakeLookups();
        CHECK(later.contains("PluginNewInstance"));
        CHECK(later.contains("VariantToInt32"));
        for (const auto& lookup : later) {
            CAPTURE(lookup.first);
            CHECK(lookup.second == 1);
            CHECK_FALSE(atStart.contains(lookup.first));
        }
        CallEverything(plugin.loaded());
        CHECK(Shown(WatchedPlugin::TakeLookups()) == "");
    }
}

TEST_CASE("A function that is missing is looked up again at each call, and nothing else is") {
    const std::int64_t five = 5;
    const Lookups rows[] = {
        {"Int32", Read(VariantTypeCode::Int32, five), {"VariantToInt32"}, "VariantToInt32 1"},
        {"Int64", Read(VariantTypeCode::Int64, five), {"VariantToInt64"}, "VariantToInt64 1"},
        {"UInt32",
         Read(VariantTypeCode::Int32, std::uint64_t{5}),
         {"VariantToUInt32"},
         "VariantToUInt32 1"},
        {"UInt64",
         Read(VariantTypeCode::Int64, std::uint64_t{5}),
         {"VariantToUInt64"},
         "VariantToUInt64 1"},
        {"Single", Read(VariantTypeCode::Single, 2.5), {"VariantToSingle"}, "VariantToSingle 1"},
        {"Double", SetReal, {"VariantToDouble"}, "VariantToDouble 1"},
        {"text", ReadText, {"VariantToString"}, "VariantToString 1"},
        {"Int32 without its reader and property",
         Read(VariantTypeCode::Int32, five),
         {"VariantToInt32", "REALGetPropValueInt"},
         "REALGetPropValueInt 1, VariantToInt32 1"},
        {"Currency by its fallback",
         Read(VariantTypeCode::Currency, five),
         {"REALGetPropValueCurrency"},
         ""},
        {"Currency",
         Read(VariantTypeCode::Currency, five),
         {"REALGetPropValueCurrency", "REALGetPropValueInt64"},
         "REALGetPropValueCurrency 1, REALGetPropValueInt64 1"},
        {"type",
         Read(VariantTypeCode::Int64, five),
         {"REALLoadGlobalMethod"},
         "REALLoadGlobalMethod 1"},
        {"type by its fallback",
         Read(VariantTypeCode::Int64, five),
         {"REALLoadGlobalMethod", "REALGetPropValueInteger"},
         HOST_INTERFACE_32_BIT != 0 ? "REALLoadGlobalMethod 1"
                                    : "REALGetPropValueInteger 1, REALLoadGlobalMethod 1"},
        {"no type",
         Read(VariantTypeCode::Int64, five),
         {"REALLoadGlobalMethod", "REALGetPropValueInteger", "REALGetPropValueInt"},
         HOST_INTERFACE_32_BIT != 0
             ? "REALGetPropValueInt 1, REALGetPropValueInteger 1, REALLoadGlobalMethod 1"
             : "REALGetPropValueInteger 1, REALLoadGlobalMethod 1"},
        {"class of an integer", Read(VariantTypeCode::Int32, five), {"pluginObjectType"}, ""},
        {"class of an object", ReadObject, {"pluginObjectType"}, "pluginObjectType 1"},
        {"instance", ReadObject, {"RuntimeObjectIsa"}, "RuntimeObjectIsa 1"},
        {"Date", ReadDate, {"REALGetPropValueDouble"}, "REALGetPropValueDouble 1"},
        {"DateTime", ReadDateTime, {"REALGetPropValueDouble"}, "REALGetPropValueDouble 1"},
        {"Int32 made", MakeVariantOf<Narrow>, {"Int32ToVariant"}, "Int32ToVariant 1"},
        {"Int64 made", MakeVariantOf<Wide>, {"Int64ToVariant"}, "Int64ToVariant 1"},
        {"text made", MakeVariantOf<Fraction>, {"StringToVariant"}, "StringToVariant 1"},
        {"block", GetMantissa, {"newMemoryBlock"}, "newMemoryBlock 1"},
        {"bytes", GetMantissa, {"memoryBlockGetPtr"}, "memoryBlockGetPtr 1"},
        {"size", SetMantissa, {"memoryBlockGetSize"}, "memoryBlockGetSize 1"},
        {"accents", ReadAccents, {"PluginGetStringData"}, "PluginGetStringData 1"},
        {"encoding", ReadAccents, {"REALGetStringEncoding"}, "REALGetStringEncoding 1"},
        {"number", Negate, {"PluginNewInstance"}, "PluginNewInstance 1"},
        {"exception", FailToDivide, {"PluginNewInstance"}, "PluginNewInstance 2"},
        {"raise", FailToDivide, {"RuntimeRaiseException"}, "RuntimeRaiseException 1"},
        {"message", FailToDivide, {"REALSetPropValueString"}, "REALSetPropValueString 1"},
        {"error number by its fallback",
         FailToDivide,
         {"REALSetPropValueInteger"},
         HOST_INTERFACE_32_BIT != 0 ? "" : "REALSetPropValueInteger 1"},
        {"error number",
         FailToDivide,
         {"REALSetPropValueInteger", "REALSetPropValueInt"},
         HOST_INTERFACE_32_BIT != 0 ? "REALSetPropValueInt 1, REALSetPropValueInteger 1"
                                    : "REALSetPropValueInteger 1"},
    };
    for (const Lookups& row : rows) {
        CAPTURE(row.call);
        WatchedPlugin plugin;
        for (const char* name : row.missing) {
            WatchedPlugin::Hide(name);
        }
        for (NumberClass& number : plugin.classes()) {
            row.make(plugin, number);
            WatchedPlugin::TakeLookups();
            for (int call = 0; call < 3; ++call) {
                row.make(plugin, number);
                CHECK(Shown(WatchedPlugin::TakeLookups()) == row.expected);
            }
        }
        // Once they are there they are found, and kept.
        for (const char* name : row.missing) {
            WatchedPlugin::Show(name);
        }
        for (NumberClass& number : plugin.classes()) {
            row.make(plugin, number);
        }
        WatchedPlugin::TakeLookups();
        row.make(plugin, plugin.bigNumber());
        CHECK(Shown(WatchedPlugin::TakeLookups()) == "");
        TakeRaised(plugin.host());
    }
}

TEST_CASE("The classes of unsigned Variants are asked for once, whether the host has them or not") {
    for (const bool known : {true, false}) {
        CAPTURE(known);
        WatchedPlugin plugin(CountedFunctions());
        knowsClasses = known;
        const HeldObject narrow =
            Variant(plugin, VariantTypeCode::Int32, std::uint64_t{0xFFFFFFFF});
        const HeldObject wide = Variant(plugin, VariantTypeCode::Int64, ~std::uint64_t{0});
        CHECK(classesAsked == "");
        const auto readBoth = [&] {
            for (NumberClass& number : plugin.classes()) {
                for (const HeldObject* variant : {&narrow, &wide, &narrow, &wide}) {
                    const HeldObject made = NumberWithVariant(number, variant->Get());
                    CHECK(number.Get<bool>("IsNegative", made.Get()) == !known);
                    const HeldObject set = number.Make("7");
                    number.Set("VariantValue", set.Get(), variant->Get());
                    CHECK(number.Get<bool>("IsNegative", set.Get()) == !known);
                }
            }
        };
        readBoth();
        CHECK(classesAsked == "_VariantUInt32 _VariantUInt64 ");
        // A host that learns of them later is not asked again.
        knowsClasses = true;
        readBoth();
        CHECK(classesAsked == "_VariantUInt32 _VariantUInt64 ");
    }
}

TEST_CASE("No class is asked for a Variant that holds neither an integer nor an object") {
    WatchedPlugin plugin(CountedFunctions());
    for (NumberClass& number : plugin.classes()) {
        for (const VariantTypeCode code :
             {VariantTypeCode::Boolean, VariantTypeCode::Color, VariantTypeCode::Currency}) {
            NumberWithVariant(number, Variant(plugin, code, std::int64_t{1}).Get());
        }
        ReadText(plugin, number);
        ReadDate(plugin, number);
    }
    CHECK(classesAsked == "");
}

TEST_CASE("The class of an object is asked for at each call") {
    WatchedPlugin plugin(CountedFunctions());
    for (NumberClass& number : plugin.classes()) {
        classesAsked.clear();
        const HeldObject value = number.Make("2.5");
        const HeldObject target = number.Make("7");
        NumberWithVariant(number, value.Get());
        NumberWithVariant(number, value.Get());
        number.Set("VariantValue", target.Get(), value.Get());
        std::string expected;
        for (int k = 0; k < 3; ++k) {
            expected.append(number.name()).append(" ");
        }
        CHECK(classesAsked == expected);
        CHECK(number.Text(target.Get()) == "2.5");
    }
}

TEST_CASE("The method that tells a Variant's type is loaded once, when the host has it") {
    WatchedPlugin plugin(CountedFunctions());
    const HeldObject five = Variant(plugin, VariantTypeCode::Int32, std::int64_t{5});
    const auto read = [&] {
        for (NumberClass& number : plugin.classes()) {
            CHECK(number.Text(NumberWithVariant(number, five.Get()).Get()) == "5");
        }
    };
    knowsMethods = false;
    read();
    read();
    CHECK(methodsLoaded == 4);
    knowsMethods = true;
    read();
    read();
    CHECK(methodsLoaded == 5);
}

TEST_CASE("The property that tells a Variant's type is read only when the host lacks the method") {
    for (const bool known : {true, false}) {
        CAPTURE(known);
        std::vector<tests::Replacement> replacements = CountedFunctions();
        replacements.push_back(Replace<functions::REALGetPropValueInteger>(
            "REALGetPropValueInteger", &CountedInteger));
        WatchedPlugin plugin(replacements);
        knowsMethods = known;
        integersRead = 0;
        const HeldObject five = Variant(plugin, VariantTypeCode::Int32, std::int64_t{5});
        for (NumberClass& number : plugin.classes()) {
            CHECK(number.Text(NumberWithVariant(number, five.Get()).Get()) == "5");
        }
        CHECK(integersRead == (known ? 0 : 2));
    }
}

TEST_CASE("The host's version and kind are asked for at the start only") {
    WatchedPlugin plugin(CountedFunctions());
    CallEverything(plugin.loaded());
    CHECK(timesAskedForVersion == 1);
    CHECK(timesAskedForRuntime == 1);
}

TEST_CASE("A text is asked for its encoding and its bytes once, and they are given back once") {
    WatchedPlugin plugin(
        {Replace<functions::PluginGetStringData>("PluginGetStringData", &CountedLoan),
         Replace<functions::PluginDisposeStringData>("PluginDisposeStringData", &CountedReturn),
         Replace<functions::REALGetStringEncoding>("REALGetStringEncoding", &CountedEncoding)});
    for (NumberClass& number : plugin.classes()) {
        int members = 0;
        for (const Member& member : MembersOf(number)) {
            const bool takesVariant = member.Takes("variant");
            if (!member.Takes("string") && !takesVariant) {
                continue;
            }
            CAPTURE(member.name());
            tests::OwnedSamples owned(plugin.loaded(), number);
            const HeldString text = plugin.MakeString("5\xE9", HostTextEncoding::Latin1);
            const HeldObject variant = Variant(plugin, VariantTypeCode::String, text.Get());
            tests::Samples samples = owned.Get();
            samples.text = text.Get();
            samples.variant = variant.Get();
            samples.integer = 10;
            timesLent = timesGivenBack = timesAskedForEncoding = 0;
            member.Call(samples);
            // Beside the converted text, 64-bit hosts lend the bytes as they are.
            constexpr int Loans = HOST_INTERFACE_32_BIT != 0 ? 1 : 2;
            CHECK(timesLent == Loans);
            CHECK(timesGivenBack == Loans);
            CHECK(timesAskedForEncoding == 1);
            CHECK(TakeRaised(plugin.host()) == "");
            ++members;
        }
        CHECK(members == 9);
    }
}

TEST_CASE("The environment is read at the start only") {
    WatchedPlugin plugin;
    const tests::EnvironmentVariable setting("VQZDEBUG", "1");
    CallEverything(plugin.loaded());
    CHECK(plugin.host().TakeDebugLog().empty());
    const auto& debugging = plugin.bigNumber().info().sharedProperties.at(0);
    CHECK_FALSE(tests::CallRoutine<bool>(debugging.getter));
}
