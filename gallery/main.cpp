// SPDX-License-Identifier: Apache-2.0
#include "shell/GalleryApplication.h"
#include "shell/GalleryOptions.h"

int main(int argc, char **argv)
{
    GalleryOptions::preparePlatform(argc, argv);
    GalleryApplication application(argc, argv);
    return application.run(GalleryOptions::parse(GalleryApplication::arguments()));
}
