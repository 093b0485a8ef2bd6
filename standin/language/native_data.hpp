// What the objects of a program's own classes hold.
#pragma once

#include <vector>

#include "standin/language/value.hpp"
#include "standin/runtime/host.hpp"

namespace standin::language {

/// Data of an object that can hold values, and so other objects. All that are alive are known, so
/// that the end of a program can let go of those that hold each other.
class NativeData : public HeldData {
public:
    NativeData();
    ~NativeData() override;

    /// Lets go of everything that is held by anybody.
    static void ReleaseAll();

protected:
    /// Moves what is held to the end of a list.
    virtual void MoveTo(std::vector<Value>& list) = 0;
    /// Releases values one after the other: a value whose object holds others in turn releases
    /// those later, not one within the other. For destructors.
    static void Bury(std::vector<Value> values);

private:
    NativeData* previous_ = nullptr;
    NativeData* next_ = nullptr;
};

/// The fields of an object.
class Fields final : public NativeData {
public:
    using Values = std::vector<Value, BudgetAllocator<Value>>;

    explicit Fields(Values first) : values(std::move(first)) {}
    ~Fields() override;

    Values values;

protected:
    void MoveTo(std::vector<Value>& list) override;
};

}  // namespace standin::language
