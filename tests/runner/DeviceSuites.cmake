# The end-to-end suites once more, with the device's executable: the same test executable, in the folder where the runner
# lies under the program's name. Lines "// device's executable:" in a suite's file say
#   on which handhelds ./test always runs it so ("pocketpc smartphone"): a selection that goes through all of the program,
#   also on handhelds on which nothing is gained by running the PC's executable too;
#   "never": it is about the handheld alone and starts no Quorvane.
# What no line chooses runs with ctest's -C DeviceAll, the option --device-all of ./test.

# qv_add_device_suite(<source> BUILD <folder>)
function(qv_add_device_suite source)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "BUILD" "")
    qv_suite_of(${source} suite)
    set(chosen "")
    qv_suite_words(${source} "device's executable" chosen)
    if(NOT suite OR chosen STREQUAL "never")
        return()
    endif()
    set(profiles pocketpc)
    qv_suite_words(${source} profiles profiles)
    list(APPEND profiles ${chosen})
    list(REMOVE_DUPLICATES profiles)
    foreach(profile IN LISTS profiles)
        set(configurations CONFIGURATIONS DeviceAll)
        if(profile IN_LIST chosen)
            set(configurations "")
        endif()
        qv_entry_name(name device-e2e.${suite} ${profile} ${profiles})
        qv_add_entry(${name} ${suite} EXECUTABLE ${ARG_BUILD}/bin/e2e_tests.exe BUILD ${ARG_BUILD} LABEL runner
            TIMEOUT 120 PROFILE ${profile} FIXTURE runner_folder ${configurations})
        # Also when the program was no longer needed where it was found.
        set_tests_properties(${name} PROPERTIES FAIL_REGULAR_EXPRESSION "FINDING: ;HOST FAULT")
    endforeach()
endfunction()
