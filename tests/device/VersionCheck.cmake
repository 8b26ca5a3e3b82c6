# The oldest Windows CE that DESCRIPTION installs the program on is the one that EXECUTABLE's header demands: the loader
# refuses a header above its own version with a bare error, the installer says why.
cmake_minimum_required(VERSION 3.25)

# number_at(<offset> <variable>): a word of two bytes of the executable, the low one first.
function(number_at offset result)
    file(READ ${EXECUTABLE} bytes OFFSET ${offset} LIMIT 2 HEX)
    string(REGEX REPLACE "^(..)(..)$" "0x\\2\\1" number "${bytes}")
    math(EXPR number "${number}")
    set(${result} ${number} PARENT_SCOPE)
endfunction()
number_at(60 header) # "PE", behind which the file's and the optional header stand
math(EXPR major "${header} + 24 + 48")
math(EXPR minor "${header} + 24 + 50")
number_at(${major} major)
number_at(${minor} minor)

file(STRINGS ${DESCRIPTION} oldest REGEX "^oldest *=")
if(NOT oldest MATCHES "^oldest *= *([0-9.]+)$")
    message(FATAL_ERROR "${DESCRIPTION} does not say the oldest version: ${oldest}")
endif()
set(complaint "")
if(NOT CMAKE_MATCH_1 STREQUAL "${major}.${minor}")
    set(complaint "the cabinet installs on ${CMAKE_MATCH_1}, the executable demands ${major}.${minor}")
endif()
if(NOT complaint STREQUAL "${FOUND}")
    message(FATAL_ERROR "instead of \"${FOUND}\": \"${complaint}\"")
endif()
message(STATUS "${major}.${minor}")
