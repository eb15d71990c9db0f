# SPDX-License-Identifier: Apache-2.0

# What every target of the project is compiled with.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(UIELEMENTS_SANITIZE)
    # Compilers do not count what an int cannot hold among the undefined.
    # Any int may be in an enumeration here: meta-objects put there what QML or a client gives them.
    add_compile_options(
        -fsanitize=address,undefined,float-cast-overflow
        -fno-sanitize=enum
        -fno-sanitize-recover=undefined,float-cast-overflow
        -fno-omit-frame-pointer
    )
    add_link_options(-fsanitize=address,undefined)
endif()

# The settings go with the launcher, so that precompiled headers are cached however a build is started. What a file
# depends on is what the compiler says: to preprocess each file for that takes up to a tenth of its time.
if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(UIELEMENTS_CCACHE ccache)
    mark_as_advanced(UIELEMENTS_CCACHE)
    if(UIELEMENTS_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER
            ${CMAKE_COMMAND} -E env
            CCACHE_DEPEND=1
            CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
            ${UIELEMENTS_CCACHE}
        )
    endif()
endif()

if(CMAKE_CXX_CLANG_TIDY)
    # What moc writes is not ours to mend. clang-tidy must have some check: this one finds nothing there.
    file(WRITE ${PROJECT_BINARY_DIR}/.clang-tidy "Checks: '-*,llvm-twine-local'\n")

    # Other checks change the compiler's arguments, so that all sources are checked again.
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/.clang-tidy)
    file(MD5 ${PROJECT_SOURCE_DIR}/.clang-tidy tidyChecks)
    add_compile_definitions(UIELEMENTS_TIDY_CHECKS=${tidyChecks})
endif()

# clazy takes its checks as plugin arguments; .clazy lists them, one per line.
if(CMAKE_CXX_COMPILER MATCHES "clazy$")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/.clazy)
    file(STRINGS ${PROJECT_SOURCE_DIR}/.clazy clazyChecks REGEX "^[a-z]")
    list(JOIN clazyChecks "," clazyChecks)
    add_compile_options("SHELL:-Xclang -plugin-arg-clazy -Xclang ${clazyChecks}")
endif()

# uielements_set_warnings(<target>)
# The warnings and the definitions that hold for all our code.
function(uielements_set_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall
        -Wextra
        -Wpedantic
        -Wextra-semi
        -Wshadow
        -Wsuggest-override
        -Woverloaded-virtual
        -Wnon-virtual-dtor
        $<$<BOOL:${UIELEMENTS_WARNINGS_AS_ERRORS}>:-Werror>
    )
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING
        QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
        QT_NO_FOREACH
        QT_STRICT_ITERATORS
        QT_DISABLE_DEPRECATED_BEFORE=0x050F00
    )
endfunction()

# uielements_precompile_headers(<target> [<header>...])
# Precompiles what most of our sources include, and the given headers, in a form that ccache can
# store. A short list, because a compiler run reads all of it: whole Qt modules cost twice the time.
function(uielements_precompile_headers target)
    target_precompile_headers(${target} PRIVATE
        <QApplication>
        <QDebug>
        <QEvent>
        <QJsonArray>
        <QJsonDocument>
        <QJsonObject>
        <QLabel>
        <QPainter>
        <QPainterPath>
        <QPointer>
        <QRegularExpression>
        <QStyleOption>
        <QVariant>
        <QWidget>
        <functional>
        <memory>
        <unordered_map>
        <vector>
        ${ARGN}
    )
    target_compile_options(${target} PRIVATE
        $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
        "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>"
    )
endfunction()
