# Installs the build, moves the installed tree, and builds and runs the host program of this folder against that tree
# alone, by CMake and by pkg-config.
#
#   cmake -DBUILD_DIR=... -DWORK_DIR=... -DCXX=... [-DSANITIZE=address,undefined] -P run.cmake
cmake_minimum_required(VERSION 3.25)

set(source ${CMAKE_CURRENT_LIST_DIR})
# With a blank, as paths of users have.
set(prefix "${WORK_DIR}/moved here")
set(flags "")
if(SANITIZE)
    # A sanitized library needs a sanitized program.
    set(flags -fsanitize=${SANITIZE} -fno-sanitize-recover=all)
endif()
list(JOIN flags " " flags_text)

# run(COMMAND...): the command must succeed; what it printed is in ${output}.
function(run)
    execute_process(COMMAND ${ARGV} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        list(JOIN ARGV " " command)
        message(FATAL_ERROR "${command}\nended with ${status} and printed\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# The program warns about whatever it does not find, so what it prints is "ok" and nothing else, but for what Qt says
# about its own platform without a display.
function(run_consumer program)
    run(${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen "XDG_RUNTIME_DIR=${WORK_DIR}/runtime" ${program} --check)
    string(REPLACE "This plugin does not support propagateSizeHints()\n" "" output "${output}")
    if(NOT output STREQUAL "ok\n")
        message(FATAL_ERROR "${program} printed\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix "${WORK_DIR}/installed")
file(RENAME "${WORK_DIR}/installed" "${prefix}")
# Qt asks for a folder that only its user can read.
file(MAKE_DIRECTORY "${WORK_DIR}/runtime")
file(CHMOD "${WORK_DIR}/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# --- the tree itself

# A text that names the folder of the build works here and nowhere else.
file(GLOB_RECURSE texts "${prefix}/*.cmake" "${prefix}/*.pc" "${prefix}/*.h" "${prefix}/*.json")
if(NOT texts)
    message(FATAL_ERROR "Nothing is installed in ${prefix}")
endif()
foreach(text IN LISTS texts)
    file(READ "${text}" content)
    foreach(folder "${BUILD_DIR}" "${WORK_DIR}")
        string(FIND "${content}" "${folder}" found)
        if(NOT found EQUAL -1)
            message(FATAL_ERROR "${text} names ${folder}")
        endif()
    endforeach()
endforeach()

# Every installed header finds the headers that it includes.
set(headers "")
file(GLOB_RECURSE texts RELATIVE "${prefix}/include" "${prefix}/include/*.h")
foreach(header IN LISTS texts)
    string(APPEND headers "#include <${header}>\n")
endforeach()
file(WRITE "${WORK_DIR}/headers.cpp" "${headers}")

# --- by CMake

run(${CMAKE_COMMAND} -S ${source} -B "${WORK_DIR}/cmake" -G Ninja
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=${CXX} "-DCMAKE_CXX_FLAGS=${flags_text}"
    "-DCMAKE_PREFIX_PATH=${prefix}" -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
run(${CMAKE_COMMAND} --build "${WORK_DIR}/cmake")
run_consumer("${WORK_DIR}/cmake/consumer")

# --- by pkg-config

file(GLOB pc LIST_DIRECTORIES false "${prefix}/lib*/pkgconfig/UiElements.pc" "${prefix}/lib/*/pkgconfig/UiElements.pc")
cmake_path(GET pc PARENT_PATH folder)
set(ENV{PKG_CONFIG_PATH} "${folder}")
find_program(PKG_CONFIG NAMES pkg-config pkgconf REQUIRED)
foreach(what "--cflags" "--libs" "--variable=libdir" "--variable=configdir")
    run(${PKG_CONFIG} ${what} UiElements)
    string(STRIP "${output}" output)
    if(what MATCHES "=(.*)")
        # Blanks in the value of a variable are escaped as a shell would have it.
        string(REPLACE "\\ " " " ${CMAKE_MATCH_1} "${output}")
    else()
        separate_arguments(output UNIX_COMMAND "${output}")
        string(REPLACE "--" "" what ${what})
        set(${what} ${output})
    endif()
endforeach()
run(${CXX} -std=c++17 ${flags} ${cflags} "-DUIELEMENTS_CONFIG_DIR=\"${configdir}\"" ${source}/main.cpp
    -o "${WORK_DIR}/consumer" ${libs} "-Wl,-rpath,${libdir}")
run_consumer("${WORK_DIR}/consumer")
run(${CXX} -std=c++17 -fsyntax-only ${cflags} "${WORK_DIR}/headers.cpp")
