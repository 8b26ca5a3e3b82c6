# Turns platform/imports/<library>.txt into the .def file of the PC's substitute DLL and its import library.
# A row is: name ordinal target [pc-name]; the header of coredll.txt explains the columns.

# qv_read_imports(<library> <exports-variable>): the lines of the EXPORTS section.
function(qv_read_imports library result)
    set(file ${PROJECT_SOURCE_DIR}/platform/imports/${library}.txt)
    set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    file(STRINGS ${file} rows REGEX "^[^#]")
    set(exports "")
    foreach(row IN LISTS rows)
        if(row MATCHES "^dll-on-pc ")
            continue()
        endif()
        if(NOT row MATCHES "^([A-Za-z_0-9]+) +(-|pc|[0-9]+) +([A-Za-z_0-9.]+)( +([A-Za-z_0-9]+))? *$")
            message(FATAL_ERROR "${file}: not a row of the form 'name ordinal target [pc-name]': ${row}")
        endif()
        set(name ${CMAKE_MATCH_1})
        set(ordinal ${CMAKE_MATCH_2})
        set(target ${CMAKE_MATCH_3})
        set(pc_name "${CMAKE_MATCH_5}")
        if(pc_name STREQUAL "")
            set(pc_name ${name})
        endif()
        if(target STREQUAL "own")
            set(target ce_${name})
        elseif(NOT target MATCHES "\\.")
            set(target ${target}.${pc_name})
        endif()
        set(suffix "")
        if(ordinal MATCHES "^[0-9]+$")
            set(suffix " @${ordinal} NONAME")
        endif()
        list(APPEND exports "    ${pc_name} = ${target}${suffix}")
    endforeach()
    set(${result} ${exports} PARENT_SCOPE)
endfunction()

# qv_substitute_dll(<name> SOURCES ... IMPORTS ... LIBRARIES ...): builds <name>.dll from its sources, exporting what
# the import lists name, and the interface library import_<name> that the program links instead of the system's.
function(qv_substitute_dll name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;IMPORTS;LIBRARIES")
    set(exports "")
    foreach(list IN LISTS ARG_IMPORTS)
        qv_read_imports(${list} rows)
        list(APPEND exports ${rows})
    endforeach()
    list(JOIN exports "\n" exports)
    set(def ${CMAKE_CURRENT_BINARY_DIR}/${name}.def)
    file(CONFIGURE OUTPUT ${def} CONTENT "LIBRARY ${name}.dll\nEXPORTS\n${exports}\n" @ONLY)

    add_library(${name} SHARED ${ARG_SOURCES} ${def})
    set_target_properties(${name} PROPERTIES PREFIX "" IMPORT_PREFIX "unused_" RUNTIME_OUTPUT_DIRECTORY ${QV_BIN})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_options(${name} PRIVATE -static)
    target_link_libraries(${name} PRIVATE qv_compile_options ${ARG_LIBRARIES})

    set(archive ${CMAKE_CURRENT_BINARY_DIR}/libimport_${name}.a)
    add_custom_command(
        OUTPUT ${archive}
        COMMAND ${CMAKE_DLLTOOL} -d ${def} -l ${archive}
        DEPENDS ${def}
        COMMENT "Import library of ${name}.dll")
    add_custom_target(archive_${name} DEPENDS ${archive})
    add_library(import_${name} INTERFACE)
    target_link_libraries(import_${name} INTERFACE ${archive})
    add_dependencies(import_${name} archive_${name} ${name})
endfunction()
