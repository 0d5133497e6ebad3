#include <kornum/ExponentialDistribution.h>

#include <kornum/Kornum_RS_Math.h>
#include <kornum/Platform.h>

#include "statistics/detail/DistributionSupport.hpp"
#include "statistics/detail/NegativeExponential.hpp"

#include <cmath>

namespace KornumStatistics {
namespace {

using detail::ExpOfNegative;
using detail::OneMinusExpOfNegative;

void RequireRate(Float lambda) { Platform::Require(lambda > 0, Kornum_RS_Math::rsExpDistInvalid); }

}  // namespace

Float ExponentialLess(Float X, Float Lambda) {
    RequireRate(Lambda);
    return X < 0 ? 0 : OneMinusExpOfNegative(Lambda * X);
}

Float ExponentialGreater(Float X, Float Lambda) {
    RequireRate(Lambda);
    return X < 0 ? 1 : ExpOfNegative(Lambda * X);
}

Float ExponentialPDF(Float X, Float Lambda) {
    RequireRate(Lambda);
    return X < 0 ? 0 : Lambda * ExpOfNegative(Lambda * X);
}

Float InvExponentialLess(Float P, Float Lambda) {
    RequireRate(Lambda);
    detail::RequireProbability(P);
    return -std::log1p(-P) / Lambda;
}

Float InvExponentialGreater(Float Q, Float Lambda) {
    RequireRate(Lambda);
    detail::RequireProbability(Q);
    return Q == 1 ? 0 : -std::log(Q) / Lambda;
}

}  // namespace KornumStatistics
