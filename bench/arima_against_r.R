# Exact maximum likelihood fits of the airline model: this core beside R's arima, in turns, processor
# time of one thread each.
#
#   Rscript bench/arima_against_r.R build/bench/bin/arima_bench
bench <- commandArgs(trailingOnly = TRUE)[1]

ours <- function() {
  out <- system2(bench, c("--benchmark_filter=^Fit/ml$", "--benchmark_min_time=0.5",
                          "--benchmark_format=csv"), stdout = TRUE, stderr = FALSE)
  table <- read.csv(text = out[grep("^name,", out):length(out)])
  c(time = table$cpu_time / 1e6, loglik = table$loglik)
}
fits <- 5
theirs <- function() {
  used <- system.time(for (i in 1:fits) {
    fit <- arima(log(AirPassengers), c(0, 1, 1), list(order = c(0, 1, 1)), method = "ML")
  })
  c(time = sum(used[1:2]) / fits, loglik = as.numeric(logLik(fit)))
}

invisible(theirs())
ratios <- c()
for (round in 1:5) {
  r <- theirs()
  o <- ours()
  # R starts the differences from a wide prior, which moves its likelihood a little.
  stopifnot(abs(r["loglik"] - o["loglik"]) < 0.01)
  ratios <- c(ratios, r["time"] / o["time"])
  cat(sprintf("round %d: arima %.1f ms, ours %.3f ms, %.0f fits of ours per fit of arima\n", round,
              1e3 * r["time"], 1e3 * o["time"], r["time"] / o["time"]))
}
cat(sprintf("median: %.0f fits per fit of arima (log-likelihood %.4f, ours %.4f)\n", median(ratios),
            r["loglik"], o["loglik"]))
