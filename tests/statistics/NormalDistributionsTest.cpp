// Normal and log-normal distributions: accuracy of the series and of the inverse
// against 60-digit references, the two argument conventions and the order of checks.
#include <kornum/Kornum_RS_Math.h>
#include <kornum/NormalDistributions.h>

#include "DistributionTestSupport.h"

#include <cmath>
#include <iostream>
#include <limits>

using namespace KornumStatistics;
using namespace distribution_tests;
namespace rs = Kornum_RS_Math;

namespace {
constexpr Float NaN = std::numeric_limits<Float>::quiet_NaN();
}

TEST(NormalLess, WithinTwoUnitsInTheEighteenthPlaceOnZeroToSeven) {
    Float worst = 0, worstZ = 0;
    for (const auto& row : ReadTable("distributions_normal_less.tsv")) {
        const Float z = ToFloat(row[0]);
        const Float error = std::fabs(NormalLess(z) - ToFloat(row[1]));
        if (error > worst) worst = error, worstZ = z;
    }
    EXPECT_LE(worst, 2e-18L) << "at Z = " << double(worstZ);
    std::cout << "NormalLess: max absolute error " << double(worst) << " at Z = "
              << double(worstZ) << "\n";
}

TEST(NormalLess, WorkedValuesAndNegativeArguments) {
    EXPECT_EQ(NormalLess(0), 0.5L);
    EXPECT_NEAR(double(NormalLess(1.96L)), 0.975002104851779564, 1e-17);
    EXPECT_EQ(NormalGreater(1.96L), 1 - NormalLess(1.96L));
    ExpectRaises([] { NormalLess(-0.1L); }, rs::rsValueGZero);
    ExpectRaises([] { NormalGreater(-0.1L); }, rs::rsValueGZero);
    // Only the distribution functions reflect a negative standardised value.
    EXPECT_EQ(NormalDistLess(0, 1, -1.96L), 1 - NormalLess(1.96L));
    EXPECT_NEAR(double(NormalDistLess(0, 1, -1.96L)), 0.0249978951482204362, 1e-17);
    EXPECT_EQ(NormalDistGreater(0, 1, -1.96L), NormalLess(1.96L));
}

TEST(InvNormalLess, RelativeAccuracyOverTheWholeRange) {
    Float worst = 0, worstP = 0;
    for (const auto& row : ReadTable("distributions_inv_normal.tsv")) {
        const Float p = ToFloat(row[0]), z = ToFloat(row[1]);
        const Float value = InvNormalLess(p);
        const Float error = z == 0 ? std::fabs(value) : RelativeError(value, z);
        if (error > worst) worst = error, worstP = p;
    }
    // The published approximation is good to about 1e-16; the bound leaves room for
    // its own error, not for a wrong coefficient (which costs 1e-10 or more).
    EXPECT_LE(worst, 2e-16L) << "at P = " << double(worstP);
    std::cout << "InvNormalLess: max relative error " << double(worst) << " at P = "
              << double(worstP) << "\n";
}

TEST(InvNormalLess, WorkedValuesAndOpenInterval) {
    EXPECT_EQ(InvNormalLess(0.5L), 0.0L);
    EXPECT_NEAR(double(InvNormalLess(0.975L)), 1.95996398454005386, 1e-15);
    EXPECT_NEAR(double(ZAlpha(0.05L)), 1.64485362695147228, 1e-15);
    EXPECT_EQ(ZAlpha(0.025L), InvNormalGreater(0.025L));
    EXPECT_EQ(InvNormalGreater(0.3L), InvNormalLess(1 - 0.3L));
    ExpectRaises([] { InvNormalLess(0); }, rs::rsValue01);
    ExpectRaises([] { InvNormalLess(1); }, rs::rsValue01);
    ExpectRaises([] { InvNormalGreater(1); }, rs::rsValue01);
    // 1 - 1e-30 rounds to 1, so the upper tail of so small a P is out of range.
    ExpectRaises([] { InvNormalGreater(1e-30L); }, rs::rsValue01);
    ExpectRaises([] { ZAlpha(0); }, rs::rsValue01);
}

TEST(NormalDist, ArgumentConventionsAndScaling) {
    // Densities take the point first, the cumulative functions take it last.
    EXPECT_EQ(NormalPDF(0, 0, 1), NormalZ(0));
    EXPECT_NEAR(double(NormalZ(0)), 0.398942280401432678, 1e-18);
    EXPECT_NEAR(double(NormalPDF(7, 5, 2)), double(NormalZ(1) / 2), 1e-18);
    EXPECT_NEAR(double(NormalDistLess(5, 2, 7)), double(NormalLess(1)), 1e-18);
    EXPECT_NEAR(double(InvNormalDistLess(5, 2, 0.975L)), 5 + 2 * 1.95996398454005386, 1e-14);
    EXPECT_NEAR(double(InvNormalDistGreater(5, 2, 0.025L)), 5 + 2 * 1.95996398454005386, 1e-14);
    EXPECT_EQ(NormalDistGreater(5, 2, 3), 1 - NormalDistLess(5, 2, 3));
}

