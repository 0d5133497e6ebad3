// Helpers shared by the vector tests.
#pragma once

#include "TestSupport.h"

#include <kornum/KornumVector.h>
#include <kornum/Kornum_RS_Math.h>

#include <algorithm>
#include <initializer_list>
#include <type_traits>
#include <vector>

namespace VectorTest {

using namespace KornumVector;
using namespace KornumTest;
using namespace Kornum_RS_Math;

// The elements as read (a packed Float as a Float), for comparisons.
template <class E>
using ValueOf = std::conditional_t<std::is_same_v<E, PackedFloat>, Float, E>;

template <class E>
std::vector<ValueOf<E>> Elements(const TKorVector<E>& v) {
    return std::vector<ValueOf<E>>(v.begin(), v.end());
}

template <class E>
TKorVector<E> Make(std::initializer_list<ValueOf<E>> values) {
    TKorVector<E> v;
    v.SetLength(Integer(values.size()));
    std::copy(values.begin(), values.end(), v.begin());
    return v;
}

// The ten element types, for typed tests over every member of a family.
using AllElementTypes = ::testing::Types<PackedFloat, Double, Single, Int64, Cardinal, Integer, Word,
                                         SmallInt, Byte, ShortInt>;

}  // namespace VectorTest
