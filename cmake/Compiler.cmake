# SPDX-License-Identifier: GPL-3.0-or-later
# One target without sources carries what every file of ours is compiled with; third-party code is spared.

add_library(quorvane_flags INTERFACE)
target_compile_features(quorvane_flags INTERFACE cxx_std_20)
target_compile_options(quorvane_flags INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion
  -Wimplicit-fallthrough -fno-strict-aliasing)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 at -O3 warns of overlaps in string concatenations that cannot happen (its bug 105651), and of members of
  # empty optionals that nobody reads (its bug 80635).
  target_compile_options(quorvane_flags INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()
target_compile_definitions(quorvane_flags INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_ASCII QT_NO_URL_CAST_FROM_STRING QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(quorvane_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(QUORVANE_SANITIZE)
  target_compile_options(quorvane_flags INTERFACE -fsanitize=${QUORVANE_SANITIZE} -fno-omit-frame-pointer
                         -fno-sanitize-recover=all)
  target_link_options(quorvane_flags INTERFACE -fsanitize=${QUORVANE_SANITIZE})
endif()
if(QUORVANE_FUZZ)
  target_compile_options(quorvane_flags INTERFACE -fsanitize=fuzzer-no-link)
  # Check sums are then not held against an input, or none would get past them.
  target_compile_definitions(quorvane_flags INTERFACE FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
# Several times faster than the default linker, and part of binutils, so always there on Debian 12.
find_program(GOLD_PROGRAM ld.gold)
if(GOLD_PROGRAM)
  add_link_options(-fuse-ld=gold)
endif()
