// Cost per call of the chi-square, Student t, F, beta and exponential functions against
// Boost.Math's long double distributions (cdf, cdf of the complement, quantile), over the
// same arguments, with our tolerance at its default.
//
// Boost's distribution objects hold their real parameters in memory; ours are passed the
// same way, from variables. A long double literal at the call site would time the
// caller's code instead: GCC builds such an argument with an 80-bit store and two
// integer reloads of it, a failed store forwarding that costs about 35 ns per call.
#include <kornum/KornumStatistics.h>

#include <benchmark/benchmark.h>
#include <boost/math/distributions/beta.hpp>
#include <boost/math/distributions/chi_squared.hpp>
#include <boost/math/distributions/exponential.hpp>
#include <boost/math/distributions/fisher_f.hpp>
#include <boost/math/distributions/students_t.hpp>

#include <cmath>
#include <random>
#include <vector>

using Float = long double;

// Outside the anonymous namespace, so that the compiler cannot fold them into literals.
namespace parameters {
Float betaA = 2.5L, betaB = 4, rate = 1.5L;
}

namespace {

using namespace KornumStatistics;
namespace bm = boost::math;
constexpr std::size_t Count = 256;

// Points spread over the body and the tails of each distribution (scale: its typical
// size), and probabilities with a tenth in the far tails.
std::vector<Float> Points(Float scale, bool symmetric) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> uniform(0, 1);
    std::vector<Float> values(Count);
    for (auto& v : values) {
        v = scale * std::exp(4 * (uniform(random) - 0.5));
        if (symmetric && uniform(random) < 0.5) v = -v;
    }
    return values;
}
std::vector<Float> Probabilities() {
    std::mt19937_64 random(8);
    std::uniform_real_distribution<double> uniform(0, 1);
    std::vector<Float> values(Count);
    for (std::size_t i = 0; i < Count; ++i) {
        const Float u = uniform(random);
        values[i] = i % 10 == 0 ? std::pow(10.0L, -2 - 20 * u) : 0.01L + 0.98L * u;
    }
    return values;
}

template <class Function>
void Run(benchmark::State& state, const std::vector<Float>& values, Function function) {
    for (auto _ : state)
        for (const Float x : values) benchmark::DoNotOptimize(function(x));
    state.SetItemsProcessed(state.iterations() * std::int64_t(Count));
}

const bm::chi_squared_distribution<Float> chi(7);
const bm::students_t_distribution<Float> student(7), student100(100);
const bm::fisher_f_distribution<Float> fisher(5, 12);
const bm::beta_distribution<Float> betaDist(2.5L, 4);
const bm::exponential_distribution<Float> expo(1.5L);

// Each benchmark pair: ours, then Boost's, on the same points.
#define KORNUM_PAIR(Name, points, ours, theirs)                                                     \
    void Ours##Name(benchmark::State& s) { Run(s, points, [](Float x) { return ours; }); }          \
    void Boost##Name(benchmark::State& s) { Run(s, points, [](Float x) { return theirs; }); }       \
    BENCHMARK(Ours##Name);                                                                          \
    BENCHMARK(Boost##Name);

const std::vector<Float> chiPoints = Points(7, false), tPoints = Points(2, true), fPoints = Points(1, false),
                         betaPoints = [] {
                             std::vector<Float> v = Points(0.3L, false);
                             for (auto& x : v) x = x / (1 + x);
                             return v;
                         }(),
                         expPoints = Points(0.7L, false), probabilities = Probabilities();

KORNUM_PAIR(ChiSquareLess, chiPoints, ChiSquareLess(x, 7), bm::cdf(chi, x))
KORNUM_PAIR(ChiSquareGreater, chiPoints, ChiSquareGreater(x, 7), bm::cdf(bm::complement(chi, x)))
KORNUM_PAIR(InvChiSquareLess, probabilities, InvChiSquareLess(x, 7), bm::quantile(chi, x))
KORNUM_PAIR(InvChiSquareGreater, probabilities, InvChiSquareGreater(x, 7), bm::quantile(bm::complement(chi, x)))
KORNUM_PAIR(StudentTLess, tPoints, StudentTLess(x, 7), bm::cdf(student, x))
KORNUM_PAIR(StudentTGreater, tPoints, StudentTGreater(x, 7), bm::cdf(bm::complement(student, x)))
KORNUM_PAIR(InvStudentTLess, probabilities, InvStudentTLess(x, 7), bm::quantile(student, x))
KORNUM_PAIR(InvStudentTGreater, probabilities, InvStudentTGreater(x, 7), bm::quantile(bm::complement(student, x)))
// Beyond 60 degrees of freedom the t family leaves its closed forms for the incomplete beta.
KORNUM_PAIR(StudentTLess100, tPoints, StudentTLess(x, 100), bm::cdf(student100, x))
KORNUM_PAIR(InvStudentTLess100, probabilities, InvStudentTLess(x, 100), bm::quantile(student100, x))
KORNUM_PAIR(InvStudentTGreater100, probabilities, InvStudentTGreater(x, 100),
            bm::quantile(bm::complement(student100, x)))
KORNUM_PAIR(FDistLess, fPoints, FDistLess(x, 5, 12), bm::cdf(fisher, x))
KORNUM_PAIR(FDistGreater, fPoints, FDistGreater(x, 5, 12), bm::cdf(bm::complement(fisher, x)))
KORNUM_PAIR(InvFDistLess, probabilities, InvFDistLess(x, 5, 12), bm::quantile(fisher, x))
KORNUM_PAIR(InvFDistGreater, probabilities, InvFDistGreater(x, 5, 12), bm::quantile(bm::complement(fisher, x)))
KORNUM_PAIR(BetaDistLess, betaPoints, BetaDistLess(x, parameters::betaA, parameters::betaB), bm::cdf(betaDist, x))
KORNUM_PAIR(BetaDistGreater, betaPoints, BetaDistGreater(x, parameters::betaA, parameters::betaB), bm::cdf(bm::complement(betaDist, x)))
KORNUM_PAIR(InvBetaDistLess, probabilities, InvBetaDistLess(x, parameters::betaA, parameters::betaB), bm::quantile(betaDist, x))
KORNUM_PAIR(InvBetaDistGreater, probabilities, InvBetaDistGreater(x, parameters::betaA, parameters::betaB),
            bm::quantile(bm::complement(betaDist, x)))
KORNUM_PAIR(ExponentialLess, expPoints, ExponentialLess(x, parameters::rate), bm::cdf(expo, x))
KORNUM_PAIR(ExponentialGreater, expPoints, ExponentialGreater(x, parameters::rate), bm::cdf(bm::complement(expo, x)))
KORNUM_PAIR(InvExponentialLess, probabilities, InvExponentialLess(x, parameters::rate), bm::quantile(expo, x))
KORNUM_PAIR(InvExponentialGreater, probabilities, InvExponentialGreater(x, parameters::rate),
            bm::quantile(bm::complement(expo, x)))

}  // namespace

BENCHMARK_MAIN();
