// Sums, squares, extremes and sign tests, including the deliberate narrow squares,
// wrapping sums and the asymmetric Int64 non-zero test.
#include "VectorTestSupport.h"

#include <cmath>
#include <limits>

namespace {

using namespace VectorTest;
using Kornum_RS_Math::rsVectorIsEmpty;

template <class E>
class VectorAggregates : public ::testing::Test {};
TYPED_TEST_SUITE(VectorAggregates, AllElementTypes);

TYPED_TEST(VectorAggregates, SmallValuesAgreeAcrossMembers) {
    using E = TypeParam;
    const TKorVector<E> v = Make<E>({3, 1, 4, 1, 5});
    EXPECT_EQ(SumVector(v), 14);
    EXPECT_EQ(SumSqVector(v), 52);
    EXPECT_EQ(MaxVector(v), ValueOf<E>(5));
    EXPECT_EQ(MinVector(v), ValueOf<E>(1));
    EXPECT_EQ(VectorMagnitude(v), std::sqrt(52.0L));

    ValueOf<E> lo{}, hi{};
    Cardinal loIndex = 9, hiIndex = 9;
    Boolean loUnique = true, hiUnique = false;
    MinMaxVector(v, lo, hi, loIndex, hiIndex, loUnique, hiUnique);
    EXPECT_EQ(lo, ValueOf<E>(1));
    EXPECT_EQ(loIndex, 1u);
    EXPECT_FALSE(loUnique);
    EXPECT_EQ(hi, ValueOf<E>(5));
    EXPECT_EQ(hiIndex, 4u);
    EXPECT_TRUE(hiUnique);

    MinMaxVector(Make<E>({2}), lo, hi, loIndex, hiIndex, loUnique, hiUnique);
    EXPECT_EQ(loIndex, 0u);
    EXPECT_EQ(hiIndex, 0u);
    EXPECT_TRUE(loUnique);
    EXPECT_TRUE(hiUnique);
}

TYPED_TEST(VectorAggregates, EmptyVectorRaisesAndLeavesOutputsAlone) {
    using E = TypeParam;
    const TKorVector<E> empty;
    ExpectMathError([&] { SumVector(empty); }, rsVectorIsEmpty);
    ExpectMathError([&] { SumSqVector(empty); }, rsVectorIsEmpty);
    ExpectMathError([&] { MaxVector(empty); }, rsVectorIsEmpty);
    ExpectMathError([&] { MinVector(empty); }, rsVectorIsEmpty);
    ValueOf<E> lo = 7, hi = 8;
    Cardinal loIndex = 3, hiIndex = 4;
    Boolean loUnique = false, hiUnique = false;
    ExpectMathError([&] { MinMaxVector(empty, lo, hi, loIndex, hiIndex, loUnique, hiUnique); }, rsVectorIsEmpty);
    EXPECT_EQ(lo, ValueOf<E>(7));
    EXPECT_EQ(hi, ValueOf<E>(8));
    EXPECT_EQ(loIndex, 3u);
    EXPECT_EQ(hiIndex, 4u);
    EXPECT_FALSE(loUnique);
    EXPECT_FALSE(hiUnique);
    EXPECT_EQ(VectorMagnitude(empty), 0);
}

TEST(VectorSums, IntegerSumsWidenBySignednessAndWrapIn64Bits) {
    EXPECT_EQ(SumVector(TKorByteVector{255, 255}), 510);
    EXPECT_EQ(SumVector(TKorSIntVector{-128, -128}), -256);
    EXPECT_EQ(SumVector(TKorLWordVector{4294967295u, 1}), 4294967296);
    EXPECT_EQ(SumVector(TKorLIntVector{-2147483647 - 1, -1}), -2147483649);
    const Int64 max = std::numeric_limits<Int64>::max();
    EXPECT_EQ(SumVector(TKorInt64Vector{max, 1}), std::numeric_limits<Int64>::min());
    EXPECT_EQ(SumVector(TKorFloatVector{1.0L, 2.0L, 3.0L}), 6.0L);
}

TEST(VectorSums, FloatingSumsAccumulateInExtendedPrecision) {
    // 1 + 2^-60 - 1 is lost in double arithmetic but kept in Float.
    const Double tiny = 0x1p-60;
    EXPECT_EQ(SumVector(TKorDoubleVector{1.0, tiny, -1.0}), Float(tiny));
    EXPECT_EQ(SumSqVector(TKorSingleVector{0x1p-20f, 1.0f}), 1.0L + 0x1p-40L);
}

// Each narrow square worked out by hand from the bits that are kept.
TEST(VectorSquares, IntegerSquaresKeepOnlyTheirNarrowWidth) {
    EXPECT_EQ(SumSqVector(TKorByteVector{200}), -25536);       // 40000 read as int16
    EXPECT_EQ(SumSqVector(TKorByteVector{181}), 32761);        // still positive
    EXPECT_EQ(SumSqVector(TKorByteVector{182}), -32412);       // 33124 - 65536
    EXPECT_EQ(SumSqVector(TKorSIntVector{-128}), 16384);
    EXPECT_EQ(SumSqVector(TKorWordVector{300}), 24464);        // 90000 mod 65536
    EXPECT_EQ(SumSqVector(TKorSmallIntVector{300}), 24464);
    EXPECT_EQ(SumSqVector(TKorSmallIntVector{200}), -25536);
    EXPECT_EQ(SumSqVector(TKorLWordVector{65536}), 0);         // 2^32 mod 2^32
    EXPECT_EQ(SumSqVector(TKorLWordVector{65537}), 131073);    // 2^32 + 2^17 + 1
    EXPECT_EQ(SumSqVector(TKorLWordVector{50000}), 2500000000);  // unsigned 32-bit
    EXPECT_EQ(SumSqVector(TKorLIntVector{50000}), 2500000000 - 4294967296);
    EXPECT_EQ(SumSqVector(TKorInt64Vector{(Int64(1) << 32) + 3}), 9);
    EXPECT_EQ(SumSqVector(TKorInt64Vector{50000}), 2500000000 - 4294967296);
    EXPECT_EQ(SumSqVector(TKorInt64Vector{-3}), 9);
}

TEST(VectorSquares, DifferencesWrapInTheElementWidthBeforeSquaring) {
    // Cardinal: 1 - 3 wraps to 2^32 - 2, whose square is 4 modulo 2^32.
    EXPECT_EQ(SumSqDiffVector(TKorLWordVector{1}, Cardinal(3)), 4);
    // 70000 - 0 squared: 4900000000 mod 2^32 = 605032704, unsigned for Cardinal...
    EXPECT_EQ(SumSqDiffVector(TKorLWordVector{70000}, Cardinal(0)), 605032704);
    // ... and 50000^2 = 2500000000 reads negative for Integer.
    EXPECT_EQ(SumSqDiffVector(TKorLIntVector{50001}, Integer(1)), 2500000000 - 4294967296);
    EXPECT_EQ(SumSqDiffVector(TKorInt64Vector{(Int64(1) << 32) + 5}, Int64(2)), 9);
    EXPECT_EQ(SumSqDiffVector(TKorLIntVector{1, 2, 3}, Integer(2)), 2);
    // With a Float value everything is Float: no truncation.
    EXPECT_EQ(SumSqDiffVector(TKorLIntVector{50001}, Float(1)), 2500000000.0L);
    EXPECT_EQ(SumSqDiffVector(TKorLWordVector{4294967295u}, Float(0.5L)), 4294967294.5L * 4294967294.5L);
    EXPECT_EQ(SumSqDiffVector(TKorInt64Vector{(Int64(1) << 32) + 5}, Float(2)), 4294967299.0L * 4294967299.0L);
    EXPECT_EQ(SumSqDiffVector(TKorFloatVector{1.0L, 2.0L, 3.0L}, Float(2)), 2.0L);
    ExpectMathError([] { SumSqDiffVector(TKorLIntVector(), Float(0)); }, rsVectorIsEmpty);
    ExpectMathError([] { SumSqDiffVector(TKorDoubleVector(), 0.0); }, rsVectorIsEmpty);
}

TEST(VectorExtremes, ComparisonsAreExactInTheElementType) {
    EXPECT_EQ(MaxVector(TKorLWordVector{1, 4294967295u, 2}), 4294967295u);
    EXPECT_EQ(MinVector(TKorSIntVector{1, -128, 2}), -128);
    Double lo, hi;
    Cardinal loIndex, hiIndex;
    Boolean loUnique, hiUnique;
    // Values within tolerance of each other are still distinct here.
    MinMaxVector(TKorDoubleVector{1.0, 1.0 + 1e-15, 1.0}, lo, hi, loIndex, hiIndex, loUnique, hiUnique);
    EXPECT_EQ(loIndex, 0u);
    EXPECT_FALSE(loUnique);
    EXPECT_EQ(hiIndex, 1u);
    EXPECT_TRUE(hiUnique);
}

template <class E>
class VectorSignTests : public ::testing::Test {};
using SignTestTypes = ::testing::Types<PackedFloat, Double, Single, Int64>;
TYPED_TEST_SUITE(VectorSignTests, SignTestTypes);

TYPED_TEST(VectorSignTests, DecideOnTheFirstFailingElement) {
    using E = TypeParam;
    EXPECT_FALSE(VectorPositive(Make<E>({1, 0})));
    EXPECT_TRUE(VectorPositive(Make<E>({1, 2})));
    EXPECT_TRUE(VectorNonNegative(Make<E>({0, 2})));
    EXPECT_FALSE(VectorNonNegative(Make<E>({0, -2})));
    EXPECT_TRUE(VectorZero(Make<E>({0, 0})));
    EXPECT_FALSE(VectorZero(Make<E>({0, 1})));
    EXPECT_TRUE(VectorNonZero(Make<E>({-1, 1})));
    EXPECT_FALSE(VectorNonZero(Make<E>({1, 0})));
    const TKorVector<E> empty;
    ExpectMathError([&] { VectorZero(empty); }, rsVectorIsEmpty);
    ExpectMathError([&] { VectorNonZero(empty); }, rsVectorIsEmpty);
    ExpectMathError([&] { VectorPositive(empty); }, rsVectorIsEmpty);
    ExpectMathError([&] { VectorNonNegative(empty); }, rsVectorIsEmpty);
}

TEST(VectorSignTests, FloatingMembersAreTolerant) {
    const TKorFloatVector tiny{1e-17L, -1e-17L};
    EXPECT_TRUE(VectorZero(tiny));
    EXPECT_FALSE(VectorNonZero(tiny));
    EXPECT_FALSE(VectorPositive(TKorFloatVector{1e-17L}));
    EXPECT_TRUE(VectorNonNegative(TKorDoubleVector{-1e-17}));
    EXPECT_TRUE(VectorZero(TKorSingleVector{1e-17f}));
}

TEST(VectorSignTests, Int64NonZeroAloneUsesTheTolerance) {
    // With a tolerance of 2, 1 counts as zero to the tolerant test only.
    ToleranceScope wide(2.0L);
    const TKorInt64Vector ones{1, -1};
    EXPECT_FALSE(VectorNonZero(ones));  // tolerant: 1 is zero within 2
    EXPECT_FALSE(VectorZero(ones));     // exact: 1 is not 0
    EXPECT_TRUE(VectorPositive(TKorInt64Vector{1}));
    EXPECT_FALSE(VectorNonNegative(TKorInt64Vector{-1}));
    EXPECT_TRUE(VectorZero(TKorFloatVector{1.0L}));  // the floating members follow it too
}

}  // namespace
