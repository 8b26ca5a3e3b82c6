@ The headers of a Windows CE ARM executable, the resources, and the entry. The values come from Layout.ld. There is no
@ time stamp: equal sources give equal files.

    .section .headers, "a"
    @ What is left of a DOS program: the signature and where the real header is.
    .ascii "MZ"
    .org 0x3C
    .word 0x80
    .org 0x80

    .ascii "PE\0\0"
    .hword 0x01C0               @ Machine: ARM
    .hword 3                    @ NumberOfSections
    .word 0                     @ TimeDateStamp
    .word 0, 0                  @ no COFF symbols
    .hword 0xE0                 @ SizeOfOptionalHeader
    .hword 0x010F               @ relocations, line numbers and symbols stripped; executable; 32 bits

    .hword 0x010B               @ Magic: PE32
    .byte 2, 40                 @ linker version
    .word code_file_size
    .word initialised_size
    .word uninitialised_size
    .word ProgramEntry - image_base
    .word code_rva
    .word data_rva
    .word image_base
    .word 0x1000, 0x1000        @ SectionAlignment, FileAlignment
    .hword 4, 0                 @ OperatingSystemVersion
    .hword 0, 0                 @ ImageVersion
    .hword 5, 1                 @ SubsystemVersion: Windows CE 5.01
    .word 0
    .word image_size
    .word header_size
    .word 0                     @ CheckSum
    .hword 9, 0                 @ Subsystem: Windows CE, DllCharacteristics
    .word 0x10000, 0x1000       @ stack: reserve, commit
    .word 0x100000, 0x1000      @ heap: reserve, commit
    .word 0
    .word 16                    @ NumberOfRvaAndSizes
    .word 0, 0                  @  0 exports
    .word import_directory_rva, import_directory_size
    .word resources_rva, resources_size
    .space 8 * 9                @  3 to 11
    .word import_addresses_rva, import_addresses_size
    .space 8 * 3                @ 13 to 15

    .macro section_header name, memory, rva, file, characteristics
1:  .ascii "\name"
    .org 1b + 8
    .word \memory, \rva, \file, \rva, 0, 0, 0, \characteristics
    .endm
    section_header ".rsrc", resources_size, resources_rva, resources_file_size, 0x40000040 @ data, read
    section_header ".text", code_size, code_rva, code_file_size, 0x60000020                @ code, execute, read
    section_header ".data", data_size, data_rva, data_file_size, 0xC0000040                @ data, read, write

    .section .rsrc, "a"
    .incbin "resources.bin"
    .balign 4

    @ r0 instance, r1 previous instance, r2 the command line behind the program, r3 show command. The compiler takes an
    @ 8-byte aligned stack for granted.
    .section .text.ProgramEntry, "ax"
    .arm
    .global ProgramEntry
    .type ProgramEntry, %function
ProgramEntry:
    bic sp, sp, #7
    bl ProgramStart
1:  b 1b
