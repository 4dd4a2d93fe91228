# R's arima from several starts, for arima_fits.R and arima_simulated.R.
#
# `m`: the model, a list with the lags of the four polynomials as text (ar, sar, ma, sma) and the
# season. z and the columns of X are differenced already.
lags <- function(text) as.integer(strsplit(text, " ")[[1]])

fit_once <- function(z, X, m, method, init = NULL, ssinit = "Gardner1980", transform = TRUE) {
  order <- c(length(lags(m$ar)), 0, length(lags(m$ma)))
  seasonal <- list(order = c(length(lags(m$sar)), 0, length(lags(m$sma))), period = m$season)
  tryCatch(suppressWarnings(arima(z, order, seasonal, xreg = X, include.mean = FALSE, method = method,
                                  init = init, SSinit = ssinit, transform.pars = transform && method == "ML",
                                  optim.control = list(reltol = 1e-14, maxit = 2000))),
           error = function(e) NULL)
}

# The likelihood is the same at inverted MA roots, where the sum of squares is not the one sought.
invertible <- function(f) {
  theta <- f$model$theta
  theta <- c(1, theta[seq_len(max(0, which(abs(theta) > 1e-12)))])
  length(theta) == 1 || all(Mod(polyroot(theta)) > 1 - 1e-6)
}

# The best of several starts.
fit <- function(z, X, m, method, starts = 6) {
  score <- function(f) if (is.null(f) || !invertible(f)) Inf else if (method == "CSS") f$sigma2 else -f$loglik
  best <- fit_once(z, X, m, method)
  for (ssinit in if (method == "ML") c("Gardner1980", "Rossignol2011") else "Gardner1980")
    for (i in seq_len(starts)) {
      start <- coef(best)
      arma <- sum(best$arma[1:4])
      at <- seq_len(arma)
      if (i %% 3 == 2) start[at] <- start[at] * runif(arma, 0.2, 1)
      if (i %% 3 == 0) start[at] <- runif(arma, -0.9, 0.9)  # refused when it is not stationary
      f <- fit_once(z, X, m, method, init = start, ssinit = ssinit)
      if (score(f) < score(best)) best <- f
    }
  # At its optimum once more without the transformation of the AR part: the Hessian is then direct.
  f <- fit_once(z, X, m, method, init = coef(best), transform = FALSE)
  if (score(f) <= score(best) + 1e-9) best <- f
  best
}

# Coefficients in Box and Jenkins' order and signs, and the standard errors: constant (the first
# column of X when there is one), AR, seasonal AR, MA, seasonal MA, other columns.
in_order <- function(f, m) {
  p <- length(lags(m$ar)); P <- length(lags(m$sar)); q <- length(lags(m$ma)); Q <- length(lags(m$sma))
  a <- c(seq_len(p), p + q + seq_len(P))
  b <- c(p + seq_len(q), p + q + P + seq_len(Q))
  k <- p + q + P + Q
  const <- if (m$constant == "1") k + 1 else integer(0)
  at <- c(const, a, b, setdiff(seq_along(coef(f)), c(a, b, const)))
  v <- unname(coef(f))
  v[b] <- -v[b]
  list(coefficient = v[at], std_error = unname(sqrt(diag(as.matrix(f$var.coef)))[at]))
}
