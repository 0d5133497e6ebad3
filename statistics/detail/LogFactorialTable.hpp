// ln k! in two Floats for whole k below LogFactorialTableSize, from a table that is
// built on first use, 256 entries at a time, as running sums of ln j in two Floats
// (absolute error below 2^-100). Internal to the library (not installed).
#pragma once

#include "core/detail/ExtendedPrecision.hpp"

#include <kornum/Kornumglobals.h>

#include <atomic>
#include <cstdint>
#include <mutex>

namespace KornumStatistics::detail {

using Kornumglobals::Float;
using Kornummath::special::TwoFloat;

inline constexpr std::uint32_t LogFactorialTableSize = 4096;

class LogFactorialTable {
public:
    // The table, complete at least up to ln last! (last below LogFactorialTableSize).
    static const LogFactorialTable& UpTo(std::uint32_t last) {
        static LogFactorialTable table;
        if (last >= table.complete_.load(std::memory_order_acquire)) table.Build(last / Chunk);
        return table;
    }
    TwoFloat operator[](std::uint32_t k) const { return values_[k]; }

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
            std::uint32_t end = complete_.load(std::memory_order_relaxed);
            while (end < j && !complete_.compare_exchange_weak(end, j, std::memory_order_release)) {
            }
        });
    }

    TwoFloat values_[LogFactorialTableSize];
    std::once_flag built_[LogFactorialTableSize / Chunk];
    std::atomic<std::uint32_t> complete_{0};  // entries below it are written
};

}  // namespace KornumStatistics::detail
