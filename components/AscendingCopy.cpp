#include "AscendingCopy.hpp"

#include <kornum/KornumVector.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

namespace KornumDescStats::detail {
namespace {

using Kornumglobals::Integer;
using Kornumglobals::PackedFloat;
using Kornumglobals::TKorFloatVector;

// An 80-bit key whose unsigned order is the numeric order of a canonical, non-NaN
// Float: positive values get the top bit set, negative values have all bits inverted.
struct Key {
    std::uint64_t low;   // significand
    std::uint16_t high;  // sign and exponent
};

constexpr int KeyBytes = 10;

Key ToKey(const PackedFloat& x) {
    Key key;
    std::memcpy(&key.low, x.Bytes, 8);
    std::memcpy(&key.high, x.Bytes + 8, 2);
    if (key.high & 0x8000) {
        key.low = ~key.low;
        key.high = std::uint16_t(~key.high);
    } else {
        key.high |= 0x8000;
    }
    return key;
}

PackedFloat FromKey(Key key) {
    if (key.high & 0x8000) {
        key.high &= 0x7FFF;
    } else {
        key.low = ~key.low;
        key.high = std::uint16_t(~key.high);
    }
    PackedFloat x;
    std::memcpy(x.Bytes, &key.low, 8);
    std::memcpy(x.Bytes + 8, &key.high, 2);
    return x;
}

int ByteOf(const Key& key, int index) {
    return index < 8 ? int(key.low >> (8 * index)) & 0xFF : int(key.high >> (8 * (index - 8))) & 0xFF;
}

// True when equal values are guaranteed to have equal bytes and every value compares:
// no NaN, no pair of zeros of different signs, only canonical encodings.
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
void RadixSort(std::vector<Key>& keys) {
    std::vector<Key> buffer(keys.size());
    for (int byte = 0; byte < KeyBytes; ++byte) {
        std::array<std::size_t, 257> start{};
        for (const Key& key : keys) ++start[std::size_t(ByteOf(key, byte)) + 1];
        bool shared = false;
        for (std::size_t b = 1; b <= 256; ++b) shared |= start[b] == keys.size();
        if (shared) continue;
        for (std::size_t b = 1; b <= 256; ++b) start[b] += start[b - 1];
        for (const Key& key : keys) buffer[start[std::size_t(ByteOf(key, byte))]++] = key;
        keys.swap(buffer);
    }
}

}  // namespace

TKorFloatVector AscendingCopy(const TKorFloatVector& V) {
    if (!SortsUniquely(V)) {
        TKorFloatVector sorted = KornumVector::CopyVector(V);
        KornumVector::QSortVector(sorted, true);
        return sorted;
    }
    std::vector<Key> keys;
    keys.reserve(std::size_t(V.Length()));
    for (const PackedFloat& x : V) keys.push_back(ToKey(x));
    RadixSort(keys);
    TKorFloatVector sorted;
    sorted.SetLength(V.Length());
    for (Integer i = 0; i < sorted.Length(); ++i) sorted[i] = FromKey(keys[std::size_t(i)]);
    return sorted;
}

}  // namespace KornumDescStats::detail
