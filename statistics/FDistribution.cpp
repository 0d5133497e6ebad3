#include <kornum/FDistribution.h>

#include <kornum/Kornummath.h>

#include "core/detail/BaseLibraryInterface.hpp"
#include "statistics/detail/DistributionSupport.hpp"

#include <cmath>

namespace KornumStatistics {

namespace {

using namespace detail;  // the distribution sources' shared checks and pieces

void RequireF(Float x, Integer n1, Integer n2, const Platform::ResourceString& negative, bool zeroAllowed) {
    Require(zeroAllowed ? x >= 0 : x > 0, negative);
    RequireDegrees(n1);
    RequireDegrees(n2);
}

// Each tail is its own incomplete beta, which takes the small side directly and the large
// one as 1 minus its mirror; the arguments are formed from the exact product N1 X and
// passed on in two Floats, so that neither argument's rounding shows in the result
// (x^(N1 / 2) would magnify the rounding of one Float by N1 / 2).
Float FDistTail(Float X, Integer N1, Integer N2, bool upper) {
    // F(1, 1) is the square of a Cauchy variate: (2 / pi) atan(sqrt(X)) below X.
    if (N1 == 1 && N2 == 1) return 2 * InversePi * std::atan(upper ? 1 / std::sqrt(X) : std::sqrt(X));
    const TwoFloat a = special::TwoProduct(N1, X);
    if (!std::isfinite(a.hi)) return upper ? 0 : 1;
    const Float b = N2;
    const TwoFloat sum = special::TwoSum(b, a.hi) + TwoFloat{a.lo, 0};
    return upper ? special::IncompleteBeta(TwoFloat{b, 0} / sum, b / 2, Float(N1) / 2)
                 : special::IncompleteBeta(a / sum, Float(N1) / 2, b / 2);
}

// The quantile from the beta quantile y = n1 x / (n1 x + n2) and its complement
// n2 / (n1 x + n2), both to full relative precision: x = n2 y / (n1 (1 - y)).
Float FQuantile(Float p, Integer N1, Integer N2, bool upper) {
    const Float n1 = N1, n2 = N2;
    const special::BetaQuantile y = special::InverseIncompleteBeta(p, n1 / 2, n2 / 2, upper);
    return n2 * y.x / (n1 * y.complement);
}

}  // namespace

Float FDistLess(Float X, Integer N1, Integer N2) {
    RequireF(X, N1, N2, Kornum_RS_Math::rsValueGZero, false);
    return FDistTail(X, N1, N2, false);
}

Float FDistGreater(Float X, Integer N1, Integer N2) {
    RequireF(X, N1, N2, Kornum_RS_Math::rsValueGZero, false);
    return FDistTail(X, N1, N2, true);
}

// The beta density at y = n1 x / (n1 x + n2) times dy/dx; y and 1 - y = n2 / (n1 x + n2)
// are formed in two Floats from the exact product n1 x.
Float FDistPDF(Float X, Integer N1, Integer N2) {
    RequireF(X, N1, N2, Kornum_RS_Math::rsValueGEZero, true);
    if (std::isinf(X)) return 0;
    const Float n1 = N1, n2 = N2;
    if (X == 0) return N1 == 2 ? 1 : N1 < 2 ? Infinity : 0;
    const TwoFloat a = special::TwoProduct(n1, X);
    if (!std::isfinite(a.hi)) return 0;
    const TwoFloat sum = special::TwoSum(a.hi, n2) + TwoFloat{a.lo, 0};
    const TwoFloat y = a / sum, complement = TwoFloat{n2, 0} / sum;
    // dy/dx = (1 - y) n1 / (n1 x + n2), multiplied in this order so that no partial product
    // leaves the range of Float where the density itself does not.
    return special::BetaDensity(y, complement, n1 / 2, n2 / 2) * complement.hi * (n1 / sum.hi);
}

Float InvFDistLess(Float P, Integer N1, Integer N2) {
    RequireProbability(P);
    RequireDegrees(N1);
    RequireDegrees(N2);
    Require(P != 1, Kornum_RS_Math::rsInvalidValue);
    if (P == 0) return 0;
    return FQuantile(P, N1, N2, false);
}

Float InvFDistGreater(Float Q, Integer N1, Integer N2) {
    RequireProbability(Q);
    RequireDegrees(N1);
    RequireDegrees(N2);
    Require(Q != 0, Kornum_RS_Math::rsInvalidValue);
    if (Q == 1) return 0;
    return FQuantile(Q, N1, N2, true);
}

}  // namespace KornumStatistics
