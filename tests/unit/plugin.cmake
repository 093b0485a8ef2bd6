# The plug-in's own routines, called directly.
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
