// What the traits class of a vector has to provide. processors/x86/pair.hpp says what each member
// does.
#pragma once

#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// The traits class of a vector of lanes of 64 bits, two or more: `Lanes` of an instruction set.
template <typename T>
concept VectorLanes = requires(typename T::Vector vector, const void* from, void* to,
                               const DoubleWord* lane, const DoubleWord*& run) {
    requires T::Count >= 2;
    requires sizeof(vector) == T::Count * sizeof(DoubleWord);
    vector = T::Load(from);
    T::Store(to, vector);
    vector = T::Broadcast(lane);
    vector = T::Multiply(vector, vector);
    vector = T::Add(vector, vector);
    vector = T::Subtract(vector, vector);
    vector = T::And(vector, vector);
    vector = T::template ShiftLeft<1>(vector);
    vector = T::template ShiftRight<1>(vector);
    vector = T::Follow(vector, vector);
    T::Forget(run);
};

/// The same of a vector of two lanes that can also be taken apart: `Pair` of a processor.
template <typename T>
concept VectorPair = VectorLanes<T> &&
    requires(typename T::Vector vector, const void* from, void* to, Word word, int bits) {
    requires T::Count == 2;
    requires T::FactorBits >= WordBits;
    vector = T::LoadAligned(from);
    T::StoreAligned(to, vector);
    vector = T::LoadLow(from);
    T::StoreLow(to, vector);
    T::StoreLowest(to, vector);
    vector = T::Both(word);
    vector = T::LowOnly(word);
    vector = T::Missing(vector, vector);
    vector = T::ShiftLeftBy(vector, bits);
    vector = T::High(vector);
    vector = T::JoinLow(vector, vector);
};

}  // namespace vqz::kernels
