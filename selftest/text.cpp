// fingerprints.txt, in the program, so that it needs no other file; ended by a zero byte.
asm(".pushsection .rodata\n"
    ".globl zelmFingerprints\n"
    "zelmFingerprints:\n"
    ".incbin \"" ZELM_FINGERPRINTS_FILE "\"\n"
    ".byte 0\n"
    ".popsection\n");
