# Random variates beside GSL's generators and the standard library's normal
# distribution.
kornum_benchmark(kornum_random_bench
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/RandomBench.cpp
  PEERS GSL)
