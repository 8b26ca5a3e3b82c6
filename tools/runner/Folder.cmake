# Puts into a build folder of its own what a handheld needs that is to run the device's executable.
#   cmake -D PC=<build of the preset pc> -D DEVICE=<that of device> -D FOLDER=<the new one> [-D CHECK=ON] -P Folder.cmake
# CHECK: makes nothing, and fails unless the folder is there and made of what the builds have now.
foreach(file Quorvane.exe Quorvane.elf)
    if(NOT EXISTS ${DEVICE}/${file})
        message(FATAL_ERROR "The device's executable is missing: ${DEVICE}/${file}\n"
            "It is built by: cmake --preset device && cmake --build --preset device")
    endif()
endforeach()

# One file under two names, not a symbolic link: a program looks for the others where it is itself.
function(link_file original link)
    if(NOT CHECK)
        file(CREATE_LINK ${original} ${link} COPY_ON_ERROR)
        return()
    endif()
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${original} ${link} RESULT_VARIABLE result ERROR_QUIET)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "Missing, or not what was built last: ${link}\n"
            "The tests with the device's executable need the presets pc and device, and then:\n"
            "  cmake --build --preset pc --target runner_suites")
    endif()
endfunction()

# The runner is built into the folder.
file(MAKE_DIRECTORY ${FOLDER}/bin)
file(GLOB files RELATIVE ${PC}/bin ${PC}/bin/*)
list(REMOVE_ITEM files Quorvane.exe profiles)
foreach(file IN LISTS files)
    link_file(${PC}/bin/${file} ${FOLDER}/bin/${file})
endforeach()
link_file(${DEVICE}/Quorvane.exe ${FOLDER}/bin/Quorvane.arm)
link_file(${DEVICE}/Quorvane.elf ${FOLDER}/bin/Quorvane.elf)
if(NOT CHECK)
    file(CREATE_LINK ${PC}/bin/profiles ${FOLDER}/bin/profiles SYMBOLIC)
    file(CREATE_LINK ${PC}/wine ${FOLDER}/wine SYMBOLIC)
endif()

# Small programs of the tests, each with the runner under its name.
file(GLOB programs ${DEVICE}/tests/device/bridges/*.elf)
foreach(elf IN LISTS programs)
    get_filename_component(name ${elf} NAME_WE)
    link_file(${FOLDER}/bin/Quorvane.exe ${FOLDER}/bin/${name}.exe)
    link_file(${DEVICE}/tests/device/bridges/${name}.exe ${FOLDER}/bin/${name}.arm)
    link_file(${elf} ${FOLDER}/bin/${name}.elf)
endforeach()
