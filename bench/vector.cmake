# Vector sorting, ranking and aggregates beside the standard library and GSL.
kornum_benchmark(kornum_vector_bench
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/VectorBench.cpp
  PEERS GSL)
