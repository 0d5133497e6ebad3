// Sorting, reversal and ranking; the fast ranking is checked against the plain walk.
#include "VectorTestSupport.h"

#include <kornum/Kornummath.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

using namespace VectorTest;

template <class E>
class VectorSorting : public ::testing::Test {};
TYPED_TEST_SUITE(VectorSorting, AllElementTypes);

TYPED_TEST(VectorSorting, MatchesTheStandardSortOnRandomDataWithDuplicates) {
    using E = TypeParam;
    std::mt19937 gen(7);
    for (int n : {0, 1, 2, 3, 17, 1000, 4099}) {
        TKorVector<E> v;
        v.SetLength(n);
        for (int i = 0; i < n; ++i) v[i] = E(ValueOf<E>(gen() % 100));
        std::vector<ValueOf<E>> expected = Elements(v);
        std::sort(expected.begin(), expected.end());
        QSortVector(v, true);
        EXPECT_EQ(Elements(v), expected);
        std::reverse(expected.begin(), expected.end());
        QSortVector(v, false);
        EXPECT_EQ(Elements(v), expected);
    }
}

TYPED_TEST(VectorSorting, ReverseMakesANewVectorAndRanksShareTheLowestPosition) {
    using E = TypeParam;
    const TKorVector<E> v = Make<E>({10, 20, 10, 30}), w = Make<E>({5, 7, 9}), empty;
    TKorVector<E> r = ReverseVector(w);
    r[0] = E(ValueOf<E>(1));
    EXPECT_EQ(Elements(r), (std::vector<ValueOf<E>>{1, 7, 5}));
    EXPECT_TRUE(ReverseVector(empty).IsEmpty());

    EXPECT_EQ(Elements(Vector2RankVector(v, true)), (std::vector<Integer>{0, 2, 0, 3}));
    EXPECT_EQ(Elements(Vector2RankVector(v, false)), (std::vector<Integer>{2, 1, 2, 0}));
    EXPECT_TRUE(Vector2RankVector(empty, true).IsEmpty());
    EXPECT_EQ(Vector2Rank(w, 3, true), -1);
    EXPECT_EQ(Vector2Rank(w, 2, false), 0);
    EXPECT_EQ(Vector2Rank(w, 0, false), 2);
    EXPECT_EQ(Vector2Rank(empty, 0, true), -1);
    EXPECT_EQ(Vector2RankValue(w, ValueOf<E>(7), true), 1);
    EXPECT_EQ(Vector2RankValue(w, ValueOf<E>(8), true), -1);
    EXPECT_EQ(Vector2RankValue(empty, ValueOf<E>(8), true), -1);
    EXPECT_EQ(Elements(v), (std::vector<ValueOf<E>>{10, 20, 10, 30}));  // untouched
    EXPECT_EQ(Elements(w), (std::vector<ValueOf<E>>{5, 7, 9}));
}

// ---- The fast ranking against the plain walk -------------------------------------------

// The plain method: sort a copy, then walk it from 0 for every element.
template <class E>
Integer PlainRank(const TKorVector<E>& sorted, ValueOf<E> x) {
    for (Integer p = 0; p < sorted.Length(); ++p) {
        const ValueOf<E> y = sorted[p];
        if constexpr (std::is_integral_v<ValueOf<E>>) {
            if (y == x) return p;
        } else if (Kornummath::SameFloat(y, x)) {
            return p;
        }
    }
    return -1;
}

// Values on a coarse grid, many repeated exactly, many nudged by a relative amount
// well inside, near, or just outside the tolerance of the member's width.
template <class E>
TKorVector<E> NearTies(std::mt19937_64& gen, int n, Float tolerance) {
    TKorVector<E> v;
    v.SetLength(n);
    std::uniform_int_distribution<int> grid(-20, 20), kind(0, 7);
    const Float nudges[] = {0.0L, 0.3L, 0.9L, 0.999L, 1.001L, 1.1L, 2.0L, 3.0L};
    for (int i = 0; i < n; ++i) {
        Float x = grid(gen);
        if constexpr (std::is_floating_point_v<ValueOf<E>>) {
            if (gen() % 3 == 0) x *= 1e6L;
            if (gen() % 5 == 0) x /= 1e6L;
            const Float nudge = nudges[kind(gen)] * tolerance * std::max(1.0L, std::fabs(x));
            x += gen() % 2 ? nudge : -nudge;
        } else {
            x = std::fabs(x);
            if (std::is_signed_v<ValueOf<E>> && gen() % 2) x = -x;
        }
        v[i] = E(ValueOf<E>(x));
    }
    return v;
}

// The tolerance SameFloat applies to the member's width.
template <class E>
Float ToleranceOf() {
    Float floor = 0;
    if constexpr (std::is_same_v<E, Double>) floor = Kornummath::DoubleToleranceFloor;
    if constexpr (std::is_same_v<E, Single>) floor = Kornummath::SingleToleranceFloor;
    return std::max(Kornumglobals::KorTolerance, floor);
}

template <class E>
void ExpectFastRanksEqualPlainWalk(std::mt19937_64& gen) {
    int tolerantTies = 0;  // ranks taken from a different value within tolerance
    for (int round = 0; round < 20; ++round) {
        const int n = 50 + int(gen() % 400);
        const TKorVector<E> v = NearTies<E>(gen, n, ToleranceOf<E>());
        for (bool ascending : {true, false}) {
            TKorVector<E> sorted = CopyVector(v);
            QSortVector(sorted, ascending);
            const TKorLIntVector ranks = Vector2RankVector(v, ascending);
            ASSERT_EQ(ranks.Length(), n);
            for (Integer i = 0; i < n; ++i) {
                const Integer plain = PlainRank(sorted, ValueOf<E>(v[i]));
                ASSERT_EQ(ranks[i], plain) << "element " << i << " ascending " << ascending;
                if (ValueOf<E>(sorted[plain]) != ValueOf<E>(v[i])) ++tolerantTies;
                if (i % 7 == 0) {
                    ASSERT_EQ(Vector2Rank(v, Cardinal(i), ascending), plain);
                    ASSERT_EQ(Vector2RankValue(v, ValueOf<E>(v[i]), ascending), plain);
                }
            }
        }
    }
    if constexpr (std::is_floating_point_v<ValueOf<E>>) {
        EXPECT_GT(tolerantTies, 100);
    }
}

TYPED_TEST(VectorSorting, FastRanksEqualThePlainWalkOnNearTies) {
    std::mt19937_64 gen(2024);
    ExpectFastRanksEqualPlainWalk<TypeParam>(gen);
    ToleranceScope wide(1e-3L);  // and again under a wide tolerance
    ExpectFastRanksEqualPlainWalk<TypeParam>(gen);
}

TEST(VectorRanking, NaNHasNoRankAndDoesNotDisturbTheOthers) {
    const Double nan = std::nan("");
    const TKorDoubleVector v{2.0, nan, 1.0, 2.0};
    TKorDoubleVector sorted = CopyVector(v);
    QSortVector(sorted, true);
    const TKorLIntVector ranks = Vector2RankVector(v, true);
    for (Integer i = 0; i < v.Length(); ++i) EXPECT_EQ(ranks[i], PlainRank(sorted, Double(v[i])));
    EXPECT_EQ(ranks[1], -1);
}

}  // namespace
