#include <kornum/DensityTables.h>

#include <kornum/BetaDistribution.h>
#include <kornum/ChiSquareDistribution.h>
#include <kornum/DiscreteDistributions.h>
#include <kornum/ExponentialDistribution.h>
#include <kornum/FDistribution.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/NormalDistributions.h>
#include <kornum/Platform.h>
#include <kornum/StudentTDistribution.h>

namespace KornumStatistics {
namespace {

using Platform::Require;

// N points from lo to hi and density(x) at each; the caller's vectors are set only when
// every point is done.
template <class Density>
void Table(Float lo, Float hi, Integer n, TKorFloatVector& X, TKorFloatVector& Y, Density density) {
    Require(n >= 2 && hi > lo, Kornum_RS_Math::rsInvalidValue);
    TKorFloatVector xs, ys;
    xs.SetLength(n);
    ys.SetLength(n);
    for (Integer i = 0; i < n; ++i) {
        const Float x = i == n - 1 ? hi : lo + (hi - lo) * Float(i) / Float(n - 1);
        xs[i] = x;
        ys[i] = density(x);
    }
    X = xs;
    Y = ys;
}

template <class Probability>
void DiscreteTable(Cardinal last, TKorFloatVector& X, TKorFloatVector& Y, Probability probability) {
    TKorFloatVector xs, ys;
    xs.SetLength(Integer(last) + 1);
    ys.SetLength(Integer(last) + 1);
    for (Cardinal k = 0; k <= last; ++k) {
        xs[Integer(k)] = Float(k);
        ys[Integer(k)] = probability(k);
    }
    X = xs;
    Y = ys;
}

}  // namespace

void NormalPDFValues(Float XLo, Float XHi, Integer N, Float Mean, Float StdDev, TKorFloatVector& X, TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return NormalPDF(x, Mean, StdDev); });
}
void LogNormalPDFValues(Float XLo, Float XHi, Integer N, Float Mean, Float StdDev, TKorFloatVector& X,
                        TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return LogNormalPDF(x, Mean, StdDev); });
}
void ChiSquarePDFValues(Float XLo, Float XHi, Integer N, Integer DF, TKorFloatVector& X, TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return ChiSquarePDF(x, DF); });
}
void StudentTPDFValues(Float XLo, Float XHi, Integer N, Integer DF, TKorFloatVector& X, TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return StudentTPDF(x, DF); });
}
void FDistPDFValues(Float XLo, Float XHi, Integer N, Integer N1, Integer N2, TKorFloatVector& X, TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return FDistPDF(x, N1, N2); });
}
void BetaPDFValues(Float XLo, Float XHi, Integer N, Float A, Float B, Float Lo, Float Hi, TKorFloatVector& X,
                   TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return BetaPDF(x, A, B, Lo, Hi); });
}
void ExponentialPDFValues(Float XLo, Float XHi, Integer N, Float Lambda, TKorFloatVector& X, TKorFloatVector& Y) {
    Table(XLo, XHi, N, X, Y, [=](Float x) { return ExponentialPDF(x, Lambda); });
}
void BinomialPDFValues(Cardinal N, Float P, TKorFloatVector& X, TKorFloatVector& Y) {
    BinomialEq(P, N, 0);  // the point routine's checks, before anything is written
    DiscreteTable(N, X, Y, [=](Cardinal k) { return BinomialEq(P, N, k); });
}
void PoissonPDFValues(Float Lambda, Cardinal KMax, TKorFloatVector& X, TKorFloatVector& Y) {
    PoissonEq(Lambda, 0);
    DiscreteTable(KMax, X, Y, [=](Cardinal k) { return PoissonEq(Lambda, k); });
}

}  // namespace KornumStatistics
