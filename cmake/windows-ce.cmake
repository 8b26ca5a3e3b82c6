# Cross build for the device: ARM Windows CE by the bare-metal ARM compiler, with mingw-w64's headers in place of the
# compiler's own C library, which has 4-byte wide characters and no part in the program.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_CXX_COMPILER arm-none-eabi-g++)
set(CMAKE_ASM_COMPILER arm-none-eabi-gcc)
set(CMAKE_OBJCOPY arm-none-eabi-objcopy)
# There is nothing yet that an executable could be linked with.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(QV_TARGET device)

# ARMv4T runs on every processor such devices have, and has no load or store of register pairs, which need a stack
# aligned to 8 bytes: the system aligns the stack of its callbacks to 4.
set(machine "-march=armv4t -marm -mfloat-abi=soft")
set(CMAKE_ASM_FLAGS_INIT "${machine}")
# Wide characters, enumerations and plain characters as the device's libraries have them.
set(CMAKE_CXX_FLAGS_INIT "${machine} -fshort-wchar -fno-short-enums -fsigned-char -ffreestanding -fno-math-errno")
