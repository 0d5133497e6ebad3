// KorMean, SampleVariance and PopulationStdDev on 10^7 values beside GSL's mean and
// variance, Float members against the long double routines and Double members against
// the double ones. GSL reads its own native array of the same values (16-byte long
// doubles, 8-byte doubles); ours reads the library's vectors (10-byte Floats).
//
// Every benchmark also reports its relative error ("relerr") against a two-pass
// __float128 computation on the same values, so speed is compared at known accuracy.
#include <kornum/KornumStatistics.h>

#include <benchmark/benchmark.h>
#include <gsl/gsl_statistics_double.h>
#include <gsl/gsl_statistics_long_double.h>

#include <cmath>
#include <random>
#include <vector>

namespace {

using namespace Kornumglobals;

constexpr int Size = 10'000'000;

// Offset data (10^6 plus a uniform part in [0, 1)), so that the variance is a small
// difference of large numbers and accuracy shows.
std::vector<double> MakeValues() {
    std::vector<double> values(Size);
    std::mt19937_64 gen(2024);
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    for (double& v : values) v = 1e6 + uniform(gen);
    return values;
}

const std::vector<double>& Values() {
    static const std::vector<double> values = MakeValues();
    return values;
}

struct Reference {
    __float128 mean, sampleVariance, populationStdDev;
};

const Reference& Exact() {
    static const Reference reference = [] {
        const auto& values = Values();
        __float128 sum = 0;
        for (double v : values) sum += v;
        const __float128 mean = sum / Size;
        __float128 squares = 0;
        for (double v : values) squares += (v - mean) * (v - mean);
        // sqrt in long double is ample for a reference of the square root's argument.
        return Reference{mean, squares / (Size - 1),
                         __float128(std::sqrt((long double)(squares / Size)))};
    }();
    return reference;
}

double RelativeError(long double value, __float128 exact) {
    const __float128 difference = (__float128(value) - exact) / exact;
    return double(difference < 0 ? -difference : difference);
}

const TKorFloatVector& FloatVector() {
    static const TKorFloatVector v = [] {
        TKorFloatVector x;
        x.SetLength(Size);
        for (int i = 0; i < Size; ++i) x[i] = Float(Values()[std::size_t(i)]);
        return x;
    }();
    return v;
}
const TKorDoubleVector& DoubleVector() {
    static const TKorDoubleVector v = [] {
        TKorDoubleVector x;
        x.SetLength(Size);
        for (int i = 0; i < Size; ++i) x[i] = Values()[std::size_t(i)];
        return x;
    }();
    return v;
}
const std::vector<long double>& LongDoubles() {
    static const std::vector<long double> v(Values().begin(), Values().end());
    return v;
}

enum Statistic { Mean, SampleVar, PopStdDev };

__float128 ExactValue(Statistic which) {
    switch (which) {
        case Mean: return Exact().mean;
        case SampleVar: return Exact().sampleVariance;
        default: return Exact().populationStdDev;
    }
}

template <class Compute>
void Run(benchmark::State& state, Statistic which, Compute compute) {
    long double result = 0;
    for (auto _ : state) {
        result = compute();
        benchmark::DoNotOptimize(result);
    }
    state.counters["relerr"] = RelativeError(result, ExactValue(which));
    state.SetItemsProcessed(state.iterations() * Size);
}

// ---- Our members and GSL's routines, one body each -----------------------------------

template <class Vector>
void Ours(benchmark::State& state, const Vector& x) {
    const Statistic which = Statistic(state.range(0));
    Run(state, which, [&]() -> long double {
        switch (which) {
            case Mean: return KornumStatistics::KorMean(x);
            case SampleVar: return KornumStatistics::SampleVariance(x);
            default: return KornumStatistics::PopulationStdDev(x);
        }
    });
}

// GSL has no population routine: the sample variance rescaled, then its square root.
// (Its long double routines return double.)
template <class T>
void Gsl(benchmark::State& state, const std::vector<T>& x, double (*mean)(const T*, size_t, size_t),
         double (*variance)(const T*, size_t, size_t)) {
    const Statistic which = Statistic(state.range(0));
    Run(state, which, [&]() -> long double {
        switch (which) {
            case Mean: return mean(x.data(), 1, x.size());
            case SampleVar: return variance(x.data(), 1, x.size());
            default: return std::sqrt(variance(x.data(), 1, x.size()) * double(Size - 1) / double(Size));
        }
    });
}

void Ours_Float(benchmark::State& state) { Ours(state, FloatVector()); }
void Gsl_LongDouble(benchmark::State& state) {
    Gsl(state, LongDoubles(), gsl_stats_long_double_mean, gsl_stats_long_double_variance);
}
void Ours_Double(benchmark::State& state) { Ours(state, DoubleVector()); }
void Gsl_Double(benchmark::State& state) { Gsl(state, Values(), gsl_stats_mean, gsl_stats_variance); }

// Argument: 0 mean, 1 sample variance, 2 population standard deviation.
BENCHMARK(Ours_Float)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(Gsl_LongDouble)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(Ours_Double)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(Gsl_Double)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
