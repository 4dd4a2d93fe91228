#ifndef TSXPORT_PMML_TAGS_H_
#define TSXPORT_PMML_TAGS_H_

// Element names, attribute names and fixed values of the PMML dialect, in document order.
namespace tsx::pmml {

namespace tag {

inline constexpr char kPMML[] = "PMML";
inline constexpr char kHeader[] = "Header";
inline constexpr char kApplication[] = "Application";
inline constexpr char kDataDictionary[] = "DataDictionary";
inline constexpr char kExtension[] = "Extension";
inline constexpr char kDataField[] = "DataField";

inline constexpr char kTimeSeriesModel[] = "TimeSeriesModel";
inline constexpr char kMiningSchema[] = "MiningSchema";
inline constexpr char kMiningField[] = "MiningField";
inline constexpr char kTimeSeries[] = "TimeSeries";
inline constexpr char kTimeAnchor[] = "TimeAnchor";
inline constexpr char kTimeValue[] = "TimeValue";
inline constexpr char kExponentialSmoothing[] = "ExponentialSmoothing";
inline constexpr char kLevel[] = "Level";
inline constexpr char kTrend[] = "Trend_ExpoSmooth";
inline constexpr char kSeasonality[] = "Seasonality_ExpoSmooth";
inline constexpr char kArray[] = "Array";

}  // namespace tag

namespace attr {

inline constexpr char kVersion[] = "version";
inline constexpr char kXmlns[] = "xmlns";
inline constexpr char kXmlnsXsi[] = "xmlns:xsi";
inline constexpr char kCopyright[] = "copyright";
inline constexpr char kName[] = "name";
inline constexpr char kNumberOfFields[] = "numberOfFields";
inline constexpr char kDataType[] = "dataType";
inline constexpr char kOptype[] = "optype";
inline constexpr char kDisplayName[] = "displayName";

inline constexpr char kModelName[] = "modelName";
inline constexpr char kFunctionName[] = "functionName";
inline constexpr char kAlgorithmName[] = "algorithmName";
inline constexpr char kBestFit[] = "bestFit";
inline constexpr char kUsageType[] = "usageType";
inline constexpr char kUsage[] = "usage";
inline constexpr char kStartTime[] = "startTime";
inline constexpr char kEndTime[] = "endTime";
inline constexpr char kInterpolationMethod[] = "interpolationMethod";
inline constexpr char kIndex[] = "index";
inline constexpr char kValue[] = "value";
inline constexpr char kRMSE[] = "RMSE";
inline constexpr char kAlpha[] = "alpha";
inline constexpr char kSmoothedValue[] = "smoothedValue";
inline constexpr char kGamma[] = "gamma";
inline constexpr char kTrend[] = "trend";
inline constexpr char kPhi[] = "phi";
inline constexpr char kDelta[] = "delta";
inline constexpr char kPeriod[] = "period";
inline constexpr char kUnit[] = "unit";
inline constexpr char kPhase[] = "phase";
inline constexpr char kType[] = "type";
inline constexpr char kN[] = "n";
inline constexpr char kExtender[] = "extender";

}  // namespace attr

namespace val {

inline constexpr char kVersion[] = "4.2";
inline constexpr char kNamespace[] = "http://www.dmg.org/PMML-4_2";
inline constexpr char kXsiNamespace[] = "http://www.w3.org/2001/XMLSchema-instance";
inline constexpr char kCopyright[] = "dmg.org";
inline constexpr char kDouble[] = "double";
inline constexpr char kContinuous[] = "continuous";
inline constexpr char kDate[] = "date";
inline constexpr char kTime[] = "time";
// The name of the time field of a tree without date specifications; it is a date.
inline constexpr char kDefaultTimeName[] = "Month";

inline constexpr char kTimeSeries[] = "timeSeries";
inline constexpr char kAlgorithm[] = "exponential smoothing";
inline constexpr char kExponentialSmoothing[] = "ExponentialSmoothing";
inline constexpr char kPredicted[] = "predicted";
inline constexpr char kOrder[] = "order";
inline constexpr char kLogical[] = "logical";
inline constexpr char kFirst[] = "1";
inline constexpr char kNone[] = "none";
inline constexpr char kAdditive[] = "additive";
inline constexpr char kMultiplicative[] = "multiplicative";
inline constexpr char kDampedAdditive[] = "damped_additive";
inline constexpr char kPolynomialExponential[] = "polynomial_exponential";
inline constexpr char kMonth[] = "month";
inline constexpr char kReal[] = "real";
inline constexpr char kErrVariance[] = "errVariance";
inline constexpr char kDegreesOfFreedom[] = "degreesOfFreedom";
inline constexpr char kPeriodStartIndex[] = "periodStartIndex";
inline constexpr char kPeriodLength[] = "periodLength";

}  // namespace val

}  // namespace tsx::pmml

#endif  // TSXPORT_PMML_TAGS_H_
