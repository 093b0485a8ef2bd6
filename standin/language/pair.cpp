#include "standin/language/pair.hpp"

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "standin/language/names.hpp"
#include "standin/language/native_data.hpp"

namespace standin::language {
namespace {

using Arguments = std::vector<Value>;

/// The two values of a Pair, which never change.
class Sides final : public NativeData {
public:
    Sides(Value left, Value right) : left_(std::move(left)), right_(std::move(right)) {}
    ~Sides() override { Bury(TakeAll()); }

    const Value& left() const { return left_; }
    const Value& right() const { return right_; }

protected:
    void MoveTo(std::vector<Value>& list) override {
        for (auto& value : TakeAll()) {
            list.push_back(std::move(value));
        }
    }

private:
    std::vector<Value> TakeAll() {
        std::vector<Value> values;
        values.push_back(std::exchange(left_, Value()));
        values.push_back(std::exchange(right_, Value()));
        return values;
    }

    Value left_;
    Value right_;
};

const Sides& SidesOf(const Value& pair, const Machine& machine) {
    return *static_cast<Sides*>(machine.host().Held(pair.object()));
}

Value MakePair(const Arguments& arguments, const Machine& machine) {
    return MakePairOf(PairClass, arguments[0], arguments[1], machine);
}

template <const Value& (*Side)(const Value&, const Machine&)>
Value GetSide(const Arguments& arguments, const Machine& machine) {
    return Side(arguments[0], machine);
}

constexpr auto Properties = std::to_array<HostMember>({
    {PairClass, "Left As Variant", GetSide<LeftOf>, nullptr},
    {PairClass, "Right As Variant", GetSide<RightOf>, nullptr},
});

constexpr auto Factories = std::to_array<HostMember>({
    {PairClass, "Constructor(left As Variant, right As Variant)", MakePair, nullptr},
});

}  // namespace

std::span<const HostMember> PairProperties() {
    return Properties;
}

std::span<const HostMember> PairFactories() {
    return Factories;
}

Value MakePairOf(std::string_view className, const Value& left, const Value& right,
                 const Machine& machine) {
    Host& host = machine.host();
    const auto& info = host.ProgramClass(std::string(className));
    auto made = Value::Adopt(host.MakeObject(info, std::make_unique<Sides>(left, right)));
    if (made.object() == nullptr) {
        machine.Raise("OutOfMemoryException",
                      "There is no memory for a new " + std::string(className) + ".");
    }
    return made;
}

const Value& LeftOf(const Value& pair, const Machine& machine) {
    return SidesOf(pair, machine).left();
}

const Value& RightOf(const Value& pair, const Machine& machine) {
    return SidesOf(pair, machine).right();
}

}  // namespace standin::language
