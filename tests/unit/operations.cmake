# What the number classes compute, driven through the tables of the built library.
add_executable(operation_tests
  operations/bare_calls_2048.cpp
  operations/bare_calls_256.cpp
  operations/cases.cpp
  operations/exact_tests.cpp
  operations/number_class.cpp
  operations/random_tests.cpp
  operations/reference_data.cpp
  operations/reference_tests.cpp
  operations/stated_results_tests.cpp
  operations/table_tests.cpp
  $<$<NOT:$<BOOL:${WIN32}>>:operations/random_source_tests.cpp>)
target_link_libraries(operation_tests
  PRIVATE unit_test_support unit_test_main doctest_headers standin_runtime ttmath project_options
    self_contained)
add_dependencies(operation_tests BigNumberVQZ)
build_quickly(operation_tests HEADERS <doctest/doctest.h>)
target_compile_definitions(operation_tests
  PRIVATE
    "PLUGIN_LIBRARY=\"$<TARGET_FILE:BigNumberVQZ>\""
    "ACCURACY_DOCUMENTATION=\"${PROJECT_SOURCE_DIR}/docs/accuracy.md\""
    "REFERENCE_FOLDER=\"${PROJECT_SOURCE_DIR}/tests/reference\"")

# The bare library is what results are measured by and is not under test itself. It negates the
# factor of a product with a machine integer, also the smallest one, which wraps here.
set_source_files_properties(operations/bare_calls_2048.cpp operations/bare_calls_256.cpp
  PROPERTIES
    SKIP_PRECOMPILE_HEADERS ON
    COMPILE_OPTIONS "-O2;-fwrapv;$<$<BOOL:${BIGNUMBERVQZ_SANITIZE}>:-fno-sanitize=all>")

# Many random operands take minutes: on one target, which neither sanitizers nor Wine slow down.
if(bits EQUAL 32 AND NOT WIN32 AND NOT BIGNUMBERVQZ_SANITIZE)
  target_compile_definitions(operation_tests PRIVATE THOROUGH_OPERATION_TESTS)
endif()

# At 2048 bits the functions take their time: each family is a test of its own.
function(add_operation_tests name)
  list(JOIN ARGN "," cases)
  add_project_test(NAME unit/operation_tests/${name} COMMAND operation_tests "--test-case=${cases}")
endfunction()

add_operation_tests(256-bits "*exact<256 bits>")
add_operation_tests(2048-bits-arithmetic "arithmetic*exact<2048 bits>")
add_operation_tests(2048-bits-logarithms "roots*exact<2048 bits>")
add_operation_tests(2048-bits-powers "powers*exact<2048 bits>" "long calls*exact<2048 bits>")
add_operation_tests(2048-bits-trigonometric "*trigonometric*exact<2048 bits>")
add_operation_tests(2048-bits-hyperbolic "hyperbolic*exact<2048 bits>")
add_operation_tests(2048-bits-inverse-hyperbolic "inverse hyperbolic*exact<2048 bits>")
add_operation_tests(reference "functions are as close*" "the documentation*" "every function*"
  "the distance*")
add_project_test(NAME unit/operation_tests/others
  COMMAND operation_tests
    "--test-case-exclude=*exact<*,functions are as close*,the documentation*,every function*,the distance*")
