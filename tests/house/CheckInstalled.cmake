# Installs the build into FOLDER and paints the board of a game that lies elsewhere: its pictures are found in the
# installed program's own folder, and nowhere else.
unset(ENV{DESTDIR})
file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${FOLDER} OUTPUT_QUIET RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "the build cannot be installed")
endif()
set(data ${FOLDER}/share/tavlora)
file(COPY_FILE ${data}/Family_US.gam ${FOLDER}/Ours.gam)
set(ENV{HOME} ${FOLDER})

function(paint_board expected)
  execute_process(COMMAND ${FOLDER}/bin/tavlora-print ${FOLDER}/Ours.gam --board ${FOLDER}/board.png
    RESULT_VARIABLE status ERROR_VARIABLE said)
  if(NOT status EQUAL 0 OR NOT said MATCHES "${expected}")
    message(FATAL_ERROR "status ${status}, said: ${said}")
  endif()
endfunction()

execute_process(COMMAND ${FOLDER}/bin/tavlora-play --games 3 RESULT_VARIABLE status
  OUTPUT_VARIABLE report ERROR_VARIABLE said)
if(NOT status EQUAL 0 OR NOT report MATCHES "# The economy, played")
  message(FATAL_ERROR "tavlora-play: status ${status}, said: ${said}")
endif()

paint_board("^$")
file(REMOVE ${data}/family/pond.png)
paint_board("share/tavlora/family/pond.png")
file(REMOVE_RECURSE ${FOLDER})
