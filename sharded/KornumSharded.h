/// @file
/// `KornumSharded`: the descriptive-statistics report of values held in many shards,
/// computed from small mergeable summaries so that it is the same, bit for bit, whatever
/// the number of shards and the order in which they are merged.
///
/// A report over shards takes three kinds of pass over the data:
/// - `TKorShardSummary` (one pass): the exact count, extremes and sums of x, x^2, x^3 and
///   x^4 of a shard. Summaries merge in any order into identical bytes. The same pass
///   counts the selection's first histograms (`TKorFirstCounts`).
/// - `TKorRankSelection` (one to three passes): the values at given ranks (median,
///   quartiles), found by counting the prefixes of an order-preserving key of each value
///   (`PrefixCounts`) and narrowing to the buckets that hold the ranks, until the few
///   candidates left are gathered (`CollectPrefixes`).
///
/// Every pass takes a shard's values as Floats or as doubles (read as the Floats they
/// convert to).
/// - `TKorModeCells` (two passes, moves 8 bytes a value): the values that can be in a run
///   of equal neighbours, found by counting cells of the number line without moving the
///   values themselves.
/// - `TKorRunSummary` (moves those values once): the mode, from the runs of equal
///   neighbours of each range of keys, sorted where it lands; adjacent ranges merge in key
///   order.
#pragma once

#include <kornum/KornumDescStats.h>
#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

KORNUM_EXPORT_BEGIN
/// Mergeable summaries and exact selection for the report over sharded data.
namespace KornumSharded {

using namespace Kornumglobals;

/// The 80-bit key of a value: its order as unsigned integers is the order of the values
/// (-0 below +0). `High` holds the sign and exponent bits, `Low` the significand.
struct TKorKey {
    std::uint16_t High = 0;  ///< The sign and exponent bits, transformed.
    std::uint64_t Low = 0;   ///< The significand bits, transformed.
    /// Keys compare as 80-bit unsigned integers.
    auto operator<=>(const TKorKey&) const = default;
};

/// The key of X (see `TKorKey`).
TKorKey KeyOf(Float X) noexcept;
/// The value whose key is K.
Float ValueOf(TKorKey K) noexcept;

/// One histogram of `PrefixCounts`: (next 16 bits, count) for each bucket that holds
/// values, in ascending bucket order.
using TKorHistogram = std::vector<std::pair<std::uint32_t, std::uint64_t>>;

/// The selection's first histograms, counted in the summary's pass over a shard (see
/// `TKorShardSummary::Add`): the top 16 key bits of every value (`PrefixCounts` for a
/// request of 0 bits) and, under each top bucket that holds an eighth or more of the
/// shard's first 4096 values, the next 16 bits. Merged over shards, a finer histogram
/// whose total is its bucket's count in Top is complete: it stands for the pass that would
/// count it (`TKorRankSelection::NarrowWith`).
struct TKorFirstCounts {
    TKorHistogram Top;  ///< By the top 16 key bits.
    /// (top bucket, its values by the next 16 key bits), in ascending bucket order.
    std::vector<std::pair<std::uint32_t, TKorHistogram>> Finer;
    /// Adds the counts of another shard.
    void Merge(const TKorFirstCounts& Other);
    /// The histogram under a top bucket by the next 16 bits when every value under it was
    /// counted, else null.
    const TKorHistogram* CompleteFiner(std::uint32_t Bucket) const;
};

/// The exact moments of a merged summary, each rounded once to Float from the exact sums.
struct TKorMoments {
    Float Sum = 0;       ///< The sum of the values.
    Float SumSq = 0;     ///< The sum of their squares.
    Float Mean = 0;      ///< Sum / n.
    Float Variance = 0;  ///< Sum of squared deviations / n (population) or / (n - 1).
    Float StdDev = 0;    ///< The square root of the variance.
    Float Skew = 0;      ///< The report's skew form (0 below three values or no spread).
    Float Kurtosis = 0;  ///< The report's excess kurtosis (0 below four values or no spread).
};

/// The exact summary of a shard: count, minimum, maximum and the exact sums of the first
/// four powers of its values. Each power is formed exactly from the 64-bit significand
/// and added to a fixed-point accumulator that covers the whole exponent range, so no
/// sum is ever rounded: merging summaries in any order gives identical state and bytes.
class TKorShardSummary {
public:
    /// An empty summary.
    TKorShardSummary();
    /// Releases the sums.
    ~TKorShardSummary();
    /// @name Copy and move
    /// @{

