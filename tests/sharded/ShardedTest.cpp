#include <kornum/KornumDescStats.h>
#include <kornum/KornumSharded.h>
#include <kornum/Kornummath.h>
#include <kornum/Platform.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <map>
#include <set>
#include <cmath>
#include <cstring>
#include <random>

using namespace KornumSharded;
using Kornumglobals::Float;

namespace {

// Units in the last place between a and b.
long double UlpsApart(Float a, Float b) {
    if (a == b) return 0;
    return std::fabs(a - b) / (std::nextafter(std::fabs(a), INFINITY) - std::fabs(a));
}

std::vector<std::vector<Float>> RandomShards(const std::vector<Float>& values, int shards, std::mt19937_64& rng) {
    std::vector<std::vector<Float>> parts(static_cast<std::size_t>(shards));
    for (const Float x : values) parts[rng() % parts.size()].push_back(x);
    std::shuffle(parts.begin(), parts.end(), rng);
    return parts;
}

// The whole report over shards, as a distributed run computes it.
std::vector<KornumDescStats::TKorReportEntry> ShardedReport(const std::vector<std::vector<Float>>& shards,
                                                            bool population, Int64 gatherLimit) {
    TKorShardSummary summary;
    TKorFirstCounts first;
    for (const auto& shard : shards) {
        TKorShardSummary part;
        TKorFirstCounts counts;
        part.Add(shard, counts);
        summary = TKorShardSummary::Deserialize(summary.Serialize());
        summary.Merge(part);
        first.Merge(counts);
    }
    TKorRankSelection selection(summary.Count(), ReportRanks(summary.Count()), gatherLimit);
    while (!selection.Done()) {
        if (selection.NarrowWith(first)) continue;
        if (selection.Gathering()) {
            const std::vector<TKorPrefixRequest> prefixes = selection.GatherPrefixes();
            std::vector<std::vector<Float>> gathered(prefixes.size());
            for (const auto& shard : shards) {
                const std::vector<std::vector<Float>> some = CollectPrefixes(shard, prefixes);
                for (std::size_t i = 0; i < prefixes.size(); ++i)
                    gathered[i].insert(gathered[i].end(), some[i].begin(), some[i].end());
            }
            selection.Gathered(gathered);
        } else {
            std::vector<TKorHistogram> counts;
            for (const auto& shard : shards) MergeCounts(counts, PrefixCounts(shard, selection.Requests()));
            selection.Narrow(counts);
        }
    }
    std::vector<TKorHistogram> top;
    for (const auto& shard : shards) MergeCounts(top, PrefixCounts(shard, {TKorPrefixRequest{}}));
    std::vector<TKorPrefixRequest> heavy;  // the top buckets to split finer
    for (const auto& [bucket, count] : top[0]) heavy.push_back({{std::uint16_t(bucket), 0}, 16});
    std::vector<TKorHistogram> next;
    for (const auto& shard : shards) MergeCounts(next, PrefixCounts(shard, heavy));
    std::vector<std::pair<std::uint32_t, TKorHistogram>> finer;
    for (std::size_t i = 0; i < heavy.size(); i += 2) finer.push_back({heavy[i].Prefix.High, next[i]});
    const std::vector<TKorKey> bounds = RangeBounds(top[0], finer, 5);
    // The mode's filter: only the values of busy cells go on to the runs.
    const TKorModeCells cells;
    std::vector<std::vector<Float>> candidates = shards;
    if (cells.Usable()) {
        constexpr int parts = 3;
        std::vector<std::vector<std::vector<std::uint64_t>>> split;
        for (const auto& shard : shards) split.push_back(cells.SplitCells(shard, parts));
        std::vector<std::uint64_t> busy;
        for (int i = 0; i < parts; ++i) {
            std::vector<std::span<const std::uint64_t>> pieces;
            for (const auto& s : split) pieces.push_back(s[std::size_t(i)]);
            Int64 count = 0;
            const auto some = BusyCells(pieces, count);
            busy.insert(busy.end(), some.begin(), some.end());
        }
        for (std::size_t i = 0; i < shards.size(); ++i) candidates[i] = cells.Candidates(shards[i], busy);
    }
    std::vector<std::vector<Float>> ranges(bounds.size() + 1);
    for (const auto& shard : candidates) {
        const auto split = SplitByRange(shard, bounds);
        for (std::size_t i = 0; i < split.size(); ++i) ranges[i].insert(ranges[i].end(), split[i].begin(), split[i].end());
    }
    TKorRunSummary runs;
    for (const auto& range : ranges) runs.Append(TKorRunSummary::Deserialize(TKorRunSummary::OfValues(range).Serialize()));
    // A single value is its own mode, though it has no company.
    Float mode = 0;
    const bool modeExists = summary.Count() == 1 ? (mode = summary.Minimum(), true) : runs.Mode(mode);
    return ReportEntries(summary, population, selection.Values(), modeExists, mode);
}

std::vector<KornumDescStats::TKorReportEntry> SingleReport(const std::vector<Float>& values, bool population) {
    KornumDescStats::TKorDescStats stats(nullptr);
    Kornumglobals::TKorFloatVector v;
    v.SetLength(Kornumglobals::Integer(values.size()));
    for (std::size_t i = 0; i < values.size(); ++i) v[Kornumglobals::Integer(i)] = values[i];
    stats.BeginUpdate();
    stats.SetPopulation(population);
    stats.SetValues(v);
    stats.EndUpdate();
    return stats.ReportEntries();
}

// The moments in binary128 by two passes: exact for values that are multiples of 1/8
// below 2^10 in magnitude (their sums and deviations need fewer than 113 bits), so
// rounding these once to Float gives the correctly rounded statistics.
std::map<std::string, Float> QuadMoments(const std::vector<Float>& values, bool population) {
    using Quad = __float128;
    const Quad n = Quad(values.size());
    Quad sum = 0, sumSq = 0, d2 = 0, d3 = 0, d4 = 0;
    for (const Float x : values) sum += x, sumSq += Quad(x) * x;
    const Quad mean = sum / n;
    for (const Float x : values) {
        const Quad d = x - mean;
        d2 += d * d, d3 += d * d * d, d4 += d * d * d * d;
    }
    const Quad variance = population ? d2 / n : d2 / (n - 1);
    Quad sd = std::sqrt((long double)variance);
    if (sd > 0) {
        sd = (sd + variance / sd) / 2;
        sd = (sd + variance / sd) / 2;
    }
    std::map<std::string, Float> m = {{"sum", Float(sum)}, {"sum_of_squares", Float(sumSq)}, {"mean", Float(mean)},
                                      {"variance", Float(variance)}, {"standard_deviation", Float(sd)}};
    if (values.size() > 2)
        m["skew"] = Float(population ? d3 / (sd * sd * n * sd) : n * d3 / (sd * sd * ((n - 1) * (n - 2)) * sd));
    if (values.size() > 3)
        m["kurtosis"] = Float(population ? d4 / (sd * sd * sd * sd * n) - 3
                                         : n * (n + 1) * d4 / (sd * sd * sd * sd * ((n - 1) * (n - 2) * (n - 3))) -
                                               3 * (n - 1) * (n - 1) / ((n - 2) * (n - 3)));
    return m;
}

// Order statistics and mode as the single-process report; the moments within one unit in
// the last place of Reference (when given) and close to the single-process ones.
void ExpectSameReport(const std::vector<KornumDescStats::TKorReportEntry>& single,
                      const std::vector<KornumDescStats::TKorReportEntry>& sharded,
                      const std::map<std::string, Float>& reference = {}) {
    ASSERT_EQ(single.size(), sharded.size());
    for (std::size_t i = 0; i < single.size(); ++i) {
        SCOPED_TRACE(single[i].Key);
        EXPECT_EQ(single[i].Key, sharded[i].Key);
        EXPECT_EQ(single[i].Caption, sharded[i].Caption);
        ASSERT_EQ(single[i].Value.has_value(), sharded[i].Value.has_value());
        if (!single[i].Value) continue;
        const Float mine = *sharded[i].Value, theirs = *single[i].Value;
        static const std::set<std::string> moments = {"sum", "sum_of_squares", "mean", "variance",
                                                      "standard_deviation", "skew", "kurtosis"};
        if (!moments.count(single[i].Key)) {
            EXPECT_EQ(theirs, mine);  // count, extremes, mode, median, quartiles
            continue;
        }
        EXPECT_LE(std::fabs(theirs - mine), 1e-14L * (1 + std::fabs(theirs)));
        if (reference.count(single[i].Key)) {
            EXPECT_LE(UlpsApart(reference.at(single[i].Key), mine), 1);
        }
    }
}

}  // namespace

