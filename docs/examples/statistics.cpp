// Sample statistics of a small data set, each result printed beside the value worked
// out by hand; the program exits with 1 if any of them disagrees.
#include <kornum/KornumStatistics.h>
#include <kornum/Platform.h>

#include <cmath>
#include <cstdio>

using namespace KornumStatistics;
using Kornumglobals::Float;
using Kornumglobals::TKorFloatVector;
using Kornumglobals::TKorLWordVector;

static int failures = 0;

static void Show(const char* name, Float value, Float byHand) {
    const bool agrees = std::fabs(value - byHand) <= 1e-15L * (1 + std::fabs(byHand));
    if (!agrees) ++failures;
    std::printf("%-24s %11.6Lf   by hand %11.6Lf%s\n", name, value, byHand,
                agrees ? "" : "   <-- differs");
}

int main() {
    // Eight values, already sorted as the order statistics require.
    const TKorFloatVector X{2.0L, 4.0L, 4.0L, 4.0L, 5.0L, 5.0L, 7.0L, 9.0L};

    // Sum 40 over 8 values; squared deviations 9+1+1+1+0+0+4+16 = 32.
    Show("mean", KorMean(X), 5.0L);
    Show("sample variance", SampleVariance(X), 32.0L / 7.0L);
    Show("population std dev", PopulationStdDev(X), 2.0L);

    // Even count: the mean of the 4th and 5th values. Quartile positions n/4 + 0.5 = 2.5
    // and 3n/4 + 0.5 = 6.5: halfway from the 2nd to the 3rd value and from the 6th to
    // the 7th.
    Show("median", GetMedian(X), 4.5L);
    Float Q1 = 0, Q3 = 0;
    GetQuartiles(X, Q1, Q3);
    Show("first quartile", Q1, 4.0L);
    Show("third quartile", Q3, 6.0L);
    Float Mode = 0;
    const bool single = GetMode(X, Mode);
    Show("mode (4 occurs 3 times)", Mode, 4.0L);
    if (!single) ++failures;

    // Regression line through (1,2) (2,4) (3,5) (4,4) (5,5): Sx = 15, Sy = 20, Sxx = 55,
    // Sxy = 66, so Qxx = 55 - 45 = 10, Qxy = 66 - 60 = 6, slope 0.6, intercept
    // (20 - 9) / 5 = 2.2. Residuals 0.8 -0.6 -1.0 0.6 0.2 give SSE 2.4.
    const TKorFloatVector Xs{1.0L, 2.0L, 3.0L, 4.0L, 5.0L};
    const TKorFloatVector Ys{2.0L, 4.0L, 5.0L, 4.0L, 5.0L};
    Float Intercept = 0, Slope = 0;
    GetRegressionLine(Xs, Ys, Intercept, Slope);
    Show("slope", Slope, 0.6L);
    Show("intercept", Intercept, 2.2L);
    Show("sum of squared errors", GetSSE(Xs, Ys, Intercept, Slope), 2.4L);

    // Grouped data: counts 1, 4, 3, 2 in classes of width 10 from 0 (mid-points 5, 15,
    // 25, 35), N = 10. Mean 210 / 10; the median class is the second (cumulative 1, 5):
    // 10 + (5 - 1) * 10 / 4; the modal class is the second, d1 = 3, d2 = 1:
    // 10 + 3 * 10 / 4.
    const TKorLWordVector F{1, 4, 3, 2};
    Show("grouped mean", GroupedMean(F, 0.0L, 10.0L), 21.0L);
    Show("grouped median", GroupedMedian(F, 0.0L, 10.0L), 20.0L);
    Float GroupMode = 0;
    GroupedMode(F, 0.0L, 10.0L, GroupMode);
    Show("grouped mode", GroupMode, 17.5L);

    // 10 * 9 * 8 / 6.
    Show("10 choose 3", BinomialCoeff(10, 3), 120.0L);

    // A failure raises Platform::EMathError carrying the message text.
    try {
        KorMean(TKorFloatVector{});
        ++failures;
    } catch (const Platform::EMathError& e) {
        std::printf("mean of an empty vector: %s\n", e.Message().c_str());
    }
    return failures == 0 ? 0 : 1;
}
