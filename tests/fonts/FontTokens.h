// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/fonts/OxaFont.h>

#include <QTest>

/// Adds a data row for each font token: its value, and the weight, pixel size and underline that it
/// stands for.
inline void addFontTokens()
{
    QTest::addColumn<int>("token");
    QTest::addColumn<int>("weight");
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<bool>("underline");

    QTest::newRow("Default") << 0 << 50 << 16 << false;
    QTest::newRow("Title") << 1 << 63 << 20 << false;
    QTest::newRow("Header") << 2 << 75 << 16 << false;
    QTest::newRow("SubheaderPrimary") << 3 << 63 << 16 << false;
    QTest::newRow("SubheaderSecondary") << 4 << 63 << 14 << false;
    QTest::newRow("BodyPrimary") << 5 << 50 << 16 << false;
    QTest::newRow("BodySecondary") << 6 << 50 << 14 << false;
    QTest::newRow("BodyTertiary") << 7 << 63 << 12 << false;
    QTest::newRow("BannerPrimary") << 8 << 63 << 26 << false;
    QTest::newRow("BannerSecondary") << 9 << 50 << 26 << false;
    QTest::newRow("BannerTertiary") << 10 << 75 << 26 << false;
    QTest::newRow("HighlightPrimary") << 11 << 75 << 16 << false;
    QTest::newRow("HighlightSecondary") << 12 << 75 << 14 << false;
    QTest::newRow("HighlightTertiary") << 13 << 75 << 12 << false;
    QTest::newRow("HyperlinkPrimary") << 14 << 50 << 16 << true;
    QTest::newRow("HyperlinkSecondary") << 15 << 50 << 14 << true;
    QTest::newRow("TagLabelPrimary") << 16 << 63 << 14 << false;
    QTest::newRow("TagLabelSecondary") << 17 << 63 << 12 << false;
    QTest::newRow("CodeBlocks") << 18 << 50 << 16 << false;
    QTest::newRow("RadioButtonLabelSecondary") << 19 << 50 << 12 << false;
    QTest::newRow("Display") << 20 << 63 << 40 << false;
}
