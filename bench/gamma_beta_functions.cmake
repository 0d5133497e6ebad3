# The special functions against Boost.Math's long double versions, on the same arguments.
kornum_benchmark(kornum_gamma_beta_functions_bench
  SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/GammaBetaFunctionsBench.cpp
  PEERS Boost)
