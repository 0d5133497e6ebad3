// TEMPORARY placeholder until the special functions land.
#include <kornum/Kornummath.h>
#include <cmath>
namespace Kornummath {
Float Gamma(Float X) { return std::tgamma(X); }
Float LnGamma(Float X) { return std::lgamma(X); }
Float Beta(Float A, Float B) { return std::exp(std::lgamma(A) + std::lgamma(B) - std::lgamma(A + B)); }
Float IncompleteBeta(Float, Float, Float) { return 0; }
Float InverseIncompleteBeta(Float, Float, Float) { return 0; }
}
