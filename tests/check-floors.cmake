# SPDX-License-Identifier: Apache-2.0

# cmake -DSOURCE_DIR=<folder UiElements> -P check-floors.cmake
#
# Fails where a header includes one of a floor above its own, so that no circle can arise, and where a
# source does that is not among the few that must.

cmake_minimum_required(VERSION 3.25)

# From the ground up. A floor is a folder, except for those that the next two lists name.
set(floors object drag layouts models theme fonts keyboard drawing app widgets svg emoji movies qml accessibility)

# The base class that all folders share, and what svg has besides its widgets: widgets paint with it.
set(objectFiles app/OxaObject)
set(svgFiles svg/OxaPillTabButton svg/OxaSvgAnchorButton svg/OxaSvgLabel svg/OxaSvgPushButton)

# What sources include from above: the application object, a widget's own answer to arrow keys, the widgets that are
# painted for, the icons of a text input and of a banner, the source of movies that an application starts with, its QML
# engine, and what it has Qt tell assistive technology, as a widget with QML does.
set(upwards
    theme-app fonts-app keyboard-widgets drawing-svg drawing-widgets widgets-svg app-movies app-qml app-accessibility
    qml-accessibility
)

# Sets <result> to the floor of <file>, a path below SOURCE_DIR.
function(floor_of file result)
    string(REGEX REPLACE "(_[a-zA-Z]+)?\\.(h|cpp)$" "" name ${file})
    if(name IN_LIST objectFiles)
        set(floor object)
    else()
        get_filename_component(floor ${file} DIRECTORY)
        if(floor STREQUAL "svg" AND NOT name IN_LIST svgFiles)
            set(floor drawing)
        endif()
    endif()
    set(${result} ${floor} PARENT_SCOPE)
endfunction()

# Sets <result> to the files of ours that <file> includes, as paths below SOURCE_DIR.
function(includes_of file result)
    get_filename_component(folder ${file} DIRECTORY)
    file(STRINGS ${SOURCE_DIR}/${file} lines REGEX "^#include (<UiElements/.+/|\")")
    list(TRANSFORM lines REPLACE "^#include <UiElements/(.+)>.*" "\\1")
    list(TRANSFORM lines REPLACE "^#include \"(.+)\".*" "${folder}/\\1")
    set(${result} ${lines} PARENT_SCOPE)
endfunction()

function(check file included)
    floor_of(${file} from)
    floor_of(${included} to)
    list(FIND floors ${from} fromIndex)
    list(FIND floors ${to} toIndex)
    if(fromIndex EQUAL -1)
        message(SEND_ERROR "${file} is on no floor")
    elseif(toIndex GREATER fromIndex AND NOT (file MATCHES "\\.cpp$" AND "${from}-${to}" IN_LIST upwards))
        message(SEND_ERROR "${file} (${from}) includes ${included} (${to}), a floor above its own")
    endif()
endfunction()

file(GLOB_RECURSE files RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/*.h ${SOURCE_DIR}/*.cpp)
if(NOT files)
    message(SEND_ERROR "There is no source in ${SOURCE_DIR}")
endif()
foreach(file IN LISTS files)
    includes_of(${file} included)
    foreach(each IN LISTS included)
        check(${file} ${each})
    endforeach()
endforeach()
