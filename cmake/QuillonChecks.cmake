# The checking builds CI makes besides the normal one, each in its own build folder.
#
# QUILLON_SANITIZE: every target with AddressSanitizer and UndefinedBehaviorSanitizer (GCC or
# clang; scripts/sanitize.sh uses clang). Nothing
# recovers from a report: the program stops with a non-zero status at the first one, so a test
# that runs into undefined behaviour fails instead of printing a warning nobody reads.
#
# QUILLON_FUZZ: the libFuzzer harnesses in fuzz/ (clang only). Everything is compiled with
# coverage instrumentation and both sanitizers, so the fuzzer steers towards new code in the
# readers and any memory error or undefined behaviour it reaches stops it.
option(QUILLON_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(QUILLON_FUZZ "Build the libFuzzer harnesses in fuzz/ (needs clang)" OFF)

set(QUILLON_SANITIZER_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)

if(QUILLON_SANITIZE)
    add_compile_options(${QUILLON_SANITIZER_FLAGS})
    add_link_options(-fsanitize=address,undefined)
endif()

if(QUILLON_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "QUILLON_FUZZ needs clang: configure with -DCMAKE_CXX_COMPILER=clang++")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link ${QUILLON_SANITIZER_FLAGS})
    add_link_options(-fsanitize=address,undefined)
endif()
