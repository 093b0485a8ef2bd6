# The plug-in: its own routines, called directly, and its library, driven by the tables that it
# registers.
add_library(unit_test_support OBJECT support/host_values.cpp)
target_link_libraries(unit_test_support PUBLIC doctest_headers project_options standin_runtime)

add_unit_tests(plugin_tests
  SOURCES
    plugin/debug_log_tests.cpp
    plugin/direct_host.cpp
    plugin/exceptions_tests.cpp
    plugin/failing_memory.cpp
    plugin/host_functions_tests.cpp
    plugin/memory_blocks_tests.cpp
    plugin/number_objects_tests.cpp
    plugin/rb_text_tests.cpp
    plugin/registration_tests.cpp
    plugin/start_up_tests.cpp
    plugin/string_building_tests.cpp
  LIBRARIES plugin_objects unit_test_support standin_runtime)

# Tests make the plug-in's buffers fail: its calls of these two functions go through the test's own.
# Their names as the linker knows them tell the type of size_t.
set(type_of_size $<IF:$<EQUAL:${CMAKE_SIZEOF_VOID_P},4>,j,$<IF:$<BOOL:${WIN32}>,y,m>>)
target_link_options(plugin_tests PRIVATE
  "LINKER:--wrap=_ZN3vqz8platform14AllocateZeroedE${type_of_size}"
  "LINKER:--wrap=_ZN3vqz8platform10FreeBufferEPv")
target_compile_definitions(plugin_tests PRIVATE
  ALLOCATE_ZEROED=_ZN3vqz8platform14AllocateZeroedE${type_of_size})

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
