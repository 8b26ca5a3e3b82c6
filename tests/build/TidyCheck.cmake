# The program's folders must pass clang-tidy with the project's configuration.
file(GLOB_RECURSE sources
    ${ROOT}/framework/*.cpp ${ROOT}/lists/*.cpp ${ROOT}/startmenu/*.cpp ${ROOT}/dialogs/*.cpp
    ${ROOT}/pages/*.cpp ${ROOT}/keys/*.cpp ${ROOT}/app/*.cpp)
list(LENGTH sources count)
if(count LESS 20)
    message(FATAL_ERROR "only ${count} source files were found")
endif()
execute_process(
    COMMAND ${CLANG_TIDY} -p ${BUILD} --quiet --extra-arg=--target=x86_64-w64-mingw32 ${sources}
    RESULT_VARIABLE result OUTPUT_VARIABLE messages ERROR_VARIABLE counts)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${messages}${counts}")
endif()
