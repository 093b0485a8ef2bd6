# How tests are declared. Every test's name begins with the preset and the kind of test, such as
# windows-x86/unit/number_tests, so that one run over all presets can be filtered by name.

set(BIGNUMBERVQZ_TEST_PREFIX "" CACHE STRING "What the name of every test begins with")
find_package(Python3 REQUIRED COMPONENTS Interpreter)
# It is a program of the machine that builds, and no emulator starts it.
set_target_properties(Python3::Interpreter PROPERTIES CROSSCOMPILING_EMULATOR "")

# The words with which a test starts Python with the packages of scripts/checks-requirements.txt.
set(python_for_checks "${PROJECT_SOURCE_DIR}/scripts/python" checks)

# Seconds after which a test counts as hanging: far more than any takes on a busy machine, since the
# limit is there to end tests that hang, not to measure.
set(test_time_limit 7200)

# add_project_test(NAME kind/name [ALONE] [TARGETS target...] [AREAS area...] COMMAND word...)
#
# One test, run in the source folder; ALONE when it keeps all processors busy by itself. ./test builds
# and sets up what a test needs: the targets that its command names, and where it does not name them,
# TARGETS; likewise the area of scripts/setup whose Python runs it, and AREAS.
function(add_project_test)
  cmake_parse_arguments(PARSE_ARGV 0 arg "ALONE" "NAME" "TARGETS;AREAS;COMMAND")
  string(REGEX REPLACE "^/" "" name "${BIGNUMBERVQZ_TEST_PREFIX}/${arg_NAME}")
  add_test(NAME "${name}" COMMAND ${arg_COMMAND} WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    COMMAND_EXPAND_LISTS)
  set_tests_properties("${name}" PROPERTIES
    TIMEOUT ${test_time_limit}
    RUN_SERIAL "${arg_ALONE}")

  set(targets ${arg_TARGETS})
  foreach(word IN LISTS arg_COMMAND)
    if(word MATCHES "TARGET_FILE:([A-Za-z0-9_]+)")
      list(APPEND targets ${CMAKE_MATCH_1})
    elseif(TARGET "${word}")
      get_target_property(is_imported "${word}" IMPORTED)
      if(NOT is_imported)
        list(APPEND targets "${word}")
      endif()
    endif()
  endforeach()
  set(areas ${arg_AREAS})
  if("${arg_COMMAND}" MATCHES "scripts/python;checks;")
    list(APPEND areas checks)
  endif()
  list(REMOVE_DUPLICATES targets)
  list(JOIN targets " " targets)
  list(JOIN areas " " areas)
  set_property(GLOBAL APPEND PROPERTY BIGNUMBERVQZ_TEST_NEEDS "${name}|${targets}|${areas}")
endfunction()

# write_test_needs()
#
# Writes what the tests need to test_needs.txt in the build folder, one test a line.
function(write_test_needs)
  get_property(lines GLOBAL PROPERTY BIGNUMBERVQZ_TEST_NEEDS)
  list(JOIN lines "\n" text)
  file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/test_needs.txt" CONTENT "${text}\n" @ONLY)
endfunction()

# add_unit_tests(target SOURCES file... [LIBRARIES target...])
#
# A doctest program and the test that runs it. The framework's main function is added.
function(add_unit_tests target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
  add_executable(${target} ${arg_SOURCES})
  target_link_libraries(${target}
    PRIVATE ${arg_LIBRARIES} unit_test_main doctest_headers project_options self_contained)
  build_quickly(${target} HEADERS <doctest/doctest.h>)
  add_project_test(NAME unit/${target} COMMAND ${target})
endfunction()

# How wide the host's Integer is.
math(EXPR bits "8 * ${CMAKE_SIZEOF_VOID_P}")

# What a program says that it runs on.
if(WIN32)
  set(platform "Windows")
elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm)")
  set(platform "Linux on ARM")
else()
  set(platform "Linux")
endif()

