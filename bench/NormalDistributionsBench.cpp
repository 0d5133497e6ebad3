// Cost per call of NormalLess, InvNormalLess and LogNormalLess against Boost.Math's
// long double normal and log-normal distributions, over the same arguments.
#include <kornum/NormalDistributions.h>

#include <benchmark/benchmark.h>
#include <boost/math/distributions/lognormal.hpp>
#include <boost/math/distributions/normal.hpp>

#include <random>
#include <vector>

namespace {

using Float = long double;
constexpr std::size_t Count = 1024;

// Arguments drawn once, the same for both sides: Z in [0, 6], P in (0, 1) with a
// tenth of them in the far tails, X log-normal around 1.
std::vector<Float> Arguments(int kind) {
    std::mt19937_64 random(20240601 + kind);
    std::uniform_real_distribution<double> uniform(0, 1);
    std::vector<Float> values(Count);
    for (std::size_t i = 0; i < Count; ++i) {
        const Float u = uniform(random);
        switch (kind) {
            case 0: values[i] = 6 * u; break;
            case 1: values[i] = i % 10 == 0 ? std::pow(10.0L, -1 - 30 * u) : 0.001L + 0.998L * u; break;
            default: values[i] = std::exp(2 * (u - 0.5L)); break;
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

const boost::math::normal_distribution<Float> StandardNormal(0, 1);
const boost::math::lognormal_distribution<Float> LogNormal(0.1L, 0.8L);

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

}  // namespace

BENCHMARK(Kornum_NormalLess);
BENCHMARK(Boost_NormalCdf);
BENCHMARK(Kornum_InvNormalLess);
BENCHMARK(Boost_NormalQuantile);
BENCHMARK(Kornum_LogNormalLess);
BENCHMARK(Boost_LogNormalCdf);

BENCHMARK_MAIN();
