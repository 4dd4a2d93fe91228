# Standard errors of smoothing weights from R's numerical Hessian, for tests/core/smoothing/FitTest.cpp.
#
#   Rscript std_errors.R > std_errors.csv
#
# The recursion is written out here, minimised over weights and starting components by optim, and
# bent by optimHess: standard errors are the roots of the diagonal of 2 s^2 H^-1, H the Hessian of the
# sum of squares by weights and starting components together, s^2 = SSE / (n - number of weights).
# Written: series,column,kind,season,weights,std_errors; NA for a weight held on its bound.
read <- function(file, column) read.csv(file.path("..", "data", file))[[column]]

# Errors of the component form. `p` is named: a, g, d, phi where the kind has them, l, b, s1 .. sm.
errors <- function(p, y, m, kind) {
  get <- function(name, otherwise) if (name %in% names(p)) p[[name]] else otherwise
  a <- p[["a"]]
  gains <- if (kind == "brown") c(a * (2 - a), a^2, 0) else
    c(a, a * get("g", 0), (1 - a) * get("d", 0))
  phi <- get("phi", 1)
  l <- p[["l"]]
  b <- get("b", 0)
  s <- if (m > 1) unlist(p[paste0("s", 1:m)]) else 0
  e <- numeric(length(y))
  for (t in seq_along(y)) {
    j <- (t - 1) %% m + 1
    q <- l + phi * b
    if (kind == "winters-multiplicative") {
      e[t] <- y[t] - q * s[j]
      l <- q + gains[1] * e[t] / s[j]
      b <- b + gains[2] * e[t] / s[j]
      s[j] <- s[j] + gains[3] * e[t] / q
    } else {
      e[t] <- y[t] - q - s[j]
      l <- q + gains[1] * e[t]
      b <- phi * b + gains[2] * e[t]
      s[j] <- s[j] + gains[3] * e[t]
    }
  }
  e
}

tell <- function(file, column, kind, m, weights, start, held = NULL) {
  y <- read(file, column)
  unit <- sd(y)
  y <- y / unit
  free <- c(weights, start)
  sse <- function(x) {
    p <- c(setNames(as.list(x), names(free)), held)
    w <- x[seq_along(weights)]
    if (any(w < 0 | w > 1)) return(1e10)
    sum(errors(p, y, m, kind)^2)
  }
  x <- unlist(free)
  for (i in 1:30) {
    x <- optim(x, sse, method = "BFGS", control = list(maxit = 2000, reltol = 1e-15, ndeps = rep(1e-6, length(x))))$par
    x <- optim(x, sse, control = list(maxit = 4000, reltol = 1e-15))$par
  }
  k <- length(weights) + sum(names(held) %in% c("a", "g", "d", "phi"))
  H <- optimHess(x, sse, control = list(ndeps = rep(1e-4, length(x))))
  v <- 2 * sse(x) / (length(y) - k) * diag(solve(H))
  order <- c("a", "g", "d", "phi")
  all <- c(x[seq_along(weights)], unlist(held[names(held) %in% order]))
  se <- c(sqrt(v[seq_along(weights)]), rep(NA, k - length(weights)))
  names(se) <- names(all)
  shown <- order[order %in% names(all)]
  cat(file, column, kind, m, paste(sprintf("%.8g", all[shown]), collapse = " "),
      paste(ifelse(is.na(se[shown]), "NA", sprintf("%.8g", se[shown])), collapse = " "), sep = ",")
  cat("\n")
}

cat("series,column,kind,season,weights,std_errors\n")
tell("nile.csv", "value", "simple", 1, list(a = 0.3), list(l = 6))
tell("bjsales.csv", "lead", "simple", 1, list(a = 0.5), list(l = 10))
tell("bjsales.csv", "sales", "brown", 1, list(a = 0.6), list(l = 9, b = 0))
tell("bjsales.csv", "lead", "damped-trend", 1, list(a = 0.42, g = 0.22, phi = 0.8), list(l = 10, b = 0))
# The last seasonal value is held: only its difference from the level counts.
tell("ukgas.csv", "value", "winters-multiplicative", 4, list(a = 0.0232, d = 0.78),
     list(l = 0.6, b = 0.005, s1 = 1.2, s2 = 1.0, s3 = 0.8), list(g = 1, s4 = 1))