TEST(ShardSummary, MergeOrderAndPartitioningGiveIdenticalBytes) {
    std::mt19937_64 rng(21);
    std::normal_distribution<double> normal(3, 1e3);
    std::vector<Float> values;
    for (int i = 0; i < 5000; ++i) values.push_back(Float(normal(rng)) * (i % 7 == 0 ? 1e-300L : 1.0L));
    std::string reference;
    for (int shards : {1, 2, 7, 64}) {
        for (int trial = 0; trial < 3; ++trial) {
            TKorShardSummary merged;
            for (const auto& shard : RandomShards(values, shards, rng)) {
                TKorShardSummary part;
                part.Add(shard);
                merged.Merge(part);
            }
            if (reference.empty()) reference = merged.Serialize();
            EXPECT_EQ(merged.Serialize(), reference) << shards << " shards";
        }
    }
}

TEST(ShardSummary, SumsAreExactAcrossTheExponentRange) {
    TKorShardSummary s;
    const std::vector<Float> values = {1e4000L, 1, -1e4000L, 0x1p-16440L, -0.5L};
    s.Add(values);
    EXPECT_EQ(s.Moments(false).Sum, 0.5L + 0x1p-16440L);  // rounds once: 0.5 (the tiny part is far below)
    TKorShardSummary squares;
    const std::vector<Float> three_four = {3, 4, -5};
    squares.Add(three_four);
    const TKorMoments m = squares.Moments(true);
    EXPECT_EQ(m.Sum, 2);
    EXPECT_EQ(m.SumSq, 50);
    // Mean 2/3; sum of squared deviations 50 - 4/3 = 146/3; population variance 146/9.
    EXPECT_EQ(m.Variance, 146.0L / 9.0L);
    EXPECT_EQ(s.Minimum(), -1e4000L);
    EXPECT_EQ(s.Maximum(), 1e4000L);
}

