// Cost per call of NormalLess, InvNormalLess and LogNormalLess, of the accurate normal,
// binomial and Poisson tails and of the discrete quantiles, against Boost.Math's long
// double distributions (cdf, cdf of the complement, quantile), over the same arguments.
#include <kornum/DiscreteDistributions.h>
#include <kornum/NormalDistributions.h>

#include <benchmark/benchmark.h>
#include <boost/math/distributions/binomial.hpp>
#include <boost/math/distributions/lognormal.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/poisson.hpp>

#include <random>
#include <vector>

namespace {

using Float = long double;
constexpr std::size_t Count = 1024;

// Arguments drawn once, the same for both sides: Z in [0, 6], P in (0, 1) with a
// tenth of them in the far tails, X log-normal around 1, Z in [-10, 10], counts for the
// binomial (N = 200) and the Poisson (mean 40, and 10^5).
std::vector<Float> Arguments(int kind) {
    std::mt19937_64 random(20240601 + kind);
    std::uniform_real_distribution<double> uniform(0, 1);
    std::vector<Float> values(Count);
    for (std::size_t i = 0; i < Count; ++i) {
        const Float u = uniform(random);
        switch (kind) {
            case 0: values[i] = 6 * u; break;
            case 1: values[i] = i % 10 == 0 ? std::pow(10.0L, -1 - 30 * u) : 0.001L + 0.998L * u; break;
            case 2: values[i] = std::exp(2 * (u - 0.5L)); break;
            case 3: values[i] = 20 * (u - 0.5L); break;
            case 4: values[i] = std::floor(200 * u); break;
            case 5: values[i] = std::floor(120 * u); break;
            default: values[i] = std::floor(100000 + 2000 * (u - 0.5L)); break;
        }
    }
    return values;
}

template <class Function>
void Run(benchmark::State& state, int kind, Function function) {
    const std::vector<Float> values = Arguments(kind);
    for (auto _ : state) {
        for (const Float x : values) benchmark::DoNotOptimize(function(x));
    }
    state.SetItemsProcessed(state.iterations() * std::int64_t(Count));
}

using boost::math::complement;
using RoundUp =
    boost::math::policies::policy<boost::math::policies::discrete_quantile<boost::math::policies::integer_round_up>>;
const boost::math::normal_distribution<Float> StandardNormal(0, 1);
const boost::math::lognormal_distribution<Float> LogNormal(0.1L, 0.8L);
const boost::math::binomial_distribution<Float, RoundUp> Binomial(200, 0.3L);
const boost::math::poisson_distribution<Float, RoundUp> Poisson(40);
const boost::math::poisson_distribution<Float, RoundUp> LargePoisson(100000);

void Kornum_NormalLess(benchmark::State& state) {
    Run(state, 0, [](Float z) { return KornumStatistics::NormalLess(z); });
}
void Boost_NormalCdf(benchmark::State& state) {
    Run(state, 0, [](Float z) { return boost::math::cdf(StandardNormal, z); });
}
void Kornum_InvNormalLess(benchmark::State& state) {
    Run(state, 1, [](Float p) { return KornumStatistics::InvNormalLess(p); });
}
void Boost_NormalQuantile(benchmark::State& state) {
    Run(state, 1, [](Float p) { return boost::math::quantile(StandardNormal, p); });
}
void Kornum_LogNormalLess(benchmark::State& state) {
    Run(state, 2, [](Float x) { return KornumStatistics::LogNormalLess(0.1L, 0.8L, x); });
}
void Boost_LogNormalCdf(benchmark::State& state) {
    Run(state, 2, [](Float x) { return boost::math::cdf(LogNormal, x); });
}

// ---- Accurate tails ----

void Kornum_NormalLower(benchmark::State& state) {
    Run(state, 3, [](Float z) { return KornumStatistics::NormalLower(z); });
}
void Boost_NormalCdfWide(benchmark::State& state) {
    Run(state, 3, [](Float z) { return boost::math::cdf(StandardNormal, z); });
}
void Kornum_NormalUpper(benchmark::State& state) {
    Run(state, 3, [](Float z) { return KornumStatistics::NormalUpper(z); });
}
void Boost_NormalCdfComplement(benchmark::State& state) {
    Run(state, 3, [](Float z) { return boost::math::cdf(complement(StandardNormal, z)); });
}
void Kornum_BinomialLower(benchmark::State& state) {
    Run(state, 4, [](Float k) { return KornumStatistics::BinomialLower(0.3L, 200, Kornumglobals::Cardinal(k)); });
}
void Boost_BinomialCdf(benchmark::State& state) {
    Run(state, 4, [](Float k) { return boost::math::cdf(Binomial, k); });
}
void Kornum_BinomialUpper(benchmark::State& state) {
    Run(state, 4, [](Float k) { return KornumStatistics::BinomialUpper(0.3L, 200, Kornumglobals::Cardinal(k)); });
}
void Boost_BinomialCdfComplement(benchmark::State& state) {
    Run(state, 4, [](Float k) { return boost::math::cdf(complement(Binomial, k)); });
}
void Kornum_PoissonLower(benchmark::State& state) {
    Run(state, 5, [](Float k) { return KornumStatistics::PoissonLower(40, Kornumglobals::Cardinal(k)); });
}
void Boost_PoissonCdf(benchmark::State& state) {
    Run(state, 5, [](Float k) { return boost::math::cdf(Poisson, k); });
}
void Kornum_PoissonUpper(benchmark::State& state) {
    Run(state, 5, [](Float k) { return KornumStatistics::PoissonUpper(40, Kornumglobals::Cardinal(k)); });
}
void Boost_PoissonCdfComplement(benchmark::State& state) {
    Run(state, 5, [](Float k) { return boost::math::cdf(complement(Poisson, k)); });
}
void Kornum_PoissonUpperLargeMean(benchmark::State& state) {
    Run(state, 6, [](Float k) { return KornumStatistics::PoissonUpper(100000, Kornumglobals::Cardinal(k)); });
}
void Boost_PoissonCdfComplementLargeMean(benchmark::State& state) {
    Run(state, 6, [](Float k) { return boost::math::cdf(complement(LargePoisson, k)); });
}

// ---- Discrete quantiles (Boost rounding up: the smallest count reaching the level) ----

void Kornum_InvBinomialLess(benchmark::State& state) {
    Run(state, 1, [](Float p) { return KornumStatistics::InvBinomialLess(0.3L, 200, p); });
}
void Boost_BinomialQuantile(benchmark::State& state) {
    Run(state, 1, [](Float p) { return boost::math::quantile(Binomial, p); });
}
void Kornum_InvBinomialGreater(benchmark::State& state) {
    Run(state, 1, [](Float q) { return KornumStatistics::InvBinomialGreater(0.3L, 200, q); });
}
void Boost_BinomialQuantileComplement(benchmark::State& state) {
    Run(state, 1, [](Float q) { return boost::math::quantile(complement(Binomial, q)); });
}
void Kornum_InvPoissonLess(benchmark::State& state) {
    Run(state, 1, [](Float p) { return KornumStatistics::InvPoissonLess(40, p); });
}
void Boost_PoissonQuantile(benchmark::State& state) {
    Run(state, 1, [](Float p) { return boost::math::quantile(Poisson, p); });
}
void Kornum_InvPoissonGreater(benchmark::State& state) {
    Run(state, 1, [](Float q) { return KornumStatistics::InvPoissonGreater(40, q); });
}
void Boost_PoissonQuantileComplement(benchmark::State& state) {
    Run(state, 1, [](Float q) { return boost::math::quantile(complement(Poisson, q)); });
}

}  // namespace

