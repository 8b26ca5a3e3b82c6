# Links SOURCE as the program is linked. OUTCOME is "links", or the name that the link's message must hold.
execute_process(
    COMMAND ${COMPILER} ${SOURCE} -o ${OUTPUT} -nostartfiles -nodefaultlibs -Wl,-e,ProgramStart ${ARCHIVES}
    RESULT_VARIABLE result
    ERROR_VARIABLE messages)
if(OUTCOME STREQUAL "links")
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "the link failed: ${messages}")
    endif()
elseif(result EQUAL 0)
    message(FATAL_ERROR "the link succeeded")
elseif(NOT messages MATCHES "undefined reference to .*${OUTCOME}")
    message(FATAL_ERROR "the message does not name ${OUTCOME}: ${messages}")
endif()
