# Least sums of squared one-step errors that R reaches for each smoothing kind.
#
#   Rscript smoothing_sse.R series.csv > r.csv
#
# Reads series,season,values (values parted by blanks); writes series,season,kind,program,first,sse:
# the errors of cases first..n are summed, first counted from 1. Needs the package forecast.
suppressMessages(library(forecast))

rows <- read.csv(commandArgs(trailingOnly = TRUE)[1], colClasses = c("character", "integer", "character"))

tell <- function(name, m, kind, program, first, sse) {
  if (is.finite(sse)) cat(sprintf("%s,%d,%s,%s,%d,%.10g\n", name, m, kind, program, first, sse))
}
try.sse <- function(f) suppressWarnings(tryCatch({
  fit <- f()
  x <- if (inherits(fit, "forecast")) fit$x else fit$x
  sum((as.numeric(x) - as.numeric(fitted(fit)))^2)
}, error = function(e) NA))

by.ets <- function(y, model, damped) {
  fits <- c(
    try.sse(function() ets(y, model = model, damped = damped, restrict = FALSE, opt.crit = "lik")),
    try.sse(function() ets(y, model = model, damped = damped, restrict = FALSE, opt.crit = "mse")),
    try.sse(function() ets(y, model = model, damped = damped, restrict = FALSE, opt.crit = "mse", bounds = "usual")))
  suppressWarnings(min(fits, na.rm = TRUE))
}
# hw with simple starting values puts its seasonal weight anywhere in [0, 1]. Beyond 1 - alpha it is
# no weight of the component form, S' = S + (1 - a) d e with d in [0, 1], and sets no bar.
by.simple.hw <- function(y, seasonal) suppressWarnings(tryCatch({
  fit <- hw(y, seasonal = seasonal, initial = "simple")
  weights <- fit$model$par
  if (weights["gamma"] > 1 - weights["alpha"]) NA else sum((as.numeric(fit$x) - as.numeric(fitted(fit)))^2)
}, error = function(e) NA))
by.holtwinters <- function(y, ...) suppressWarnings(tryCatch(HoltWinters(y, ...)$SSE, error = function(e) NA))

# Brown's double smoothing as ARIMA(0,2,2) with both roots tied: a line search over the root, the
# conditional sum of squares of stats::arima at each.
by.arima <- function(y) {
  # Each theta is scored from its residuals; differenced cases have none.
  score <- function(b) {
    fit <- tryCatch(arima(y, order = c(0, 2, 2), fixed = c(-2 * b, b^2), method = "CSS",
                          transform.pars = FALSE), error = function(e) NULL)
    if (is.null(fit)) Inf else sum(residuals(fit)^2)
  }
  grid <- seq(0.001, 0.999, length.out = 60)
  values <- sapply(grid, score)
  best <- which.min(values)
  around <- c(grid[max(1, best - 1)], grid[min(60, best + 1)])
  min(values[best], optimise(score, around)$objective)
}
# The same with the two starting values free as well, by Nelder-Mead.
by.brown <- function(y) {
  n <- length(y)
  score <- function(p) {
    a <- p[1]
    if (a < 0.001 || a > 1) return(1e300)
    l <- p[2]; b <- p[3]; sse <- 0
    for (t in 1:n) {
      e <- y[t] - l - b
      l <- l + b + a * (2 - a) * e
      b <- b + a^2 * e
      sse <- sse + e^2
    }
    sse
  }
  best <- Inf
  for (a in c(0.02, 0.1, 0.3, 0.6, 0.9)) {
    p <- c(a, y[1], 0)
    for (i in 1:2) p <- optim(p, score, control = list(maxit = 1000, reltol = 1e-10))$par
    best <- min(best, score(p))
  }
  best
}

for (i in seq_len(nrow(rows))) {
  name <- rows$series[i]
  m <- rows$season[i]
  y <- ts(as.numeric(strsplit(rows$values[i], " ")[[1]]), frequency = m)
  flat <- ts(as.numeric(y))
  positive <- all(y > 0)
  n <- length(y)
  two <- if (positive) c("A", "M") else "A"
  for (e in two) {
    tell(name, m, "simple", paste0("ets-", e, "NN"), 1, by.ets(flat, paste0(e, "NN"), FALSE))
    tell(name, m, "holt", paste0("ets-", e, "AN"), 1, by.ets(flat, paste0(e, "AN"), FALSE))
    tell(name, m, "damped-trend", paste0("ets-", e, "AdN"), 1, by.ets(flat, paste0(e, "AN"), TRUE))
    if (m > 1 && m <= 24) {
      tell(name, m, "simple-seasonal", paste0("ets-", e, "NA"), 1, by.ets(y, paste0(e, "NA"), FALSE))
      tell(name, m, "winters-additive", paste0("ets-", e, "AA"), 1, by.ets(y, paste0(e, "AA"), FALSE))
      if (positive) tell(name, m, "winters-multiplicative", paste0("ets-", e, "AM"), 1, by.ets(y, paste0(e, "AM"), FALSE))
    }
  }
  for (start in c("optimal", "simple")) {
    tell(name, m, "simple", paste0("ses-", start), 1, try.sse(function() ses(flat, initial = start)))
    tell(name, m, "holt", paste0("holt-", start), 1, try.sse(function() holt(flat, initial = start)))
  }
  if (m > 1 && m <= 24) {
    tell(name, m, "winters-additive", "hw-optimal", 1, try.sse(function() hw(y, seasonal = "additive")))
    tell(name, m, "winters-additive", "hw-simple", 1, by.simple.hw(y, "additive"))
    if (positive) {
      tell(name, m, "winters-multiplicative", "hw-optimal", 1, try.sse(function() hw(y, seasonal = "multiplicative")))
      tell(name, m, "winters-multiplicative", "hw-simple", 1, by.simple.hw(y, "multiplicative"))
    }
  }
  tell(name, m, "damped-trend", "holt-damped", 1, try.sse(function() holt(flat, damped = TRUE)))
  tell(name, m, "simple", "HoltWinters", 2, by.holtwinters(flat, gamma = FALSE, beta = FALSE))
  tell(name, m, "holt", "HoltWinters", 3, by.holtwinters(flat, gamma = FALSE))
  if (m > 1) {
    tell(name, m, "simple-seasonal", "HoltWinters", m + 1, by.holtwinters(y, beta = FALSE))
    tell(name, m, "winters-additive", "HoltWinters", m + 1, by.holtwinters(y))
    if (positive) tell(name, m, "winters-multiplicative", "HoltWinters", m + 1, by.holtwinters(y, seasonal = "multiplicative"))
  }
  tell(name, m, "brown", "arima-css", 1, by.arima(flat))
  tell(name, m, "brown", "optim", 1, by.brown(as.numeric(y)))
}
