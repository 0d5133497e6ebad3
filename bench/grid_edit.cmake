# Painting the grid edits on the Cairo image canvas beside plain Cairo drawing the same
# cells, and pasting a block beside std::from_chars reading the same tokens.
if(TARGET kornum_canvas)
  kornum_benchmark(kornum_grid_edit_bench SOURCES ${CMAKE_CURRENT_LIST_DIR}/GridEditBench.cpp)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(CAIRO REQUIRED IMPORTED_TARGET cairo)
  target_link_libraries(kornum_grid_edit_bench PRIVATE kornum_canvas PkgConfig::CAIRO)
endif()
