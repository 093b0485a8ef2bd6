# The built library in the hands of a host whose memory runs out, and of one that calls it oddly.
add_library(library_memory OBJECT
  support/imports_$<IF:$<BOOL:${WIN32}>,windows,linux>.cpp
  support/library_memory.cpp)
target_link_libraries(library_memory PUBLIC doctest_headers project_options)

add_unit_tests(hostile_tests
  SOURCES
    hostile/allocation_tests.cpp
  LIBRARIES library_memory table_test_support unit_test_support standin_runtime)
add_dependencies(hostile_tests BigNumberVQZ)
