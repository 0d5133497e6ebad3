// The currency members of the vector families: what they share with the numeric
// members, and every way they differ.
#include "VectorTestSupport.h"

#include <kornum/KornumFinVector.h>
#include <kornum/PlatformExceptions.h>

#include <functional>
#include <limits>

namespace {

using namespace KornumTest;
using namespace Kornumglobals;
using Kornum_RS_Math::rsSameDimensions;
using Kornum_RS_Math::rsVectorIsEmpty;
namespace Fin = KornumFinVector;

// Vectors of the three members built from stored integers.
template <class E>
TKorVector<E> Stored(std::initializer_list<Int64> raws) {
    TKorVector<E> v;
    v.SetLength(Integer(raws.size()));
    Integer i = 0;
    for (Int64 raw : raws) {
        if constexpr (std::is_same_v<E, Currency>) v[i++] = Currency::FromRaw(raw); else v[i++] = E(raw);
    }
    return v;
}
template <class E>
std::vector<Int64> Raws(const TKorVector<E>& v) {
    std::vector<Int64> raws;
    for (const E& x : v) {
        if constexpr (std::is_same_v<E, Currency>) raws.push_back(x.Raw); else raws.push_back(Int64(x));
    }
    return raws;
}
template <class E>
E One(Int64 raw) {
    return Stored<E>({raw})[0];
}

template <class E>
class CurrencyVectors : public ::testing::Test {};
using CurrencyTypes = ::testing::Types<KorCurrency, KorLongCurrency, Currency>;
TYPED_TEST_SUITE(CurrencyVectors, CurrencyTypes);

TYPED_TEST(CurrencyVectors, ShareTheNumericFamiliesBehaviour) {
    using E = TypeParam;
    TKorVector<E> v = Stored<E>({30, -10, 20, -10});
    Fin::AppendValue2Vector(v, One<E>(5));
    Fin::AddValue2Vector(v, One<E>(7), 1);
    Fin::AddValue2Vector(v, One<E>(9), 99);  // a bad index appends
    Fin::DeleteValueFromVector(v, 0);
    Fin::DeleteValueFromVector(v, -1);  // ignored
    EXPECT_EQ(Raws(v), (std::vector<Int64>{7, -10, 20, -10, 5, 9}));
    EXPECT_EQ(Raws(Fin::ReverseVector(v)), (std::vector<Int64>{9, 5, -10, 20, -10, 7}));
    EXPECT_EQ(Raws(Stored<E>({Fin::MaxVector(v) == One<E>(20), Fin::MinVector(v) == One<E>(-10)})),
              (std::vector<Int64>{1, 1}));
    E lo, hi;
    Cardinal loIndex, hiIndex;
    Boolean loUnique, hiUnique;
    Fin::MinMaxVector(v, lo, hi, loIndex, hiIndex, loUnique, hiUnique);
    EXPECT_TRUE(lo == One<E>(-10) && hi == One<E>(20) && loIndex == 1 && hiIndex == 2 && !loUnique && hiUnique);

    TKorVector<E> copy = Fin::CopyVector(v);
    Fin::QSortVector(copy, true);
    EXPECT_EQ(Raws(copy), (std::vector<Int64>{-10, -10, 5, 7, 9, 20}));
    Fin::QSortVector(copy, false);
    EXPECT_EQ(Raws(copy), (std::vector<Int64>{20, 9, 7, 5, -10, -10}));
    EXPECT_EQ(Raws(v), (std::vector<Int64>{7, -10, 20, -10, 5, 9}));

    const TKorVector<E> a = Stored<E>({1, 2}), b = Stored<E>({10, 20}), c = Stored<E>({1});
    EXPECT_EQ(Raws(Fin::AddVectors(a, b)), (std::vector<Int64>{11, 22}));
    EXPECT_EQ(Raws(Fin::SubtractVectors(a, b)), (std::vector<Int64>{-9, -18}));
    TKorVector<E> into = Fin::CopyVector(a);
    Fin::AddToVector(into, b);
    Fin::SubtractFromVector(into, a);
    EXPECT_EQ(Raws(into), Raws(b));
    EXPECT_TRUE(Raises([&] { Fin::AddVectors(a, c); }, rsSameDimensions));
    EXPECT_TRUE(Raises([&] { Fin::SubtractFromVector(into, c); }, rsSameDimensions));

    Fin::FillVector(into, One<E>(4));
    EXPECT_EQ(Raws(into), (std::vector<Int64>{4, 4}));
    Fin::ClearVector(into);
    EXPECT_EQ(Raws(into), (std::vector<Int64>{0, 0}));

    const TKorVector<E> empty;
    for (auto call : std::initializer_list<std::function<void()>>{
             [&] { Fin::SumVector(empty); }, [&] { Fin::MaxVector(empty); }, [&] { Fin::VectorZero(empty); },
             [&] { Fin::VectorPositive(empty); }, [&] { TKorVector<E> e; Fin::LinearTransformVector(e, 2, 1); }})
        EXPECT_TRUE(Raises(call, rsVectorIsEmpty));
    EXPECT_EQ(Fin::Vector2RankVector(Stored<E>({30, 10, 30}), true)[2], 1);
    EXPECT_EQ(Fin::Vector2Rank(Stored<E>({30, 10, 30}), 0, false), 0);
    EXPECT_EQ(Fin::Vector2RankValue(Stored<E>({30, 10, 30}), One<E>(10), true), 0);
}

TEST(CurrencyVectorDifferences, SumsWrapOrRoundByMember) {
    // KorCurrency wraps in 32 bits, where the numeric Integer member widens.
    const TKorCurrVector big{std::numeric_limits<Integer>::max(), 1};
    EXPECT_EQ(Fin::SumVector(big), std::numeric_limits<Integer>::min());
    EXPECT_EQ(KornumVector::SumVector(big), Int64(std::numeric_limits<Integer>::max()) + 1);
    EXPECT_EQ(Fin::SumVector(TKorLongCurrVector{std::numeric_limits<Int64>::max(), 2}),
              std::numeric_limits<Int64>::min() + 1);
    EXPECT_EQ(Fin::SumVector(Stored<Currency>({15000, 22500, -1})).Raw, 37499);
}

TEST(CurrencyVectorDifferences, SignTestsAreExactExceptForCurrency) {
    const TKorCurrencyVector tenThousandth = Stored<Currency>({1});  // the amount 0.0001
    EXPECT_FALSE(Fin::VectorZero(tenThousandth));
    EXPECT_TRUE(Fin::VectorNonZero(tenThousandth));
    {
        const ToleranceScope wide(0.001L);  // FloatIsZero(0.0001) now holds
        EXPECT_TRUE(Fin::VectorZero(tenThousandth));
        EXPECT_FALSE(Fin::VectorNonZero(tenThousandth));
        EXPECT_FALSE(Fin::VectorPositive(tenThousandth));
        EXPECT_TRUE(Fin::VectorNonNegative(Stored<Currency>({-1})));
        // The integer members stay exact, even the non-zero test (the numeric Int64
        // member's is tolerant).
        EXPECT_FALSE(Fin::VectorZero(TKorCurrVector{1}));
        EXPECT_TRUE(Fin::VectorNonZero(TKorLongCurrVector{1}));
        EXPECT_TRUE(Fin::VectorPositive(TKorCurrVector{1}));
        EXPECT_FALSE(Fin::VectorNonNegative(TKorLongCurrVector{-1}));
    }
}

TEST(CurrencyVectorDifferences, RankingTakesIntegersAsWholeAmounts) {
    const TKorLIntVector ranks = Fin::Vector2RankVector(TKorCurrVector{3, 1, 3}, true);
    EXPECT_EQ(std::vector<Integer>(ranks.begin(), ranks.end()), (std::vector<Integer>{1, 0, 1}));
    // Times 10,000 in 64 bits, 0 and 2^60 become the same amount and share rank 0; the
    // whole walk is taken for such values.
    const TKorLongCurrVector wrapping{Int64(1) << 60, 5, 0};
    const TKorLIntVector wrapped = Fin::Vector2RankVector(wrapping, true);
    EXPECT_EQ(std::vector<Integer>(wrapped.begin(), wrapped.end()), (std::vector<Integer>{0, 1, 0}));
    EXPECT_EQ(Fin::Vector2RankValue(wrapping, Int64(1) << 60, true), 0);
}

TEST(CurrencyVectorDifferences, LinearTransformAndConversionsRoundTiesToEven) {
    TKorCurrencyVector c = Stored<Currency>({25000});  // 2.5
    Fin::LinearTransformVector(c, 2, 1);
    EXPECT_EQ(c[0].Raw, 60000);
    TKorCurrVector k{250};  // 2.50: 2.5 * 0.5 = 1.25 is 125 hundredths
    Fin::LinearTransformVector(k, 0.5L, 0);
    EXPECT_EQ(k[0], 125);
    Fin::LinearTransformVector(k, 0.01L, 0);  // 0.0125 is 1.25 hundredths: 1
    EXPECT_EQ(k[0], 1);
    TKorCurrVector tooBig{100, 200};
    EXPECT_THROW(Fin::LinearTransformVector(tooBig, 1e8L, 0), Platform::ERangeError);
    EXPECT_EQ(tooBig[0], 100);  // nothing written

    EXPECT_EQ(Fin::Vector2KorCurrencyVector(TKorFloatVector{1.23456L})[0].Raw, 12346);
    EXPECT_EQ(Fin::Vector2KorCurrVector(TKorFloatVector{0.125L, 0.135L})[0], 12);
    EXPECT_EQ(Fin::Vector2KorCurrVector(TKorFloatVector{0.125L, 0.135L})[1], 14);
    EXPECT_EQ(Fin::Vector2KorLongCurrVector(Stored<Currency>({12345}))[0], 1234500);
    EXPECT_EQ(Fin::Vector2KorCurrVector(TKorLongCurrVector{1005000})[0], 100);  // 1.005 to hundredths: 1.00
    EXPECT_EQ(Fin::Vector2KorCurrencyVector(TKorCurrVector{-150})[0].Raw, -15000);
    EXPECT_THROW(Fin::Vector2KorCurrVector(TKorFloatVector{1, 1e10L}), Platform::ERangeError);
    EXPECT_THROW(Fin::Vector2KorCurrencyVector(TKorFloatVector{1e20L}), Platform::ERangeError);
    const TKorFloatVector amounts = Fin::Vector2FloatVector(Stored<Currency>({15000}));
    EXPECT_EQ(Float(amounts[0]), 1.5L);
    EXPECT_EQ(Float(Fin::Vector2FloatVector(TKorCurrVector{150})[0]), 1.5L);
    EXPECT_EQ(Float(Fin::Vector2FloatVector(TKorLongCurrVector{1500000})[0]), 1.5L);
}

}  // namespace
