# The ctest entries of suites: one each, or one a handheld.

# qv_suite_of(<source> <variable>): the suite of a file; empty when the file only helps the tests beside it.
function(qv_suite_of source variable)
    get_filename_component(suite ${source} NAME_WE)
    file(STRINGS ${source} tests REGEX "^(TEST|TEST_F|TEST_P)\\(")
    foreach(test IN LISTS tests)
        if(NOT test MATCHES "^[A-Z_]+\\(${suite},")
            message(FATAL_ERROR "${source} may hold only the suite ${suite}, else its tests are never run: ${test}")
        endif()
    endforeach()
    if(NOT tests)
        set(suite "")
    endif()
    set(${variable} "${suite}" PARENT_SCOPE)
endfunction()

# qv_suite_words(<source> <name> <variable>): the words of a file's lines "// <name>: word ..."; without such lines the
# variable stays as it is. CMake runs again when the file has changed.
function(qv_suite_words source name variable)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    file(STRINGS ${source} lines REGEX "^// ${name}:")
    if(lines)
        string(REGEX REPLACE "// ${name}: *" "" words "${lines}")
        string(REGEX REPLACE "[ ;]+" ";" words "${words}")
        set(${variable} ${words} PARENT_SCOPE)
    endif()
endfunction()

# qv_add_entry(<name> <suite> EXECUTABLE ... BUILD <its build folder> LABEL ... TIMEOUT <seconds> PROFILE ...
#     [CONFIGURATIONS ...] [FIXTURE ...]): runs a suite on a handheld, or headless.
function(qv_add_entry name suite)
    cmake_parse_arguments(PARSE_ARGV 2 ARG "" "EXECUTABLE;BUILD;LABEL;TIMEOUT;PROFILE;CONFIGURATIONS;FIXTURE" "")
    math(EXPR limit "${ARG_TIMEOUT} - 10") # the launcher's, which tells what was left running
    add_test(NAME ${name}
        COMMAND ${QV_TEST_LAUNCHER} ${ARG_EXECUTABLE} --gtest_filter=${suite}.*:*/${suite}.*
        CONFIGURATIONS ${ARG_CONFIGURATIONS})
    set_tests_properties(${name} PROPERTIES
        LABELS ${ARG_LABEL}
        TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "QV_PROFILE=${ARG_PROFILE};QV_TEST_TIMEOUT=${limit}"
        FIXTURES_REQUIRED "${ARG_FIXTURE}")
    if(NOT ARG_PROFILE STREQUAL "headless")
        # Tests of one handheld share its keyboard focus; handhelds run side by side.
        set_tests_properties(${name} PROPERTIES RESOURCE_LOCK "${ARG_BUILD} ${ARG_PROFILE}")
        # The longest queue before all others, the linter's too: whatever needs no handheld fills the gaps beside it.
        if(ARG_PROFILE STREQUAL "pocketpc" AND ARG_LABEL STREQUAL "e2e")
            set_tests_properties(${name} PROPERTIES COST 2000)
        elseif(ARG_PROFILE STREQUAL "pocketpc")
            set_tests_properties(${name} PROPERTIES COST 100)
        else()
            set_tests_properties(${name} PROPERTIES COST 50)
        endif()
    endif()
endfunction()

# qv_add_suite(<source> EXECUTABLE ... KIND ... TIMEOUT ... PROFILE <unless the file names others> [BUILD ...]
#     [FIXTURE ...]): the entries of a file.
function(qv_add_suite source)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "EXECUTABLE;KIND;TIMEOUT;PROFILE;BUILD;FIXTURE" "")
    qv_suite_of(${source} suite)
    if(NOT suite)
        return()
    endif()
    if(NOT ARG_BUILD)
        set(ARG_BUILD ${PROJECT_BINARY_DIR})
    endif()
    set(profiles ${ARG_PROFILE})
    qv_suite_words(${source} profiles profiles)
    foreach(profile IN LISTS profiles)
        qv_entry_name(name ${ARG_KIND}.${suite} ${profile} ${profiles})
        qv_add_entry(${name} ${suite} EXECUTABLE ${ARG_EXECUTABLE} BUILD ${ARG_BUILD} LABEL ${ARG_KIND}
            TIMEOUT ${ARG_TIMEOUT} PROFILE ${profile} FIXTURE ${ARG_FIXTURE})
    endforeach()
endfunction()

# qv_entry_name(<variable> <name> <profile> <profile of the suite>...): a suite of several has an entry for each.
function(qv_entry_name variable name profile)
    list(LENGTH ARGN count)
    if(count GREATER 1)
        string(APPEND name .${profile})
    endif()
    set(${variable} ${name} PARENT_SCOPE)
endfunction()
