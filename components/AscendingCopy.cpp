#include "components/detail/AscendingCopy.hpp"
#include "core/detail/RadixSort.hpp"

#include <kornum/KorVector.h>
#include <kornum/KornumVector.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

namespace KornumDescStats::detail {
namespace {

using Kornumglobals::Integer;
using Kornumglobals::PackedFloat;
using Kornumglobals::TKorFloatVector;
using Kornumglobals::detail::KeyBuffer;
using Kornumglobals::detail::RadixSort;

// A canonical, non-NaN Float as a 79-bit unsigned integer whose order is the numeric
// order: the exponent (15 bits) above the fraction (63 bits; the integer bit is left
// out, since for a canonical value it is 1 exactly when the exponent is not 0), with
// the sign bit on top set for positive values and every bit inverted for negative ones.
// +0 and -0 get different keys, next to each other. Held as two halves: `high` has
// key bits 64 to 78, `low` bits 0 to 63. The encoding is one to one, so a value is
// rebuilt from its key byte for byte.
struct Key {
    std::uint64_t low;
    std::uint64_t high;
};

// The sort key of values that differ in more than 64 bits (those spanning many
// binades or both signs).
__extension__ typedef unsigned __int128 Wide;

constexpr std::uint64_t FractionMask = ~std::uint64_t(0) >> 1;

Key KeyOf(const PackedFloat& x) {
    std::uint64_t significand;
    std::uint16_t signAndExponent;
    std::memcpy(&significand, x.Bytes, 8);
    std::memcpy(&signAndExponent, x.Bytes + 8, 2);
    const std::uint64_t exponent = signAndExponent & 0x7FFF;
    const std::uint64_t low = (significand & FractionMask) | (exponent << 63);
    const std::uint64_t high = exponent >> 1;
    if (signAndExponent & 0x8000) return {~low, ~high & 0x3FFF};
    return {low, high | 0x4000};
}

void StoreKey(PackedFloat& x, Key key) {
    const bool positive = (key.high & 0x4000) != 0;
    if (!positive) {
        key.low = ~key.low;
        key.high = ~key.high;
    }
    const std::uint64_t exponent = ((key.high & 0x3FFF) << 1) | (key.low >> 63);
    const std::uint64_t significand = (key.low & FractionMask) | (std::uint64_t(exponent != 0) << 63);
    const std::uint16_t signAndExponent = std::uint16_t(exponent | (positive ? 0 : 0x8000));
    std::memcpy(x.Bytes, &significand, 8);
    std::memcpy(x.Bytes + 8, &signAndExponent, 2);
}

// The bits set in some key and those set in every key of V. A bit in the first and not
// the second varies; the bits above the highest varying one are the same in every key,
// so only the bits from that one down take part in the sort.
struct KeySpread {
    Key any{0, 0};
    Key all{~std::uint64_t(0), 0x7FFF};
};

// One pass over V: whether the radix sort gives what QSortVector gives (no NaN, no
// non-canonical encoding, not both zeros), and the spread of the keys.
bool SortsUniquely(const TKorFloatVector& V, KeySpread& spread) {
    bool unordered = false, positiveZero = false, negativeZero = false;
    Key any = spread.any, all = spread.all;
    for (const PackedFloat& x : V) {
        std::uint64_t significand;
        std::uint16_t signAndExponent;
        std::memcpy(&significand, x.Bytes, 8);
        std::memcpy(&signAndExponent, x.Bytes + 8, 2);
        const unsigned exponent = signAndExponent & 0x7FFF;
        const bool integerBit = (significand >> 63) != 0;
        unordered |= exponent == 0x7FFF && (significand << 1) != 0;  // NaN
        unordered |= (exponent == 0) == integerBit;                   // non-canonical
        const bool zero = exponent == 0 && significand == 0;
        positiveZero |= zero && !(signAndExponent & 0x8000);
        negativeZero |= zero && (signAndExponent & 0x8000);
        const Key key = KeyOf(x);
        any.low |= key.low;
        any.high |= key.high;
        all.low &= key.low;
        all.high &= key.high;
    }
    spread = {any, all};
    return !unordered && !(positiveZero && negativeZero);
}

// The number of key bits from the highest that differs between two keys down; 0 when
// all the keys are the same.
int WidthOf(const KeySpread& spread) {
    const std::uint64_t high = spread.any.high ^ spread.all.high, low = spread.any.low ^ spread.all.low;
    return high != 0 ? 128 - std::countl_zero(high) : 64 - std::countl_zero(low);
}

KeySpread SpreadOf(const PackedFloat* values, std::size_t n) {
    KeySpread spread;
    for (std::size_t i = 0; i < n; ++i) {
        const Key key = KeyOf(values[i]);
        spread.any.low |= key.low;
        spread.any.high |= key.high;
        spread.all.low &= key.low;
        spread.all.high &= key.high;
    }
    return spread;
}

// The key of x as K: its differing bits (`width` of them, at most the bits of K) at the
// top of K. With 64 or fewer the high half is shared, and the key is the low one.
template <class K>
K KeyAsInteger(const PackedFloat& x, int width) {
    constexpr int Bits = int(sizeof(K) * 8);
    const Key key = KeyOf(x);
    if constexpr (Bits == 64)
        return key.low << (Bits - width);
    else
        return (Wide(key.high) << 64 | key.low) << (Bits - width);
}

// Sorts the n values at `values` in place by their keys as K (KeyAsInteger), with room
// for n keys at `keys` and at `scratch`: the keys are sorted and written back as the
// values they stand for, the shared bits above coming back from `spread`.
template <class K>
void SortByKeys(PackedFloat* values, std::size_t n, const KeySpread& spread, int width, K* keys, K* scratch) {
    constexpr int Bits = int(sizeof(K) * 8);
    for (std::size_t i = 0; i < n; ++i) keys[i] = KeyAsInteger<K>(values[i], width);
    RadixSort(keys, scratch, n, false);
    const int up = Bits - width;
    const K shared = K(Wide(spread.all.high) << 64 | spread.all.low) & ~(~K(0) >> up);
    for (std::size_t i = 0; i < n; ++i) {
        const K key = shared | keys[i] >> up;
        if constexpr (Bits == 64)
            StoreKey(values[i], {key, spread.all.high});
        else
            StoreKey(values[i], {std::uint64_t(key), std::uint64_t(key >> 64)});
    }
}

// Room for up to `size` keys of each kind, taken when first needed.
class KeyBuffers {
public:
    explicit KeyBuffers(std::size_t size) : size_(size) {}
    template <class K>
    std::pair<K*, K*> Get() {
        auto& pair = Pair(static_cast<K*>(nullptr));
        if (!pair[0]) {
            pair[0].emplace(size_);
            pair[1].emplace(size_);
        }
        return {pair[0]->get(), pair[1]->get()};
    }

private:
    std::size_t size_;
    std::array<std::optional<KeyBuffer<std::uint64_t>>, 2> narrow_;
    std::array<std::optional<KeyBuffer<Wide>>, 2> wide_;
    auto& Pair(std::uint64_t*) { return narrow_; }
    auto& Pair(Wide*) { return wide_; }
};

// Sorts V into `sorted`, its keys differing in `width` bits (the spread of its keys in
// `spread`). The values are first scattered into `sorted` as they are, by the first
// digit of their keys; then each bucket is sorted by SortByKeys, with 64-bit keys when
// its own values differ in no more bits, in buffers as large as the largest bucket. So
// the keys of all the values are never held at once, and a bucket that takes most of
// the values (as next to a far outlier) mostly needs only the narrow keys.
template <class K>
void SortValues(const TKorFloatVector& V, const KeySpread& spread, int width, PackedFloat* sorted) {
    constexpr int Bits = int(sizeof(K) * 8);
    const std::size_t n = std::size_t(V.Length());
    const PackedFloat* values = V.data();
    // The first digit is wider, up to 12 bits for a million values, so that the buckets
    // are a few thousand values at most (in cache for their own sorts) unless the values
    // crowd together. Of many values whose keys differ in more than 64 bits it is the
    // top 16 bits, sign and exponent when all 79 differ: values of both signs crowd
    // around a few exponents, and each bucket is then sorted by 64-bit keys.
    const int first = Bits > 64 && n >= 65536 ? 16 : std::clamp(int(std::bit_width(n)) - 8, 8, 12);
    const auto firstDigit = [width, first](const PackedFloat& x) {
        return std::size_t(KeyAsInteger<K>(x, width) >> (Bits - first));
    };
    std::vector<std::size_t> next(std::size_t(1) << first);
    for (std::size_t i = 0; i < n; ++i) ++next[firstDigit(values[i])];
    std::size_t sum = 0, largest = 0;
    for (std::size_t& bucket : next) {
        largest = std::max(largest, bucket);
        sum += std::exchange(bucket, sum);
    }
    for (std::size_t i = 0; i < n; ++i) sorted[next[firstDigit(values[i])]++] = values[i];

    // next[b] is now the end of bucket b.
    KeyBuffers buffers(largest);
    std::size_t start = 0;
    for (const std::size_t end : next) {
        PackedFloat* bucket = sorted + start;
        const std::size_t count = end - start;
        start = end;
        if (count < 2) continue;
        if constexpr (Bits == 64) {
            const auto [keys, scratch] = buffers.Get<std::uint64_t>();
            SortByKeys(bucket, count, spread, width, keys, scratch);
            continue;
        }
        const KeySpread own = SpreadOf(bucket, count);
        const int ownWidth = WidthOf(own);
        if (ownWidth == 0) continue;  // equal values: the same bytes
        if (ownWidth <= 64) {
            const auto [keys, scratch] = buffers.Get<std::uint64_t>();
            SortByKeys(bucket, count, own, ownWidth, keys, scratch);
        } else {
            const auto [keys, scratch] = buffers.Get<Wide>();
            SortByKeys(bucket, count, own, ownWidth, keys, scratch);
        }
    }
}

}  // namespace

TKorFloatVector AscendingCopy(const TKorFloatVector& V) {
    KeySpread spread;
    if (!SortsUniquely(V, spread)) {
        TKorFloatVector sorted = KornumVector::CopyVector(V);
        KornumVector::QSortVector(sorted, true);
        return sorted;
    }
    const int width = WidthOf(spread);
    if (width == 0) return KornumVector::CopyVector(V);  // no values, or all the same
    TKorFloatVector sorted;
    sorted.SetLength(V.Length());
    if (width <= 64)
        SortValues<std::uint64_t>(V, spread, width, sorted.data());
    else
        SortValues<Wide>(V, spread, width, sorted.data());
    return sorted;
}

}  // namespace KornumDescStats::detail
