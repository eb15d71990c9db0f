# SPDX-License-Identifier: Apache-2.0

# Finds Qt SVG's private headers of exactly the Qt in use.
#
# They come from the Qt installation where that has them. Where it does not, as on Debian, they come
# from the folder UIELEMENTS_QTSVG_SOURCE. It defaults to the one in the user's cache that
# tools/fetch-qtsvg fills from the distribution's source package, as ./dev does by itself. A private
# interface may change with any version, so headers of another one stop the configuration.
#
# Defines the target Qt5::SvgPrivateHeaders.

set(userCache $ENV{XDG_CACHE_HOME})
if(NOT userCache)
    set(userCache $ENV{HOME}/.cache)
endif()
set(UIELEMENTS_QTSVG_SOURCE ${userCache}/uielements/qtsvg-${Qt5Core_VERSION}
    CACHE PATH "A source tree of Qt SVG, for its private headers"
)

# The header is looked for anew each time: a folder that was filled meanwhile must be found.
find_path(Qt5SvgPrivate_INSTALLED_DIR private/qsvgtinydocument_p.h
    PATHS ${Qt5Svg_PRIVATE_INCLUDE_DIRS}
    NO_CACHE NO_DEFAULT_PATH
)
if(Qt5SvgPrivate_INSTALLED_DIR)
    set(Qt5SvgPrivate_INCLUDE_DIR ${Qt5SvgPrivate_INSTALLED_DIR}/private)
    set(Qt5SvgPrivate_VERSION ${Qt5Svg_VERSION})
elseif(EXISTS ${UIELEMENTS_QTSVG_SOURCE}/src/svg/qsvgtinydocument_p.h)
    set(Qt5SvgPrivate_INCLUDE_DIR ${UIELEMENTS_QTSVG_SOURCE}/src/svg)
    file(STRINGS ${UIELEMENTS_QTSVG_SOURCE}/.qmake.conf Qt5SvgPrivate_VERSION REGEX "^MODULE_VERSION")
    string(REGEX REPLACE "^MODULE_VERSION *= *" "" Qt5SvgPrivate_VERSION "${Qt5SvgPrivate_VERSION}")
else()
    message(FATAL_ERROR
        "Qt SVG's private headers are missing. This Qt installation has none, and "
        "UIELEMENTS_QTSVG_SOURCE (\"${UIELEMENTS_QTSVG_SOURCE}\") holds no source tree of Qt SVG. "
        "tools/fetch-qtsvg fetches one on Debian; elsewhere, unpack the sources of Qt SVG ${Qt5Core_VERSION} "
        "and name their folder by -DUIELEMENTS_QTSVG_SOURCE=FOLDER."
    )
endif()

if(NOT Qt5SvgPrivate_VERSION STREQUAL Qt5Core_VERSION)
    message(FATAL_ERROR
        "Qt SVG's private headers in ${Qt5SvgPrivate_INCLUDE_DIR} are of version "
        "${Qt5SvgPrivate_VERSION}, but QT_VERSION_STR is ${Qt5Core_VERSION}. A private interface "
        "fits its own version only: run tools/fetch-qtsvg, or name a fitting source tree by "
        "-DUIELEMENTS_QTSVG_SOURCE=FOLDER."
    )
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qt5SvgPrivate
    REQUIRED_VARS Qt5SvgPrivate_INCLUDE_DIR
    VERSION_VAR Qt5SvgPrivate_VERSION
)

if(NOT TARGET Qt5::SvgPrivateHeaders)
    add_library(Qt5::SvgPrivateHeaders INTERFACE IMPORTED)
    target_include_directories(Qt5::SvgPrivateHeaders SYSTEM INTERFACE ${Qt5SvgPrivate_INCLUDE_DIR})
endif()
