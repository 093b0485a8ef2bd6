# Finds doctest, the header-only framework of the unit tests.
#
#   DOCTEST_INCLUDE_DIR   the folder that holds doctest/doctest.h
#
# Target: doctest_headers.
include(HeaderOnlyLibrary)
find_path(DOCTEST_INCLUDE_DIR doctest/doctest.h
  NO_CMAKE_FIND_ROOT_PATH
  PATHS /usr/include /usr/local/include
  DOC "The folder that holds doctest/doctest.h")

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Doctest REQUIRED_VARS DOCTEST_INCLUDE_DIR)

if(Doctest_FOUND AND NOT TARGET doctest_headers)
  header_only_library(doctest_headers "${DOCTEST_INCLUDE_DIR}" doctest)
  # The tests run on one thread, and the cross compiler's thread model has no mutexes.
  target_compile_definitions(doctest_headers INTERFACE DOCTEST_CONFIG_NO_MULTITHREADING)
  # An exception in an assertion ends the test case instead of that assertion alone: these compile in
  # two thirds of the time.
  target_compile_definitions(doctest_headers INTERFACE DOCTEST_CONFIG_SUPER_FAST_ASSERTS)
endif()
