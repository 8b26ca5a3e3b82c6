# Reads platform/imports/libraries.txt, the list of the device's libraries, and platform/imports/<library>.txt, the list of
# what the program may call of one of them. The header of coredll.txt explains the columns.

# qv_rows(<list> <rows-variable>): its rows without the comments. CMake runs again when the list has changed.
function(qv_rows list result)
    set(file ${PROJECT_SOURCE_DIR}/platform/imports/${list}.txt)
    set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    file(STRINGS ${file} lines REGEX "^[^#]")
    set(${result} ${lines} PARENT_SCOPE)
endfunction()

# QV_LIBRARIES: the device's. QV_SUBSTITUTES: the DLLs that stand in for them on the PC, QV_STANDS_FOR_<dll>: for which.
set(QV_LIBRARIES "")
set(QV_SUBSTITUTES "")
qv_rows(libraries rows)
foreach(row IN LISTS rows)
    if(NOT row MATCHES "^([a-z0-9_]+) +([a-z0-9_]+|-) *$")
        message(FATAL_ERROR "libraries.txt: not a row of the form 'library dll-on-pc': ${row}")
    endif()
    list(APPEND QV_LIBRARIES ${CMAKE_MATCH_1})
    if(NOT CMAKE_MATCH_2 STREQUAL "-")
        list(APPEND QV_SUBSTITUTES ${CMAKE_MATCH_2})
        list(APPEND QV_STANDS_FOR_${CMAKE_MATCH_2} ${CMAKE_MATCH_1})
    endif()
endforeach()
list(REMOVE_DUPLICATES QV_SUBSTITUTES)

# qv_read_imports(<library> <rows-variable>): the rows as "name ordinal target pc-name", the last one always there.
function(qv_read_imports library result)
    qv_rows(${library} lines)
    set(rows "")
    foreach(line IN LISTS lines)
        if(NOT line MATCHES "^([A-Za-z_0-9]+) +(-|pc|late|late:[0-9]+|[0-9]+) +([A-Za-z_0-9.]+)( +([A-Za-z_0-9]+))? *$")
            message(FATAL_ERROR "${library}.txt: not a row of the form 'name ordinal target [pc-name]': ${line}")
        endif()
        set(pc_name "${CMAKE_MATCH_5}")
        if(pc_name STREQUAL "")
            set(pc_name ${CMAKE_MATCH_1})
        endif()
        list(APPEND rows "${CMAKE_MATCH_1} ${CMAKE_MATCH_2} ${CMAKE_MATCH_3} ${pc_name}")
    endforeach()
    set(${result} ${rows} PARENT_SCOPE)
endfunction()
