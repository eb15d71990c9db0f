// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTest>

#include <shell/GalleryApplication.h>

/// The main function of a test that runs under a GalleryApplication with the gallery's own colours.
#define GALLERY_TEST_MAIN(TestClass)                                                               \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        GalleryApplication application(argc, argv);                                                \
        QString problem;                                                                           \
        if (!application.loadDocuments(DocumentPaths(), problem))                                  \
            qFatal("%s", qUtf8Printable(problem));                                                 \
        TestClass test;                                                                            \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
