/// @file
/// `KornumDescStats::TKorDescStats`: a component that keeps a list of Float values, keeps
/// their descriptive statistics up to date and writes a captioned text report.
///
/// Every mutating call recomputes the statistics at once (unless an update bracket is
/// open); reading a property never does. The statistics properties are read-only: their
/// setters exist, as for every published property, and do nothing.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>
#include <kornum/PlatformComponents.h>

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// The descriptive-statistics component module: `TKorDescStats`, whose captions and
/// messages are the identifiers of `Kornum_RS_DescStats`.
KORNUM_EXPORT_BEGIN
namespace KornumDescStats {

using namespace Kornumglobals;

/// One line of the descriptive-statistics report, as `TKorDescStats::ReportEntries` gives it.
struct TKorReportEntry {
    std::string Key;             ///< A name for programs, such as `mean` or `standard_deviation`.
    std::string Caption;         ///< The line's caption, or the message that stands for the value.
    std::optional<Float> Value;  ///< The statistic; none where the report gives a message.
    bool Integral = false;       ///< The value is a count, shown as an integer.
};

/// A non-visual component holding one list of Float values, their descriptive statistics as
/// read-only properties, and a captioned text report (`DescStats`).
///
/// The values come in as text lines (`Items`, converted by `Kornumconvert::Str2Float`,
/// which is how streaming fills the component), as typed vectors (`SetValues`,
/// `SetLIntValues`, ...) or one by one (`AddValue`). Every mutating call recomputes every
/// statistic at once (`UpdateStats`), unless `BeginUpdate` has opened an update bracket;
/// reading a statistic never computes. With no values every statistic is 0 and `ModeExists`
/// is false. `Population` chooses the population (divisor n) or the sample (divisor n - 1)
/// forms of the variance, skew and kurtosis.
///
/// The published properties (`PublishedProperties`, read by streaming and inspection), in
/// their order: `DecimalPlaces` (stored, default 4), `Items` (stored), the read-only
/// statistics `Maximum`, `Mean`, `Median`, `Minimum`, `Mode`, `ModeExists`, `NoOfValues`,
/// then `Population` (stored, default false), then `StdDev`, `Sum`, `SumSq`, `Variance`,
/// `Version`, `Kurtosis`, `Skew`, `Quartile1st`, `Quartile3rd` and `IQR`, all read-only and
/// not stored. Nothing raises for an empty list; the failures are those of the text
/// conversion (`Platform::EConvertError`) and of a result vector too short
/// (`Platform::ERangeError`).
class TKorDescStats : public Platform::TComponent {
public:
    /// An empty component (every statistic 0, `DecimalPlaces` 4, a sample) owned by AOwner
    /// (may be null).
    explicit TKorDescStats(Platform::TComponent* AOwner);
    /// Releases the values and `Items`.
    ~TKorDescStats() override;

    // ---- Published properties ------------------------------------------------------
    /// The decimals of the numbers in the report (`DescStats`); default 4.
    Byte DecimalPlaces() const noexcept { return decimalPlaces_; }
    /// Sets the decimals of the report; nothing is recomputed. Through the property table a
    /// value outside 0 .. 255 raises `Platform::ERangeError`.
    void SetDecimalPlaces(Byte Value) noexcept { decimalPlaces_ = Value; }  // no recomputation

    /// The values as text, one per line: the lines given by `SetItems` or streaming, with
    /// the lines of `AddValue` appended and those of `DeleteValue` removed. `SetValues` and
    /// the typed setters leave it as it is, so that it no longer mirrors the values.
    Platform::TStrings& Items() const noexcept { return *items_; }
    /// Copies the lines of S into `Items`, replaces the values by their conversions
    /// (`ConvertItems`) and recomputes. A line that is not a number raises
    /// `Platform::EConvertError` quoting it (from `Kornumconvert::Str2Float`); `Items` then
    /// holds the new lines while the values and statistics are those of before.
    void SetItems(const Platform::TStrings& S);

    /// Whether the values are a whole population (true) or a sample (false, the default).
    bool Population() const noexcept { return population_; }
    /// Sets `Population`; recomputes when the setting changes.
    void SetPopulation(bool B);

