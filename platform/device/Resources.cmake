# qv_compile_resources(<target> SOURCE ... DEPENDS ... INCLUDES ...): the image's resource section as a file, in the
# target's property QV_FILE. Windows' own resource compiler is one for PCs, but the section has the same form everywhere;
# linked alone at its place and copied out, nothing of the PC is left.
find_program(QV_WINDRES x86_64-w64-mingw32-windres REQUIRED)
find_program(QV_PC_LD x86_64-w64-mingw32-ld REQUIRED)
find_program(QV_PC_OBJCOPY x86_64-w64-mingw32-objcopy REQUIRED)

function(qv_compile_resources target)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "SOURCE" "DEPENDS;INCLUDES")
    set(stem ${CMAKE_CURRENT_BINARY_DIR}/resources)
    list(TRANSFORM ARG_INCLUDES PREPEND -I)
    add_custom_command(
        OUTPUT ${stem}.bin
        COMMAND ${QV_WINDRES} -O coff -D UNDER_CE=501 ${ARG_INCLUDES} ${ARG_SOURCE} ${stem}.o
        COMMAND ${QV_PC_LD} --image-base ${QV_IMAGE_BASE} -e 0 -T ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/Resources.ld -o ${stem}.dll ${stem}.o
        COMMAND ${QV_PC_OBJCOPY} -O binary -j .rsrc ${stem}.dll ${stem}.bin
        DEPENDS ${ARG_SOURCE} ${ARG_DEPENDS} ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/Resources.ld
        COMMENT "Resources of the executable"
        VERBATIM)
    add_custom_target(${target} DEPENDS ${stem}.bin)
    set_target_properties(${target} PROPERTIES QV_FILE ${stem}.bin)
endfunction()
