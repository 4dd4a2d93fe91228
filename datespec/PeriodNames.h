#ifndef TSXPORT_DATESPEC_PERIODNAMES_H_
#define TSXPORT_DATESPEC_PERIODNAMES_H_

#include <tsxport/TSXDateSpec.h>

#include "datespec/Tags.h"

namespace tsx {

struct PeriodName {
  unsigned value;
  const char* name;  // null ends a table
};

// What documents call the period types.
inline constexpr PeriodName kPeriodNames[] = {{TSXDateSpec::SimpleSequence, tag::kSimpleSequence},
                                              {TSXDateSpec::Cycle, tag::kCycle},
                                              {TSXDateSpec::Year, tag::kYear},
                                              {TSXDateSpec::Quarter, tag::kQuarter},
                                              {TSXDateSpec::Month, tag::kMonth},
                                              {TSXDateSpec::Week, tag::kWeek},
                                              {TSXDateSpec::Day, tag::kDay},
                                              {TSXDateSpec::Hour, tag::kHour},
                                              {TSXDateSpec::Minute, tag::kMinute},
                                              {TSXDateSpec::Second, tag::kSecond},
                                              {TSXDateSpec::Obs, tag::kObs},
                                              {0, nullptr}};

// Codes behind Obs that have a name and are no period types.
inline constexpr unsigned kLagTermCode = 11;
inline constexpr unsigned kZeroLagTermCode = 12;

// The period types and the two codes behind them.
inline constexpr PeriodName kPeriodAndTermNames[] = {
    {TSXDateSpec::SimpleSequence, tag::kSimpleSequence},
    {TSXDateSpec::Cycle, tag::kCycle},
    {TSXDateSpec::Year, tag::kYear},
    {TSXDateSpec::Quarter, tag::kQuarter},
    {TSXDateSpec::Month, tag::kMonth},
    {TSXDateSpec::Week, tag::kWeek},
    {TSXDateSpec::Day, tag::kDay},
    {TSXDateSpec::Hour, tag::kHour},
    {TSXDateSpec::Minute, tag::kMinute},
    {TSXDateSpec::Second, tag::kSecond},
    {TSXDateSpec::Obs, tag::kObs},
    {kLagTermCode, tag::kLagTerm},
    {kZeroLagTermCode, tag::kZeroLagTerm},
    {0, nullptr}};

// The name of `value` in a table, null where it has none.
constexpr const char* FindName(const PeriodName* table, unsigned value) {
  while (table->name != nullptr && table->value != value) ++table;
  return table->name;
}

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_PERIODNAMES_H_
