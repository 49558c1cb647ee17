# What finds the installed libraries (CMake's package and pkg-config's files), and the Debian packages.

if(QT_VERSION_MAJOR EQUAL 5)
    set(KT_OTHER_QT 6)
    set(KT_OTHER_PACKAGE KTProductBase6)
else()
    set(KT_OTHER_QT 5)
    set(KT_OTHER_PACKAGE KTProductBase)
endif()

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${KT_PACKAGE}")
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/KTProductBaseConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/${KT_PACKAGE}Config.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/${KT_PACKAGE}ConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/${KT_PACKAGE}Config.cmake"
    "${PROJECT_BINARY_DIR}/${KT_PACKAGE}ConfigVersion.cmake"
    DESTINATION "${package_dir}" COMPONENT Development)
install(EXPORT KTProductBaseTargets NAMESPACE KT:: FILE "${KT_PACKAGE}Targets.cmake"
    DESTINATION "${package_dir}" COMPONENT Development)

# kt_pkgconfig(<name> <description> <required modules> <libraries>)
function(kt_pkgconfig name description requires libraries)
    file(RELATIVE_PATH prefix_from_here
        "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
    string(REGEX REPLACE "/$" "" prefix_from_here "${prefix_from_here}")
    file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY CONTENT [[prefix=${pcfiledir}/@prefix_from_here@
libdir=${prefix}/@CMAKE_INSTALL_LIBDIR@
includedir=${prefix}/@KT_INCLUDE_DIR@

Name: @name@
Description: @description@
Version: @PROJECT_VERSION@
Requires: @requires@
Libs: -L${libdir} @libraries@
Cflags: -I${includedir} -std=c++17
]])
    install(FILES "${PROJECT_BINARY_DIR}/${name}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
        COMPONENT Development)
endfunction()
kt_pkgconfig("KTProductBase${KT_SUFFIX}" "${PROJECT_DESCRIPTION}" "${KT_QT}Core ${KT_QT}Gui ${KT_QT}Xml"
    "-lKTProductBase${KT_SUFFIX} -lKTXML${KT_SUFFIX} -lKTCore${KT_SUFFIX}")
kt_pkgconfig("KTCatalogue${KT_SUFFIX}" "Catalogues of printed photo products" "KTProductBase${KT_SUFFIX}"
    "-lKTCatalogue${KT_SUFFIX}")

# Debian: the libraries, what is needed to build with them, and the tool. The tool is the same with either Qt, and
# only one package can have it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "KTProductBase")
set(CPACK_PACKAGE_CONTACT "KTProductBase developers <maintainers@ktproductbase.invalid>"
    CACHE STRING "Who stands as maintainer in the packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL Runtime Development)
if(KT_BUILD_TOOL)
    list(APPEND CPACK_COMPONENTS_ALL Tools)
endif()
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
# Each package has its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

# Debian's names: a library whose name ends in a digit has a hyphen before its version.
if(KT_SUFFIX)
    set(library "libktproductbase${KT_SUFFIX}-${PROJECT_VERSION_MAJOR}")
else()
    set(library "libktproductbase${PROJECT_VERSION_MAJOR}")
endif()
set(development "libktproductbase${KT_SUFFIX}-dev")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${library}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/packaging/triggers")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "product model of printed photo products (Qt ${QT_VERSION_MAJOR})
Value classes for article numbers, options and their order texts,
classifications, page counts and layout of printed photo products, and the
reading and checking of catalogues.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME "${development}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
if(KT_SUFFIX)
    set(qt_development "qt6-base-dev (>= ${KT_QT_VERSION})")
else()
    set(qt_development "qtbase5-dev (>= ${KT_QT_VERSION})")
endif()
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library} (= ${PROJECT_VERSION}), ${qt_development}")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "development files of the product model (Qt ${QT_VERSION_MAJOR})
Headers, the packages of CMake and pkg-config, and the links to the libraries
that programs for printed photo products are built with.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME ktcatalogue)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION text)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${library} (>= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "inspector of catalogues of printed photo products
Shows what the product model makes of a catalogue, writes order texts, draws
covers to scale, and finds what is passed over in silence.")

# Compresses manual pages and puts what Debian wants to have beside each package.
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/finish.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/repack.cmake")
set(CPACK_KT_PACKAGING_DIR "${PROJECT_SOURCE_DIR}/packaging")
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    list(APPEND CPACK_KT_PACKAGES "${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
endforeach()
include(CPack)
