// SPDX-License-Identifier: Apache-2.0
#pragma once

// The code of docs/windows-and-lists.md, which quotes all that follows.

#include <UiElements/app/OxaApplication.h>
#include <UiElements/widgets/OxaMainWindow.h>

/// The body of Client::registerMainWindowShortcuts().
inline void registerOnce(OxaMainWindow *window)
{
    OxaAppSignals *hub = OxaAppSignals::get();
    if (!hub->shortcutExists(OxaAppSignals::Shortcut::OpenGlobalSearch)) // A second window.
        hub->registerShortcuts(window, OxaShortcut::General | OxaShortcut::Messaging);
}

#include <UiElements/widgets/OxaPushButton.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTabBar.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QVBoxLayout>

/// Pages with tabs.
class Pages : public OxaWidget
{
    Q_OBJECT

public:
    explicit Pages(QWidget *parent = nullptr) : OxaWidget(parent)
    {
        // A bar that is wider than its tabs spreads them.
        m_bar->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
        m_bar->setFixedHeight(36);
        m_bar->setAccessibleName(tr("Pages"));
        connect(m_bar, &OxaTabBar::currentChanged, m_stack, &QStackedWidget::setCurrentIndex);
        auto *column = new QVBoxLayout(this);
        column->addWidget(m_bar);
        column->addWidget(m_stack, 1);
    }

    void add(const QString &title, QWidget *page)
    {
        m_stack->addWidget(page);
        const int index = m_bar->addTab(title, title);
        m_bar->getTab(index)->setCSS(QStringLiteral("$textColors: client-tab-text;"
                                                    "$backgroundColors: client-tab;"));
        if (m_bar->currentIndex() < 0)
            m_bar->setCurrentIndex(0);
    }

    void remove(int index)
    {
        delete m_stack->widget(index); // Before the tab, whose removal emits currentChanged().
        m_bar->removeTab(index);
    }

private:
    OxaTabBar *const m_bar = new OxaTabBar(this);
    OxaStackedWidget *const m_stack = new OxaStackedWidget(this);
};

#include <UiElements/emoji/OxaEmojiLabel.h>
#include <UiElements/widgets/OxaListWidget.h>

/// Messages, the newest at the bottom.
class Chat : public OxaListWidget
{
    Q_OBJECT

public:
    explicit Chat(const QStringList &messages, QWidget *parent = nullptr)
        : OxaListWidget(parent, true) // At its bottom when it is shown.
    {
        setVerticalScrollMode(ScrollPerPixel);
        connect(this, &OxaListWidget::updateItemWidget, this, &Chat::makeRow);
        setItemWidgetsDynamicLoadingEnabled(true);
        beginInsert();
        for (const QString &message : messages)
            append(message);
        endInsert();
        setScrollToBottomAutomatically(true); // Not before all rows are there.
    }

    void append(const QString &message)
    {
        auto *item = new QListWidgetItem;
        item->setData(Qt::UserRole, message);
        item->setData(Qt::AccessibleTextRole, message);
        item->setSizeHint(QSize(1, 32));
        insertItem(count(), item); // Not addItem(), which does not scroll.
    }

protected Q_SLOTS:
    void onThemeChanged() override
    {
        const auto rows = viewport()->findChildren<OxaEmojiLabel *>();
        for (OxaEmojiLabel *row : rows)
            handOnThemeType(row);
    }

private:
    void makeRow(QListWidgetItem *item)
    {
        auto *row = new OxaEmojiLabel(item->data(Qt::UserRole).toString(), viewport());
        handOnThemeType(row);
        row->setCSS(QStringLiteral("$textColors: client-text;"));
        setItemWidget(item, row);
    }

    /// The viewport between list and row is a plain widget, which hands nothing on.
    void handOnThemeType(OxaEmojiLabel *row)
    {
        row->setThemeType(OxaThemeUtils::themeTypeToString(getThemeType()));
    }
};

#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaPushButton.h>

#include <functional>

/// Asks for a name and calls \a rename with it, unless the user cancels.
inline void askForName(QWidget *parent, const std::function<void(const QString &)> &rename)
{
    auto *dialog = new OxaDialog(parent);
    dialog->setWindowTitle(QObject::tr("Name of the space"));
    auto *name = new OxaLineEdit(dialog);
    name->setAccessibleName(dialog->windowTitle());
    auto *done = new OxaPushButton(QObject::tr("Rename"), dialog);
    auto *column = new QVBoxLayout(dialog);
    column->addWidget(name);
    column->addWidget(done);
    QObject::connect(done, &OxaPushButton::clicked, dialog, &QDialog::accept);
    QObject::connect(dialog, &QDialog::accepted, parent, [name, rename] { rename(name->text()); });
    dialog->open();
}