TEST(NormalDist, BetweenIsOrderFreeAndZeroForCoincidingPoints) {
    EXPECT_EQ(NormalDistBetween(0, 1, 1, -1), NormalDistBetween(0, 1, -1, 1));
    EXPECT_NEAR(double(NormalDistBetween(0, 1, -1, 1)), 0.682689492137085897, 1e-17);
    EXPECT_EQ(NormalDistBetween(0, 1, 0.3L, 0.3L), 0.0L);
    EXPECT_EQ(NormalDistBetween(0, 1, 0.3L, 0.3L + 1e-17L), 0.0L);  // SameFloat
    // The spread is checked before the shortcut for coinciding points.
    ExpectRaises([] { NormalDistBetween(0, 0, 1, 1); }, rs::rsStdDev);
}

TEST(NormalDist, StandardDeviationChecksInOrder) {
    ExpectRaises([] { NormalPDF(0, 0, 0); }, rs::rsStdDev);
    ExpectRaises([] { NormalPDF(0, 0, 1e-16L); }, rs::rsStdDev);  // zero within tolerance
    ExpectRaises([] { NormalDistLess(0, -1, 0); }, rs::rsStdDev);
    ExpectRaises([] { NormalDistGreater(0, 0, 0); }, rs::rsStdDev);
    ExpectRaises([] { InvNormalDistLess(0, -1, 0.5L); }, rs::rsStdDev);
    ExpectRaises([] { InvNormalDistGreater(0, 1e-16L, 0.5L); }, rs::rsStdDev);
    // The probability is checked before the spread.
    ExpectRaises([] { InvNormalDistLess(0, 0, 0); }, rs::rsValue01);
    ExpectRaises([] { InvNormalDistGreater(0, 0, 1); }, rs::rsValue01);
    // The forward test is "positive", the inverse one "zero or negative": they part
    // only on NaN, which the forward routines reject and the inverse ones let through.
    ExpectRaises([] { NormalPDF(0, 0, NaN); }, rs::rsStdDev);
    EXPECT_TRUE(std::isnan(InvNormalDistLess(0, NaN, 0.5L)));
}

TEST(LogNormal, ValuesConventionsAndChecks) {
    EXPECT_EQ(InvLogNormalLess(0, 1, 0.5L), 1.0L);
    EXPECT_NEAR(double(LogNormalPDF(1, 0, 1)), 0.398942280401432678, 1e-18);
    EXPECT_NEAR(double(LogNormalPDF(2, 0.3L, 0.7L)), 0.243380344119797653, 1e-17);
    EXPECT_NEAR(double(LogNormalLess(0.3L, 0.7L, 2)), 0.712818940363820914, 1e-17);
    EXPECT_EQ(LogNormalGreater(0.3L, 0.7L, 2), 1 - LogNormalLess(0.3L, 0.7L, 2));
    EXPECT_EQ(LogNormalBetween(0, 1, 3, 0.5L), LogNormalBetween(0, 1, 0.5L, 3));
    EXPECT_EQ(LogNormalBetween(0, 1, 3, 3), 0.0L);
    EXPECT_NEAR(double(InvLogNormalLess(0.3L, 0.7L, 0.712818940363820914L)), 2.0, 1e-15);
    EXPECT_EQ(InvLogNormalGreater(0.3L, 0.7L, 0.2L),
              std::exp(0.3L + 0.7L * InvNormalGreater(0.2L)));
    ExpectRaises([] { LogNormalPDF(0, 0, 1); }, rs::rsValueGZero);
    ExpectRaises([] { LogNormalPDF(0, 0, 0); }, rs::rsStdDev);  // spread checked first
    ExpectRaises([] { LogNormalLess(0, 0, 1); }, rs::rsStdDev);
    ExpectRaises([] { LogNormalBetween(0, -1, 1, 2); }, rs::rsStdDev);
    ExpectRaises([] { InvLogNormalLess(0, 0, 1.5L); }, rs::rsValue01);
    ExpectRaises([] { InvLogNormalGreater(0, -2, 0.5L); }, rs::rsStdDev);
    // X is not checked: the logarithm of a non-positive value gives NaN.
    EXPECT_TRUE(std::isnan(LogNormalLess(0, 1, -1)));
}
