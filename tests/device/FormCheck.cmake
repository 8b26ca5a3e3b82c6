# What another program calls EXECUTABLE. tests/device/image looks at every promise about its form.
cmake_minimum_required(VERSION 3.25)
find_program(FILE file NO_CACHE REQUIRED)
execute_process(COMMAND ${FILE} -b ${EXECUTABLE} OUTPUT_VARIABLE kind COMMAND_ERROR_IS_FATAL ANY)
if(NOT kind MATCHES "^PE32 executable \\(Windows CE\\) ARM")
    message(FATAL_ERROR "file calls it: ${kind}")
endif()
