# ARMA(2,2) without a mean on white noise: the best exact log-likelihood by R's arima, searched with
# optim from points whose AR and MA factors nearly cancel at one frequency.
#
#   Rscript arima_cycles.R > arima_cycles.csv
#
# Such maxima are narrow, and a start at another frequency does not find them: of 64 points the ten
# best are starts. Writes log_likelihood,values; the values have six digits.
set.seed(22)

# The factors 1 - c1 B - c2 B^2 of partial autocorrelations tanh(u1), tanh(u2).
factor_at <- function(u) c(tanh(u[1]) * (1 - tanh(u[2])), tanh(u[2]))
# Where they have the inverse roots modulus exp(+-i frequency).
point_of <- function(modulus, frequency)
  atanh(c(2 * modulus * cos(frequency) / (1 + modulus^2), -modulus^2))

minus_log_likelihood <- function(u, x) {
  fixed <- c(factor_at(u[1:2]), -factor_at(u[3:4]))
  fit <- try(arima(x, c(2, 0, 2), include.mean = FALSE, method = "ML", fixed = fixed,
                   transform.pars = FALSE), silent = TRUE)
  if (inherits(fit, "try-error") || !is.finite(fit$loglik)) 1e6 else -fit$loglik
}

best <- function(x) {
  points <- list()
  for (frequency in pi * (1:32 - 0.5) / 32)
    for (moduli in list(c(0.95, 0.995), c(0.98, 0.95)))
      points[[length(points) + 1]] <- c(point_of(moduli[1], frequency), point_of(moduli[2], frequency))
  values <- sapply(points, minus_log_likelihood, x = x)
  reached <- sapply(points[order(values)[1:10]], function(u)
    optim(u, minus_log_likelihood, x = x, method = "BFGS", control = list(reltol = 1e-10))$value)
  -min(reached)
}

cat("log_likelihood,values\n")
for (i in 1:40) {
  x <- signif(rnorm(150), 6)
  cat(sprintf("%.10g,%s\n", suppressWarnings(best(x)), paste(x, collapse = " ")))
}
