# Threads, in a host that takes no locks; of 64-bit Linux, whose ThreadSanitizer sees what they share.
if(CMAKE_SIZEOF_VOID_P EQUAL 8 AND NOT WIN32)
  find_package(Threads REQUIRED)
  add_unit_tests(threads_tests
    SOURCES
      threads/thread_host.cpp
      threads/threads_tests.cpp
    LIBRARIES plugin_objects standin_runtime Threads::Threads)
endif()