    /// A summary is a value: copies are independent; a moved-from summary may only be
    /// assigned or destroyed.
    TKorShardSummary(const TKorShardSummary&);
    TKorShardSummary& operator=(const TKorShardSummary&);
    TKorShardSummary(TKorShardSummary&&) noexcept;
    TKorShardSummary& operator=(TKorShardSummary&&) noexcept;
    /// @}

    /// Adds the values. NaN and infinities are counted apart; with any of them the
    /// moments follow IEEE arithmetic (see `Moments`).
    void Add(std::span<const Float> Values);
    /// Adds the values, and adds their first histograms of the selection to Counts, in
    /// the same pass over them.
    void Add(std::span<const Float> Values, TKorFirstCounts& Counts);
    /// Each `Add` also takes doubles: the same as adding the Floats they convert to.
    void Add(std::span<const double> Values);
    /// @copydoc Add(std::span<const double>)
    void Add(std::span<const double> Values, TKorFirstCounts& Counts);
    /// Adds the values of Other.
    void Merge(const TKorShardSummary& Other);

    /// The number of values.
    Int64 Count() const noexcept { return count_; }
    /// The smallest value (0 when empty).
    Float Minimum() const noexcept { return count_ ? minimum_ : 0; }
    /// The largest value (0 when empty).
    Float Maximum() const noexcept { return count_ ? maximum_ : 0; }
    /// Sum, sum of squares, mean, variance, standard deviation, skew and kurtosis, each
    /// within one unit in the last place of the exact statistic of the values (the sums
    /// are exact; the few operations after them run in 113-bit arithmetic, rounded once
    /// to Float). The variance of one value of a sample is 0.
    TKorMoments Moments(bool Population) const;

    /// The summary as bytes: "KNSS", a format version (1), then every field in
    /// little-endian byte order; the sums as their nonzero 64-bit limbs, so equal
    /// summaries give equal bytes.
    std::string Serialize() const;
    /// The summary of bytes from `Serialize`. A buffer that is not one (another magic, a
    /// version this library does not read, a wrong length or an inconsistent field)
    /// raises `Platform::Exception` saying what is wrong.
    static TKorShardSummary Deserialize(std::string_view Bytes);

