# The models that R's auto.arima chooses for every series of ../data.
#
#   Rscript auto_arima.R > auto_r.csv
#
# `search`: "stepwise" is the default; "full" is stepwise = FALSE, approximation = FALSE, left out
# where it takes more than five minutes. Writes the orders, the constant of the differenced series, the
# other coefficients (Box and Jenkins' signs) and what R counts and reports.
suppressMessages(library(forecast))
frequencies <- c(airpassengers = 12, co2 = 12, intermittent_a = 12, intermittent_b = 12, johnsonjohnson = 4,
                 ldeaths = 12, nottem = 12, presidents = 4, seatbelts = 12, ukgas = 4, usaccdeaths = 12)

show <- function(name, column, search) {
  m <- if (name %in% names(frequencies)) frequencies[[name]] else 1
  y <- ts(read.csv(file.path("..", "data", paste0(name, ".csv")))[[column]], frequency = m)
  f <- if (search == "full") auto.arima(y, stepwise = FALSE, approximation = FALSE) else auto.arima(y)
  o <- f$arma # p, q, P, Q, season, d, D
  k <- sum(o[1:4])
  v <- unname(coef(f))
  if (length(v) > k + 1) stop("one regressor at most")
  # A drift of R's is the slope of the undifferenced series.
  constant <- if (length(v) > k) v[k + 1] * (if (o[7] == 1) m else 1) else NA
  v <- v[seq_len(k)]
  ma <- o[1] + seq_len(o[2])
  sma <- o[1] + o[2] + o[3] + seq_len(o[4])
  v[c(ma, sma)] <- -v[c(ma, sma)]
  v <- v[c(seq_len(o[1]), o[1] + o[2] + seq_len(o[3]), ma, sma)]
  cat(name, column, m, search, o[1], o[6], o[2], o[3], o[7], o[4],
      sprintf("%.15g", constant), paste(sprintf("%.15g", v), collapse = " "),
      f$nobs, length(f$coef), sprintf("%.15g", f$loglik), sprintf("%.15g", f$aicc), sep = ",")
  cat("\n")
}

arguments <- commandArgs(TRUE)
if (length(arguments)) {
  show(arguments[1], arguments[2], arguments[3])
} else {
  cat("series,column,season,search,p,d,q,P,D,Q,constant,coefficients,n,k,r_log_likelihood,r_aicc\n")
  for (file in list.files("../data", "csv$")) {
    name <- sub(".csv", "", file)
    for (column in setdiff(names(read.csv(file.path("..", "data", file))), "date"))
      for (search in c("stepwise", "full"))
        writeLines(suppressWarnings(system2("timeout", c("300", "Rscript", "auto_arima.R", name, column, search), stdout = TRUE, stderr = FALSE)))
  }
}
