// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractListModel>
#include <QMetaMethod>

#include <vector>

/// The signals of the hub as a list, in groups that begin with a row for their heading.
class SignalModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        HeadingRole = Qt::UserRole, ///< True for the heading of a group.
        NameRole,                   ///< The signal's name. Qt::DisplayRole is the whole signature.
        ParametersRole,             ///< Its parameters with their types.
        ReceiversRole,              ///< The number of its receivers, without a watcher.
    };

    /// Lists the signals of \a hub, which must outlive the model and to which one watcher listens.
    explicit SignalModel(const QObject *hub, QObject *parent = nullptr);

    /// Shows only the signals whose signature contains \a text in any case.
    void setFilter(const QString &text);

    /// Counts the receivers again, and emits which counts have changed.
    void refreshReceivers();

    /// Returns how many signals are shown.
    int signalCount() const;

    /// Returns the signal at \a index; not valid for a heading.
    QMetaMethod signalAt(const QModelIndex &index) const;

    /// Returns the place of the signal with \a signature, as the meta-object has it, if it is
    /// shown.
    QModelIndex indexOf(const QByteArray &signature) const;

    /// Returns the place of the first signal that is shown, if there is one.
    QModelIndex firstSignal() const;

    /// Returns \a signal with the types and names of its parameters.
    static QString signatureOf(const QMetaMethod &signal);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    /// A signal, or without one the heading of a group.
    struct Row
    {
        QString text;
        QMetaMethod signal;
        int receivers = 0;
    };

    void rebuild();
    int receiversOf(const QMetaMethod &signal) const;

    const QObject *const m_hub;
    std::vector<Row> m_rows;
    QString m_filter;
};
