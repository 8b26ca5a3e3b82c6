# EXECUTABLE has the resources that the program asks for, all within their section.
cmake_minimum_required(VERSION 3.25)
find_program(READOBJ NAMES llvm-readobj llvm-readobj-14 NO_CACHE REQUIRED)
execute_process(COMMAND ${READOBJ} --sections --coff-resources ${EXECUTABLE}
    OUTPUT_VARIABLE dump COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "\n +Type: [A-Z_]+ |\n +Name: \\(ID [0-9]+\\)" lines "${dump}")
set(found "")
foreach(line IN LISTS lines)
    if(line MATCHES "Type: ([A-Z_]+)")
        set(type ${CMAKE_MATCH_1})
    elseif(line MATCHES "ID ([0-9]+)")
        list(APPEND found ${type}-${CMAKE_MATCH_1})
    endif()
endforeach()
foreach(expected
        GROUP_ICON-101 # the program's icon
        MENU-102 MENU-132 MENU-134 MENU-136 MENU-173 # of the four pages and the Windows list
        DIALOG-125 DIALOG-133 # Information, Windows list
        RCDATA-111 RCDATA-170 RCDATA-171 RCDATA-172 RCDATA-173 RCDATA-174 # soft-key bars
        STRINGTABLE-1 STRINGTABLE-7 ACCELERATOR-2 VERSIONINFO-1)
    if(NOT expected IN_LIST found)
        message(FATAL_ERROR "${expected} is not among its resources: ${found}")
    endif()
endforeach()

string(REGEX MATCH "Name: \\.rsrc.*VirtualSize: (0x[0-9A-F]+).*VirtualAddress: (0x[0-9A-F]+).*Name: \\.text" section "${dump}")
string(REGEX MATCH "VirtualSize: (0x[0-9A-F]+)[^V]*VirtualAddress: (0x[0-9A-F]+)" section "${section}")
set(size ${CMAKE_MATCH_1})
set(begin ${CMAKE_MATCH_2})
string(REGEX MATCHALL "DataRVA: 0x[0-9A-F]+\n +DataSize: [0-9]+" places "${dump}")
list(LENGTH places count)
list(LENGTH found names)
if(NOT count EQUAL names OR count LESS 20)
    message(FATAL_ERROR "${names} resources, of which ${count} have data")
endif()
foreach(place IN LISTS places)
    string(REGEX MATCH "(0x[0-9A-F]+)\n +DataSize: ([0-9]+)" place "${place}")
    math(EXPR first "${CMAKE_MATCH_1} - ${begin}")
    math(EXPR last "${CMAKE_MATCH_1} - ${begin} + ${CMAKE_MATCH_2} - ${size}")
    if(first LESS 0 OR last GREATER 0)
        message(FATAL_ERROR "a resource lies outside its section: ${place}")
    endif()
endforeach()
