# The tour of ./run --pictures with the PC's executable and with the device's: the same pictures, pixel by pixel.

# qv_add_tour(<build folder> <profile> [<fixture it needs>]): takes the pictures into <build folder>/tour/<profile>.
function(qv_add_tour build profile)
    get_filename_component(which ${build} NAME)
    set(name runner.tour.${which}.${profile})
    add_test(NAME ${name}
        COMMAND ${QV_TEST_LAUNCHER} ${build}/bin/tour.exe --comparable Z:${build}/tour/${profile}
            Z:${CMAKE_CURRENT_BINARY_DIR}/comparable/${profile}.ini)
    set_tests_properties(${name} PROPERTIES
        LABELS runner
        TIMEOUT 180
        ENVIRONMENT "QV_PROFILE=${profile};QV_TEST_TIMEOUT=170"
        RESOURCE_LOCK "${build} ${profile}"
        COST 50
        FIXTURES_REQUIRED "${ARGN}"
        FIXTURES_SETUP "tours ${profile}")
endfunction()

# qv_add_tour_pictures(<profile>): the tours, and the entry that compares their pictures.
function(qv_add_tour_pictures profile)
    set(source ${PROJECT_SOURCE_DIR}/platform/pc/profiles/${profile}.ini)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    file(READ ${source} text)
    configure_file(comparable.ini.in comparable/${profile}.ini @ONLY)

    qv_add_tour(${PROJECT_BINARY_DIR} ${profile})
    qv_add_tour(${QV_RUNNER_FOLDER} ${profile} runner_folder)
    add_test(NAME runner.tour_pictures_are_equal.${profile}
        COMMAND ${CMAKE_COMMAND} -D PC=${PROJECT_BINARY_DIR}/tour/${profile} -D DEVICE=${QV_RUNNER_FOLDER}/tour/${profile}
            -D PROFILE=${profile} -P ${CMAKE_CURRENT_SOURCE_DIR}/PicturesCheck.cmake)
    set_tests_properties(runner.tour_pictures_are_equal.${profile} PROPERTIES
        LABELS runner
        FIXTURES_REQUIRED "tours ${profile}")
endfunction()
