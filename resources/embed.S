// Carries the compiled resources inside the library: exactly the bytes of the .res file, in a section of their own that
// the linker keeps ("R") although nothing refers to it. No symbol: the section is found by its name.
    .section .rsrc.orvanta, "aR", @progbits
    .balign 8
    .incbin ORV_RESOURCE_FILE
    .section .note.GNU-stack, "", @progbits
