// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/SignalLog.h"

#include <UiElements/models/BaseListModel.h>
#include <UiElements/models/LazyLoadedListModel.h>

#include <QAbstractItemModel>

/// Records what a model emits as one short text: "ins 3,5 | count 6 | chg 1,2".
///
/// Numbers are the first and the last row, and the roles of a change follow where it names any:
/// "chg 1,1 [257,258]". Removals are "rem 0,1" and a reset is "reset". Changes below a row name it:
/// "rem 0,1 below 3".
class ModelLog : public SignalLog
{
public:
    explicit ModelLog(const QAbstractItemModel &model)
    {
        const auto noteRange = [this](const char *what, int first, int last,
                                      const QModelIndex &parent) {
            note(QStringLiteral("%1 %2,%3").arg(QLatin1String(what)).arg(first).arg(last)
                 + (parent.isValid() ? QStringLiteral(" below %1").arg(parent.row()) : QString()));
        };
        connect(model, &QAbstractItemModel::rowsInserted,
                [noteRange](const QModelIndex &parent, int first, int last) {
                    noteRange("ins", first, last, parent);
                });
        connect(model, &QAbstractItemModel::rowsRemoved,
                [noteRange](const QModelIndex &parent, int first, int last) {
                    noteRange("rem", first, last, parent);
                });
        connect(model, &QAbstractItemModel::dataChanged,
                [this](const QModelIndex &first, const QModelIndex &last,
                       const QVector<int> &roles) {
                    note(QStringLiteral("chg %1,%2").arg(first.row()).arg(last.row())
                         + rolesText(roles));
                });
        connect(model, &QAbstractItemModel::modelReset, [this] { note(QStringLiteral("reset")); });
        connect(model, &QAbstractItemModel::rowsMoved, [this] { note(QStringLiteral("move")); });
        connect(model, &QAbstractItemModel::layoutChanged,
                [this] { note(QStringLiteral("layout")); });
    }

    /// Records "count 6" and "header" besides.
    explicit ModelLog(const BaseListModel &model)
        : ModelLog(static_cast<const QAbstractItemModel &>(model))
    {
        connect(model, &BaseListModel::countChanged,
                [this](int count) { note(QStringLiteral("count %1").arg(count)); });
        connect(model, &BaseListModel::headerChanged, [this] { note(QStringLiteral("header")); });
    }

    /// Records the requests besides: "load 5,6" for pages, "load from 7" for the whole window.
    explicit ModelLog(const LazyLoadedListModel &model)
        : ModelLog(static_cast<const QAbstractItemModel &>(model))
    {
        connect(model, &LazyLoadedListModel::loadPages, [this](const QVector<int> &pages) {
            note(QStringLiteral("load ") + numbersText(pages));
        });
        connect(model, &LazyLoadedListModel::loadStorageAtPage,
                [this](int page) { note(QStringLiteral("load from %1").arg(page)); });
    }

    /// Returns the values of \a role, one after the other: "abc". A row without one is a dot.
    static QString rows(const QAbstractItemModel &model, int role)
    {
        QString text;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QVariant value = model.data(model.index(row, 0), role);
            text += value.isValid() ? value.toString() : QStringLiteral(".");
        }
        return text;
    }

private:
    template <typename Model, typename Signal, typename Note>
    void connect(const Model &model, Signal signal, Note note)
    {
        QObject::connect(&model, signal, &m_listener, note);
    }

    static QString numbersText(const QVector<int> &numbers)
    {
        QStringList texts;
        for (int number : numbers)
            texts += QString::number(number);
        return texts.join(QLatin1Char(','));
    }

    static QString rolesText(const QVector<int> &roles)
    {
        return roles.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(numbersText(roles));
    }

    QObject m_listener;
};
