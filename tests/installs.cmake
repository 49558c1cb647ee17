# Installs the build into a scratch prefix, moves it (a package must not know where it stands), and uses it as
# others do. Called with BUILD_DIR, SOURCE_DIR, SCRATCH_DIR, CXX_COMPILER and QT_VERSION_MAJOR.
cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# refused(<words> <command>...): the command has to fail and to say the words.
function(refused words)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    string(FIND "${output}" "${words}" place)
    if(result EQUAL 0 OR place LESS 0)
        message(FATAL_ERROR "${ARGN}\nends with ${result}, without \"${words}\":\n${output}")
    endif()
endfunction()

if(QT_VERSION_MAJOR EQUAL 5)
    set(package KTProductBase)
    set(catalogue KTCatalogue)
    set(other_qt 6)
    set(other_package KTProductBase6)
else()
    set(package KTProductBase6)
    set(catalogue KTCatalogue6)
    set(other_qt 5)
    set(other_package KTProductBase)
endif()
set(moved "${SCRATCH_DIR}/moved")
set(configure ${CMAKE_COMMAND} -G Ninja "-DCMAKE_PREFIX_PATH=${moved}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}")
set(sample "${SOURCE_DIR}/../examples/catalogue.xml")

file(REMOVE_RECURSE "${SCRATCH_DIR}")
run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${SCRATCH_DIR}/first")
file(RENAME "${SCRATCH_DIR}/first" "${moved}")
run(${configure} -S "${SOURCE_DIR}/consumer" -B "${SCRATCH_DIR}/build")
run(${CMAKE_COMMAND} --build "${SCRATCH_DIR}/build")
run("${SCRATCH_DIR}/build/consumer")
# The examples are built as a newcomer would build them, and the first one says what its page says.
run(${configure} -S "${SOURCE_DIR}/../examples/order" -B "${SCRATCH_DIR}/order")
run(${CMAKE_COMMAND} --build "${SCRATCH_DIR}/order")
execute_process(
    COMMAND "${SCRATCH_DIR}/order/order" "${sample}" 7301 alcolor=gold alcolor=red pages=31 pages=30
    OUTPUT_VARIABLE output)
file(READ "${SOURCE_DIR}/data/order-example.txt" expected)
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "the example says:\n${output}\nand not:\n${expected}")
endif()
run(${configure} -S "${SOURCE_DIR}/../examples/configurator" -B "${SCRATCH_DIR}/configurator")
run(${CMAKE_COMMAND} --build "${SCRATCH_DIR}/configurator")
run("${moved}/bin/ktcatalogue" --version)
foreach(schema IN ITEMS ktcatalogue.rng ktcatalogue.xsd)
    run(${CMAKE_COMMAND} -E compare_files "${moved}/share/KTProductBase/schema/${schema}"
        "${SOURCE_DIR}/../schema/${schema}")
endforeach()
# A drawing needs neither a display nor an environment.
run(${CMAKE_COMMAND} -E env --unset=QT_QPA_PLATFORM "${moved}/bin/ktcatalogue" preview "${sample}"
    --article 7301 -o "${SCRATCH_DIR}/cover.svg")

# Without CMake: the flags of pkg-config are enough, and lead to where the files stand now.
file(GLOB_RECURSE pc "${moved}/*/${package}.pc")
get_filename_component(pc_dir "${pc}" DIRECTORY)
set(ENV{PKG_CONFIG_PATH} "${pc_dir}")
run(pkg-config --cflags --libs ${catalogue})
separate_arguments(flags UNIX_COMMAND "${output}")
get_filename_component(lib_dir "${pc_dir}" DIRECTORY)
run(${CXX_COMPILER} -fPIC "${SOURCE_DIR}/consumer/main.cpp" "${SOURCE_DIR}/consumer/umbrella.cpp" -o "${SCRATCH_DIR}/plain" ${flags}
    "-Wl,-rpath,${lib_dir}")
run("${SCRATCH_DIR}/plain")

# The other Qt, found by CMake or not.
refused("this project uses Qt ${other_qt}, for which the package is ${other_package}"
    ${configure} -S "${SOURCE_DIR}/wrongqt" -B "${SCRATCH_DIR}/wrongqt"
    -DOTHER_QT=${other_qt} -DPACKAGE=${package})
execute_process(COMMAND pkg-config --cflags Qt${other_qt}Core OUTPUT_VARIABLE other_flags
    OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE result ERROR_QUIET)
if(result EQUAL 0)
    separate_arguments(other_flags UNIX_COMMAND "${other_flags}")
    file(WRITE "${SCRATCH_DIR}/other.cpp" "#include <KTDistance.h>\n")
    refused("are for Qt ${QT_VERSION_MAJOR}" ${CXX_COMPILER} -std=c++17 -fPIC -fsyntax-only ${other_flags}
        "-I${moved}/include/${package}" "${SCRATCH_DIR}/other.cpp")
endif()

# As a part of another project it adds neither tests nor a tool nor files to install, and cannot be static.
set(as_part ${configure} -S "${SOURCE_DIR}/subproject" -B "${SCRATCH_DIR}/subproject"
    "-DKT_SOURCE_DIR=${SOURCE_DIR}/.." "-DQT_VERSION_MAJOR=${QT_VERSION_MAJOR}" -DCMAKE_UNITY_BUILD=ON)
refused("KTProductBase has to be shared" ${as_part} -DBUILD_SHARED_LIBS=OFF)
run(${as_part} -DBUILD_SHARED_LIBS=ON)
run(${CMAKE_COMMAND} --build "${SCRATCH_DIR}/subproject" --target program)
run(${CMAKE_CTEST_COMMAND} --test-dir "${SCRATCH_DIR}/subproject")
string(FIND "${output}" "tests passed, 0 tests failed out of 1\n" place)
if(place LESS 0)
    message(FATAL_ERROR "a project that contains this one runs other tests than its own:\n${output}")
endif()
run(${CMAKE_COMMAND} --install "${SCRATCH_DIR}/subproject" --prefix "${SCRATCH_DIR}/nothing")
file(GLOB installed "${SCRATCH_DIR}/nothing/*")
if(installed)
    message(FATAL_ERROR "a project that contains this one installs ${installed}")
endif()
