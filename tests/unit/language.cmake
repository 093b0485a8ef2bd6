# The tests of the host's language, and of the command, with a sample plug-in.
add_unit_tests(language_tests
  SOURCES
    language_application_tests.cpp
    language_array_tests.cpp
    language_function_tests.cpp
    language_lexer_tests.cpp
    language_message_tests.cpp
    language_parser_tests.cpp
    language_plugin_tests.cpp
    language_project_tests.cpp
    language_run_tests.cpp
    language_unit_tests.cpp
    language_variant_tests.cpp
  LIBRARIES standin_language sample_plugin_objects)

add_library(sample_plugin MODULE)
target_link_libraries(sample_plugin PRIVATE sample_plugin_objects self_contained)

# Programs against the sample plug-in instead of the delivered library.
block()
  set(standin_command ${CMAKE_CROSSCOMPILING_EMULATOR} "$<TARGET_FILE:standin>"
    --library "$<TARGET_FILE:sample_plugin>")
  add_program_tests(tests/sample)
endblock()
