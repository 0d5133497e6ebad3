// The accurate tails (normal, log-normal, binomial, Poisson) and the standard normal
// density against mpmath at 200 bits (tools/make_accurate_tail_references.py), the
// discrete quantiles against exact cumulative sums at levels just below and above each
// count's tail, and the quantiles' defining property at random levels.
#include "StatisticsTestSupport.h"

#include <functional>
#include <iostream>
#include <limits>
#include <map>
#include <random>

using namespace StatisticsTest;

namespace {

constexpr Float NaN = std::numeric_limits<Float>::quiet_NaN();
constexpr Float Infinity = std::numeric_limits<Float>::infinity();
constexpr Float Tiny = std::numeric_limits<Float>::denorm_min();

struct Reference {
    std::string kind;
    std::vector<Float> arguments;
    Float high, low;  // the exact value is high + low, high its rounding to a Float
};

std::vector<Reference> References() {
    std::vector<Reference> rows;
    ForEachLine("distributions_accurate_tails.tsv", [&](const std::vector<std::string>& fields) {
        Reference row{fields[0], {}, ToFloat(fields[fields.size() - 2]), ToFloat(fields.back())};
        for (std::size_t i = 1; i + 2 < fields.size(); ++i) row.arguments.push_back(ToFloat(fields[i]));
        rows.push_back(row);
    });
    return rows;
}

using Routine = std::function<Float(const std::vector<Float>&)>;
const std::map<std::string, Routine>& Routines() {
    static const std::map<std::string, Routine> table{
        {"normal_z", [](auto& a) { return NormalZ(a[0]); }},
        {"normal_lower", [](auto& a) { return NormalLower(a[0]); }},
        {"normal_upper", [](auto& a) { return NormalUpper(a[0]); }},
        {"normal_inv_lower", [](auto& a) { return InvNormalLower(a[0]); }},
        {"normal_inv_upper", [](auto& a) { return InvNormalUpper(a[0]); }},
        {"normal_dist_lower", [](auto& a) { return NormalDistLower(a[0], a[1], a[2]); }},
        {"normal_dist_upper", [](auto& a) { return NormalDistUpper(a[0], a[1], a[2]); }},
        {"lognormal_lower", [](auto& a) { return LogNormalLower(a[0], a[1], a[2]); }},
        {"lognormal_upper", [](auto& a) { return LogNormalUpper(a[0], a[1], a[2]); }},
        {"binomial_lower", [](auto& a) { return BinomialLower(a[0], Cardinal(a[1]), Cardinal(a[2])); }},
        {"binomial_upper", [](auto& a) { return BinomialUpper(a[0], Cardinal(a[1]), Cardinal(a[2])); }},
        {"poisson_lower", [](auto& a) { return PoissonLower(a[0], Cardinal(a[1])); }},
        {"poisson_upper", [](auto& a) { return PoissonUpper(a[0], Cardinal(a[1])); }},
        {"binomial_point", [](auto& a) { return BinomialPoint(a[0], Cardinal(a[1]), Cardinal(a[2])); }},
        {"poisson_point", [](auto& a) { return PoissonPoint(a[0], Cardinal(a[1])); }},
    };
    return table;
}

// The error in ulps of the reference for the density, relative for the tails and the
// quantiles (also near the centre, where z is tiny); a zero reference must be met exactly.
Float ErrorOf(const std::string& kind, Float value, const Reference& row) {
    const Float error = std::fabs((value - row.high) - row.low);
    if (row.high == 0) return value == 0 ? 0 : Infinity;
    if (kind != "normal_z") return error / std::fabs(row.high);
    int exponent;
    std::frexp(row.high, &exponent);
    return error / std::ldexp(Float(1), exponent - 64);
}

// Within 1e-18 relative for the normal family (two-Float arguments and an ulp-accurate
// density), 1e-17 for the discrete ones, which rest on the incomplete beta function and
// on sums of up to a few hundred terms.
Float Allowed(const std::string& kind) {
    if (kind == "normal_z") return 1;  // ulps
    if (kind.starts_with("binomial") || kind.starts_with("poisson")) return 1e-17L;
    return 1e-18L;
}

}  // namespace

