#include <kornum/PlatformRandom.h>

#include <random>

namespace Platform {
namespace {

// The state at load is computed when the library is built: no first-call guard on the
// path of every draw.
constinit TRandomStream generator{DefaultRandSeed};

}  // namespace

void RandSeed(std::uint64_t Seed) noexcept { generator.Seed(Seed); }

void Randomize() {
    std::random_device entropy;
    RandSeed(std::uint64_t(entropy()) << 32 | entropy());
}

std::uint64_t RandomBits() noexcept { return generator.Bits(); }

long double Random() noexcept { return generator.Random(); }

}  // namespace Platform
