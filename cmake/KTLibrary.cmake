# How a library of ours is declared.

# Headers install into one flat folder, whatever library they come from.
set(KT_INCLUDE_DIR "${CMAKE_INSTALL_INCLUDEDIR}/KTProductBase")

# kt_public_headers(<target> <scope> <header>...)
# Declares the headers as the target's interface (installed, and compiled alone by
# all_verify_interface_header_sets) and gives each a forwarding header without ending.
function(kt_public_headers target scope)
    set(generated_dir "${CMAKE_CURRENT_BINARY_DIR}/include")
    target_sources(${target} ${scope}
        FILE_SET HEADERS BASE_DIRS "${CMAKE_CURRENT_SOURCE_DIR}" FILES ${ARGN})
    foreach(header IN LISTS ARGN)
        get_filename_component(class "${header}" NAME_WE)
        file(CONFIGURE OUTPUT "${generated_dir}/${class}" CONTENT "#include \"${header}\"\n")
        install(FILES "${generated_dir}/${class}" DESTINATION "${KT_INCLUDE_DIR}")
    endforeach()
    target_include_directories(${target} ${scope}
        "$<BUILD_INTERFACE:${generated_dir}>"
        "$<INSTALL_INTERFACE:${KT_INCLUDE_DIR}>")
    install(TARGETS ${target} EXPORT KTProductBaseTargets
        FILE_SET HEADERS DESTINATION "${KT_INCLUDE_DIR}")
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
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_link_libraries(${target} PUBLIC ${arg_LINKS})
    # Keywords are static data of the library, and strings made of them may outlive a plug-in that is unloaded.
    target_link_options(${target} PRIVATE "LINKER:-z,nodelete")

    include(GenerateExportHeader)
    set(export_header "${CMAKE_CURRENT_BINARY_DIR}/include/${lower}_export.h")
    generate_export_header(${target} EXPORT_FILE_NAME "${export_header}")
    install(FILES "${export_header}" DESTINATION "${KT_INCLUDE_DIR}")
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
    install(FILES "${umbrella}" DESTINATION "${KT_INCLUDE_DIR}")
endfunction()
