// Storage semantics of vectors and matrices: sharing, detaching, zero-fill, release,
// and the bit-exact 10-byte Float elements.
#include <kornum/Kornumglobals.h>

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <type_traits>

using namespace Kornumglobals;

namespace {

template <class V>
class VectorStorage : public ::testing::Test {};
using AllVectors = ::testing::Types<TKorFloatVector, TKorDoubleVector, TKorSingleVector,
                                    TKorInt64Vector, TKorLWordVector, TKorLIntVector,
                                    TKorWordVector, TKorSmallIntVector, TKorByteVector,
                                    TKorSIntVector>;
TYPED_TEST_SUITE(VectorStorage, AllVectors);

TYPED_TEST(VectorStorage, EmptyIsTheNullHandle) {
    TypeParam never;
    EXPECT_EQ(never.Length(), 0);
    EXPECT_EQ(never.High(), -1);
    EXPECT_TRUE(never.IsEmpty());
    EXPECT_EQ(never.begin(), never.end());

    TypeParam sized{1, 2, 3};
    sized.SetLength(0);
    EXPECT_TRUE(sized.IsEmpty());
    EXPECT_EQ(sized.High(), -1);
    EXPECT_TRUE(sized.SharesWith(never));
}

TYPED_TEST(VectorStorage, CopiesShareAndSeeEachOthersWrites) {
    TypeParam a{1, 2, 3};
    const TypeParam b = a;  // a constant handle still writes the shared elements
    EXPECT_TRUE(a.SharesWith(b));
    EXPECT_EQ(a.RefCount(), 2);
    b[1] = 7;
    EXPECT_EQ(a[1], 7);
    a[0] = 5;
    EXPECT_EQ(b[0], 5);
}

TYPED_TEST(VectorStorage, ResizingASharedVectorDetachesIt) {
    TypeParam a{1, 2, 3};
    TypeParam b = a;
    a.SetLength(5);
    EXPECT_FALSE(a.SharesWith(b));
    EXPECT_EQ(b.Length(), 3);
    EXPECT_EQ(a.Length(), 5);
    EXPECT_EQ(a[2], 3);
    EXPECT_EQ(a[3], 0);
    EXPECT_EQ(a[4], 0);
    a[0] = 9;
    EXPECT_EQ(b[0], 1);
    EXPECT_EQ(b.RefCount(), 1);

    // Shrinking a shared vector detaches as well, and the other keeps its length.
    TypeParam c = b;
    c.SetLength(1);
    EXPECT_EQ(c.Length(), 1);
    EXPECT_EQ(b.Length(), 3);
    EXPECT_EQ(b[2], 3);
}

TYPED_TEST(VectorStorage, ResizingKeepsElementsAndZeroFillsNewOnes) {
    TypeParam v;
    for (int i = 0; i < 100; ++i) {
        v.SetLength(i + 1);
        v[i] = static_cast<typename TypeParam::value_type>(i % 50);
    }
    for (int i = 0; i < 100; ++i) ASSERT_EQ(v[i], i % 50);
    v.SetLength(10);
    v.SetLength(20);  // the ten reappearing elements are zero, not the old values
    for (int i = 10; i < 20; ++i) EXPECT_EQ(v[i], 0);
    EXPECT_EQ(v[9], 9);
}

TEST(FloatVector, StoresTenBytesPerElementBitExact) {
    static_assert(sizeof(TKorFloatVector::value_type) == 10);
    TKorFloatVector v;
    v.SetLength(4);
    EXPECT_EQ(reinterpret_cast<const char*>(&v[3]) - reinterpret_cast<const char*>(&v[0]), 30);

    // Values whose bits a careless 64-bit path would change: the smallest denormal,
    // the largest value, a value needing all 64 significand bits, and a quiet NaN
    // with a payload.
    const Float denormal = std::numeric_limits<Float>::denorm_min();
    const Float largest = std::numeric_limits<Float>::max();
    const Float allBits = 1.0L + std::numeric_limits<Float>::epsilon();
    unsigned char nanBits[10] = {0x21, 0x43, 0x65, 0x87, 0, 0, 0, 0xC0, 0xFF, 0x7F};
    Float nanWithPayload = 0;
    std::memcpy(&nanWithPayload, nanBits, 10);

    v[0] = denormal;
    v[1] = largest;
    v[2] = allBits;
    v[3] = nanWithPayload;
    EXPECT_EQ(std::memcmp(&v[0], &denormal, 10), 0);
    EXPECT_EQ(std::memcmp(&v[1], &largest, 10), 0);
    EXPECT_EQ(std::memcmp(&v[2], &allBits, 10), 0);
    EXPECT_EQ(std::memcmp(&v[3], nanBits, 10), 0);
    EXPECT_EQ(Float(v[2]) - 1.0L, std::numeric_limits<Float>::epsilon());

    TKorFloatVector copy = v;
    copy.SetLength(5);  // detached copy carries the same bytes
    EXPECT_EQ(std::memcmp(&copy[0], &v[0], 40), 0);
}

TEST(FloatVector, ElementsReadAndWriteLikeFloats) {
    TKorFloatVector v{1.5L, 2.0L};
    v[0] += 1;
    v[1] *= 3;
    v[1] /= 2;
    v[0] -= 0.25L;
    EXPECT_EQ(v[0], 2.25L);
    EXPECT_EQ(v[1], 3.0L);
}

TEST(Matrix, IsAVectorOfRowVectorsThatMayBeRagged) {
    TKorFloatMatrix m;
    m.SetLength(2);
    EXPECT_TRUE(m[0].IsEmpty());  // new rows are empty handles
    m[0] = TKorFloatVector{1, 2, 3};
    m[1] = TKorFloatVector{4};
    EXPECT_EQ(m[0].Length(), 3);
    EXPECT_EQ(m[1].Length(), 1);

    TKorFloatMatrix shared = m;
    m.SetLength(3);  // the outer vector detaches; rows stay shared handles
    EXPECT_EQ(shared.Length(), 2);
    EXPECT_TRUE(m[0].SharesWith(shared[0]));
    m[0][0] = 10;
    EXPECT_EQ(shared[0][0], 10);
    m.SetLength(0);
    EXPECT_EQ(shared[1][0], 4);
}

TEST(Types, CurrencyVectorsAreTheIntegerVectors) {
    static_assert(std::is_same_v<TKorCurrVector, TKorLIntVector>);
    static_assert(std::is_same_v<TKorLongCurrVector, TKorInt64Vector>);
    static_assert(std::is_same_v<TKorCurrMatrix, TKorLIntMatrix>);
    static_assert(std::is_same_v<TKorLongCurrMatrix, TKorInt64Matrix>);
    static_assert(!std::is_same_v<TKorCurrencyVector, TKorInt64Vector>);
    static_assert(!std::is_convertible_v<Int64, Currency>);
    static_assert(std::is_same_v<Cardinal, LongWord> && std::is_same_v<Integer, LongInt>);
    static_assert(sizeof(ShortInt) == 1 && std::is_signed_v<ShortInt>);
    static_assert(sizeof(Word) == 2 && std::is_unsigned_v<Word>);
    SUCCEED();
}

}  // namespace
