# Windows, from a Unix machine with the MinGW-w64 cross compiler for `mingw_processor`.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${mingw_processor})

set(CMAKE_CXX_COMPILER ${mingw_processor}-w64-mingw32-g++)
set(CMAKE_RC_COMPILER ${mingw_processor}-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${mingw_processor}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
