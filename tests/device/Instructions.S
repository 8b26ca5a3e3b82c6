@ What the check of the instructions has to find.
    .arm
    ldrd r2, [r0]
    strd r2, [r0]
    clz r0, r1
    blx r3
    pop {r4, pc}
    mov pc, lr
