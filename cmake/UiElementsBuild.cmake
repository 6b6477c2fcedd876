# Settings shared by every target of the project, and the two functions that its folders are written with.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

find_program(UIELEMENTS_CCACHE ccache)
mark_as_advanced(UIELEMENTS_CCACHE)
if(UIELEMENTS_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${UIELEMENTS_CCACHE})
endif()

# What our own sources are compiled with; a host that links to the library gets none of it.
add_library(uielements_flags INTERFACE)
target_compile_definitions(uielements_flags INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
target_compile_options(uielements_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wimplicit-fallthrough
    -Wno-error=deprecated-declarations)
if(UIELEMENTS_WARNINGS_AS_ERRORS)
    target_compile_options(uielements_flags INTERFACE -Werror)
endif()
if(UIELEMENTS_SANITIZE)
    target_compile_options(uielements_flags INTERFACE -fsanitize=${UIELEMENTS_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    # Qt is not instrumented, so a vptr check on its objects cannot see their type information.
    target_compile_options(uielements_flags INTERFACE -fno-sanitize=vptr)
    target_link_options(uielements_flags INTERFACE -fsanitize=${UIELEMENTS_SANITIZE})
endif()

# uielements_subsystem(folder CLASSES Name ... [HEADERS Name ...] [PRIVATE Name ...])
#   CLASSES: Name.h (installed) and Name.cpp.  HEADERS: Name.h alone (installed).
#   PRIVATE: Name_p.h (not installed) and, where it exists, Name.cpp.
function(uielements_subsystem folder)
    cmake_parse_arguments(arg "" "" "CLASSES;HEADERS;PRIVATE" ${ARGN})
    set(public "")
    foreach(name IN LISTS arg_CLASSES)
        target_sources(UiElements PRIVATE ${name}.h ${name}.cpp)
        list(APPEND public ${CMAKE_CURRENT_SOURCE_DIR}/${name}.h)
    endforeach()
    foreach(name IN LISTS arg_HEADERS)
        target_sources(UiElements PRIVATE ${name}.h)
        list(APPEND public ${CMAKE_CURRENT_SOURCE_DIR}/${name}.h)
    endforeach()
    foreach(name IN LISTS arg_PRIVATE)
        target_sources(UiElements PRIVATE ${name}_p.h)
        if(NOT name IN_LIST arg_CLASSES AND EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${name}.cpp)
            target_sources(UiElements PRIVATE ${name}.cpp)
        endif()
    endforeach()
    install(FILES ${public} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/UiElements/${folder} COMPONENT dev)
endfunction()
