// Currencies in and out are rounded, not cut: at every place where a number is made of an amount,
// and where an amount is made of a number.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "tests/unit/tables/watched_plugin.hpp"

namespace {

using tests::HeldObject;
using tests::LoadedPlugin;
using tests::NumberClass;
using tests::NumberWithVariant;
using tests::Object;
using tests::TakeRaised;

constexpr const char* Divide = "Divide(other as $, round as boolean = true) as $";
constexpr const char* Multiply = "Multiply(other as $, round as boolean = true) as $";

HeldObject Whole(NumberClass& number, std::int64_t value) {
    HeldObject object = number.Unconstructed();
    number.Call<void>("Constructor(value as Int64)", object.Get(), value);
    return object;
}

/// One way to make a number of an amount.
struct Way {
    const char* name;
    std::function<HeldObject(LoadedPlugin&, NumberClass&, std::int64_t)> make;
};

HeldObject CurrencyVariant(LoadedPlugin& plugin, std::int64_t amount) {
    return HeldObject(plugin.host().MakeVariant(
        static_cast<std::int32_t>(host_interface::VariantTypeCode::Currency), amount));
}

HeldObject Construct(LoadedPlugin&, NumberClass& number, std::int64_t amount) {
    HeldObject object = number.Unconstructed();
    number.Call<void>("Constructor(value as Currency)", object.Get(), amount);
    return object;
}

HeldObject SetProperty(LoadedPlugin&, NumberClass& number, std::int64_t amount) {
    HeldObject object = number.Make("7");
    number.Set("CurrencyValue", object.Get(), amount);
    return object;
}

HeldObject CallShared(LoadedPlugin&, NumberClass& number, std::int64_t amount) {
    return tests::CallRoutine<HeldObject>(
        number.SharedMethod("NumberWithCurrency(value as Currency) as $").function, amount);
}

HeldObject SetVariant(LoadedPlugin& plugin, NumberClass& number, std::int64_t amount) {
    HeldObject object = number.Make("7");
    number.Set("VariantValue", object.Get(), CurrencyVariant(plugin, amount).Get());
    return object;
}

HeldObject CallSharedWithVariant(LoadedPlugin& plugin, NumberClass& number, std::int64_t amount) {
    return NumberWithVariant(number, CurrencyVariant(plugin, amount).Get());
}

/// The CurrencyValue of `value` scaled and rounded to an integer, with a product that is rounded or
/// cut.
std::int64_t Scaled(NumberClass& number, Object value, Object scale, bool round) {
    const auto product = number.Call<HeldObject>(Multiply, value, scale, round);
    const auto whole = number.Call<HeldObject>("Round as $", product.Get());
    return number.Get<std::int64_t>("Int64Value", whole.Get());
}

}  // namespace

TEST_CASE("An amount becomes the ten-thousandth that is rounded to the number's precision") {
    LoadedPlugin plugin;
    const Way ways[] = {{"constructor", Construct},
                        {"property", SetProperty},
                        {"shared method", CallShared},
                        {"Variant set", SetVariant},
                        {"Variant in the shared method", CallSharedWithVariant}};
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldObject scale = Whole(number, 10000);
        int roundedUp = 0;
        int exact = 0;
        for (std::int64_t step = 0; step < 40; ++step) {
            for (const std::int64_t amount :
                 {step, -step, INT64_MAX - step, INT64_MIN + step, 1234567 * step}) {
                CAPTURE(amount);
                const HeldObject whole = Whole(number, amount);
                const auto quotient = [&](bool round) {
                    const auto result =
                        number.Call<HeldObject>(Divide, whole.Get(), scale.Get(), round);
                    return number.ValueBytes(result.Get());
                };
                const std::string rounded = quotient(true);
                ++(rounded == quotient(false) ? exact : roundedUp);
                for (const Way& way : ways) {
                    CAPTURE(way.name);
                    for (const bool logs : {false, true}) {
                        plugin.SwitchDebugLog(logs);
                        const HeldObject made = way.make(plugin, number, amount);
                        plugin.SwitchDebugLog(false);
                        CHECK(number.ValueBytes(made.Get()) == rounded);
                    }
                }
            }
        }
        // Both kinds were among them.
        CHECK(roundedUp >= 20);
        CHECK(exact >= 20);
        plugin.host().TakeDebugLog();
    }
}

TEST_CASE("A number is scaled to an amount by a product that is rounded") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldObject scale = Whole(number, 10000);
        const HeldObject two = Whole(number, 2);
        int different = 0;
        for (std::int64_t odd = 1; odd < 400; odd += 2) {
            for (const std::int64_t half : {odd, -odd, 1000003 * odd}) {
                CAPTURE(half);
                // Half an amount, which the number's precision holds only nearly: the cut product
                // lies below the half in many cases, and the rounded one on it.
                const HeldObject doubled = Whole(number, half);
                const auto exact = number.Call<HeldObject>(Divide, doubled.Get(), two.Get(), true);
                const auto value = number.Call<HeldObject>(Divide, exact.Get(), scale.Get(), true);
                const std::int64_t expected = Scaled(number, value.Get(), scale.Get(), true);
                if (expected != Scaled(number, value.Get(), scale.Get(), false)) {
                    ++different;
                }
                for (const bool logs : {false, true}) {
                    plugin.SwitchDebugLog(logs);
                    CHECK(number.Get<std::int64_t>("CurrencyValue", value.Get()) == expected);
                    plugin.SwitchDebugLog(false);
                }
            }
        }
        CHECK(different >= 20);
        plugin.host().TakeDebugLog();
        CHECK(TakeRaised(plugin.host()) == "");
    }
}