    /// The largest value; 0 with no values.
    Float Maximum() const noexcept { return maximum_; }
    /// The arithmetic mean, `Sum` / `NoOfValues`; 0 with no values.
    Float Mean() const noexcept { return mean_; }
    /// The median (`KornumStatistics::GetMedian`): the middle value, or the mean of the two
    /// middle ones of an even count; 0 with no values.
    Float Median() const noexcept { return median_; }
    /// The smallest value; 0 with no values.
    Float Minimum() const noexcept { return minimum_; }
    /// The modal value when `ModeExists`. Otherwise it is what `KornumStatistics::GetMode`
    /// leaves (`KornumStatistics::KorNoMode` when no value repeats, the smallest of the
    /// values tied for the highest count), or 0 with no values.
    Float Mode() const noexcept { return mode_; }
    /// True when one value repeats more often than every other.
    bool ModeExists() const noexcept { return modeExists_; }
    /// The number of values.
    Cardinal NoOfValues() const noexcept { return Cardinal(values_.Length()); }
    /// The square root of `Variance`.
    Float StdDev() const noexcept { return stdDev_; }
    /// The sum of the values.
    Float Sum() const noexcept { return sum_; }
    /// The sum of the squares of the values (not of their deviations).
    Float SumSq() const noexcept { return sumSq_; }
    /// The variance: the sum of squared deviations from `Mean` divided by n with
    /// `Population`, by n - 1 otherwise (0 for a single value of a sample).
    Float Variance() const noexcept { return variance_; }
    /// The version of the runtime package, `KornumPackage::Version()`.
    std::string Version() const;
    /// The excess kurtosis (population or sample form by `Population`); 0 with fewer than
    /// four values or a `StdDev` that is zero by `Kornummath::FloatIsZero`.
    Float Kurtosis() const noexcept { return kurtosis_; }
    /// The skew (population or sample form by `Population`); 0 with fewer than three values
    /// or a `StdDev` that is zero by `Kornummath::FloatIsZero`.
    Float Skew() const noexcept { return skew_; }
    /// The first quartile (`KornumStatistics::GetQuartiles`: interpolated at position n /
    /// 4 + 0.5 of the ascending values, counted from 1); 0 with no values.
    Float Quartile1st() const noexcept { return quartile1st_; }
    /// The third quartile, interpolated at position 3n / 4 + 0.5; 0 with no values.
    Float Quartile3rd() const noexcept { return quartile3rd_; }
    /// The inter-quartile range, `Quartile3rd` - `Quartile1st`.
    Float IQR() const noexcept { return iqr_; }

    /// @name Setters of the read-only properties
    /// @{

    /// Does nothing: the statistics and `Version` are read-only, but every published
    /// property has a setter, which streaming and inspection call.
    void SetMaximum(Float) noexcept {}
    void SetMean(Float) noexcept {}
    void SetMedian(Float) noexcept {}
    void SetMinimum(Float) noexcept {}
    void SetMode(Float) noexcept {}
    void SetModeExists(bool) noexcept {}
    void SetNoOfValues(Cardinal) noexcept {}
    void SetStdDev(Float) noexcept {}
    void SetSum(Float) noexcept {}
    void SetSumSq(Float) noexcept {}
    void SetVariance(Float) noexcept {}
    void SetVersion(const std::string&) noexcept {}
    void SetKurtosis(Float) noexcept {}
    void SetSkew(Float) noexcept {}
    void SetQuartile1st(Float) noexcept {}
    void SetQuartile3rd(Float) noexcept {}
    void SetIQR(Float) noexcept {}
    /// @}

    /// The published properties in their order (see the class description).
    std::span<const Platform::TPropertyInfo> PublishedProperties() const override;
    /// `"TKorDescStats"`.
    std::string_view ClassName() const override { return "TKorDescStats"; }

    // ---- Values at run time --------------------------------------------------------
    /// The values in entry order: a handle sharing the component's storage.
    TKorFloatVector Values() const noexcept { return values_; }
    /// The values in ascending order, as the order statistics read them (the elements
    /// `KornumVector::QSortVector` leaves): a handle sharing the component's sorted copy,
    /// made with the statistics, to be read only; empty with no values.
    TKorFloatVector SortedValues() const noexcept { return sorted_; }

    /// @name SetValues
    /// @{

    /// Replaces the values by a copy of V (integer elements converted to Float) and
    /// recomputes. `Items` is left as it is and no longer mirrors the values until it is
    /// set again. The rvalue `TKorFloatVector` overload takes V over without a copy when V
    /// is the only handle of its storage (V is left empty); a shared V is copied.
    ///
    /// | Overload | Elements |
    /// |---|---|
    /// | `SetValues` | TKorFloatVector (copied, or taken over from an rvalue) |
    /// | `SetLIntValues` | TKorLIntVector |
    /// | `SetLWordValues` | TKorLWordVector |
    /// | `SetInt64Values` | TKorInt64Vector |
    void SetValues(const TKorFloatVector& V);
    void SetValues(TKorFloatVector&& V);
    void SetLIntValues(const TKorLIntVector& V);
    void SetLWordValues(const TKorLWordVector& V);
    void SetInt64Values(const TKorInt64Vector& V);
    /// @}

    /// @name GetLIntValues, GetLWordValues, GetInt64Values
    /// @{