TEST(AccurateTails, AgainstMpmath) {
    std::map<std::string, Float> worst;
    std::map<std::string, int> counts;
    for (const Reference& row : References()) {
        const Float error = ErrorOf(row.kind, Routines().at(row.kind)(row.arguments), row);
        EXPECT_LE(error, Allowed(row.kind))
            << row.kind << " at " << double(row.arguments[0]) << " " << double(row.arguments.back());
        worst[row.kind] = std::max(worst[row.kind], error);
        ++counts[row.kind];
    }
    EXPECT_EQ(worst.size(), Routines().size());  // every routine has rows
    for (const auto& [kind, error] : worst)
        std::cout << kind << ": " << counts[kind] << " points, worst " << double(error)
                  << (kind == "normal_z" ? " ulps\n" : " relative\n");
}

TEST(AccurateTails, SmallTailsKeepTheirDigitsWhereOneMinusTheOtherCancels) {
    // mpmath at the Floats nearest 0.3 (the binomial P) and at the exact other arguments.
    EXPECT_LT(RelativeError(NormalLower(-10), 7.61985302416052606597e-24L), 1e-18L);
    EXPECT_LT(RelativeError(NormalDistUpper(0, 1, 10), 7.61985302416052606597e-24L), 1e-18L);
    EXPECT_LT(RelativeError(BinomialUpper(0.3L, 100, 90), 2.097401166523127859902e-37L), 1e-17L);
    EXPECT_LT(RelativeError(PoissonUpper(4, 30), 1.173243543146434522471e-17L), 1e-17L);
    // The 1-minus forms beside them keep their contracts.
    EXPECT_EQ(BinomialGreater(0.3L, 100, 90), 0);
    EXPECT_EQ(NormalDistGreater(0, 1, 10), 1 - NormalDistLess(0, 1, 10));
}

TEST(AccurateTails, SupportEndsInfinitiesAndComplements) {
    EXPECT_TRUE(AllMatch({{NormalLower(-Infinity), 0},
                          {NormalLower(Infinity), 1},
                          {NormalUpper(-Infinity), 1},
                          {NormalUpper(Infinity), 0},
                          {NormalLower(0), 0.5L},
                          {NormalUpper(-200), 1},
                          {NormalUpper(200), 0},
                          {NormalDistUpper(1, 2, Infinity), 0},
                          {LogNormalLower(0, 1, 0), 0},
                          {LogNormalUpper(0, 1, -3), 1},
                          {LogNormalUpper(0, 1, Infinity), 0},
                          {NormalZ(Infinity), 0},
                          {NormalZ(-1e3L), 0},
                          {BinomialLower(0.4L, 5, 5), 1},
                          {BinomialUpper(0.4L, 5, 5), 0},
                          {BinomialUpper(0.4L, 5, 7), 0},
                          {BinomialLower(0, 5, 0), 1},
                          {BinomialUpper(1, 5, 4), 1},
                          {BinomialLower(1, 5, 4), 0},
                          {PoissonLower(Infinity, 7), 0},
                          {PoissonUpper(Infinity, 7), 1},
                          // The upper tails underflow whole, series and all.
                          {PoissonUpper(Tiny, 4095), 0},
                          {PoissonLower(Tiny, 100000), 1},
                          {BinomialUpper(Tiny, 100, 3), 0},
                          {BinomialUpper(Tiny, 100, 0), 100 * Tiny},
                          // Powers at the ends of the support, exact where the result is.
                          {BinomialPoint(0.5L, 2, 2), 0.25L},
                          {BinomialLower(0.5L, 10, 0), 0x1p-10L},
                          {BinomialUpper(0.5L, 10, 9), 0x1p-10L},
                          {InvBinomialGreater(0.5L, 10, 0x1p-10L), 9},
                          {BinomialPoint(0.25L, 4, 0), 81.0L / 256}}));
    EXPECT_TRUE(std::isnan(NormalLower(NaN)) && std::isnan(LogNormalUpper(0, 1, NaN)) && std::isnan(NormalZ(NaN)));
    // The two tails of a point add up to 1, whichever of them was summed directly.
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> unit(0, 1);
    for (int i = 0; i < 300; ++i) {
        const Float z = 20 * (unit(random) - 0.5), p = unit(random), lambda = std::exp(10 * unit(random) - 3);
        const Cardinal n = 1 + Cardinal(500 * unit(random)), k = Cardinal(n * unit(random));
        const Cardinal count = Cardinal(lambda * 2 * unit(random));
        EXPECT_LE(std::fabs(NormalLower(z) + NormalUpper(z) - 1), 0x1p-63L) << double(z);
        EXPECT_LE(std::fabs(BinomialLower(p, n, k) + BinomialUpper(p, n, k) - 1), 0x1p-62L) << double(p) << " " << n;
        EXPECT_LE(std::fabs(PoissonLower(lambda, count) + PoissonUpper(lambda, count) - 1), 0x1p-62L)
            << double(lambda) << " " << count;
    }
}

