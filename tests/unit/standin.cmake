# The stand-in host's own tests.
add_unit_tests(standin_runtime_tests
  SOURCES
    standin_call_record_tests.cpp
    standin_call_tests.cpp
    standin_class_tests.cpp
    standin_object_tests.cpp
    standin_string_tests.cpp
    standin_text_tests.cpp
  LIBRARIES standin_runtime)

# Libraries to load.
foreach(library IN ITEMS standin_small_library standin_library_without_entry)
  add_library(${library} MODULE ${library}.cpp)
  target_link_libraries(${library} PRIVATE project_options self_contained)
  set_target_properties(${library} PROPERTIES
    LIBRARY_OUTPUT_DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
  add_dependencies(standin_runtime_tests ${library})
endforeach()
target_compile_definitions(standin_runtime_tests PRIVATE
  STANDIN_TESTS_SMALL_LIBRARY="$<TARGET_FILE:standin_small_library>"
  STANDIN_TESTS_LIBRARY_WITHOUT_ENTRY="$<TARGET_FILE:standin_library_without_entry>")
