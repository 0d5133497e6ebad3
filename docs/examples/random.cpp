// Seeds the global generator, draws variates from two generators, and plugs in a uniform
// source of the program's own.
#include <kornum/KornumRandom.h>
#include <kornum/PlatformExceptions.h>
#include <kornum/PlatformRandom.h>

#include <cstdint>
#include <cstdio>

using Kornumglobals::Float;

namespace {

// A uniform source of this program: a 64-bit linear congruential generator whose top 53
// bits become a value on [0, 1). Any `Float (*)()` will do.
std::uint64_t lcgState = 20240601;
Float MyUniform() {
    lcgState = lcgState * 6364136223846793005ull + 1442695040888963407ull;
    return Float(lcgState >> 11) / Float(1ull << 53);
}

// A source that always returns one half.
Float Half() { return 0.5L; }

}  // namespace

int main() {
    // One seed, one stream: the same variates on every machine.
    Platform::RandSeed(42);
    std::printf("normal:  ");
    for (int i = 0; i < 4; ++i) std::printf(" %8.5Lf", KornumRandom::Random_Normal());
    std::printf("\nPoisson: ");
    const Float mu = 4.5L;
    for (int i = 0; i < 4; ++i) std::printf(" %8lld", static_cast<long long>(KornumRandom::Random_Poisson(mu)));

    // Seeding again repeats the stream.
    Platform::RandSeed(42);
    const Float first = KornumRandom::Random_Normal();
    std::printf("\nreseeded, first normal again: %8.5Lf\n", first);

    // The same generators over the program's own source: sample means of 100000 gamma
    // variates of shape 2.5 (mean 2.5) and Student t variates with 5 degrees of freedom
    // (mean 0).
    const int n = 100000;
    Float gammaSum = 0, tSum = 0;
    for (int i = 0; i < n; ++i) {
        gammaSum += KornumRandom::Random_Gamma(2.5L, MyUniform);
        tSum += KornumRandom::Random_T(5, MyUniform);
    }
    std::printf("mean of %d gamma(2.5) variates: %.3Lf\n", n, gammaSum / n);
    std::printf("mean of %d t(5) variates:       %.3Lf\n", n, tSum / n);

    // A constant source of 0.5 is accepted at once by the normal generator: v = 0, so 0.
    std::printf("normal from a constant 0.5:    %.1Lf\n", KornumRandom::Random_Normal(Half));

    // Bad arguments raise before any uniform is drawn.
    try {
        KornumRandom::Random_Gamma(0);
    } catch (const Platform::EMathError& e) {
        std::printf("Random_Gamma(0) raised: %s\n", e.what());
    }
    return 0;
}
