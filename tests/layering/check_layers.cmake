# Fails when a lower layer of the core includes a higher one. The lower layers know nothing of
# the Editor, its handlers or the skin: the control models, the SQLite classes, the mission
# arrays with their file text, the projection and the layout transform. They may include the
# standard library, the engine, common/ (the safe writer of files among it), platform/ and one
# another.
#
#   cmake -DSRC=<src folder> -P check_layers.cmake
if(NOT SRC)
    message(FATAL_ERROR "usage: cmake -DSRC=<src folder> -P check_layers.cmake")
endif()

get_filename_component(SRC "${SRC}" ABSOLUTE)
set(_lower_globs
    shell/controls/*
    refdata/connection.* refdata/database.* refdata/database_errors.h refdata/recordset.*
    refdata/field_value.* refdata/sql_tokens.* refdata/sql_translation.* refdata/transaction.*
    refdata/sql_parameters.*
    document/mission.h document/checked_array.h document/mis_text.* document/coord_text.*
    document/file_text.h document/unit_placement.*
    maps/map_projection.* maps/map_catalogue.h maps/great_circle.*
    ground/layout_transform.*)

set(_lower)
foreach(glob IN LISTS _lower_globs)
    file(GLOB _found RELATIVE ${SRC} ${SRC}/${glob})
    list(APPEND _lower ${_found})
endforeach()
list(REMOVE_DUPLICATES _lower)
list(LENGTH _lower _count)
if(_count LESS 20)
    message(FATAL_ERROR "only ${_count} files of the lower layers found under ${SRC}")
endif()

set(_faults)
foreach(file IN LISTS _lower)
    file(STRINGS ${SRC}/${file} _includes REGEX "^[ \t]*#[ \t]*include[ \t]*\"")
    foreach(line IN LISTS _includes)
        string(REGEX REPLACE "^[ \t]*#[ \t]*include[ \t]*\"([^\"]+)\".*" "\\1" _target "${line}")
        if(_target MATCHES "^(common|platform)/")
            continue()
        endif()
        list(FIND _lower "${_target}" _at)
        if(_at EQUAL -1)
            list(APPEND _faults "${file} includes ${_target}")
        endif()
    endforeach()
endforeach()

if(_faults)
    list(JOIN _faults "\n  " _text)
    message(FATAL_ERROR "A lower layer includes a higher one:\n  ${_text}")
endif()
message(STATUS "${_count} files of the lower layers include only what lies below them")