TEST(AccurateTails, DiscreteValuesDoNotDependOnWhatWasAskedBefore) {
    // The logarithms of the last parameters are kept per thread: the same arguments give
    // the same bits whether they come first, after other parameters or repeated, here
    // with 0.3 and 0.7 (whose 1 - P swap roles) and means that differ in the last bit.
    struct Call {
        int kind;
        Float parameter;
        Cardinal count;
    };
    const Float near40 = std::nextafter(40.0L, 41.0L);
    const std::vector<Call> calls{{0, 0.3L, 20}, {1, 0.7L, 80}, {0, 0.7L, 20}, {2, 40, 35},
                                  {2, near40, 35}, {0, 0.3L, 999}, {1, 0.3L, 20}, {2, 40, 4000}};
    const auto evaluate = [](const Call& c) {
        switch (c.kind) {
            case 0: return BinomialLower(c.parameter, 1000, c.count);
            case 1: return BinomialUpper(c.parameter, 100, c.count);
            default: return PoissonUpper(c.parameter, c.count);
        }
    };
    std::vector<Float> forward, backward(calls.size());
    for (const Call& c : calls) forward.push_back(evaluate(c));
    for (std::size_t i = calls.size(); i-- > 0;) backward[i] = evaluate(calls[i]);
    for (std::size_t i = 0; i < calls.size(); ++i) {
        EXPECT_EQ(forward[i], backward[i]) << i;
        EXPECT_EQ(forward[i], evaluate(calls[i])) << i;
    }
    EXPECT_NE(forward[3], forward[4]);  // the cache told the two means apart
}

TEST(AccurateTails, ChecksInOrder) {
    EXPECT_TRUE(Raises([] { NormalDistLower(0, 0, 1); }, rsStdDev));
    EXPECT_TRUE(Raises([] { NormalDistUpper(0, NaN, 1); }, rsStdDev));
    EXPECT_TRUE(Raises([] { LogNormalLower(0, 1e-16L, 1); }, rsStdDev));  // zero within tolerance
    EXPECT_TRUE(Raises([] { LogNormalUpper(0, -1, -1); }, rsStdDev));     // spread checked, X never
    for (auto call :
         {+[] { BinomialLower(0.5L, 0, 0); }, +[] { BinomialUpper(-0.1L, 4, 1); }, +[] { BinomialUpper(NaN, 4, 1); },
          +[] { InvBinomialLess(1.5L, 4, 7); }, +[] { InvBinomialGreater(0.5L, 0, NaN); }})
        EXPECT_TRUE(Raises(call, rsBinomDistInvalid));
    for (auto call : {+[] { PoissonLower(0, 1); }, +[] { PoissonUpper(NaN, 1); }, +[] { InvPoissonLess(-1, 2); },
                      +[] { InvPoissonGreater(0, 0.5L); },
                      +[] { InvPoissonLess(1e10L, 0.5L); }})  // the quantile exceeds every Cardinal
        EXPECT_TRUE(Raises(call, rsPoissonInvalid));
    for (auto call : {+[] { InvBinomialLess(0.5L, 4, -0.1L); }, +[] { InvBinomialGreater(0.5L, 4, 1.5L); },
                      +[] { InvPoissonLess(1, NaN); }, +[] { InvPoissonGreater(1, -1e-300L); }})
        EXPECT_TRUE(Raises(call, rsValue01Inc));
}