TEST(ShardSummary, RejectsBuffersThatAreNotSummaries) {
    TKorShardSummary s;
    const std::vector<Float> values = {1, 2, 3};
    s.Add(values);
    const std::string good = s.Serialize();
    EXPECT_EQ(TKorShardSummary::Deserialize(good), s);
    const auto message = [](std::string bytes) {
        try {
            TKorShardSummary::Deserialize(bytes);
        } catch (const Platform::Exception& e) {
            return e.Message();
        }
        return std::string("accepted");
    };
    EXPECT_EQ(message("KNRS" + good.substr(4)), "Not a valid shard summary: it does not start with \"KNSS\"");
    std::string later = good;
    later[4] = 2;
    EXPECT_EQ(message(later), "Not a valid shard summary: its format version is 2; this library reads version 1");
    EXPECT_EQ(message(good.substr(0, good.size() - 3)),
              "Not a valid shard summary: it ends early, at byte " + std::to_string(good.size() - 3));
    EXPECT_EQ(message(good + "x"), "Not a valid shard summary: 1 bytes follow its end");
    std::string counts = good;
    counts[14] = 9;  // more NaN than values
    EXPECT_EQ(message(counts), "Not a valid shard summary: its counts are inconsistent");
    EXPECT_THROW(TKorRunSummary::Deserialize("KNRS"), Platform::Exception);
}

