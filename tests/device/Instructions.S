@ What the check of the instructions has to find, by line: not in ARMv4T; of a processor for floating-point numbers or
@ another one beside it; to places that may be Thumb code.
    .syntax unified
    .arm
    ldrd r2, [r0]
    strd r2, [r0]
    clz r0, r1
    blx r3
    smulbb r0, r1, r2
    uxtb r0, r1
    udiv r0, r1, r2
    movw r0, 1
    mls r0, r1, r2, r3
    ldrex r0, [r1]

    vadd.f32 s0, s1, s2
    vldr d0, [r0]
    mcr p15, 0, r0, c7, c10, 5

    pop {r4, pc}
    ldm r0, {r1, pc}
    mov pc, lr
    mov pc, ip
    add pc, r0, r1
    ldr pc, [r0]
