#include "standin/language/dictionary.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

#include "standin/language/array_members.hpp"
#include "standin/language/native_data.hpp"
#include "standin/language/pair.hpp"
#include "standin/language/text.hpp"
#include "standin/language/unicode.hpp"

namespace standin::language {
namespace {

using Arguments = std::vector<Value>;

/// What a dictionary holds, in the order in which it came. Keys and values are Variants.
class Entries final : public NativeData {
public:
    ~Entries() override { Bury(TakeAll()); }

    std::size_t count() const { return items_.size(); }
    const std::pair<Value, Value>& At(std::size_t index) const { return items_[index]; }

    /// The value of a key; null without it.
    Value* Find(const std::string& name) {
        const auto found = places_.find(name);
        return found == places_.end() ? nullptr : &items_[found->second].second;
    }
    void Add(const std::string& name, const Value& key, Value value) {
        items_.emplace_back(key, std::move(value));
        places_.emplace(name, items_.size() - 1);
    }
    /// Takes a key and its value out.
    std::pair<Value, Value> Remove(const std::string& name) {
        const auto found = places_.find(name);
        const auto index = found->second;
        auto removed = std::move(items_[index]);
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
        places_.erase(found);
        for (auto& [other, place] : places_) {
            place -= place > index ? 1 : 0;
        }
        return removed;
    }
    std::vector<Value> TakeAll() {
        std::vector<Value> values;
        for (auto& [key, value] : items_) {
            values.push_back(std::move(key));
            values.push_back(std::move(value));
        }
        items_.clear();
        places_.clear();
        return values;
    }

protected:
    void MoveTo(std::vector<Value>& list) override {
        auto values = TakeAll();
        list.insert(list.end(), std::make_move_iterator(values.begin()),
                    std::make_move_iterator(values.end()));
    }

private:
    using Item = std::pair<Value, Value>;

