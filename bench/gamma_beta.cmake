# The special functions against Boost.Math's long double versions, on the same arguments.
kornum_benchmark(kornum_gamma_beta_bench
  SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/GammaBetaBench.cpp
  PEERS Boost)
