# qv_add_program(<target> SOURCES ... LIBRARIES ... [FOLDER ...]): links <target>.elf, which keeps the symbols for whoever has an address
# of a fault, and copies its image to <target>.exe beside it.
function(qv_add_program target)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "FOLDER" "SOURCES;LIBRARIES")
    if(NOT ARG_FOLDER)
        set(ARG_FOLDER ${QV_BIN})
    endif()
    set(folder ${CMAKE_CURRENT_FUNCTION_LIST_DIR})
    set(tables ${CMAKE_CURRENT_BINARY_DIR}/imports.S)
    qv_import_tables(${tables})
    qv_late_exports(${CMAKE_CURRENT_BINARY_DIR}/LateExports.h)
    get_target_property(resources qv_resources QV_FILE)
    file(GLOB parts CONFIGURE_DEPENDS ${folder}/*.cpp)
    get_filename_component(resources_folder ${resources} DIRECTORY)

    add_executable(${target} ${ARG_SOURCES} ${tables}
        ${folder}/Headers.S ${parts}
        ${PROJECT_SOURCE_DIR}/platform/Runtime.cpp)
    set_property(SOURCE ${folder}/Headers.S PROPERTY OBJECT_DEPENDS ${resources})
    set_property(SOURCE ${tables} PROPERTY OBJECT_DEPENDS ${folder}/Imports.inc)
    target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
    target_compile_options(${target} PRIVATE
        $<$<COMPILE_LANGUAGE:ASM>:-Wa,-I${resources_folder};-Wa,-I${folder};-Wa,--defsym,image_base=${QV_IMAGE_BASE}>)
    set_target_properties(${target} PROPERTIES SUFFIX .elf RUNTIME_OUTPUT_DIRECTORY ${ARG_FOLDER} LINK_DEPENDS ${folder}/Layout.ld)
    target_compile_options(${target} PRIVATE "$<$<COMPILE_LANGUAGE:CXX>:${QV_PROGRAM_OPTIONS}>")
    target_link_libraries(${target} PRIVATE ${ARG_LIBRARIES} qv_compile_options qv_platform gcc)
    # What is not in the layout would be in nobody's address space: it fails the link.
    target_link_options(${target} PRIVATE -nostdlib -nostartfiles -static
        -Wl,--defsym=image_base=${QV_IMAGE_BASE} -Wl,-T,${folder}/Layout.ld
        -Wl,--orphan-handling=error -Wl,--fatal-warnings -Wl,--no-wchar-size-warning -Wl,--no-enum-size-warning)
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_OBJCOPY} -O binary $<TARGET_FILE:${target}> $<TARGET_FILE_DIR:${target}>/${target}.exe
        BYPRODUCTS ${ARG_FOLDER}/${target}.exe
        VERBATIM)
endfunction()
