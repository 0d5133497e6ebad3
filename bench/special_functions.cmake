# The special functions against Boost.Math's long double versions, on the same arguments.
kornum_benchmark(kornum_special_functions_bench
  SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/SpecialFunctionsBench.cpp
  PEERS Boost)
