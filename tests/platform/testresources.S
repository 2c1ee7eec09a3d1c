    .section .rsrc.orvanta, "aR", @progbits
    .balign 8
    .incbin TEST_RESOURCES
    .section .note.GNU-stack, "", @progbits