TEST(Keys, OrderOfKeysIsOrderOfValuesAndRoundTrips) {
    std::mt19937_64 rng(5);
    std::vector<Float> values = {-INFINITY, -1e4000L, -1, -0x1p-16445L, 0, 0x1p-16445L, 1, 1e4000L, INFINITY};
    for (int i = 0; i < 200; ++i) values.push_back(std::ldexp(Float(std::int64_t(rng())), int(rng() % 2000) - 1000));
    for (const Float a : values) {
        EXPECT_EQ(ValueOf(KeyOf(a)), a);
        for (const Float b : values) EXPECT_EQ(a < b, KeyOf(a) < KeyOf(b)) << double(a) << " " << double(b);
    }
}

TEST(RunSummary, ModeFollowsTheRunsOfEqualNeighboursAcrossRanges) {
    Float mode = 0;
    // A tolerant run that spans two ranges: 1 and 1 + 2^-60 are the same value.
    TKorRunSummary left = TKorRunSummary::OfValues(std::vector<Float>{0.5L, 1});
    left.Append(TKorRunSummary::OfValues(std::vector<Float>{1 + 0x1p-60L, 2, 2 + 0x1p-55L}));
    left.Append(TKorRunSummary::OfValues(std::vector<Float>{}));
    EXPECT_FALSE(left.Mode(mode));  // runs of two at 1 and at 2 tie
    left.Append(TKorRunSummary::OfValues(std::vector<Float>{2 + 0x1p-54L, 3}));
    ASSERT_TRUE(left.Mode(mode));
    EXPECT_EQ(mode, 2 + 0x1p-54L);  // the last value of the longest run
    EXPECT_TRUE(TKorRunSummary::OfValues(std::vector<Float>{7}).Mode(mode));
    EXPECT_EQ(mode, 7);
    EXPECT_FALSE(TKorRunSummary::OfValues(std::vector<Float>{1, 2, 3}).Mode(mode));
}

// The runs come from a sort of the keys: by their 64 differing bits when they differ in
// no more (one sign, nearby magnitudes), by whole keys otherwise (both signs, far apart).
// The values lie farther apart than the tolerance that makes neighbours equal.
TEST(RunSummary, FindsTheModeWhetherKeysDifferInMoreThan64BitsOrFewer) {
    std::mt19937_64 rng(5);
    for (const bool wide : {true, false}) {
        std::vector<Float> values;
        for (int k = 1; k <= 2000; ++k)
            values.push_back(wide ? (k % 2 ? -1 : 1) * std::ldexp(Float(k), k % 900) : 1000 + std::ldexp(Float(k), -20));
        const Float mode = values[777];
        values.insert(values.end(), {mode, mode, values[5]});
        std::shuffle(values.begin(), values.end(), rng);
        Float found = 0;
        ASSERT_TRUE(TKorRunSummary::OfValues(values).Mode(found)) << wide;
        EXPECT_EQ(found, mode) << wide;
    }
}

