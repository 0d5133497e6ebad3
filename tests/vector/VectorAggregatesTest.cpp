// Sums, squares, extremes and sign tests, including the deliberate narrow squares,
// wrapping sums and the asymmetric Int64 non-zero test.
#include "VectorTestSupport.h"

#include <cmath>
#include <limits>

namespace {

using namespace VectorTest;

template <class E>
class VectorAggregates : public ::testing::Test {};
TYPED_TEST_SUITE(VectorAggregates, AllElementTypes);

TYPED_TEST(VectorAggregates, SmallValuesAgreeAcrossMembersAndEmptyRaises) {
    using E = TypeParam;
    const TKorVector<E> v = Make<E>({3, 1, 4, 1, 5});
    EXPECT_TRUE(AllMatch({{SumVector(v), 14}, {SumSqVector(v), 52}, {MaxVector(v), 5}, {MinVector(v), 1},
                          {VectorMagnitude(v), std::sqrt(52.0L)}}));

    ValueOf<E> lo{}, hi{};
    Cardinal loIndex = 9, hiIndex = 9;
    Boolean loUnique = true, hiUnique = false;
    MinMaxVector(v, lo, hi, loIndex, hiIndex, loUnique, hiUnique);
    EXPECT_EQ(std::make_tuple(lo, loIndex, loUnique, hi, hiIndex, hiUnique),
              std::make_tuple(ValueOf<E>(1), 1u, false, ValueOf<E>(5), 4u, true));
    MinMaxVector(Make<E>({2}), lo, hi, loIndex, hiIndex, loUnique, hiUnique);
    EXPECT_EQ(std::make_tuple(loIndex, loUnique, hiIndex, hiUnique), std::make_tuple(0u, true, 0u, true));

    // An empty vector raises and leaves the outputs alone.
    const TKorVector<E> empty;
    EXPECT_TRUE(Raises([&] { SumVector(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { SumSqVector(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { MaxVector(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { MinVector(empty); }, rsVectorIsEmpty));
    const auto before = std::make_tuple(ValueOf<E>(7), ValueOf<E>(8), 3u, 4u, false, false);
    std::tie(lo, hi, loIndex, hiIndex, loUnique, hiUnique) = before;
    EXPECT_TRUE(Raises([&] { MinMaxVector(empty, lo, hi, loIndex, hiIndex, loUnique, hiUnique); },
                       rsVectorIsEmpty));
    EXPECT_EQ(std::tie(lo, hi, loIndex, hiIndex, loUnique, hiUnique), before);
    EXPECT_EQ(VectorMagnitude(empty), 0);
}

// Each narrow square and wrap worked out by hand from the bits that are kept.
TEST(VectorSums, SumsSquaresAndExtremesKeepTheirDeliberateWidths) {
    const Float wrapped = 2500000000.0L - 4294967296.0L;  // 50000^2 read as int32
    const Int64 two32 = Int64(1) << 32;
    EXPECT_TRUE(AllMatch({
        // Sums widen by signedness and wrap in 64 bits.
        {SumVector(TKorByteVector{255, 255}), 510}, {SumVector(TKorSIntVector{-128, -128}), -256},
        {SumVector(TKorLWordVector{4294967295u, 1}), 4294967296.0L},
        {SumVector(TKorLIntVector{-2147483647 - 1, -1}), -2147483649.0L},
        {SumVector(TKorInt64Vector{std::numeric_limits<Int64>::max(), 1}), -9223372036854775808.0L},
        // Squares keep 16 bits for the byte and word members, 32 for the wider ones.
        {SumSqVector(TKorByteVector{200}), -25536},  // 40000 read as int16
        {SumSqVector(TKorByteVector{181}), 32761}, {SumSqVector(TKorByteVector{182}), -32412},  // 33124 - 65536
        {SumSqVector(TKorSIntVector{-128}), 16384}, {SumSqVector(TKorWordVector{300}), 24464},  // 90000 mod 65536
        {SumSqVector(TKorSmallIntVector{300}), 24464}, {SumSqVector(TKorSmallIntVector{200}), -25536},
        {SumSqVector(TKorLWordVector{65536}), 0},       // 2^32 mod 2^32
        {SumSqVector(TKorLWordVector{65537}), 131073},  // 2^32 + 2^17 + 1
        {SumSqVector(TKorLWordVector{50000}), 2500000000.0L}, {SumSqVector(TKorLIntVector{50000}), wrapped},
        {SumSqVector(TKorInt64Vector{two32 + 3}), 9}, {SumSqVector(TKorInt64Vector{50000}), wrapped},
        {SumSqVector(TKorInt64Vector{-3}), 9},
        // Differences from a value wrap in the element width before squaring.
        {SumSqDiffVector(TKorLWordVector{1}, Cardinal(3)), 4},  // (2^32 - 2)^2 mod 2^32
        {SumSqDiffVector(TKorLWordVector{70000}, Cardinal(0)), 605032704},  // 4900000000 mod 2^32
        {SumSqDiffVector(TKorLIntVector{50001}, Integer(1)), wrapped},
        {SumSqDiffVector(TKorInt64Vector{two32 + 5}, Int64(2)), 9}, {SumSqDiffVector(TKorLIntVector{1, 2, 3}, Integer(2)), 2},
        // With a Float value everything is Float: no truncation.
        {SumSqDiffVector(TKorLIntVector{50001}, Float(1)), 2500000000.0L},
        {SumSqDiffVector(TKorLWordVector{4294967295u}, Float(0.5L)), 4294967294.5L * 4294967294.5L},
        {SumSqDiffVector(TKorInt64Vector{two32 + 5}, Float(2)), 4294967299.0L * 4294967299.0L},
        {SumSqDiffVector(TKorFloatVector{1.0L, 2.0L, 3.0L}, Float(2)), 2},
        // Floating sums accumulate in Float: 1 + 2^-60 - 1 is lost in double arithmetic.
        {SumVector(TKorDoubleVector{1.0, 0x1p-60, -1.0}), 0x1p-60L},
        {SumSqVector(TKorSingleVector{0x1p-20f, 1.0f}), 1.0L + 0x1p-40L},
        // Extremes compare exactly in the element type.
        {MaxVector(TKorLWordVector{1, 4294967295u, 2}), 4294967295.0L}, {MinVector(TKorSIntVector{1, -128, 2}), -128},
    }));
    EXPECT_TRUE(Raises([] { SumSqDiffVector(TKorLIntVector(), Float(0)); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([] { SumSqDiffVector(TKorDoubleVector(), 0.0); }, rsVectorIsEmpty));

    // Values within tolerance of each other are still distinct extremes.
    Double lo, hi;
    Cardinal loIndex, hiIndex;
    Boolean loUnique, hiUnique;
    MinMaxVector(TKorDoubleVector{1.0, 1.0 + 1e-15, 1.0}, lo, hi, loIndex, hiIndex, loUnique, hiUnique);
    EXPECT_EQ(std::make_tuple(loIndex, loUnique, hiIndex, hiUnique), std::make_tuple(0u, false, 1u, true));
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
    EXPECT_TRUE(Raises([&] { VectorZero(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { VectorNonZero(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { VectorPositive(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { VectorNonNegative(empty); }, rsVectorIsEmpty));
}

TEST(VectorSignTests, FloatingMembersAreTolerantAndInt64NonZeroAloneFollowsThem) {
    EXPECT_TRUE(VectorZero(TKorFloatVector{1e-17L, -1e-17L}));
    EXPECT_FALSE(VectorNonZero(TKorFloatVector{1e-17L, -1e-17L}));
    EXPECT_FALSE(VectorPositive(TKorFloatVector{1e-17L}));
    EXPECT_TRUE(VectorNonNegative(TKorDoubleVector{-1e-17}));
    EXPECT_TRUE(VectorZero(TKorSingleVector{1e-17f}));
    // With a tolerance of 2, 1 counts as zero to the tolerant test only.
    ToleranceScope wide(2.0L);
    EXPECT_FALSE(VectorNonZero(TKorInt64Vector{1, -1}));  // tolerant: 1 is zero within 2
    EXPECT_FALSE(VectorZero(TKorInt64Vector{1, -1}));     // exact: 1 is not 0
    EXPECT_TRUE(VectorPositive(TKorInt64Vector{1}));
    EXPECT_FALSE(VectorNonNegative(TKorInt64Vector{-1}));
    EXPECT_TRUE(VectorZero(TKorFloatVector{1.0L}));
}

}  // namespace
