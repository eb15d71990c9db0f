// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFont>
#include <QTextDocument>
#include <QUrl>

/// The text of a message as it is shown: with emoji from artwork and with links. Strangers wrote
/// it: nothing in it is markup, and its length is bounded.
namespace MessageText {

/// The font of messages, at the size that the user has chosen.
QFont font();

/// Fills \a document with \a text, broken at \a width, and returns the room that it takes. Links
/// have \a linkColor; the text has the colour with which the document is painted.
QSize layOut(QTextDocument *document, const QString &text, int width, const QColor &linkColor,
             qreal pixelRatio = 1);

/// The web addresses in \a text that may be opened: http and https only.
QList<QUrl> links(const QString &text);

/// \a url as it is for machines: nothing in it looks like something else.
QString safeText(const QUrl &url);

} // namespace MessageText
