#include "cli/options/ReadingArguments.h"

namespace tsx::cli {
namespace {

constexpr OptionEntry<ReadingArguments> kOptions[] = {
    {{.shape = OptionShape::kArgument,
      .name = "SERIES.csv",
      .help = "The table to read; - reads standard input"},
     &ReadingArguments::input},
    {{.shape = OptionShape::kRepeated,
      .name = "--variable",
      .value_name = "COLUMN",
      .group = kReadingGroup,
      .help = "Fit this column; may be given several times. Default: every column of numbers but "
              "the time and predictors"},
     &ReadingArguments::variables},
    {{.shape = OptionShape::kValue,
      .name = "--id",
      .value_name = "COLUMN",
      .group = kReadingGroup,
      .help = "The table is long: this column tells which series a row belongs to, and each series "
              "gets a model"},
     &ReadingArguments::id},
    {{.shape = OptionShape::kValue,
      .name = "--time",
      .value_name = "COLUMN",
      .group = kReadingGroup,
      .help = "The column of times. Default: the one named date, time, datetime, timestamp, "
              "period, month, quarter or year; else the first that looks like times; else rising "
              "whole numbers in the first column; else cases are numbered from 1"},
     &ReadingArguments::time},
    {{.shape = OptionShape::kFlag,
      .name = "--gaps",
      .group = kReadingGroup,
      .help = "Skipped periods become gaps of the calendar rather than missing values. Models with "
              "seasons take no gaps"},
     &ReadingArguments::gaps}};
static_assert(AreSound<ReadingArguments>(kOptions));

}  // namespace

OptionTable<ReadingArguments> ReadingOptions() { return kOptions; }

}  // namespace tsx::cli
