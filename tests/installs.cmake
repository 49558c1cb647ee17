# Installs the build into a scratch prefix, moves it (a package must not know where it stands), builds the
# consumer against it and runs it. Called with BUILD_DIR, SOURCE_DIR, SCRATCH_DIR and CXX_COMPILER.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE "${SCRATCH_DIR}")
run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${SCRATCH_DIR}/first")
file(RENAME "${SCRATCH_DIR}/first" "${SCRATCH_DIR}/moved")
run(${CMAKE_COMMAND} -G Ninja -S "${SOURCE_DIR}/consumer" -B "${SCRATCH_DIR}/build"
    "-DCMAKE_PREFIX_PATH=${SCRATCH_DIR}/moved" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}")
run(${CMAKE_COMMAND} --build "${SCRATCH_DIR}/build")
run("${SCRATCH_DIR}/build/consumer")
# The examples are built as a newcomer would build it, and the first one says what its page says.
run(${CMAKE_COMMAND} -G Ninja -S "${SOURCE_DIR}/../examples/order" -B "${SCRATCH_DIR}/order"
    "-DCMAKE_PREFIX_PATH=${SCRATCH_DIR}/moved" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}")
run(${CMAKE_COMMAND} --build "${SCRATCH_DIR}/order")
execute_process(
    COMMAND "${SCRATCH_DIR}/order/order" "${SOURCE_DIR}/../examples/catalogue.xml" 7301
        alcolor=gold alcolor=red pages=31 pages=30
    OUTPUT_VARIABLE said)
file(READ "${SOURCE_DIR}/data/order-example.txt" expected)
if(NOT said STREQUAL expected)
    message(FATAL_ERROR "the example says:\n${said}and not:\n${expected}")
endif()
run(${CMAKE_COMMAND} -G Ninja -S "${SOURCE_DIR}/../examples/configurator" -B "${SCRATCH_DIR}/configurator"
    "-DCMAKE_PREFIX_PATH=${SCRATCH_DIR}/moved" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}")
run(${CMAKE_COMMAND} --build "${SCRATCH_DIR}/configurator")
run("${SCRATCH_DIR}/moved/bin/ktcatalogue" --version)
# A drawing needs neither a display nor an environment.
run(${CMAKE_COMMAND} -E env --unset=QT_QPA_PLATFORM "${SCRATCH_DIR}/moved/bin/ktcatalogue" preview
    "${SOURCE_DIR}/../examples/catalogue.xml" --article 7301 -o "${SCRATCH_DIR}/cover.svg")
