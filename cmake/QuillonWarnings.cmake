# Compiler options every Quillon target gets.
#
# Floating-point contraction is off everywhere: a fused multiply-add rounds once where the
# program's arithmetic rounds twice, and the rounding points are what the program demonstrates.
function(quillon_target_defaults target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -ffp-contract=off -fno-fast-math)
    if(QUILLON_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()
