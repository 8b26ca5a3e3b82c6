# Several sources compiled as one, so that the headers that they share are read once, and the templates that they share
# are compiled once. A test's file, which defines nothing that another file knows, gets a namespace of its own; of the
# others no two may define a static name alike.

# GCC takes what a unit includes for a header, whose types had better not use those of an anonymous namespace.
set(QV_UNIT_OPTIONS -Wno-subobject-linkage)

# qv_unit_text(<variable> <file...>): the text of a source that stands for these.
function(qv_unit_text variable)
    set(all_includes "")
    set(text "")
    foreach(file IN LISTS ARGN)
        set(include "#include \"${file}\"\n")
        file(STRINGS ${file} test REGEX "^TEST" LIMIT_COUNT 1)
        if(test AND file MATCHES "/([A-Za-z0-9]+)\\.cpp$")
            # What it includes must stand before the namespace it is in; there it is not read again.
            file(STRINGS ${file} includes REGEX "^#include ")
            list(APPEND all_includes ${includes})
            string(TOLOWER in_${CMAKE_MATCH_1} space)
            # A namespace that the file opens becomes another one; the names of the right one are known there too.
            file(STRINGS ${file} opened REGEX "^namespace [a-z_:]+")
            foreach(line IN LISTS opened)
                string(REGEX REPLACE "^namespace ([a-z_:]+).*" "\\1" other ${line})
                set(include "namespace ${other} {\nusing namespace ::${other};\n}\n${include}")
            endforeach()
            set(include "namespace ${space} {\n${include}}\n")
        endif()
        string(APPEND text "${include}")
    endforeach()
    list(REMOVE_DUPLICATES all_includes)
    list(JOIN all_includes "\n" all_includes)
    set(${variable} "${all_includes}\n${text}" PARENT_SCOPE)
endfunction()

# qv_make_units(<variable> <name> PER <count> SOURCES ...): what to compile in place of the sources, PER of them together.
function(qv_make_units variable name)
    cmake_parse_arguments(PARSE_ARGV 2 ARG "" "PER" "SOURCES")
    set(sources "")
    foreach(source IN LISTS ARG_SOURCES)
        get_filename_component(source ${source} ABSOLUTE)
        list(APPEND sources ${source})
        # The unit repeats what a test includes.
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    endforeach()
    set(units "")
    set(number 0)
    while(sources)
        math(EXPR number "${number} + 1")
        list(SUBLIST sources 0 ${ARG_PER} some)
        list(REMOVE_ITEM sources ${some})
        qv_unit_text(text ${some})
        set(unit ${CMAKE_CURRENT_BINARY_DIR}/units/${name}${number}.cpp)
        file(CONFIGURE OUTPUT ${unit} CONTENT "${text}" @ONLY) # touched only when it changes
        list(APPEND units ${unit})
    endwhile()
    set(${variable} ${units} PARENT_SCOPE)
endfunction()
