# The PC's stand-in for one of the device's libraries: a DLL of the same name that exports what the import lists name.

# qv_exports(<library> <exports-variable>): the lines of the .def file's EXPORTS section.
function(qv_exports library result)
    qv_read_imports(${library} rows)
    set(exports "")
    foreach(row IN LISTS rows)
        string(REPLACE " " ";" row ${row})
        list(GET row 0 name)
        list(GET row 1 ordinal)
        list(GET row 2 target)
        list(GET row 3 pc_name)
        if(target STREQUAL "device")
            continue()
        elseif(target STREQUAL "own")
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
        qv_exports(${list} rows)
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
