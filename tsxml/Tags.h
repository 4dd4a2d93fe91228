#ifndef TSXPORT_TSXML_TAGS_H_
#define TSXPORT_TSXML_TAGS_H_

#include "datespec/Tags.h"

// Element names, attribute names and fixed values of the time-series XML dialect, in document
// order. Those of "DateSpecification", and of lag terms, stand in datespec/Tags.h.
namespace tsx {

namespace tag {

inline constexpr char kTSCXML[] = "TSCXML";
inline constexpr char kHeader[] = "Header";
inline constexpr char kApplication[] = "Application";
inline constexpr char kDataDictionary[] = "DataDictionary";

inline constexpr char kTransformation[] = "Transformation";
inline constexpr char kEstimatedParameter[] = "EstimatedParameter";

inline constexpr char kARIMAModel[] = "ARIMAModel";
inline constexpr char kConstantTerm[] = "ConstantTerm";
inline constexpr char kAutoregression[] = "Autoregression";
inline constexpr char kMovingAverage[] = "MovingAverage";
inline constexpr char kPredictorEffect[] = "PredictorEffect";
inline constexpr char kNumerator[] = "Numerator";
inline constexpr char kDenominator[] = "Denominator";
inline constexpr char kNonSeasonalFactor[] = "NonSeasonalFactor";
inline constexpr char kSeasonalFactor[] = "SeasonalFactor";
inline constexpr char kOutlierEffect[] = "OutlierEffect";
inline constexpr char kARIMAMLSpState[] = "ARIMAMLSpState";
inline constexpr char kARIMAMLState[] = "ARIMAMLState";
inline constexpr char kARIMACLSState[] = "ARIMACLSState";
inline constexpr char kPredictorState[] = "PredictorState";
inline constexpr char kFinalPredictor[] = "FinalPredictor";
inline constexpr char kFinalTransferFunc[] = "FinalTransferFunc";
inline constexpr char kZState[] = "ZState";
inline constexpr char kFinalZ[] = "FinalZ";
inline constexpr char kFinalPredictedZ[] = "FinalPredictedZ";
inline constexpr char kNoiseState[] = "NoiseState";
inline constexpr char kFinalNoise[] = "FinalNoise";
inline constexpr char kFinalPredictedNoise[] = "FinalPredictedNoise";
inline constexpr char kThetaRecursionState[] = "ThetaRecursionState";
inline constexpr char kFinalThetas[] = "FinalThetas";
inline constexpr char kThetaVec[] = "ThetaVec";
inline constexpr char kFinalNu[] = "FinalNu";
inline constexpr char kKalmanState[] = "KalmanState";
inline constexpr char kFinalOmega[] = "FinalOmega";
inline constexpr char kFinalStateVector[] = "FinalStateVector";

inline constexpr char kExpSmoothingModel[] = "ExpSmoothingModel";
inline constexpr char kESAdditiveWinters[] = "ESAdditiveWinters";
inline constexpr char kESBrown[] = "ESBrown";
inline constexpr char kESDampedTrend[] = "ESDampedTrend";
inline constexpr char kESHolt[] = "ESHolt";
inline constexpr char kESMultiplicativeWinters[] = "ESMultiplicativeWinters";
inline constexpr char kESSimpleSeasonal[] = "ESSimpleSeasonal";
inline constexpr char kESSimple[] = "ESSimple";
inline constexpr char kParmLevel[] = "ParmLevel";
inline constexpr char kParmTrend[] = "ParmTrend";
inline constexpr char kParmSeason[] = "ParmSeason";
inline constexpr char kParmDampingTrend[] = "ParmDampingTrend";
inline constexpr char kStateLevel[] = "StateLevel";
inline constexpr char kStateTrend[] = "StateTrend";
inline constexpr char kStateSeason[] = "StateSeason";

inline constexpr char kCrostonModel[] = "CrostonModel";
inline constexpr char kActualDemandSubmodel[] = "ActualDemandSubmodel";
inline constexpr char kElapsedTimeSubmodel[] = "ElapsedTimeSubmodel";
inline constexpr char kAbsoluteErrorSubmodel[] = "AbsoluteErrorSubmodel";

inline constexpr char kEstimationInfo[] = "EstimationInfo";
inline constexpr char kStatistic[] = "Statistic";
inline constexpr char kLjungBoxStatistic[] = "LjungBoxStatistic";

}  // namespace tag

namespace attr {

inline constexpr char kXmlns[] = "xmlns";
inline constexpr char kXmlnsXsi[] = "xmlns:xsi";
inline constexpr char kXsiSchemaLocation[] = "xsi:schemaLocation";
inline constexpr char kName[] = "name";
inline constexpr char kVersion[] = "version";

inline constexpr char kModelName[] = "modelName";
inline constexpr char kModelDescriptor[] = "modelDescriptor";
inline constexpr char kVariableID[] = "variableID";
inline constexpr char kSeasonLength[] = "seasonLength";

inline constexpr char kFunction[] = "function";
inline constexpr char kNonSeasonalDiff[] = "nonSeasonalDiff";
inline constexpr char kSeasonalDiff[] = "seasonalDiff";
inline constexpr char kDelay[] = "delay";
inline constexpr char kLag[] = "lag";
inline constexpr char kStartIndex[] = "startIndex";
inline constexpr char kPeriodDeficit[] = "periodDeficit";
inline constexpr char kFinalIterationNumber[] = "finalIterationNumber";
inline constexpr char kPhase[] = "phase";

inline constexpr char kPeriodStartIndex[] = "periodStartIndex";
inline constexpr char kPeriodLength[] = "periodLength";
inline constexpr char kDegreesOfFreedom[] = "degreesOfFreedom";
inline constexpr char kType[] = "type";
inline constexpr char kK[] = "k";
inline constexpr char kPValue[] = "pValue";

}  // namespace attr

namespace val {

// The makers' host stands between scheme and path.
inline constexpr char kScheme[] = "http://";
inline constexpr char kNamespacePath[] = "/software/analytics/qorv/xml/components/time-series";
inline constexpr char kSchemaPath[] = "/software/analytics/qorv/xml/components/time-series-1.0.xsd";
inline constexpr char kXsiNamespace[] = "http://www.w3.org/2001/XMLSchema-instance";

inline constexpr char kLogarithm[] = "logarithm";
inline constexpr char kSquareRoot[] = "squareRoot";
inline constexpr char kErrVariance[] = "errVariance";

}  // namespace val

}  // namespace tsx

#endif  // TSXPORT_TSXML_TAGS_H_
