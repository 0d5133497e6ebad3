/// @file
/// The captions and messages of the descriptive-statistics component and of its sibling
/// reports (hypothesis tests, regression), with their ids and English texts. Trailing
/// blanks are part of the texts. An application may replace them like the other message
/// texts (`Platform::SetResourceText`, `Platform::ReplaceResourceTable`).
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformResources.h>

/// The captions module of the report components: one `Platform::ResourceString` per caption
/// or message, with its numeric id (65488 to 65535), its name and its English default text,
/// the last field of each initializer. `KornumDescStats::TKorDescStats` builds its report
/// from `Text()` of these, so a replaced table changes the report's language; the
/// hypothesis-test and regression identifiers serve the sibling reports. The identifiers
/// are registered by name when the library loads.
KORNUM_EXPORT_BEGIN
namespace Kornum_RS_DescStats {

using Platform::ResourceString;

/// @name Hypothesis-test captions
/// @{

/// A caption or verdict of a hypothesis-test report: test statistic, confidence intervals
/// of the mean and the variance, p-value, rejection region, and the verdicts with their
/// reasons. Its default text is the last field of the initializer.
inline constexpr ResourceString rsTestStatistic{65488, "rsTestStatistic", "Test Statistics: "};
inline constexpr ResourceString rsDSConfidenceIntervalM{65489, "rsDSConfidenceIntervalM", "Confidence Interval for the Mean: "};
inline constexpr ResourceString rsDSConfidenceIntervalV{65490, "rsDSConfidenceIntervalV", "Confidence Interval for the Variance: "};
inline constexpr ResourceString rsPValue{65491, "rsPValue", "P-Value: "};
inline constexpr ResourceString rsRejectionRegion{65492, "rsRejectionRegion", "Rejection Region: "};
inline constexpr ResourceString rsRejected{65493, "rsRejected", "Null Hypothesis is Rejected!"};
inline constexpr ResourceString rsNotRejected{65494, "rsNotRejected", "Null Hypothesis is not-Rejected!"};
inline constexpr ResourceString rsRejectReason{65495, "rsRejectReason", "There is sufficient Statistical evidence to reject the proposal behind the Null Hypothesis"};
inline constexpr ResourceString rsNotRejectReason{65496, "rsNotRejectReason", "There is insufficient Statistical evidence to reject the proposal behind the Null Hypothesis"};
/// @}

/// @name Regression captions
/// @{

/// A caption of a regression report: the regression line, the sum of squared errors, the
/// coefficients of determination and correlation. Its default text is the last field of the
/// initializer.
inline constexpr ResourceString rsDSRegressionLine{65497, "rsDSRegressionLine", "Regression Line:"};
inline constexpr ResourceString rsDSSSE{65498, "rsDSSSE", "Sum of Squares Error:"};
inline constexpr ResourceString rsDSCoeffDet{65499, "rsDSCoeffDet", "Coefficient of Determination"};
inline constexpr ResourceString rsDSCoeffCor{65500, "rsDSCoeffCor", "Coefficient of Correlation"};
/// @}

/// @name Spread and shape captions
/// @{

/// A caption of a statistic, followed in a report by a TAB and the value: variance,
/// covariance, standard deviations (of the values, of X, of Y), sum, sum of squares,
/// kurtosis, skew, quartiles and inter-quartile range. Its default text is the last field
/// of the initializer.
inline constexpr ResourceString rsDSVariance{65504, "rsDSVariance", "Variance:"};
inline constexpr ResourceString rsDSCovar{65505, "rsDSCovar", "Covariance:"};
inline constexpr ResourceString rsDSStdDev{65506, "rsDSStdDev", "Standard Deviation:"};
inline constexpr ResourceString rsDSStdDevX{65507, "rsDSStdDevX", "Standard Deviation of X Values:"};
inline constexpr ResourceString rsDSStdDevY{65508, "rsDSStdDevY", "Standard Deviation of Y Values:"};
inline constexpr ResourceString rsDSSum{65509, "rsDSSum", "Sum:"};
inline constexpr ResourceString rsDSSumSQ{65510, "rsDSSumSQ", "Sum of Squares:"};
inline constexpr ResourceString rsDSKurtosis{65511, "rsDSKurtosis", "Kurtosis:"};
inline constexpr ResourceString rsDSSkew{65512, "rsDSSkew", "Skew:"};
inline constexpr ResourceString rsDSQtr1{65513, "rsDSQtr1", "First Quartile:"};
inline constexpr ResourceString rsDSQtr3{65514, "rsDSQtr3", "Third Quartile:"};
inline constexpr ResourceString rsDSIQR{65515, "rsDSIQR", "Inter-Quartile Range:"};
/// @}

/// @name Test-setting captions
/// @{

/// A caption of a hypothesis-test setting: confidence and significance levels, the null and
/// the alternate hypotheses. Its default text is the last field of the initializer.
inline constexpr ResourceString rsDSConfidence{65516, "rsDSConfidence", "Confidence Level: "};
inline constexpr ResourceString rsDSSignificance{65517, "rsDSSignificance", "Significance Level: "};
inline constexpr ResourceString rsNullHypothesis{65518, "rsNullHypothesis", "Null Hypothesis: "};
inline constexpr ResourceString rsAlternateHypothesis{65519, "rsAlternateHypothesis", "Alternate Hypothesis: "};
/// @}

/// @name Statistics a report cannot give
/// @{

/// A line that stands in a report for a statistic that cannot be given: too few values for
/// variance, standard deviation, skew (fewer than three) or kurtosis (fewer than four), or
/// a zero standard deviation for kurtosis and skew. Its default text is the last field of
/// the initializer.
inline constexpr ResourceString rsDSNEVariance{65520, "rsDSNEVariance", "Not enough Values for Variance"};
inline constexpr ResourceString rsDSNEStdDev{65521, "rsDSNEStdDev", "Not enough Values for Standard Deviation"};
inline constexpr ResourceString rsDSNESkew{65522, "rsDSNESkew", "Not enough Values for Skew"};
inline constexpr ResourceString rsDSNEKurtosis{65523, "rsDSNEKurtosis", "Not enough Values for Kurtosis"};
inline constexpr ResourceString rsDSSDKurtosis{65524, "rsDSSDKurtosis", "Standard Deviation needs to be > 0 for Kurtosis"};
inline constexpr ResourceString rsDSSDSkew{65525, "rsDSSDSkew", "Standard Deviation needs to be > 0 for Skew"};
/// @}

/// @name Count, location and mode captions
/// @{

/// A caption of a statistic, followed in a report by a TAB and the value: number of values,
/// maximum, minimum, range, means (of the values, of X, of Y), mode, median; `rsDSNoMode`
/// stands alone for a list without a modal value. Its default text is the last field of the
/// initializer.
inline constexpr ResourceString rsDSNoOfValues{65526, "rsDSNoOfValues", "Number of Values:"};
inline constexpr ResourceString rsDSMaximum{65527, "rsDSMaximum", "Maximum:"};
inline constexpr ResourceString rsDSMinimum{65528, "rsDSMinimum", "Minimum:"};
inline constexpr ResourceString rsDSRange{65529, "rsDSRange", "Range:"};
inline constexpr ResourceString rsDSMean{65530, "rsDSMean", "Mean:"};
inline constexpr ResourceString rsDSMeanX{65531, "rsDSMeanX", "Mean of X Values:"};
inline constexpr ResourceString rsDSMeanY{65532, "rsDSMeanY", "Mean of Y Values:"};
inline constexpr ResourceString rsDSMode{65533, "rsDSMode", "Mode:"};
inline constexpr ResourceString rsDSNoMode{65534, "rsDSNoMode", "No Modal Value"};
inline constexpr ResourceString rsDSMedian{65535, "rsDSMedian", "Median:"};
/// @}


/// Every identifier of the module, in id order: what the library registers at load, by
/// name, for table replacement.
inline constexpr const ResourceString* AllDescStatsMessages[] = {
    &rsTestStatistic,
    &rsDSConfidenceIntervalM,
    &rsDSConfidenceIntervalV,
    &rsPValue,
    &rsRejectionRegion,
    &rsRejected,
    &rsNotRejected,
    &rsRejectReason,
    &rsNotRejectReason,
    &rsDSRegressionLine,
    &rsDSSSE,
    &rsDSCoeffDet,
    &rsDSCoeffCor,
    &rsDSVariance,
    &rsDSCovar,
    &rsDSStdDev,
    &rsDSStdDevX,
    &rsDSStdDevY,
    &rsDSSum,
    &rsDSSumSQ,
    &rsDSKurtosis,
    &rsDSSkew,
    &rsDSQtr1,
    &rsDSQtr3,
    &rsDSIQR,
    &rsDSConfidence,
    &rsDSSignificance,
    &rsNullHypothesis,
    &rsAlternateHypothesis,
    &rsDSNEVariance,
    &rsDSNEStdDev,
    &rsDSNESkew,
    &rsDSNEKurtosis,
    &rsDSSDKurtosis,
    &rsDSSDSkew,
    &rsDSNoOfValues,
    &rsDSMaximum,
    &rsDSMinimum,
    &rsDSRange,
    &rsDSMean,
    &rsDSMeanX,
    &rsDSMeanY,
    &rsDSMode,
    &rsDSNoMode,
    &rsDSMedian,
};

}  // namespace Kornum_RS_DescStats
KORNUM_EXPORT_END
