# qv_add_program(<target> SOURCES ... LIBRARIES ...): the executable brings its own start-up and links nothing but the
# listed imports, so an unlisted call fails here.

function(qv_add_program target)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LIBRARIES")
    add_executable(${target} WIN32 ${ARG_SOURCES} ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/start.cpp ${PROJECT_SOURCE_DIR}/platform/Runtime.cpp)
    target_compile_options(${target} PRIVATE ${QV_PROGRAM_OPTIONS})
    target_link_libraries(${target} PRIVATE ${ARG_LIBRARIES} qv_compile_options qv_resources qv_platform gcc)
    target_link_options(${target} PRIVATE -nostartfiles -nodefaultlibs -Wl,-e,ProgramStart)
endfunction()

# qv_compile_resources(<target> SOURCE ... DEPENDS ... INCLUDES ...): an object library.
function(qv_compile_resources target)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "SOURCE" "DEPENDS;INCLUDES")
    add_library(${target} OBJECT ${ARG_SOURCE})
    target_include_directories(${target} PRIVATE ${ARG_INCLUDES})
    set_source_files_properties(${ARG_SOURCE} PROPERTIES OBJECT_DEPENDS "${ARG_DEPENDS}")
endfunction()
