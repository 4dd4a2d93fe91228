# Fit statistics of known fits by R's own functions, for tests/core/series/StatisticsTest.cpp.
#
#   Rscript statistics.R > statistics.csv
#
# Written: case,what,values. `observed` and `fitted` are on the original scale, `modelled` and
# `errors` on the transformed one; NA is missing. `k` is the number of weights.
suppressMessages(library(forecast))

put <- function(case, what, values) {
  cat(case, what, paste(ifelse(is.na(values), "NA", sprintf("%.15g", values)), collapse = " "), sep = ",")
  cat("\n")
}

tell <- function(case, observed, fitted, modelled, modelled.fitted, k, difference) {
  errors <- modelled - modelled.fitted
  e <- (observed - fitted)[!is.na(observed)]
  y <- observed[!is.na(observed)]
  n <- length(y)
  put(case, "observed", observed)
  put(case, "fitted", ifelse(is.na(observed), 0, fitted))
  put(case, "modelled", modelled)
  put(case, "errors", errors)
  put(case, "k", k)
  mse <- sum(e^2) / (n - k)
  put(case, "error_variance", sum(errors^2, na.rm = TRUE) / (n - k))
  put(case, "MSE", mse)
  put(case, "RMSE", sqrt(mse))
  put(case, "MAPE", 100 * mean(abs(e / y)[y != 0]))
  put(case, "MAE", mean(abs(e)))
  put(case, "MAXAPE", 100 * max(abs(e / y)[y != 0]))
  put(case, "MAXAE", max(abs(e)))
  put(case, "RSQ", 1 - sum(e^2) / sum((y - mean(y))^2))
  put(case, "NRMBIC", log(mse) + k * log(n) / n)
  s <- sqrt(sum(errors^2, na.rm = TRUE) / n)
  loglik <- sum(dnorm(errors, 0, s, log = TRUE), na.rm = TRUE)
  put(case, "LOGLK", loglik)
  put(case, "AIC", -2 * loglik + 2 * k)
  put(case, "BIC", -2 * loglik + k * log(n))
  w <- difference(modelled)
  counted <- tail(errors, length(w))[!is.na(w)]
  w <- w[!is.na(w)]
  put(case, "SRSQ", 1 - sum(counted^2) / sum((w - mean(w))^2))
  if (!anyNA(errors)) {
    test <- Box.test(errors, lag = 18, type = "Ljung-Box", fitdf = k)
    put(case, "ljung_box", c(test$statistic, 18, test$parameter, test$p.value))
  }
}

cat("case,what,values\n")
y <- as.numeric(Nile)
fit <- ets(y, "ANN", alpha = 0.3)
tell("simple", y, as.numeric(fitted(fit)), y, as.numeric(fitted(fit)), 1, diff)

y <- as.numeric(AirPassengers)
fit <- ets(log(AirPassengers), "AAA", alpha = 0.35, beta = 0.035, gamma = 0.325, damped = FALSE)
f <- as.numeric(fitted(fit))
tell("log-winters", y, exp(f), log(y), f, 3, function(w) diff(diff(w, 12)))

y <- as.numeric(presidents)
y[40] <- 0
flat <- ifelse(is.na(y), NA, 50) + (seq_along(y) %% 7)
tell("missing", y, flat, y, flat, 2, function(w) diff(w, differences = 2))
