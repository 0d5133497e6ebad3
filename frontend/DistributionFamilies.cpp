#include "frontend/DistributionFamilies.h"

#include <kornum/KornumStatistics.h>

#include <cmath>
#include <cstdint>
#include <cstring>

namespace KornumFrontend {

using namespace KornumStatistics;
using Kornumglobals::Cardinal;
using Kornumglobals::Integer;
using Kornumglobals::TKorFloatVector;

namespace {

// Truncated from the stored bits, without the FPU: a plain conversion changes the x87
// control word twice, which stalls the loads after it (a third of a binomial tail's
// time). Below 1 in magnitude it is 0; a negative value wraps as the conversion does.
std::uint64_t Truncated(const Float& x) {
    std::uint64_t m;
    std::uint16_t signExponent;
    std::memcpy(&m, &x, 8);
    std::memcpy(&signExponent, reinterpret_cast<const unsigned char*>(&x) + 8, 2);
    const int e = (signExponent & 0x7fff) - 16383;  // x = m 2^(e - 63)
    const std::uint64_t whole = e < 0 ? 0 : e > 63 ? m : m >> (63 - e);
    return signExponent & 0x8000 ? 0 - whole : whole;
}
Integer Whole(const Float& x) { return Integer(Truncated(x)); }
Cardinal Count(const Float& x) { return Cardinal(Truncated(x)); }
Float Lo(const Values& p) { return p.size() > 2 ? p[2] : 0; }  // the beta's bounds, [0, 1] by default
Float Hi(const Values& p) { return p.size() > 2 ? p[3] : 1; }



}  // namespace

void CheckTable(const Family& family, Float lo, Float hi, const Values& p) {
    if (family.checkTable) return family.checkTable(lo, hi, p);
    TKorFloatVector X, Y;
    family.table(lo, hi, 2, p, X, Y);
}

const std::map<std::string, Family>& Families() {
    using P = const Values&;
    using X = const Float&;
    using V = TKorFloatVector&;
    const Parameter mean{"mean", Kind::Real, "^m"}, sd{"standard deviation", Kind::Positive, "^s"},
        df{"degrees of freedom", Kind::Degrees, "^n"};
    static const std::map<std::string, Family> families{
        {"normal",
         {{mean, sd}, 0, false, [](X x, P p) { return NormalDistLower(p[0], p[1], x); },
          [](X x, P p) { return NormalDistUpper(p[0], p[1], x); },
          [](X x, P p) { return NormalPDF(x, p[0], p[1]); },
          // The parameters read after the call: read before it, they would be held in
          // memory across it.
          [](X q, P p) {
              const Float z = InvNormalLower(q);
              return p[0] + p[1] * z;
          },
          [](X q, P p) {
              const Float z = InvNormalUpper(q);
              return p[0] + p[1] * z;
          },
          nullptr, [](Float lo, Float hi, Integer n, P p, V X, V Y) { NormalPDFValues(lo, hi, n, p[0], p[1], X, Y); }, "Normal"}},
        {"lognormal",
         {{mean, sd}, 0, false, [](X x, P p) { return LogNormalLower(p[0], p[1], x); },
          [](X x, P p) { return LogNormalUpper(p[0], p[1], x); },
          // The normal density of ln x over x: the log-normal density's own check refuses
          // the positive x below its tolerance.
          [](X x, P p) { return x > 0 ? NormalPDF(std::log(x), p[0], p[1]) / x : LogNormalPDF(x, p[0], p[1]); },
          [](X q, P p) { return InvLogNormalLower(p[0], p[1], q); },
          [](X q, P p) { return InvLogNormalUpper(p[0], p[1], q); },
          nullptr, [](Float lo, Float hi, Integer n, P p, V X, V Y) { LogNormalPDFValues(lo, hi, n, p[0], p[1], X, Y); }, "Log-normal"}},
        {"chisq",
         {{df}, 0, false, [](X x, P p) { return ChiSquareLess(x, Whole(p[0])); },
          [](X x, P p) { return ChiSquareGreater(x, Whole(p[0])); },
          [](X x, P p) { return ChiSquarePDF(x, Whole(p[0])); },
          [](X q, P p) { return InvChiSquareLess(q, Whole(p[0])); },
          [](X q, P p) { return InvChiSquareGreater(q, Whole(p[0])); },
          nullptr, [](Float lo, Float hi, Integer n, P p, V X, V Y) { ChiSquarePDFValues(lo, hi, n, Whole(p[0]), X, Y); }, "Chi-square"}},
        {"t",
         {{df}, 0, false, [](X x, P p) { return StudentTLess(x, Whole(p[0])); },
          [](X x, P p) { return StudentTGreater(x, Whole(p[0])); },
          [](X x, P p) { return StudentTPDF(x, Whole(p[0])); },
          [](X q, P p) { return InvStudentTLess(q, Whole(p[0])); },
          [](X q, P p) { return InvStudentTGreater(q, Whole(p[0])); },
          nullptr, [](Float lo, Float hi, Integer n, P p, V X, V Y) { StudentTPDFValues(lo, hi, n, Whole(p[0]), X, Y); }, "Student t"}},
        {"f",
         {{{"numerator degrees of freedom", Kind::Degrees, "^n1"}, {"denominator degrees of freedom", Kind::Degrees, "^n2"}},
          0, false, [](X x, P p) { return FDistLess(x, Whole(p[0]), Whole(p[1])); },
          [](X x, P p) { return FDistGreater(x, Whole(p[0]), Whole(p[1])); },
          [](X x, P p) { return FDistPDF(x, Whole(p[0]), Whole(p[1])); },
          [](X q, P p) { return InvFDistLess(q, Whole(p[0]), Whole(p[1])); },
          [](X q, P p) { return InvFDistGreater(q, Whole(p[0]), Whole(p[1])); },
          nullptr, [](Float lo, Float hi, Integer n, P p, V X, V Y) { FDistPDFValues(lo, hi, n, Whole(p[0]), Whole(p[1]), X, Y); }, "F"}},
        {"beta",
         {{{"shape A", Kind::Positive, "^a"}, {"shape B", Kind::Positive, "^b"}, {"lower bound", Kind::Real, "low"},
           {"upper bound", Kind::Real, "high"}},
          2, false, [](X x, P p) { return BetaDistLess(x, p[0], p[1], Lo(p), Hi(p)); },
          [](X x, P p) { return BetaDistGreater(x, p[0], p[1], Lo(p), Hi(p)); },
          [](X x, P p) { return BetaPDF(x, p[0], p[1], Lo(p), Hi(p)); },
          [](X q, P p) { return InvBetaDistLess(q, p[0], p[1], Lo(p), Hi(p)); },
          [](X q, P p) { return InvBetaDistGreater(q, p[0], p[1], Lo(p), Hi(p)); },
          nullptr, [](Float lo, Float hi, Integer n, P p, V X, V Y) { BetaPDFValues(lo, hi, n, p[0], p[1], Lo(p), Hi(p), X, Y); }, "Beta"}},
        {"exponential",
         {{{"rate", Kind::Positive, "^l"}}, 0, false, [](X x, P p) { return ExponentialLess(x, p[0]); },
          [](X x, P p) { return ExponentialGreater(x, p[0]); }, [](X x, P p) { return ExponentialPDF(x, p[0]); },
          [](X q, P p) { return InvExponentialLess(q, p[0]); },
          [](X q, P p) { return InvExponentialGreater(q, p[0]); },
          nullptr, [](Float lo, Float hi, Integer n, P p, V X, V Y) { ExponentialPDFValues(lo, hi, n, p[0], X, Y); }, "Exponential"}},
        {"binomial",
         {{{"trials", Kind::Trials, "n"}, {"probability", Kind::Probability, "p"}}, 0, true,
          [](X k, P p) { return BinomialLower(p[1], Count(p[0]), Count(k)); },
          [](X k, P p) { return BinomialUpper(p[1], Count(p[0]), Count(k)); },
          [](X k, P p) { return BinomialPoint(p[1], Count(p[0]), Count(k)); },
          [](X a, P p) { return Float(InvBinomialLess(p[1], Count(p[0]), a)); },
          [](X a, P p) { return Float(InvBinomialGreater(p[1], Count(p[0]), a)); },
          [](Float, Float, P p) { BinomialEq(p[1], Count(p[0]), 0); },
          [](Float, Float, Integer, P p, V X, V Y) { BinomialPDFValues(Count(p[0]), p[1], X, Y); }, "Binomial"}},
        {"poisson",
         {{{"mean", Kind::Positive, "^l"}}, 0, true, [](X k, P p) { return PoissonLower(p[0], Count(k)); },
          [](X k, P p) { return PoissonUpper(p[0], Count(k)); },
          [](X k, P p) { return PoissonPoint(p[0], Count(k)); },
          [](X a, P p) { return Float(InvPoissonLess(p[0], a)); },
          [](X a, P p) { return Float(InvPoissonGreater(p[0], a)); },
          [](Float, Float, P p) { PoissonEq(p[0], 0); },
          [](Float, Float hi, Integer, P p, V X, V Y) { PoissonPDFValues(p[0], Count(hi), X, Y); }, "Poisson"}},
    };
    return families;
}


}  // namespace KornumFrontend
