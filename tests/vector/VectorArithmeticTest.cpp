// Element-wise pairs, products and distances, magnitude and angle, in-place
// transforms, the moving average and polynomials.
#include "VectorTestSupport.h"

#include <cmath>
#include <limits>

namespace {

using namespace VectorTest;

template <class E>
class VectorProducts : public ::testing::Test {};
using ProductTypes = ::testing::Types<PackedFloat, Double, Single, Int64, Cardinal, Integer>;
TYPED_TEST_SUITE(VectorProducts, ProductTypes);

TYPED_TEST(VectorProducts, PairsDotProductDistanceAndAngle) {
    using E = TypeParam;
    if constexpr (!std::is_same_v<E, Cardinal>) {  // every product member but Cardinal has the pairs
        using Values = std::vector<ValueOf<E>>;
        const TKorVector<E> a = Make<E>({1, 2}), b = Make<E>({10, 20}), longer = Make<E>({1, 2, 3});
        EXPECT_EQ(Elements(AddVectors(a, b)), (Values{11, 22}));
        EXPECT_EQ(Elements(SubtractVectors(a, b)), (Values{-9, -18}));
        EXPECT_TRUE(AddVectors(TKorVector<E>(), TKorVector<E>()).IsEmpty());
        TKorVector<E> c = CopyVector(a);
        const TKorVector<E> sharer = c;
        AddToVector(c, b);
        EXPECT_EQ(Elements(sharer), (Values{11, 22}));  // rewritten where it lies
        SubtractFromVector(c, b);
        EXPECT_TRUE(Raises([&] { AddVectors(a, longer); }, rsSameDimensions));
        EXPECT_TRUE(Raises([&] { SubtractVectors(a, longer); }, rsSameDimensions));
        EXPECT_TRUE(Raises([&] { AddToVector(c, longer); }, rsSameDimensions));
        EXPECT_TRUE(Raises([&] { SubtractFromVector(c, longer); }, rsSameDimensions));
        EXPECT_EQ(Elements(c), (Values{1, 2}));
    }
    const TKorVector<E> a = Make<E>({1, 2, 3}), b = Make<E>({4, 5, 6}), one = Make<E>({1}), none;
    EXPECT_TRUE(AllMatch({{DotProdVectors(a, b), 32}, {SumSqDiffVectors(a, b), 27},
                          {AngleBetweenVectors(Make<E>({1, 0}), Make<E>({0, 1})), 1.5707963267948966192L},
                          {AngleBetweenVectors(Make<E>({1, 1}), Make<E>({0, 3})), 0.7853981633974483096L}},
                         1e-15L));
    // Lengths first, then emptiness; a zero magnitude before anything else.
    EXPECT_TRUE(Raises([&] { DotProdVectors(a, one); }, rsSameDimensions));
    EXPECT_TRUE(Raises([&] { DotProdVectors(none, none); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { SumSqDiffVectors(a, one); }, rsSameDimensions));
    EXPECT_TRUE(Raises([&] { SumSqDiffVectors(none, none); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { AngleBetweenVectors(Make<E>({0, 0}), Make<E>({1, 1})); }, rsMagZero));
    EXPECT_TRUE(Raises([&] { AngleBetweenVectors(none, a); }, rsMagZero));
    EXPECT_TRUE(Raises([&] { AngleBetweenVectors(a, Make<E>({1, 1})); }, rsSameDimensions));
}

TEST(VectorProducts, IntegerPairsFollowTheirOwnWidths) {
    const Int64 two32 = Int64(1) << 32, wrapped = 2500000000 - 4294967296;  // 50000^2 read as int32
    EXPECT_TRUE(AllMatch({
        // Sums and differences wrap in the element width.
        {AddVectors(TKorLIntVector{std::numeric_limits<Integer>::max()}, TKorLIntVector{1})[0], -2147483648.0L},
        {SubtractVectors(TKorInt64Vector{std::numeric_limits<Int64>::min()}, TKorInt64Vector{1})[0],
         9223372036854775807.0L},
        // Cardinal elements read as signed 32-bit values in the product; Int64 wraps in 64 bits.
        {DotProdVectors(TKorLWordVector{4294967295u}, TKorLWordVector{1}), -1},
        {DotProdVectors(TKorLIntVector{2147483647}, TKorLIntVector{2147483647}), 4611686014132420609.0L},
        {DotProdVectors(TKorInt64Vector{two32}, TKorInt64Vector{two32}), 0},
        // Distances square the low 32 bits of the 64-bit difference, read as signed; the
        // low bits of -(2^32 - 1) are 1.
        {SumSqDiffVectors(TKorLWordVector{50000}, TKorLWordVector{0}), wrapped},
        {SumSqDiffVectors(TKorLIntVector{-50000}, TKorLIntVector{0}), wrapped},
        {SumSqDiffVectors(TKorLWordVector{0}, TKorLWordVector{4294967295u}), 1},
        {SumSqDiffVectors(TKorInt64Vector{two32 + 7}, TKorInt64Vector{4}), 9},
        // The magnitude squares in Float for every member.
        {VectorMagnitude(TKorByteVector{200}), 200}, {VectorMagnitude(TKorInt64Vector{two32 + 3}), 4294967299.0L},
    }));
}

TEST(VectorTransforms, SquareInTheElementWidthValidateBeforeWritingRewriteInPlace) {
    TKorFloatVector f{1.5L, -2}, z{2, 0};
    TKorLWordVector c{65537, 3};
    TKorLIntVector i{50000};
    TKorInt64Vector l{(Int64(1) << 32) + 3, 50000};
    SquareVector(f);
    SquareVector(c);
    SquareVector(i);
    SquareVector(l);
    const Float wrapped = 2500000000.0L - 4294967296.0L;  // 50000^2 read as int32
    EXPECT_TRUE(AllMatch({{f[0], 2.25L}, {f[1], 4}, {c[0], 131073}, {c[1], 9}, {i[0], wrapped}, {l[0], 9}, {l[1], wrapped}}));

    TKorDoubleVector v{4, -1}, empty;
    TKorSingleVector p{1, 0};
    EXPECT_TRUE(Raises([&] { SqrtVector(v); }, rsVectorNeg));
    EXPECT_TRUE(Raises([&] { InvVector(z); }, rsVectorZero));
    EXPECT_TRUE(Raises([&] { LnVector(p); }, rsVectorNotPos));
    EXPECT_TRUE(Raises([&] { Log10Vector(p); }, rsVectorNotPos));
    EXPECT_TRUE(Raises([&] { Log2Vector(p); }, rsVectorNotPos));
    EXPECT_EQ(Elements(v), (std::vector<Double>{4, -1}));
    EXPECT_EQ(Elements(z), (std::vector<Float>{2, 0}));
    EXPECT_EQ(Elements(p), (std::vector<Single>{1, 0}));
    EXPECT_TRUE(Raises([&] { SquareVector(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { SqrtVector(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { LinearTransformVector(empty, 1.0, 0.0); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { TransformVector(empty, [](Double x) { return x; }); }, rsVectorIsEmpty));

    // The element functions rewrite in place, seen through every sharer.
    TKorFloatVector r{4, 0.25L};
    const TKorFloatVector sharer = r;
    SqrtVector(r);
    InvVector(r);
    EXPECT_EQ(Elements(sharer), (std::vector<Float>{0.5L, 2}));
    TKorDoubleVector d{1000, 1}, tiny{-1e-300};
    Log10Vector(d);
    EXPECT_EQ(Elements(d), (std::vector<Double>{3, 0}));
    SqrtVector(tiny);  // not negative to the tolerant test; sqrt gives NaN
    EXPECT_TRUE(std::isnan(tiny[0]));
    LinearTransformVector(d, 3.0, 1.0);
    EXPECT_EQ(Elements(d), (std::vector<Double>{10, 1}));
    TKorInt64Vector big{Int64(1) << 62};
    LinearTransformVector(big, Int64(4), Int64(5));  // wraps to 5
    EXPECT_EQ(Elements(big), (std::vector<Int64>{5}));
    // A function that fails leaves the elements already rewritten as they are.
    TKorFloatVector w{1, 2, 3};
    auto failAtTwo = [](Float x) -> Float { return x == 2 ? throw Platform::Exception("stop") : -x; };
    EXPECT_THROW(TransformVector(w, failAtTwo), Platform::Exception);
    EXPECT_EQ(Elements(w), (std::vector<Float>{-1, 2, 3}));
}

TEST(VectorMovingAverage, PlacesEachAverageInItsWindowAndPolynomialsRunUpThePowers) {
    const TKorDoubleVector v{1, 2, 3, 4, 5};
    EXPECT_EQ(Elements(MovingAverage(v, 3, 1)), (std::vector<Double>{0, 2, 3, 4, 0}));
    EXPECT_EQ(Elements(MovingAverage(v, 3, 7)), (std::vector<Double>{0, 0, 2, 3, 4}));
    EXPECT_EQ(Elements(MovingAverage(v, 3, 0)), (std::vector<Double>{2, 3, 4, 0, 0}));
    EXPECT_EQ(Elements(MovingAverage(v, 5, 0)), (std::vector<Double>{3, 0, 0, 0, 0}));
    EXPECT_EQ(Elements(MovingAverage(TKorFloatVector{1, 2}, 1, 0)), (std::vector<Float>{1, 2}));
    EXPECT_TRUE(Raises([&] { MovingAverage(TKorSingleVector(), 1, 0); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { MovingAverage(v, 0, 0); }, rsValueNotZero));
    EXPECT_TRUE(AllMatch({{KorPolynomial(TKorFloatVector{1, 2, 3}, 2), 17}, {KorPolynomial(TKorFloatVector(), 2), 0},
                          {KorPolynomial(TKorFloatVector{5}, 1e300L), 5}, {KorPolynomial(TKorFloatVector{0, 0, 1}, -3), 9}}));
}

}  // namespace
