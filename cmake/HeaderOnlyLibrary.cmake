# header_only_library(TARGET FOLDER HEADERS): an interface target for the headers FOLDER/HEADERS/...
# Only this one folder gets onto the search path, by a link in the build tree: a cross compiler must
# not see the other headers of the machine.
function(header_only_library target folder headers)
  set(link_folder "${CMAKE_BINARY_DIR}/${target}")
  file(MAKE_DIRECTORY "${link_folder}")
  file(CREATE_LINK "${folder}/${headers}" "${link_folder}/${headers}" SYMBOLIC)
  add_library(${target} INTERFACE)
  target_include_directories(${target} SYSTEM INTERFACE "${link_folder}")
endfunction()
