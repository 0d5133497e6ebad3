#include <kornum/SampleMoments.h>

#include "statistics/detail/ShapeFromSums.hpp"
#include "statistics/detail/StatisticsChecks.hpp"

#include <kornum/KornumVector.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/Platform.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace KornumStatistics {

static_assert(std::numeric_limits<Float>::digits == 64, "Float must be the 80-bit extended type");

namespace {

using namespace Kornumglobals;
using Platform::Raise;
namespace RS = Kornum_RS_Math;

// ---- Narrow squares of the one-pass integer members ---------------------------------
// The one-pass routines of the integer members square in 32-bit integer arithmetic and
// keep only the low 32 bits of the product. Formed in unsigned arithmetic so the wrap is
// defined; the signed reading is the two's-complement value of the kept bits.
inline std::uint32_t Low32(std::uint64_t x) noexcept { return std::uint32_t(x); }
inline std::uint32_t Square32Unsigned(std::uint32_t x) noexcept { return x * x; }
inline std::int32_t Square32Signed(std::uint32_t bits) noexcept {
    return std::int32_t(bits * bits);
}
// 64-bit integer sums wrap, like the integer SumVector.
inline Int64 WrappingAdd(Int64 a, Int64 b) noexcept {
    return Int64(std::uint64_t(a) + std::uint64_t(b));
}

// ---- How each member accumulates the one-pass sums ----------------------------------
// Sum and SumSq are the accumulator types of S (sum) and Q (sum of squares);
// SquareOfSum is the S*S of the formula (Q - S*S/n) / d.
template <class T>
struct FloatingOnePass {
    using Sum = Float;
    using SumSq = Float;
    static Float AddToSum(Float s, T x) noexcept { return s + Float(x); }
    static Float AddToSumSq(Float q, T x) noexcept {
        const Float v = Float(x);
        return q + v * v;
    }
    static Float SquareOfSum(Float s) noexcept { return s * s; }
};

// Default: Float, Double and Single, everything in Float.
template <class T, bool Sample>
struct OnePassRule : FloatingOnePass<T> {};

// LongWord: S in Float; the square is the low 32 bits of x*x, read unsigned.
template <bool Sample>
struct OnePassRule<LongWord, Sample> : FloatingOnePass<LongWord> {
    static Float AddToSumSq(Float q, LongWord x) noexcept { return q + Float(Square32Unsigned(x)); }
};

// LongInt: S in Float; the square is the low 32 bits of x*x, read signed.
template <bool Sample>
struct OnePassRule<LongInt, Sample> : FloatingOnePass<LongInt> {
    static Float AddToSumSq(Float q, LongInt x) noexcept {
        return q + Float(Square32Signed(std::uint32_t(x)));
    }
};

// Int64, population forms: S in Float from the full 64-bit values; the square is that
// of the element's low 32 bits, kept to 32 bits and read signed.
template <>
struct OnePassRule<Int64, false> : FloatingOnePass<Int64> {
    static Float AddToSumSq(Float q, Int64 x) noexcept {
        return q + Float(Square32Signed(Low32(std::uint64_t(x))));
    }
};

// Int64, sample forms: S is an exact (wrapping) Int64 sum and Q an Int64 sum of the
// sign-extended 32-bit squares of the low halves; S*S is itself the signed 32-bit
// square of the low 32 bits of S.
template <>
struct OnePassRule<Int64, true> {
    using Sum = Int64;
    using SumSq = Int64;
    static Int64 AddToSum(Int64 s, Int64 x) noexcept { return WrappingAdd(s, x); }
    static Int64 AddToSumSq(Int64 q, Int64 x) noexcept {
        return WrappingAdd(q, Square32Signed(Low32(std::uint64_t(x))));
    }
    static Float SquareOfSum(Int64 s) noexcept {
        return Float(Square32Signed(Low32(std::uint64_t(s))));
    }
};

// ---- What the two-pass variance hands to SumSqDiffVector ----------------------------
// The Float and integer members pass the Float mean; the Double and Single members of
// SumSqDiffVector take a value of their own element type, so the mean is rounded to it.
template <class T> struct DeviationValue { using Type = Float; };
template <> struct DeviationValue<Double> { using Type = Double; };
template <> struct DeviationValue<Single> { using Type = Single; };

using detail::RequireNotEmpty;

template <class V>
void RequireMoreThanOne(const V& X) {
    RequireNotEmpty(X);
    if (X.High() == 0) Raise(RS::rsVectorG1);
}

template <class V>
Float Mean(const V& X) {
    RequireNotEmpty(X);
    // Floating members sum in Float; integer members sum exactly in Int64.
    return Float(KornumVector::SumVector(X)) / Float(X.Length());
}

// The sum of squared deviations from the mean; the caller has checked the length.
template <class V>
Float SquaredDeviations(const V& X) {
    using Value = typename DeviationValue<typename V::value_type>::Type;
    const Float m = Mean(X);
    return Float(KornumVector::SumSqDiffVector(X, Value(m)));
}

template <class V>
Float SampleVarianceOf(const V& X) {
    RequireMoreThanOne(X);
    return SquaredDeviations(X) / Float(X.High());
}

template <class V>
Float PopulationVarianceOf(const V& X) {
    RequireNotEmpty(X);
    return SquaredDeviations(X) / Float(X.Length());
}

// The one-pass spread and mean; Root takes the square root of the spread.
template <bool Sample, bool Root, class V>
void OnePassSpreadAndMean(const V& X, Float& Spread, Float& MeanOut) {
    using Rule = OnePassRule<typename V::value_type, Sample>;
    if constexpr (Sample) {
        RequireMoreThanOne(X);
    } else {
        RequireNotEmpty(X);
    }
    typename Rule::Sum s{};
    typename Rule::SumSq q{};
    for (const auto& element : X) {
        s = Rule::AddToSum(s, element);
        q = Rule::AddToSumSq(q, element);
    }
    const Float n = Float(X.Length());
    const Float d = Sample ? Float(X.High()) : n;
    const Float spread = (Float(q) - Rule::SquareOfSum(s) / n) / d;
    Spread = Root ? std::sqrt(spread) : spread;
    MeanOut = Float(s) / n;
}

}  // namespace

