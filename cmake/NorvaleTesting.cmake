# One helper registers every Qt Test suite of the native lane.
#   norvale_add_qt_test(tst_name SOURCES a.cpp ... LIBS lib ...)
# Each suite runs offscreen with its own settings and data folders, so no test touches the
# developer's real settings; run by hand, a suite makes throw-away ones (tests/support).
function(norvale_add_qt_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES} ${PROJECT_SOURCE_DIR}/tests/support/isolatedhome.cpp
                           ${PROJECT_SOURCE_DIR}/tests/support/sanitizerpool.cpp)
    target_link_libraries(${name} PRIVATE Qt6::Test ${ARG_LIBS})
    add_test(NAME ${name} COMMAND ${name})
    set(home "${CMAKE_BINARY_DIR}/test-home/${name}")
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;NORVALE_SANDBOX=${home}/sandbox"
        TIMEOUT 300)
endfunction()
