# Warnings, sanitizers, coverage and ccache for every target of the project.
add_library(tarvane_options INTERFACE)
target_compile_options(tarvane_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
  # GCC 12 warns of overlaps in std::string that cannot be.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(TARVANE_SANITIZE)
  target_compile_options(tarvane_options INTERFACE
    -fsanitize=${TARVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tarvane_options INTERFACE -fsanitize=${TARVANE_SANITIZE})
endif()
if(TARVANE_FUZZ)
  target_compile_options(tarvane_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(TARVANE_COVERAGE)
  target_compile_options(tarvane_options INTERFACE --coverage)
  target_link_options(tarvane_options INTERFACE --coverage)
endif()

find_program(TARVANE_CCACHE ccache)
if(TARVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${TARVANE_CCACHE})
endif()
