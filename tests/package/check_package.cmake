# Installs the build into a folder and uses it from there: through find_package, through
# pkg-config, and not at all for what is internal.
set(prefix ${scratch}/prefix)
file(REMOVE_RECURSE ${scratch})

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(result)
    string(JOIN " " command ${ARGV})
    message(FATAL_ERROR "${command}\n${out}${err}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${build} --prefix ${prefix})

set(consumer ${CMAKE_CURRENT_LIST_DIR}/consumer)
run(${CMAKE_COMMAND} -S ${consumer} -B ${scratch}/consumer -G Ninja
  -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_COMPILER=${compiler})
run(${CMAKE_COMMAND} --build ${scratch}/consumer)
run(${scratch}/consumer/consumer)

file(GLOB_RECURSE pkgConfigFile ${prefix}/mqPostCommon.pc)
get_filename_component(pkgConfigFolder ${pkgConfigFile} DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pkgConfigFolder})
execute_process(COMMAND pkg-config --cflags --libs mqPostCommon
  OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags)
get_filename_component(libraries ${pkgConfigFolder} DIRECTORY)
run(${compiler} ${consumer}/consumer.cpp -o ${scratch}/by-pkg-config ${flags}
  -Wl,-rpath,${libraries})
run(${scratch}/by-pkg-config)

execute_process(COMMAND ${compiler} -std=c++20 -fsyntax-only -I${prefix}/include
    ${CMAKE_CURRENT_LIST_DIR}/internal/internal_header.cpp
  RESULT_VARIABLE result ERROR_VARIABLE err)
if(NOT result OR NOT err MATCHES "mqPostCommon/catalogue/table.h")
  message(FATAL_ERROR "an internal header is installed")
endif()
