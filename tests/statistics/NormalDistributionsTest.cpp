// Normal and log-normal distributions: the series and the inverse against 60-digit
// references, worked values, the argument conventions and the order of the checks.
#include <kornum/Kornum_RS_Math.h>
#include <kornum/NormalDistributions.h>

#include "DistributionTestSupport.h"

#include <iostream>
#include <limits>

using namespace KornumStatistics;
using namespace distribution_tests;
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
    EXPECT_EQ(NormalLess(0), 0.5L);
    EXPECT_NEAR(double(NormalDistLess(0, 1, -1.96L)), 0.0249978951482204362, 1e-17);
    EXPECT_EQ(NormalDistGreater(0, 1, -1.96L), NormalLess(1.96L));  // reflected
    EXPECT_EQ(InvNormalLess(0.5L), 0.0L);
    EXPECT_NEAR(double(ZAlpha(0.05L)), 1.64485362695147228, 1e-15);
    EXPECT_EQ(InvNormalGreater(0.3L), InvNormalLess(1 - 0.3L));
    EXPECT_NEAR(double(NormalDistBetween(0, 1, 1, -1)), 0.682689492137085897, 1e-17);
    EXPECT_EQ(NormalDistBetween(0, 1, 1, -1), NormalDistBetween(0, 1, -1, 1));
    EXPECT_EQ(NormalDistBetween(0, 1, 0.3L, 0.3L + 1e-17L), 0.0L);  // SameFloat points
    // Densities take the point first, the other routines take it last.
    EXPECT_NEAR(double(NormalZ(0)), 0.398942280401432678, 1e-18);
    EXPECT_NEAR(double(NormalPDF(7, 5, 2)), double(NormalZ(1) / 2), 1e-18);
    EXPECT_NEAR(double(NormalDistLess(5, 2, 7)), double(NormalLess(1)), 1e-18);
    EXPECT_NEAR(double(InvNormalDistGreater(5, 2, 0.025L)), 5 + 2 * 1.95996398454005386, 1e-14);
    EXPECT_NEAR(double(LogNormalPDF(2, 0.3L, 0.7L)), 0.243380344119797653, 1e-17);
    EXPECT_NEAR(double(LogNormalLess(0.3L, 0.7L, 2)), 0.712818940363820914, 1e-17);
    EXPECT_NEAR(double(InvLogNormalLess(0.3L, 0.7L, 0.712818940363820914L)), 2.0, 1e-15);
    EXPECT_EQ(InvLogNormalLess(0, 1, 0.5L), 1.0L);
    EXPECT_EQ(LogNormalBetween(0, 1, 3, 0.5L), LogNormalBetween(0, 1, 0.5L, 3));
    EXPECT_TRUE(std::isnan(LogNormalLess(0, 1, -1)));  // X unchecked: log of a negative
}

TEST(NormalDistributions, ChecksInOrder) {
    constexpr Float NaN = std::numeric_limits<Float>::quiet_NaN();
    ExpectRaises([] { NormalLess(-0.1L); }, rs::rsValueGZero);  // no reflection here
    ExpectRaises([] { InvNormalLess(0); }, rs::rsValue01);
    ExpectRaises([] { InvNormalLess(1); }, rs::rsValue01);
    ExpectRaises([] { InvNormalGreater(1e-30L); }, rs::rsValue01);  // 1 - P rounds to 1
    ExpectRaises([] { NormalPDF(0, 0, 1e-16L); }, rs::rsStdDev);     // zero within tolerance
    ExpectRaises([] { NormalDistBetween(0, 0, 1, 1); }, rs::rsStdDev);  // before the shortcut
    ExpectRaises([] { InvNormalDistLess(0, 0, 0); }, rs::rsValue01);    // P before spread
    ExpectRaises([] { InvLogNormalGreater(0, -2, 0.5L); }, rs::rsStdDev);
    ExpectRaises([] { LogNormalPDF(0, 0, 0); }, rs::rsStdDev);  // spread before X
    ExpectRaises([] { LogNormalPDF(0, 0, 1); }, rs::rsValueGZero);
    ExpectRaises([] { LogNormalLess(0, 0, 1); }, rs::rsStdDev);
    // The forward test ("positive") and the inverse one ("zero or negative") part on NaN.
    ExpectRaises([=] { NormalDistLess(0, NaN, 0); }, rs::rsStdDev);
    EXPECT_TRUE(std::isnan(InvNormalDistLess(0, NaN, 0.5L)));
}
