// The number object: one pointer of instance data that owns the value.
#pragma once

#include <memory>
#include <utility>

#include "host/references.hpp"
#include "interface/host_interface.hpp"
#include "number/value/number_value.hpp"
#include "plugin/bindings/host_functions.hpp"

namespace vqz {

using host_interface::Object;

/// The instance data of both number classes. `ref` is null before a constructor has run and again
/// after the destructor; a value has one owner only.
template <typename Value>
struct NumberInstance {
    Value* ref;
};

/// The instance data of an object of the class, at the offset that the host set at registration.
template <typename Value>
NumberInstance<Value>& InstanceOf(Object object) {
    auto* const address = reinterpret_cast<char*>(object);
    return *reinterpret_cast<NumberInstance<Value>*>(address +
                                                     NumberClass<Value>::Record.instanceDataOffset);
}

/// The object's value, or null when there is no object or it holds no value.
template <typename Value>
const Value* FindNumber(Object object) {
    return object == nullptr ? nullptr : InstanceOf<Value>(object).ref;
}

/// The object's value; `NilNumberValue` when there is no object or it holds no value.
template <typename Value>
const Value& ReadNumber(Object object) {
    const Value* value = FindNumber<Value>(object);
    return value == nullptr ? NilNumberValue<Value> : *value;
}

/// Makes a copy of `value` the object's own and frees the one it held. Throws std::bad_alloc; the
/// object keeps its value then.
template <typename Value>
void StoreNumberValue(Object object, const Value& value) {
    auto replacement = std::make_unique<Value>(value);
    const std::unique_ptr<Value> replaced(
        std::exchange(InstanceOf<Value>(object).ref, replacement.release()));
}

/// Frees the object's value, if it holds one.
template <typename Value>
void DropNumberValue(Object object) {
    const std::unique_ptr<Value> dropped(std::exchange(InstanceOf<Value>(object).ref, nullptr));
}

/// A new object of the class with a copy of `value`; null when the host makes none. The caller owns
/// its one reference. Throws std::bad_alloc.
template <typename Value>
Object NewNumberObject(const Value& value) {
    ObjectReference object(host::PluginNewInstance(NumberClass<Value>::Name.text));
    if (object) {
        StoreNumberValue(object.Get(), value);
    }
    return object.Release();
}

}  // namespace vqz
