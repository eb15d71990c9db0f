// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/models/LazyLoadedListModel.h>

#include <QSet>
#include <QTimer>

class Link;

/// The files of the server, of which pages of 100 are here around the row that the view tells with
/// setScrolledIndex(). Answers may come late and in any order. A page that could not be loaded is
/// asked for again after a second, while it is near the view.
class PagedFiles : public LazyLoadedListModel
{
    Q_OBJECT

public:
    enum Role {
        NameRole = Qt::UserRole + 1, ///< Invalid while the row is not here.
        KindRole,                    ///< "document", "picture", "table", "archive" or "movie".
        SizeRole,                    ///< In bytes.
        OwnerRole,                   ///< The id of a person.
        AtRole,                      ///< The QDateTime of the last change.
        FailedRole,                  ///< Whether the row could not be loaded. It is tried again.
    };

    explicit PagedFiles(Link &link, QObject *parent = nullptr);

    QHash<int, QByteArray> roleNames() const override;

    /// The file's name for Qt's item views, too.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// The connection is there: asks for the pages that are not here.
    void resume();

private:
    void askForMissing();
    void take(int page, const QJsonObject &answer);
    void setFailed(int page, bool isFailed);

    Link &m_link;
    QSet<int> m_asked;  ///< The pages that are on their way.
    QSet<int> m_failed; ///< Those that could not be loaded.
    QTimer m_asking;
};
