#include <kornum/KornumSharded.h>

#include "sharded/detail/Histogram.hpp"
#include "sharded/detail/StoredValue.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <stdexcept>

namespace KornumSharded {

namespace {

__extension__ typedef unsigned __int128 u128;  // GCC's 128-bit integer

u128 Wide(TKorKey k) { return u128(k.High) << 64 | k.Low; }
TKorKey Narrowed(u128 w) { return {std::uint16_t(w >> 64), std::uint64_t(w)}; }

// The top Bits bits of the key, the rest zero.
TKorKey Truncated(TKorKey k, int bits) {
    if (bits == 0) return {};
    const u128 keep = ~u128(0) << (80 - bits);
    return Narrowed(Wide(k) & keep);
}

// The 16 key bits after the top Bits.
std::uint32_t NextBits(u128 key, int bits) { return std::uint32_t(key >> (64 - bits)) & 0xffff; }

}  // namespace

TKorKey KeyOf(Float X) noexcept { return detail::KeyOf(detail::StoredOf(X)); }

Float ValueOf(TKorKey K) noexcept {
    const u128 key = Wide(K);
    const u128 mask = (u128(1) << 80) - 1;
    const u128 bits = (key >> 79) ? key & ~(u128(1) << 79) : ~key & mask;
    unsigned char raw[16] = {};
    const std::uint64_t low = std::uint64_t(bits);
    const std::uint16_t high = std::uint16_t(bits >> 64);
    std::memcpy(raw, &low, 8);
    raw[8] = std::uint8_t(high);
    raw[9] = std::uint8_t(high >> 8);
    Float x = 0;
    std::memcpy(&x, raw, 10);
    return x;
}

namespace {

// Calls under(i, key, x) for each value x and each request i whose prefix its key starts
// with, in one pass over the values; each test is a mask and a compare, no shifts.
template <class E, class Under>
void ForEachUnderPrefix(std::span<const E> values, const std::vector<TKorPrefixRequest>& requests, Under under) {
    std::vector<u128> prefixes, masks;
    for (const TKorPrefixRequest& r : requests) {
        prefixes.push_back(Wide(Truncated(r.Prefix, r.Bits)));
        masks.push_back(r.Bits == 0 ? 0 : ~u128(0) << (80 - r.Bits));
    }
    for (const E& x : values) {
        const u128 key = detail::WideKeyOf(detail::StoredOf(x));
        for (std::size_t i = 0; i < requests.size(); ++i)
            if ((key & masks[i]) == prefixes[i]) under(i, key, x);
    }
}

}  // namespace

namespace {

template <class E>
std::vector<TKorHistogram> CountPrefixes(std::span<const E> Values, const std::vector<TKorPrefixRequest>& Requests) {
    std::vector<std::vector<std::uint64_t>> dense(Requests.size(), std::vector<std::uint64_t>(1 << 16));
    ForEachUnderPrefix(Values, Requests,
                       [&](std::size_t i, u128 key, const E&) { ++dense[i][NextBits(key, Requests[i].Bits)]; });
    std::vector<TKorHistogram> result(Requests.size());
    for (std::size_t i = 0; i < Requests.size(); ++i)
        for (std::uint32_t b = 0; b < dense[i].size(); ++b)
            if (dense[i][b]) result[i].push_back({b, dense[i][b]});
    return result;
}

}  // namespace

std::vector<TKorHistogram> PrefixCounts(std::span<const Float> Values, const std::vector<TKorPrefixRequest>& Requests) {
    return CountPrefixes(Values, Requests);
}
std::vector<TKorHistogram> PrefixCounts(std::span<const double> Values, const std::vector<TKorPrefixRequest>& Requests) {
    return CountPrefixes(Values, Requests);
}

void MergeCounts(std::vector<TKorHistogram>& Into, const std::vector<TKorHistogram>& From) {
    if (Into.empty()) Into.resize(From.size());
    for (std::size_t i = 0; i < From.size(); ++i) detail::AddHistogram(Into[i], From[i]);
}

namespace {

template <class E>
std::vector<std::vector<Float>> Collect(std::span<const E> Values, const std::vector<TKorPrefixRequest>& Prefixes) {
    std::vector<std::vector<Float>> result(Prefixes.size());
    ForEachUnderPrefix(Values, Prefixes, [&](std::size_t i, u128, const E& x) { result[i].push_back(detail::FloatOf(x)); });
    return result;
}

}  // namespace

std::vector<std::vector<Float>> CollectPrefixes(std::span<const Float> Values,
                                                const std::vector<TKorPrefixRequest>& Prefixes) {
    return Collect(Values, Prefixes);
}
std::vector<std::vector<Float>> CollectPrefixes(std::span<const double> Values,
                                                const std::vector<TKorPrefixRequest>& Prefixes) {
    return Collect(Values, Prefixes);
}

std::vector<TKorKey> RangeBounds(const TKorHistogram& TopCounts,
                                 const std::vector<std::pair<std::uint32_t, TKorHistogram>>& Finer, int Parts) {
    // The buckets in key order, each as its first key and its count.
    std::vector<std::pair<TKorKey, std::uint64_t>> buckets;
    for (const auto& [top, count] : TopCounts) {
        // A plain copy for the lambda: clang 14 cannot capture a structured binding.
        const auto bucket = top;
        const auto finer = std::find_if(Finer.begin(), Finer.end(), [&](const auto& f) { return f.first == bucket; });
        if (finer == Finer.end()) {
            buckets.push_back({{std::uint16_t(top), 0}, count});
            continue;
        }
        for (const auto& [next, subcount] : finer->second)
            buckets.push_back({{std::uint16_t(top), std::uint64_t(next) << 48}, subcount});
    }
    std::uint64_t total = 0;
    for (const auto& bucket : buckets) total += bucket.second;
    std::vector<TKorKey> bounds;
    std::uint64_t seen = 0;
    for (const auto& [key, count] : buckets) {
        // A new range starts at a bucket once the ranges so far hold their share.
        if (seen > 0 && int(bounds.size()) + 1 < Parts && u128(seen) * Parts >= u128(total) * (bounds.size() + 1))
            bounds.push_back(key);
        seen += count;
    }
    return bounds;
}

namespace {

// Each value's range first, then the parts filled at their final sizes: no part grows
// by reallocation, which would copy most values several times.
template <class E>
std::vector<std::vector<Float>> SplitRanges(std::span<const E> Values, const std::vector<TKorKey>& Bounds) {
    std::vector<std::uint32_t> rangeOf(Values.size());
    std::vector<std::size_t> sizes(Bounds.size() + 1);
    for (std::size_t i = 0; i < Values.size(); ++i) {
        const TKorKey key = detail::KeyOf(detail::StoredOf(Values[i]));
        rangeOf[i] = std::uint32_t(std::upper_bound(Bounds.begin(), Bounds.end(), key) - Bounds.begin());
        ++sizes[rangeOf[i]];
    }
    std::vector<std::vector<Float>> parts(Bounds.size() + 1);
    for (std::size_t j = 0; j < parts.size(); ++j) parts[j].reserve(sizes[j]);
    for (std::size_t i = 0; i < Values.size(); ++i) parts[rangeOf[i]].push_back(detail::FloatOf(Values[i]));
    return parts;
}

}  // namespace

std::vector<std::vector<Float>> SplitByRange(std::span<const Float> Values, const std::vector<TKorKey>& Bounds) {
    return SplitRanges(Values, Bounds);
}
std::vector<std::vector<Float>> SplitByRange(std::span<const double> Values, const std::vector<TKorKey>& Bounds) {
    return SplitRanges(Values, Bounds);
}

// ---- Selection by key prefixes ---------------------------------------------------------

TKorRankSelection::TKorRankSelection(Int64 N, std::vector<Int64> Ranks, Int64 GatherLimit)
    : gatherLimit_(std::max<Int64>(GatherLimit, 1)) {
    for (const Int64 rank : Ranks) open_.push_back({rank, {}, N});
}

bool TKorRankSelection::Done() const noexcept {
    return std::all_of(open_.begin(), open_.end(), [](const Open& o) { return o.Found; });
}

bool TKorRankSelection::Gathering() const noexcept {
    return !Done() && std::all_of(open_.begin(), open_.end(),
                                  [&](const Open& o) { return o.Found || o.Count <= gatherLimit_; });
}

namespace {
template <class Keep>
std::vector<TKorPrefixRequest> Distinct(const auto& open, Keep keep) {
    std::vector<TKorPrefixRequest> requests;
    for (const auto& o : open) {
        if (!keep(o)) continue;
        const bool known = std::any_of(requests.begin(), requests.end(), [&](const TKorPrefixRequest& r) {
            return r.Bits == o.At.Bits && r.Prefix == o.At.Prefix;
        });
        if (!known) requests.push_back(o.At);
    }
    return requests;
}
}  // namespace

std::vector<TKorPrefixRequest> TKorRankSelection::Requests() const {
    return Distinct(open_, [&](const Open& o) { return !o.Found && o.Count > gatherLimit_; });
}

void TKorRankSelection::Narrow(const std::vector<TKorHistogram>& Counts) {
    const std::vector<TKorPrefixRequest> requests = Requests();
    for (Open& o : open_) {
        if (o.Found || o.Count <= gatherLimit_) continue;
        const std::size_t i = std::size_t(std::find_if(requests.begin(), requests.end(), [&](const TKorPrefixRequest& r) {
                                              return r.Bits == o.At.Bits && r.Prefix == o.At.Prefix;
                                          }) - requests.begin());
        Int64 below = 0;
        for (const auto& [bucket, count] : Counts.at(i)) {
            if (o.Rank < below + Int64(count)) {
                o.Rank -= below;
                o.Count = Int64(count);
                const u128 key = Wide(o.At.Prefix) | u128(bucket) << (64 - o.At.Bits);
                o.At = {Narrowed(key), o.At.Bits + 16};
                break;
            }
            below += Int64(count);
        }
        if (o.At.Bits == 80) {  // every value under a full key is the same value
            o.Found = true;
            o.Value = ValueOf(o.At.Prefix);
        }
    }
}

bool TKorRankSelection::NarrowWith(const TKorFirstCounts& Counts) {
    if (Done() || Gathering()) return false;
    std::vector<TKorHistogram> answers;
    for (const TKorPrefixRequest& r : Requests()) {
        if (r.Bits == 0) {
            answers.push_back(Counts.Top);
            continue;
        }
        const TKorHistogram* finer = r.Bits == 16 ? Counts.CompleteFiner(r.Prefix.High) : nullptr;
        if (!finer) return false;
        answers.push_back(*finer);
    }
    Narrow(answers);
    return true;
}

std::vector<TKorPrefixRequest> TKorRankSelection::GatherPrefixes() const {
    return Distinct(open_, [](const Open& o) { return !o.Found; });
}

void TKorRankSelection::Gathered(std::vector<std::vector<Float>> Values) {
    const std::vector<TKorPrefixRequest> prefixes = GatherPrefixes();
    for (Open& o : open_) {
        if (o.Found) continue;
        const std::size_t i = std::size_t(std::find_if(prefixes.begin(), prefixes.end(), [&](const TKorPrefixRequest& r) {
                                              return r.Bits == o.At.Bits && r.Prefix == o.At.Prefix;
                                          }) - prefixes.begin());
        // Selection in the list, in key order: each rank on its own, whatever the order
        // the others left the list in.
        std::vector<Float>& list = Values.at(i);
        if (o.Rank < 0 || std::size_t(o.Rank) >= list.size()) throw std::out_of_range("gathered values too few for a rank");
        std::nth_element(list.begin(), list.begin() + o.Rank, list.end(),
                         [](const Float& a, const Float& b) { return KeyOf(a) < KeyOf(b); });
        o.Value = list[std::size_t(o.Rank)];
        o.Found = true;
    }
}

std::vector<Float> TKorRankSelection::Values() const {
    std::vector<Float> values;
    for (const Open& o : open_) values.push_back(o.Value);
    return values;
}

}  // namespace KornumSharded
