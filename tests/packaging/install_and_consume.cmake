# Installs the build into an empty prefix, moves that away, and lets a small host build against it and
# run: once by find_package, once by pkg-config and a plain call of the compiler.

# run(<what> <command>...): fails the test with the command's output.
function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${what} failed (${status}):\n${output}")
  endif()
endfunction()

set(installed ${work_dir}/installed)
set(prefix ${work_dir}/moved)
set(consumer ${CMAKE_CURRENT_LIST_DIR}/consumer)
file(REMOVE_RECURSE ${work_dir})
file(MAKE_DIRECTORY ${work_dir})
unset(ENV{DESTDIR})
unset(ENV{LD_LIBRARY_PATH})

run("the installation" ${CMAKE_COMMAND} --install ${build_dir} --prefix ${installed})
file(RENAME ${installed} ${prefix})

# Nothing that a host's build reads may lead back to where the library was built or first installed.
if(NOT EXISTS ${prefix}/share/isoxml/isoxml.xsd)
  message(FATAL_ERROR "the XML Schema is not installed")
endif()
file(GLOB_RECURSE described ${prefix}/*.cmake ${prefix}/*.pc)
list(LENGTH described number_of_files)
if(number_of_files LESS 4)  # configuration, version, targets, pkg-config
  message(FATAL_ERROR "package files are missing, found: ${described}")
endif()
foreach(file IN LISTS described)
  file(READ ${file} content)
  foreach(path IN ITEMS ${source_dir} ${build_dir} ${installed})
    string(FIND "${content}" ${path} position)
    if(NOT position EQUAL -1)
      message(FATAL_ERROR "${file} names ${path}")
    endif()
  endforeach()
endforeach()

if(has_tool)
  run("the installed tool" ${prefix}/${bindir}/isoxml --help)
endif()

# A user of the CMake package need not have libxml2's development files.
run("configuring by find_package" ${CMAKE_COMMAND} -S ${consumer} -B ${work_dir}/by_cmake -G ${generator}
    -D CMAKE_BUILD_TYPE=${build_type} -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_CXX_FLAGS=${flags}
    -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_DISABLE_FIND_PACKAGE_LibXml2=ON -D isoxml_wanted=${version})
run("building by find_package" ${CMAKE_COMMAND} --build ${work_dir}/by_cmake)
run("the host built by find_package" ${work_dir}/by_cmake/consumer)

# The example programs are such hosts too.
run("configuring the examples" ${CMAKE_COMMAND} -S ${source_dir}/examples -B ${work_dir}/examples -G ${generator}
    -D CMAKE_BUILD_TYPE=${build_type} -D CMAKE_CXX_COMPILER=${compiler} -D CMAKE_CXX_FLAGS=${flags}
    -D CMAKE_PREFIX_PATH=${prefix})
run("building the examples" ${CMAKE_COMMAND} --build ${work_dir}/examples)
run("an example" ${work_dir}/examples/list_fields ${source_dir}/examples/sets/complete)

find_program(pkg_config pkg-config REQUIRED)
# Nor need a user of pkg-config: it is shown no package but ours.
set(ENV{PKG_CONFIG_LIBDIR} ${prefix}/${libdir}/pkgconfig)
unset(ENV{PKG_CONFIG_PATH})
execute_process(COMMAND ${pkg_config} --cflags --libs isoxml OUTPUT_VARIABLE package_flags
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${pkg_config} --static --libs isoxml OUTPUT_VARIABLE static_libraries
                COMMAND_ERROR_IS_FATAL ANY)
if(package_flags MATCHES "xml2" OR NOT static_libraries MATCHES "-lxml2")
  message(FATAL_ERROR "libxml2 is for who links statically: ${package_flags}, with --static ${static_libraries}")
endif()
separate_arguments(flags UNIX_COMMAND "${flags}")
separate_arguments(package_flags UNIX_COMMAND "${package_flags}")
run("compiling by pkg-config" ${compiler} ${flags} -std=c++17 -Wall -Wextra -Wpedantic -Werror
    ${consumer}/main.cpp -o ${work_dir}/by_pkg_config ${package_flags})
set(ENV{LD_LIBRARY_PATH} ${prefix}/${libdir})
run("the host built by pkg-config" ${work_dir}/by_pkg_config)
