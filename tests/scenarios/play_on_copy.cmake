# Plays a scenario on a fresh copy of the simulator folder, so that what the scenario does
# there (a mission deleted from the browser, a file saved into missions/) touches neither the
# default installation nor another scenario.
#   cmake -DPLAY=tarvex-mis -DSIM=folder -DCOPY=folder -DSCENARIO=file.scn [-DMISSIONS=a;b]
#         -P play_on_copy.cmake
file(REMOVE_RECURSE "${COPY}")
file(COPY "${SIM}/" DESTINATION "${COPY}")
execute_process(COMMAND "${PLAY}" play --sim "${COPY}" "${SCENARIO}" ${MISSIONS}
                RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "tarvex-mis play exited with ${result}")
endif()
