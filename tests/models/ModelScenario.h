// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LazyLetterModel.h"
#include "LetterListModel.h"

#include <UiElements/models/EmptyStateBaseListModel.h>
#include <UiElements/models/OverflowListProxyModel.h>
#include <UiElements/models/SmallListModel.h>

#include <functional>
#include <memory>

/// Models of each class in some state, and what is done to them.
namespace ModelScenarios {

constexpr int letterRole = Qt::UserRole + 1;

using Rows = std::vector<std::unordered_map<int, QVariant>>;
using ModelPointer = std::unique_ptr<QAbstractItemModel>;

/// A model in some state, and what is done to it.
struct Scenario
{
    std::function<ModelPointer()> make;
    std::function<void(QAbstractItemModel &)> run;
};

/// \a run on a list of letters.
inline Scenario letters(const char *before, std::function<void(LetterListModel &)> run)
{
    return { [before] { return std::make_unique<LetterListModel>(QString::fromLatin1(before)); },
             [run](QAbstractItemModel &model) { run(static_cast<LetterListModel &>(model)); } };
}

/// \a run on a paged list: pages of two rows, three of them in the window.
inline Scenario pages(int size, std::function<void(LazyLetterModel &)> run)
{
    return { [size] { return std::make_unique<FlatLazyLetterModel>(2, 3, size); },
             [run](QAbstractItemModel &model) { run(static_cast<LazyLetterModel &>(model)); } };
}

/// \a run on a small list of two equal rows.
inline Scenario small(std::function<void(SmallListModel &)> run)
{
    const auto make = [] {
        const QHash<int, QByteArray> names { { letterRole, "letter" } };
        auto model = std::make_unique<SmallListModel>(names, nullptr, QVariant());
        model->replace(Rows(2, { { letterRole, QStringLiteral("a") } }));
        return model;
    };
    return { make,
             [run](QAbstractItemModel &model) { run(static_cast<SmallListModel &>(model)); } };
}

/// \a run on the tail of a list of letters, from row 2 on, and on the list.
inline Scenario tail(std::function<void(OverflowListProxyModel &, LetterListModel &)> run)
{
    const auto make = [] {
        auto proxy = std::make_unique<OverflowListProxyModel>(nullptr, 1);
        auto *source = new LetterListModel(QStringLiteral("abcdef"));
        source->setParent(proxy.get());
        proxy->setSourceModel(source);
        return proxy;
    };
    return { make, [run](QAbstractItemModel &model) {
                auto &proxy = static_cast<OverflowListProxyModel &>(model);
                run(proxy, static_cast<LetterListModel &>(*proxy.sourceModel()));
            } };
}

class EmptyStateLetters : public EmptyStateBaseListModel
{
public:
    QHash<int, QByteArray> roleNames() const override { return { { letterRole, "letter" } }; }
};

/// \a run on a list that has an empty state, and is empty.
inline Scenario emptyState(std::function<void(EmptyStateLetters &)> run)
{
    return { [] { return std::make_unique<EmptyStateLetters>(); },
             [run](QAbstractItemModel &model) { run(static_cast<EmptyStateLetters &>(model)); } };
}

inline std::vector<ModelRow> rows(const char *letters)
{
    return LetterListModel::rowsOf(QString::fromLatin1(letters));
}

inline QStandardItem *item(const char *letter)
{
    return new CountedItem(QString::fromLatin1(letter));
}

} // namespace ModelScenarios

Q_DECLARE_METATYPE(ModelScenarios::Scenario)
