// Gamma, LnGamma, Beta, IncompleteBeta and InverseIncompleteBeta against Boost.Math's
// long double versions. Each pair runs over one fixed argument set per range.
#include <kornum/Kornummath.h>

#include <benchmark/benchmark.h>
#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/gamma.hpp>

#include <cmath>
#include <random>
#include <vector>

namespace {

using Float = long double;

struct Args {
    Float x, a, b;
};

Float LogUniform(std::mt19937_64& g, Float lo, Float hi) {
    std::uniform_real_distribution<double> u(std::log(double(lo)), std::log(double(hi)));
    return std::exp(Float(u(g)));
}

// x spread around the bulk of the beta(a, b) distribution, where callers evaluate it.
std::vector<Args> BetaArgs(Float lo, Float hi) {
    std::mt19937_64 g(12345);
    std::normal_distribution<double> z(0, 2);
    std::vector<Args> v;
    while (v.size() < 256) {
        const Float a = LogUniform(g, lo, hi), b = LogUniform(g, lo, hi);
        const Float mean = a / (a + b);
        const Float sd = std::sqrt(a * b / ((a + b) * (a + b) * (a + b + 1)));
        const Float x = mean + Float(z(g)) * sd;
        if (x > 0 && x < 1) v.push_back({x, a, b});
    }
    return v;
}

// p from 1e-10 to 1 - 1e-10, log-spread in both tails.
std::vector<Args> InverseArgs() {
    std::mt19937_64 g(777);
    std::uniform_real_distribution<double> u(0, 1);
    std::vector<Args> v;
    for (int i = 0; i < 256; ++i) {
        const Float a = LogUniform(g, 0.5L, 100), b = LogUniform(g, 0.5L, 100);
        Float p = LogUniform(g, 1e-10L, 0.5L);
        if (u(g) < 0.5) p = 1 - p;
        v.push_back({p, a, b});
    }
    return v;
}

std::vector<Float> GammaArgs(Float lo, Float hi) {
    std::mt19937_64 g(42);
    std::uniform_real_distribution<double> u{double(lo), double(hi)};
    std::vector<Float> v(256);
    for (Float& x : v) x = Float(u(g));
    return v;
}

const std::vector<Float> gammaArgs = GammaArgs(0.1L, 170);
const std::vector<Float> lnGammaArgs = GammaArgs(0.1L, 1000);
const std::vector<Args> moderate = BetaArgs(0.5L, 100);
const std::vector<Args> large = BetaArgs(100, 1e4L);
const std::vector<Args> inverse = InverseArgs();

template <class F>
void OverValues(benchmark::State& state, const std::vector<Float>& args, F f) {
    for (auto _ : state)
        for (Float x : args) benchmark::DoNotOptimize(f(x));
    state.SetItemsProcessed(state.iterations() * args.size());
}

template <class F>
void OverTriples(benchmark::State& state, const std::vector<Args>& args, F f) {
    for (auto _ : state)
        for (const Args& t : args) benchmark::DoNotOptimize(f(t));
    state.SetItemsProcessed(state.iterations() * args.size());
}

void Gamma_Kornum(benchmark::State& s) { OverValues(s, gammaArgs, Kornummath::Gamma); }
void Gamma_Boost(benchmark::State& s) {
    OverValues(s, gammaArgs, [](Float x) { return boost::math::tgamma(x); });
}
void LnGamma_Kornum(benchmark::State& s) { OverValues(s, lnGammaArgs, Kornummath::LnGamma); }
void LnGamma_Boost(benchmark::State& s) {
    OverValues(s, lnGammaArgs, [](Float x) { return boost::math::lgamma(x); });
}
void Beta_Kornum(benchmark::State& s) {
    OverTriples(s, moderate, [](const Args& t) { return Kornummath::Beta(t.a, t.b); });
}
void Beta_Boost(benchmark::State& s) {
    OverTriples(s, moderate, [](const Args& t) { return boost::math::beta(t.a, t.b); });
}
void IncompleteBeta_Kornum(benchmark::State& s) {
    OverTriples(s, moderate,
                [](const Args& t) { return Kornummath::IncompleteBeta(t.x, t.a, t.b); });
}
void IncompleteBeta_Boost(benchmark::State& s) {
    OverTriples(s, moderate, [](const Args& t) { return boost::math::ibeta(t.a, t.b, t.x); });
}
void IncompleteBetaLarge_Kornum(benchmark::State& s) {
    OverTriples(s, large, [](const Args& t) { return Kornummath::IncompleteBeta(t.x, t.a, t.b); });
}
void IncompleteBetaLarge_Boost(benchmark::State& s) {
    OverTriples(s, large, [](const Args& t) { return boost::math::ibeta(t.a, t.b, t.x); });
}
void InverseIncompleteBeta_Kornum(benchmark::State& s) {
    OverTriples(s, inverse,
                [](const Args& t) { return Kornummath::InverseIncompleteBeta(t.x, t.a, t.b); });
}
void InverseIncompleteBeta_Boost(benchmark::State& s) {
    OverTriples(s, inverse, [](const Args& t) { return boost::math::ibeta_inv(t.a, t.b, t.x); });
}

BENCHMARK(Gamma_Kornum);
BENCHMARK(Gamma_Boost);
BENCHMARK(LnGamma_Kornum);
BENCHMARK(LnGamma_Boost);
BENCHMARK(Beta_Kornum);
BENCHMARK(Beta_Boost);
BENCHMARK(IncompleteBeta_Kornum);
BENCHMARK(IncompleteBeta_Boost);
BENCHMARK(IncompleteBetaLarge_Kornum);
BENCHMARK(IncompleteBetaLarge_Boost);
BENCHMARK(InverseIncompleteBeta_Kornum);
BENCHMARK(InverseIncompleteBeta_Boost);

}  // namespace

BENCHMARK_MAIN();
