// Sorting, ranking and one-pass aggregates of vectors, each beside the routine a user
// would otherwise reach for: std::sort, GSL's gsl_sort, and a plain long double loop.
#include <kornum/KornumVector.h>

#include <benchmark/benchmark.h>
#include <gsl/gsl_sort.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <type_traits>

namespace {

using namespace KornumVector;

constexpr int SortSize = 1'000'000;
constexpr int SumSize = 10'000'000;

enum Shape { Random, Sorted, Reversed, AllEqual };

template <class E>
TKorVector<E> MakeData(int n, Shape shape) {
    TKorVector<E> v;
    v.SetLength(n);
    std::mt19937_64 gen(12345);
    std::uniform_real_distribution<double> uniform(-1e6, 1e6);
    for (int i = 0; i < n; ++i) {
        switch (shape) {
            case Random: v[i] = E(uniform(gen)); break;
            case Sorted: v[i] = E(double(i)); break;
            case Reversed: v[i] = E(double(n - i)); break;
            case AllEqual: v[i] = E(42.0); break;
        }
    }
    return v;
}

// Each timed sort gets a fresh copy of the same input; the copy is not timed.
template <class E, class Sort>
void TimeSort(benchmark::State& state, Shape shape, Sort sort) {
    const TKorVector<E> source = MakeData<E>(SortSize, shape);
    TKorVector<E> work;
    work.SetLength(SortSize);
    for (auto _ : state) {
        state.PauseTiming();
        std::memcpy(static_cast<void*>(work.data()), source.data(), sizeof(E) * SortSize);
        state.ResumeTiming();
        sort(work);
        benchmark::ClobberMemory();
    }
}

template <class E>
void OursSort(benchmark::State& state) {
    TimeSort<E>(state, Shape(state.range(0)), [](TKorVector<E>& v) { QSortVector(v, true); });
}
template <class E>
void StdSort(benchmark::State& state) {
    TimeSort<E>(state, Shape(state.range(0)), [](TKorVector<E>& v) {
        if constexpr (std::is_same_v<E, PackedFloat>)
            std::sort(v.begin(), v.end(), [](const E& a, const E& b) { return Float(a) < Float(b); });
        else
            std::sort(v.begin(), v.end());
    });
}
void GslSort(benchmark::State& state) {
    TimeSort<Double>(state, Shape(state.range(0)),
                     [](TKorDoubleVector& v) { gsl_sort(v.data(), 1, std::size_t(v.Length())); });
}

#define SHAPES ->Arg(Random)->Arg(Sorted)->Arg(Reversed)->Arg(AllEqual)->Unit(benchmark::kMillisecond)
BENCHMARK(OursSort<Double>) SHAPES;
BENCHMARK(StdSort<Double>) SHAPES;
BENCHMARK(GslSort) SHAPES;
BENCHMARK(OursSort<PackedFloat>) SHAPES;
BENCHMARK(StdSort<PackedFloat>) SHAPES;

// Ranking costs at most a few sorts: one sorted copy and a binary search per element.
void RankVectorDouble(benchmark::State& state) {
    const TKorDoubleVector v = MakeData<Double>(SortSize, Random);
    for (auto _ : state) benchmark::DoNotOptimize(Vector2RankVector(v, true));
}
BENCHMARK(RankVectorDouble)->Unit(benchmark::kMillisecond);

// ---- One-pass aggregates over 10^7 packed Float elements (100 MB) ---------------------
// The peers are plain in-order long double loops over the same storage.

const TKorFloatVector& SumData() {
    static const TKorFloatVector data = MakeData<PackedFloat>(SumSize, Random);
    return data;
}

void OursSumVector(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(SumVector(SumData()));
}
void PlainSumLoop(benchmark::State& state) {
    const PackedFloat* v = SumData().data();
    const int n = SumData().Length();
    for (auto _ : state) {
        Float s = v[0];
        for (int i = 1; i < n; ++i) s += v[i];
        benchmark::DoNotOptimize(s);
    }
}
void OursSumSqVector(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(SumSqVector(SumData()));
}
void PlainSumSqLoop(benchmark::State& state) {
    const PackedFloat* v = SumData().data();
    const int n = SumData().Length();
    for (auto _ : state) {
        Float x = v[0];
        Float s = x * x;
        for (int i = 1; i < n; ++i) {
            x = v[i];
            s += x * x;
        }
        benchmark::DoNotOptimize(s);
    }
}
void OursMinMaxVector(benchmark::State& state) {
    Float lo, hi;
    Cardinal loIndex, hiIndex;
    Boolean loUnique, hiUnique;
    for (auto _ : state) {
        MinMaxVector(SumData(), lo, hi, loIndex, hiIndex, loUnique, hiUnique);
        benchmark::DoNotOptimize(lo);
        benchmark::DoNotOptimize(hi);
    }
}
void PlainMinMaxLoop(benchmark::State& state) {
    const PackedFloat* v = SumData().data();
    const int n = SumData().Length();
    for (auto _ : state) {
        Float lo = v[0], hi = lo;
        for (int i = 1; i < n; ++i) {
            const Float x = v[i];
            if (x < lo) lo = x;
            if (x > hi) hi = x;
        }
        benchmark::DoNotOptimize(lo);
        benchmark::DoNotOptimize(hi);
    }
}
BENCHMARK(OursSumVector)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainSumLoop)->Unit(benchmark::kMillisecond);
BENCHMARK(OursSumSqVector)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainSumSqLoop)->Unit(benchmark::kMillisecond);
BENCHMARK(OursMinMaxVector)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainMinMaxLoop)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
