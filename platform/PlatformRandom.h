/// @file
/// The platform's global uniform generator: xoshiro256** (Blackman and Vigna), seeded
/// through splitmix64. One seed gives one stream on every compiler and machine. At load
/// it holds a fixed seed (`Platform::DefaultRandSeed`), so runs are reproducible unless
/// the application seeds it. The generator is not safe to use from several threads at
/// once; a `Platform::TRandomStream` is the same generator with state of its own, for a
/// caller that needs independent or thread-confined streams.
#pragma once

#include <kornum/KornumExport.h>
#include <cstdint>

KORNUM_EXPORT_BEGIN
namespace Platform {

/// Seeds the global generator: the same seed always gives the same stream.
void RandSeed(std::uint64_t Seed) noexcept;
/// Seeds the global generator from the system's entropy source (`std::random_device`).
void Randomize();
/// The next value of the global generator, k / 2^64 for a uniform 64-bit k: a long
/// double on [0, 1) with all 64 significand bits random. Not safe to call from several
/// threads at once.
long double Random() noexcept;
/// The next raw 64 bits of the global generator.
std::uint64_t RandomBits() noexcept;

/// The seed the generator holds at load.
inline constexpr std::uint64_t DefaultRandSeed = 0x6B6F726E756D2021ull;

/// A stream of the global generator's algorithm with state of its own: seeded with the
/// same seed, it gives value for value what `Random` and `RandomBits` give after
/// `RandSeed`. One stream is safe to use from one thread at a time; two streams never
/// share state.
class TRandomStream {
public:
    /// A stream seeded with `Seed`.
    constexpr explicit TRandomStream(std::uint64_t Seed = DefaultRandSeed) noexcept { this->Seed(Seed); }

    /// Starts the stream again from `Seed`.
    constexpr void Seed(std::uint64_t Seed) noexcept {
        // splitmix64 spreads one 64-bit seed over the four words of state.
        for (std::uint64_t& word : state_) {
            std::uint64_t z = (Seed += 0x9E3779B97F4A7C15ull);
            z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
            z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
            word = z ^ (z >> 31);
        }
    }

    /// The next raw 64 bits.
    std::uint64_t Bits() noexcept {
        std::uint64_t* s = state_;
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

    /// The next value k / 2^64 on [0, 1), exact in the 64-bit significand.
    long double Random() noexcept {
        // The integer is loaded as a signed one offset by 2^63 and the offset added back
        // (exact too): an unsigned conversion would branch on the top bit, a coin toss
        // the processor mispredicts.
        const auto offset = static_cast<std::int64_t>(Bits() ^ 0x8000000000000000ull);
        return (static_cast<long double>(offset) + 0x1p63L) * 0x1p-64L;
    }

private:
    static constexpr std::uint64_t Rotl(std::uint64_t x, int k) noexcept { return (x << k) | (x >> (64 - k)); }

    std::uint64_t state_[4]{};
};

}  // namespace Platform
KORNUM_EXPORT_END
