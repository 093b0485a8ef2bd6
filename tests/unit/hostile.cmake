# The built library in the hands of a host whose memory runs out, and of one that calls it oddly.
set(system $<IF:$<BOOL:${WIN32}>,windows,linux>)
add_library(hostile_test_support OBJECT
  support/child_process_${system}.cpp
  support/imports_${system}.cpp
  support/library_memory.cpp
  support/threads_${system}.cpp)
target_link_libraries(hostile_test_support PUBLIC doctest_headers project_options)

add_unit_tests(hostile_tests
  SOURCES
    hostile/allocation_tests.cpp
    hostile/caller_tests.cpp
    hostile/output_tests.cpp
  LIBRARIES hostile_test_support table_test_support unit_test_support standin_runtime)
add_dependencies(hostile_tests BigNumberVQZ)
target_compile_definitions(hostile_tests
  PRIVATE "ARCHITECTURE_DOCUMENTATION=\"${PROJECT_SOURCE_DIR}/docs/ARCHITECTURE.md\"")
