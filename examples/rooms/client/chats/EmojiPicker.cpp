// SPDX-License-Identifier: Apache-2.0
#include "EmojiPicker.h"

#include "EmojiLine.h"
#include "EmojiTable.h"
#include "shell/Looks.h"

#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaListView.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QPainter>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace {

constexpr int cell = 36;
constexpr int columns = 9;
constexpr int rows = 6;

class EmojiDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return { cell, cell };
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        const OxaColorSet row = OxaThemeUtils::getColorSet("row", option.widget);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(option.state & QStyle::State_MouseOver ? row.hovered : row.normal);
        painter->drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), 6, 6);
        EmojiLine::paint(painter, option.rect, index.data().toString(),
                         OxaFont(OxaFont::Token::Title), Looks::color("text-primary"), true);
        painter->restore();
        if (option.state & QStyle::State_HasFocus)
            Looks::paintFocus(painter, option.rect);
    }
};

} // namespace

EmojiPicker::EmojiPicker(QWidget *parent)
    : OxaWidget(parent), m_found(new QSortFilterProxyModel(this))
{
    setAccessibleName(tr("Emoji"));
    m_found->setSourceModel(EmojiTable::model());
    m_found->setFilterRole(Qt::ToolTipRole);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_search = Looks::makeField(tr("Search emoji"), this);
    m_search->setSearchIcon(OxaSvgRenderer::resourcePath(QStringLiteral("search_12")));
    m_search->setFixedHeight(36);
    makeGrid();
    connect(m_search, &OxaTextInput::textChanged, m_found,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(m_search, &OxaTextInput::keyPressed, this, [this](int key) {
        if (key == Qt::Key_Down)
            m_grid->setFocus(Qt::OtherFocusReason);
    });
    connect(m_search, &OxaTextInput::returnPressed, this, [this] {
        if (m_found->rowCount() > 0)
            Q_EMIT picked(m_found->index(0, 0).data().toString());
    });
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->addWidget(m_search);
    column->addLayout(makeGroups());
    column->addWidget(m_grid);
    setFocusProxy(m_search->getLineEdit());
}

void EmojiPicker::makeGrid()
{
    m_grid = new OxaListView(this);
    m_grid->setAccessibleName(tr("Emoji"));
    m_grid->setCSS(Looks::listRules());
    m_grid->setViewMode(QListView::IconMode);
    m_grid->setMovement(QListView::Static);
    m_grid->setResizeMode(QListView::Adjust);
    m_grid->setGridSize({ cell, cell });
    m_grid->setUniformItemSizes(true);
    m_grid->setLayoutMode(QListView::Batched);
    m_grid->setSelectionMode(QAbstractItemView::NoSelection);
    m_grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_grid->setFixedSize(columns * cell + 16, rows * cell);
    m_grid->setMouseTracking(true);
    m_grid->viewport()->setAttribute(Qt::WA_Hover);
    m_grid->setItemDelegate(new EmojiDelegate(m_grid));
    m_grid->setModel(m_found);
    const auto pick = [this](const QModelIndex &index) { Q_EMIT picked(index.data().toString()); };
    connect(m_grid, &QListView::clicked, this, pick);
    connect(m_grid, &QListView::activated, this, pick);
}

QLayout *EmojiPicker::makeGroups()
{
    auto *groups = new QHBoxLayout;
    groups->setSpacing(0);
    QString last;
    for (int row = 0; row < m_found->rowCount(); ++row) {
        const QModelIndex emoji = m_found->index(row, 0);
        const QString group = emoji.data(EmojiTable::GroupRole).toString();
        if (std::exchange(last, group) == group)
            continue;
        auto *button = new OxaEmojiPushButton(this, QAccessible::Button);
        button->setFontToken(OxaFont::Token::Default);
        button->setAlignment(Qt::AlignCenter);
        button->setFixedSize(cell, 32);
        button->setFocusPolicy(Qt::TabFocus);
        button->setToolTip(group);
        button->setAccessibleName(group);
        button->setCSS(Looks::buttonStyle(Looks::Button::Quiet));
        button->setText(emoji.data().toString());
        connect(button, &OxaEmojiPushButton::clicked, this, [this, group] { showGroup(group); });
        groups->addWidget(button);
    }
    groups->addStretch(1);
    return groups;
}

void EmojiPicker::showGroup(const QString &group)
{
    m_search->setText(QString());
    const QModelIndexList first = m_found->match(m_found->index(0, 0), EmojiTable::GroupRole,
                                                 group);
    if (!first.isEmpty())
        m_grid->scrollTo(first.first(), QAbstractItemView::PositionAtTop);
}
