// TKorDescStats: a component that keeps a list of Float values, keeps their
// descriptive statistics up to date and writes a captioned text report.
//
// Every mutating call recomputes the statistics at once (unless an update bracket is
// open); reading a property never does. The statistics properties are read-only: their
// setters exist, as for every published property, and do nothing.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>
#include <kornum/PlatformComponents.h>

#include <memory>
#include <span>

namespace KORNUM_API KornumDescStats {

using namespace Kornumglobals;

class TKorDescStats : public Platform::TComponent {
public:
    explicit TKorDescStats(Platform::TComponent* AOwner);
    ~TKorDescStats() override;

    // ---- Published properties ------------------------------------------------------
    Byte DecimalPlaces() const noexcept { return decimalPlaces_; }
    void SetDecimalPlaces(Byte Value) noexcept { decimalPlaces_ = Value; }  // no recomputation

    // One value per line as text. Setting copies the lines, converts them and
    // recomputes; a line that is not a number raises from the conversion.
    Platform::TStrings& Items() const noexcept { return *items_; }
    void SetItems(const Platform::TStrings& S);

    bool Population() const noexcept { return population_; }
    void SetPopulation(bool B);

    Float Maximum() const noexcept { return maximum_; }
    Float Mean() const noexcept { return mean_; }
    Float Median() const noexcept { return median_; }
    Float Minimum() const noexcept { return minimum_; }
    Float Mode() const noexcept { return mode_; }
    bool ModeExists() const noexcept { return modeExists_; }
    Cardinal NoOfValues() const noexcept { return Cardinal(values_.Length()); }
    Float StdDev() const noexcept { return stdDev_; }
    Float Sum() const noexcept { return sum_; }
    Float SumSq() const noexcept { return sumSq_; }
    Float Variance() const noexcept { return variance_; }
    std::string Version() const;
    Float Kurtosis() const noexcept { return kurtosis_; }
    Float Skew() const noexcept { return skew_; }
    Float Quartile1st() const noexcept { return quartile1st_; }
    Float Quartile3rd() const noexcept { return quartile3rd_; }
    Float IQR() const noexcept { return iqr_; }

    // The setters of the read-only properties: they do nothing.
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

    std::span<const Platform::TPropertyInfo> PublishedProperties() const override;
    std::string_view ClassName() const override { return "TKorDescStats"; }

    // ---- Values at run time --------------------------------------------------------
    // The values in entry order (a handle sharing the component's storage).
    TKorFloatVector Values() const noexcept { return values_; }
    // Replace the values (integers converted to Float) and recompute. Items is left
    // as it is and no longer mirrors the values until it is set again.
    void SetValues(const TKorFloatVector& V);
    // Takes V over when it is the only handle of its storage (no copy is made; V is left
    // empty); a V shared with other handles is copied, as by the overload above.
    void SetValues(TKorFloatVector&& V);
    void SetLIntValues(const TKorLIntVector& V);
    void SetLWordValues(const TKorLWordVector& V);
    void SetInt64Values(const TKorInt64Vector& V);

    // Write each value, rounded to the nearest integer (ties to even), into the
    // caller's Result, which is not resized: it must hold at least NoOfValues()
    // elements (else Platform::ERangeError, before anything is written). Values outside
    // the target type wrap as the conversion through Int64 gives them.
    void GetLIntValues(TKorLIntVector& Result) const;
    void GetLWordValues(TKorLWordVector& Result) const;
    void GetInt64Values(TKorInt64Vector& Result) const;

    // ---- Methods -------------------------------------------------------------------
    // Appends X to the values and its text (20 decimals, trailing zeros removed) to Items.
    void AddValue(Float X);
    // Removes the value and the Items line at Index; an index out of range does nothing.
    void DeleteValue(Integer Index);
    void DeleteLast();
    // Empties the values and Items and closes any update bracket.
    void Clear();
    // Suppress recomputation until EndUpdate (a flag, not a count).
    void BeginUpdate() noexcept { updating_ = true; }
    void EndUpdate();
    // Replaces the values by the conversion of every Items line, in order; no recomputation.
    void ConvertItems();
    // Recomputes every statistic, unless an update bracket is open.
    void UpdateStats();
    // The report, one captioned line per statistic (caption, TAB, value). Closes an
    // open update bracket first.
    std::unique_ptr<Platform::TStringList> DescStats();

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
