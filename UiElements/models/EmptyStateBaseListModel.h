// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/models/BaseListModel.h>

#include <QSize>

/// A BaseListModel with the texts and the image that a view shows while the list is empty. It only
/// stores them; the view decides from count when to show them.
///
/// They are Qt properties without C++ accessors. Setting the present value emits nothing; a new
/// value of any of them emits emptyStateDataChanged().
class UIELEMENTS_EXPORT EmptyStateBaseListModel : public BaseListModel
{
    Q_OBJECT
    Q_PROPERTY(QString emptyStateHeader MEMBER m_emptyStateHeader NOTIFY emptyStateDataChanged)
    Q_PROPERTY(QString emptyStateSubtitle MEMBER m_emptyStateSubtitle NOTIFY emptyStateDataChanged)
    Q_PROPERTY(QString emptyStateImage MEMBER m_emptyStateImage NOTIFY emptyStateDataChanged)
    Q_PROPERTY(QSize emptyStateImageSize MEMBER m_emptyStateImageSize NOTIFY emptyStateDataChanged)

public:
    /// Makes an empty model with empty texts and an invalid image size.
    explicit EmptyStateBaseListModel(QObject *parent = nullptr);
    ~EmptyStateBaseListModel() override;

Q_SIGNALS:
    /// One of the four properties has a new value.
    void emptyStateDataChanged();

private:
    QString m_emptyStateHeader;
    QString m_emptyStateSubtitle;
    QString m_emptyStateImage;
    QSize m_emptyStateImageSize;
};
