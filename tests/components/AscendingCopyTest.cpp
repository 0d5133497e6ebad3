// The component's ascending copy is byte for byte what QSortVector leaves, on data full
// of ties, signs, denormals and infinities, and on the data that needs the fallback.
#include "components/detail/AscendingCopy.hpp"

#include <kornum/KornumVector.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace Kornumglobals;

namespace {

void ExpectSameAsQSort(const TKorFloatVector& values) {
    TKorFloatVector expected = KornumVector::CopyVector(values);
    KornumVector::QSortVector(expected, true);
    const TKorFloatVector sorted = KornumDescStats::detail::AscendingCopy(values);
    ASSERT_EQ(sorted.Length(), values.Length());
    if (values.Length() == 0) return;
    ASSERT_FALSE(sorted.SharesWith(values));
    EXPECT_EQ(std::memcmp(sorted.data(), expected.data(), 10 * std::size_t(values.Length())), 0);
}

TKorFloatVector RandomValues(std::mt19937_64& random, int n, std::initializer_list<Float> specials) {
    std::uniform_int_distribution<int> exponent(-4960, 4930), pick(0, 9);
    TKorFloatVector v;
    v.SetLength(n);
    for (int i = 0; i < n; ++i) {
        switch (pick(random)) {
            case 0: v[i] = v[random() % (i + 1)]; break;  // an exact tie
            case 1: v[i] = *(specials.begin() + random() % specials.size()); break;
            case 2: v[i] = Float(int(random() % 7) - 3); break;
            default: v[i] = std::ldexp(Float(random() % 1000) - 500, exponent(random)) / 1000;
        }
    }
    return v;
}

TEST(AscendingCopy, EqualsQSortVectorWhereEqualValuesHaveEqualBytes) {
    std::mt19937_64 random(5);
    const Float infinity = std::numeric_limits<Float>::infinity();
    const Float denormal = std::numeric_limits<Float>::denorm_min();
    for (int n : {1, 2, 3, 17, 1000, 20000}) {
        ExpectSameAsQSort(RandomValues(random, n, {infinity, -infinity, denormal, -denormal * 3, 0.0L}));
        ExpectSameAsQSort(RandomValues(random, n, {-0.0L, 1e-4950L}));
    }
    ExpectSameAsQSort(TKorFloatVector{});
    // Measurements: one exponent, values agreeing in their leading bytes, many repeats.
    TKorFloatVector close;
    close.SetLength(200000);
    for (Integer i = 0; i < close.Length(); ++i) close[i] = 1000 + Float(Integer(random() % 30000) - 15000) / 7;
    ExpectSameAsQSort(close);
}

TEST(AscendingCopy, KeepsTheArrangementOfNaNsAndMixedZeros) {
    std::mt19937_64 random(6);
    for (int n : {2, 50, 5000}) {
        ExpectSameAsQSort(RandomValues(random, n, {std::nanl(""), 1.0L}));
        ExpectSameAsQSort(RandomValues(random, n, {0.0L, -0.0L}));
    }
}

}  // namespace
