# R's arima on the series of arima_simulated.py, the best of several starts.
#
#   Rscript arima_simulated.R arima_simulated_series.csv > simulated_r.csv
#
# Writes series,log_likelihood,coefficients.
source("arima_best.R")
set.seed(21)
rows <- read.csv(commandArgs(TRUE)[1], colClasses = "character")
cat("series,log_likelihood,coefficients\n")
for (i in seq_len(nrow(rows))) {
  m <- as.list(rows[i, ])
  m$season <- as.integer(m$season)
  z <- as.numeric(strsplit(m$values, " ")[[1]])
  for (j in seq_len(as.integer(m$d))) z <- diff(z)
  for (j in seq_len(as.integer(m$D))) z <- diff(z, lag = m$season)
  X <- if (m$constant == "1") matrix(1, length(z), 1) else NULL
  f <- fit(z, X, m, "ML", 8)
  cat(sprintf("%s,%.15g,%s\n", m$series, f$loglik, paste(sprintf("%.15g", in_order(f, m)$coefficient), collapse = " ")))
}
