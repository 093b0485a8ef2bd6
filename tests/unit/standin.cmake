# The stand-in host's own tests.
add_unit_tests(standin_runtime_tests
    SOURCES
        standin_call_tests.cpp
        standin_class_tests.cpp
        standin_object_tests.cpp
        standin_string_tests.cpp
        standin_text_tests.cpp
    LIBRARIES standin_runtime)
