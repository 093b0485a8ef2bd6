// Text of any bytes, in any encoding, by every way in; then what was read, written with any
// options.
#include <string_view>

#include "tests/fuzz/fuzzed_plugin.hpp"

namespace {

using fuzz::Input;
using host_interface::HostTextEncoding;
using host_interface::VariantTypeCode;
using tests::HeldObject;
using tests::HeldString;
using tests::NumberClass;
using tests::Object;
using tests::String;

constexpr HostTextEncoding Encodings[] = {
    HostTextEncoding::Utf8,           HostTextEncoding::Ascii,
    HostTextEncoding::Latin1,         HostTextEncoding::MacRoman,
    HostTextEncoding::WindowsAnsi,    HostTextEncoding::Unknown,
    HostTextEncoding::Utf16,          HostTextEncoding::Utf32,
    HostTextEncoding::Utf16BigEndian, HostTextEncoding::Utf32LittleEndian,
    static_cast<HostTextEncoding>(5)};

/// What reads a text into an object; `base` counts only where the way in has one.
using WayIn = HeldObject (*)(NumberClass& number, String text, std::int32_t base);

template <const char* Declaration>
HeldObject Construct(NumberClass& number, String text, std::int32_t) {
    HeldObject object = number.Unconstructed();
    number.Call<void>(Declaration, object.Get(), text);
    return object;
}

HeldObject SetProperty(NumberClass& number, String text, std::int32_t) {
    HeldObject object = number.Make("1");
    number.Set("StringValue", object.Get(), text);
    return object;
}

HeldObject SetInBase(NumberClass& number, String text, std::int32_t base) {
    HeldObject object = number.Make("1");
    const auto& method = number.Method("StringValue(Base as Integer) as String");
    tests::CallRoutine<void>(method.setter, object.Get(), base, text);
    return object;
}

HeldObject SetAndTellRest(NumberClass& number, String text, std::int32_t base) {
    HeldObject object = number.Make("1");
    String rest = nullptr;
    std::uint8_t isRead = 0;
    number.Call<void>(
        "SetStringValue(Text As String, Base as Integer, byref AfterText as String, Byref "
        "ValueRead as boolean)",
        object.Get(), text, base, &rest, &isRead);
    const HeldString held(rest);
    return object;
}

HeldObject SetVariant(NumberClass& number, String text, std::int32_t) {
    HeldObject object = number.Make("1");
    const HeldObject variant(standin::Host::Current().MakeVariant(
        static_cast<std::int32_t>(VariantTypeCode::String), text));
    number.Set("VariantValue", object.Get(), variant.Get());
    return object;
}

HeldObject MakeByFunction(NumberClass& number, String text, std::int32_t) {
    const auto& method = number.SharedMethod("NumberWithString(value as String) as $");
    return tests::CallRoutine<HeldObject>(method.function, text);
}

constexpr char Constructor[] = "Constructor(value as String)";
constexpr char Conversion[] = "Operator_Convert(value as String)";
constexpr WayIn WaysIn[] = {Construct<Constructor>,
                            Construct<Conversion>,
                            SetProperty,
                            SetInBase,
                            SetAndTellRest,
                            SetVariant,
                            MakeByFunction};

void Write(Input& input, NumberClass& number, Object object, String text) {
    const auto integer = [&] { return std::int32_t{input.Take<std::int8_t>()}; };
    const auto flag = [&] { return (input.Take<std::uint8_t>() & 1U) != 0; };
    const std::int32_t base = integer();
    const bool scientific = flag();
    const std::int32_t scientificFrom = integer();
    const std::int32_t round = integer();
    const bool trims = flag();
    const HeldString written(number.Call<HeldString>(
        "GetStringValue(Base as Integer = 10, scientific as boolean = false, scientificFrom as "
        "Integer = 15, round as Integer = -1, TrimZeros as Boolean = true, comma as String = "
        "\".\") as String",
        object, base, scientific, scientificFrom, round, trims, text));
}

void ReadAndWrite(Input& input) {
    fuzz::FuzzedPlugin& plugin = fuzz::FuzzedPlugin::Get();
    NumberClass& number = plugin.classes()[fuzz::FuzzedPlugin::TakeClass(input)];
    plugin.SetUp(input);
    const WayIn wayIn = input.OneOf(WaysIn);
    const auto encoding = input.OneOf(Encodings);
    const std::int32_t base = input.Take<std::int8_t>();
    Input options(input);
    input.Bytes(6);
    const HeldString text(plugin.host().MakeString(input.Rest(), encoding));

    const HeldObject object = wayIn(number, text.Get(), base);
    const HeldString shown = number.Get<HeldString>("StringValue", object.Get());
    Write(options, number, object.Get(), text.Get());
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input({data, size});
    ReadAndWrite(input);
    fuzz::FuzzedPlugin::Get().FinishInput();
    return 0;
}