# The words with which a test starts the stand-in host: under Wine where that is needed.
set(standin_command ${CMAKE_CROSSCOMPILING_EMULATOR} "$<TARGET_FILE:standin>"
  --library "$<TARGET_FILE:BigNumberVQZ>")

# add_program_tests(folder)
#
# One test for each program of the folder that has its expected output beside it;
# tests/run_program.py says which files count, and which programs are for 32-bit hosts only.
function(add_program_tests folder)
  file(GLOB programs CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.xojo_script"
    "${PROJECT_SOURCE_DIR}/${folder}/*.xojo_project")
  # The project of all examples prints what they do, and has a test of its own.
  list(FILTER programs EXCLUDE REGEX "/examples/Examples[.]xojo_project$")
  foreach(program IN LISTS programs)
    cmake_path(GET program STEM LAST_ONLY stem)
    file(STRINGS "${program}" at_32_bits_only REGEX "^' At 32 bits only")
    if(at_32_bits_only AND bits EQUAL 64)
      continue()
    endif()
    add_project_test(NAME "${folder}/${stem}"
      COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/run_program.py" --bits ${bits}
        --platform "${platform}" "${program}" -- ${standin_command})
  endforeach()
endfunction()

# add_examples_project_test()
#
# The project in which the environment opens the examples. How it finds an example by its name is the same
# everywhere: where programs run slowly, each example runs once.
function(add_examples_project_test)
  set(options)
  if(CMAKE_CROSSCOMPILING_EMULATOR OR BIGNUMBERVQZ_SANITIZE)
    set(options --once)
  endif()
  add_project_test(NAME examples/Examples
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/examples_project_test.py" ${options}
      "${PROJECT_SOURCE_DIR}/examples" -- ${standin_command})
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
# The interactive prompt, with and without a terminal, and that this build tree makes what it shows.
function(add_prompt_test)
  add_project_test(NAME prompt AREAS prompt
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/prompt_test.py"
      "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}" -- ${standin_command})
endfunction()

# add_golden_tests(folder)
#
# What the library registers on hosts of every age, compared with the tables that were kept.
function(add_golden_tests folder)
  add_project_test(NAME golden/tables
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/golden_tables.py" --bits ${bits}
      "${PROJECT_SOURCE_DIR}/${folder}" -- ${standin_command})
endfunction()

# add_results_test()
#
# The results of all members, compared with those of the 32-bit Windows library that were kept. A sanitized
# library is too slow for it and computes the same.
function(add_results_test)
  if(BIGNUMBERVQZ_SANITIZE)
    return()
  endif()
  add_project_test(NAME results
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/results.py"
      "${PROJECT_SOURCE_DIR}/tests/golden/results.txt" --
      ${CMAKE_CROSSCOMPILING_EMULATOR} "$<TARGET_FILE:plugin_results>" "$<TARGET_FILE:BigNumberVQZ>")
endfunction()

