// Normal and log-normal distributions: the series and the inverse against 60-digit
// references, worked values, the argument conventions and the order of the checks.
#include "StatisticsTestSupport.h"

#include <kornum/Kornum_RS_Math.h>
#include <kornum/NormalDistributions.h>

#include <iostream>
#include <limits>

using namespace KornumStatistics;
using namespace StatisticsTest;
namespace rs = Kornum_RS_Math;

TEST(NormalDistributions, AccuracyAgainstHighPrecisionReference) {
    Float worstLess = 0, worstInverse = 0;
    for (const auto& row : ReadTable("distributions_normal_less.tsv"))  // Z in [0, 7]
        worstLess = std::max(worstLess, std::fabs(NormalLess(row[0]) - row[1]));
    for (const auto& row : ReadTable("distributions_inv_normal.tsv")) {  // P in [1e-300, 1)
        const Float z = InvNormalLess(row[0]);
        worstInverse = std::max(worstInverse, row[1] == 0 ? std::fabs(z) : RelativeError(z, row[1]));
    }
    EXPECT_LE(worstLess, 2e-18L);
    // The published approximation is good to about 1e-16: room for that, not for a
    // wrong coefficient (1e-10 or worse).
    EXPECT_LE(worstInverse, 2e-16L);
    std::cout << "NormalLess max absolute error " << double(worstLess)
              << "; InvNormalLess max relative error " << double(worstInverse) << "\n";
}

TEST(NormalDistributions, WorkedValuesAndConventions) {
    EXPECT_TRUE(AllMatch({
        {NormalLess(0), 0.5L}, {InvNormalLess(0.5L), 0}, {InvLogNormalLess(0, 1, 0.5L), 1},
        {NormalDistGreater(0, 1, -1.96L), NormalLess(1.96L)},  // reflected
        {InvNormalGreater(0.3L), InvNormalLess(1 - 0.3L)},
        {NormalDistBetween(0, 1, 1, -1), NormalDistBetween(0, 1, -1, 1)},
        {NormalDistBetween(0, 1, 0.3L, 0.3L + 1e-17L), 0},  // SameFloat points
        {LogNormalBetween(0, 1, 3, 0.5L), LogNormalBetween(0, 1, 0.5L, 3)},
    }));
    // Densities take the point first, the other routines take it last.
    EXPECT_TRUE(AllMatch({
        {NormalDistLess(0, 1, -1.96L), 0.0249978951482204362L}, {NormalDistBetween(0, 1, 1, -1), 0.682689492137085897L},
        {NormalZ(0), 0.398942280401432678L}, {NormalPDF(7, 5, 2), NormalZ(1) / 2}, {NormalDistLess(5, 2, 7), NormalLess(1)},
        {LogNormalPDF(2, 0.3L, 0.7L), 0.243380344119797653L}, {LogNormalLess(0.3L, 0.7L, 2), 0.7128189403638208962L},
    }, 1e-17L));
    EXPECT_TRUE(AllMatch({{ZAlpha(0.05L), 1.64485362695147228L},
                          {InvNormalDistGreater(5, 2, 0.025L), 5 + 2 * 1.95996398454005386L},
                          {InvLogNormalLess(0.3L, 0.7L, 0.712818940363820914L), 2}}, 1e-14L));
    EXPECT_TRUE(std::isnan(LogNormalLess(0, 1, -1)));  // X unchecked: log of a negative
}

TEST(NormalDistributions, ChecksInOrder) {
    constexpr Float NaN = std::numeric_limits<Float>::quiet_NaN();
    EXPECT_TRUE(Raises([] { NormalLess(-0.1L); }, rs::rsValueGZero));  // no reflection here
    EXPECT_TRUE(Raises([] { InvNormalLess(0); }, rs::rsValue01));
    EXPECT_TRUE(Raises([] { InvNormalLess(1); }, rs::rsValue01));
    EXPECT_TRUE(Raises([] { InvNormalGreater(1e-30L); }, rs::rsValue01));  // 1 - P rounds to 1
    EXPECT_TRUE(Raises([] { NormalPDF(0, 0, 1e-16L); }, rs::rsStdDev));     // zero within tolerance
    EXPECT_TRUE(Raises([] { NormalDistBetween(0, 0, 1, 1); }, rs::rsStdDev));  // before the shortcut
    EXPECT_TRUE(Raises([] { InvNormalDistLess(0, 0, 0); }, rs::rsValue01));    // P before spread
    EXPECT_TRUE(Raises([] { InvLogNormalGreater(0, -2, 0.5L); }, rs::rsStdDev));
    EXPECT_TRUE(Raises([] { LogNormalPDF(0, 0, 0); }, rs::rsStdDev));  // spread before X
    EXPECT_TRUE(Raises([] { LogNormalPDF(0, 0, 1); }, rs::rsValueGZero));
    EXPECT_TRUE(Raises([] { LogNormalLess(0, 0, 1); }, rs::rsStdDev));
    // The forward test ("positive") and the inverse one ("zero or negative") part on NaN.
    EXPECT_TRUE(Raises([=] { NormalDistLess(0, NaN, 0); }, rs::rsStdDev));
    EXPECT_TRUE(std::isnan(InvNormalDistLess(0, NaN, 0.5L)));
}
