# Sample mean, variance and standard deviation beside GSL's statistics routines.
kornum_benchmark(kornum_sample_statistics_bench
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/SampleStatisticsBench.cpp
  PEERS GSL)
