# SPDX-License-Identifier: Apache-2.0

# What is installed, and how other projects find it. The folder debian makes packages of it.

include(CMakePackageConfigHelpers)

set(packageDir ${CMAKE_INSTALL_LIBDIR}/cmake/UiElements)

install(TARGETS UiElements
    EXPORT UiElements
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILE_SET generatedHeaders DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
)
install(EXPORT UiElements
    NAMESPACE UiElements::
    FILE UiElementsTargets.cmake
    DESTINATION ${packageDir}
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
)

list(TRANSFORM UIELEMENTS_QT_MODULES REPLACE "(.+)" "Qt5\\1 >= ${UIELEMENTS_QT_VERSION}"
    OUTPUT_VARIABLE qtPackages
)
list(JOIN qtPackages ", " qtPackages)
# CMake's users get these by the target: the standard, code that may lie anywhere, our definitions.
set(usageFlags -std=c++${CMAKE_CXX_STANDARD} -fPIC)
if(UIELEMENTS_OUTER_APPLICATION_TYPES)
    string(REGEX REPLACE "([<>\"])" "\\\\\\1" header "${UIELEMENTS_OUTER_APPLICATION_TYPES}")
    list(APPEND usageFlags -DUIELEMENTS_OUTER_APPLICATION_TYPES=${header})
endif()
list(JOIN usageFlags " " usageFlags)
# Said from where the file lies, so that an installed tree may move.
file(RELATIVE_PATH prefixFromPkgConfig /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/UiElements.pc.in UiElements.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/UiElements.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
)
