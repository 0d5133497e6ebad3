# Public headers are reached as <kornum/NAME.h> both in the build tree and after
# install. In the build tree each header is linked into build/include/kornum, so
# the header stays beside its source and is edited there.
set(KORNUM_BUILD_INCLUDE_DIR ${CMAKE_BINARY_DIR}/include)
file(MAKE_DIRECTORY ${KORNUM_BUILD_INCLUDE_DIR}/kornum)

# BUILD_TREE_ONLY: headers of a library that is not installed.
function(kornum_public_headers)
  cmake_parse_arguments(PARSE_ARGV 0 arg "BUILD_TREE_ONLY" "" "")
  foreach(header IN LISTS arg_UNPARSED_ARGUMENTS)
    get_filename_component(absolute ${header} ABSOLUTE)
    get_filename_component(name ${header} NAME)
    file(CREATE_LINK ${absolute} ${KORNUM_BUILD_INCLUDE_DIR}/kornum/${name} SYMBOLIC COPY_ON_ERROR)
    if(NOT arg_BUILD_TREE_ONLY)
      install(FILES ${absolute} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kornum)
    endif()
  endforeach()
endfunction()

# A library of the package: exported as kornum::<EXPORT_NAME>. Symbols are hidden unless
# the public headers export them (KORNUM_EXPORT_BEGIN in <kornum/KornumExport.h>). Shared,
# except in the Python package's build, which links them into its module.
set(KORNUM_LIBRARY_TYPE SHARED CACHE STRING "SHARED, or STATIC to link the libraries into one module")
function(kornum_library target export_name)
  add_library(${target} ${KORNUM_LIBRARY_TYPE})
  add_library(kornum::${export_name} ALIAS ${target})
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${export_name}
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${KORNUM_BUILD_INCLUDE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  # Internal headers are reached from the source root as "MODULE/detail/NAME.hpp".
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_options(${target} PRIVATE
    -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/KornumExports.map)
  set_property(TARGET ${target} APPEND PROPERTY
    LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/KornumExports.map)
endfunction()
