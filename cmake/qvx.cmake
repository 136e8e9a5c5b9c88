# What every folder's list uses: warnings, sanitizers, the header-only libraries, and the two verbs
# qvx_module (a host module with the .arx suffix) and qvx_test (one test program).
option(QVX_TESTS "build the tests" ON)
option(QVX_LTO "optimise the menu engine and the kernel's texts across files" OFF)
option(QVX_SANITIZE "address and undefined behaviour sanitizers (native only)" OFF)

add_compile_options(-Wall -Wextra)
include_directories(${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/standins)

if(WIN32)
  enable_language(RC)
  add_compile_definitions(UNICODE _UNICODE WINVER=0x0A00 _WIN32_WINNT=0x0A00 NOMINMAX
                          WIN32_LEAN_AND_MEAN __USE_MINGW_ANSI_STDIO=1)
  # The compiler's own run-time libraries are not on any search path of Windows: they stand beside
  # the programs.
  get_filename_component(_gcc_dir "/usr/lib/gcc/x86_64-w64-mingw32/12-posix" ABSOLUTE)
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll)
    file(COPY ${_gcc_dir}/${dll} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  endforeach()
  file(COPY /usr/x86_64-w64-mingw32/lib/libwinpthread-1.dll
       DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endif()
if(QVX_SANITIZE AND NOT WIN32)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Header-only packages come from the native include path; they are given one folder at a time so
# that nothing else of that path can leak into the cross build.
set(_hdr ${CMAKE_BINARY_DIR}/headers)
file(MAKE_DIRECTORY ${_hdr})
foreach(pkg nlohmann CLI)
  if(EXISTS /usr/include/${pkg} AND NOT EXISTS ${_hdr}/${pkg})
    file(CREATE_LINK /usr/include/${pkg} ${_hdr}/${pkg} SYMBOLIC)
  endif()
endforeach()
add_library(header_packages INTERFACE)
target_include_directories(header_packages SYSTEM INTERFACE ${_hdr})

# Linked statically, so that no library has to lie beside the programs.
set(ZLIB_USE_STATIC_LIBS ON)
find_package(ZLIB REQUIRED)

# qvx_module(NAME SOURCES...): a module that the host loads. Only what is marked for export leaves it,
# and the version of the interface it was built with, which every module exports from the host's library.
function(qvx_module name)
  add_library(${name} SHARED ${ARGN})
  set_target_properties(${name} PROPERTIES PREFIX "" SUFFIX ".arx")
  target_sources(${name} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/module.def)
  target_link_libraries(${name} PRIVATE rxapi)
  target_link_options(${name} PRIVATE -Wl,--undefined=acrxGetApiVersion)
endfunction()

# qvx_room(NAME [EXCEPT file...] LIBS target... [WINDOWS_LIBS target...]): one room of the product.
# NAME_logic holds every source outside a folder win/ and builds everywhere; NAME holds those in win/
# and builds for Windows. A room without WINDOWS_LIBS links its windows side itself.
function(qvx_room name)
  cmake_parse_arguments(R "" "" "EXCEPT;LIBS;WINDOWS_LIBS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp)
  set(windows ${sources})
  list(FILTER sources EXCLUDE REGEX "/win/")
  list(FILTER windows INCLUDE REGEX "/win/")
  foreach(file ${R_EXCEPT})
    list(REMOVE_ITEM sources ${CMAKE_CURRENT_SOURCE_DIR}/${file})
  endforeach()
  add_library(${name}_logic STATIC ${sources})
  target_link_libraries(${name}_logic PUBLIC ${R_LIBS})
  if(NOT WIN32 OR NOT R_WINDOWS_LIBS)
    return()
  endif()
  if(windows)
    add_library(${name} STATIC ${windows})
    target_link_libraries(${name} PUBLIC ${name}_logic ${R_WINDOWS_LIBS})
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE ${name}_logic ${R_WINDOWS_LIBS})
  endif()
endfunction()

if(QVX_TESTS)
  set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(gtest_disable_pthreads OFF CACHE BOOL "" FORCE)
  set(_shared ${BUILD_SHARED_LIBS})
  set(BUILD_SHARED_LIBS OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  set(BUILD_SHARED_LIBS ${_shared})
endif()

if(QVX_TESTS AND WIN32)
  add_library(test_watchdog OBJECT ${CMAKE_SOURCE_DIR}/tests/doubles/win/watchdog.cpp)
  target_link_libraries(test_watchdog PRIVATE gtest)
endif()

# qvx_test(NAME SOURCES file... [LIBS target...]): bin/test_NAME, found and counted by ./test.
function(qvx_test name)
  cmake_parse_arguments(T "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(test_${name} ${T_SOURCES})
  target_link_libraries(test_${name} PRIVATE ${T_LIBS} gtest gtest_main)
  if(WIN32)
    target_link_libraries(test_${name} PRIVATE test_watchdog)
  endif()
  # Only for the files that read the tree: any other compiles to the same object in every checkout.
  foreach(source ${T_SOURCES})
    file(STRINGS ${source} reads_tree REGEX QVX_SOURCE_DIR LIMIT_COUNT 1)
    if(reads_tree)
      set_source_files_properties(${source} PROPERTIES COMPILE_DEFINITIONS
                                  QVX_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    endif()
  endforeach()
endfunction()
