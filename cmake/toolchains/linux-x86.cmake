# 32-bit Linux, from a 64-bit machine with the compiler's multilib.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)

set(CMAKE_CXX_COMPILER g++)
set(CMAKE_CXX_FLAGS_INIT -m32)

# The programs that it makes run on the machine that builds them.
set(CMAKE_CROSSCOMPILING FALSE)
