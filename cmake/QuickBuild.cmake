# What is built for tests is built quickly: it runs for seconds, and is compiled for each target.
include_guard()

# build_quickly(target [HEADERS header...])
#
# Reads the standard library's headers, and those named, once for all files of the target, and
# optimises less. Sources include what they use nevertheless: tests/source_rules.py looks for that, and Clang,
# the lint and the coverage build read each of them without the precompiled headers.
function(build_quickly target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS")
  target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O1>)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    return()
  endif()
  # GCC 12 at -O1 sees strings overflow that don't.
  target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
  if(NOT BIGNUMBERVQZ_COVERAGE)
    target_precompile_headers(${target} PRIVATE
      <algorithm>
      <array>
      <cstdint>
      <functional>
      <map>
      <memory>
      <optional>
      <string>
      <string_view>
      <utility>
      <variant>
      <vector>
      ${arg_HEADERS})
  endif()
endfunction()
