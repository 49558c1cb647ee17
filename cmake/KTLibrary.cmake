# How a library of ours is declared.

# Headers install into one flat folder, whatever library they come from.
set(KT_INCLUDE_DIR "${CMAKE_INSTALL_INCLUDEDIR}/${KT_PACKAGE}")

# kt_install(<rule>...): install(), unless another project that contains this one has its own rules.
macro(kt_install)
    if(KT_INSTALL)
        install(${ARGN})
    endif()
endmacro()

# kt_public_headers(<target> <scope> <header>...)
# Declares the headers as the target's interface (installed, and compiled alone by
# all_verify_interface_header_sets) and gives each a forwarding header without ending.
function(kt_public_headers target scope)
    set(generated_dir "${CMAKE_CURRENT_BINARY_DIR}/include")
    target_sources(${target} ${scope} FILE_SET HEADERS
        BASE_DIRS "${CMAKE_CURRENT_SOURCE_DIR}" "${generated_dir}" FILES ${ARGN})
    foreach(header IN LISTS ARGN)
        get_filename_component(file "${header}" NAME)
        get_filename_component(class "${header}" NAME_WE)
        file(CONFIGURE OUTPUT "${generated_dir}/${class}" CONTENT "#include \"${file}\"\n")
        kt_install(FILES "${generated_dir}/${class}" DESTINATION "${KT_INCLUDE_DIR}" COMPONENT Development)
    endforeach()
    target_include_directories(${target} ${scope}
        "$<BUILD_INTERFACE:${generated_dir}>"
        "$<INSTALL_INTERFACE:${KT_INCLUDE_DIR}>")
    kt_install(TARGETS ${target} EXPORT KTProductBaseTargets
        LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
        FILE_SET HEADERS DESTINATION "${KT_INCLUDE_DIR}" COMPONENT Development)
endfunction()

# kt_library(<name> HEADERS <header>... SOURCES <source>... LINKS <target>...)
# A shared library KT<name>, known as KT::<name> in the build tree and after installation.
function(kt_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;SOURCES;LINKS")
    set(target KT${name})
    string(TOLOWER ${target} lower)
    add_library(${target} SHARED ${arg_SOURCES})
    add_library(KT::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${name}
        OUTPUT_NAME "${target}${KT_SUFFIX}"
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_link_libraries(${target} PUBLIC ${arg_LINKS})
    # Keywords are static data of the library, and strings made of them may outlive a plug-in that is unloaded.
    target_link_options(${target} PRIVATE "LINKER:-z,nodelete")

    include(GenerateExportHeader)
    set(export_header "${CMAKE_CURRENT_BINARY_DIR}/include/${lower}_export.h")
    # Every header of a library includes it, so it is where a program that is compiled with the other Qt stops.
    string(CONFIGURE [[
#include <QtGlobal>
#if QT_VERSION_MAJOR != @QT_VERSION_MAJOR@
#error "These headers of @KT_PACKAGE@ are for Qt @QT_VERSION_MAJOR@; for another Qt use the package of that Qt."
#endif
]] qt_check @ONLY)
    generate_export_header(${target} EXPORT_FILE_NAME "${export_header}"
        CUSTOM_CONTENT_FROM_VARIABLE qt_check)
    kt_install(FILES "${export_header}" DESTINATION "${KT_INCLUDE_DIR}" COMPONENT Development)
    kt_public_headers(${target} PUBLIC ${arg_HEADERS})
endfunction()

# kt_umbrella_header(<target> <other target>...)
# A header named after the target, which includes the public headers of all the targets.
function(kt_umbrella_header target)
    set(umbrella "${CMAKE_CURRENT_BINARY_DIR}/include/${target}")
    set(content "#pragma once\n\n")
    foreach(library IN LISTS ARGN ITEMS ${target})
        get_target_property(headers ${library} HEADER_SET)
        foreach(header IN LISTS headers)
            get_filename_component(name "${header}" NAME)
            string(APPEND content "#include \"${name}\" // IWYU pragma: export\n")
        endforeach()
    endforeach()
    file(CONFIGURE OUTPUT "${umbrella}" CONTENT "${content}")
    kt_install(FILES "${umbrella}" DESTINATION "${KT_INCLUDE_DIR}" COMPONENT Development)
endfunction()
