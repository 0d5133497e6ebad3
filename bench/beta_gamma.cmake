# Chi-square, Student t, F, beta and exponential distribution functions and their
# inverses, side by side with Boost.Math's long double distributions.
kornum_benchmark(kornum_beta_gamma_bench
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/BetaGammaDistributionsBench.cpp
  PEERS Boost)
