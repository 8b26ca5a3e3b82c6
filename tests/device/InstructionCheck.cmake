# CODE, or SOURCE assembled, has no instruction that some of the devices' processors lack, none that needs a stack aligned
# to 8 bytes, and no call or return that cannot lead to Thumb code. FOUND: what there must be instead.
cmake_minimum_required(VERSION 3.25)
find_program(OBJDUMP arm-none-eabi-objdump NO_CACHE REQUIRED)
if(SOURCE)
    set(CODE ${OUTPUT})
    execute_process(COMMAND ${ASSEMBLER} -march=armv7ve -mfpu=vfpv4 -mfloat-abi=hard -c ${SOURCE} -o ${CODE}
        COMMAND_ERROR_IS_FATAL ANY)
endif()

# instructions_as(<processor> <variable>): the code read as that processor would; what it does not know stays a number.
function(instructions_as processor result)
    execute_process(COMMAND ${OBJDUMP} -m ${processor} -d ${CODE} OUTPUT_VARIABLE dump COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE ";" "," dump "${dump}")
    string(REGEX MATCHALL "\n +[0-9a-f]+:\t[0-9a-f]+ +\t[^\n]+" instructions "${dump}")
    set(${result} "${instructions}" PARENT_SCOPE)
endfunction()
instructions_as(armv4t oldest)
instructions_as(armv8-a newest)
list(LENGTH oldest count)
list(LENGTH newest newest_count)
if(NOT count EQUAL newest_count OR (NOT SOURCE AND count LESS 8000))
    message(FATAL_ERROR "${count} and ${newest_count} instructions were read: the dump has another form")
endif()

set(forbidden "")
foreach(as_old as_new IN ZIP_LISTS oldest newest)
    # The jump table of a switch stays within its function; every other way out has to be BX.
    if(NOT as_old STREQUAL as_new
            OR as_new MATCHES "\t(v[a-z0-9.]+|f?(ldm|stm)[a-z]+x|fl[a-z]+|fst[a-z]+|mcrr?2?|mrrc?2?|mrc2?|cdp2?|ldc2?l?|stc2?l?)\t"
            OR as_new MATCHES "\t(pop|ldm)[a-z]*\t[^\n]*pc}"
            OR as_new MATCHES "\t(mov|add|sub|orr|and|bic|eor|mvn)[a-z]*\tpc,"
            OR (as_new MATCHES "\tldr[a-z]*\tpc," AND NOT as_new MATCHES "\tldrls\tpc, \\[pc, "))
        string(APPEND forbidden "${as_new}")
    endif()
endforeach()
if(NOT DEFINED FOUND)
    if(forbidden)
        message(FATAL_ERROR "${forbidden}")
    endif()
    message(STATUS "${count} instructions")
endif()
foreach(text IN LISTS FOUND)
    if(NOT forbidden MATCHES "${text}")
        message(FATAL_ERROR "does not find ${text} but: ${forbidden}")
    endif()
endforeach()