    /// Writes each value, rounded to the nearest integer (ties to even), into the caller's
    /// Result, which is not resized: elements past `NoOfValues` are left as they are.
    /// Values outside the target type wrap as the conversion through Int64 gives them.
    /// Failures: a Result shorter than `NoOfValues` raises `Platform::ERangeError` naming
    /// both lengths, before anything is written.
    ///
    /// | Member | Result |
    /// |---|---|
    /// | `GetLIntValues` | TKorLIntVector |
    /// | `GetLWordValues` | TKorLWordVector |
    /// | `GetInt64Values` | TKorInt64Vector |
    void GetLIntValues(TKorLIntVector& Result) const;
    void GetLWordValues(TKorLWordVector& Result) const;
    void GetInt64Values(TKorInt64Vector& Result) const;
    /// @}

    // ---- Methods -------------------------------------------------------------------
    /// Appends X to the values and its text to `Items`, then recomputes. The text has 20
    /// decimals with the trailing zeros removed (0.5 gives "0.5", 2 gives "2."), so a value
    /// below 5E-21 in magnitude is written as zero.
    void AddValue(Float X);
    /// Removes the value and the `Items` line at Index (counted from 0), then recomputes;
    /// an index outside the values does nothing.
    void DeleteValue(Integer Index);
    /// Removes the last value and its `Items` line, as `DeleteValue`; nothing when empty.
    void DeleteLast();
    /// Empties the values and `Items`, closes any update bracket and recomputes (every
    /// statistic 0).
    void Clear();
    /// Opens an update bracket: recomputation is suppressed until `EndUpdate` (a flag, not
    /// a count: one `EndUpdate` closes any number of `BeginUpdate` calls).
    void BeginUpdate() noexcept { updating_ = true; }
    /// Closes the update bracket and recomputes.
    void EndUpdate();
    /// Replaces the values by the conversion of every `Items` line, in order, without
    /// recomputing. A line that is not a number raises `Platform::EConvertError` quoting it
    /// (from `Kornumconvert::Str2Float`); every line is converted before the values are
    /// replaced, so they are then left as they were.
    void ConvertItems();
    /// Recomputes every statistic from the values, unless an update bracket is open.
    void UpdateStats();
    /// The report, a new string list the caller owns: one line per statistic, a caption of
    /// `Kornum_RS_DescStats`, a TAB and the value with `DecimalPlaces` decimals
    /// (`Kornumconvert::Float2EStr`; the count as an integer). In order: number of values,
    /// maximum, minimum, range, sum, sum of squares, mean, mode (or the line
    /// `Kornum_RS_DescStats::rsDSNoMode`), median, variance and standard deviation (for a
    /// single value of a sample the lines `rsDSNEVariance` and `rsDSNEStdDev`), kurtosis
    /// (below four values `rsDSNEKurtosis`, with a zero `StdDev` `rsDSSDKurtosis`), skew
    /// (below three values `rsDSNESkew`, with a zero `StdDev` `rsDSSDSkew`), the first and
    /// third quartiles and the inter-quartile range. With no values it is the single line
    /// `Kornum_RS_Math::rsVectorIsEmpty`. An open update bracket is closed first (and the
    /// statistics recomputed).
    std::unique_ptr<Platform::TStringList> DescStats();

    /// The report as entries, one per line of `DescStats` and in its order, for a program
    /// that renders the report in a form of its own (JSON, a table): the entry's key
    /// (`count`, `maximum`, `minimum`, `range`, `sum`, `sum_of_squares`, `mean`, `mode`,
    /// `median`, `variance`, `standard_deviation`, `kurtosis`, `skew`, `first_quartile`,
    /// `third_quartile`, `interquartile_range`), its caption and its value, or no value
    /// where the report gives a message line instead (the caption is then that message).
    /// With no values it is empty. An open update bracket is closed first.
    std::vector<TKorReportEntry> ReportEntries();

    /// After streaming: ends the loading state, replaces the values by the conversion of
    /// `Items` and recomputes. A line that is not a number raises `Platform::EConvertError`
    /// as `ConvertItems` does.
    void Loaded() override;

private:
    bool updating_ = false;
    Byte decimalPlaces_ = 4;
    std::unique_ptr<Platform::TStringList> items_;
    Float maximum_ = 0, minimum_ = 0, mean_ = 0, median_ = 0, mode_ = 0;
    bool modeExists_ = false;
    bool population_ = false;
    Float stdDev_ = 0, sum_ = 0, sumSq_ = 0, variance_ = 0, kurtosis_ = 0, skew_ = 0;
    Float quartile1st_ = 0, quartile3rd_ = 0, iqr_ = 0;
    TKorFloatVector sorted_;
    TKorFloatVector values_;

    void ResetStatistics();
    // Takes a vector of its own as the values and recomputes.
    void ReplaceValues(TKorFloatVector Fresh);
};

}  // namespace KornumDescStats
KORNUM_EXPORT_END
