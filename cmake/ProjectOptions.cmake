# project_options: the language level, the warnings and the code generation that every target of
# the project shares.
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(project_options INTERFACE)
target_compile_features(project_options INTERFACE cxx_std_20)
target_include_directories(project_options INTERFACE "${PROJECT_SOURCE_DIR}")

target_compile_options(project_options INTERFACE
  -Wall
  -Wextra
  -Wpedantic
  -Wshadow
  -Wconversion
  -Wold-style-cast
  -Wnon-virtual-dtor
  -Woverloaded-virtual
  -Wundef
  -Wformat=2
  $<IF:$<BOOL:${BIGNUMBERVQZ_WARNINGS_AS_ERRORS}>,-Werror,-Werror=return-type>)

# Clang is asked for everything it knows but what contradicts the language level, the style (default
# labels, class templates deduced, tables made at the start) or the layout that the host prescribes.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  target_compile_options(project_options INTERFACE
    -Weverything
    -Wno-c++20-compat
    -Wno-c++98-compat
    -Wno-c++98-compat-pedantic
    -Wno-covered-switch-default
    -Wno-ctad-maybe-unsupported
    -Wno-disabled-macro-expansion
    -Wno-documentation-unknown-command
    -Wno-double-promotion
    -Wno-exit-time-destructors
    -Wno-global-constructors
    -Wno-missing-noreturn
    -Wno-padded
    -Wno-switch-enum
    -Wno-weak-vtables
    -Wno-zero-as-null-pointer-constant)
endif()

# The same commit gives the same bytes wherever it is built: no path of the machine gets in. Only
# the coverage build keeps paths, to find the sources again.
if(NOT BIGNUMBERVQZ_COVERAGE)
  target_compile_options(project_options INTERFACE
    "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=."
    "-ffile-prefix-map=${PROJECT_BINARY_DIR}=build")
endif()

# A 32-bit host promises a stack aligned to 4 bytes only, and an x87 control word of any kind: each
# function realigns its stack, and floating point is computed in SSE registers.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_compile_options(project_options INTERFACE -mstackrealign -msse2 -mfpmath=sse)
endif()

# Returns and indirect calls are checked by processors that can.
if(CMAKE_SYSTEM_PROCESSOR STREQUAL "aarch64")
  target_compile_options(project_options INTERFACE -mbranch-protection=standard)
endif()

if(BIGNUMBERVQZ_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
  target_compile_options(project_options INTERFACE ${sanitizers} -fno-omit-frame-pointer -g1 -O1)
  target_link_options(project_options INTERFACE ${sanitizers})
endif()

if(BIGNUMBERVQZ_SANITIZE_THREADS)
  set(sanitizers -fsanitize=thread)
  target_compile_options(project_options INTERFACE ${sanitizers} -fno-omit-frame-pointer -g1 -O1)
  target_link_options(project_options INTERFACE ${sanitizers})
endif()

if(BIGNUMBERVQZ_FUZZ)
  set(fuzz_folder "${PROJECT_SOURCE_DIR}/tests/fuzz")
  set(sanitizers -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
  target_compile_options(project_options INTERFACE
    ${sanitizers}
    "-fsanitize-ignorelist=${fuzz_folder}/ignorelist.txt"
    "-fsanitize-coverage-ignorelist=${fuzz_folder}/coverage_ignorelist.txt"
    -fno-omit-frame-pointer -g1 -O1)
  target_link_options(project_options INTERFACE ${sanitizers})
endif()

# The library is unloaded and loaded again in one process, so the counts are added up in its files.
if(BIGNUMBERVQZ_COVERAGE)
  target_compile_options(project_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(project_options INTERFACE --coverage)
endif()

# A program or library that carries its compiler runtimes with it. The sanitizers need the shared
# ones, whose functions they intercept.
add_library(self_contained INTERFACE)
if(WIN32)
  target_link_options(self_contained INTERFACE -static -static-libgcc -static-libstdc++)
elseif(NOT BIGNUMBERVQZ_SANITIZE AND NOT BIGNUMBERVQZ_SANITIZE_THREADS AND NOT BIGNUMBERVQZ_FUZZ)
  target_link_options(self_contained INTERFACE -static-libgcc -static-libstdc++)
endif()
