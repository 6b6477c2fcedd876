# The program in the README is the one that is built: cmake -DREADME=... -P readme.cmake
file(READ ${README} readme)
file(READ ${CMAKE_CURRENT_LIST_DIR}/main.cpp program)
string(FIND "${readme}" "```cpp\n${program}```\n" found)
if(found EQUAL -1)
    message(FATAL_ERROR "The program in ${README} is not that of ${CMAKE_CURRENT_LIST_DIR}/main.cpp")
endif()
