// The matrix product, determinant and inverse of Float matrices beside Eigen's
// Matrix<long double, Dynamic, Dynamic> (its product, and its PartialPivLU determinant
// and inverse) on the same values. The product reports FLOP/s; the inverse also reports
// the residual max |A * inv(A) - I| of both, as counters.
#include <kornum/KornumMatrix.h>

#include <Eigen/Dense>
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

namespace {

using namespace KornumMatrix;
using EigenMatrix = Eigen::Matrix<long double, Eigen::Dynamic, Eigen::Dynamic>;

TKorFloatMatrix RandomMatrix(int n, unsigned seed) {
    std::mt19937_64 gen(seed);
    std::uniform_real_distribution<double> uniform(-1, 1);
    TKorFloatMatrix M = CreateFloatMatrix(LongWord(n), LongWord(n));
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) M[i][j] = uniform(gen);
    return M;
}

EigenMatrix ToEigen(const TKorFloatMatrix& M) {
    const int n = M.Length();
    EigenMatrix E(n, n);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) E(i, j) = M[i][j];
    return E;
}

void SetFlops(benchmark::State& state, int n) {
    state.counters["FLOP/s"] = benchmark::Counter(2.0 * n * n * n, benchmark::Counter::kIsIterationInvariantRate);
}

void OursMultiply(benchmark::State& state) {
    const int n = int(state.range(0));
    const TKorFloatMatrix X = RandomMatrix(n, 1), Y = RandomMatrix(n, 2);
    for (auto _ : state) benchmark::DoNotOptimize(MultiplyMatrices(X, Y));
    SetFlops(state, n);
}
void EigenMultiply(benchmark::State& state) {
    const int n = int(state.range(0));
    const EigenMatrix X = ToEigen(RandomMatrix(n, 1)), Y = ToEigen(RandomMatrix(n, 2));
    EigenMatrix R(n, n);
    for (auto _ : state) {
        R.noalias() = X * Y;
        benchmark::DoNotOptimize(R.data());
    }
    SetFlops(state, n);
}

// The reductions destroy their argument: each timed call gets a fresh copy (not timed).
void OursDeterminant(benchmark::State& state) {
    const TKorFloatMatrix A = RandomMatrix(int(state.range(0)), 3);
    for (auto _ : state) {
        state.PauseTiming();
        TKorFloatMatrix work = CopyMatrix(A);
        state.ResumeTiming();
        benchmark::DoNotOptimize(MatrixDeterminant(work));
    }
}
void EigenDeterminant(benchmark::State& state) {
    const EigenMatrix A = ToEigen(RandomMatrix(int(state.range(0)), 3));
    for (auto _ : state) benchmark::DoNotOptimize(Eigen::PartialPivLU<EigenMatrix>(A).determinant());
}

long double Residual(const EigenMatrix& A, const EigenMatrix& Inv) {
    return (A * Inv - EigenMatrix::Identity(A.rows(), A.cols())).cwiseAbs().maxCoeff();
}

void OursInverse(benchmark::State& state) {
    const TKorFloatMatrix A = RandomMatrix(int(state.range(0)), 4);
    TKorFloatMatrix Inv;
    for (auto _ : state) {
        state.PauseTiming();
        TKorFloatMatrix work = CopyMatrix(A);
        state.ResumeTiming();
        benchmark::DoNotOptimize(MatrixInverse(work, Inv));
    }
    state.counters["residual"] = double(Residual(ToEigen(A), ToEigen(Inv)));
}
void EigenInverse(benchmark::State& state) {
    const EigenMatrix A = ToEigen(RandomMatrix(int(state.range(0)), 4));
    EigenMatrix Inv;
    for (auto _ : state) {
        Inv = Eigen::PartialPivLU<EigenMatrix>(A).inverse();
        benchmark::DoNotOptimize(Inv.data());
    }
    state.counters["residual"] = double(Residual(A, Inv));
}

}  // namespace

BENCHMARK(OursMultiply)->Arg(512)->Unit(benchmark::kMillisecond);
BENCHMARK(EigenMultiply)->Arg(512)->Unit(benchmark::kMillisecond);
BENCHMARK(OursDeterminant)->Arg(256)->Unit(benchmark::kMillisecond);
BENCHMARK(EigenDeterminant)->Arg(256)->Unit(benchmark::kMillisecond);
BENCHMARK(OursInverse)->Arg(256)->Unit(benchmark::kMillisecond);
BENCHMARK(EigenInverse)->Arg(256)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
