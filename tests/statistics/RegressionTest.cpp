// The least-squares line and the sum of squared errors.
#include "StatisticsTestSupport.h"

#include <kornum/KornumStatistics.h>
#include <kornum/Kornum_RS_Math.h>

#include <cmath>

using namespace KornumStatistics;
using namespace Kornumglobals;
using namespace Kornum_RS_Math;
using namespace StatisticsTest;

namespace {

TEST(RegressionLine, LinesByHand) {
    Float intercept = -1, slope = -1;
    GetRegressionLine(TKorFloatVector{1, 2, 3}, TKorFloatVector{2, 4, 6}, intercept, slope);
    EXPECT_TRUE(AllMatch({{slope, 2}, {intercept, 0}}));
    // X = 0..3, Y = 1, 3, 2, 5: Sx 6, Sy 11, Sxx 14, Sxy 22; Qxx 5, Qxy 5.5.
    const TKorFloatVector X{0, 1, 2, 3}, Y{1, 3, 2, 5};
    GetRegressionLine(X, Y, intercept, slope);
    EXPECT_EQ(slope, 1.1L);  // 5.5 / 5, correctly rounded
    EXPECT_NEAR(double(intercept), 1.1, 1e-17);
    // Residuals 0.1, -0.8, 1.3, -0.6: 0.01 + 0.64 + 1.69 + 0.36.
    EXPECT_NEAR(double(GetSSE(X, Y, intercept, slope)), 2.7, 1e-16);
    EXPECT_EQ(GetSSE(TKorFloatVector{1, 2}, TKorFloatVector{1, 1}, 0, 1), 1.0L);
    EXPECT_EQ(GetSSE(TKorFloatVector{}, TKorFloatVector{}, 1, 2), 0.0L);
    // Slope is written first: one variable given for both ends up holding the intercept.
    Float both = 0;
    GetRegressionLine(TKorFloatVector{0, 1}, TKorFloatVector{1, 3}, both, both);
    EXPECT_EQ(both, 1.0L);
}

TEST(RegressionLine, OnlyTheLengthsAreChecked) {
    Float intercept = 7, slope = 8;
    const TKorFloatVector three{1, 2, 3}, four{1, 2, 3, 4};
    EXPECT_TRUE(Raises([&] { GetRegressionLine(three, four, intercept, slope); },
                           rsSameDimensions));
    EXPECT_TRUE(AllMatch({{intercept, 7}, {slope, 8}}));
    EXPECT_TRUE(Raises([&] { GetSSE(four, three, 0, 1); }, rsSameDimensions));
    // A constant X, or empty vectors, reach the division (floating faults are masked).
    GetRegressionLine(TKorFloatVector{2, 2}, TKorFloatVector{1, 3}, intercept, slope);
    EXPECT_TRUE(std::isnan(slope));
    GetRegressionLine(TKorFloatVector{}, TKorFloatVector{}, intercept, slope);
    EXPECT_TRUE(std::isnan(intercept));
}

}  // namespace
