// The counting of TKorFirstCounts inside the summary's pass: a dense counter of the top
// 16 key bits, and one of the next 16 bits for each top bucket chosen beforehand from a
// sample of the first values.
#pragma once

#include <kornum/KornumSharded.h>

#include "sharded/detail/StoredValue.hpp"

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

namespace KornumSharded::detail {

class FirstCounter {
public:
    // The finer buckets: those that hold an eighth or more of the first values (at most 8).
    template <class E>
    explicit FirstCounter(std::span<const E> values) : top_(Buckets, 0), finerOf_(Buckets, -1) {
        constexpr std::size_t Sample = 4096;
        const std::span<const E> first = values.first(std::min(values.size(), Sample));
        std::vector<std::uint32_t> seen;
        for (const E& x : first) seen.push_back(std::uint32_t(WideKeyOf(StoredOf(x)) >> 64));
        std::sort(seen.begin(), seen.end());
        for (std::size_t i = 0; i < seen.size();) {
            std::size_t j = i;
            while (j < seen.size() && seen[j] == seen[i]) ++j;
            if (8 * (j - i) >= seen.size()) {
                finerOf_[seen[i]] = std::int8_t(finer_.size());
                finer_.emplace_back(seen[i], std::vector<std::uint64_t>(Buckets, 0));
            }
            i = j;
        }
        for (auto& [bucket, dense] : finer_) finerCounts_.push_back(dense.data());
    }
    FirstCounter(const FirstCounter&) = delete;  // finerCounts_ points into finer_
    FirstCounter& operator=(const FirstCounter&) = delete;
    [[gnu::always_inline]] void Count(UInt128 key) noexcept {
        const std::size_t top = std::size_t(key >> 64);
        ++top_[top];
        if (const std::int8_t finer = finerOf_[top]; finer >= 0) ++finerCounts_[finer][std::size_t(key >> 48) & 0xffff];
    }
    // The counts as histograms, added to Counts.
    void AddTo(TKorFirstCounts& counts) const {
        TKorFirstCounts mine;
        mine.Top = Sparse(top_);
        for (const auto& [bucket, dense] : finer_) mine.Finer.emplace_back(bucket, Sparse(dense));
        counts.Merge(mine);
    }

private:
    static constexpr std::size_t Buckets = std::size_t(1) << 16;
    static TKorHistogram Sparse(const std::vector<std::uint64_t>& dense) {
        TKorHistogram histogram;
        for (std::uint32_t b = 0; b < dense.size(); ++b)
            if (dense[b]) histogram.push_back({b, dense[b]});
        return histogram;
    }
    std::vector<std::uint64_t> top_;
    std::vector<std::int8_t> finerOf_;
    std::vector<std::pair<std::uint32_t, std::vector<std::uint64_t>>> finer_;  // ascending buckets
    std::vector<std::uint64_t*> finerCounts_;                                  // their counters
};

}  // namespace KornumSharded::detail
