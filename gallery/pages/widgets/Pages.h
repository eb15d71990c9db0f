// SPDX-License-Identifier: Apache-2.0
#pragma once

class Page;
class QWidget;

/// The pages that need no class of their own: most are widgets with their property controls.
namespace Pages {

Page *makeTypography(QWidget *parent);
Page *makeLabels(QWidget *parent);
Page *makeButtons(QWidget *parent);
Page *makeForms(QWidget *parent);
Page *makeSvgWidgets(QWidget *parent);
Page *makeTabs(QWidget *parent);
Page *makeNotices(QWidget *parent);
Page *makeEmojiText(QWidget *parent);
Page *makeLists(QWidget *parent);
Page *makeLongList(QWidget *parent);
Page *makeMovies(QWidget *parent);
Page *makePaintedItems(QWidget *parent);
Page *makeHoverCards(QWidget *parent);
Page *makeQmlViews(QWidget *parent);
Page *makeWindows(QWidget *parent);

} // namespace Pages
