# Installs the build, builds a small host against what was installed, through CMake and through pkg-config, and runs it.
function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGV}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

set(prefix ${WORK_DIRECTORY}/prefix)
file(REMOVE_RECURSE ${WORK_DIRECTORY})
run(${CMAKE_COMMAND} --install ${BUILD_DIRECTORY} --prefix ${prefix})
run(${CMAKE_COMMAND} -S ${SOURCE_DIRECTORY} -B ${WORK_DIRECTORY}/build -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${WORK_DIRECTORY}/build)
run(${WORK_DIRECTORY}/build/small_host ${prefix}/share/firestandardcheck)
if(NOT output STREQUAL "7 Self_RoadMinWidth\n")
    message(FATAL_ERROR "unexpected violations: ${output}")
endif()

# By pkg-config.
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBRARY_DIRECTORY}/pkgconfig)
run(pkg-config --cflags --libs firestandardcheck)
separate_arguments(flags UNIX_COMMAND "${output}")
run(${COMPILER} -std=c++17 -fPIC ${SOURCE_DIRECTORY}/main.cpp -o ${WORK_DIRECTORY}/by_pkg_config ${flags}
    -lReferenceHost -Wl,-rpath,${prefix}/${LIBRARY_DIRECTORY})
run(${WORK_DIRECTORY}/by_pkg_config ${prefix}/share/firestandardcheck)
if(NOT output STREQUAL "7 Self_RoadMinWidth\n")
    message(FATAL_ERROR "unexpected violations by pkg-config: ${output}")
endif()

run(${prefix}/bin/firecheck check ${prefix}/share/doc/FireStandardCheck/examples/tower-site-compliant.json)
