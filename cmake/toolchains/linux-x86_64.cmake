# 64-bit Linux, from a machine of that kind.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_CXX_COMPILER g++)
set(CMAKE_CXX_FLAGS_INIT -m64)

# The programs that it makes run on the machine that builds them.
set(CMAKE_CROSSCOMPILING FALSE)
