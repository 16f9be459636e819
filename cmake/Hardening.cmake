# SPDX-License-Identifier: MIT
# What Debian builds its programs with: checks of buffers whose sizes the compiler knows, checks of the stack, and tables
# of addresses that cannot be written once the program runs. Reading is as fast with it (bench/README.md).
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang" AND NOT WIN32 AND NOT QORVIX_SANITIZE)
  add_compile_options(-fstack-protector-strong)
  # It needs an optimised build.
  add_compile_definitions($<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:_FORTIFY_SOURCE=2>)
  add_link_options(-Wl,-z,relro,-z,now)
endif()
