# Installs a build into a directory of its own, builds a user's project against it and runs that.
# cmake -DBUILD=... -DWORK=... -DCOMPILER=... -DCHART=... -P run.cmake

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE "${WORK}")
run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/prefix")
run("${CMAKE_COMMAND}" -S "${CMAKE_CURRENT_LIST_DIR}" -B "${WORK}/build" -G Ninja "-DCMAKE_PREFIX_PATH=${WORK}/prefix"
    "-DCMAKE_CXX_COMPILER=${COMPILER}" -DCMAKE_BUILD_TYPE=Debug)
run("${CMAKE_COMMAND}" --build "${WORK}/build")
run("${WORK}/build/every_element")
run("${WORK}/build/draw_chart" "${CHART}" "${WORK}/chart.svg")
if(NOT EXISTS "${WORK}/chart.svg")
    message(FATAL_ERROR "draw_chart wrote nothing")
endif()
