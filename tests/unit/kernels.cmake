# The kernels by themselves, without any host, beside plain ttmath in the same program.
if(NOT TARGET kernels)
  return()
endif()

# What is called: once as ttmath has it, under another name, and once with each build of the kernels.
function(add_kernel_calls target name)
  add_library(${target} OBJECT kernels/calls.cpp)
  target_link_libraries(${target} PUBLIC project_options ${ARGN})
  target_compile_definitions(${target} PRIVATE CALLS=${name})
  # ttmath negates the smallest integer here and there, which wraps.
  target_compile_options(${target} PRIVATE -fwrapv)
endfunction()

add_kernel_calls(plain_kernel_calls plain ttmath)
target_compile_definitions(plain_kernel_calls PRIVATE ttmath=plain_ttmath)
target_compile_options(plain_kernel_calls PRIVATE
  -O2 -fno-sanitize=all -fno-profile-arcs -fno-test-coverage)

function(add_kernel_tests target kernels)
  add_kernel_calls(${target}_calls with_kernels ${kernels})
  add_unit_tests(${target}
    SOURCES
      kernels/division_tests.cpp
      kernels/power_tests.cpp
      kernels/primitive_tests.cpp
      kernels/product_tests.cpp
      kernels/series_tests.cpp
      kernels/sum_tests.cpp
      kernels/text_tests.cpp
    LIBRARIES ${kernels} ${target}_calls plain_kernel_calls)
endfunction()

add_kernel_tests(kernel_tests kernels)
if(KERNEL_BASIC_SET)
  add_kernel_tests(kernel_tests_${KERNEL_BASIC_SET} kernels_${KERNEL_BASIC_SET})
endif()

add_project_test(NAME unit/kernel_map
  COMMAND Python3::Interpreter "${CMAKE_CURRENT_SOURCE_DIR}/kernels/map_test.py" "${PROJECT_SOURCE_DIR}")
