# The language, the warnings and the sanitizers, the same for every target of ours.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(lauwerkrans_opties INTERFACE)
# Averages are summed in single precision, step by step: no contraction into fused operations.
target_compile_options(lauwerkrans_opties INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wold-style-cast -Werror -ffp-contract=off)
# GCC 12 sees an overlap in "text" + std::string at -O3 that cannot be (GCC bug 105651).
target_compile_options(lauwerkrans_opties INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

# What is given to users does not name the folders of the machine that built it.
add_compile_options($<$<AND:$<CONFIG:Release>,$<COMPILE_LANGUAGE:CXX>>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)

if(LAUWERKRANS_SANITIZERS)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

include(${CMAKE_CURRENT_LIST_DIR}/Hardening.cmake)

if(WIN32)
  target_compile_definitions(lauwerkrans_opties INTERFACE
    UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
endif()
