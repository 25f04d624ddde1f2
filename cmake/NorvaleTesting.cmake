# One helper registers every Qt Test suite of the native lane.
#   norvale_add_qt_test(tst_name SOURCES a.cpp ... LIBS lib ...)
# Each suite runs offscreen with its own settings and data folders, so no test touches the
# developer's real settings; run by hand, a suite makes throw-away ones (tests/support).
#
# In the Windows build the same suites form the Windows-app lane (scripts/test-winapp.sh): CTest
# names them winapp_<suite> and runs them under Wine against the Win32 platform, one at a time
# (they share the prefix's registry, hence their settings), each report also kept in
# winapp-reports/ so the lane can count and list the skipped cases.
set(NORVALE_WINE_PREFIX "${CMAKE_BINARY_DIR}/prefix" CACHE PATH "The Wine prefix the Windows build's tests run in")
file(WRITE "${CMAKE_BINARY_DIR}/winapp-skipped-suites.txt" "")
function(norvale_add_qt_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES} ${PROJECT_SOURCE_DIR}/tests/support/isolatedhome.cpp
                           ${PROJECT_SOURCE_DIR}/tests/support/sanitizerpool.cpp)
    target_link_libraries(${name} PRIVATE Qt6::Test norvale_testmachine ${ARG_LIBS})
    if(WIN32)
        set(reports "${CMAKE_BINARY_DIR}/winapp-reports")
        file(MAKE_DIRECTORY "${reports}")
        # Through wine-run.sh: a Wine helper started by a case must not hold CTest's pipe open.
        set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR "${PROJECT_SOURCE_DIR}/scripts/wine-run.sh")
        add_test(NAME winapp_${name} COMMAND ${name} -o "Z:${reports}/${name}.txt,txt" -o -,txt)
        set_tests_properties(winapp_${name} PROPERTIES
            ENVIRONMENT "WINEPREFIX=${NORVALE_WINE_PREFIX};WINEDEBUG=-all"
            RESOURCE_LOCK winapp_prefix
            TIMEOUT 300)
        return()
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set(home "${CMAKE_BINARY_DIR}/test-home/${name}")
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;NORVALE_SANDBOX=${home}/sandbox"
        TIMEOUT 300)
endfunction()

# A suite that has no meaning in this build: listed all the same, as skipped, with its reason.
function(norvale_skip_qt_test name reason)
    file(APPEND "${CMAKE_BINARY_DIR}/winapp-skipped-suites.txt" "${name}: ${reason}\n")
    add_test(NAME winapp_${name} COMMAND ${CMAKE_COMMAND} -E echo "SKIP ${name}: ${reason}")
    set_tests_properties(winapp_${name} PROPERTIES SKIP_REGULAR_EXPRESSION "SKIP ${name}")
endfunction()
