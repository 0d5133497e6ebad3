// The checks of the chi-square, Student t, F, beta and exponential routines, in order,
// the tails adding up to one, and the density tables.
#include "StatisticsTestSupport.h"

#include <kornum/KornumStatistics.h>

#include <cmath>
#include <functional>
#include <limits>

namespace {

using namespace KornumStatistics;
using namespace KornumTest;
using namespace Kornum_RS_Math;
using Kornumglobals::KorPi;

TEST(DistributionChecks, ComeInTheirOrderBeforeAnyWork) {
    const std::vector<std::pair<std::function<void()>, Platform::ResourceString>> failures = {
        {[] { IncompleteGamma(0, 1); }, rsValueGZero},        {[] { IncompleteGamma(1, -1); }, rsValueGEZero},
        {[] { IncompleteGamma(-1, -1); }, rsValueGZero},      {[] { IncompleteGamma2(0, 1); }, rsValueGZero},
        {[] { ChiSquareLess(-1, 0); }, rsValueGEZero},        {[] { ChiSquareGreater(1, 0); }, rsDF},
        {[] { ChiSquarePDF(1, 0); }, rsDF},                   {[] { InvChiSquareLess(1.5L, 0); }, rsDF},
        {[] { InvChiSquareLess(1.5L, 1); }, rsValue01Inc},            {[] { StudentTLess(1, 0); }, rsDF},
        {[] { StudentTPDF(1, 0); }, rsDF},                    {[] { InvStudentTLess(-0.1L, 0); }, rsDF},
        {[] { InvStudentTLess(-0.1L, 1); }, rsValue01Inc},             {[] { FDistLess(0, 0, 1); }, rsValueGZero},
        {[] { FDistGreater(1, 1, 0); }, rsDF},                {[] { FDistPDF(-1, 0, 1); }, rsValueGEZero},
        {[] { InvFDistLess(2, 0, 1); }, rsValue01Inc},        {[] { InvFDistLess(0.5L, 0, 1); }, rsDF},
        {[] { InvFDistLess(1, 1, 1); }, rsInvalidValue},      {[] { BetaDistLess(0.5L, 0, 1, 1, 1); }, rsValueGZero},
        {[] { BetaDistGreater(0.5L, 1, 1, 2, 2); }, rsSameValue}, {[] { BetaPDF(0.5L, 1, -1); }, rsValueGZero},
        {[] { InvBetaDistLess(2, 1, 1, 3, 3); }, rsSameValue}, {[] { InvBetaDistLess(2, 1, 1); }, rsValue01Inc},
        {[] { ExponentialLess(1, 0); }, rsExpDistInvalid},    {[] { ExponentialPDF(-1, -1); }, rsExpDistInvalid},
    };
    for (const auto& [call, message] : failures) EXPECT_TRUE(Raises(call, message)) << message.Name;
}

TEST(ContinuousDistributions, EndPointsTailsAndHandWorkedValues) {
    const ToleranceScope tight(1e-19L);  // the series and fractions run to the last bit
    const Float inf = std::numeric_limits<Float>::infinity();
    EXPECT_TRUE(AllMatch({
        {InvChiSquareLess(0, 3), 0}, {InvChiSquareLess(1, 3), inf}, {InvStudentTLess(0, 3), -inf},
        {InvStudentTLess(0.5L, 3), 0}, {InvFDistLess(0, 2, 3), 0}, {InvBetaDistLess(0, 2, 3, -1, 5), -1},
        {InvBetaDistLess(1, 2, 3, -1, 5), 5}, {ExponentialLess(-1, 2), 0}, {ExponentialGreater(-1, 2), 1},
        {ExponentialPDF(-1, 2), 0}, {BetaDistLess(-2, 2, 3), 0}, {BetaDistGreater(7, 2, 3), 0},
        // Hand-worked: chi-square with 2 degrees of freedom is the exponential of rate 1/2,
        // t with 1 the Cauchy, Beta(1, 1) on [2, 6] the uniform.
        {ChiSquareLess(3, 2), -std::expm1(-1.5L)}, {ChiSquarePDF(3, 2), std::exp(-1.5L) / 2},
        {StudentTLess(1, 1), 0.75L}, {StudentTPDF(0, 1), 1 / KorPi}, {BetaDistLess(3, 1, 1, 2, 6), 0.25L},
        {BetaPDF(3, 1, 1, 2, 6), 0.25L}, {InvBetaDistLess(0.25L, 1, 1, 2, 6), 3}, {IncompleteGamma2(1, 2), -std::expm1(-2.0L)},
        {ExponentialGreater(3, 0.5L), std::exp(-1.5L)}, {ExponentialPDF(2, 3), 3 * std::exp(-6.0L)},
    }, 4e-19L));
    for (Float x : {0.01L, 0.7L, 3.0L, 40.0L})
        EXPECT_LE(std::fabs(ChiSquareLess(x, 5) + ChiSquareGreater(x, 5) - 1), 2e-19L);
    for (Float t : {-20.0L, -0.3L, 0.0L, 1.5L})
        EXPECT_LE(std::fabs(StudentTLess(t, 4) + StudentTGreater(t, 4) - 1), 2e-19L);
    for (Float f : {0.1L, 1.0L, 9.0L})
        EXPECT_LE(std::fabs(FDistLess(f, 3, 8) + FDistGreater(f, 3, 8) - 1), 2e-19L);
}

TEST(DensityTables, FillEquallySpacedPointsOrNothing) {
    const ToleranceScope tight(1e-19L);
    TKorFloatVector X{9}, Y{9};
    NormalPDFValues(-1, 1, 5, 0, 1, X, Y);
    ASSERT_EQ(X.Length(), 5);
    EXPECT_TRUE(AllMatch({{X[0], -1}, {X[1], -0.5L}, {X[2], 0}, {X[4], 1}, {Y[2], NormalZ(0)}, {Y[0], NormalZ(1)}}));
    StudentTPDFValues(0, 2, 3, 1, X, Y);
    EXPECT_TRUE(AllMatch({{Y[0], 1 / KorPi}, {Y[1], 1 / (2 * KorPi)}}, 1e-19L));
    ChiSquarePDFValues(0, 4, 3, 2, X, Y);
    EXPECT_TRUE(AllMatch({{Y[0], 0.5L}, {Y[2], std::exp(-2.0L) / 2}}, 1e-19L));
    BinomialPDFValues(2, 0.5L, X, Y);
    EXPECT_TRUE(AllMatch({{X[2], 2}, {Y[0], 0.25L}, {Y[1], 0.5L}, {Y[2], 0.25L}}, 1e-19L));
    PoissonPDFValues(1, 3, X, Y);
    EXPECT_EQ(X.Length(), 4);
    EXPECT_TRUE(AllMatch({{Y[0], std::exp(-1.0L)}, {Y[3], std::exp(-1.0L) / 6}}, 1e-19L));

    TKorFloatVector keepX{7}, keepY{8};
    for (auto call : std::initializer_list<std::function<void()>>{
             [&] { NormalPDFValues(0, 1, 1, 0, 1, keepX, keepY); }, [&] { ExponentialPDFValues(1, 1, 5, 2, keepX, keepY); },
             [&] { FDistPDFValues(0, 1, 5, 0, 2, keepX, keepY); }, [&] { LogNormalPDFValues(-1, 1, 5, 0, 1, keepX, keepY); },
             [&] { BetaPDFValues(0, 1, 5, 1, 1, 2, 2, keepX, keepY); }, [&] { BinomialPDFValues(0, 0.5L, keepX, keepY); },
             [&] { PoissonPDFValues(-1, 3, keepX, keepY); }})
        EXPECT_THROW(call(), Platform::EMathError);
    EXPECT_EQ(Float(keepX[0]), 7);  // nothing written
    EXPECT_EQ(Float(keepY[0]), 8);
}

}  // namespace
