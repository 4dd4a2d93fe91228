# Settings every target shares: language level, warnings, sanitizers, where things land.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()
# Missing values and guards rely on exact comparisons and on NaN, so never -ffast-math.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

# Link to tsxport_warnings from every target of ours.
add_library(tsxport_warnings INTERFACE)
target_compile_options(tsxport_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                                                  -Werror)

if(TSXPORT_SANITIZE)
  add_compile_options(-fsanitize=${TSXPORT_SANITIZE} -fno-omit-frame-pointer
                      -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${TSXPORT_SANITIZE})
endif()
if(TSXPORT_BUILD_FUZZ)
  # Everything tells the fuzzer which branches it takes, not the fuzz target's own file alone.
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(TSXPORT_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic) # threads count too
  add_link_options(--coverage)
endif()

# tsxport_subsystem(NAME SOURCES...): one folder of the library, as objects. The folder sees the
# public headers, the core's contract where it is linked below, and the repository root, so that
# includes read "xml/NumberList.h".
function(tsxport_subsystem name)
  add_library(${name} OBJECT ${ARGN})
  target_include_directories(
    ${name} PUBLIC "${PROJECT_SOURCE_DIR}/include" "${PROJECT_BINARY_DIR}/generated"
                   "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE tsxport_warnings)
  set_property(GLOBAL APPEND PROPERTY TSXPORT_SUBSYSTEMS ${name})
endfunction()
