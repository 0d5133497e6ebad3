// Vectors: aggregates, sorting and ranking, sharing, a failure, and currency amounts.
#include <kornum/KornumFinVector.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/KornumVector.h>
#include <kornum/Kornumfinancials.h>
#include <kornum/PlatformExceptions.h>

#include <cstdio>

using namespace Kornumglobals;

static void Print(const char* label, const TKorFloatVector& V) {
    std::printf("%s:", label);
    for (Float x : V) std::printf(" %Lg", x);
    std::printf("\n");
}

int main() {
    using namespace KornumVector;

    // Aggregates and extremes of one vector.
    TKorFloatVector data{3, 1, 4, 1, 5, 9, 2, 6};
    Float minValue, maxValue;
    Cardinal minIndex, maxIndex;
    Boolean minUnique, maxUnique;
    MinMaxVector(data, minValue, maxValue, minIndex, maxIndex, minUnique, maxUnique);
    std::printf("sum %Lg, sum of squares %Lg\n", SumVector(data), SumSqVector(data));
    std::printf("min %Lg at %u (unique: %s), max %Lg at %u (unique: %s)\n", minValue, minIndex,
                minUnique ? "yes" : "no", maxValue, maxIndex, maxUnique ? "yes" : "no");

    // Ranks: 0-based positions in the ascending order, ties sharing the lowest one.
    const TKorLIntVector ranks = Vector2RankVector(data, true);
    std::printf("ranks:");
    for (Integer r : ranks) std::printf(" %d", r);
    std::printf("\n");

    // A copied handle shares the storage; CopyVector gives storage of its own.
    TKorFloatVector shared = data;
    TKorFloatVector own = CopyVector(data);
    QSortVector(shared, true);  // sorts the storage that data also refers to
    Print("data after sorting a sharer", data);
    Print("the copy", own);
    AppendValue2Vector(shared, 7);  // resizing detaches: data keeps its 8 elements
    std::printf("lengths: shared %d, data %d\n", shared.Length(), data.Length());

    // Every failure is a Platform::EMathError carrying the identifier's text.
    try {
        SumVector(TKorFloatVector{});
    } catch (const Platform::EMathError& e) {
        std::printf("empty vector: \"%s\" (%s)\n", e.Message().c_str(),
                    e.Message() == Kornum_RS_Math::rsVectorIsEmpty.Text() ? "rsVectorIsEmpty" : "?");
    }

    // Currency amounts: ten-thousandths, converted with rounding to even.
    const TKorCurrencyVector prices = KornumFinVector::Vector2KorCurrencyVector(TKorFloatVector{19.99L, 5.01L, 0.125L});
    const Currency total = KornumFinVector::SumVector(prices);
    std::printf("total %.4Lf\n", Kornumfinancials::Currency2Float(total));
    const TKorCurrVector cents = KornumFinVector::Vector2KorCurrVector(prices);  // 0.125 -> 0.12
    std::printf("in hundredths:");
    for (KorCurrency c : cents) std::printf(" %d", c);
    std::printf("\n");
    return 0;
}
