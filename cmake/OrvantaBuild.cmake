# What every target shares: warnings as errors, the compiler cache, third-party libraries.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(launcher ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_NOHASHDIR=1 CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}
    ${CCACHE_PROGRAM})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
endif()

add_library(orv_warnings INTERFACE)
add_library(orv::warnings ALIAS orv_warnings)
target_compile_options(orv_warnings INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wshadow -Wconversion -Werror>)

option(ORV_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(ORV_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize=vptr)
  add_link_options(-fsanitize=address,undefined)
endif()

find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(jsoncpp REQUIRED IMPORTED_TARGET jsoncpp)
