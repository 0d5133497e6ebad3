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

TYPED_TEST(VectorStorage, CopiesShareUntilResizedAndEmptyIsTheNullHandle) {
    TypeParam never, a{1, 2, 3};
    EXPECT_EQ(never.High(), -1);
    const TypeParam b = a;  // a constant handle still writes the shared elements
    EXPECT_EQ(a.RefCount(), 2);
    b[1] = 7;
    a[0] = 5;
    EXPECT_EQ(b[0], 5);
    EXPECT_EQ(a[1], 7);

    TypeParam grown = a, shrunk = a;
    grown.SetLength(5);  // both detach; the others keep their length and elements
    shrunk.SetLength(1);
    grown[0] = 9;
    EXPECT_FALSE(grown.SharesWith(a));
    EXPECT_EQ(a.Length(), 3);
    EXPECT_EQ(a[0], 5);
    EXPECT_EQ(a.RefCount(), 2);
    EXPECT_EQ(shrunk.Length(), 1);
    EXPECT_EQ(grown[2], 3);
    EXPECT_EQ(grown[4], 0);

    grown.SetLength(1);
    grown.SetLength(3);  // the reappearing elements are zero, not the old values
    EXPECT_TRUE(grown[1] == 0 && grown[2] == 0);
    a.SetLength(0);  // releases: the null handle again
    EXPECT_TRUE(a.IsEmpty());
    EXPECT_EQ(a.High(), -1);
    EXPECT_TRUE(a.SharesWith(never));
}

TEST(FloatVector, StoresTenBytesPerElementBitExact) {
    TKorFloatVector v;
    v.SetLength(4);
    EXPECT_EQ(reinterpret_cast<const char*>(&v[3]) - reinterpret_cast<const char*>(&v[0]), 30);

    // Values whose bits a careless 64-bit path would change: the smallest denormal,
    // the largest value, a value needing all 64 significand bits, and a quiet NaN
    // with a payload.
    const unsigned char nanBits[10] = {0x21, 0x43, 0x65, 0x87, 0, 0, 0, 0xC0, 0xFF, 0x7F};
    Float values[4] = {std::numeric_limits<Float>::denorm_min(), std::numeric_limits<Float>::max(),
                       1.0L + std::numeric_limits<Float>::epsilon()};
    std::memcpy(&values[3], nanBits, 10);
    for (int i = 0; i < 4; ++i) v[i] = values[i];
    for (int i = 0; i < 4; ++i) EXPECT_EQ(std::memcmp(&v[i], &values[i], 10), 0) << i;
    EXPECT_EQ(Float(v[2]) - 1.0L, std::numeric_limits<Float>::epsilon());

    TKorFloatVector copy = v;
    copy.SetLength(5);  // detached copy carries the same bytes
    EXPECT_EQ(std::memcmp(&copy[0], &v[0], 40), 0);

    v[0] = 1.5L;  // elements read and write like Floats
    v[0] += 1;
    v[0] *= 3;
    v[0] /= 2;
    v[0] -= 0.25L;
    EXPECT_EQ(v[0], 3.5L);
}

TEST(Matrix, IsAVectorOfRowVectorsThatMayBeRagged) {
    TKorFloatMatrix m;
    m.SetLength(2);
    EXPECT_TRUE(m[0].IsEmpty());  // new rows are empty handles
    m[0] = TKorFloatVector{1, 2, 3};
    m[1] = TKorFloatVector{4};

    TKorFloatMatrix shared = m;
    m.SetLength(3);  // the outer vector detaches; rows stay shared handles
    EXPECT_EQ(shared.Length(), 2);
    m[0][0] = 10;
    EXPECT_EQ(shared[0][0], 10);
    m.SetLength(0);
    EXPECT_EQ(shared[1][0], 4);
}

// Currency amounts are their own type: no silent conversion from a raw integer.
static_assert(!std::is_convertible_v<Int64, Currency>);

}  // namespace
