# Multiplicative Winters fits of the airline series: this core beside R's ets with the model fixed, in
# turns, one thread each. Needs the package forecast.
#
#   Rscript bench/against_r.R build/bench/bin/smoothing_bench
suppressMessages(library(forecast))
bench <- commandArgs(trailingOnly = TRUE)[1]

ours <- function() {
  out <- system2(bench, c("--benchmark_filter=winters_multiplicative", "--benchmark_min_time=0.5",
                          "--benchmark_format=csv"), stdout = TRUE, stderr = FALSE)
  table <- read.csv(text = out[grep("^name,", out):length(out)])
  table$real_time / 1e6
}
fits <- 5
theirs <- function() {
  system.time(for (i in 1:fits) {
    fit <<- ets(AirPassengers, model = "MAM", damped = FALSE, opt.crit = "mse")
  })[["elapsed"]] / fits
}

invisible(theirs())
ratios <- c()
for (round in 1:5) {
  r <- theirs()
  o <- ours()
  ratios <- c(ratios, r / o)
  cat(sprintf("round %d: ets %.1f ms, ours %.3f ms, %.0f fits of ours per fit of ets\n",
              round, 1e3 * r, 1e3 * o, r / o))
}
cat(sprintf("median: %.0f fits per fit of ets (sum of squares of ets %.1f)\n", median(ratios),
            sum((AirPassengers - fitted(fit))^2)))