// ---- Typed members ------------------------------------------------------------------
// Each vector type gets the same nine members, forwarding to the templates above.
#define KORNUM_MOMENT_MEMBERS(Vector)                                                          \
    Float KorMean(const Vector& X) { return Mean(X); }                                         \
    Float SampleVariance(const Vector& X) { return SampleVarianceOf(X); }                      \
    Float PopulationVariance(const Vector& X) { return PopulationVarianceOf(X); }              \
    Float SampleStdDev(const Vector& X) { return std::sqrt(SampleVarianceOf(X)); }             \
    Float PopulationStdDev(const Vector& X) { return std::sqrt(PopulationVarianceOf(X)); }     \
    void SampleVarianceAndMean(const Vector& X, Float& Variance, Float& Mean) {                \
        OnePassSpreadAndMean<true, false>(X, Variance, Mean);                                  \
    }                                                                                          \
    void PopulationVarianceAndMean(const Vector& X, Float& Variance, Float& Mean) {            \
        OnePassSpreadAndMean<false, false>(X, Variance, Mean);                                 \
    }                                                                                          \
    void SampleStdDevAndMean(const Vector& X, Float& StdDev, Float& Mean) {                    \
        OnePassSpreadAndMean<true, true>(X, StdDev, Mean);                                     \
    }                                                                                          \
    void PopulationStdDevAndMean(const Vector& X, Float& StdDev, Float& Mean) {                \
        OnePassSpreadAndMean<false, true>(X, StdDev, Mean);                                    \
    }

KORNUM_MOMENT_MEMBERS(TKorFloatVector)
KORNUM_MOMENT_MEMBERS(TKorDoubleVector)
KORNUM_MOMENT_MEMBERS(TKorSingleVector)
KORNUM_MOMENT_MEMBERS(TKorInt64Vector)
KORNUM_MOMENT_MEMBERS(TKorLWordVector)
KORNUM_MOMENT_MEMBERS(TKorLIntVector)

#undef KORNUM_MOMENT_MEMBERS

// ---- Other means --------------------------------------------------------------------

namespace {
void RequireAllPositive(const TKorFloatVector& X) {
    RequireNotEmpty(X);
    if (!KornumVector::VectorPositive(X)) Raise(RS::rsVectorNotPos);
}
}  // namespace

Float GeometricMean(const TKorFloatVector& X) {
    RequireAllPositive(X);
    Float product = 1.0L;  // formed directly, not through logarithms
    for (const Float x : X) product *= x;
    return Kornummath::XtoY(product, 1.0L / Float(X.Length()));
}

