# Fails with the names of the sources that clang-format would change.
file(GLOB_RECURSE sources
  ${ROOT}/src/*.cpp ${ROOT}/src/*.h ${ROOT}/tests/*.cpp ${ROOT}/tests/*.h ${ROOT}/bench/*.cpp ${ROOT}/bench/*.h
  ${ROOT}/fuzz/*.cpp ${ROOT}/fuzz/*.h ${ROOT}/tools/*.cpp)
execute_process(COMMAND ${CLANG_FORMAT} --dry-run -Werror ${sources} RESULT_VARIABLE result ERROR_VARIABLE report)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "Not formatted:\n${report}")
endif()