    std::vector<Item, BudgetAllocator<Item>> items_;
    std::unordered_map<std::string, std::size_t> places_;
};

Entries& EntriesOf(const Arguments& arguments, const Machine& machine) {
    return *static_cast<Entries*>(machine.host().Held(arguments[0].object()));
}

/// Equal keys have the same name: numbers of one value, texts but for letter case, an
/// object and itself.
std::string NameOfKey(const Value& key, const Machine& machine) {
    Host& host = machine.host();
    const auto contents = host.VariantContents(key.object());
    if (std::holds_alternative<String>(contents)) {
        return "t" + Lowercase(host.Utf8(std::get<String>(contents)));
    }
    if (std::holds_alternative<std::monostate>(contents)) {
        return "o" + std::to_string(reinterpret_cast<std::uintptr_t>(key.object()));
    }
    return "n" + ShortestText(host.VariantAsDouble(key.object()));
}

/// A later value of a key takes the place of an earlier one.
void Set(Entries& entries, const Value& key, const Value& value, const Machine& machine) {
    const auto name = NameOfKey(key, machine);
    if (auto* known = entries.Find(name)) {
        auto old = std::exchange(*known, value);
    } else {
        entries.Add(name, key, value);
    }
}

Value MakeDictionary(const Arguments& arguments, const Machine& machine) {
    Host& host = machine.host();
    const auto& info = host.ProgramClass(std::string(DictionaryClass));
    auto made = Value::Adopt(host.MakeObject(info, std::make_unique<Entries>()));
    if (made.object() == nullptr) {
        machine.Raise("OutOfMemoryException", "There is no memory for a new Dictionary.");
    }
    auto& entries = *static_cast<Entries*>(host.Held(made.object()));
    for (const auto& pair : RequireArray(arguments[0], machine).items) {
        machine.RequireObject(pair);
        Set(entries, LeftOf(pair, machine), RightOf(pair, machine), machine);
    }
    return made;
}

Value GetValue(const Arguments& arguments, const Machine& machine) {
    const auto* value = EntriesOf(arguments, machine).Find(NameOfKey(arguments[1], machine));
    if (value == nullptr) {
        machine.Raise("KeyNotFoundException", "The Dictionary has no such key.");
    }
    return *value;
}

Value SetValue(const Arguments& arguments, const Machine& machine) {
    Set(EntriesOf(arguments, machine), arguments[1], arguments[2], machine);
    return {};
}

Value Lookup(const Arguments& arguments, const Machine& machine) {
    const auto* value = EntriesOf(arguments, machine).Find(NameOfKey(arguments[1], machine));
    return value == nullptr ? arguments[2] : *value;
}

Value HasKey(const Arguments& arguments, const Machine& machine) {
    return Value::Of(EntriesOf(arguments, machine).Find(NameOfKey(arguments[1], machine)) !=
                     nullptr);
}

Value Remove(const Arguments& arguments, const Machine& machine) {
    auto& entries = EntriesOf(arguments, machine);
    const auto name = NameOfKey(arguments[1], machine);
    if (entries.Find(name) == nullptr) {
        machine.Raise("KeyNotFoundException", "The Dictionary has no such key.");
    }
    const auto removed = entries.Remove(name);
    return {};
}

Value RemoveAll(const Arguments& arguments, const Machine& machine) {
    const auto removed = EntriesOf(arguments, machine).TakeAll();
    return {};
}

Value Count(const Arguments& arguments, const Machine& machine) {
    return Value::Of(EntriesOf(arguments, machine).count());
}

template <bool IsKey>
Value At(const Arguments& arguments, const Machine& machine) {
    const auto& entries = EntriesOf(arguments, machine);
    const auto index = arguments[1].Get<std::int64_t>();
    if (index < 0 || !std::cmp_less(index, entries.count())) {
        machine.Raise("OutOfBoundsException", "The Dictionary has no entry with that index.");
    }
    const auto& entry = entries.At(static_cast<std::size_t>(index));
    return IsKey ? entry.first : entry.second;
}

template <bool IsKey>
Value All(const Arguments& arguments, const Machine& machine) {
    const auto& entries = EntriesOf(arguments, machine);
    auto array = Value::DefaultOf(Type::ArrayOf({Kind::Variant}));
    for (std::size_t i = 0; i < entries.count(); ++i) {
        array.array()->items.push_back(IsKey ? entries.At(i).first : entries.At(i).second);
    }
    return array;
}

template <const Value& (*Side)(const Value&, const Machine&)>
Value SideOfEntry(const Arguments& arguments, const Machine& machine) {
    return Side(arguments[0], machine);
}

constexpr auto Properties = std::to_array<HostMember>({
    {DictionaryEntryClass, "Key As Variant", SideOfEntry<LeftOf>, nullptr},
    {DictionaryEntryClass, "Value As Variant", SideOfEntry<RightOf>, nullptr},
    {DictionaryClass, "Count As Integer", Count, nullptr},
    {DictionaryClass, "KeyCount As Integer", Count, nullptr},
});

constexpr auto Methods = std::to_array<HostMember>({
    {DictionaryClass, "Value(key As Variant) As Variant", GetValue, SetValue},
    {DictionaryClass, "Lookup(key As Variant, otherwise As Variant) As Variant", Lookup, nullptr},
    {DictionaryClass, "HasKey(key As Variant) As Boolean", HasKey, nullptr},
    {DictionaryClass, "Remove(key As Variant)", Remove, nullptr},
    {DictionaryClass, "RemoveAll()", RemoveAll, nullptr},
    {DictionaryClass, "Clear()", RemoveAll, nullptr},
    {DictionaryClass, "Key(index As Integer) As Variant", At<true>, nullptr},
    {DictionaryClass, "Keys() As Variant()", All<true>, nullptr},
    {DictionaryClass, "Values() As Variant()", All<false>, nullptr},
});

constexpr auto Factories = std::to_array<HostMember>({
    {DictionaryClass, "Constructor(ParamArray entries As Pair)", MakeDictionary, nullptr},
});

}  // namespace

Value MakeDictionaryEntries(const std::vector<Value>& arguments, const Machine& machine) {
    const auto& entries = EntriesOf(arguments, machine);
    auto array = Value::DefaultOf(Type::ArrayOf({Kind::Variant}));
    for (std::size_t i = 0; i < entries.count(); ++i) {
        const auto& [key, value] = entries.At(i);
        array.array()->items.push_back(MakePairOf(DictionaryEntryClass, key, value, machine));
    }
    return array;
}

std::span<const HostMember> DictionaryProperties() {
    return Properties;
}

std::span<const HostMember> DictionaryMethods() {
    return Methods;
}

std::span<const HostMember> DictionaryFactories() {
    return Factories;
}

}  // namespace standin::language
