// SPDX-License-Identifier: Apache-2.0
#include "GalleryApplication.h"
#include "GalleryOptions.h"

int main(int argc, char **argv)
{
    GalleryOptions::preparePlatform(argc, argv);
    GalleryApplication application(argc, argv);
    return application.run(GalleryOptions::parse(GalleryApplication::arguments()));
}
