# Helpers that register Quillon's test programs with CTest.

set(QUILLON_XVFB_RUN xvfb-run -a -s "-screen 0 1280x1024x24")

# The test programs that need no display (engine and command-line tests): the sanitizer build
# builds only these ("cmake --build build-asan --target headless_tests"); GUI tests carry the
# label "gui", so "ctest -LE gui" runs the rest.
add_custom_target(headless_tests)

# quillon_add_engine_test(NAME SOURCES ... ENGINES ...)
# One GoogleTest program per optimisation variant, each linked to that variant of the engines.
function(quillon_add_engine_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;ENGINES" ${ARGN})
    foreach(variant IN LISTS QUILLON_ENGINE_VARIANTS)
        set(test_target ${name}_${variant})
        add_executable(${test_target} ${ARG_SOURCES})
        list(TRANSFORM ARG_ENGINES APPEND _${variant} OUTPUT_VARIABLE variant_engines)
        target_link_libraries(${test_target} PRIVATE ${variant_engines} GTest::gtest_main)
        target_compile_definitions(${test_target} PRIVATE
            QUILLON_TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}/data")
        quillon_target_defaults(${test_target})
        target_compile_options(${test_target} PRIVATE ${QUILLON_VARIANT_FLAGS_${variant}})
        add_test(NAME ${test_target} COMMAND ${test_target})
        add_dependencies(headless_tests ${test_target})
    endforeach()
endfunction()

# quillon_add_gui_test(NAME SOURCES ... LINK ...)
# A Qt Test program run in its own virtual X server with Mesa's software OpenGL, so that
# the plot views really draw. It runs twice: under the C locale (NAME) and under a German
# locale, whose decimal point is a comma (NAME_de_DE), since the application object switches
# the C library to the user's locale and every module must behave the same under both.
# Programs that start X servers run one at a time: two "xvfb-run -a" starting together can
# pick the same display number.
function(quillon_add_gui_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test)
    target_compile_definitions(${name} PRIVATE
        QUILLON_TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}/data")
    quillon_target_defaults(${name})
    quillon_add_gui_test_run(${name} ${name} "LC_ALL=C.UTF-8")
    quillon_add_gui_test_run(${name}_de_DE ${name}
        "LC_ALL=de_DE.UTF-8;QUILLON_EXPECT_LOCALE=de_DE.UTF-8")
endfunction()

# quillon_add_gui_test_run(TEST_NAME TARGET ENVIRONMENT): one run of a GUI test program.
# Each run starts with its own empty settings folder (XDG_CONFIG_HOME): Qt's file dialog keeps
# the folders it visited in the user's settings, and a later dialog that looks into one of
# them again can hang (one test saves to /proc, where reading /proc/kmsg as root blocks), so
# nothing a test does may outlive its run or depend on the user's own settings.
function(quillon_add_gui_test_run test_name target environment)
    set(config_folder ${CMAKE_CURRENT_BINARY_DIR}/${test_name}-settings)
    add_test(NAME ${test_name}
        COMMAND sh -c "rm -rf \"$0\" && mkdir -p \"$0\" && exec \"$@\""
                ${config_folder} ${QUILLON_XVFB_RUN} $<TARGET_FILE:${target}>)
    set_tests_properties(${test_name} PROPERTIES
        ENVIRONMENT
            "QT_QPA_PLATFORM=xcb;LIBGL_ALWAYS_SOFTWARE=1;XDG_CONFIG_HOME=${config_folder};${environment}"
        RESOURCE_LOCK x_server
        LABELS gui
        TIMEOUT 120)
endfunction()
