# No call of the program passes two words where the device's libraries would look for them elsewhere (see QUERY). With a
# SOURCE, that file must be found to have EXPECTED such calls.
cmake_minimum_required(VERSION 3.25)
find_program(CLANG_QUERY NAMES clang-query clang-query-14 NO_CACHE REQUIRED)
file(READ ${COMMANDS} database)
string(JSON count LENGTH "${database}")
math(EXPR last "${count} - 1")
set(sources "")
set(arguments "")
foreach(index RANGE ${last})
    string(JSON source GET "${database}" ${index} file)
    if(source MATCHES "\\.cpp$" AND NOT source MATCHES "/tests/")
        list(APPEND sources ${source})
        string(JSON arguments GET "${database}" ${index} command)
    endif()
endforeach()
list(LENGTH sources count)
if(count LESS 50)
    message(FATAL_ERROR "only ${count} source files were found")
endif()

# All files are compiled alike. Without the compiler, its precompiled header, its output and its source; the other compiler
# knows this one's processor by another option and has warnings of its own.
string(REGEX REPLACE " -include [^ ]*/cmake_pch\\.hxx" "" arguments "${arguments}")
separate_arguments(arguments UNIX_COMMAND "${arguments}")
list(POP_FRONT arguments)
list(FIND arguments -o place)
list(SUBLIST arguments 0 ${place} arguments)
list(FILTER arguments EXCLUDE REGEX "^-W")
if(SOURCE)
    set(sources ${SOURCE})
else()
    set(EXPECTED 0)
endif()
execute_process(
    COMMAND ${CLANG_QUERY} -f ${QUERY} ${sources} -- --target=armv4t-none-eabi ${arguments} -w
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(NOT result EQUAL 0 OR errors MATCHES "error:" OR output MATCHES "error:")
    message(FATAL_ERROR "clang-query: ${errors}${output}")
endif()
if(NOT output MATCHES "(^|\n)${EXPECTED} match(es)?\\.")
    message(FATAL_ERROR "not ${EXPECTED} calls pass two words where the device expects them elsewhere but: ${output}")
endif()

# Nor does the program read such an argument itself.
if(NOT SOURCE)
    file(GLOB_RECURSE headers ${ROOT}/framework/*.h ${ROOT}/lists/*.h ${ROOT}/startmenu/*.h
        ${ROOT}/dialogs/*.h ${ROOT}/pages/*.h ${ROOT}/keys/*.h ${ROOT}/app/*.h
        ${ROOT}/platform/ce/*.h ${ROOT}/platform/device/*.h)
    foreach(file IN LISTS sources headers)
        file(STRINGS ${file} lines REGEX "va_arg *\\(")
        if(lines)
            message(FATAL_ERROR "${file} reads variadic arguments itself: ${lines}")
        endif()
    endforeach()
    message(STATUS "${count} files")
endif()
