# 32-bit Linux with clang, whose fuzzer GCC lacks.
include("${CMAKE_CURRENT_LIST_DIR}/linux-x86.cmake")
set(CMAKE_CXX_COMPILER clang++)
