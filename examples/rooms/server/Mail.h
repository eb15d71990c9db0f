// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

/// One mail, as far as a conversation shows it. Reads anything, within bounds: a mail is a
/// stranger's.
struct Mail
{
    QString author;
    QString subject; ///< Without "Re:" and the like.
    qint64 at = 0;   ///< Milliseconds since 1970; 0 if the mail has no date.
    QString text;    ///< The first plain text.

    static Mail fromBytes(const QByteArray &bytes);
};
