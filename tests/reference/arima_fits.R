# ARIMA fits by R's arima, for the models of arima_models.csv.
#
#   Rscript arima_fits.R > arima_fits_r.csv
#
# Every series is differenced before the fit, so that no diffuse start is left in the likelihood.
# Several starts, tight tolerance, both initial covariances; the best is kept. Denominators are
# profiled: an outer search over delta with arima inside. Signs are turned to Box and Jenkins'.
# Writes model,method,quantity,index,value.
source("arima_best.R")
set.seed(20)
models <- read.csv("arima_models.csv", colClasses = "character")
read <- function(series, column) read.csv(file.path("..", "data", paste0(series, ".csv")))[[column]]
change <- function(x, m) {
  for (i in seq_len(m$d)) x <- diff(x)
  for (i in seq_len(m$D)) x <- diff(x, lag = m$season)
  x
}

say <- function(model, method, quantity, values)
  cat(sprintf("%s,%s,%s,%d,%.15g\n", model, method, quantity, seq_along(values) - 1L, values), sep = "")

options_of <- function(words) {
  after <- function(key, otherwise) if (key %in% words) as.integer(words[match(key, words) + 1]) else otherwise
  list(name = words[1], log = "log" %in% words, delay = after("delay", 0), num = after("num", 0),
       den = after("den", 0))
}

# Columns for omega0, omega1 of a predictor, its x steady before the first case.
columns <- function(p, m, delta) {
  x <- read(m$series, p$name)
  if (p$log) x <- log(x)
  before <- if (m$d + m$D > 0) 0 else x[1]
  x <- change(x, m)
  f <- x
  if (p$den) f <- as.numeric(stats::filter(x, delta, method = "recursive", init = before / (1 - delta)))
  back <- function(by) c(rep(before / (1 - delta), by), f)[seq_along(f)]
  out <- cbind(back(p$delay))
  if (p$num) out <- cbind(out, -back(p$delay + p$num))
  out
}

tell <- function(m) {
  m$season <- as.integer(m$season); m$d <- as.integer(m$d); m$D <- as.integer(m$D)
  y <- read(m$series, m$column)
  if (m$log == "1") y <- log(y)
  z <- change(y, m)
  preds <- lapply(strsplit(trimws(strsplit(m$predictors, ";")[[1]]), " "), options_of)
  first <- max(0, unlist(lapply(preds, function(p) p$delay + p$num)))
  den <- any(unlist(lapply(preds, function(p) p$den > 0)))
  used <- (first + 1):length(z)
  design <- function(delta) {
    X <- if (m$constant == "1") matrix(1, length(z), 1) else NULL
    for (p in preds) X <- cbind(X, columns(p, m, delta))
    if (nzchar(m$outlier)) X <- cbind(X, change(as.numeric(seq_along(y) > as.integer(lags(sub("level ", "", m$outlier)))), m))
    if (is.null(X)) NULL else X[used, , drop = FALSE]
  }
  for (method in c("ML", "CSS")) {
    if (method == "CSS" && anyNA(z)) next
    value <- function(f) if (method == "CSS") log(f$sigma2) else -2 * f$loglik
    delta <- 0
    if (den) delta <- optimize(function(g) value(fit(z[used], design(g), m, method, 1)), c(0.05, 0.95), tol = 1e-9)$minimum
    f <- fit(z[used], design(delta), m, method)
    told <- in_order(f, m)
    n_used <- sum(!is.na(z[used])) - if (method == "CSS") max(0, lags(m$ar)) + max(0, lags(m$sar)) else 0
    label <- if (method == "ML") "ml" else "cls"
    # The denominator stands after its numerator and before the outliers; no model here has both.
    say(m$model, label, "coefficient", c(told$coefficient, if (den) delta))
    # Given the denominator, so too small: only without one are they comparable.
    if (!den) say(m$model, label, "std_error", told$std_error)
    if (method == "ML") say(m$model, label, "log_likelihood", f$loglik)
    if (method == "ML") say(m$model, label, "sum_of_squares", f$sigma2 * n_used)
    if (method == "CSS") {
      e <- residuals(f)
      cond <- length(used) - n_used
      say(m$model, label, "sum_of_squares", sum(e[(cond + 1):length(e)]^2))
    }
  }
}

cat("model,method,quantity,index,value\n")
for (i in seq_len(nrow(models))) tell(as.list(models[i, ]))
