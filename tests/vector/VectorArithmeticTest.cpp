// Element-wise pairs, products and distances, magnitude and angle, in-place
// transforms, the moving average and polynomials.
#include "VectorTestSupport.h"

#include <kornum/Kornumglobals.h>

#include <cmath>
#include <limits>

namespace {

using namespace VectorTest;
using Kornum_RS_Math::rsMagZero;
using Kornum_RS_Math::rsSameDimensions;
using Kornum_RS_Math::rsValueNotZero;
using Kornum_RS_Math::rsVectorIsEmpty;
using Kornum_RS_Math::rsVectorNeg;
using Kornum_RS_Math::rsVectorNotPos;
using Kornum_RS_Math::rsVectorZero;

template <class E>
class VectorPairs : public ::testing::Test {};
using PairTypes = ::testing::Types<PackedFloat, Double, Single, Int64, Integer>;
TYPED_TEST_SUITE(VectorPairs, PairTypes);

TYPED_TEST(VectorPairs, AddAndSubtractElementWise) {
    using E = TypeParam;
    const TKorVector<E> a = Make<E>({1, 2}), b = Make<E>({10, 20});
    EXPECT_EQ(Elements(AddVectors(a, b)), (std::vector<ValueOf<E>>{11, 22}));
    EXPECT_EQ(Elements(SubtractVectors(a, b)), (std::vector<ValueOf<E>>{-9, -18}));
    TKorVector<E> c = CopyVector(a);
    const TKorVector<E> sharer = c;
    AddToVector(c, b);
    EXPECT_EQ(Elements(sharer), (std::vector<ValueOf<E>>{11, 22}));  // rewritten where it lies
    SubtractFromVector(c, b);
    EXPECT_EQ(Elements(c), (std::vector<ValueOf<E>>{1, 2}));
    EXPECT_TRUE(AddVectors(TKorVector<E>(), TKorVector<E>()).IsEmpty());

    const TKorVector<E> longer = Make<E>({1, 2, 3});
    ExpectMathError([&] { AddVectors(a, longer); }, rsSameDimensions);
    ExpectMathError([&] { SubtractVectors(a, longer); }, rsSameDimensions);
    ExpectMathError([&] { AddToVector(c, longer); }, rsSameDimensions);
    ExpectMathError([&] { SubtractFromVector(c, longer); }, rsSameDimensions);
    EXPECT_EQ(Elements(c), (std::vector<ValueOf<E>>{1, 2}));
}

TEST(VectorPairs, IntegerMembersWrap) {
    const Integer max = std::numeric_limits<Integer>::max();
    EXPECT_EQ(Elements(AddVectors(TKorLIntVector{max}, TKorLIntVector{1})),
              (std::vector<Integer>{std::numeric_limits<Integer>::min()}));
    const Int64 min64 = std::numeric_limits<Int64>::min();
    EXPECT_EQ(Elements(SubtractVectors(TKorInt64Vector{min64}, TKorInt64Vector{1})),
              (std::vector<Int64>{std::numeric_limits<Int64>::max()}));
}

template <class E>
class VectorProducts : public ::testing::Test {};
using ProductTypes = ::testing::Types<PackedFloat, Double, Single, Int64, Cardinal, Integer>;
TYPED_TEST_SUITE(VectorProducts, ProductTypes);

TYPED_TEST(VectorProducts, DotProductDistanceAndAngle) {
    using E = TypeParam;
    const TKorVector<E> a = Make<E>({1, 2, 3}), b = Make<E>({4, 5, 6});
    EXPECT_EQ(DotProdVectors(a, b), 32);
    EXPECT_EQ(SumSqDiffVectors(a, b), 27);
    const Float angle = AngleBetweenVectors(Make<E>({1, 0}), Make<E>({0, 1}));
    EXPECT_NEAR(double(angle), 1.5707963267948966, 1e-15);
    EXPECT_NEAR(double(AngleBetweenVectors(Make<E>({1, 1}), Make<E>({0, 3}))), 0.78539816339744831, 1e-15);

    // Lengths first, then emptiness.
    ExpectMathError([&] { DotProdVectors(a, Make<E>({1})); }, rsSameDimensions);
    ExpectMathError([&] { DotProdVectors(TKorVector<E>(), TKorVector<E>()); }, rsVectorIsEmpty);
    ExpectMathError([&] { SumSqDiffVectors(a, Make<E>({1})); }, rsSameDimensions);
    ExpectMathError([&] { SumSqDiffVectors(TKorVector<E>(), TKorVector<E>()); }, rsVectorIsEmpty);
    // A zero magnitude is tested before anything else.
    ExpectMathError([&] { AngleBetweenVectors(Make<E>({0, 0}), Make<E>({1, 1})); }, rsMagZero);
    ExpectMathError([&] { AngleBetweenVectors(TKorVector<E>(), a); }, rsMagZero);
    ExpectMathError([&] { AngleBetweenVectors(a, Make<E>({1, 1})); }, rsSameDimensions);
}

TEST(VectorProducts, IntegerProductsFollowTheirOwnWidths) {
    // Cardinal elements read as signed 32-bit values in the product.
    EXPECT_EQ(DotProdVectors(TKorLWordVector{4294967295u}, TKorLWordVector{1}), -1);
    EXPECT_EQ(DotProdVectors(TKorLIntVector{2147483647}, TKorLIntVector{2147483647}), 4611686014132420609);
    // Int64 products wrap in 64 bits: 2^32 * 2^32 = 0.
    EXPECT_EQ(DotProdVectors(TKorInt64Vector{Int64(1) << 32}, TKorInt64Vector{Int64(1) << 32}), 0);
    // The distances square the low 32 bits of the 64-bit difference, read as signed,
    // for Cardinal too: 50000^2 = 2500000000 reads as 2500000000 - 2^32.
    EXPECT_EQ(SumSqDiffVectors(TKorLWordVector{50000}, TKorLWordVector{0}), 2500000000 - 4294967296);
    EXPECT_EQ(SumSqDiffVectors(TKorLIntVector{-50000}, TKorLIntVector{0}), 2500000000 - 4294967296);
    // 0 - 4294967295 is -4294967295 in 64 bits; its low 32 bits are 1.
    EXPECT_EQ(SumSqDiffVectors(TKorLWordVector{0}, TKorLWordVector{4294967295u}), 1);
    EXPECT_EQ(SumSqDiffVectors(TKorInt64Vector{(Int64(1) << 32) + 7}, TKorInt64Vector{4}), 9);
}

TEST(VectorMagnitudes, EveryMemberSquaresInFloat) {
    EXPECT_EQ(VectorMagnitude(TKorByteVector{200}), 200);  // no narrow square here
    EXPECT_EQ(VectorMagnitude(TKorInt64Vector{(Int64(1) << 32) + 3}), 4294967299.0L);
    EXPECT_EQ(VectorMagnitude(TKorDoubleVector{3, 4}), 5);
}

TEST(VectorTransforms, SquareUsesTheElementWidth) {
    TKorFloatVector f{1.5L, -2};
    SquareVector(f);
    EXPECT_EQ(Elements(f), (std::vector<Float>{2.25L, 4}));
    TKorLWordVector c{65537, 3};
    SquareVector(c);
    EXPECT_EQ(Elements(c), (std::vector<Cardinal>{131073, 9}));
    TKorLIntVector i{50000};
    SquareVector(i);
    EXPECT_EQ(Elements(i), (std::vector<Integer>{Integer(2500000000 - 4294967296)}));
    TKorInt64Vector l{(Int64(1) << 32) + 3, 50000};
    SquareVector(l);
    EXPECT_EQ(Elements(l), (std::vector<Int64>{9, 2500000000 - 4294967296}));
    TKorDoubleVector empty;
    ExpectMathError([&] { SquareVector(empty); }, rsVectorIsEmpty);
}

TEST(VectorTransforms, ValidationComesBeforeTheFirstWrite) {
    TKorDoubleVector v{4, -1};
    ExpectMathError([&] { SqrtVector(v); }, rsVectorNeg);
    EXPECT_EQ(Elements(v), (std::vector<Double>{4, -1}));
    TKorFloatVector z{2, 0};
    ExpectMathError([&] { InvVector(z); }, rsVectorZero);
    EXPECT_EQ(Elements(z), (std::vector<Float>{2, 0}));
    TKorSingleVector p{1, 0};
    ExpectMathError([&] { LnVector(p); }, rsVectorNotPos);
    ExpectMathError([&] { Log10Vector(p); }, rsVectorNotPos);
    ExpectMathError([&] { Log2Vector(p); }, rsVectorNotPos);
    EXPECT_EQ(Elements(p), (std::vector<Single>{1, 0}));
    TKorDoubleVector empty;
    ExpectMathError([&] { SqrtVector(empty); }, rsVectorIsEmpty);
    ExpectMathError([&] { LinearTransformVector(empty, 1.0, 0.0); }, rsVectorIsEmpty);
    ExpectMathError([&] { TransformVector(empty, [](Double x) { return x; }); }, rsVectorIsEmpty);
}

TEST(VectorTransforms, ElementFunctionsRewriteInPlace) {
    TKorFloatVector v{4, 0.25L};
    const TKorFloatVector sharer = v;
    SqrtVector(v);
    InvVector(v);
    EXPECT_EQ(Elements(sharer), (std::vector<Float>{0.5L, 2}));
    TKorDoubleVector d{1000, 1};
    Log10Vector(d);
    EXPECT_EQ(Elements(d), (std::vector<Double>{3, 0}));
    // A tiny negative value is not negative to the tolerant test; sqrt gives NaN.
    TKorDoubleVector tiny{-1e-300};
    SqrtVector(tiny);
    EXPECT_TRUE(std::isnan(tiny[0]));
}

TEST(VectorTransforms, LinearAndFunctionTransforms) {
    TKorDoubleVector d{1, 2};
    LinearTransformVector(d, 3.0, 1.0);
    EXPECT_EQ(Elements(d), (std::vector<Double>{4, 7}));
    TKorInt64Vector l{Int64(1) << 62};
    LinearTransformVector(l, Int64(4), Int64(5));  // wraps to 5
    EXPECT_EQ(Elements(l), (std::vector<Int64>{5}));
    TKorSingleVector s{1, 2};
    TransformVector(s, [](Single x) { return x * 10; });
    EXPECT_EQ(Elements(s), (std::vector<Single>{10, 20}));
}

TEST(VectorTransforms, AFailingFunctionKeepsTheElementsAlreadyRewritten) {
    TKorFloatVector v{1, 2, 3};
    auto failAtTwo = [](Float x) -> Float {
        if (x == 2) throw Platform::Exception("stop");
        return -x;
    };
    EXPECT_THROW(TransformVector(v, failAtTwo), Platform::Exception);
    EXPECT_EQ(Elements(v), (std::vector<Float>{-1, 2, 3}));
}

TEST(VectorMovingAverage, PlacesEachAverageInItsWindow) {
    const TKorDoubleVector v{1, 2, 3, 4, 5};
    EXPECT_EQ(Elements(MovingAverage(v, 3, 1)), (std::vector<Double>{0, 2, 3, 4, 0}));
    EXPECT_EQ(Elements(MovingAverage(v, 3, 7)), (std::vector<Double>{0, 0, 2, 3, 4}));
    EXPECT_EQ(Elements(MovingAverage(v, 3, 0)), (std::vector<Double>{2, 3, 4, 0, 0}));
    EXPECT_EQ(Elements(MovingAverage(v, 5, 0)), (std::vector<Double>{3, 0, 0, 0, 0}));
    const TKorFloatVector f{1, 2};
    EXPECT_EQ(Elements(MovingAverage(f, 1, 0)), (std::vector<Float>{1, 2}));
    ExpectMathError([&] { MovingAverage(TKorSingleVector(), 1, 0); }, rsVectorIsEmpty);
    ExpectMathError([&] { MovingAverage(v, 0, 0); }, rsValueNotZero);
}

TEST(VectorPolynomial, RunningPowersInIncreasingOrder) {
    EXPECT_EQ(KorPolynomial(TKorFloatVector{1, 2, 3}, 2), 17);
    EXPECT_EQ(KorPolynomial(TKorFloatVector(), 2), 0);
    EXPECT_EQ(KorPolynomial(TKorFloatVector{5}, 1e300L), 5);
    EXPECT_EQ(KorPolynomial(TKorFloatVector{0, 0, 1}, -3), 9);
}

}  // namespace
