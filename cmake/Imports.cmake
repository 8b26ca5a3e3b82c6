# Reads platform/imports/<library>.txt, the list of what the program may call of one of the device's libraries. The header
# of coredll.txt explains the columns.

# qv_read_imports(<library> <rows-variable>): the rows as "name ordinal target pc-name", the last one always there.
function(qv_read_imports library result)
    set(file ${PROJECT_SOURCE_DIR}/platform/imports/${library}.txt)
    set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    file(STRINGS ${file} lines REGEX "^[^#]")
    set(rows "")
    foreach(line IN LISTS lines)
        if(line MATCHES "^dll-on-pc ")
            continue()
        endif()
        if(NOT line MATCHES "^([A-Za-z_0-9]+) +(-|pc|late|late:[0-9]+|[0-9]+) +([A-Za-z_0-9.]+)( +([A-Za-z_0-9]+))? *$")
            message(FATAL_ERROR "${file}: not a row of the form 'name ordinal target [pc-name]': ${line}")
        endif()
        set(pc_name "${CMAKE_MATCH_5}")
        if(pc_name STREQUAL "")
            set(pc_name ${CMAKE_MATCH_1})
        endif()
        list(APPEND rows "${CMAKE_MATCH_1} ${CMAKE_MATCH_2} ${CMAKE_MATCH_3} ${pc_name}")
    endforeach()
    set(${result} ${rows} PARENT_SCOPE)
endfunction()
