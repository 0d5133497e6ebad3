# Chi-square, Student t, F, beta and exponential distribution functions and their
# inverses, side by side with Boost.Math's long double distributions.
kornum_benchmark(kornum_continuous_distributions_bench
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/ContinuousDistributionsBench.cpp
  PEERS Boost)
