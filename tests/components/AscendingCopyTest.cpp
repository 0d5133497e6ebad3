// The component's ascending copy is byte for byte what QSortVector leaves, on data full
// of ties, signs, denormals and infinities, and on the data that needs the fallback.
#include "components/detail/AscendingCopy.hpp"

#include <kornum/KornumVector.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <utility>

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

TEST(AscendingCopy, EqualsQSortVectorOnEitherSideOfSixtyFourDifferingBits) {
    // Keys differ in the 63 fraction bits and in the exponent bits from the highest that
    // varies down: [512, 2048) spans two exponents that differ in their lowest bit and
    // needs 64 bits, [4, 16) two that differ in their lowest two bits and needs 65; both
    // signs need all 79.
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> unit(0, 1);
    for (const auto& [low, high] : {std::pair{512.0L, 2048.0L}, {4.0L, 16.0L}, {-1.5L, 1.5L}, {1.0L, 1.0L + 1e-12L}}) {
        for (int n : {40, 3000, 100000}) {
            TKorFloatVector v;
            v.SetLength(n);
            for (Integer i = 0; i < n; ++i) {
                // Half of them repeats of a few hundred values, the rest with full significands.
                const Float u = i % 2 ? Float(random() % 300) / 300 : Float(unit(random)) + Float(unit(random)) * 0x1p-53L;
                v[i] = low + (high - low) * u;
            }
            ExpectSameAsQSort(v);
            v[n / 2] = 1e300L;  // a far outlier: the others crowd into one bucket
            ExpectSameAsQSort(v);
        }
    }
    TKorFloatVector same;
    same.SetLength(5000);
    for (PackedFloat& x : same) x = -7.25L;
    ExpectSameAsQSort(same);
}

TEST(AscendingCopy, KeepsTheArrangementOfNaNsAndMixedZeros) {
    std::mt19937_64 random(6);
    for (int n : {2, 50, 5000}) {
        ExpectSameAsQSort(RandomValues(random, n, {std::nanl(""), 1.0L}));
        ExpectSameAsQSort(RandomValues(random, n, {0.0L, -0.0L}));
    }
}

}  // namespace
