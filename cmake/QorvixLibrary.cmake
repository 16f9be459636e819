# SPDX-License-Identifier: MIT
# qorvix_library(NAME [WINDOW] SOURCES ... [USES ...]): one folder of src/ as a static library. Its headers are included as
# "folder/File.h". WINDOW = one that uses Qt.
function(qorvix_library name)
  cmake_parse_arguments(LIB "WINDOW" "" "SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${LIB_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${LIB_USES} PRIVATE qorvix_warnings)
  if(LIB_WINDOW)
    qorvix_use_precompiled(${name} window)
    qorvix_no_optimising_under_sanitizers(${name})
  else()
    qorvix_use_precompiled(${name} core)
  endif()
endfunction()

# qorvix_no_optimising_under_sanitizers(TARGET): tests spend little time in it, the compiler much.
function(qorvix_no_optimising_under_sanitizers target)
  if(QORVIX_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE -O0)
  endif()
endfunction()

# qorvix_compile_alone(FILES...): sources with local names that others of their target use as well. A build that compiles a
# target's sources together (CMAKE_UNITY_BUILD) leaves them apart.
function(qorvix_compile_alone)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
