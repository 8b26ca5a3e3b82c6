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

# What of Windows the substitutes need; a link takes what is used.
set(QV_SUBSTITUTE_LIBRARIES psapi windowscodecs uuid gdi32 comctl32)

# qv_substitute_dll(<name>): builds <name>.dll from the folder of its name, exporting what the import lists of the device's
# libraries that it stands in for name, and the interface library import_<name> that the program links instead of the
# system's.
function(qv_substitute_dll name)
    file(GLOB sources CONFIGURE_DEPENDS ${name}/*.cpp ${name}/*.rc)
    set(exports "")
    foreach(library IN LISTS QV_STANDS_FOR_${name})
        qv_exports(${library} rows)
        list(APPEND exports ${rows})
    endforeach()
    list(JOIN exports "\n" exports)
    set(def ${CMAKE_CURRENT_BINARY_DIR}/${name}.def)
    file(CONFIGURE OUTPUT ${def} CONTENT "LIBRARY ${name}.dll\nEXPORTS\n${exports}\n" @ONLY)

    add_library(${name} SHARED ${sources} ${def})
    set_target_properties(${name} PROPERTIES PREFIX "" IMPORT_PREFIX "unused_" RUNTIME_OUTPUT_DIRECTORY ${QV_BIN})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_options(${name} PRIVATE -static)
    target_link_libraries(${name} PRIVATE qv_compile_options qv_pc_common ${QV_SUBSTITUTE_LIBRARIES})
    list(LENGTH sources count)
    if(count GREATER 3) # for fewer it does not pay
        target_precompile_headers(${name} PRIVATE <windows.h> <string>)
    endif()

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
