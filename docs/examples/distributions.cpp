// Quantiles, p-values and probabilities of the common distributions, each printed beside
// a reference value worked out independently to 20 digits by a multiple-precision
// evaluation; the program exits with 1 if any of them disagrees.
#include <kornum/KornumStatistics.h>
#include <kornum/Platform.h>

#include <cmath>
#include <cstdio>

using namespace KornumStatistics;
using Kornumglobals::Float;

static int failures = 0;

// The chi-square tails converge to KorTolerance (1e-15 by default), so agreement is asked
// to 1e-14 relative.
static void Show(const char* name, Float value, Float reference) {
    const bool agrees = std::fabs(value - reference) <= 1e-14L * std::fabs(reference);
    if (!agrees) ++failures;
    std::printf("%-36s %-16.12Lg reference %.12Lg%s\n", name, value, reference, agrees ? "" : "   <-- differs");
}

int main() {
    // Normal: the quantile behind a two-sided 95% interval, and the probability within
    // one standard deviation of the mean (mean 100, standard deviation 15).
    Show("z for P(Z < z) = 0.975", InvNormalLess(0.975L), 1.9599639845400542355L);
    Show("P(85 < X < 115), N(100, 15)", NormalDistBetween(100, 15, 85, 115), 0.68268949213708589717L);

    // Chi-square: the p-value of a statistic of 12.5 on 4 degrees of freedom, taken from
    // the upper tail itself, and the 5% critical value.
    Show("P(chi2(4) > 12.5)", ChiSquareGreater(12.5L, 4), 0.013995792487650892006L);
    Show("chi2(4) critical value, 5%", InvChiSquareLess(0.95L, 4), 9.4877290367811567517L);

    // Student's t: the two-sided 5% critical value for 10 degrees of freedom, and the
    // two-sided p-value of t = 2.5 on 7 degrees of freedom.
    Show("t(10) critical value, two-sided 5%", InvStudentTLess(0.975L, 10), 2.2281388519862747484L);
    Show("two-sided p of t = 2.5, 7 df", 2 * StudentTGreater(2.5L, 7), 0.040992218585752896889L);

    // F: the p-value of F = 3.5 with 3 and 12 degrees of freedom.
    Show("P(F(3, 12) > 3.5)", FDistGreater(3.5L, 3, 12), 0.049640537979886818159L);

    // Binomial, 10 trials with success probability 0.3: exactly 3 successes, and fewer
    // than 3 (the bound of a "Less" tail is excluded).
    Show("P(X = 3), B(10, 0.3)", BinomialEq(0.3L, 10, 3), 0.266827932L);
    Show("P(X < 3), B(10, 0.3)", BinomialLess(0.3L, 10, 3), 0.3827827864L);

    // Exponential with rate 0.5: surviving past the mean, e^-1.
    Show("P(X > 2), rate 0.5", ExponentialGreater(2, 0.5L), 0.36787944117144232160L);

    // A failure raises Platform::EMathError carrying the message text; the inverse t checks
    // the degrees of freedom before the probability.
    try {
        InvStudentTLess(1.5L, 0);
        ++failures;
    } catch (const Platform::EMathError& e) {
        std::printf("InvStudentTLess(1.5, 0): %s\n", e.Message().c_str());
    }
    return failures == 0 ? 0 : 1;
}
