# Statistics of ARIMA fits by R's own functions, for tests/core/arima/fit/StatisticsTest.cpp.
#
#   Rscript arima_statistics.R > arima_statistics.csv
#
# Written: fit,what,values. Differences are taken first, so that the likelihood is that of the
# differenced series. The k coefficients do not count the variance; n is the number of differenced
# values. R's residuals are standardised, as those of the test of Ljung and Box are to be; one-step
# forecasts come from the theoretical autocorrelations at R's coefficients.
put <- function(fit, what, values) {
  cat(fit, what, paste(sprintf("%.15g", values), collapse = " "), sep = ",")
  cat("\n")
}

one.step <- function(x, ar, ma) {
  rho <- ARMAacf(ar, ma, length(x))
  sapply(seq_along(x), function(t) {
    if (t == 1) return(0)
    sum(solve(toeplitz(rho[1:(t - 1)]), rho[2:t]) * rev(x[1:(t - 1)]))
  })
}

# `w`: differenced modelled series; `z`: modelled series; `back`: from the modelled scale to the original.
tell <- function(name, z, w, fit, back) {
  n <- length(w)
  k <- length(coef(fit))
  noise <- sum(fit$arma[1:4])
  centre <- if ("intercept" %in% names(coef(fit))) coef(fit)[["intercept"]] else 0
  e <- as.numeric(w) - centre - one.step(as.numeric(w) - centre, fit$model$phi, fit$model$theta)
  z <- tail(as.numeric(z), n)
  y <- back(z)
  error <- y - back(z - e)
  mse <- sum(error^2) / (n - k)
  loglik <- as.numeric(logLik(fit))
  put(name, "n", n)
  put(name, "k", k)
  put(name, "error_variance", fit$sigma2 * n / (n - k))
  put(name, "MSE", mse)
  put(name, "RMSE", sqrt(mse))
  put(name, "MAPE", 100 * mean(abs(error / y)))
  put(name, "MAE", mean(abs(error)))
  put(name, "MAXAPE", 100 * max(abs(error / y)))
  put(name, "MAXAE", max(abs(error)))
  put(name, "RSQ", 1 - sum(error^2) / sum((y - mean(y))^2))
  put(name, "NRMBIC", log(mse) + k * log(n) / n)
  put(name, "LOGLK", loglik)
  put(name, "AIC", -2 * loglik + 2 * k)
  put(name, "BIC", -2 * loglik + k * log(n))
  put(name, "SRSQ", 1 - sum(e^2) / sum((w - mean(w))^2))
  test <- Box.test(residuals(fit), lag = 18, type = "Ljung-Box", fitdf = noise)
  put(name, "ljung_box", c(test$statistic, 18, test$parameter, test$p.value))
}

control <- list(reltol = 1e-15, maxit = 1000)
cat("fit,what,values\n")
w <- diff(diff(log(AirPassengers)), 12)
fit <- arima(w, c(0, 0, 1), list(order = c(0, 0, 1), period = 12), include.mean = FALSE,
             method = "ML", optim.control = control)
tell("airline", log(AirPassengers), w, fit, exp)
fit <- arima(LakeHuron, c(1, 0, 1), method = "ML", optim.control = control)
tell("lakehuron", LakeHuron, LakeHuron, fit, identity)
