// Helpers shared by the vector tests.
#pragma once

#include <kornum/KornumVector.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Platform.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <type_traits>
#include <vector>

namespace VectorTest {

using namespace KornumVector;

// Runs f and expects EMathError carrying exactly the text of the identifier.
template <class F>
void ExpectMathError(F f, const Platform::ResourceString& expected) {
    try {
        f();
        ADD_FAILURE() << "expected " << expected.Name;
    } catch (const Platform::EMathError& e) {
        EXPECT_EQ(std::string(e.what()), expected.Text());
    }
}

// The elements as read (a packed Float as a Float), for comparisons.
template <class E>
using ValueOf = std::conditional_t<std::is_same_v<E, PackedFloat>, Float, E>;

template <class E>
std::vector<ValueOf<E>> Elements(const TKorVector<E>& v) {
    std::vector<ValueOf<E>> out;
    for (const E& x : v) out.push_back(x);
    return out;
}

template <class E>
TKorVector<E> Make(std::initializer_list<ValueOf<E>> values) {
    TKorVector<E> v;
    v.SetLength(Integer(values.size()));
    Integer i = 0;
    for (ValueOf<E> x : values) v[i++] = E(x);
    return v;
}

// Sets KorTolerance for one scope and restores it afterwards.
class ToleranceScope {
public:
    explicit ToleranceScope(Float tolerance) : saved_(Kornumglobals::KorTolerance) {
        Kornumglobals::KorTolerance = tolerance;
    }
    ~ToleranceScope() { Kornumglobals::KorTolerance = saved_; }

private:
    Float saved_;
};

// The ten element types, for typed tests over every member of a family.
using AllElementTypes = ::testing::Types<PackedFloat, Double, Single, Int64, Cardinal, Integer, Word,
                                         SmallInt, Byte, ShortInt>;

}  // namespace VectorTest
