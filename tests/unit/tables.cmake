# The built library in a host of its own, and its members in a form in which all can be called.
add_library(table_test_support OBJECT
  tables/loaded_plugin.cpp
  tables/members.cpp
  tables/recipes.cpp
  tables/watched_plugin.cpp)
target_link_libraries(table_test_support PUBLIC unit_test_support)
target_compile_definitions(table_test_support PRIVATE
  "BIGNUMBERVQZ_LIBRARY=\"$<TARGET_FILE:BigNumberVQZ>\"")

add_unit_tests(table_tests
  SOURCES
    tables/arithmetic_tests.cpp
    tables/currency_tests.cpp
    tables/failing_step_tests.cpp
    tables/lifecycle_tests.cpp
    tables/lookup_tests.cpp
    tables/raw_access_tests.cpp
    tables/robustness_tests.cpp
    tables/table_contents_tests.cpp
    tables/text_tests.cpp
    tables/variant_tests.cpp
    tables/width_tests.cpp
  LIBRARIES table_test_support unit_test_support standin_runtime)
add_dependencies(table_tests BigNumberVQZ)
