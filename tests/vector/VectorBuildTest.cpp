// Construction, resizing, filling, copies and conversions.
#include "VectorTestSupport.h"

namespace {

using namespace VectorTest;

TEST(VectorResizing, InsertAppendAndDelete) {
    TKorDoubleVector v;
    AppendValue2Vector(v, 1.5);
    TKorDoubleVector sharer = v;
    AppendValue2Vector(v, 2.5);
    EXPECT_EQ(Elements(v), (std::vector<Double>{1.5, 2.5}));
    EXPECT_EQ(Elements(sharer), (std::vector<Double>{1.5}));

    TKorLIntVector empty, w{1, 2, 3};
    AddValue2Vector(empty, 7, 0);
    EXPECT_EQ(Elements(empty), (std::vector<Integer>{7}));
    // Inserts shift up; an index of n, below 0 or beyond n appends.
    for (auto [value, index] : {std::pair{9, 1}, {0, 0}, {4, 5}, {8, -1}, {6, 100}})
        AddValue2Vector(w, value, index);
    EXPECT_EQ(Elements(w), (std::vector<Integer>{0, 1, 9, 2, 3, 4, 8, 6}));
    TKorFloatVector f{1.0L, 2.0L};
    AddValue2Vector(f, 0.25L, 1);
    EXPECT_EQ(Elements(f), (std::vector<Float>{1.0L, 0.25L, 2.0L}));

    // Deletes shift down, release the last element and ignore bad indexes.
    TKorLWordVector d{1, 2, 3, 4};
    for (Integer index : {5, -1, 0, 4, 2}) DeleteValueFromVector(d, index);
    EXPECT_EQ(Elements(d), (std::vector<Cardinal>{2, 3}));
    TKorInt64Vector one{5};
    DeleteValueFromVector(one, 0);
    EXPECT_EQ(one.High(), -1);
    TKorSingleVector none;
    DeleteValueFromVector(none, 0);
    EXPECT_TRUE(none.IsEmpty());
}

template <class E>
class VectorFilling : public ::testing::Test {};
TYPED_TEST_SUITE(VectorFilling, AllElementTypes);

TYPED_TEST(VectorFilling, FillClearAndCopy) {
    using E = TypeParam;
    const TKorVector<E> v = Make<E>({1, 2, 3});
    const TKorVector<E> sharer = v;
    FillVector(v, ValueOf<E>(7));
    EXPECT_EQ(Elements(sharer), (std::vector<ValueOf<E>>{7, 7, 7}));
    ClearVector(sharer);
    EXPECT_EQ(Elements(v), (std::vector<ValueOf<E>>{0, 0, 0}));
    TKorVector<E> empty;
    FillVector(empty, ValueOf<E>(1));
    ClearVector(empty);
    EXPECT_TRUE(empty.IsEmpty());

    // A copy shares nothing; the conversion to Float is exact.
    const TKorVector<E> w = Make<E>({1, 100, 3});
    TKorVector<E> copy = CopyVector(w);
    copy[0] = E(ValueOf<E>(9));
    EXPECT_EQ(Elements(w), (std::vector<ValueOf<E>>{1, 100, 3}));
    EXPECT_EQ(Elements(Vector2FloatVector(w)), (std::vector<Float>{1, 100, 3}));
    EXPECT_TRUE(CopyVector(empty).IsEmpty());
    EXPECT_TRUE(Vector2FloatVector(empty).IsEmpty());
}

TEST(VectorConversion, WideningFollowsTheSourceSignedness) {
    EXPECT_EQ(Elements(Vector2FloatVector(TKorLWordVector{4294967295u})), (std::vector<Float>{4294967295.0L}));
    EXPECT_EQ(Elements(Vector2FloatVector(TKorInt64Vector{(Int64(1) << 62) + 1})),
              (std::vector<Float>{4611686018427387905.0L}));
    EXPECT_EQ(Elements(Vector2FloatVector(TKorSingleVector{0.1f})), (std::vector<Float>{Float(0.1f)}));
    EXPECT_EQ(Elements(Vector2Int64Vector(TKorLWordVector{4294967295u})), (std::vector<Int64>{4294967295}));
    EXPECT_EQ(Elements(Vector2Int64Vector(TKorSIntVector{-128, 127})), (std::vector<Int64>{-128, 127}));
    EXPECT_EQ(Elements(Vector2Int64Vector(TKorByteVector{255})), (std::vector<Int64>{255}));
    EXPECT_EQ(Elements(Vector2LIntVector(TKorWordVector{65535})), (std::vector<Integer>{65535}));
    EXPECT_EQ(Elements(Vector2LIntVector(TKorSmallIntVector{-32768})), (std::vector<Integer>{-32768}));
    // Raw arrays are given by their first element and last index.
    const Cardinal cardinals[] = {4294967295u, 1, 2};
    const ShortInt shorts[] = {-1, 5};
    const Float floats[] = {0.5L};
    EXPECT_EQ(Elements(Array2FloatVector(cardinals, 1)), (std::vector<Float>{4294967295.0L, 1}));
    EXPECT_EQ(Elements(Array2Int64Vector(cardinals, 2)), (std::vector<Int64>{4294967295, 1, 2}));
    EXPECT_EQ(Elements(Array2LIntVector(shorts, 1)), (std::vector<Integer>{-1, 5}));
    EXPECT_EQ(Elements(Array2Int64Vector(shorts, 0)), (std::vector<Int64>{-1}));
    EXPECT_EQ(Elements(Array2FloatVector(floats, 0)), (std::vector<Float>{0.5L}));
    EXPECT_TRUE(Array2FloatVector(floats, -1).IsEmpty());
}

}  // namespace
