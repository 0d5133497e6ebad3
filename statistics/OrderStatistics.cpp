#include <kornum/OrderStatistics.h>

#include "statistics/detail/StatisticsChecks.hpp"

#include <kornum/KornumVector.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/Platform.h>
#include <kornum/SampleMoments.h>

#include <cmath>
#include <cstdint>
#include <cstring>

namespace KornumStatistics {

namespace {

using namespace Kornumglobals;
using Platform::Raise;
namespace RS = Kornum_RS_Math;

using detail::RequireNotEmpty;

template <class V>
Float Median(const V& X) {
    RequireNotEmpty(X);
    const std::int32_t n = X.Length();
    if (n == 1) return Float(X[0]);
    if (n % 2 == 1) return Float(X[n / 2]);
    return (Float(X[n / 2 - 1]) + Float(X[n / 2])) / 2.0L;
}

// The interpolated value at 1-based position P = n*q + 0.5: K = Trunc(P) is the lower
// neighbour's position, Frac(P) the weight of the step to the next value. Positions
// past the last element give the last element; a position below the first (K = 0,
// which deciles of two to four values reach) gives the first.
Float ValueAtPosition(const TKorFloatVector& X, Float P) {
    const Float truncated = std::trunc(P);
    const Float fraction = P - truncated;
    const std::int64_t k = std::int64_t(truncated);
    if (k <= 0) return X[0];
    if (k >= X.Length()) return X[X.High()];
    const Float below = X[std::int32_t(k - 1)];
    const Float above = X[std::int32_t(k)];
    return (above - below) * fraction + below;
}

// How the two trimmed means read Alpha: the value that means "the median", the upper
// end of the accepted range, and how many values go at each end.
struct EachEndTrim {  // Alpha is the fraction dropped at each end
    static constexpr Float MedianAlpha = 0.5L;
    static std::int64_t PerEnd(std::int32_t n, Float Alpha) {
        return std::int64_t(std::trunc(Float(n) * Alpha));
    }
};
struct TotalTrim {  // Alpha is the total fraction dropped, halved (rounding down)
    static constexpr Float MedianAlpha = 1.0L;
    static std::int64_t PerEnd(std::int32_t n, Float Alpha) {
        return std::int64_t(std::trunc(Float(n) * Alpha)) / 2;
    }
};

template <class Trim, class V>
Float Trimmed(const V& X, Float Alpha) {
    if (Kornummath::FloatIsZero(Alpha)) return KorMean(X);
    if (Kornummath::SameFloat(Alpha, Trim::MedianAlpha)) return GetMedian(X);
    // Exact range test (a tiny negative Alpha has already taken the mean above); written
    // so that a NaN Alpha is out of range too.
    if (!(Alpha >= 0.0L && Alpha <= Trim::MedianAlpha)) Raise(RS::rsInvalidValue);
    RequireNotEmpty(X);
    const std::int32_t n = X.Length();
    if (n == 1) return Float(X[0]);
    const std::int64_t k = Trim::PerEnd(n, Alpha);
    if (n <= 2 * k) return 0;
    Float sum = 0;
    for (std::int64_t i = k; i <= n - 1 - k; ++i) sum += Float(X[std::int32_t(i)]);
    return sum / Float(n - 2 * k);
}

}  // namespace

// ---- Median -------------------------------------------------------------------------

Float GetMedian(const TKorFloatVector& X) { return Median(X); }
Float GetMedian(const TKorDoubleVector& X) { return Median(X); }
Float GetMedian(const TKorSingleVector& X) { return Median(X); }
Float GetMedian(const TKorInt64Vector& X) { return Median(X); }
Float GetMedian(const TKorLIntVector& X) { return Median(X); }
Float GetMedian(const TKorLWordVector& X) { return Median(X); }

// ---- Quartiles and deciles ----------------------------------------------------------

void GetQuartiles(const TKorFloatVector& X, Float& Q1, Float& Q3) {
    RequireNotEmpty(X);
    const std::int32_t n = X.Length();
    if (n == 1) {
        Q1 = X[0];
        Q3 = X[0];
        return;
    }
    Q1 = ValueAtPosition(X, Float(n) / 4.0L + 0.5L);
    Q3 = ValueAtPosition(X, Float(std::int64_t(3) * n) / 4.0L + 0.5L);
}

TKorDeciles GetDeciles(const TKorFloatVector& X) {
    RequireNotEmpty(X);
    TKorDeciles deciles;
    const std::int32_t n = X.Length();
    for (int i = 1; i <= 9; ++i) {
        deciles[i] = n == 1 ? Float(X[0])
                            : ValueAtPosition(X, Float(std::int64_t(n) * i) / 10.0L + 0.5L);
    }
    return deciles;
}

// ---- Mode and most frequent values --------------------------------------------------
// Both walk the runs of SameFloat-equal neighbours; a run of one is never a candidate.

namespace {

// Walks the runs of neighbours that are the SameFloat in sorted X. Each run of more than
// one element that ends inside the vector is judged against the longest so far: as long
// gives onTie(value), longer gives onLonger(value) and becomes the longest (best). The
// final run is left to the caller, whose rules for it differ; its length is returned.
//
// Neighbours with the same bytes are the same value unless they are NaNs; that test,
// on the bytes as integers, spares the Float comparison for the repeats that make up
// most of the data whose mode is asked for.
bool SameBytesNotNaN(const PackedFloat& a, const PackedFloat& b) noexcept {
    std::uint64_t significandA, significandB;
    std::uint16_t signAndExponentA, signAndExponentB;
    std::memcpy(&significandA, a.Bytes, 8);
    std::memcpy(&significandB, b.Bytes, 8);
    std::memcpy(&signAndExponentA, a.Bytes + 8, 2);
    std::memcpy(&signAndExponentB, b.Bytes + 8, 2);
    return significandA == significandB && signAndExponentA == signAndExponentB &&
           ((signAndExponentA & 0x7FFF) != 0x7FFF || (significandA << 1) == 0);
}

template <class OnTie, class OnLonger>
std::int32_t WalkRuns(const TKorFloatVector& X, std::int32_t& best, OnTie onTie, OnLonger onLonger) {
    std::int32_t run = 1;
    best = 0;
    for (std::int32_t i = 1; i < X.Length(); ++i) {
        if (SameBytesNotNaN(X[i], X[i - 1]) || Kornummath::SameFloat(Float(X[i]), Float(X[i - 1]))) {
            ++run;
            continue;
        }
        if (run != 1) {
            if (run == best) {
                onTie(Float(X[i - 1]));
            } else if (run > best) {
                onLonger(Float(X[i - 1]));
                best = run;
            }
        }
        run = 1;
    }
    return run;
}

}  // namespace

Boolean GetMode(const TKorFloatVector& X, Float& Mode) {
    RequireNotEmpty(X);
    const std::int32_t n = X.Length();
    if (n == 1) {
        Mode = X[0];
        return true;
    }
    Float mode = KorNoMode;
    bool tied = false;
    std::int32_t best;
    const std::int32_t run = WalkRuns(
        X, best, [&](Float) { tied = true; },
        [&](Float value) {
            mode = value;
            tied = false;
        });
    // The final run.
    if (best < 1) {
        if (run > 1) {
            best = run;
            mode = X[n - 1];
            tied = false;
        }
    } else if (run == best) {
        tied = true;
    } else if (run > best) {
        mode = X[n - 1];
        tied = false;
    }
    Mode = mode;
    return best >= 1 && !tied;
}

TKorFloatVector GetMostFrequent(const TKorFloatVector& X) {
    RequireNotEmpty(X);
    TKorFloatVector result;
    const std::int32_t n = X.Length();
    if (n == 1) {
        KornumVector::AppendValue2Vector(result, Float(X[0]));
        return result;
    }
    const auto startWith = [&result](Float value) {
        result.SetLength(0);
        KornumVector::AppendValue2Vector(result, value);
    };
    std::int32_t best;
    const std::int32_t run = WalkRuns(
        X, best, [&result](Float value) { KornumVector::AppendValue2Vector(result, value); },
        startWith);
    // The final run.
    if (best > 0) {
        if (run == best) {
            KornumVector::AppendValue2Vector(result, Float(X[n - 1]));
        } else if (run > best) {
            startWith(X[n - 1]);
        }
    } else if (run >= 2) {
        // Only the final run repeats: the result is the vector's first element, not the
        // repeated value. Existing callers depend on this, so it is kept.
        startWith(X[0]);
    }
    return result;
}

// ---- Trimmed means ------------------------------------------------------------------

Float TrimmedMean(const TKorFloatVector& X, Float Alpha) { return Trimmed<EachEndTrim>(X, Alpha); }
Float TrimmedMean(const TKorDoubleVector& X, Float Alpha) { return Trimmed<EachEndTrim>(X, Alpha); }
Float TrimmedMean(const TKorSingleVector& X, Float Alpha) { return Trimmed<EachEndTrim>(X, Alpha); }
Float TrimmedMean(const TKorInt64Vector& X, Float Alpha) { return Trimmed<EachEndTrim>(X, Alpha); }
Float TrimmedMean(const TKorLIntVector& X, Float Alpha) { return Trimmed<EachEndTrim>(X, Alpha); }
Float TrimmedMean(const TKorLWordVector& X, Float Alpha) { return Trimmed<EachEndTrim>(X, Alpha); }

Float ExcelTrimmedMean(const TKorFloatVector& X, Float Alpha) { return Trimmed<TotalTrim>(X, Alpha); }
Float ExcelTrimmedMean(const TKorDoubleVector& X, Float Alpha) { return Trimmed<TotalTrim>(X, Alpha); }
Float ExcelTrimmedMean(const TKorSingleVector& X, Float Alpha) { return Trimmed<TotalTrim>(X, Alpha); }
Float ExcelTrimmedMean(const TKorInt64Vector& X, Float Alpha) { return Trimmed<TotalTrim>(X, Alpha); }
Float ExcelTrimmedMean(const TKorLIntVector& X, Float Alpha) { return Trimmed<TotalTrim>(X, Alpha); }
Float ExcelTrimmedMean(const TKorLWordVector& X, Float Alpha) { return Trimmed<TotalTrim>(X, Alpha); }

}  // namespace KornumStatistics
