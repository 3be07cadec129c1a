# Installs a build into a directory of its own, builds a user's project against it and runs that.
# cmake -DBUILD=... -DWORK=... -DCOMPILER=... -DCHART=... -DWITH_CAIRO=... -P run.cmake

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE "${WORK}")
run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/prefix")
run("${CMAKE_COMMAND}" -S "${CMAKE_CURRENT_LIST_DIR}" -B "${WORK}/build" -G Ninja "-DCMAKE_PREFIX_PATH=${WORK}/prefix"
    "-DCMAKE_CXX_COMPILER=${COMPILER}" -DCMAKE_BUILD_TYPE=Debug "-DWITH_CAIRO=${WITH_CAIRO}")
run("${CMAKE_COMMAND}" --build "${WORK}/build")
run("${WORK}/build/every_element")
run("${WORK}/build/draw_chart" "${CHART}" "${WORK}/chart.svg")
set(pictures chart.svg)
if(WITH_CAIRO)
    run("${WORK}/build/draw_pictures" "${WORK}" "${CHART}" "${CHART}")
    list(APPEND pictures chart.png charts.pdf)
endif()
foreach(picture IN LISTS pictures)
    if(NOT EXISTS "${WORK}/${picture}")
        message(FATAL_ERROR "${picture} was not written")
    endif()
endforeach()
foreach(file man/man1/vexa.1 bash-completion/completions/vexa zsh/site-functions/_vexa fish/vendor_completions.d/vexa.fish)
    if(NOT EXISTS "${WORK}/prefix/share/${file}")
        message(FATAL_ERROR "share/${file} was not installed")
    endif()
endforeach()
