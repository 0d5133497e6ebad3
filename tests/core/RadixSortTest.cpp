// The streaming sort of pieces: the keys reach the visitor in ascending order, bucket
// after bucket, whatever their spread (runs of equal keys, keys crowded into a few
// buckets, keys that differ only in their low bits, and pieces of every size).
#include "core/detail/RadixSort.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <random>
#include <span>
#include <vector>

namespace {

std::vector<std::uint64_t> VisitedInOrder(const std::vector<std::vector<std::uint64_t>>& pieces) {
    std::vector<std::span<const std::uint64_t>> spans(pieces.begin(), pieces.end());
    std::size_t total = 0;
    for (const auto& piece : pieces) total += piece.size();
    std::vector<std::uint64_t> room(total), visited;
    Kornumglobals::detail::VisitSortedPieces(spans, room.data(), [&](const std::uint64_t* keys, std::size_t n) {
        visited.insert(visited.end(), keys, keys + n);
    });
    return visited;
}

TEST(VisitSortedPieces, HandsOverEveryKeyInAscendingOrder) {
    std::mt19937_64 rng(5);
    const auto uniform = [&] { return rng(); };
    const auto crowded = [&] { return (std::uint64_t(1) << 40) + (rng() % 50000) * (rng() % 3 == 0 ? 1 : 977); };
    const auto lowBits = [&] { return ~std::uint64_t(0) - rng() % 300; };
    const auto twoValues = [&] { return rng() % 2 ? std::uint64_t(7) : std::uint64_t(9); };
    const std::vector<std::function<std::uint64_t()>> spreads = {uniform, crowded, lowBits, twoValues};
    for (const auto& spread : spreads)
        for (const std::size_t size : {std::size_t(0), std::size_t(1), std::size_t(3), std::size_t(5000),
                                       std::size_t(300000)}) {
            std::vector<std::vector<std::uint64_t>> pieces(4);
            std::vector<std::uint64_t> all;
            for (std::size_t i = 0; i < size; ++i) {
                const std::uint64_t k = spread();
                pieces[rng() % (size > 100 ? 4 : 2)].push_back(k);  // some pieces stay empty
                all.push_back(k);
            }
            std::sort(all.begin(), all.end());
            EXPECT_EQ(VisitedInOrder(pieces), all) << size;
        }
    // All keys equal: one bucket.
    EXPECT_EQ(VisitedInOrder({{4, 4}, {4}}), (std::vector<std::uint64_t>{4, 4, 4}));
}

}  // namespace
