// ln k! in two Floats for whole k below LogFactorialTableSize, from a table that is
// built on first use, 256 entries at a time, as running sums of ln j in two Floats
// (absolute error below 2^-100); and ln x in two Floats through a small per-thread
// cache, for the parameters of a distribution that is evaluated at many counts. Both
// give the same values however often and in whatever order they are asked. Internal to
// the library (not installed).
#pragma once

#include "core/detail/ExtendedPrecision.hpp"

#include <kornum/Kornumglobals.h>

#include <cstdint>
#include <mutex>

namespace KornumStatistics::detail {

using Kornumglobals::Float;
using Kornummath::special::TwoFloat;

inline constexpr std::uint32_t LogFactorialTableSize = 4096;

class LogFactorialTable {
public:
    static TwoFloat At(std::uint32_t k) {
        static LogFactorialTable table;
        table.Build(k / Chunk);
        return table.values_[k];
    }

private:
    static constexpr std::uint32_t Chunk = 256;

    // Chunk c continues the running sum where chunk c - 1 ends.
    void Build(std::uint32_t c) {
        std::call_once(built_[c], [this, c] {
            std::uint32_t j = c * Chunk;
            TwoFloat sum{0, 0};
            if (c == 0) {
                values_[j++] = sum;  // ln 0! = 0
            } else {
                Build(c - 1);
                sum = values_[j - 1];
            }
            for (; j < (c + 1) * Chunk; ++j) values_[j] = sum = sum + Kornummath::special::Log(Float(j));
        });
    }

    TwoFloat values_[LogFactorialTableSize];
    std::once_flag built_[LogFactorialTableSize / Chunk];
};

// Kornummath::special::Log(x), remembered for the last four arguments of this thread.
inline TwoFloat CachedLog(Float x) {
    struct Entry {
        Float x;
        TwoFloat log;
    };
    thread_local Entry entries[4] = {};  // ln 0 is never asked for
    thread_local unsigned next = 0;
    for (const Entry& entry : entries)
        if (entry.x == x) return entry.log;
    Entry& entry = entries[next++ % 4];
    entry = {x, Kornummath::special::Log(x)};
    return entry.log;
}

}  // namespace KornumStatistics::detail
