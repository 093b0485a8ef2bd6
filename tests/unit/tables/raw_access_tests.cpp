// The bytes of a number: reading and writing them, and what everything makes of bytes that no
// computation would have left.
#include <cstdint>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "tests/unit/tables/loaded_plugin.hpp"
#include "tests/unit/tables/members.hpp"

namespace {

using host_interface::Integer;
using tests::HeldObject;
using tests::HeldString;
using tests::LoadedPlugin;
using tests::LogLines;
using tests::Member;
using tests::NumberClass;
using tests::Object;
using tests::Samples;
using tests::TakeRaised;

/// Bytes of the mantissa and of the exponent.
struct PartSizes {
    std::size_t mantissa;
    std::size_t exponent;
};

PartSizes SizesOf(const NumberClass& number) {
    return number.name() == "BigNumberVQZ" ? PartSizes{32, 8} : PartSizes{256, 64};
}

std::string BlockText(LoadedPlugin& plugin, Object block) {
    const auto bytes = plugin.host().BlockBytes(block);
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

HeldObject BlockOf(LoadedPlugin& plugin, const std::string& bytes) {
    return HeldObject(plugin.host().MakeMemoryBlock(bytes));
}

/// The message of "RaiseParameterOutOfBounds" for a block; for the exponent's block, too, it names
/// the mantissa.
std::string WrongSize(std::size_t wanted, std::size_t given) {
    const std::string size = std::to_string(wanted);
    return std::string("OutOfBoundsException: The parameter MemoryBlock.Size to method ")
        .append("DataMantissa is too ")
        .append(given < wanted ? "small" : "big")
        .append(". Range is " + size + " to " + size)
        .append(", but value is " + std::to_string(given) + ".");
}

void SetRaw(LoadedPlugin& plugin, NumberClass& number, Object object, const std::string& mantissa,
            const std::string& exponent, int flags) {
    number.Set("DataMantissa", object, BlockOf(plugin, mantissa).Get());
    number.Set("DataExponent", object, BlockOf(plugin, exponent).Get());
    number.Set("DataFlags", object, flags);
}

}  // namespace

TEST_CASE("A number saved as bytes is restored bit for bit") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const auto [mantissaSize, exponentSize] = SizesOf(number);
        for (const char* text : {"0", "1", "-1", "0.1", "-123.456", "1e500", "-1e-500"}) {
            CAPTURE(text);
            const HeldObject original = number.Make(text);
            const auto mantissa = number.Get<HeldObject>("DataMantissa", original.Get());
            const auto exponent = number.Get<HeldObject>("DataExponent", original.Get());
            const auto flags = number.Get<Integer>("DataFlags", original.Get());
            CHECK(BlockText(plugin, mantissa.Get()).size() == mantissaSize);
            CHECK(BlockText(plugin, exponent.Get()).size() == exponentSize);
            CHECK(BlockText(plugin, exponent.Get()) + BlockText(plugin, mantissa.Get()) +
                      static_cast<char>(flags) ==
                  number.ValueBytes(original.Get()));

            const HeldObject restored = number.Make("7");
            number.Set("DataMantissa", restored.Get(), mantissa.Get());
            number.Set("DataExponent", restored.Get(), exponent.Get());
            number.Set("DataFlags", restored.Get(), flags);
            CHECK(number.ValueBytes(restored.Get()) == number.ValueBytes(original.Get()));
            CHECK(
                number.Call<bool>("Equals(other as $) as Boolean", original.Get(), restored.Get()));
            CHECK(number.Text(restored.Get()) == number.Text(original.Get()));
        }
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("The value is mantissa times two to the power of the exponent") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const auto [mantissaSize, exponentSize] = SizesOf(number);
        // The top bit of the mantissa and an exponent of 0: 2 to the power of the mantissa's last
        // bit.
        std::string mantissa(mantissaSize, '\0');
        mantissa.back() = '\x80';
        const HeldObject object = number.Make("7");
        SetRaw(plugin, number, object.Get(), mantissa, std::string(exponentSize, '\0'), 0);
        const HeldObject two = number.Make("2");
        const HeldObject power = number.Make(std::to_string(8 * mantissaSize - 1));
        const auto expected =
            number.Call<HeldObject>("Pow(other as $) as $", two.Get(), power.Get());
        CHECK(number.ValueBytes(object.Get()) == number.ValueBytes(expected.Get()));
    }
}

TEST_CASE("The flags are the low byte of what is set") {
    LoadedPlugin plugin;
    struct Row {
        Integer set;
        Integer read;
    };
    constexpr Row Rows[] = {{0, 0},    {32, 32},  {96, 96}, {128, 128}, {255, 255},   {256, 0},
                            {288, 32}, {-1, 255}, {31, 31}, {-256, 0},  {1024 + 7, 7}};
    for (NumberClass& number : plugin.classes()) {
        CHECK(number.Get<Integer>("DataFlags", number.Make("0").Get()) == 32);
        CHECK(number.Get<Integer>("DataFlags", number.Make("-1").Get()) == 128);
        CHECK(number.Get<Integer>("DataFlags", number.MakeNan().Get()) == 96);
        const HeldObject object = number.Make("5");
        for (const Row& row : Rows) {
            CAPTURE(row.set);
            number.Set("DataFlags", object.Get(), row.set);
            CHECK(number.Get<Integer>("DataFlags", object.Get()) == row.read);
            CHECK(number.Flags(object.Get()) == row.read);
        }
    }
}