// A small standard deviation magnifies ln x's absolute error (2^-80) by 1 / sd: against
// mpmath at 300 bits, within 1e-18 relative at sd = 1e-6 and 3e-16 at sd = 1e-9, at points
// where a Taylor node picked from a double estimate of z alone was 7e-16 and 1e-15 off.
TEST(AccurateTails, LogNormalTailsWithASmallStandardDeviation) {
    struct Case {
        Float sd, x, lower, upper;
    };
    const Float Micro = 0x8637BD05AF6C69B6P-83L, Nano = 0x89705F4136B4A597P-93L;  // 1e-6, 1e-9
    const Case cases[] = {
        {Micro, 0xEC72F2A3ACCDC17DP-61L, 0.000483424142383823038859L, 0.9995165758576161769611L},
        {Micro, 0xEC731AEDC647B503P-61L, 0.2419636522230816940369L, 0.7580363477769183059631L},
        {Micro, 0xEC732615FDCF7771P-61L, 0.5079783137168936609349L, 0.4920216862831063390651L},
        {Micro, 0xEC734337E69F1DFFP-61L, 0.9712834401840000058889L, 0.02871655981599999411112L},
        {Micro, 0xEC735F1C772FEBB8P-61L, 0.9998922002665226000541L, 0.0001077997334773999458673L},
        {Nano, 0xEC7325B79E479E92P-61L, 0.00007540268176429610650804L, 0.9999245973182357038935L},
        {Nano, 0xEC7325B760AEB10FP-61L, 0.00005896397332563029700411L, 0.999941036026674369703L},
    };
    for (const Case& c : cases) {
        const Float allowed = c.sd == Micro ? 1e-18L : 3e-16L;
        EXPECT_LT(RelativeError(LogNormalLower(2, c.sd, c.x), c.lower), allowed) << double(c.sd) << " " << double(c.x);
        EXPECT_LT(RelativeError(LogNormalUpper(2, c.sd, c.x), c.upper), allowed) << double(c.sd) << " " << double(c.x);
    }
}

// exp(mean + sd z) for the accurate normal quantile z, against mpmath at 300 bits of that
// composition: within four units of 2^-64 whatever the exponent's size (a rounded
// mean + sd z would be off by up to half an ulp of itself, magnified by the exponential).
TEST(AccurateTails, LogNormalQuantilesAreTheExponentialsOfTheNormalOnes) {
    struct Case {
        Float mean, sd, p;
        bool upper;
        Float expected;
    };
    const Case cases[] = {
        {0, 1, 0.975L, false, 7.099071384231336342920146L},
        {1, 0.5L, 1e-300L, true, 301279254.8774799647027824L},
        {-2, 3, 1e-10L, false, 6.971484753871470709457758e-10L},
        {700, 2, 0.3L, true, 2.894848433930291445346093e+304L},
    };
    for (const Case& c : cases) {
        const Float x = c.upper ? InvLogNormalUpper(c.mean, c.sd, c.p) : InvLogNormalLower(c.mean, c.sd, c.p);
        const Float allowed = 4 * 0x1p-64L;
        EXPECT_LE(std::fabs(x / c.expected - 1), allowed) << double(c.mean) << " " << double(c.p);
    }
    EXPECT_EQ(InvLogNormalUpper(11350.5L, 1, 1e-10L), Infinity);  // e^11356.86, beyond the largest Float
    EXPECT_EQ(InvLogNormalUpper(11352, 1, 1e-10L), Infinity);
    EXPECT_EQ(InvLogNormalLower(-11400, 1, 1e-10L), 0);        // below the smallest
    EXPECT_TRUE(Raises([] { InvLogNormalLower(0, 0, 0.5L); }, rsStdDev));
    EXPECT_TRUE(Raises([] { InvLogNormalUpper(0, 1, 1); }, rsValue01));
}

TEST(DiscreteQuantiles, AgainstExactCumulativeSums) {
    // Levels 2^-58 (relative) below and above the exact tail at a count, with the smallest
    // count whose exact tail passes each: an off-by-one or a wrong tail shows at once.
    using Quantile = std::function<Cardinal(const std::vector<Float>&)>;
    const std::map<std::string, Quantile> routines{
        {"inv_binomial_less", [](auto& a) { return InvBinomialLess(a[0], Cardinal(a[1]), a[2]); }},
        {"inv_binomial_greater", [](auto& a) { return InvBinomialGreater(a[0], Cardinal(a[1]), a[2]); }},
        {"inv_poisson_less", [](auto& a) { return InvPoissonLess(a[0], a[1]); }},
        {"inv_poisson_greater", [](auto& a) { return InvPoissonGreater(a[0], a[1]); }},
    };
    int rows = 0;
    ForEachLine("distributions_discrete_quantiles.tsv", [&](const std::vector<std::string>& fields) {
        std::vector<Float> arguments;
        for (std::size_t i = 1; i + 1 < fields.size(); ++i) arguments.push_back(ToFloat(fields[i]));
        EXPECT_EQ(routines.at(fields[0])(arguments), Cardinal(std::stoul(fields.back())))
            << fields[0] << " " << fields[1] << " " << fields[fields.size() - 2];
        ++rows;
    });
    EXPECT_GT(rows, 400);
}

