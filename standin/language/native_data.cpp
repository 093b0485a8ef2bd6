#include "standin/language/native_data.hpp"

#include <iterator>
#include <utility>

namespace standin::language {
namespace {

/// The first of all that are alive.
NativeData* living = nullptr;

/// What is still to be released, while something is.
std::vector<Value>* graveyard = nullptr;

}  // namespace

NativeData::NativeData() : next_(living) {
    if (next_ != nullptr) {
        next_->previous_ = this;
    }
    living = this;
}

NativeData::~NativeData() {
    (previous_ == nullptr ? living : previous_->next_) = next_;
    if (next_ != nullptr) {
        next_->previous_ = previous_;
    }
}

void NativeData::ReleaseAll() {
    std::vector<Value> held;
    for (auto* data = living; data != nullptr; data = data->next_) {
        data->MoveTo(held);
    }
    Bury(std::move(held));
}

void NativeData::Bury(std::vector<Value> values) {
    if (graveyard != nullptr) {
        graveyard->insert(graveyard->end(), std::make_move_iterator(values.begin()),
                          std::make_move_iterator(values.end()));
        return;
    }
    graveyard = &values;
    while (!values.empty()) {
        const auto released = std::move(values.back());
        values.pop_back();
    }
    graveyard = nullptr;
}

Fields::~Fields() {
    Bury({std::make_move_iterator(values.begin()), std::make_move_iterator(values.end())});
}

/// Empty values stay behind: the object may still be used by what is released.
void Fields::MoveTo(std::vector<Value>& list) {
    for (auto& value : values) {
        list.push_back(std::exchange(value, Value()));
    }
}

}  // namespace standin::language
