# What R makes of intermittent series by Croston's method.
#
#   Rscript croston.R ../data/intermittent_a.csv ../data/intermittent_b.csv > croston.csv
#
# Writes series,quantity,weight,value. With a weight fixed (forecast::croston):
#   size_level, interval_level, rate    after the last case
#   fitted_sum                          of the one-step forecasts after the first demand
#   error_level                         simple smoothing (stats::HoltWinters, level started at the
#                                       first value) of the absolute errors of all cases; up to the
#                                       first demand the forecast is its size over its position
# and for each submodel the least sum of squared one-step errors over weights from 0.01 to 1
# (stats::HoltWinters scored on a grid, its best place refined by stats::optimise):
#   sizes_sse, intervals_sse, errors_sse    the last from the errors at weight 0.1
suppressMessages(library(forecast))

tell <- function(name, quantity, weight, value) {
  cat(sprintf("%s,%s,%.15g,%.15g\n", name, quantity, weight, value))
}

smooth <- function(x, weight) {
  HoltWinters(ts(x), alpha = weight, beta = FALSE, gamma = FALSE, l.start = x[1])
}

least.sse <- function(x) {
  score <- function(weight) smooth(x, weight)$SSE
  grid <- seq(0.01, 1, length.out = 397)
  values <- sapply(grid, score)
  best <- which.min(values)
  around <- c(grid[max(1, best - 1)], grid[min(397, best + 1)])
  found <- optimise(score, around, tol = 1e-10)
  if (found$objective < values[best]) list(weight = found$minimum, sse = found$objective)
  else list(weight = grid[best], sse = values[best])
}

absolute.errors <- function(x, weight) {
  demand <- which(x > 0)[1]
  fitted <- as.numeric(croston(x, h = 1, alpha = weight)$fitted)
  fitted[1:demand] <- x[demand] / demand
  abs(x - fitted)
}

cat("series,quantity,weight,value\n")
for (file in commandArgs(trailingOnly = TRUE)) {
  name <- sub("\\.csv$", "", basename(file))
  x <- read.csv(file)$value
  demand <- which(x > 0)[1]
  for (weight in c(0.05, 0.1, 0.25, 0.6)) {
    fit <- croston(x, h = 1, alpha = weight)
    tell(name, "size_level", weight, fit$model$demand$mean[1])
    tell(name, "interval_level", weight, fit$model$period$mean[1])
    tell(name, "rate", weight, fit$mean[1])
    tell(name, "fitted_sum", weight, sum(fit$fitted[(demand + 1):length(x)]))
    errors <- absolute.errors(x, weight)
    tell(name, "error_level", weight, as.numeric(coef(smooth(errors, weight))["a"]))
  }
  series <- list(sizes_sse = x[x > 0], intervals_sse = diff(c(0, which(x > 0))),
                 errors_sse = absolute.errors(x, 0.1))
  for (quantity in names(series)) {
    least <- least.sse(series[[quantity]])
    tell(name, quantity, least$weight, least$sse)
  }
}
