# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
# One static library per folder and one test program per folder. Sources are globbed: a folder is the list of its files,
# and CONFIGURE_DEPENDS looks again at every build.

set(CMAKE_CXX_STANDARD 23)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
# Quicker while building. In optimised programs that ld.lld 14 has linked, some errors that are thrown find no handler.
find_program(LLD ld.lld)
if(LLD AND NOT CMAKE_BUILD_TYPE STREQUAL "Release")
  add_link_options(-fuse-ld=lld)
endif()

# Floating point as IEEE 754 says: window frames are single-precision arithmetic on every machine.
add_library(tarvo_options INTERFACE)
target_include_directories(tarvo_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(tarvo_options INTERFACE TARVO_VERSION="${PROJECT_VERSION}")
target_compile_options(tarvo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
  -Wold-style-cast -Wcast-qual -Wformat=2 -Wno-missing-field-initializers -ffp-contract=off)
if(TARVO_WERROR)
  target_compile_options(tarvo_options INTERFACE -Werror)
endif()
if(TARVO_SANITIZE)
  target_compile_options(tarvo_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(tarvo_options INTERFACE -fsanitize=address,undefined)
endif()

# What is handed out to people is built so that a fault of memory is hard to use: at changing addresses, with tables that
# nobody can write after the start, with checks of the stack, of the C library's calls and of where calls may lead.
if(CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$" AND NOT TARVO_SANITIZE)
  include(CheckCXXCompilerFlag)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
  check_cxx_compiler_flag(-fcf-protection TARVO_HAS_CF_PROTECTION)
  if(TARVO_HAS_CF_PROTECTION)
    add_compile_options(-fcf-protection)
  endif()
  add_link_options(-Wl,-z,relro,-z,now)
endif()

# tarvo_room(NAME [SUBFOLDERS dir...] [LINK lib...]): the static library of the current folder.
function(tarvo_room NAME)
  cmake_parse_arguments(ROOM "" "" "SUBFOLDERS;LINK;PRIVATE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  foreach(folder ${ROOM_SUBFOLDERS})
    file(GLOB more CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    list(APPEND sources ${more})
  endforeach()
  add_library(${NAME} STATIC ${sources})
  set_target_properties(${NAME} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(${NAME} PUBLIC tarvo_options ${ROOM_LINK} PRIVATE ${ROOM_PRIVATE})
endfunction()

# tarvo_tests(NAME [LINK lib...]): the test program of the current folder and those below it, run whole by ctest and by
# script/test.
function(tarvo_tests NAME)
  cmake_parse_arguments(TESTS "" "" "LINK" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${NAME} ${sources})
  target_link_libraries(${NAME} PRIVATE ${TESTS_LINK} tarvo_test_support GTest::gtest GTest::gtest_main)
  target_compile_options(${NAME} PRIVATE -O0)
  target_compile_definitions(${NAME} PRIVATE TARVO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  add_test(NAME ${NAME} COMMAND ${NAME})
  set_property(GLOBAL APPEND PROPERTY TARVO_TEST_PROGRAMS ${NAME})
endfunction()
