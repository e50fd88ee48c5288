# The flags that all of our own code is compiled and linked with, in one INTERFACE target.

find_program(ALGO_CCACHE ccache)
if(ALGO_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${ALGO_CCACHE}")
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(algo_flags INTERFACE)
target_compile_features(algo_flags INTERFACE cxx_std_20)
target_include_directories(algo_flags INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_options(algo_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)

if(ALGO_WERROR)
  target_compile_options(algo_flags INTERFACE -Werror)
endif()

if(ALGO_SANITIZE)
  set(sanitizers "-fsanitize=${ALGO_SANITIZE}" -fno-sanitize-recover=all)
  target_compile_options(algo_flags INTERFACE ${sanitizers} -fno-omit-frame-pointer)
  target_link_options(algo_flags INTERFACE ${sanitizers})
endif()

if(ALGO_COVERAGE)
  # Test programs run side by side and add to the same counts.
  target_compile_options(algo_flags INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(algo_flags INTERFACE --coverage)
endif()

if(ALGO_FUZZ)
  target_compile_options(algo_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
