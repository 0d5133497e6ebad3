# Matrix product, determinant and inverse, side by side with Eigen's long double
# matrices.
kornum_benchmark(kornum_matrix_bench
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/MatrixBench.cpp
  PEERS Eigen)
