// SPDX-License-Identifier: Apache-2.0
#include "ConversationList.h"

#include "ConversationDelegate.h"
#include "ConversationProxy.h"
#include "FileDrop.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "people/PersonCards.h"
#include "shell/Looks.h"
#include "shell/RoomsApplication.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaListView.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QMouseEvent>
#include <QVBoxLayout>

#include <utility>

using Role = ConversationModel::Role;

namespace {

constexpr int chooseMs = 120; ///< Arrow keys that are held down open only the last row.

} // namespace

ConversationList::ConversationList(Backend *backend, PersonCards *cards, QWidget *parent)
    : Backdrop("sidebar", parent),
      m_backend(backend),
      m_cards(cards),
      m_proxy(new ConversationProxy(this)),
      m_delegate(new ConversationDelegate(backend, this))
{
    setObjectName(QStringLiteral("conversationList"));
    setMinimumWidth(200);
    QWidget *filters = makeFilters(); // Before the list, for Tab.
    makeList();
    QVBoxLayout *column = Looks::makeColumn(this);
    column->addWidget(filters);
    column->addWidget(m_list, 1);
    m_empty = Looks::makeLabel(QString(), OxaFont::Token::BodySecondary,
                               QStringLiteral("text-secondary"), m_list);
    Looks::centre(m_empty);
    m_empty->setWordWrap(true);
    m_empty->setFixedHeight(64);
    auto *above = new QVBoxLayout(m_list);
    above->setContentsMargins(16, 32, 16, 0);
    above->addWidget(m_empty, 0, Qt::AlignTop);

    m_proxy->setSourceModel(backend->conversations());
    connect(m_proxy, &QAbstractItemModel::rowsInserted, this, &ConversationList::showEmpty);
    connect(m_proxy, &QAbstractItemModel::rowsRemoved, this, &ConversationList::showEmpty);
    connect(m_proxy, &QAbstractItemModel::modelReset, this, &ConversationList::showEmpty);
    connect(backend, &Backend::ready, this, &ConversationList::showEmpty);
    connect(backend, &Backend::personChanged, m_list->viewport(),
            QOverload<>::of(&QWidget::update));
    connect(RoomsApplication::get(), &RoomsApplication::settingsChanged, this,
            &ConversationList::refresh);
    m_chooseSoon.setSingleShot(true);
    connect(&m_chooseSoon, &QTimer::timeout, this, &ConversationList::choose);
    showEmpty();
}

QWidget *ConversationList::makeFilters()
{
    auto *filters = new OxaWidget(this);
    m_search = Looks::makeField(tr("Search conversations"), filters);
    m_search->setSearchIcon(OxaSvgRenderer::resourcePath(QStringLiteral("search_12")));
    m_search->setFixedHeight(36);
    connect(m_search, &OxaTextInput::textChanged, this, [this](const QString &text) {
        m_proxy->setFilterFixedString(text.trimmed());
        showMatches();
    });
    connect(m_search, &OxaTextInput::keyPressed, this, [this](int key) {
        if (key == Qt::Key_Down)
            m_list->setFocus(Qt::OtherFocusReason);
    });
    auto *unread = Looks::makeIconButton(QStringLiteral("filter"), tr("Unread only"), filters, 36);
    Looks::makeCheckable(unread, Looks::Button::Quiet);
    connect(unread, &OxaSvgPushButton::toggled, this, [this](bool isOn) {
        m_proxy->setUnreadOnly(isOn);
        showMatches();
    });
    auto *row = new QHBoxLayout(filters);
    row->setContentsMargins(12, 12, 12, 8);
    row->setSpacing(4);
    row->addWidget(m_search, 1);
    row->addWidget(unread);
    return filters;
}

void ConversationList::makeList()
{
    m_list = new OxaListView(this);
    m_list->setAccessibleName(tr("Conversations"));
    m_list->setCSS(Looks::listRules());
    m_list->setModel(m_proxy);
    m_list->setItemDelegate(m_delegate);
    m_list->setUniformItemSizes(true);
    m_list->setMouseTracking(true);
    m_list->viewport()->setAttribute(Qt::WA_Hover);
    m_list->viewport()->installEventFilter(this);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (m_list->hasFocus()) // Filters move the current row, too.
            m_chooseSoon.start(chooseMs);
    });
    connect(m_list, &QListView::clicked, this, &ConversationList::choose);
    connect(m_list, &QListView::activated, this, &ConversationList::choose);
    const OxaAppSignals *hub = OxaAppSignals::get();
    connect(hub, &OxaAppSignals::moveUpSpaceList, this, [this] { step(-1); });
    connect(hub, &OxaAppSignals::moveDownSpaceList, this, [this] { step(1); });
    auto *drop = new FileDrop(m_list->viewport());
    connect(drop, &FileDrop::dropped, this, [this](const QStringList &names, const QPoint &at) {
        const QString id = m_list->indexAt(at).data(Role::IdRole).toString();
        if (!id.isEmpty())
            Q_EMIT filesDropped(id, names);
    });
}

void ConversationList::setCurrent(const QString &id)
{
    if (id == m_current)
        return;
    m_current = id;
    m_proxy->keep(id);
    const QModelIndex index = m_proxy->indexOf(id);
    if (index != m_list->currentIndex())
        m_list->setCurrentIndex(index);
    m_chooseSoon.stop();
}

void ConversationList::focusSearch() { m_search->getLineEdit()->setFocus(Qt::ShortcutFocusReason); }

void ConversationList::step(int rows)
{
    const QModelIndex next = m_proxy->index(m_list->currentIndex().row() + rows, 0);
    if (!isVisible() || !next.isValid())
        return;
    m_list->setCurrentIndex(next);
    choose();
}

void ConversationList::choose()
{
    m_chooseSoon.stop();
    const QString id = m_list->currentIndex().data(Role::IdRole).toString();
    if (id.isEmpty() || id == m_current)
        return;
    setCurrent(id);
    Q_EMIT chosen(id);
}

void ConversationList::showMatches()
{
    m_list->setCurrentIndex(m_proxy->indexOf(m_current));
    m_list->scrollToTop();
    showEmpty();
}

void ConversationList::showEmpty()
{
    const bool isWaiting = !m_backend->isReady();
    m_empty->setText(isWaiting ? tr("Loading conversations\u2026")
                               : tr("No conversation matches.\nSearch for another name."));
    m_empty->setVisible(m_proxy->rowCount() == 0);
}

void ConversationList::refresh()
{
    m_delegate->refresh();
    m_list->doItemsLayout();
}

bool ConversationList::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseMove)
        pointAt(static_cast<const QMouseEvent *>(event)->pos());
    else if (event->type() == QEvent::Leave)
        m_pointedAt = QRect();
    else if (event->type() == QEvent::MouseButtonPress)
        m_cards->closeCard(); // It would take the keys from the conversation that opens.
    return Backdrop::eventFilter(watched, event);
}

/// Shows the card of a person as soon as the pointer rests on the picture or the name.
void ConversationList::pointAt(const QPoint &position)
{
    const QModelIndex index = m_list->indexAt(position);
    const QString person = index.data(Role::PersonRole).toString();
    QStyleOptionViewItem row;
    row.rect = m_list->visualRect(index);
    row.direction = layoutDirection();
    const QRect place = person.isEmpty() ? QRect() : m_delegate->personAt(position, row);
    if (std::exchange(m_pointedAt, place) != place && place.isValid())
        m_cards->showCard(m_list->viewport(), place, person);
}