# add_library_tests()
#
# What tests/delivered_library.py checks of the built library from outside.
function(add_library_tests)
  set(checks exports imports format protections marker paths)
  if(WIN32)
    list(APPEND checks version)
  else()
    list(APPEND checks glibc)
  endif()
  set(processor x86)
  if(bits EQUAL 64)
    set(processor ${CMAKE_SYSTEM_PROCESSOR})
  endif()
  if(processor STREQUAL "aarch64")
    list(APPEND checks branches)
  endif()
  foreach(check IN LISTS checks)
    add_project_test(NAME library/${check}
      COMMAND ${python_for_checks} "${PROJECT_SOURCE_DIR}/tests/delivered_library.py"
        ${check} ${processor} "$<TARGET_FILE:BigNumberVQZ>" "${PROJECT_SOURCE_DIR}"
        "${TTMATH_INCLUDE_DIR}")
  endforeach()
  # Without optimisation, functions of the standard library stay out of line, and such a build is not delivered.
  if(TARGET kernels AND CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT BIGNUMBERVQZ_SANITIZE)
    set(newer_sets ${KERNEL_INSTRUCTION_SETS})
    list(POP_FRONT newer_sets)
    foreach(set IN LISTS newer_sets)
      string(REGEX REPLACE ":.*" "" set "${set}")
      add_project_test(NAME library/instruction_set_${set} TARGETS kernels_with_${set}
        COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/instruction_sets.py" "${CMAKE_NM}" ${set}
          "$<TARGET_OBJECTS:kernels_with_${set}>")
    endforeach()
    if(NOT WIN32)
      add_project_test(NAME library/kernels_called TARGETS plugin_objects kernels
        COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/kernels_called.py" "${CMAKE_NM}"
          "$<TARGET_OBJECTS:kernels>" -- "$<TARGET_OBJECTS:plugin_objects>")
    endif()
  endif()
  # Of a library that is not delivered nobody needs the same bytes.
  if(NOT BIGNUMBERVQZ_PACKAGE_FOLDER)
    return()
  endif()
  add_project_test(NAME library/reproducible
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/reproducible_build.py"
      "${PROJECT_SOURCE_DIR}" BigNumberVQZ "$<TARGET_FILE:BigNumberVQZ>" --
      "-DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE}"
      "-DCMAKE_BUILD_TYPE=${CMAKE_BUILD_TYPE}"
      "-DTTMATH_INCLUDE_DIR=${TTMATH_INCLUDE_DIR}"
      "-DBIGNUMBER_KERNELS=${BIGNUMBER_KERNELS}"
      -DBIGNUMBERVQZ_HELP=OFF)
endfunction()

# add_package_tests()
#
# What is in the package, and that it comes out the same a second time, by the preset that makes it; and by
# each target, the tour with the library that the package has for it, and the release as a new user opens it.
function(add_package_tests)
  set(package "${BIGNUMBERVQZ_PACKAGE_FOLDER}/BigNumberVQZ.xojo_plugin")
  if(TARGET xojo_plugin)
    add_project_test(NAME package/contents TARGETS xojo_plugin
      COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/package_test.py"
        "${package}" "${BIGNUMBERVQZ_PACKAGE_FOLDER}" "${PROJECT_SOURCE_DIR}" "${TTMATH_INCLUDE_DIR}")
  endif()
  add_project_test(NAME package/release TARGETS release
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/release_test.py"
      "${BIGNUMBERVQZ_PACKAGE_FOLDER}/BigNumberVQZ-${PROJECT_VERSION}.zip" "${package}"
      "$<TARGET_FILE:BigNumberVQZ>"
      "${BIGNUMBERVQZ_PACKAGE_FOLDER}/windows-x86/help/index.html" "${PROJECT_SOURCE_DIR}"
      -- ${standin_command})
  add_project_test(NAME package/tour TARGETS xojo_plugin
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/package_tour.py"
      "${package}" "$<TARGET_FILE:BigNumberVQZ>" "${PROJECT_SOURCE_DIR}" -- ${standin_command})
endfunction()

# add_help_contents_test()
#
# What the help says compared with what the library registers, and the help made a second time.
function(add_help_contents_test)
  add_project_test(NAME help/contents TARGETS help_page
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/help/contents_test.py"
      "${PROJECT_BINARY_DIR}/help" "${PROJECT_VERSION}" -- ${standin_command})
endfunction()

# add_help_tests()
#
# The contents of the help, what its making refuses, and the page that is delivered in a browser.
function(add_help_tests)
  set(tests "${PROJECT_SOURCE_DIR}/tests/help")
  add_help_contents_test()
  if(WIN32)
    add_project_test(NAME help/browser TARGETS help_page
      COMMAND ${python_for_checks} "${tests}/browser_test.py" "${PROJECT_BINARY_DIR}/help/index.html")
  else()
    add_project_test(NAME help/examples
      COMMAND Python3::Interpreter "${tests}/examples_test.py" ${standin_command})
    add_project_test(NAME help/texts
      COMMAND Python3::Interpreter "${tests}/texts_test.py" "${PROJECT_SOURCE_DIR}"
        "${CMAKE_CXX_COMPILER}" -m32 -isystem "${TTMATH_INCLUDE_DIR}" -DTTMATH_NOASM
        -DTTMATH_BIG_DEFAULT_CLEAR)
  endif()
