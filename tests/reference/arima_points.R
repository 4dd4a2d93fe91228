# What R's arima says at the coefficients of arima_points.py: adds the column r.
#
#   Rscript arima_points.R points.csv > arima_points.csv
series <- read.csv("arima_points_series.csv")
points <- read.csv(commandArgs(TRUE)[1], colClasses = "character", check.names = FALSE)

# Coefficients of lags 1 .. in steps of `unit`, 0 where the polynomial has a gap.
filled <- function(text, unit = 1, sign = 1) {
  if (!nzchar(text)) return(numeric(0))
  pairs <- strsplit(strsplit(text, " ")[[1]], ":")
  at <- as.integer(sapply(pairs, `[`, 1)) / unit
  out <- numeric(max(at))
  out[at] <- sign * as.numeric(sapply(pairs, `[`, 2))
  out
}

by_r <- function(p) {
  y <- suppressWarnings(as.numeric(strsplit(series$values[series$series == p$series], " ")[[1]])) - as.numeric(p$constant)
  ar <- filled(p$ar); sar <- filled(p$sar, 12); ma <- filled(p$ma, 1, -1); sma <- filled(p$sma, 12, -1)
  fixed <- c(ar, ma, sar, sma)
  f <- tryCatch(suppressWarnings(arima(y, c(length(ar), 0, length(ma)), list(order = c(length(sar), 0, length(sma)), period = 12),
                      include.mean = FALSE, method = "ML", transform.pars = FALSE,
                      fixed = fixed)), error = function(e) NULL)
  if (is.null(f)) NA else f$loglik
}

points$r <- sprintf("%.12g", sapply(seq_len(nrow(points)), function(i) by_r(as.list(points[i, ]))))
write.table(points, sep = ",", row.names = FALSE, quote = FALSE)
