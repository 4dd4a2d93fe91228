#include "cli/commands/Fit.h"

namespace tsx::cli {

const char kFitIntroduction[] =
    "Fits exponential smoothing, ARIMA or Croston's method to series of a CSV table.";

const char kFitFooter[] =
    R"(The table:
  The first line names the columns. Commas or semicolons separate cells; with
  semicolons, decimal commas go as well. Cells may stand in double quotes. Empty
  cells and NA are missing values. The text is UTF-8.

  Times are written 1949-01 (months), 1960-Q1 (quarters), 1871 (years, where all
  of them have four digits), 1, 2, 3 (running numbers), 2020-02-29 (dates) or
  2020-02-29 13:45 (with time; seconds and a T in between are fine). They rise
  from row to row. The calendar is found from them: months, quarters, years,
  weeks, days, working days, hours, minutes, seconds and steps of several of
  these. A skipped period is a missing value, unless --gaps is given.

ARIMA:
  arima(p,d,q)(P,D,Q) has p autoregressive and q moving-average coefficients
  after d differences; P, D and Q count seasons, which are as long as --season
  says. Brackets list lags in place of an order: arima([1,3],1,0) has the lags 1
  and 3, and [1,2] in the second parenthesis means one and two seasons. The
  second parenthesis may be left out. Orders go up to 100, differences up to 5,
  lags and delays up to 1000.

  Signs are those of Box and Jenkins: 1 - phi B, 1 - theta B and, for
  predictors, (omega0 - omega1 B) / (1 - delta1 B). So lead:delay=3,num=1,den=1
  has omega0, omega1 and delta1, three periods late.

  An additive outlier changes one value, a level outlier all from then on; a
  transient one dies away, a seasonal-additive one comes back in every season,
  a trend outlier grows from period to period, and an innovational one goes
  through the model like the noise. --detect-outliers finds those that are
  additive, level, transient and innovational.

  auto-arima finds orders: of differences by tests of stationarity and of the
  season's strength, the others by a stepwise search for the lowest AICc, which
  is that of exact likelihood whatever the --method of the final fit.

  A fit whose search did not converge is written all the same; its summary says
  so.

In the document:
  Months, quarters, weekdays (Sunday), hours and so on count from 0; weeks and
  days of calendars that start with them count from 0001-01-01, and running
  numbers in steps. Series with the same calendar and first case share it.

Examples:
  tsxport fit airpassengers.csv
      fits all kinds, prints the one with the lowest normalised BIC
  tsxport fit airpassengers.csv --model winters-multiplicative -o air.xml
      writes that model
  tsxport fit airpassengers.csv --forecast 24 --plot air.svg > forecast.csv
      two years of forecasts, as numbers and as a drawing
  tsxport fit seatbelts.csv --variable drivers --variable kms -o cars.xml
      two models in one document
  tsxport fit sales.csv --id shop --time week --season 52 --jobs 8 -o shops.xml
      one model for each shop of a long table
  tsxport fit airpassengers.csv --model 'arima(0,1,1)(0,1,1)' --transform log
      the airline model
  tsxport fit seatbelts.csv --variable drivers --model 'arima(1,0,0)(1,0,0)' \
              --transform log --predictor law --outlier level@1973-11 -o law.xml
      with a predictor, and a level that changed for good
  tsxport fit sales.csv --model auto-arima --detect-outliers --forecast 12
      orders and outliers found
  tsxport fit parts.csv --id part --model croston -o parts.xml
      intermittent demand, where most periods are zero
  tsxport fit airpassengers.csv --format pmml -o air.pmml
      the model for programs that read PMML

Exit status:
  0  all done
  1  an output could not be written, or memory ran out
  2  the command line or the input is wrong; one line on standard error says
     where and why, nothing was written, existing files are untouched
  3  some series could not be fitted; they are named on standard error, and the
     others were written
)";

}  // namespace tsx::cli
