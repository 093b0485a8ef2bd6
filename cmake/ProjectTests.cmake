# How tests are declared. Every test's name begins with the preset and the kind of test, such as
# windows-x86/unit/number_tests, so that one run over all presets can be filtered by name.

set(BIGNUMBERVQZ_TEST_PREFIX "" CACHE STRING "What the name of every test begins with")
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# The words with which a test starts Python with the packages of scripts/checks-requirements.txt.
set(python_for_checks "${PROJECT_SOURCE_DIR}/scripts/python" checks)

# add_project_test(NAME kind/name [ALONE] [TIMEOUT seconds] COMMAND word...)
#
# One test, run in the source folder; ALONE when it keeps all processors busy by itself.
function(add_project_test)
  cmake_parse_arguments(PARSE_ARGV 0 arg "ALONE" "NAME;TIMEOUT" "COMMAND")
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 900)
  endif()
  string(REGEX REPLACE "^/" "" name "${BIGNUMBERVQZ_TEST_PREFIX}/${arg_NAME}")
  add_test(NAME "${name}" COMMAND ${arg_COMMAND} WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}")
  set_tests_properties("${name}" PROPERTIES
    TIMEOUT ${arg_TIMEOUT}
    RUN_SERIAL "${arg_ALONE}")
endfunction()