TEST_CASE("A block of another size is refused and the number stays as it is") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const auto [mantissaSize, exponentSize] = SizesOf(number);
        const HeldObject object = number.Make("-12.5");
        const std::string before = number.ValueBytes(object.Get());
        struct Part {
            const char* name;
            std::size_t size;
        };
        for (const Part& part :
             {Part{"DataMantissa", mantissaSize}, Part{"DataExponent", exponentSize}}) {
            CAPTURE(part.name);
            for (const std::size_t size :
                 {std::size_t{0}, std::size_t{1}, std::size_t{9}, part.size - 1, part.size + 1,
                  std::size_t{100}, std::size_t{5000}}) {
                CAPTURE(size);
                const HeldObject block = BlockOf(plugin, std::string(size, 'x'));
                number.Set(part.name, object.Get(), block.Get());
                CHECK(TakeRaised(plugin.host()) == WrongSize(part.size, size));
                CHECK(number.ValueBytes(object.Get()) == before);
            }
            CHECK(plugin.LogOf([&] { number.Set(part.name, object.Get(), nullptr); }) ==
                  LogLines({"mem is nil"}));
            CHECK(TakeRaised(plugin.host()) == "NilObjectException: MemoryBlock is nil");
            CHECK(number.ValueBytes(object.Get()) == before);
        }
    }
}

TEST_CASE("An object without a value has no bytes to read or write") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const auto [mantissaSize, exponentSize] = SizesOf(number);
        const HeldObject neverMade = number.Unconstructed();
        const HeldObject ended = number.Make("5");
        tests::CallRoutine<void>(number.info().destructor, ended.Get());
        const HeldObject mantissa = BlockOf(plugin, std::string(mantissaSize, '\1'));
        const HeldObject exponent = BlockOf(plugin, std::string(exponentSize, '\1'));
        for (const Object object : {Object{}, neverMade.Get(), ended.Get()}) {
            const auto refused = [&](auto access) {
                CHECK(plugin.LogOf(access) == LogLines({"me->ref is nil"}));
                CHECK(TakeRaised(plugin.host()) == "NilObjectException: Not initialized");
            };
            refused([&] { CHECK_FALSE(number.Get<HeldObject>("DataMantissa", object)); });
            refused([&] { CHECK_FALSE(number.Get<HeldObject>("DataExponent", object)); });
            refused([&] { CHECK(number.Get<Integer>("DataFlags", object) == 0); });
            refused([&] { number.Set("DataMantissa", object, mantissa.Get()); });
            refused([&] { number.Set("DataExponent", object, exponent.Get()); });
            refused([&] { number.Set("DataFlags", object, 32); });
            // The missing value comes before the missing block.
            refused([&] { number.Set("DataMantissa", object, nullptr); });
        }
    }
}

TEST_CASE("A host that makes no block gives no bytes") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("5");
        const std::string size = std::to_string(SizesOf(number).mantissa);
        plugin.SwitchDebugLog(true);
        plugin.host().TakeDebugLog();
        plugin.host().FailAllocation(standin::Allocation::Object, 1, false);
        CHECK_FALSE(number.Get<HeldObject>("DataMantissa", object.Get()));
        plugin.host().StopFailing();
        CHECK(tests::Joined(plugin.host().TakeDebugLog()) ==
              LogLines({"Error: Failed to allocate memoryblock " + size}));
        plugin.SwitchDebugLog(false);
        CHECK(TakeRaised(plugin.host()) ==
              "OutOfMemoryException: Failed to allocate a memoryblock with " + size +
                  " bytes in size.");
    }
}

TEST_CASE("Blocks that have no data are neither filled nor read") {
    LoadedPlugin plugin(standin::HostOptions{.blocksWithoutData = true});
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("5");
        const std::string before = number.ValueBytes(object.Get());
        const std::string size = std::to_string(SizesOf(number).exponent);
        CHECK_FALSE(number.Get<HeldObject>("DataExponent", object.Get()));
        CHECK(TakeRaised(plugin.host()) ==
              "OutOfMemoryException: Failed to allocate a memoryblock with " + size +
                  " bytes in size.");
        const HeldObject block = BlockOf(plugin, std::string(SizesOf(number).exponent, '\1'));
        number.Set("DataExponent", object.Get(), block.Get());
        CHECK(TakeRaised(plugin.host()) == WrongSize(SizesOf(number).exponent, 0));
        CHECK(number.ValueBytes(object.Get()) == before);
    }
}

