# Compares what the libraries export, without the weak symbols of templates and inline functions, with the list in
# abi/. Called with LIBRARIES, LIST and NM; with KT_RENEW in the environment it writes the list.
cmake_minimum_required(VERSION 3.25)

foreach(library IN LISTS LIBRARIES)
    execute_process(COMMAND "${NM}" --dynamic --defined-only --demangle "${library}"
        OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    get_filename_component(name "${library}" NAME_WE)
    string(REGEX REPLACE "^lib" "" name "${name}")
    # Address, kind, name. Semicolons would separate list entries.
    string(REPLACE ";" "," symbols "${symbols}")
    string(REPLACE "\n" ";" symbols "${symbols}")
    list(FILTER symbols INCLUDE REGEX "^[0-9a-f]+ [^WVuwv] ")
    # Nor what compilers do not agree on (whether tables are weak), nor what the linker adds.
    list(FILTER symbols EXCLUDE REGEX " (vtable|typeinfo|typeinfo name) for | (__bss_start|_edata|_end)$")
    list(TRANSFORM symbols REPLACE "^[0-9a-f]+ . " "${name}: ")
    list(APPEND exported ${symbols})
endforeach()
list(REMOVE_DUPLICATES exported)
list(SORT exported)
list(JOIN exported "\n" exported)
string(APPEND exported "\n")

if(DEFINED ENV{KT_RENEW})
    file(WRITE "${LIST}" "${exported}")
endif()
file(READ "${LIST}" expected)
if(NOT exported STREQUAL expected)
    file(WRITE "${SCRATCH}" "${exported}")
    execute_process(COMMAND diff -u "${LIST}" "${SCRATCH}" OUTPUT_VARIABLE difference)
    message(FATAL_ERROR "the libraries export something else:\n${difference}\n"
        "If that is meant, `KT_RENEW=1 ctest --preset release -R exports` writes the list.")
endif()