// Two values SameFloat calls the same are in one cell or in neighbouring ones, and cells
// ascend with the values, for tolerances from none to the coarsest that allows cells.
TEST(ModeCells, SameValuesShareACellOrNeighbouringCells) {
    const Float saved = Kornumglobals::KorTolerance;
    std::mt19937_64 rng(3);
    std::uniform_real_distribution<double> unit(0, 1);
    for (const Float tolerance : {1e-15L, 0.0L, 1e-10L, 0x1p-6L}) {
        Kornumglobals::KorTolerance = tolerance;
        const TKorModeCells cells;
        ASSERT_TRUE(cells.Usable());
        for (int i = 0; i < 200000; ++i) {
            // Magnitudes from 1e-30 to 1e30, many near 0 and 1, both signs.
            const int kind = i % 4;
            Float x = kind == 0 ? std::pow(10.0L, Float(unit(rng) * 60 - 30))
                    : kind == 1 ? Float(unit(rng)) * 4 * tolerance
                    : kind == 2 ? 1 + Float(unit(rng) - 0.5) * 8 * tolerance
                                : std::ldexp(1.0L, int(unit(rng) * 200) - 100);
            if (rng() & 1) x = -x;
            // A neighbour at most the tolerance away, or a step more.
            const Float step = tolerance * std::max<Float>(1, std::fabs(x)) * Float(unit(rng) * 1.25);
            const Float y = (rng() & 1) ? x + step : x - step;
            const std::uint64_t a = cells.CellOf(x), b = cells.CellOf(y);
            // Cells ascend with the values (in key order, which puts -0 below +0).
            const bool below = KeyOf(x) < KeyOf(y);
            EXPECT_EQ(below, a < b || (a == b && below)) << double(x);
            if (Kornummath::SameFloat(x, y)) {
                ASSERT_LE(a > b ? a - b : b - a, 1u) << double(x) << " " << double(y) << " tolerance " << double(tolerance);
            }
        }
        EXPECT_EQ(cells.CellOf(-0.0L) + 1, cells.CellOf(0.0L));
        EXPECT_LT(cells.CellOf(std::numeric_limits<Float>::max()), cells.CellOf(INFINITY));
        EXPECT_GT(cells.CellOf(-std::numeric_limits<Float>::max()), cells.CellOf(-INFINITY));
    }
    Kornumglobals::KorTolerance = 0x1p-5L;
    EXPECT_FALSE(TKorModeCells().Usable());
    Kornumglobals::KorTolerance = saved;
}

// Values crowded about the edges of blocks of cells, some in equal or neighbouring cells:
// the parts' busy cells together are the cells with company among all the values' cells,
// judged here from all of them sorted, and hold the same number of values.
TEST(ModeCells, BusyCellsOfThePartsAreTheCellsWithCompany) {
    const TKorModeCells cells;
    ASSERT_TRUE(cells.Usable());
    // For the tolerance 1e-15, cells are 2^17 units in the last place wide above 1 (2^-46
    // just above 1) and 2^-47 wide below 1.
    ASSERT_EQ(cells.CellOf(1 + 0x1p-46L), cells.CellOf(1) + 1);
    ASSERT_EQ(cells.CellOf(1 + 0x1p-47L), cells.CellOf(1));
    ASSERT_EQ(cells.CellOf(0.5L + 0x1p-47L), cells.CellOf(0.5L) + 1);
    ASSERT_EQ(cells.CellOf(0.5L + 0x1p-48L), cells.CellOf(0.5L));
    std::mt19937_64 rng(12);
    for (const int parts : {1, 2, 3, 7}) {
        std::vector<Float> values;
        for (int i = 0; i < 400; ++i) values.push_back(1 + Float(rng() % (3u << CellBlockBits)) * 0x1p-46L);
        values.push_back(NAN);
        std::vector<std::uint64_t> all;
        for (const Float x : values)
            if (!std::isnan(x)) all.push_back(cells.CellOf(x));
        std::sort(all.begin(), all.end());
        std::vector<std::uint64_t> expected;
        Int64 expectedCount = 0;
        for (std::size_t i = 0; i < all.size(); ++i) {
            const bool company = (i > 0 && all[i - 1] + 1 >= all[i]) || (i + 1 < all.size() && all[i] + 1 >= all[i + 1]);
            if (!company) continue;
            ++expectedCount;
            if (expected.empty() || expected.back() != all[i]) expected.push_back(all[i]);
        }
        // Three shards, each split into the parts.
        std::vector<std::vector<std::vector<std::uint64_t>>> split;
        for (int s = 0; s < 3; ++s)
            split.push_back(cells.SplitCells(std::span<const Float>(values).subspan(std::size_t(s) * 134).first(
                                                 std::min<std::size_t>(134, values.size() - std::size_t(s) * 134)),
                                             parts));
        std::vector<std::uint64_t> busy;
        Int64 count = 0;
        for (int p = 0; p < parts; ++p) {
            std::vector<std::span<const std::uint64_t>> pieces;
            for (const auto& s : split) pieces.push_back(s[std::size_t(p)]);
            Int64 some = 0;
            for (const std::uint64_t c : BusyCells(pieces, some)) {
                EXPECT_EQ(CellPart(c, parts), p);
                busy.push_back(c);
            }
            count += some;
        }
        std::sort(busy.begin(), busy.end());
        EXPECT_EQ(busy, expected) << parts << " parts";
        EXPECT_EQ(count, expectedCount) << parts << " parts";
        EXPECT_LT(expected.size(), all.size());  // some values are alone
    }
}

