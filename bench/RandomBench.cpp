// Random variates per call: ours with the default source beside GSL's generators of the
// same distributions (with GSL's default mt19937 source) and, for the normal, the
// standard library's normal_distribution<long double> over mt19937_64.
#include <kornum/KornumRandom.h>
#include <kornum/PlatformRandom.h>

#include <benchmark/benchmark.h>
#include <gsl/gsl_randist.h>
#include <gsl/gsl_rng.h>

#include <random>

namespace {

using namespace KornumRandom;

struct Gsl {
    gsl_rng* rng = gsl_rng_alloc(gsl_rng_mt19937);
    ~Gsl() { gsl_rng_free(rng); }
};

void OursNormal(benchmark::State& state) {
    Platform::RandSeed(1);
    for (auto _ : state) benchmark::DoNotOptimize(Random_Normal());
}
void GslNormalRatio(benchmark::State& state) {
    Gsl gsl;
    for (auto _ : state) benchmark::DoNotOptimize(gsl_ran_gaussian_ratio_method(gsl.rng, 1.0));
}
void StdNormalLongDouble(benchmark::State& state) {
    std::mt19937_64 engine(1);
    std::normal_distribution<long double> normal;
    for (auto _ : state) benchmark::DoNotOptimize(normal(engine));
}

void OursGamma(benchmark::State& state) {
    const Float shape = Float(state.range(0)) / 10;
    for (auto _ : state) benchmark::DoNotOptimize(Random_Gamma(shape));
}
void GslGamma(benchmark::State& state) {
    Gsl gsl;
    const double shape = double(state.range(0)) / 10;
    for (auto _ : state) benchmark::DoNotOptimize(gsl_ran_gamma(gsl.rng, shape, 1.0));
}

void OursBinomial2(benchmark::State& state) {
    const Int64 n = state.range(0);
    for (auto _ : state) benchmark::DoNotOptimize(Random_Binomial2(n, 0.3L));
}
void GslBinomial(benchmark::State& state) {
    Gsl gsl;
    const unsigned n = unsigned(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(gsl_ran_binomial(gsl.rng, 0.3, n));
}

void OursPoisson(benchmark::State& state) {
    const Float mu = Float(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(Random_Poisson(mu));
}
void GslPoisson(benchmark::State& state) {
    Gsl gsl;
    const double mu = double(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(gsl_ran_poisson(gsl.rng, mu));
}

}  // namespace

BENCHMARK(OursNormal);
BENCHMARK(GslNormalRatio);
BENCHMARK(StdNormalLongDouble);
// Shapes 0.5 (the small-shape method) and 5 and 50 (Marsaglia and Tsang).
BENCHMARK(OursGamma)->Arg(5)->Arg(50)->Arg(500);
BENCHMARK(GslGamma)->Arg(5)->Arg(50)->Arg(500);
// n p = 3 (inversion) and 3,000 (BTPE).
BENCHMARK(OursBinomial2)->Arg(10)->Arg(10000);
BENCHMARK(GslBinomial)->Arg(10)->Arg(10000);
// Means 4 (table inversion) and 1,000 (method PD).
BENCHMARK(OursPoisson)->Arg(4)->Arg(1000);
BENCHMARK(GslPoisson)->Arg(4)->Arg(1000);

BENCHMARK_MAIN();
