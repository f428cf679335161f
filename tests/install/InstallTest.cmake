# Installs the build, moves the installed tree, and uses it as others would:
# kalhost runs from where it now is, a consumer project builds a module of
# its own with find_package(KalDlgStat2), and pkg-config finds the
# framework. Run as: cmake -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=... -P InstallTest.cmake
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "failed (${status}): ${ARGN}\n${out}\n${err}")
    endif()
    set(out "${out}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/installed)
file(RENAME ${WORK_DIR}/installed ${WORK_DIR}/moved)
set(prefix ${WORK_DIR}/moved)

run(${prefix}/bin/kalhost --version)
string(FIND "${out}" "kalhost " at)
if(NOT at EQUAL 0)
    message(FATAL_ERROR "kalhost --version printed: ${out}")
endif()
file(GLOB sample ${prefix}/share/doc/*/samples/anova.kal)
run(${prefix}/bin/kalhost play ${sample})
if(NOT out MATCHES "^ANOVA\nDEPEND Y\n")
    message(FATAL_ERROR "the moved kalhost printed: ${out}")
endif()
foreach(file share/man/man1/kalhost.1 share/bash-completion/completions/kalhost)
    if(NOT EXISTS ${prefix}/${file})
        message(FATAL_ERROR "not installed: ${file}")
    endif()
endforeach()

run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/install/consumer -B ${WORK_DIR}/consumer -G Ninja
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release)
run(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer)
run(${WORK_DIR}/consumer/tally_host)
if(NOT out STREQUAL "TALLY 'plot size' / WIDTH = 7\n")
    message(FATAL_ERROR "the consumer's module wrote: ${out}")
endif()

find_program(PKG_CONFIG pkg-config)
if(PKG_CONFIG)
    file(GLOB pc_dir ${prefix}/lib*/pkgconfig ${prefix}/lib/*/pkgconfig)
    set(ENV{PKG_CONFIG_PATH} ${pc_dir})
    run(${PKG_CONFIG} --cflags --libs kaldlgstat2)
    string(STRIP "${out}" flags)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    run(c++ ${SOURCE_DIR}/tests/install/consumer/TallyModule.cpp -shared -fPIC ${flags}
        -o ${WORK_DIR}/libTallyByPkgConfig.so)
endif()
message(STATUS "installed tree, relocated kalhost, consumer project and pkg-config: fine")