TEST(ShardedReport, EqualsTheSingleProcessReport) {
    std::mt19937_64 rng(8);
    std::normal_distribution<double> normal(10, 2);
    for (const int size : {1, 2, 3, 4, 5, 11, 2000}) {
        std::vector<Float> values;
        for (int i = 0; i < size; ++i) values.push_back(Float(std::round(normal(rng) * 8) / 8));  // with repeats
        for (const bool population : {false, true}) {
            SCOPED_TRACE(testing::Message() << size << " values, population " << population);
            const auto single = SingleReport(values, population);
            for (const int shards : {1, 3, 16}) {
                const auto reference = QuadMoments(values, population);
                ExpectSameReport(single, ShardedReport(RandomShards(values, shards, rng), population, 4), reference);
                ExpectSameReport(single, ShardedReport(RandomShards(values, shards, rng), population, 1 << 16),
                                 reference);
            }
        }
    }
    // Spread wide and narrow: the selection narrows through several key prefixes.
    std::vector<Float> values;
    for (int i = 0; i < 3000; ++i) values.push_back(Float(normal(rng)) * (1 + 0x1p-40L * (i % 3)));
    ExpectSameReport(SingleReport(values, false), ShardedReport(RandomShards(values, 9, rng), false, 2));
    // Chains of neighbours within the tolerance but not equal, around 0, 1 and 1e6, with
    // the longest chain split over parts and shards.
    values.clear();
    for (int i = 0; i < 4000; ++i) values.push_back(Float(normal(rng)) * 100);
    for (const Float at : {0.0L, 1.0L, 1e6L, -1.0L})
        for (int k = 0; k < 4; ++k) values.push_back(at + 0.6e-15L * k * std::max<Float>(1, std::fabs(at)));
    for (int k = 0; k < 5; ++k) values.push_back(3 + 2.5e-15L * k);
    for (const int shards : {1, 4, 13}) {
        const auto single = SingleReport(values, false);
        ExpectSameReport(single, ShardedReport(RandomShards(values, shards, rng), false, 8));
    }
}

namespace {

bool SameBits(const std::vector<Float>& a, const std::vector<Float>& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::memcmp(&a[i], &b[i], 10) != 0) return false;
    return true;
}

}  // namespace

