#!/usr/bin/env Rscript
# Works out, independently of the program, the figures that the tests hold the diary's statistics
# against, with R's own lowess(), mean() and cumsum(). Run it when the series below changes:
#   tools/diary/statistics.R >tests/unit/diary_figures.inc
# Last made with R 4.2.2, Debian's package r-base-core.

# The series, from day 20000 on, 45 days. Whole numbers, so that both sides make it exactly alike.
i <- 0:44
day <- 20000 + i
kcal <- 1800 + (i * 7919) %% 1000
burned <- ifelse(i %% 3 == 0, 150 + (i * 37) %% 200, 0)
weight <- (80000 - 60 * i + (i * 7727) %% 900) / 1000
weight[c(11, 31)] <- c(95, 61)                  # two slips of typing
eaten <- !(i %% 10 %in% c(4, 5)) & i != 16      # the other days have no entry

table_of <- function(comment, name, type, rows) {
  cat("// ", comment, "\nconstexpr ", type, " ", name, "[] = {\n    ", sep = "")
  cat(strwrap(paste(rows, collapse = ", "), width = 96), sep = "\n    ")
  cat("};\n")
}
pair <- function(a, b) sprintf("{%d,\u00a0%.6f}", as.integer(a), b)
show <- function(...) {
  text <- capture.output(table_of(...))
  cat(gsub("\u00a0", " ", text), sep = "\n")
}

cat("// Made by tools/diary/statistics.R.\n\n")
rows <- c()
for (d in day) {
  week <- eaten & day > d - 7 & day <= d
  if (sum(week) >= 4) rows <- c(rows, pair(d, mean(kcal[week])))
}
show("Means of seven days, four of them at the least.", "kWeekMeanFigures", "DayValue", rows)

weekday <- (as.POSIXlt(as.Date(day, origin = "1970-01-01"))$wday + 6) %% 7
rows <- sapply(0:6, function(w) pair(sum(eaten & weekday == w), mean(kcal[eaten & weekday == w])))
show("From Monday: how many days, and their mean.", "kWeekdayFigures", "WeekdayMean", rows)

deficit <- cumsum(2200 - kcal[eaten] + burned[eaten])
show("With 2200 kcal needed.", "kDeficitFigures", "DayValue", pair(day[eaten], deficit))

for (every in c(TRUE, FALSE)) {
  x <- day[every | i %% 3 != 2]
  fit <- lowess(x, weight[every | i %% 3 != 2], f = 21 / length(x), iter = 3, delta = 0)
  show(if (every) "A weight every day." else "Two weights in three days.",
       if (every) "kDailyTrendFigures" else "kSparseTrendFigures", "DayValue", pair(fit$x, fit$y))
}
