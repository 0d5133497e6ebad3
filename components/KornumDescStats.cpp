#include <kornum/KornumDescStats.h>

#include "components/detail/AscendingCopy.hpp"
#include "components/detail/ReportEntries.hpp"
#include "statistics/detail/ShapeFromSums.hpp"

#include <kornum/KornumPackage.h>
#include <kornum/KornumStatistics.h>
#include <kornum/KornumVector.h>
#include <kornum/Kornum_RS_DescStats.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornumconvert.h>
#include <kornum/Kornummath.h>

#include <cmath>

namespace KornumDescStats {

using namespace Kornum_RS_DescStats;
using Kornumconvert::Float2EStr;
using Kornumconvert::Int2EStr;
using Platform::TPropertyInfo;
using Platform::TPropertyType;
using Platform::TPropertyValue;

namespace {

// Rounds every value to the nearest integer, ties to even, and stores it into a result
// that the caller sized; nothing is written when the result is too short.
template <class Target>
void RoundValuesInto(const TKorFloatVector& values, const TKorVector<Target>& result) {
    if (result.Length() < values.Length())
        throw Platform::ERangeError("The result vector holds " + std::to_string(result.Length()) +
                                    " elements; " + std::to_string(values.Length()) +
                                    " are needed");
    for (Integer i = 0; i < values.Length(); ++i)
        result[i] = static_cast<Target>(std::llrint(Float(values[i])));
}

// The sums of the values and of their squares, as SumVector and SumSqVector form them
// (from the first term on), in one pass.
struct Sums {
    Float values, squares;
};
Sums SumsOf(const TKorFloatVector& V) {
    const PackedFloat* data = V.data();
    const Float first = data[0];
    Sums sums{first, first * first};
    for (Integer i = 1; i < V.Length(); ++i) {
        const Float x = data[i];
        sums.values = sums.values + x;
        sums.squares = sums.squares + x * x;
    }
    return sums;
}

// The sums of the squared, cubed and fourth-power deviations from Mean, in one pass: the
// first as SumSqDiffVector forms it (from the first term on), the others as the skew and
// kurtosis of KornumStatistics do (from 0).
struct Deviations {
    Float squares, cubes, fourthPowers;
};
Deviations DeviationsOf(const TKorFloatVector& V, Float Mean) {
    const PackedFloat* data = V.data();
    const Float first = Float(data[0]) - Mean;
    Deviations sums{first * first, Float(0) + first * first * first, Float(0) + (first * first) * (first * first)};
    for (Integer i = 1; i < V.Length(); ++i) {
        const Float d = Float(data[i]) - Mean;
        sums.squares = sums.squares + d * d;
        sums.cubes += d * d * d;
        sums.fourthPowers += (d * d) * (d * d);
    }
    return sums;
}

const TKorDescStats& Self(const Platform::TComponent& component) {
    return static_cast<const TKorDescStats&>(component);
}
TKorDescStats& Self(Platform::TComponent& component) {
    return static_cast<TKorDescStats&>(component);
}

// A read-only Float statistic: shown in inspection, never stored.
#define KORNUM_STATISTIC(Name)                                                           \
    TPropertyInfo {                                                                      \
        #Name, TPropertyType::Float, false, TPropertyValue(0.0L),                        \
            [](const Platform::TComponent& c) { return TPropertyValue(Self(c).Name()); }, \
            [](Platform::TComponent& c, const TPropertyValue& v) {                       \
                Self(c).Set##Name(std::get<long double>(v));                             \
            }                                                                            \
    }

const std::vector<TPropertyInfo>& DescStatsProperties() {
    static const std::vector<TPropertyInfo> properties = {
        {"DecimalPlaces", TPropertyType::Integer, true, TPropertyValue(std::int64_t(4)),
         [](const Platform::TComponent& c) { return TPropertyValue(std::int64_t(Self(c).DecimalPlaces())); },
         [](Platform::TComponent& c, const TPropertyValue& v) {
             const std::int64_t places = std::get<std::int64_t>(v);
             if (places < 0 || places > 255)
                 throw Platform::ERangeError("DecimalPlaces must lie between 0 and 255");
             Self(c).SetDecimalPlaces(Byte(places));
         }},
        // Streaming fills the owned list in place; Loaded converts it afterwards.
        {"Items", TPropertyType::Strings, true, TPropertyValue(std::vector<std::string>{}),
         [](const Platform::TComponent& c) {
             std::vector<std::string> lines;
             for (Integer i = 0; i < Self(c).Items().Count(); ++i) lines.push_back(Self(c).Items()[i]);
             return TPropertyValue(std::move(lines));
         },
         [](Platform::TComponent& c, const TPropertyValue& v) {
             Platform::TStrings& items = Self(c).Items();
             items.Clear();
             for (const std::string& line : std::get<std::vector<std::string>>(v)) items.Add(line);
         }},
        KORNUM_STATISTIC(Maximum),
        KORNUM_STATISTIC(Mean),
        KORNUM_STATISTIC(Median),
        KORNUM_STATISTIC(Minimum),
        KORNUM_STATISTIC(Mode),
        {"ModeExists", TPropertyType::Boolean, false, TPropertyValue(false),
         [](const Platform::TComponent& c) { return TPropertyValue(Self(c).ModeExists()); },
         [](Platform::TComponent& c, const TPropertyValue& v) { Self(c).SetModeExists(std::get<bool>(v)); }},
        {"NoOfValues", TPropertyType::Integer, false, TPropertyValue(std::int64_t(0)),
         [](const Platform::TComponent& c) { return TPropertyValue(std::int64_t(Self(c).NoOfValues())); },
         [](Platform::TComponent& c, const TPropertyValue& v) {
             Self(c).SetNoOfValues(Cardinal(std::get<std::int64_t>(v)));
         }},
        {"Population", TPropertyType::Boolean, true, TPropertyValue(false),
         [](const Platform::TComponent& c) { return TPropertyValue(Self(c).Population()); },
         [](Platform::TComponent& c, const TPropertyValue& v) { Self(c).SetPopulation(std::get<bool>(v)); }},
        KORNUM_STATISTIC(StdDev),
        KORNUM_STATISTIC(Sum),
        KORNUM_STATISTIC(SumSq),
        KORNUM_STATISTIC(Variance),
        {"Version", TPropertyType::Text, false, TPropertyValue(std::string()),
         [](const Platform::TComponent& c) { return TPropertyValue(Self(c).Version()); },
         [](Platform::TComponent& c, const TPropertyValue& v) { Self(c).SetVersion(std::get<std::string>(v)); }},
        KORNUM_STATISTIC(Kurtosis),
        KORNUM_STATISTIC(Skew),
        KORNUM_STATISTIC(Quartile1st),
        KORNUM_STATISTIC(Quartile3rd),
        KORNUM_STATISTIC(IQR),
    };
    return properties;
}

#undef KORNUM_STATISTIC

}  // namespace

TKorDescStats::TKorDescStats(Platform::TComponent* AOwner)
    : Platform::TComponent(AOwner), items_(std::make_unique<Platform::TStringList>()) {
    UpdateStats();
}

TKorDescStats::~TKorDescStats() = default;

std::span<const TPropertyInfo> TKorDescStats::PublishedProperties() const {
    return DescStatsProperties();
}

std::string TKorDescStats::Version() const { return KornumPackage::Version(); }

void TKorDescStats::SetItems(const Platform::TStrings& S) {
    items_->Assign(S);
    ConvertItems();
    UpdateStats();
}

void TKorDescStats::SetPopulation(bool B) {
    if (B == population_) return;
    population_ = B;
    UpdateStats();
}

void TKorDescStats::ReplaceValues(TKorFloatVector Fresh) {
    values_ = std::move(Fresh);
    UpdateStats();
}

void TKorDescStats::SetValues(const TKorFloatVector& V) { ReplaceValues(KornumVector::CopyVector(V)); }
void TKorDescStats::SetValues(TKorFloatVector&& V) {
    if (V.RefCount() > 1) return SetValues(static_cast<const TKorFloatVector&>(V));
    ReplaceValues(std::move(V));
}
void TKorDescStats::SetLIntValues(const TKorLIntVector& V) { ReplaceValues(KornumVector::Vector2FloatVector(V)); }
void TKorDescStats::SetLWordValues(const TKorLWordVector& V) { ReplaceValues(KornumVector::Vector2FloatVector(V)); }
void TKorDescStats::SetInt64Values(const TKorInt64Vector& V) { ReplaceValues(KornumVector::Vector2FloatVector(V)); }

void TKorDescStats::GetLIntValues(TKorLIntVector& Result) const { RoundValuesInto(values_, Result); }
void TKorDescStats::GetLWordValues(TKorLWordVector& Result) const { RoundValuesInto(values_, Result); }
void TKorDescStats::GetInt64Values(TKorInt64Vector& Result) const { RoundValuesInto(values_, Result); }

void TKorDescStats::AddValue(Float X) {
    KornumVector::AppendValue2Vector(values_, X);
    items_->Add(Kornumconvert::StripTChStr(Float2EStr(X, 20), '0'));
    UpdateStats();
}

void TKorDescStats::DeleteValue(Integer Index) {
    if (Index < 0 || Index > values_.High()) return;
    KornumVector::DeleteValueFromVector(values_, Index);
    if (Index < items_->Count()) items_->Delete(Index);
    UpdateStats();
}

void TKorDescStats::DeleteLast() { DeleteValue(values_.High()); }

void TKorDescStats::Clear() {
    values_.SetLength(0);
    items_->Clear();
    updating_ = false;
    UpdateStats();
}

void TKorDescStats::EndUpdate() {
    updating_ = false;
    UpdateStats();
}

void TKorDescStats::ConvertItems() {
    // Convert every line before replacing anything, so that a bad line leaves the
    // values as they were.
    TKorFloatVector converted;
    converted.SetLength(items_->Count());
    for (Integer i = 0; i < items_->Count(); ++i) converted[i] = Kornumconvert::Str2Float((*items_)[i]);
    values_ = converted;
}

void TKorDescStats::Loaded() {
    Platform::TComponent::Loaded();
    ConvertItems();
    UpdateStats();
}

void TKorDescStats::ResetStatistics() {
    maximum_ = minimum_ = mean_ = median_ = mode_ = 0;
    stdDev_ = sum_ = sumSq_ = variance_ = kurtosis_ = skew_ = 0;
    quartile1st_ = quartile3rd_ = iqr_ = 0;
    modeExists_ = false;
    sorted_.SetLength(0);
}

void TKorDescStats::UpdateStats() {
    if (updating_) return;
    const Integer n = values_.Length();
    if (n == 0) return ResetStatistics();

    sorted_ = detail::AscendingCopy(values_);  // what QSortVector gives, in linear time
    // The sums of SumVector and SumSqVector, then those of SumSqDiffVector and of the
    // skew and kurtosis, each summed in its own order, two sums or three to a pass.
    const Sums sums = SumsOf(values_);
    sum_ = sums.values;
    sumSq_ = sums.squares;
    mean_ = sum_ / n;
    const Deviations deviations = DeviationsOf(values_, mean_);

    const Float ssd = deviations.squares;
    if (population_) {
        variance_ = ssd / n;
    } else {
        variance_ = n < 2 ? 0 : ssd / (n - 1);
    }
    stdDev_ = std::sqrt(variance_);

    median_ = KornumStatistics::GetMedian(sorted_);
    modeExists_ = KornumStatistics::GetMode(sorted_, mode_);
    minimum_ = sorted_[0];
    maximum_ = sorted_[n - 1];

    using namespace KornumStatistics::detail;
    const bool spread = !Kornummath::FloatIsZero(stdDev_);
    kurtosis_ = 0;
    if (n > 3 && spread)
        kurtosis_ = population_ ? PopulationKurtosisFromSum(n, deviations.fourthPowers, stdDev_)
                                : SampleKurtosisFromSum(n, deviations.fourthPowers, stdDev_);
    skew_ = 0;
    if (n > 2 && spread)
        skew_ = population_ ? PopulationSkewFromSum(n, deviations.cubes, stdDev_)
                            : SampleSkewFromSum(n, deviations.cubes, stdDev_);

    KornumStatistics::GetQuartiles(sorted_, quartile1st_, quartile3rd_);
    iqr_ = quartile3rd_ - quartile1st_;
}

std::vector<TKorReportEntry> TKorDescStats::ReportEntries() {
    if (updating_) EndUpdate();
    return detail::ReportEntriesOf({values_.Length(), population_, maximum_, minimum_, sum_, sumSq_, mean_, modeExists_,
                                    mode_, median_, variance_, stdDev_, kurtosis_, skew_, quartile1st_, quartile3rd_});
}

// The text report: each entry's caption, and for a value a TAB and its text.
std::unique_ptr<Platform::TStringList> TKorDescStats::DescStats() {
    auto report = std::make_unique<Platform::TStringList>();
    const std::vector<TKorReportEntry> entries = ReportEntries();
    if (entries.empty()) report->Add(Kornum_RS_Math::rsVectorIsEmpty.Text());
    for (const TKorReportEntry& entry : entries) {
        if (!entry.Value)
            report->Add(entry.Caption);
        else
            report->Add(entry.Caption + '\t' +
                        (entry.Integral ? Int2EStr(Int64(*entry.Value)) : Float2EStr(*entry.Value, decimalPlaces_)));
    }
    return report;
}

}  // namespace KornumDescStats
