# Runs of R's ets at fixed weights, for tests/core/smoothing/ReferenceTest.cpp.
#
#   Rscript ets_fixed.R > ets_fixed.csv
#
# Each run fixes the weights of the component form (level a, trend g, season d, damping phi), passed
# to ets as alpha = a, beta = a g, gamma = (1 - a) d, and lets ets choose the starting components.
# Written: run,what,values. `start` and `final` are level, trend (0 where there is none) and the
# seasonal values by position of the cycle, counted from the first case; `fitted` the one-step
# forecasts; `forecast` those for 1 .. 24 periods ahead; `variance` the variances of their errors in
# units of the one-step error variance. ets gives those of the additive kinds by the formulas of
# Hyndman, Koehler, Ord and Snyder (2008), chapter 6, save those of the model with a season and no
# trend: forecast 8.20 puts the seasonal gain at the second seasonal state, one period early. They
# come from the closed form in their table 6.2. Those of multiplicative Winters are simulated from
# the final state with small additive errors.
suppressMessages(library(forecast))

put <- function(run, what, values) {
  cat(run, what, paste(sprintf("%.15g", values), collapse = " "), sep = ",")
  cat("\n")
}

# Seasonal values by position of the cycle: ets keeps s1 for the latest period, s2 for the one
# before, and so on; `last` is the position of the latest period.
by.position <- function(states, m, last) {
  values <- numeric(m)
  for (j in 1:m) values[(last - (j - 1)) %% m + 1] <- states[paste0("s", j)]
  values
}

components <- function(states, m, trend, last) {
  c(states["l"], if (trend) states["b"] else 0, if (m > 1) by.position(states, m, last))
}

simulated <- function(final, a, g, d, m, n, h) {
  set.seed(20)
  paths <- 400000
  sigma <- 1e-4 * final[1]
  level <- rep(final[1], paths)
  trend <- rep(final[2], paths)
  season <- matrix(rep(final[-(1:2)], each = paths), paths)
  variances <- numeric(h)
  for (i in 1:h) {
    j <- (n + i - 1) %% m + 1
    q <- level + trend
    s <- season[, j]
    e <- sigma * rnorm(paths)
    variances[i] <- var(q * s + e) / sigma^2
    level <- q + a * e / s
    trend <- trend + a * g * e / s
    season[, j] <- s + (1 - a) * d * e / q
  }
  variances
}

run <- function(name, y, model, a, g = NULL, d = NULL, phi = NULL) {
  arguments <- list(y = y, model = model, damped = !is.null(phi), alpha = a, restrict = FALSE)
  if (!is.null(g)) arguments$beta <- a * g
  if (!is.null(d)) arguments$gamma <- (1 - a) * d
  if (!is.null(phi)) arguments$phi <- phi
  fit <- do.call(ets, arguments)
  m <- if (is.null(d)) 1 else frequency(y)
  n <- length(y)
  trend <- !is.null(g)
  final <- components(fit$states[n + 1, ], m, trend, n - 1)
  put(name, "weights", c(a, g, d, phi))
  put(name, "start", components(fit$states[1, ], m, trend, -1))
  put(name, "final", final)
  put(name, "fitted", as.numeric(fitted(fit)))
  ahead <- forecast(fit, h = 24, level = 95)
  if (model == "MAM") {
    put(name, "forecast", sapply(1:24, function(h) (final[1] + h * final[2]) * final[2 + (n + h - 1) %% m + 1]))
    put(name, "variance", simulated(final, a, g, d, m, n, 24))
  } else if (model == "ANA") {
    put(name, "forecast", as.numeric(ahead$mean))
    put(name, "variance", sapply(1:24, function(h) {
      gain <- (1 - a) * d
      1 + a^2 * (h - 1) + gain * floor((h - 1) / m) * (2 * a + gain)
    }))
  } else {
    put(name, "forecast", as.numeric(ahead$mean))
    put(name, "variance", ((as.numeric(ahead$upper) - as.numeric(ahead$mean)) / qnorm(0.975))^2 / fit$sigma2)
  }
}

cat("run,what,values\n")
run("simple", ts(as.numeric(Nile)), "ANN", 0.3)
run("holt", ts(as.numeric(Nile)), "AAN", 0.4, g = 0.25)
run("damped-trend", ts(as.numeric(LakeHuron)), "AAN", 0.6, g = 0.5, phi = 0.9)
# Brown's weight 0.45 as the gains a (2 - a) and a^2 of Holt's recursion.
run("brown", ts(as.numeric(Nile)), "AAN", 0.6975, g = 0.2025 / 0.6975)
run("simple-seasonal", UKgas, "ANA", 0.3, d = 0.4)
run("winters-additive", head(AirPassengers, 139), "AAA", 0.35, g = 0.1, d = 0.5)
run("winters-multiplicative", head(AirPassengers, 139), "MAM", 0.35, g = 0.1, d = 0.5)
