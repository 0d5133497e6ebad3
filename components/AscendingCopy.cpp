#include "components/detail/AscendingCopy.hpp"

#include <kornum/KornumVector.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

namespace KornumDescStats::detail {
namespace {

using Kornumglobals::Integer;
using Kornumglobals::PackedFloat;
using Kornumglobals::TKorFloatVector;

// An 80-bit key whose unsigned order is the numeric order of a canonical, non-NaN
// Float: positive values get the top bit set, negative values have all bits inverted.
// A Float's order-preserving key, held in the 10 bytes of the element itself: the
// significand in bytes 0 to 7 and sign and exponent in bytes 8 and 9, as the value
// holds them, changed so that comparing the keys as unsigned 80-bit integers (byte 9
// most significant) orders the values. Negative values have every bit flipped, the
// others only the sign bit set.
struct Key {
    std::uint64_t low;   // significand
    std::uint16_t high;  // sign and exponent
};

Key Load(const PackedFloat& x) {
    Key key;
    std::memcpy(&key.low, x.Bytes, 8);
    std::memcpy(&key.high, x.Bytes + 8, 2);
    return key;
}
void Store(PackedFloat& x, const Key& key) {
    std::memcpy(x.Bytes, &key.low, 8);
    std::memcpy(x.Bytes + 8, &key.high, 2);
}

void ToKey(PackedFloat& x) {
    Key key = Load(x);
    if (key.high & 0x8000) {
        key.low = ~key.low;
        key.high = std::uint16_t(~key.high);
    } else {
        key.high |= 0x8000;
    }
    Store(x, key);
}

void FromKey(PackedFloat& x) {
    Key key = Load(x);
    if (key.high & 0x8000) {
        key.high &= 0x7FFF;
    } else {
        key.low = ~key.low;
        key.high = std::uint16_t(~key.high);
    }
    Store(x, key);
}

bool KeyBefore(const PackedFloat& a, const PackedFloat& b) {
    const Key x = Load(a), y = Load(b);
    return x.high != y.high ? x.high < y.high : x.low < y.low;
}

// Byte `level` of a key counted from the most significant (level 0 is byte 9).
unsigned DigitOf(const PackedFloat& x, int level) { return x.Bytes[9 - level]; }

// In-place most-significant-digit radix sort of keys (American flag sort): the elements
// are counted into 256 buckets by one byte, moved into their buckets by following
// cycles, and each bucket is sorted on the next byte; small ones by insertion. It needs
// no memory beyond a few counters a level.
void FlagSort(PackedFloat* a, std::size_t n, int level) {
    constexpr std::size_t Small = 32;
    while (n > Small && level < 10) {
        std::array<std::size_t, 256> count{};
        for (std::size_t i = 0; i < n; ++i) ++count[DigitOf(a[i], level)];
        if (std::find(count.begin(), count.end(), n) != count.end()) {
            ++level;  // one byte shared by all: on to the next
            continue;
        }
        std::array<std::size_t, 256> next, end;
        std::size_t sum = 0;
        for (std::size_t b = 0; b < 256; ++b) {
            next[b] = sum;
            sum += count[b];
            end[b] = sum;
        }
        for (std::size_t b = 0; b < 256; ++b) {
            while (next[b] < end[b]) {
                PackedFloat x = a[next[b]];
                unsigned d = DigitOf(x, level);
                while (d != b) {
                    std::swap(x, a[next[d]++]);
                    d = DigitOf(x, level);
                }
                a[next[b]++] = x;
            }
        }
        std::size_t start = 0;
        for (std::size_t b = 0; b < 256; ++b) {
            if (count[b] > 1) FlagSort(a + start, count[b], level + 1);
            start += count[b];
        }
        return;
    }
    for (std::size_t i = 1; i < n; ++i) {
        const PackedFloat x = a[i];
        std::size_t j = i;
        for (; j > 0 && KeyBefore(x, a[j - 1]); --j) a[j] = a[j - 1];
        a[j] = x;
    }
}

bool SortsUniquely(const TKorFloatVector& V) {
    bool positiveZero = false, negativeZero = false;
    for (const PackedFloat& x : V) {
        std::uint64_t significand;
        std::uint16_t signAndExponent;
        std::memcpy(&significand, x.Bytes, 8);
        std::memcpy(&signAndExponent, x.Bytes + 8, 2);
        const unsigned exponent = signAndExponent & 0x7FFF;
        const bool integerBit = (significand >> 63) != 0;
        if (exponent == 0x7FFF && (significand << 1) != 0) return false;  // NaN
        if ((exponent == 0) == integerBit) return false;                   // non-canonical
        if (exponent == 0 && significand == 0) {
            (signAndExponent & 0x8000 ? negativeZero : positiveZero) = true;
        }
    }
    return !(positiveZero && negativeZero);
}

// Least-significant-byte-first radix sort of the keys; a byte that every key shares
// needs no pass.
}  // namespace

TKorFloatVector AscendingCopy(const TKorFloatVector& V) {
    if (!SortsUniquely(V)) {
        TKorFloatVector sorted = KornumVector::CopyVector(V);
        KornumVector::QSortVector(sorted, true);
        return sorted;
    }
    TKorFloatVector sorted = KornumVector::CopyVector(V);
    PackedFloat* a = sorted.data();
    const std::size_t n = std::size_t(sorted.Length());
    for (std::size_t i = 0; i < n; ++i) ToKey(a[i]);
    FlagSort(a, n, 0);
    for (std::size_t i = 0; i < n; ++i) FromKey(a[i]);
    return sorted;
}

}  // namespace KornumDescStats::detail
