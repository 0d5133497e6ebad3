#include <kornum/GroupedStatistics.h>

#include "statistics/detail/StatisticsChecks.hpp"

#include <kornum/KornumVector.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/Platform.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

namespace KornumStatistics {

namespace {

using Kornumglobals::Cardinal;
using Kornumglobals::Int64;

using detail::RequireNotEmpty;

// N, the total count, as the vector module sums a Cardinal vector.
Int64 TotalCount(const TKorLWordVector& F) { return KornumVector::SumVector(F); }

// The mid-point of class i, with its terms added in this order: i*W + L + W/2.
Float MidPoint(std::int32_t i, Float L, Float W) { return Float(i) * W + L + W / 2; }

// Sum over the classes of term(count, mid-point), in class order.
template <class Term>
Float SumOverClasses(const TKorLWordVector& F, Float L, Float W, Term term) {
    Float sum = 0;
    for (std::int32_t i = 0; i < F.Length(); ++i) sum += term(Float(F[i]), MidPoint(i, L, W));
    return sum;
}

// The value at which the cumulative count reaches target: the first class k with
// target <= cum_k, interpolated as k*W + L + (target - cum_(k-1))*W / f_k. Empty
// when no class reaches the target.
std::optional<Float> InterpolateCount(const TKorLWordVector& F, Float L, Float W, Float target) {
    std::uint64_t before = 0;  // cum_(k-1)
    for (std::int32_t k = 0; k < F.Length(); ++k) {
        const std::uint64_t through = before + F[k];
        if (target <= Float(through))
            return Float(k) * W + L + (target - Float(before)) * W / Float(F[k]);
        before = through;
    }
    return std::nullopt;
}

// Sum of (m_i - Mean)^power over the classes, not weighted by the counts; the fourth
// power is formed as (d*d)*(d*d).
Float UnweightedDeviationSum(const TKorLWordVector& F, Float L, Float W, Float Mean, int power) {
    return SumOverClasses(F, L, W, [&](Float, Float m) {
        const Float d = m - Mean;
        return power == 3 ? d * d * d : (d * d) * (d * d);
    });
}

// Returns N after the checks shared by the shape members.
Float CheckShape(const TKorLWordVector& F, Float StdDev, Int64 minimum,
                 const Platform::ResourceString& tooFew) {
    RequireNotEmpty(F);
    const Int64 N = TotalCount(F);
    if (N < minimum) Platform::Raise(tooFew);
    if (Kornummath::FloatIsZero(StdDev)) Platform::Raise(Kornum_RS_Math::rsStdDev);
    return Float(N);
}

Float SquaredDeviationSum(const TKorLWordVector& F, Float L, Float W, Float mean) {
    return SumOverClasses(F, L, W, [&](Float f, Float m) { return f * ((m - mean) * (m - mean)); });
}

Float MeanOf(const TKorLWordVector& F, Float L, Float W, Int64 N) {
    if (N == 0) return 0;
    return SumOverClasses(F, L, W, [](Float f, Float m) { return f * m; }) / Float(N);
}

}  // namespace

Float GroupedMean(const TKorLWordVector& F, Float L, Float W) {
    RequireNotEmpty(F);
    return MeanOf(F, L, W, TotalCount(F));
}

Float GroupedMedian(const TKorLWordVector& F, Float L, Float W) {
    RequireNotEmpty(F);
    const Float half = Float(TotalCount(F)) / 2;
    const auto median = InterpolateCount(F, L, W, half);
    if (!median) Platform::Raise<Platform::Exception>(Kornum_RS_Math::rsMedianNotFound);
    return *median;
}

bool GroupedMode(const TKorLWordVector& F, Float L, Float W, Float& Mode) {
    RequireNotEmpty(F);
    std::int32_t k = 0;
    Cardinal largest = F[0];
    bool tie = false;
    for (std::int32_t i = 1; i < F.Length(); ++i) {
        if (F[i] == largest) {
            tie = true;
        } else if (F[i] > largest) {
            k = i;
            largest = F[i];
            tie = false;
        }
    }
    if (tie) {
        Mode = GroupedModeTieMarker;
        return false;
    }
    // Count differences to the neighbours as 32-bit unsigned values; a missing
    // neighbour counts as 0.
    const Cardinal d1 = k == 0 ? largest : Cardinal(largest - F[k - 1]);
    const Cardinal d2 = k == F.High() ? largest : Cardinal(largest - F[k + 1]);
    Mode = Float(k) * W + L + Float(d1) * W / (Float(d1) + Float(d2));
    return true;
}

void GroupedQuartiles(const TKorLWordVector& F, Float L, Float W, Float& Q1, Float& Q3) {
    RequireNotEmpty(F);
    const Int64 N = TotalCount(F);
    const auto first = InterpolateCount(F, L, W, Float(N) / 4);
    const auto third = InterpolateCount(F, L, W, Float(3 * N) / 4);
    if (!first || !third) Platform::Raise(Kornum_RS_Math::rsQuartilesNotFound);
    Q1 = *first;
    Q3 = *third;
}

void GetGroupedDeciles(const TKorLWordVector& F, Float L, Float W, Float* D) {
    RequireNotEmpty(F);
    const Int64 N = TotalCount(F);
    std::array<Float, 9> deciles;
    for (int j = 1; j <= 9; ++j) {
        // Every target lies at or below N, which the last class always reaches.
        deciles[j - 1] = InterpolateCount(F, L, W, Float(j * N) / 10.0L).value_or(NAN);
    }
    for (int j = 0; j < 9; ++j) D[j] = deciles[j];
}

Float GroupedSampleVariance(const TKorLWordVector& F, Float L, Float W) {
    RequireNotEmpty(F);
    const Int64 N = TotalCount(F);
    if (N < 2) return 0;
    return SquaredDeviationSum(F, L, W, MeanOf(F, L, W, N)) / Float(N - 1);
}

Float GroupedPopulationVariance(const TKorLWordVector& F, Float L, Float W) {
    RequireNotEmpty(F);
    const Int64 N = TotalCount(F);
    if (N == 0) return 0;
    return SquaredDeviationSum(F, L, W, MeanOf(F, L, W, N)) / Float(N);
}

Float GroupedSampleStdDev(const TKorLWordVector& F, Float L, Float W) {
    return std::sqrt(GroupedSampleVariance(F, L, W));
}

Float GroupedPopulationStdDev(const TKorLWordVector& F, Float L, Float W) {
    return std::sqrt(GroupedPopulationVariance(F, L, W));
}

void GroupedSums(const TKorLWordVector& F, Float L, Float W, Float& SumFM, Float& SumFM2) {
    RequireNotEmpty(F);
    const Float first = SumOverClasses(F, L, W, [](Float f, Float m) { return f * m; });
    const Float second = SumOverClasses(F, L, W, [](Float f, Float m) { return f * (m * m); });
    SumFM = first;
    SumFM2 = second;
}

Float GetGroupedMeanDev(const TKorLWordVector& F, Float L, Float W, Float Mean) {
    RequireNotEmpty(F);
    const Int64 N = TotalCount(F);
    return SumOverClasses(F, L, W, [&](Float f, Float m) { return std::fabs(m - Mean) * f; }) /
           Float(N);
}

Float GetGroupedSampleSkew(const TKorLWordVector& F, Float L, Float W, Float Mean, Float StdDev) {
    const Float N = CheckShape(F, StdDev, 3, Kornum_RS_Math::rsVectorG2);
    const Float s = StdDev;
    return UnweightedDeviationSum(F, L, W, Mean, 3) / (s * s * N * s);
}

Float GetGroupedPopulationSkew(const TKorLWordVector& F, Float L, Float W, Float Mean,
                               Float StdDev) {
    const Float N = CheckShape(F, StdDev, 3, Kornum_RS_Math::rsVectorG2);
    const Float s = StdDev;
    return N * UnweightedDeviationSum(F, L, W, Mean, 3) / (s * s * ((N - 1) * (N - 2)) * s);
}

Float GetGroupedSampleKurtosis(const TKorLWordVector& F, Float L, Float W, Float Mean,
                               Float StdDev) {
    const Float N = CheckShape(F, StdDev, 4, Kornum_RS_Math::rsVectorG3);
    const Float s4 = (StdDev * StdDev) * (StdDev * StdDev);
    return UnweightedDeviationSum(F, L, W, Mean, 4) / (s4 * N) - 3;
}

Float GetGroupedPopulationKurtosis(const TKorLWordVector& F, Float L, Float W, Float Mean,
                                   Float StdDev) {
    const Float N = CheckShape(F, StdDev, 4, Kornum_RS_Math::rsVectorG3);
    const Float s4 = (StdDev * StdDev) * (StdDev * StdDev);
    const Float S4 = UnweightedDeviationSum(F, L, W, Mean, 4);
    return N * (N + 1) * S4 / (s4 * (N - 1) * (N - 2) * (N - 3)) -
           3 * (N - 1) * (N - 1) / ((N - 2) * (N - 3));
}

}  // namespace KornumStatistics
