# Normal, log-normal, binomial and Poisson distribution functions, side by side with Boost.Math's
# long double distributions.
kornum_benchmark(kornum_normal_distributions_bench
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/NormalDistributionsBench.cpp
  PEERS Boost)
