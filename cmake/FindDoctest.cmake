# Finds doctest, the header-only framework of the unit tests.
#
#   DOCTEST_INCLUDE_DIR   the folder that holds doctest/doctest.h
#
# Target: doctest_headers. Only doctest's own folder gets onto the search path, by a link in the
# build tree: a cross compiler must not see the other headers of the machine.
find_path(DOCTEST_INCLUDE_DIR doctest/doctest.h
  NO_CMAKE_FIND_ROOT_PATH
  PATHS /usr/include /usr/local/include
  DOC "The folder that holds doctest/doctest.h")

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Doctest REQUIRED_VARS DOCTEST_INCLUDE_DIR)

if(Doctest_FOUND AND NOT TARGET doctest_headers)
  set(link_dir "${CMAKE_BINARY_DIR}/doctest_headers")
  file(MAKE_DIRECTORY "${link_dir}")
  file(CREATE_LINK "${DOCTEST_INCLUDE_DIR}/doctest" "${link_dir}/doctest" SYMBOLIC)
  add_library(doctest_headers INTERFACE)
  target_include_directories(doctest_headers SYSTEM INTERFACE "${link_dir}")
  # The tests run on one thread, and the cross compiler's thread model has no mutexes.
  target_compile_definitions(doctest_headers INTERFACE DOCTEST_CONFIG_NO_MULTITHREADING)
  unset(link_dir)
endif()
