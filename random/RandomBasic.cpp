// The default uniform source, the normal and exponential generators, and Cauchy.
#include "random/detail/RandomRules.hpp"

#include <kornum/PlatformRandom.h>

namespace KornumRandom {

using namespace detail;

Float DefaultRandom() { return Platform::Random(); }

// Leva's ratio of uniforms with its quadratic bounds; the logarithm is taken only
// between the two bounds.
Float Random_Normal(TKorUniformFunc RandomGen) {
    Float u, v;
    for (;;) {
        u = RandomGen();
        v = RandomGen();
        v = 1.7156L * (v - 0.5L);
        const Float x = u - 0.449871L;
        const Float y = fabs(v) - (-0.386595L);
        const Float q = x * x + y * (0.196L * y - 0.25472L * x);
        if (q < 0.27597L) break;
        if (q > 0.27846L) continue;
        if (v * v < -4 * log(u) * u * u) break;
    }
    Require(!(u < KorVSmall), Kornum_RS_Math::rsDivideByZero);
    return v / u;
}

Float Random_Exponential(TKorUniformFunc RandomGen) {
    Float r;
    do {
        r = RandomGen();
    } while (!(r > KorVSmall));
    return -log(r);
}

Float Random_Cauchy(TKorUniformFunc RandomGen) {
    for (;;) {
        Float a = RandomGen();
        Float b = RandomGen();
        a = 2 * (a - 0.5L);
        b = 2 * (b - 0.5L);
        if (fabs(b) < KorVSmall) continue;
        if (a * a + b * b < 1) return a / b;
    }
}

KORNUM_FROM_DEFAULT_RANDOM(Float, Random_Normal, (), (DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Float, Random_Exponential, (), (DefaultRandom))
KORNUM_FROM_DEFAULT_RANDOM(Float, Random_Cauchy, (), (DefaultRandom))

}  // namespace KornumRandom