TEST_CASE("The arithmetic library names its build in ASCII") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const auto text =
            tests::CallRoutine<HeldString>(number.SharedMethod("LibTypeStr as String").function);
        CHECK(plugin.host().Bytes(text.Get()) == "no_asm_32");
        CHECK(plugin.host().Encoding(text.Get()) == host_interface::HostTextEncoding::Ascii);
    }
}

namespace {

/// Bytes of a part, by the word that fills it and the word on top.
std::string PartBytes(std::size_t size, std::uint32_t fill, std::uint32_t top) {
    std::string bytes;
    for (std::size_t position = 0; position < size; position += 4) {
        const std::uint32_t word = position + 4 == size ? top : fill;
        for (int byte = 0; byte < 4; ++byte) {
            bytes.push_back(static_cast<char>(word >> (8 * byte)));
        }
    }
    return bytes;
}

/// A signed number that fits the part's lowest word, sign-extended.
std::string ExponentBytes(std::size_t size, std::int32_t value) {
    const std::uint32_t extension = value < 0 ? 0xFFFFFFFF : 0;
    std::string bytes = PartBytes(size, extension, extension);
    bytes.replace(0, 4, PartBytes(4, 0, static_cast<std::uint32_t>(value)));
    return bytes;
}

/// Calls every member with numbers of these bytes: as receiver, as operand, and as both.
void CallEverything(LoadedPlugin& plugin, NumberClass& number, const std::string& mantissa,
                    const std::string& exponent, int flags) {
    const std::vector<Member> members = MembersOf(number);
    const HeldObject block = BlockOf(plugin, mantissa);
    const HeldString text = plugin.MakeString("12.5");
    const HeldObject plain = number.Make("1.5");
    for (const Member& member : members) {
        CAPTURE(member.name());
        for (const bool hostileSelf : {true, false}) {
            for (const bool hostileOther : {true, false}) {
                const HeldObject self = number.Make("2.5");
                const HeldObject other = number.Make("2.5");
                if (hostileSelf) {
                    SetRaw(plugin, number, self.Get(), mantissa, exponent, flags);
                }
                if (hostileOther) {
                    SetRaw(plugin, number, other.Get(), mantissa, exponent, flags);
                }
                const std::string otherBefore = number.ValueBytes(other.Get());
                const Samples samples = {.self = self.Get(),
                                         .number = other.Get(),
                                         .text = text.Get(),
                                         .variant = other.Get(),
                                         .memoryBlock = block.Get()};
                member.Call(samples);
                CHECK(number.ValueBytes(other.Get()) == otherBefore);
                const HeldObject raised(plugin.host().TakeException());
            }
        }
    }
}

}  // namespace

TEST_CASE("Whatever bytes are written, every member ends and loses nothing") {
    LoadedPlugin plugin;
    struct Pattern {
        std::uint32_t fill;
        std::uint32_t top;
        int flags;
    };
    // Unnormalised and empty mantissas, and flags that contradict them or that nobody defined.
    constexpr Pattern Patterns[] = {
        {0, 0, 0},
        {0, 0, 128},
        {0, 1, 0},
        {1, 0, 128},
        {0xFFFFFFFF, 0x7FFFFFFF, 0},
        {0xFFFFFFFF, 0xFFFFFFFF, 0},
        {0xFFFFFFFF, 0xFFFFFFFF, 32},
        {0xFFFFFFFF, 0xFFFFFFFF, 64},
        {0, 0x80000000, 32 + 128},
        {0, 0x80000000, 31},
        {0x12345678, 0x80000001, 255},
        {0, 0x40000000, 128},
    };
    NumberClass& number = plugin.bigNumber();
    const auto [mantissaSize, exponentSize] = SizesOf(number);
    // Around the places where bits leave the number, and both ends of the range.
    const std::string exponents[] = {
        ExponentBytes(exponentSize, 0),         ExponentBytes(exponentSize, -1),
        ExponentBytes(exponentSize, -224),      ExponentBytes(exponentSize, -255),
        ExponentBytes(exponentSize, -256),      PartBytes(exponentSize, 0xFFFFFFFF, 0x7FFFFFFF),
        PartBytes(exponentSize, 0, 0x80000000),
    };
    for (const Pattern& pattern : Patterns) {
        CAPTURE(pattern.fill);
        CAPTURE(pattern.top);
        CAPTURE(pattern.flags);
        for (const std::string& exponent : exponents) {
            CallEverything(plugin, number, PartBytes(mantissaSize, pattern.fill, pattern.top),
                           exponent, pattern.flags);
        }
    }
}

TEST_CASE("The larger precision survives strange bytes as well") {
    LoadedPlugin plugin;
    NumberClass& number = plugin.biggerNumber();
    const auto [mantissaSize, exponentSize] = SizesOf(number);
    CallEverything(plugin, number, PartBytes(mantissaSize, 0xFFFFFFFF, 0x7FFFFFFF),
                   ExponentBytes(exponentSize, -2047), 31);
    CallEverything(plugin, number, PartBytes(mantissaSize, 0, 0), ExponentBytes(exponentSize, -1),
                   128);
}
