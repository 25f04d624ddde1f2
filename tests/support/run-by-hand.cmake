# Runs a test program as a developer would by hand (no CTest environment) with HOME pointed at an
# empty folder, and fails if the program left anything there.
#   cmake -DPROGRAM=<exe> -DHOME_DIR=<dir> [-DARGS=<;-list>] -P run-by-hand.cmake
file(REMOVE_RECURSE "${HOME_DIR}")
file(MAKE_DIRECTORY "${HOME_DIR}")
execute_process(
    COMMAND env -u NORVALE_SANDBOX -u XDG_CONFIG_HOME -u XDG_DATA_HOME -u XDG_CACHE_HOME -u XDG_STATE_HOME
            "HOME=${HOME_DIR}" QT_QPA_PLATFORM=offscreen "${PROGRAM}" ${ARGS}
    RESULT_VARIABLE status
    OUTPUT_VARIABLE output
    ERROR_VARIABLE output)
file(GLOB_RECURSE left LIST_DIRECTORIES true "${HOME_DIR}/*" "${HOME_DIR}/.*")
file(REMOVE_RECURSE "${HOME_DIR}")
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} failed (${status}):\n${output}")
endif()
if(left)
    message(FATAL_ERROR "${PROGRAM} run by hand wrote into the home folder:\n${left}")
endif()
