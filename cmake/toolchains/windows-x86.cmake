# 32-bit Windows.
set(mingw_processor i686)
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake")
