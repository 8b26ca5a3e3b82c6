# A suite's name is its file's and makes its test's id, so no two files may share one: what --gtest_filter or -R picks
# would be either of them. All kinds are compared, whatever of them this preset builds.
file(GLOB_RECURSE files CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*Test.cpp)
set(known "")
foreach(file IN LISTS files)
    get_filename_component(suite ${file} NAME_WE)
    if(suite IN_LIST known)
        list(FILTER files INCLUDE REGEX "/${suite}\\.cpp$")
        list(JOIN files "\n  " files)
        message(FATAL_ERROR "the suite ${suite} is there twice:\n  ${files}")
    endif()
    list(APPEND known ${suite})
endforeach()
