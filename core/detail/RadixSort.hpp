// A most-significant-digit-first radix sort of unsigned integer keys (64 or 128 bits),
// the sort of the sorted copies of the report and of the passes over shards: it looks
// only at the bits in which keys differ, so keys that share their high bits, or runs of
// equal keys, cost few passes, and buckets small enough for the cache are finished there.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include <kornum/KorVector.h>

namespace Kornumglobals::detail {

__extension__ typedef unsigned __int128 UInt128;  // GCC's 128-bit integer

// The position of the highest set bit of x (not 0).
inline int HighestBit(std::uint64_t x) { return 63 - std::countl_zero(x); }
inline int HighestBit(UInt128 x) {
    const std::uint64_t high = std::uint64_t(x >> 64);
    return high != 0 ? 64 + HighestBit(high) : HighestBit(std::uint64_t(x));
}

template <class K>
void RadixSort(K* data, K* scratch, std::size_t n, bool toScratch);

// One step of a most-significant-digit-first radix sort of unsigned integer keys, which
// moves the keys between the data and a scratch area of the same size: the keys are
// counted by their digit of `bits` bits (at most 8) at `shift` and scattered into their
// buckets in the other area, and each bucket is then sorted by RadixSort, the two areas
// changing roles. The sorted keys end in `data` or, with `toScratch`, in `scratch`.
template <class K>
void ScatterByDigit(K* data, K* scratch, std::size_t n, int shift, int bits, bool toScratch) {
    const std::size_t buckets = std::size_t(1) << bits, mask = buckets - 1;
    std::array<std::size_t, 256> count;
    std::fill_n(count.begin(), buckets, 0);
    for (std::size_t i = 0; i < n; ++i) ++count[std::size_t(data[i] >> shift) & mask];
    std::array<std::size_t, 256> next;
    std::size_t sum = 0;
    for (std::size_t b = 0; b < buckets; ++b) {
        next[b] = sum;
        sum += count[b];
    }
    for (std::size_t i = 0; i < n; ++i) scratch[next[std::size_t(data[i] >> shift) & mask]++] = data[i];
    std::size_t start = 0;
    for (std::size_t b = 0; b < buckets; ++b) {
        if (count[b] != 0) RadixSort(scratch + start, data + start, count[b], !toScratch);
        start += count[b];
    }
}

// Sorts the keys at `data` into `data` or, with `toScratch`, into `scratch`: small
// groups by insertion, larger ones by ScatterByDigit on the highest bits in which they
// differ, found with one pass over them (so that a run of equal keys costs one pass and
// no digit is counted for nothing). The digit has 8 bits, or fewer for a group of under
// 4096 keys: enough for buckets of about 16, no more counters than keys.
template <class K>
void RadixSort(K* data, K* scratch, std::size_t n, bool toScratch) {
    constexpr std::size_t Small = 16;
    if (n > Small) {
        K any = 0, all = ~K(0);
        for (std::size_t i = 0; i < n; ++i) {
            any |= data[i];
            all &= data[i];
        }
        if (any != all) {
            const int bits = std::min(int(std::bit_width(n >> 2)), 8);
            return ScatterByDigit(data, scratch, n, std::max(HighestBit(any ^ all) + 1 - bits, 0), bits, toScratch);
        }
    } else {
        for (std::size_t i = 1; i < n; ++i) {
            const K x = data[i];
            std::size_t j = i;
            for (; j > 0 && x < data[j - 1]; --j) data[j] = data[j - 1];
            data[j] = x;
        }
    }
    if (toScratch) std::copy(data, data + n, scratch);
}

// Scatters the keys of several pieces into `out` (room for all of them) by their digit of
// up to 10 bits below the highest bit in which they differ, about one bucket for every
// 8192 keys, and returns the buckets' sizes in order: none for no keys, one for keys that
// are all equal. The pieces are never copied together first.
template <class K>
std::vector<std::size_t> ScatterPieces(const std::vector<std::span<const K>>& pieces, K* out) {
    std::size_t n = 0;
    K any = 0, all = ~K(0);
    for (const auto& piece : pieces) {
        for (const K k : piece) {
            any |= k;
            all &= k;
        }
        n += piece.size();
    }
    if (n == 0) return {};
    if (any == all) {
        std::fill_n(out, n, any);
        return {n};
    }
    const int bits = std::clamp(int(std::bit_width(n >> 13)), 1, 10);
    const int shift = std::max(HighestBit(any ^ all) + 1 - bits, 0);
    const std::size_t mask = (std::size_t(1) << bits) - 1;
    std::vector<std::size_t> count(mask + 1, 0), next(mask + 1);
    for (const auto& piece : pieces)
        for (const K k : piece) ++count[std::size_t(k >> shift) & mask];
    std::size_t sum = 0;
    for (std::size_t b = 0; b <= mask; ++b) {
        next[b] = sum;
        sum += count[b];
    }
    for (const auto& piece : pieces)
        for (const K k : piece) out[next[std::size_t(k >> shift) & mask]++] = k;
    return count;
}

// Hands the keys of several pieces to `visit(const K* keys, std::size_t n)` in ascending
// order, a sorted bucket at a time. The first digit scatters them into `data` (room for
// all of them) in buckets of about 8192 keys; each bucket is then sorted in a scratch area
// that stays in the cache, by a digit wide enough to leave a key or none a group for
// insertion. Only one area as large as the keys is needed, and it is written once.
template <class K, class Visit>
void VisitSortedPieces(const std::vector<std::span<const K>>& pieces, K* data, Visit&& visit) {
    std::vector<K> scratch;
    std::vector<std::uint32_t> inner;
    std::size_t start = 0;
    for (const std::size_t m : ScatterPieces(pieces, data)) {
        K* const keys = data + start;
        start += m;
        if (m < 2) {
            if (m) visit(static_cast<const K*>(keys), m);
            continue;
        }
        K bucketAny = 0, bucketAll = ~K(0);
        for (std::size_t i = 0; i < m; ++i) {
            bucketAny |= keys[i];
            bucketAll &= keys[i];
        }
        if (bucketAny == bucketAll) {
            visit(static_cast<const K*>(keys), m);
            continue;
        }
        const int innerBits = std::clamp(int(std::bit_width(m)), 1, 13);
        const int innerShift = std::max(HighestBit(bucketAny ^ bucketAll) + 1 - innerBits, 0);
        const std::size_t innerMask = (std::size_t(1) << innerBits) - 1;
        if (scratch.size() < m) scratch.resize(m);
        inner.assign(innerMask + 2, 0);
        for (std::size_t i = 0; i < m; ++i) ++inner[(std::size_t(keys[i] >> innerShift) & innerMask) + 1];
        for (std::size_t d = 1; d <= innerMask + 1; ++d) inner[d] += inner[d - 1];
        for (std::size_t i = 0; i < m; ++i) scratch[inner[std::size_t(keys[i] >> innerShift) & innerMask]++] = keys[i];
        // inner[d] is now the end of group d, and the start of group d + 1.
        for (std::size_t d = 0, from = 0; d <= innerMask; from = inner[d++]) {
            const std::size_t size = inner[d] - from;
            K* const group = scratch.data() + from;
            if (size == 2) {
                const K low = std::min(group[0], group[1]), high = std::max(group[0], group[1]);
                group[0] = low;
                group[1] = high;
            } else if (size > 2) {
                RadixSort(group, keys + from, size, false);
            }
        }
        visit(static_cast<const K*>(scratch.data()), m);
    }
}

// Uninitialised room for n keys, in the vectors' storage (huge pages for a large one).
template <class K>
class KeyBuffer {
public:
    explicit KeyBuffer(std::size_t n)
        : bytes_(sizeof(K) * n), keys_(static_cast<K*>(Kornumglobals::AllocateVectorStorage(bytes_, alignof(K)))) {}
    ~KeyBuffer() { Kornumglobals::FreeVectorStorage(keys_, bytes_, alignof(K)); }
    KeyBuffer(const KeyBuffer&) = delete;
    KeyBuffer& operator=(const KeyBuffer&) = delete;
    K* get() const noexcept { return keys_; }

private:
    std::size_t bytes_;
    K* keys_;
};

}  // namespace Kornumglobals::detail
