#include <kornum/Regression.h>

#include <kornum/KornumVector.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Platform.h>

namespace KornumStatistics {

namespace {
void RequireSameLength(const TKorFloatVector& X, const TKorFloatVector& Y) {
    if (X.Length() != Y.Length()) Platform::Raise(Kornum_RS_Math::rsSameDimensions);
}
}  // namespace

void GetRegressionLine(const TKorFloatVector& X, const TKorFloatVector& Y, Float& Intercept,
                       Float& Slope) {
    RequireSameLength(X, Y);
    // Empty vectors have zero sums (the vector aggregates refuse an empty vector), and
    // the divisions below then yield NaN.
    Float sx = 0, sy = 0, sxx = 0, sxy = 0;
    if (X.Length() > 0) {
        sx = KornumVector::SumVector(X);
        sy = KornumVector::SumVector(Y);
        sxx = KornumVector::SumSqVector(X);
        sxy = KornumVector::DotProdVectors(X, Y);
    }
    const Float n = Float(X.Length());
    const Float qxx = sxx - sx * sx / n;
    const Float qxy = sxy - sx * sy / n;
    Slope = qxy / qxx;
    Intercept = (sy - Slope * sx) / n;
}

Float GetSSE(const TKorFloatVector& X, const TKorFloatVector& Y, Float Intercept, Float Slope) {
    RequireSameLength(X, Y);
    Float sse = 0;
    for (Kornumglobals::Integer i = 0; i < X.Length(); ++i) {
        const Float fitted = Slope * Float(X[i]) + Intercept;
        const Float error = fitted - Float(Y[i]);
        sse += error * error;
    }
    return sse;
}

}  // namespace KornumStatistics
