#include <kornum/KornumSharded.h>

#include "components/detail/ReportEntries.hpp"
#include "core/detail/RadixSort.hpp"
#include "sharded/detail/Bytes.hpp"
#include "sharded/detail/StoredValue.hpp"

#include <kornum/Kornummath.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

namespace KornumSharded {

// ---- Runs of equal neighbours --------------------------------------------------------

namespace {

// Calls visit(x) for each value in ascending order, sorting only the keys by radix.
// Where the bits in which keys differ span at most 64 (values of one sign within a few
// binary orders of magnitude, as a range of the mode usually holds), only those 64 bits
// are moved, half the bytes of a whole key.
template <class Visit>
void ForEachAscending(std::span<const Float> values, Visit visit) {
    using Kornumglobals::detail::RadixSort;
    using u128 = Kornumglobals::detail::UInt128;
    const auto wide = [](const Float& x) { return detail::WideKeyOf(detail::StoredOf(x)); };
    const auto value = detail::ValueOfWideKey;
    const std::size_t n = values.size();
    u128 any = 0, all = ~u128(0);
    for (const Float& x : values) {
        const u128 key = wide(x);
        any |= key;
        all &= key;
    }
    const u128 varying = any ^ all;
    if (varying == 0) {  // one value throughout
        for (const Float& x : values) visit(x);
        return;
    }
    const std::uint64_t low = std::uint64_t(varying);
    const int lowest = low ? __builtin_ctzll(low) : 64 + __builtin_ctzll(std::uint64_t(varying >> 64));
    if (Kornumglobals::detail::HighestBit(varying) - lowest < 64) {
        std::vector<std::uint64_t> window(n), spare(n);
        for (std::size_t i = 0; i < n; ++i) window[i] = std::uint64_t(wide(values[i]) >> lowest);
        RadixSort(window.data(), spare.data(), n, false);
        // The bits outside the window are the same in every key.
        const u128 shared = all & ~(u128(~std::uint64_t(0)) << lowest);
        for (const std::uint64_t w : window) visit(value(shared | u128(w) << lowest));
        return;
    }
    std::vector<u128> keys(n), spare(n);
    for (std::size_t i = 0; i < n; ++i) keys[i] = wide(values[i]);
    RadixSort(keys.data(), spare.data(), n, false);
    for (const u128 key : keys) visit(value(key));
}

}  // namespace

// One walk over the runs of equal neighbours in ascending order: the first is the open run
// at the start, the last the open run at the end, the others are closed.
TKorRunSummary TKorRunSummary::OfValues(std::span<const Float> Values) {
    TKorRunSummary s;
    const std::size_t n = Values.size();
    if (n == 0) return s;
    std::size_t i = 0, start = 0;
    Float previous = 0;
    ForEachAscending(Values, [&](Float x) {
        if (i == 0) {
            s.first_ = x;
        } else if (!Kornummath::SameFloat(x, previous)) {  // the run [start, i) ends
            if (start == 0) {
                s.lead_ = Int64(i);
                s.leadLast_ = previous;
            } else {
                s.Close(Int64(i - start), previous);
            }
            start = i;
        }
        previous = x;
        ++i;
    });
    if (start == 0) {
        s.lead_ = Int64(n);
        s.leadLast_ = previous;
    }
    s.trail_ = Int64(n - start);
    s.count_ = Int64(n);
    s.last_ = previous;
    return s;
}

void TKorRunSummary::Close(Int64 Length, Float Value) {
    if (Length < 2 || Length < best_) return;
    if (Length == best_) {
        ++bestRuns_;
        return;
    }
    best_ = Length;
    bestRuns_ = 1;
    bestValue_ = Value;
}

void TKorRunSummary::Append(const TKorRunSummary& Next) {
    if (Next.count_ == 0) return;
    if (count_ == 0) {
        *this = Next;
        return;
    }
    const bool single = lead_ == count_, nextSingle = Next.lead_ == Next.count_;
    const bool joined = Kornummath::SameFloat(last_, Next.first_);
    // The closed runs of Next stay closed.
    if (Next.bestRuns_) {
        Close(Next.best_, Next.bestValue_);
        if (Next.best_ == best_) bestRuns_ += Next.bestRuns_ - 1;
    }
    if (joined) {
        const Int64 middle = trail_ + Next.lead_;  // ends at Next's first run's last value
        if (single) {
            lead_ = middle;
            leadLast_ = Next.leadLast_;
        } else if (!nextSingle) {
            Close(middle, Next.leadLast_);
        }
        trail_ = nextSingle ? middle : Next.trail_;
    } else {
        if (!single) Close(trail_, last_);
        if (!nextSingle) Close(Next.lead_, Next.leadLast_);
        trail_ = Next.trail_;
    }
    count_ += Next.count_;
    last_ = Next.last_;
}

bool TKorRunSummary::Mode(Float& Value) const {
    if (count_ == 1) {
        Value = first_;
        return true;
    }
    TKorRunSummary all = *this;  // the open runs at both ends count as closed here
    if (lead_ == count_) {
        all.Close(lead_, leadLast_);
    } else {
        all.Close(lead_, leadLast_);
        all.Close(trail_, last_);
    }
    Value = all.bestValue_;
    return all.bestRuns_ == 1;
}

std::string TKorRunSummary::Serialize() const {
    detail::ByteWriter out("KNRS", 1);
    for (const Int64 n : {count_, lead_, trail_, best_, bestRuns_}) out.Unsigned(std::uint64_t(n), 8);
    for (const Float x : {first_, last_, leadLast_, bestValue_}) out.Real(x);
    return out.Take();
}

TKorRunSummary TKorRunSummary::Deserialize(std::string_view Bytes) {
    detail::ByteReader in(Bytes, "KNRS", 1, "run summary");
    TKorRunSummary s;
    for (Int64* n : {&s.count_, &s.lead_, &s.trail_, &s.best_, &s.bestRuns_}) *n = Int64(in.Unsigned(8));
    for (Float* x : {&s.first_, &s.last_, &s.leadLast_, &s.bestValue_}) *x = in.Real();
    in.End();
    const bool sane = s.count_ >= 0 && s.lead_ >= 0 && s.trail_ >= 0 && s.lead_ <= s.count_ && s.trail_ <= s.count_ &&
                      (s.count_ == 0 || (s.lead_ >= 1 && s.trail_ >= 1)) && s.best_ >= 0 && s.best_ <= s.count_ &&
                      s.bestRuns_ >= 0 && (s.bestRuns_ == 0) == (s.best_ == 0);
    if (!sane) in.Fail("its run lengths are inconsistent");
    return s;
}

// ---- The report ----------------------------------------------------------------------

namespace {

// The ranks (from 0) of the neighbours of 1-based position P = n * q + 0.5, and the
// weight of the upper one, as the order statistics interpolate.
struct Position {
    Int64 Below, Above;
    Float Fraction;
};

Position QuartilePosition(Int64 n, Float P) {
    const Float truncated = std::trunc(P);
    const Int64 k = Int64(truncated);
    if (k <= 0) return {0, 0, 0};
    if (k >= n) return {n - 1, n - 1, 0};
    return {k - 1, k, P - truncated};
}

std::pair<Position, Position> Quartiles(Int64 n) {
    if (n == 1) return {{0, 0, 0}, {0, 0, 0}};
    return {QuartilePosition(n, Float(n) / 4.0L + 0.5L), QuartilePosition(n, Float(3 * n) / 4.0L + 0.5L)};
}

}  // namespace

std::vector<Int64> ReportRanks(Int64 N) {
    std::vector<Int64> ranks = {(N - 1) / 2, N / 2};
    const auto [q1, q3] = Quartiles(N);
    for (const Position& p : {q1, q3}) {
        ranks.push_back(p.Below);
        ranks.push_back(p.Above);
    }
    std::sort(ranks.begin(), ranks.end());
    ranks.erase(std::unique(ranks.begin(), ranks.end()), ranks.end());
    return ranks;
}

std::vector<KornumDescStats::TKorReportEntry> ReportEntries(const TKorShardSummary& Summary, bool Population,
                                                            const std::vector<Float>& RankValues, bool ModeExists,
                                                            Float Mode) {
    const Int64 n = Summary.Count();
    if (n == 0) return {};
    const std::vector<Int64> ranks = ReportRanks(n);
    std::map<Int64, Float> at;
    for (std::size_t i = 0; i < ranks.size(); ++i) at[ranks[i]] = RankValues.at(i);
    const auto interpolated = [&](const Position& p) {
        const Float below = at.at(p.Below), above = at.at(p.Above);
        return p.Fraction == 0 && p.Below == p.Above ? below : (above - below) * p.Fraction + below;
    };
    const Float median = n % 2 ? at.at(n / 2) : (at.at(n / 2 - 1) + at.at(n / 2)) / 2.0L;
    const auto [q1Position, q3Position] = Quartiles(n);
    const Float q1 = interpolated(q1Position), q3 = interpolated(q3Position);
    const TKorMoments m = Summary.Moments(Population);
    return KornumDescStats::detail::ReportEntriesOf({n, Population, Summary.Maximum(), Summary.Minimum(), m.Sum, m.SumSq,
                                                     m.Mean, ModeExists, Mode, median, m.Variance, m.StdDev,
                                                     m.Kurtosis, m.Skew, q1, q3});
}

}  // namespace KornumSharded