endfunction()

# add_lint_tests()
#
# The format of the sources, clang-tidy's findings, who may include whom, and the tests of the tests
# and of what they expect.
function(add_lint_tests)
  set(tests "${PROJECT_SOURCE_DIR}/tests")
  add_project_test(NAME lint/format AREAS checks
    COMMAND Python3::Interpreter "${tests}/lint.py" format "${PROJECT_SOURCE_DIR}")
  add_project_test(NAME lint/faults
    COMMAND Python3::Interpreter "${tests}/faults/run.py" --check)
  add_project_test(NAME lint/cppcheck AREAS checks
    COMMAND Python3::Interpreter "${tests}/lint.py" cppcheck "${PROJECT_SOURCE_DIR}")
  add_project_test(NAME lint/tidy ALONE AREAS checks
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
  add_project_test(NAME lint/speed_picture
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/help/speed.py" --check
      "${PROJECT_SOURCE_DIR}/docs")
  add_project_test(NAME lint/examples_project
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/packaging/make_examples.py" --check
      "${PROJECT_SOURCE_DIR}/examples")
  add_project_test(NAME lint/golden_widths
    COMMAND Python3::Interpreter "${tests}/hosts/widths_test.py" "${tests}/golden")
  add_project_test(NAME lint/examples_check
    COMMAND Python3::Interpreter "${tests}/examples_check.py" "${PROJECT_SOURCE_DIR}/examples")
endfunction()

# add_completeness_tests()
#
# Whether the tests leave out an entry of the tables, a way in which its call can end, or a text.
function(add_completeness_tests)
  set(folder "${PROJECT_SOURCE_DIR}/tests/completeness")
  add_project_test(NAME completeness/calls TARGETS table_tests operation_tests
    COMMAND Python3::Interpreter "${folder}/calls.py"
      "${PROJECT_SOURCE_DIR}" "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}" ${standin_command})
  add_project_test(NAME completeness/texts
    COMMAND Python3::Interpreter "${folder}/texts.py" "${PROJECT_SOURCE_DIR}")
endfunction()

# add_self_test_tests()
#
# Whether the self-test leaves out a member or one of its failures, and whether its modules are those that
# are made from the table of members.
function(add_self_test_tests)
  set(folder "${PROJECT_SOURCE_DIR}/tests/self_test")
  add_project_test(NAME self_test/coverage
    COMMAND Python3::Interpreter "${folder}/coverage.py" "${PROJECT_SOURCE_DIR}" --
      ${standin_command})
  add_project_test(NAME self_test/modules
    COMMAND Python3::Interpreter "${folder}/make_checks.py" "${PROJECT_SOURCE_DIR}" --check)
endfunction()

# add_wrong_host_tests()
#
# Whether the self-test notices each fact about which a host is wrong.
function(add_wrong_host_tests)
  add_project_test(NAME self_test/wrong_facts
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/self_test/wrong_facts.py"
      "${PROJECT_SOURCE_DIR}" -- ${standin_command})
endfunction()

# add_host_tests([sample])
#
# A program with all members on hosts of every age, each without one function in turn; with `sample` on
# that many of these hosts only.
function(add_host_tests)
  set(options --bits ${bits})
  if(ARGC GREATER 0)
    list(APPEND options --sample 20261121 ${ARGV0})
  endif()
  add_project_test(NAME hosts/matrix
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tests/hosts/matrix.py" ${options}
      "${PROJECT_SOURCE_DIR}/tests/golden" -- ${standin_command})
endfunction()
