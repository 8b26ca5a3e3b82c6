# The device's start-up and its late functions are plain code: the unit tests run them on the PC, under other names where
# the PC has its own.
include(${PROJECT_SOURCE_DIR}/platform/device/Imports.cmake)

# qv_add_device_parts(<target>)
function(qv_add_device_parts target)
    set(folder ${PROJECT_SOURCE_DIR}/platform/device)
    set(parts ${folder}/Aygshell.cpp ${folder}/MobileFunctions.cpp ${folder}/start.cpp)
    set(definitions "")
    foreach(name SHHandleWMSettingChange SHHandleWMActivate SHSendBackToFocusWindow FindFirstFlashCard
            FindNextFlashCard GetSystemPowerStatusEx QueryPolicy GetCommandLineW ProgramMain)
        list(APPEND definitions ${name}=Device${name})
    endforeach()
    # The names' declarations say that a library has them, and the precompiled header has read those.
    set_source_files_properties(${parts} PROPERTIES
        COMPILE_DEFINITIONS "${definitions}" COMPILE_OPTIONS -Wno-attributes SKIP_PRECOMPILE_HEADERS ON)
    target_sources(${target} PRIVATE ${parts} ${folder}/LateFunction.cpp)
    qv_late_exports(${CMAKE_CURRENT_BINARY_DIR}/LateExports.h)
    target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
