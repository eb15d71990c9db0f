# SPDX-License-Identifier: Apache-2.0

# What is installed, and how other projects and the package manager find it.

include(CMakePackageConfigHelpers)

set(packageDir ${CMAKE_INSTALL_LIBDIR}/cmake/UiElements)

install(TARGETS UiElements
    EXPORT UiElements
    LIBRARY
        DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT runtime
        NAMELINK_COMPONENT development
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
    FILE_SET generatedHeaders DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
)
install(EXPORT UiElements
    NAMESPACE UiElements::
    FILE UiElementsTargets.cmake
    DESTINATION ${packageDir}
    COMPONENT development
)

list(JOIN UIELEMENTS_QT_MODULES " " qtComponents)
configure_package_config_file(cmake/UiElementsConfig.cmake.in UiElementsConfig.cmake
    INSTALL_DESTINATION ${packageDir}
)
write_basic_package_version_file(UiElementsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
        ${PROJECT_BINARY_DIR}/UiElementsConfig.cmake
        ${PROJECT_BINARY_DIR}/UiElementsConfigVersion.cmake
    DESTINATION ${packageDir}
    COMPONENT development
)

list(TRANSFORM UIELEMENTS_QT_MODULES REPLACE "(.+)" "Qt5\\1 >= ${UIELEMENTS_QT_VERSION}"
    OUTPUT_VARIABLE qtPackages
)
list(JOIN qtPackages ", " qtPackages)
# Said from where the file lies, so that an installed tree may move.
file(RELATIVE_PATH prefixFromPkgConfig /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/UiElements.pc.in UiElements.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/UiElements.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development
)

# Two Debian packages: what programs need to run, and what is needed to build them.
set(runtimePackage libuielements${PROJECT_VERSION_MAJOR})
set(developmentPackage libuielements-dev)
foreach(component IN ITEMS runtime development)
    install(FILES LICENSE
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${${component}Package}
        RENAME copyright
        COMPONENT ${component}
    )
endforeach()

set(CPACK_PACKAGE_NAME libuielements)
set(CPACK_PACKAGE_VENDOR "The UiElements developers")
set(CPACK_PACKAGE_CONTACT "The UiElements developers <uielements@localhost>")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtimePackage})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${developmentPackage})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${runtimePackage} (= ${PROJECT_VERSION}), qtbase5-dev (>= ${UIELEMENTS_QT_VERSION}), libqt5svg5-dev (>= ${UIELEMENTS_QT_VERSION})"
)
include(CPack)
