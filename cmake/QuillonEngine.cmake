# Engines are built once for the program and, when tests are on, once more per optimisation
# variant, so that the engine tests prove the results do not depend on compiler flags.
set(QUILLON_ENGINE_VARIANTS O0 O3 native)
# The sanitizer build looks for memory errors and undefined behaviour, not for results that
# depend on flags: one variant is enough there.
if(QUILLON_SANITIZE)
    set(QUILLON_ENGINE_VARIANTS O3)
endif()
set(QUILLON_VARIANT_FLAGS_O0 -O0)
set(QUILLON_VARIANT_FLAGS_O3 -O3)
set(QUILLON_VARIANT_FLAGS_native -O3 -march=native)

# quillon_add_engine(NAME SOURCES ... [LINK ...])
# Defines the static library NAME and, with tests on, NAME_O0, NAME_O3 and NAME_native.
# LINK names other engines; each variant links the same variant of them.
function(quillon_add_engine name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;SYSTEM_LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} ${ARG_SYSTEM_LINK})
    quillon_target_defaults(${name})
    if(NOT QUILLON_BUILD_TESTS)
        return()
    endif()
    foreach(variant IN LISTS QUILLON_ENGINE_VARIANTS)
        set(variant_target ${name}_${variant})
        add_library(${variant_target} STATIC ${ARG_SOURCES})
        list(TRANSFORM ARG_LINK APPEND _${variant} OUTPUT_VARIABLE variant_links)
        target_link_libraries(${variant_target} PUBLIC ${variant_links} ${ARG_SYSTEM_LINK})
        quillon_target_defaults(${variant_target})
        target_compile_options(${variant_target} PRIVATE ${QUILLON_VARIANT_FLAGS_${variant}})
    endforeach()
endfunction()
