# Configures the tests without the parts that can be left out, one by one and all at once. The packages that only
# the command-line host needs are then not looked for. Nothing is built.

file(REMOVE_RECURSE ${work_dir})

# configure(<without> <option>...): fails the test with the command's output.
function(configure without)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${source_dir} -B ${work_dir} -G ${generator} -D ISOXML_BUILD_TESTS=ON
      -D CMAKE_BUILD_TYPE=${build_type} -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_CXX_FLAGS=${flags} ${ARGN}
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "configuring the tests without ${without} failed (${status}):\n${output}")
  endif()
endfunction()

set(no_tools -D ISOXML_BUILD_TOOLS=OFF
  -D CMAKE_DISABLE_FIND_PACKAGE_CLI11=ON -D CMAKE_DISABLE_FIND_PACKAGE_nlohmann_json=ON)
configure("the examples" -D ISOXML_BUILD_EXAMPLES=OFF)
configure("the host and the examples" -D ISOXML_BUILD_EXAMPLES=OFF ${no_tools})
configure("the host" -D ISOXML_BUILD_EXAMPLES=ON ${no_tools})
