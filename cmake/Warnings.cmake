# SPDX-License-Identifier: MIT
# Every target of the project links this interface; it carries the warnings and, where asked for, the sanitizers.
add_library(qorvix_warnings INTERFACE)
target_compile_options(qorvix_warnings INTERFACE
  $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall -Wextra -Wconversion -Wsign-conversion -Wshadow>
  $<$<CXX_COMPILER_ID:MSVC>:/W4>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 warns of "literal" + std::string where nothing overlaps.
  target_compile_options(qorvix_warnings INTERFACE -Wno-restrict)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # It takes sources that are compiled together (CMAKE_UNITY_BUILD) for headers.
  target_compile_options(qorvix_warnings INTERFACE -Wno-subobject-linkage)
endif()
if(QORVIX_WARNINGS_AS_ERRORS)
  target_compile_options(qorvix_warnings INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang>:-Werror>
    $<$<CXX_COMPILER_ID:MSVC>:/WX>)
endif()
if(QORVIX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
