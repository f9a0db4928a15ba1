# Installs the build into a fresh prefix, as a user would with `cmake --install`, and checks
# that the programs, their data, the desktop entry and the icon are there and that the
# installed programs run from it: the editor pictures a sample mission from the installed
# data folder, started from a folder that has none.
#   cmake -DBUILD=<build folder> -DPREFIX=<scratch folder> -P check_install.cmake
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}
                RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "cmake --install failed: ${result}")
endif()

set(data ${PREFIX}/share/tarvex)
foreach(file
        bin/tarvex-mis
        bin/tarvex-editor
        "share/tarvex/Sortak/Sortak Data/Tarvex Missions.mdb"
        "share/tarvex/Sortak/Sortak Maps/Splash.bmp"
        "share/tarvex/Sortak/Sortak Maps/Map1.bmp"
        share/tarvex/Tarvex/sound/Click.wav
        share/tarvex/Tarvex/missions/Tangmere_Stuka_Raid.mis
        share/applications/tarvex-editor.desktop
        share/icons/hicolor/128x128/apps/tarvex-editor.png)
    if(NOT EXISTS "${PREFIX}/${file}")
        message(FATAL_ERROR "not installed: ${file}")
    endif()
endforeach()

# Nothing of the build or the account may help the installed programs find their data.
set(ENV{TARVEX_HOME} "")
set(ENV{TARVEX_SIM_PATH} "")
set(ENV{XDG_CONFIG_HOME} ${PREFIX}/config)
set(ENV{QT_QPA_PLATFORM} offscreen)
file(MAKE_DIRECTORY ${PREFIX}/elsewhere)

foreach(program tarvex-mis tarvex-editor)
    execute_process(COMMAND ${PREFIX}/bin/${program} --version
                    WORKING_DIRECTORY ${PREFIX}/elsewhere
                    RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0 OR NOT out MATCHES "^${program} [0-9]+\\.[0-9]+\\.[0-9]+")
        message(FATAL_ERROR "${program} --version: ${result} '${out}' ${err}")
    endif()
endforeach()

# The installed editor, started away from its data, must find it beside itself: the layouts
# the mission brings are written to the installed database.
file(TIMESTAMP "${data}/Sortak/Sortak Data/Tarvex Missions.mdb" before "%s")
execute_process(COMMAND ${CMAKE_COMMAND} -E sleep 1)
execute_process(COMMAND ${PREFIX}/bin/tarvex-editor --screenshot ${PREFIX}/shot.png --tab 2
                        ${data}/Tarvex/missions/Tangmere_Stuka_Raid.mis
                WORKING_DIRECTORY ${PREFIX}/elsewhere
                RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT result EQUAL 0 OR NOT EXISTS ${PREFIX}/shot.png)
    message(FATAL_ERROR "the installed editor's screenshot failed: ${result} ${out} ${err}")
endif()
file(TIMESTAMP "${data}/Sortak/Sortak Data/Tarvex Missions.mdb" after "%s")
if(before STREQUAL after)
    message(FATAL_ERROR "the installed editor did not use the installed database")
endif()
file(REMOVE_RECURSE ${PREFIX})
