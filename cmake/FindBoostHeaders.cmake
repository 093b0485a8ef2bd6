# Finds the headers of Boost, with which the benchmark compares.
#
#   BOOST_HEADERS_INCLUDE_DIR   the folder that holds boost/multiprecision/cpp_bin_float.hpp
#
# Target: boost_headers.
include(HeaderOnlyLibrary)
find_path(BOOST_HEADERS_INCLUDE_DIR boost/multiprecision/cpp_bin_float.hpp
  NO_CMAKE_FIND_ROOT_PATH
  PATHS /usr/include /usr/local/include
  DOC "The folder that holds boost/multiprecision/cpp_bin_float.hpp")

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(BoostHeaders REQUIRED_VARS BOOST_HEADERS_INCLUDE_DIR)

if(BoostHeaders_FOUND AND NOT TARGET boost_headers)
  header_only_library(boost_headers "${BOOST_HEADERS_INCLUDE_DIR}" boost)
endif()