# add_unit_tests(target SOURCES file... [LIBRARIES target...])
#
# A doctest program and the test that runs it. The framework's main function is added.
function(add_unit_tests target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
  add_executable(${target} ${arg_SOURCES})
  target_link_libraries(${target}
    PRIVATE ${arg_LIBRARIES} unit_test_main doctest_headers project_options self_contained)
  add_project_test(NAME unit/${target} COMMAND ${target})
endfunction()

# The words with which a test starts the stand-in host: under Wine where that is needed.
set(standin_command ${CMAKE_CROSSCOMPILING_EMULATOR} "$<TARGET_FILE:standin>"
  --library "$<TARGET_FILE:BigNumberVQZ>")

# add_program_tests(folder)
#
# One test for each program of the folder that has its expected output beside it;
# tests/run_program.py says which files count.
function(add_program_tests folder)
  file(GLOB programs CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.xojo_script"
    "${PROJECT_SOURCE_DIR}/${folder}/*.xojo_project")
  foreach(program IN LISTS programs)
    cmake_path(GET program STEM LAST_ONLY stem)
    add_project_test(NAME "${folder}/${stem}"
      COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/run_program.py" "${program}"
        -- ${standin_command})
  endforeach()
endfunction()

# add_document_tests(document)
#
# The programs that the document shows, run and compared with what it says that they print.
function(add_document_tests document)
  cmake_path(GET document STEM stem)
  add_project_test(NAME documents/${stem}
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/document_programs.py"
      "${PROJECT_SOURCE_DIR}/${document}" -- ${standin_command})
endfunction()

# add_prompt_test()
#
# The interactive prompt, with and without a terminal.
function(add_prompt_test)
  add_project_test(NAME prompt
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/prompt_test.py"
      "${PROJECT_SOURCE_DIR}" -- ${standin_command})
endfunction()

# add_golden_tests(folder)
#
# For each kind of host, what the library registers there compared with the dump that was kept.
function(add_golden_tests folder)
  file(GLOB dumps CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/host-*.txt")
  foreach(dump IN LISTS dumps)
    string(REGEX REPLACE "^.*/host-(.*)[.]txt$" "\\1" version "${dump}")
    set(options --host-version ${version})
    if(version STREQUAL "current")
      set(options)
    endif()
    add_project_test(NAME golden/host-${version}
      COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/compare_dump.py"
        "${dump}" ${standin_command} --dump ${options})
  endforeach()
endfunction()

# add_library_tests()
#
# What tests/delivered_library.py checks of the built library from outside.
function(add_library_tests)
  set(checks exports imports format protections marker paths)
  if(WIN32)
    list(APPEND checks version)
  endif()
  foreach(check IN LISTS checks)
    add_project_test(NAME library/${check}
      COMMAND ${python_for_checks} "${PROJECT_SOURCE_DIR}/tests/delivered_library.py"
        ${check} "$<TARGET_FILE:BigNumberVQZ>" "${PROJECT_SOURCE_DIR}" "${TTMATH_INCLUDE_DIR}")
  endforeach()
endfunction()

# add_package_tests()
#
# The package opened as the host opens it, and made a second time.
function(add_package_tests)
  set(package "${BIGNUMBERVQZ_PACKAGE_FOLDER}/BigNumberVQZ.xojo_plugin")
  add_project_test(NAME package/contents
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/package_test.py"
      "${package}" "$<TARGET_FILE:BigNumberVQZ>" "${PROJECT_SOURCE_DIR}" -- ${standin_command})
  add_project_test(NAME package/reproducible
    TIMEOUT 1200
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/reproducible_build.py"
      "${PROJECT_SOURCE_DIR}" xojo_plugin "$<TARGET_FILE:BigNumberVQZ>" "${package}" --
      "-DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE}"
      "-DCMAKE_BUILD_TYPE=${CMAKE_BUILD_TYPE}"
      "-DTTMATH_INCLUDE_DIR=${TTMATH_INCLUDE_DIR}"
      -DBIGNUMBERVQZ_HELP=OFF
      "-DBIGNUMBERVQZ_HELP_PAGE=${PROJECT_BINARY_DIR}/help/index.html")
endfunction()

# add_help_tests()
#
# What the help tells compared with what the library registers, the help made a second time, what
# its making refuses, and the page that is delivered in a browser.
function(add_help_tests)
  set(tests "${PROJECT_SOURCE_DIR}/tests/help")
  set(folder "${PROJECT_BINARY_DIR}/help")
  add_project_test(NAME help/contents
    COMMAND Python3::Interpreter "${tests}/contents_test.py"
      "${folder}" "${PROJECT_VERSION}" -- ${standin_command})
  if(WIN32)
    add_project_test(NAME help/browser
      COMMAND ${python_for_checks} "${tests}/browser_test.py" "${folder}/index.html")
  else()
    add_project_test(NAME help/examples
      COMMAND Python3::Interpreter "${tests}/examples_test.py" ${standin_command})
    add_project_test(NAME help/texts
      COMMAND Python3::Interpreter "${tests}/texts_test.py" "${PROJECT_SOURCE_DIR}"
        "${CMAKE_CXX_COMPILER}" -m32 -isystem "${TTMATH_INCLUDE_DIR}" -DTTMATH_NOASM)
  endif()
endfunction()

# add_lint_tests()
#
# The format of the sources, clang-tidy's findings, who may include whom, and the tests of the tests
# and of what they expect.
function(add_lint_tests)
  set(tests "${PROJECT_SOURCE_DIR}/tests")
  add_project_test(NAME lint/format
    COMMAND Python3::Interpreter "${tests}/lint.py" format "${PROJECT_SOURCE_DIR}")
  add_project_test(NAME lint/faults
    COMMAND Python3::Interpreter "${tests}/faults/run.py" --check)
  add_project_test(NAME lint/cppcheck
    COMMAND Python3::Interpreter "${tests}/lint.py" cppcheck "${PROJECT_SOURCE_DIR}")
  add_project_test(NAME lint/tidy ALONE
    TIMEOUT 1800
    COMMAND Python3::Interpreter "${tests}/lint.py" tidy
      "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}")
  add_project_test(NAME lint/source_rules
    COMMAND Python3::Interpreter "${tests}/source_rules.py" "${PROJECT_SOURCE_DIR}")
  add_project_test(NAME lint/source_rules_test
    COMMAND Python3::Interpreter "${tests}/source_rules_test.py")
  add_project_test(NAME lint/commands_test
    COMMAND Python3::Interpreter "${tests}/commands_test.py")
  add_project_test(NAME lint/run_program_test
    COMMAND Python3::Interpreter "${tests}/run_program_test.py")
  add_project_test(NAME lint/document_programs_test
    COMMAND Python3::Interpreter "${tests}/document_programs_test.py")
  add_project_test(NAME lint/examples_check
    COMMAND Python3::Interpreter "${tests}/examples_check.py" "${PROJECT_SOURCE_DIR}/examples")
endfunction()

# add_completeness_tests()
#
# Whether the tests leave out an entry of the tables, a way in which its call can end, or a text.
function(add_completeness_tests)
  set(folder "${PROJECT_SOURCE_DIR}/tests/completeness")
  add_project_test(NAME completeness/calls
    COMMAND Python3::Interpreter "${folder}/calls.py"
      "${PROJECT_SOURCE_DIR}" "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}" ${standin_command})
  add_project_test(NAME completeness/texts
    COMMAND Python3::Interpreter "${folder}/texts.py" "${PROJECT_SOURCE_DIR}")
endfunction()

# add_host_tests([sample])
#
# A program with all members on hosts of every age without each function, or on so many of them.
function(add_host_tests)
  set(options)
  if(ARGC GREATER 0)
    set(options --sample 20261121 ${ARGV0})
  endif()
  add_project_test(NAME hosts/matrix
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/hosts/matrix.py" ${options}
      "${PROJECT_SOURCE_DIR}/tests/golden/missing-functions.txt" -- ${standin_command})
endfunction()
