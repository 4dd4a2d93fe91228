# Tests for orders of differencing on the series of ../data, for tests/core/arima/orders/UnitRootTest.cpp.
#
#   Rscript unit_roots.R > unit_roots.csv
#
# Written: series,season,log,kpss,strength,d,D. `kpss` is the statistic of level stationarity of the
# observed cases one after another, `strength` that of the season in R's stl with every point
# smoothed by itself (NA: no season, or missing cases). `D` and `d` are those of nsdiffs and of
# ndiffs after it, which smooth every second or third point and interpolate the others.
suppressMessages(library(forecast))
suppressMessages(library(urca))

seasons <- c(airpassengers = 12, co2 = 12, intermittent_a = 12, intermittent_b = 12,
             johnsonjohnson = 4, ldeaths = 12, nottem = 12, presidents = 4, seatbelts = 12,
             ukgas = 4, usaccdeaths = 12)

kpss <- function(x) ur.kpss(x, type = "mu", use.lag = trunc(3 * sqrt(sum(!is.na(x))) / 13))@teststat

strength <- function(x) {
  if (frequency(x) == 1 || anyNA(x)) return(NA)
  parts <- stl(x, s.window = 11, s.jump = 1, t.jump = 1, l.jump = 1)$time.series
  max(0, 1 - var(parts[, "remainder"]) / var(parts[, "remainder"] + parts[, "seasonal"]))
}

tell <- function(name, x, log) {
  D <- if (frequency(x) == 1) 0 else nsdiffs(x, max.D = 1)
  differenced <- if (D > 0) diff(x, lag = frequency(x)) else x
  cat(sprintf("%s,%d,%d,%.10g,%.10g,%d,%d\n", name, frequency(x), log, kpss(x), strength(x),
              ndiffs(differenced), D))
}

cat("series,season,log,kpss,strength,d,D\n")
for (file in list.files(file.path("..", "data"), "csv$")) {
  table <- read.csv(file.path("..", "data", file))
  name <- sub(".csv", "", file)
  season <- if (name %in% names(seasons)) seasons[[name]] else 1
  for (column in setdiff(names(table), c("date", "index", "law"))) {
    x <- ts(table[[column]], frequency = season)
    tell(paste(name, column, sep = ":"), x, 0)
    if (all(x > 0, na.rm = TRUE)) tell(paste(name, column, sep = ":"), log(x), 1)
  }
}