// Doubles go through every pass as the Floats they convert to: subnormal doubles become
// normal Floats, NaN become quiet, -0 stays below +0.
TEST(ShardedDoubles, EveryPassGivesWhatTheConvertedFloatsGive) {
    std::mt19937_64 rng(21);
    std::vector<double> doubles = {0.0, -0.0, 1.0, -1.0, 5e-324, -5e-324, 2.2250738585072009e-308, 1e-310,
                                   std::numeric_limits<double>::max(), -std::numeric_limits<double>::max(),
                                   INFINITY, -INFINITY, std::numeric_limits<double>::quiet_NaN(),
                                   std::numeric_limits<double>::signaling_NaN(), 1 + 0x1p-52, 1 + 0x1p-46};
    std::normal_distribution<double> normal(3, 2);
    for (int i = 0; i < 3000; ++i) doubles.push_back(i % 3 ? normal(rng) : std::ldexp(normal(rng), int(rng() % 2000) - 1000));
    for (int i = 0; i < 200; ++i) doubles.push_back(doubles[rng() % doubles.size()]);  // repeats for the mode's cells
    const std::vector<Float> floats(doubles.begin(), doubles.end());

    TKorShardSummary fromDoubles, fromFloats;
    TKorFirstCounts doubleCounts, floatCounts;
    fromDoubles.Add(doubles, doubleCounts);
    fromFloats.Add(floats, floatCounts);
    EXPECT_EQ(fromDoubles.Serialize(), fromFloats.Serialize());
    EXPECT_EQ(doubleCounts.Top, floatCounts.Top);
    EXPECT_EQ(doubleCounts.Finer, floatCounts.Finer);

    std::vector<TKorPrefixRequest> requests = {{}, {KeyOf(3), 16}, {KeyOf(-1), 32}};
    EXPECT_EQ(PrefixCounts(doubles, requests), PrefixCounts(floats, requests));
    const auto collectedFromDoubles = CollectPrefixes(doubles, requests), collectedFromFloats = CollectPrefixes(floats, requests);
    for (std::size_t i = 0; i < requests.size(); ++i) EXPECT_TRUE(SameBits(collectedFromDoubles[i], collectedFromFloats[i]));
    const std::vector<TKorKey> bounds = {KeyOf(-2), KeyOf(0), KeyOf(4)};
    const auto rangesFromDoubles = SplitByRange(doubles, bounds), rangesFromFloats = SplitByRange(floats, bounds);
    for (std::size_t i = 0; i <= bounds.size(); ++i) EXPECT_TRUE(SameBits(rangesFromDoubles[i], rangesFromFloats[i]));

    const TKorModeCells cells;
    EXPECT_EQ(cells.SplitCells(doubles, 3), cells.SplitCells(floats, 3));
    std::vector<std::uint64_t> busy;
    for (const double x : doubles) busy.push_back(cells.CellOf(Float(x)));
    busy.resize(busy.size() / 2);
    EXPECT_TRUE(SameBits(cells.Candidates(doubles, busy), cells.Candidates(floats, busy)));
}

// The first histograms stand for the passes they answer only when complete. 14 000 values
// in [1, 2) and 16 000 in [2, 4), in two shards: shuffled, each shard counts both top
// buckets finer and the first two rounds are answered; sorted, the first shard's first
// values are all below 2, so it counts only [1, 2) finer, and the median's round needs its
// pass. Either way the ranks are those of the whole sorted.
TEST(FirstCounts, AnswerTheRoundsTheyCoverCompletely) {
    std::mt19937_64 rng(31);
    std::uniform_real_distribution<double> unit(0, 1);
    std::vector<Float> values;
    for (int i = 0; i < 30000; ++i) values.push_back(Float((i < 14000 ? 1 : 2) * (1 + unit(rng))));
    std::vector<Float> sorted = values;
    std::sort(sorted.begin(), sorted.end());
    std::shuffle(values.begin(), values.end(), rng);
    const std::vector<Int64> ranks = ReportRanks(Int64(values.size()));
    for (const bool separate : {false, true}) {
        const std::vector<Float>& source = separate ? sorted : values;
        TKorFirstCounts first;
        for (std::size_t s = 0; s < 2; ++s) {
            const std::span<const Float> shard = std::span<const Float>(source).subspan(s * 15000, 15000);
            TKorShardSummary summary;
            TKorFirstCounts counts;
            summary.Add(shard, counts);
            first.Merge(counts);
            EXPECT_EQ(counts.Top, PrefixCounts(shard, {TKorPrefixRequest{}})[0]);
        }
        TKorRankSelection selection(Int64(values.size()), ranks, 1000);
        EXPECT_TRUE(selection.NarrowWith(first));
        EXPECT_EQ(selection.NarrowWith(first), !separate);
        while (!selection.Done()) {
            if (selection.Gathering()) {
                std::vector<std::vector<Float>> gathered = CollectPrefixes(values, selection.GatherPrefixes());
                selection.Gathered(gathered);
            } else {
                selection.Narrow(PrefixCounts(values, selection.Requests()));
            }
        }
        std::vector<Float> expected;
        for (const Int64 r : ranks) expected.push_back(sorted[std::size_t(r)]);
        EXPECT_EQ(selection.Values(), expected);
    }
}
