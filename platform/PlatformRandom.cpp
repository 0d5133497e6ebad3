#include <kornum/PlatformRandom.h>

#include <random>

namespace Platform {
namespace {

struct Xoshiro256StarStar {
    std::uint64_t s[4];

    static constexpr std::uint64_t Rotl(std::uint64_t x, int k) noexcept { return (x << k) | (x >> (64 - k)); }

    constexpr void Seed(std::uint64_t seed) noexcept {
        // splitmix64 spreads one 64-bit seed over the four words of state.
        for (std::uint64_t& word : s) {
            std::uint64_t z = (seed += 0x9E3779B97F4A7C15ull);
            z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
            z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
            word = z ^ (z >> 31);
        }
    }

    std::uint64_t Next() noexcept {
        const std::uint64_t result = Rotl(s[1] * 5, 7) * 9;
        const std::uint64_t t = s[1] << 17;
        s[2] ^= s[0];
        s[3] ^= s[1];
        s[1] ^= s[2];
        s[0] ^= s[3];
        s[2] ^= t;
        s[3] = Rotl(s[3], 45);
        return result;
    }
};

// The state at load is computed when the library is built: no first-call guard on the
// path of every draw.
constexpr Xoshiro256StarStar Seeded(std::uint64_t seed) noexcept {
    Xoshiro256StarStar g{};
    g.Seed(seed);
    return g;
}
Xoshiro256StarStar generator = Seeded(DefaultRandSeed);

Xoshiro256StarStar& Generator() noexcept { return generator; }

}  // namespace

void RandSeed(std::uint64_t Seed) noexcept { Generator().Seed(Seed); }

void Randomize() {
    std::random_device entropy;
    RandSeed(std::uint64_t(entropy()) << 32 | entropy());
}

std::uint64_t RandomBits() noexcept { return Generator().Next(); }

// 2^-64 times a 64-bit integer: exact in the 64-bit significand. The integer is loaded
// as a signed one offset by 2^63 and the offset added back (exact too): an unsigned
// conversion would branch on the top bit, a coin toss the processor mispredicts.
long double Random() noexcept {
    const auto offset = static_cast<std::int64_t>(RandomBits() ^ 0x8000000000000000ull);
    return (static_cast<long double>(offset) + 0x1p63L) * 0x1p-64L;
}

}  // namespace Platform