    /// True when both hold the same values' summary.
    bool operator==(const TKorShardSummary& Other) const;

private:
    struct Sums;
    template <class E>
    void AddCounting(std::span<const E> Values, TKorFirstCounts* Counts);
    Int64 count_ = 0;
    Float minimum_ = 0, maximum_ = 0;
    Int64 nan_ = 0, plusInf_ = 0, minusInf_ = 0;
    Sums* sums_;
};

/// A request of one pass of selection: count the values whose key starts with the top
/// `Bits` bits of `Prefix` (a full key; its lower bits are ignored) by the next 16 bits.
struct TKorPrefixRequest {
    TKorKey Prefix;  ///< The key prefix (lower bits ignored).
    int Bits = 0;    ///< Its length in bits, 0 to 64 (a multiple of 16).
};

/// For each request, the histogram of the values under its prefix by the next 16 bits.
std::vector<TKorHistogram> PrefixCounts(std::span<const Float> Values,
                                        const std::vector<TKorPrefixRequest>& Requests);
/// `PrefixCounts` of doubles: the counts of the Floats they convert to.
std::vector<TKorHistogram> PrefixCounts(std::span<const double> Values,
                                        const std::vector<TKorPrefixRequest>& Requests);
/// Adds histogram From into Into (both for the same requests).
void MergeCounts(std::vector<TKorHistogram>& Into, const std::vector<TKorHistogram>& From);
/// For each prefix, the values of Values whose key starts with its top Bits bits, in one
/// pass over the values.
std::vector<std::vector<Float>> CollectPrefixes(std::span<const Float> Values,
                                                const std::vector<TKorPrefixRequest>& Prefixes);
/// `CollectPrefixes` of doubles, collected as the Floats they convert to.
std::vector<std::vector<Float>> CollectPrefixes(std::span<const double> Values,
                                                const std::vector<TKorPrefixRequest>& Prefixes);

/// The exact values at given ranks (counted from 0 in ascending order) of N values spread
/// over shards. Each round asks the shards for `Requests` (through `PrefixCounts`) and
/// hands the merged histograms to `Narrow`; when `Gathering` is true it asks them instead
/// for the values under `GatherPrefixes` (`CollectPrefixes`) and hands those to `Gathered`.
class TKorRankSelection {
public:
    /// Selection of the given ranks (each below N) of N values; buckets of at most
    /// GatherLimit values are gathered rather than narrowed.
    TKorRankSelection(Int64 N, std::vector<Int64> Ranks, Int64 GatherLimit = 1 << 16);
    /// True when every rank is found.
    bool Done() const noexcept;
    /// True when the next round gathers values rather than counting prefixes.
    bool Gathering() const noexcept;
    /// The prefixes to count in the next round (distinct, one per open bucket).
    std::vector<TKorPrefixRequest> Requests() const;
    /// Narrows every open rank to the bucket of the merged Counts (for `Requests`).
    void Narrow(const std::vector<TKorHistogram>& Counts);
    /// Narrows with the first histograms where they answer `Requests` (the top histogram
    /// the first round, complete finer ones the second): true when they did, and the
    /// round's pass over the shards is saved; false, and nothing changed, otherwise.
    bool NarrowWith(const TKorFirstCounts& Counts);
    /// The prefixes whose values to gather in the next round.
    std::vector<TKorPrefixRequest> GatherPrefixes() const;
    /// Takes the values gathered for `GatherPrefixes`, one list each, and finds the ranks.
    void Gathered(std::vector<std::vector<Float>> Values);
    /// The value at each rank, in the order given.
    std::vector<Float> Values() const;

private:
    struct Open {
        Int64 Rank;      // the rank among the values under the prefix
        TKorPrefixRequest At;
        Int64 Count;     // values under the prefix (N at first)
        bool Found = false;
        Float Value = 0;
    };
    std::vector<Open> open_;
    Int64 gatherLimit_;
};

/// Cut points that split keys into Parts ranges of about equal counts, from the merged
/// histogram of the top 16 key bits (`PrefixCounts` with a request of 0 bits) and, for
/// the top buckets listed in Finer, the histogram of their next 16 bits: ascending keys,
/// each the first key of a range after the first. A bucket (of 16 or 32 bits) is never
/// split.
std::vector<TKorKey> RangeBounds(const TKorHistogram& TopCounts,
                                 const std::vector<std::pair<std::uint32_t, TKorHistogram>>& Finer, int Parts);
/// Values split by the ranges of Bounds (from `RangeBounds`): part i holds the values whose
/// key is at least Bounds[i - 1] and below Bounds[i].
std::vector<std::vector<Float>> SplitByRange(std::span<const Float> Values, const std::vector<TKorKey>& Bounds);
/// `SplitByRange` of doubles, split as the Floats they convert to.
std::vector<std::vector<Float>> SplitByRange(std::span<const double> Values, const std::vector<TKorKey>& Bounds);

/// The filter of the mode. The number line is cut into cells so narrow that two values
/// `Kornummath::SameFloat` calls the same lie in one cell or in two neighbouring ones (cells
/// of 2^s units in the last place above 1 in magnitude, of a fixed width 2^-w below it,
/// both at least four tolerances wide), numbered in ascending order. A value alone in its
/// cell and both neighbours is in no run of more than one value, so only the values in the
/// other cells, the busy ones, matter to the mode: counting the cells (8 bytes a value, no
/// values moved) finds them, and only they go on to `TKorRunSummary`. The cells are dealt
/// to parts in blocks of 2^`CellBlockBits` by a hash of the block (`CellPart`): the parts
/// need nothing known of the values beforehand, and are even whatever their distribution.
class TKorModeCells {
public:
    /// The cells for the tolerance `KorTolerance` has now.
    TKorModeCells() noexcept;
    /// False when the tolerance is too coarse (above 2^-6) or not a number: then no cells
    /// are made, and every value goes to the runs.
    bool Usable() const noexcept { return shift_ > 0; }
    /// The number of X's cell (NaN after +infinity, -NaN before -infinity).
    std::uint64_t CellOf(const Float& X) const noexcept;
    /// The cells of Values (but NaN, never the same as anything) dealt to Parts parts, one
    /// piece each for `BusyCells`: each cell as a key of its block's window, and a cell at
    /// the edge of its block also in the window of the neighbouring block.
    std::vector<std::vector<std::uint64_t>> SplitCells(std::span<const Float> Values, int Parts) const;
    /// `SplitCells` of doubles: the cells of the Floats they convert to.
    std::vector<std::vector<std::uint64_t>> SplitCells(std::span<const double> Values, int Parts) const;
    /// The values of Values whose cell is in Busy (in any order).
    std::vector<Float> Candidates(std::span<const Float> Values, std::span<const std::uint64_t> Busy) const;
    /// `Candidates` of doubles, found as the Floats they convert to.
    std::vector<Float> Candidates(std::span<const double> Values, std::span<const std::uint64_t> Busy) const;

private:
    template <class E>
    std::vector<std::vector<std::uint64_t>> Split(std::span<const E> Values, int Parts) const;
    template <class E>
    std::vector<Float> Find(std::span<const E> Values, std::span<const std::uint64_t> Busy) const;
    int shift_ = 0;  // cells of 2^shift_ units in the last place for magnitudes of 1 and above
    int fine_ = 0;   // cells of 2^-fine_ below 1
};

/// Cells are dealt to parts in blocks of 2^CellBlockBits neighbours.
inline constexpr int CellBlockBits = 12;
/// The part, from 0 to Parts - 1, whose pieces of `SplitCells` hold Cell as its own.
int CellPart(std::uint64_t Cell, int Parts) noexcept;

/// The busy cells of one part, from its pieces of `SplitCells` (one piece a shard), in no
/// particular order: its own cells that hold two values or more, or one value with another
/// in a neighbouring cell. Count is set to the number of values they hold.
std::vector<std::uint64_t> BusyCells(const std::vector<std::span<const std::uint64_t>>& Pieces, Int64& Count);

/// The ranks the report reads for N values: those of the median and of the two quartile
/// positions (plus-one-half rule), distinct and ascending.
std::vector<Int64> ReportRanks(Int64 N);

/// The runs of equal neighbours (`Kornummath::SameFloat`) of a range of sorted values, as
/// far as the mode needs them: the open runs at both ends, and the longest closed run
/// between them. Summaries of adjacent ranges merge in ascending order (`Append`).
class TKorRunSummary {
public:
    /// The runs of Values (sorted here; NaN not allowed).
    static TKorRunSummary OfValues(std::span<const Float> Values);
    /// Appends the summary of the range that follows this one.
    void Append(const TKorRunSummary& Next);
    /// True with the mode when one run is longer than every other (a single value is its
    /// own mode); false when no value repeats or the longest runs tie.
    bool Mode(Float& Value) const;
    /// The summary as bytes ("KNRS", version 1, little-endian).
    std::string Serialize() const;
    /// The summary of bytes from `Serialize`; anything else raises `Platform::Exception`.
    static TKorRunSummary Deserialize(std::string_view Bytes);

private:
    Int64 count_ = 0;
    Float first_ = 0, last_ = 0;   // the first and last values
    Int64 lead_ = 0, trail_ = 0;   // the lengths of the open runs at both ends
    Float leadLast_ = 0;           // the last value of the run at the start
    Int64 best_ = 0;               // the longest closed run of more than one value
    Int64 bestRuns_ = 0;           // how many closed runs are that long
    Float bestValue_ = 0;          // the last value of the first of them
    void Close(Int64 Length, Float Value);
};

/// The report entries of `KornumDescStats::TKorDescStats::ReportEntries` from a merged
/// summary, the values at `ReportRanks` and the mode (when ModeExists).
std::vector<KornumDescStats::TKorReportEntry> ReportEntries(const TKorShardSummary& Summary, bool Population,
                                                            const std::vector<Float>& RankValues,
                                                            bool ModeExists, Float Mode);

}  // namespace KornumSharded
KORNUM_EXPORT_END
