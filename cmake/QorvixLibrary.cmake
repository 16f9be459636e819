# SPDX-License-Identifier: MIT
# qorvix_library(NAME SOURCES ... [USES ...]): one folder of src/ as a static library. Its headers are included as
# "folder/File.h".
function(qorvix_library name)
  cmake_parse_arguments(LIB "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${LIB_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${LIB_USES} PRIVATE qorvix_warnings)
endfunction()
