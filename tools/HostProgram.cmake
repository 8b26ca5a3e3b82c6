# Programs that run on the building machine, during the build or in its tests. The project's own compiler is a cross
# compiler, so these are compiled by explicit commands.
include(${CMAKE_CURRENT_LIST_DIR}/../cmake/Units.cmake)

find_program(QV_HOST_CXX NAMES c++ g++ clang++ DOC "C++ compiler for programs that run on the building machine")
if(NOT QV_HOST_CXX)
    message(FATAL_ERROR "No C++ compiler for the building machine was found (Debian: g++).")
endif()

set(QV_HOST_CXX_FLAGS -std=c++20 -O0 -Wall -Wextra -Wshadow -Wconversion -Wcast-qual -Wnon-virtual-dtor -Werror
    ${QV_UNIT_OPTIONS})
set(QV_HOST_LINK_FLAGS "")
if(QV_CHECKED)
    # Hostile inputs have to be refused without a single bad access.
    list(APPEND QV_HOST_CXX_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=all)
    list(APPEND QV_HOST_LINK_FLAGS -fsanitize=address,undefined)
endif()

# qv_host_program(<name> <path-variable> SOURCES ... [DEFINITIONS ...] [LIBRARIES ...]): the target <name> builds the program; its path is
# stored in <path-variable>. Only what has changed is compiled again, headers included.
function(qv_host_program name path)
    cmake_parse_arguments(PARSE_ARGV 2 ARG "" "" "SOURCES;DEFINITIONS;LIBRARIES")
    list(TRANSFORM ARG_DEFINITIONS PREPEND -D)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${name}.dir)
    file(MAKE_DIRECTORY ${folder})
    set(objects "")
    foreach(source IN LISTS ARG_SOURCES)
        get_filename_component(source ${source} ABSOLUTE)
        get_filename_component(stem ${source} NAME_WE)
        set(object ${folder}/${stem}.o)
        add_custom_command(
            OUTPUT ${object}
            COMMAND ${QV_HOST_CXX} ${QV_HOST_CXX_FLAGS} ${ARG_DEFINITIONS} -I${PROJECT_SOURCE_DIR}
                -MD -MF ${object}.d -c ${source} -o ${object}
            DEPENDS ${source}
            DEPFILE ${object}.d
            COMMENT "Host compile of ${name}: ${stem}.cpp"
            VERBATIM)
        list(APPEND objects ${object})
    endforeach()
    set(program ${folder}/${name})
    add_custom_command(
        OUTPUT ${program}
        COMMAND ${QV_HOST_CXX} ${QV_HOST_LINK_FLAGS} ${objects} -o ${program} ${ARG_LIBRARIES}
        DEPENDS ${objects}
        COMMENT "Host program ${name}"
        VERBATIM)
    add_custom_target(${name} ALL DEPENDS ${program})
    set(${path} ${program} PARENT_SCOPE)
endfunction()

# qv_host_tests(<name> PREFIX ... TESTS ... [SOURCES ...] [DEFINITIONS ...]): a program of GoogleTest, and the ctest entries
# <prefix>.<suite> of its files. A file holds the suite of its name; files without one are helpers.
function(qv_host_tests name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "PREFIX" "TESTS;SOURCES;DEFINITIONS")
    qv_make_units(units ${name} PER 8 SOURCES ${ARG_TESTS})
    qv_host_program(${name} program
        SOURCES ${units} ${ARG_SOURCES}
        DEFINITIONS ${ARG_DEFINITIONS}
        LIBRARIES -lgtest_main -lgtest -pthread)
    string(REGEX REPLACE "[.].*" "" label ${ARG_PREFIX})
    foreach(source IN LISTS ARG_TESTS)
        get_filename_component(suite ${source} NAME_WE)
        if(suite MATCHES "Test$")
            add_test(NAME ${ARG_PREFIX}.${suite} COMMAND ${program} --gtest_filter=${suite}.*)
            set_tests_properties(${ARG_PREFIX}.${suite} PROPERTIES TIMEOUT 120 LABELS ${label})
        endif()
    endforeach()
endfunction()