BENCHMARK(Kornum_NormalLess);
BENCHMARK(Boost_NormalCdf);
BENCHMARK(Kornum_InvNormalLess);
BENCHMARK(Boost_NormalQuantile);
BENCHMARK(Kornum_LogNormalLess);
BENCHMARK(Boost_LogNormalCdf);
BENCHMARK(Kornum_NormalLower);
BENCHMARK(Boost_NormalCdfWide);
BENCHMARK(Kornum_NormalUpper);
BENCHMARK(Boost_NormalCdfComplement);
BENCHMARK(Kornum_BinomialLower);
BENCHMARK(Boost_BinomialCdf);
BENCHMARK(Kornum_BinomialUpper);
BENCHMARK(Boost_BinomialCdfComplement);
BENCHMARK(Kornum_PoissonLower);
BENCHMARK(Boost_PoissonCdf);
BENCHMARK(Kornum_PoissonUpper);
BENCHMARK(Boost_PoissonCdfComplement);
BENCHMARK(Kornum_PoissonUpperLargeMean);
BENCHMARK(Boost_PoissonCdfComplementLargeMean);
BENCHMARK(Kornum_InvBinomialLess);
BENCHMARK(Boost_BinomialQuantile);
BENCHMARK(Kornum_InvBinomialGreater);
BENCHMARK(Boost_BinomialQuantileComplement);
BENCHMARK(Kornum_InvPoissonLess);
BENCHMARK(Boost_PoissonQuantile);
BENCHMARK(Kornum_InvPoissonGreater);
BENCHMARK(Boost_PoissonQuantileComplement);

BENCHMARK_MAIN();
