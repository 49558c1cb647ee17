# The tools of Qt Linguist. Those of both Qts read and write the same files.
get_target_property(qmake ${KT_QT}::qmake IMPORTED_LOCATION)
get_filename_component(qt_tools "${qmake}" DIRECTORY)
set(linguist_folders HINTS "${qt_tools}" PATHS /usr/lib/qt5/bin /usr/lib/qt6/bin)
find_program(KT_LRELEASE NAMES lrelease lrelease-qt5 lrelease6 REQUIRED ${linguist_folders})
find_program(KT_LUPDATE NAMES lupdate lupdate-qt5 lupdate6 ${linguist_folders})

# kt_translations(<name>...)
# Compiles translations/<name>.ts into the resources, in the build folder and installed.
function(kt_translations)
    set(folder "${CMAKE_INSTALL_DATADIR}/${KT_PACKAGE}/translations")
    foreach(name IN LISTS ARGN)
        set(source "${PROJECT_SOURCE_DIR}/translations/${name}.ts")
        set(compiled "${PROJECT_BINARY_DIR}/${folder}/${name}.qm")
        add_custom_command(OUTPUT "${compiled}"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${PROJECT_BINARY_DIR}/${folder}"
            COMMAND "${KT_LRELEASE}" -silent "${source}" -qm "${compiled}"
            DEPENDS "${source}" VERBATIM)
        add_custom_target(KTTranslations_${name} ALL DEPENDS "${compiled}")
        add_dependencies(KTCore KTTranslations_${name})
        kt_install(FILES "${compiled}" DESTINATION "${folder}" COMPONENT Runtime)
    endforeach()
endfunction()
