// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/TestMain.h"

#include <looks/TextSettings.h>
#include <shell/GalleryApplication.h>

/// The gallery's application, with the gallery's own colours.
class GalleryTestApplication : public GalleryApplication
{
public:
    GalleryTestApplication(int &argc, char **argv) : GalleryApplication(argc, argv)
    {
        QString problem;
        if (!loadDocuments(DocumentPaths(), problem))
            qFatal("%s", qUtf8Printable(problem));
        textSettings()->setDirection(Qt::LeftToRight);
    }
};

/// Runs a test class under a GalleryTestApplication.
#define GALLERY_TEST_MAIN(TestClass) UIELEMENTS_TEST_MAIN_WITH(GalleryTestApplication, TestClass)
