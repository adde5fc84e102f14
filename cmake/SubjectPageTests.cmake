# subjectpage_add_test(<name> SOURCES <file>... [LIBRARIES <target>...] [DISPLAY] [WEBENGINE] [SERIAL] [TIMEOUT <s>]
#                      [BESIDE <program>])
#
# One test program, run by CTest without a screen. DISPLAY gives it a virtual X display of its own (anything that
# shows a web view needs one); WEBENGINE does the same and labels the test, since the web engine does not run under
# the sanitizers.
function(subjectpage_add_test name)
    cmake_parse_arguments(T "DISPLAY;WEBENGINE;SERIAL" "TIMEOUT;BESIDE" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${T_SOURCES})
    target_link_libraries(${name} PRIVATE testsupport ${T_LIBRARIES})
    target_compile_definitions(${name} PRIVATE TEST_DATA_DIR="${CMAKE_SOURCE_DIR}/tests/data"
                               PROJECT_SOURCE_DIR="${CMAKE_SOURCE_DIR}" PROJECT_BINARY_DIR="${CMAKE_BINARY_DIR}")
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    if(T_DISPLAY OR T_WEBENGINE)
        add_test(NAME ${name} COMMAND xvfb-run -a -s "-screen 0 1600x1200x24" $<TARGET_FILE:${name}>)
        set(environment QTWEBENGINE_DISABLE_SANDBOX=1 QT_QPA_PLATFORM=xcb)
    else()
        add_test(NAME ${name} COMMAND ${T_BESIDE} $<TARGET_FILE:${name}>)
        set(environment QT_QPA_PLATFORM=offscreen)
    endif()
    if(NOT T_TIMEOUT)
        set(T_TIMEOUT 120)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${T_TIMEOUT} ENVIRONMENT
        "${environment};LC_ALL=C.UTF-8;TZ=Asia/Shanghai;UBSAN_OPTIONS=print_stacktrace=1;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp")
    if(T_WEBENGINE)
        set_tests_properties(${name} PROPERTIES LABELS webengine)
    endif()
    if(T_SERIAL)
        set_tests_properties(${name} PROPERTIES RUN_SERIAL ON)
    endif()
endfunction()
