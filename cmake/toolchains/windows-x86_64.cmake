# 64-bit Windows.
set(mingw_processor x86_64)
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake")
