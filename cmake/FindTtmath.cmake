# Finds the headers of ttmath, the big-number library that does the arithmetic.
#
#   TTMATH_INCLUDE_DIR   the folder that holds ttmath/ttmath.h; set it to use a ttmath of your own,
#                        otherwise it is the one that ./run fetches into .deps
#
# Target: ttmath.
find_path(TTMATH_INCLUDE_DIR ttmath/ttmath.h
  HINTS "$ENV{BIGNUMBERVQZ_DEPS}/ttmath/include" "${PROJECT_SOURCE_DIR}/.deps/ttmath/include"
  NO_CMAKE_FIND_ROOT_PATH
  DOC "The folder that holds ttmath/ttmath.h")

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Ttmath
  REQUIRED_VARS TTMATH_INCLUDE_DIR
  REASON_FAILURE_MESSAGE "scripts/setup fetches it, or set TTMATH_INCLUDE_DIR to a copy of yours.")

if(Ttmath_FOUND AND NOT TARGET ttmath)
  add_library(ttmath INTERFACE)
  target_include_directories(ttmath SYSTEM INTERFACE "${TTMATH_INCLUDE_DIR}")
  # ttmath would leave the words of a new number unset; clearing them keeps every byte that raw access
  # can show defined. Its words have 32 bits on every processor, as raw access and the sizes of the
  # numbers require.
  target_compile_definitions(ttmath
    INTERFACE TTMATH_PLATFORM32 TTMATH_NOASM TTMATH_BIG_DEFAULT_CLEAR)
  if(NOT BIGNUMBERVQZ_COVERAGE)
    target_compile_options(ttmath INTERFACE "-ffile-prefix-map=${TTMATH_INCLUDE_DIR}=.")
  endif()
endif()
