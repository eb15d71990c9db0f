// SPDX-License-Identifier: Apache-2.0
#include "OverflowBar.h"

#include "AvatarColors.h"
#include "RowRole.h"
#include "looks/Metrics.h"
#include "widgets/AlignedLabel.h"

#include <QHBoxLayout>

namespace {

constexpr int avatarSize = 36;
constexpr int step = avatarSize + Metrics::small;

OxaLabel *makeCircle(const QString &text, const QString &colors, QWidget *parent)
{
    auto *label = new AlignedLabel(text, parent, AlignedLabel::Place::Centre);
    label->setFontToken(OxaFont::Token::TagLabelPrimary);
    label->setCSS(colors + QStringLiteral("$borderRadius: %1;").arg(avatarSize / 2));
    label->setFixedSize(avatarSize, avatarSize);
    return label;
}

} // namespace

OverflowBar::OverflowBar(QAbstractItemModel *people, QWidget *parent)
    : OxaWidget(parent),
      m_more(makeCircle(QString(),
                        QStringLiteral("$backgroundColors: gallery-chip-background;"
                                       "$borderColors: gallery-chip-border;"
                                       "$textColors: gallery-chip-text;"),
                        this))
{
    m_hiddenPeople.setSourceModel(people);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Metrics::small);
    // The layout would request room for all avatars before those without room are hidden.
    row->setSizeConstraint(QLayout::SetNoConstraint);
    for (int i = 0; i < people->rowCount(); ++i) {
        const QModelIndex person = people->index(i, 0);
        const QString name = person.data(RowRole::Title).toString();
        OxaLabel *avatar = makeCircle(name.mid(0, 1),
                                      QStringLiteral(
                                              "$backgroundColors: %1; $textColors: avatar-text;")
                                              .arg(AvatarColors::setName(
                                                      person.data(RowRole::Avatar).toInt())),
                                      this);
        avatar->setToolTip(name);
        row->addWidget(avatar);
        m_avatars.push_back(avatar);
    }
    row->addWidget(m_more);
    row->addStretch(1);
    setFixedHeight(avatarSize);
}

int OverflowBar::fullWidth() const { return int(m_avatars.size()) * step - Metrics::small; }

int OverflowBar::leastWidth() { return avatarSize; }

void OverflowBar::resizeEvent(QResizeEvent *event)
{
    OxaWidget::resizeEvent(event);
    fit();
}

int OverflowBar::visibleCount() const
{
    return width() >= fullWidth() ? int(m_avatars.size()) : qMax(0, (width() - avatarSize) / step);
}

void OverflowBar::fit()
{
    const int visible = visibleCount();
    for (int i = 0; i < int(m_avatars.size()); ++i)
        m_avatars[std::size_t(i)]->setVisible(i < visible);
    m_hiddenPeople.setFirstVisibleIndex(visible - 1);
    const int hidden = m_hiddenPeople.rowCount();
    m_more->setText(QStringLiteral("+%1").arg(hidden));
    m_more->setVisible(hidden > 0);
}
