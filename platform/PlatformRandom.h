/// @file
/// The platform's global uniform generator: xoshiro256** (Blackman and Vigna), seeded
/// through splitmix64. One seed gives one stream on every compiler and machine. At load
/// it holds a fixed seed (`Platform::DefaultRandSeed`), so runs are reproducible unless
/// the application seeds it. The generator is not safe to use from several threads at
/// once.
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

}  // namespace Platform
KORNUM_EXPORT_END
