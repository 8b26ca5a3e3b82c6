# Puts into a build folder of its own what a handheld needs that is to run the device's executable.
#   cmake -D PC=<build of the preset pc> -D DEVICE=<that of device> -D FOLDER=<the new one> -P Folder.cmake
foreach(file Quorvane.exe Quorvane.elf)
    if(NOT EXISTS ${DEVICE}/${file})
        message(FATAL_ERROR "The device's executable is missing: ${DEVICE}/${file}\n"
            "It is built by: cmake --preset device && cmake --build --preset device")
    endif()
endforeach()

# One file under two names, not a symbolic link: a program looks for the others where it is itself. The runner is built
# into the folder.
file(MAKE_DIRECTORY ${FOLDER}/bin)
file(GLOB files RELATIVE ${PC}/bin ${PC}/bin/*)
list(REMOVE_ITEM files Quorvane.exe profiles)
foreach(file IN LISTS files)
    file(CREATE_LINK ${PC}/bin/${file} ${FOLDER}/bin/${file} COPY_ON_ERROR)
endforeach()
file(CREATE_LINK ${DEVICE}/Quorvane.exe ${FOLDER}/bin/Quorvane.arm COPY_ON_ERROR)
file(CREATE_LINK ${DEVICE}/Quorvane.elf ${FOLDER}/bin/Quorvane.elf COPY_ON_ERROR)
file(CREATE_LINK ${PC}/bin/profiles ${FOLDER}/bin/profiles SYMBOLIC)
file(CREATE_LINK ${PC}/wine ${FOLDER}/wine SYMBOLIC)

# Small programs of the tests, each with the runner under its name.
file(GLOB programs ${DEVICE}/tests/device/bridges/*.elf)
foreach(elf IN LISTS programs)
    get_filename_component(name ${elf} NAME_WE)
    file(CREATE_LINK ${FOLDER}/bin/Quorvane.exe ${FOLDER}/bin/${name}.exe COPY_ON_ERROR)
    file(CREATE_LINK ${DEVICE}/tests/device/bridges/${name}.exe ${FOLDER}/bin/${name}.arm COPY_ON_ERROR)
    file(CREATE_LINK ${elf} ${FOLDER}/bin/${name}.elf COPY_ON_ERROR)
endforeach()