TEST(DiscreteQuantiles, SmallestCountReachingEveryLevel) {
    // The defining property at random levels spread over 1e-300 .. 1, for parameters on
    // both sides of the expansions' thresholds; and the level ends.
    std::mt19937_64 random(19);
    std::uniform_real_distribution<double> unit(0, 1);
    auto level = [&] { return unit(random) < 0.3 ? std::pow(10.0L, -300 * unit(random)) : Float(unit(random)); };
    for (int i = 0; i < 150; ++i) {
        const Float p = unit(random), alpha = level();
        const Cardinal n = 1 + Cardinal(std::pow(10.0L, 4 * unit(random)));
        const Cardinal less = InvBinomialLess(p, n, alpha), greater = InvBinomialGreater(p, n, alpha);
        ASSERT_LE(less, n);
        EXPECT_TRUE(BinomialLower(p, n, less) >= alpha && (less == 0 || BinomialLower(p, n, less - 1) < alpha))
            << double(p) << " " << n << " " << double(alpha);
        EXPECT_TRUE(BinomialUpper(p, n, greater) <= alpha && (greater == 0 || BinomialUpper(p, n, greater - 1) > alpha))
            << double(p) << " " << n << " " << double(alpha);
        const Float lambda = std::pow(10.0L, 9 * unit(random) - 3);
        const Cardinal below = InvPoissonLess(lambda, alpha), above = InvPoissonGreater(lambda, alpha);
        EXPECT_TRUE(PoissonLower(lambda, below) >= alpha && (below == 0 || PoissonLower(lambda, below - 1) < alpha))
            << double(lambda) << " " << double(alpha);
        EXPECT_TRUE(PoissonUpper(lambda, above) <= alpha && (above == 0 || PoissonUpper(lambda, above - 1) > alpha))
            << double(lambda) << " " << double(alpha);
    }
    EXPECT_TRUE(AllMatch({{Float(InvBinomialLess(0.3L, 10, 0)), 0},
                          {Float(InvBinomialGreater(0.3L, 10, 1)), 0},
                          {Float(InvPoissonLess(4, 0)), 0},
                          {Float(InvPoissonGreater(4, 1)), 0},
                          {Float(InvBinomialLess(0.5L, 4, 0.5L)), 2},
                          {Float(InvBinomialGreater(1, 9, 0)), 9},
                          {Float(InvBinomialLess(0, 9, 1)), 0}}));
    // Level 1 of the lower tail and 0 of the upper one: the first count where the tail
    // rounds to 1 or underflows to 0.
    const Cardinal top = InvPoissonLess(4, 1), last = InvPoissonGreater(4, 0);
    EXPECT_TRUE(PoissonLower(4, top) == 1 && PoissonLower(4, top - 1) < 1) << top;
    EXPECT_TRUE(PoissonUpper(4, last) == 0 && PoissonUpper(4, last - 1) > 0) << last;
}

TEST(DiscreteQuantiles, InvertTheirOwnTailsAtEveryCount) {
    for (const auto& [p, n] :
         std::initializer_list<std::pair<Float, Cardinal>>{{0.3L, 100}, {1e-3L, 5000}, {0.999L, 300}}) {
        for (Cardinal k = 0; k < n; ++k) {
            const Float lower = BinomialLower(p, n, k), upper = BinomialUpper(p, n, k);
            if (k > 0 && lower > BinomialLower(p, n, k - 1)) {
                EXPECT_EQ(InvBinomialLess(p, n, lower), k) << double(p);
            }
            if (k > 0 && upper < BinomialUpper(p, n, k - 1)) {
                EXPECT_EQ(InvBinomialGreater(p, n, upper), k) << double(p);
            }
            if (lower == 1 && upper == 0) break;
        }
    }
    for (const Float lambda : {0.5L, 47.25L, 5000.0L}) {
        for (Cardinal k = Cardinal(lambda / 2); k < 3 * lambda + 30; ++k) {
            const Float lower = PoissonLower(lambda, k), upper = PoissonUpper(lambda, k);
            if (k > 0 && lower > PoissonLower(lambda, k - 1)) {
                EXPECT_EQ(InvPoissonLess(lambda, lower), k) << double(lambda);
            }
            if (k > 0 && upper < PoissonUpper(lambda, k - 1)) {
                EXPECT_EQ(InvPoissonGreater(lambda, upper), k) << double(lambda);
            }
        }
    }
}