Float HarmonicMean(const TKorFloatVector& X) {
    RequireAllPositive(X);
    Float reciprocals = 0;
    for (const Float x : X) reciprocals += 1.0L / x;
    return Float(X.Length()) / reciprocals;
}

Float RootMeanSquare(const TKorFloatVector& X) {
    RequireNotEmpty(X);
    return std::sqrt(KornumVector::SumSqVector(X));
}

Float MeanDeviation(const TKorFloatVector& X, Float Mean) {
    if (X.High() == -1) return 0;  // an empty sample has no deviation; nothing is raised
    Float sum = 0;
    for (const Float x : X) sum += std::fabs(x - Mean);
    return sum / Float(X.Length());
}

void Standardise(TKorFloatVector& X, Float Mean, Float StdDev, Float NewMean, Float NewStdDev) {
    RequireNotEmpty(X);
    if (StdDev == 0.0L) Raise(RS::rsStdDev);  // exact: a tiny spread is still accepted
    for (auto& element : X) {
        element = (Float(element) - Mean) / StdDev;
        element = Float(element) * NewStdDev + NewMean;
    }
}

// ---- Skewness and kurtosis ----------------------------------------------------------

namespace {
// Minimum size (Needed values, else Short) and a spread that is not zero within the
// base tolerance; the population forms demand the same sizes as the sample forms.
void RequireShapeArguments(const TKorFloatVector& X, Float StdDev, int Needed,
                           const Platform::ResourceString& Short) {
    RequireNotEmpty(X);
    if (X.Length() < Needed) Raise(Short);
    if (Kornummath::FloatIsZero(StdDev)) Raise(RS::rsStdDev);
}

Float SumCubedDeviations(const TKorFloatVector& X, Float Mean) {
    Float sum = 0;
    for (const Float x : X) {
        const Float d = x - Mean;
        sum += d * d * d;
    }
    return sum;
}

Float SumFourthPowerDeviations(const TKorFloatVector& X, Float Mean) {
    Float sum = 0;
    for (const Float x : X) {
        const Float d = x - Mean;
        sum += (d * d) * (d * d);
    }
    return sum;
}
}  // namespace

namespace detail {

Float SampleSkewFromSum(Integer N, Float SumCubes, Float StdDev) {
    const Float n = Float(N);
    const Float s = StdDev;
    return n * SumCubes / (s * s * ((n - 1) * (n - 2)) * s);
}

Float PopulationSkewFromSum(Integer N, Float SumCubes, Float StdDev) {
    const Float n = Float(N);
    const Float s = StdDev;
    return SumCubes / (s * s * n * s);
}

Float SampleKurtosisFromSum(Integer N, Float SumFourthPowers, Float StdDev) {
    const Float n = Float(N);
    const Float s4 = (StdDev * StdDev) * (StdDev * StdDev);
    return n * (n + 1) * SumFourthPowers / (s4 * ((n - 1) * (n - 2) * (n - 3))) -
           3 * (n - 1) * (n - 1) / ((n - 2) * (n - 3));
}

Float PopulationKurtosisFromSum(Integer N, Float SumFourthPowers, Float StdDev) {
    const Float n = Float(N);
    const Float s4 = (StdDev * StdDev) * (StdDev * StdDev);
    return SumFourthPowers / (s4 * n) - 3;
}

}  // namespace detail

Float GetSampleSkew(const TKorFloatVector& X, Float Mean, Float StdDev) {
    RequireShapeArguments(X, StdDev, 3, RS::rsVectorG2);
    return detail::SampleSkewFromSum(X.Length(), SumCubedDeviations(X, Mean), StdDev);
}

Float GetPopulationSkew(const TKorFloatVector& X, Float Mean, Float StdDev) {
    RequireShapeArguments(X, StdDev, 3, RS::rsVectorG2);
    return detail::PopulationSkewFromSum(X.Length(), SumCubedDeviations(X, Mean), StdDev);
}

Float GetSampleKurtosis(const TKorFloatVector& X, Float Mean, Float StdDev) {
    RequireShapeArguments(X, StdDev, 4, RS::rsVectorG3);
    return detail::SampleKurtosisFromSum(X.Length(), SumFourthPowerDeviations(X, Mean), StdDev);
}

Float GetPopulationKurtosis(const TKorFloatVector& X, Float Mean, Float StdDev) {
    RequireShapeArguments(X, StdDev, 4, RS::rsVectorG3);
    return detail::PopulationKurtosisFromSum(X.Length(), SumFourthPowerDeviations(X, Mean), StdDev);
}

}  // namespace KornumStatistics
