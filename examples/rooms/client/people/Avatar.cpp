// SPDX-License-Identifier: Apache-2.0
#include "Avatar.h"

#include "shell/Looks.h"

#include <UiElements/fonts/OxaFont.h>

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

#include <numeric>

namespace {

OxaFont::Token tokenFor(int size)
{
    if (size <= 40)
        return OxaFont::Token::BodyTertiary;
    return size <= 56 ? OxaFont::Token::SubheaderPrimary : OxaFont::Token::BannerPrimary;
}

/// Where the presence is on a picture of \a rect.
QRectF presenceRect(const QRectF &rect)
{
    const double size = qBound(8.0, rect.width() * 0.3, 16.0);
    const double left = QGuiApplication::isRightToLeft() ? rect.left() - 1
                                                         : rect.right() + 1 - size;
    return { left, rect.bottom() + 1 - size, size, size };
}

QPainterPath circle(const QRectF &rect)
{
    QPainterPath path;
    path.addEllipse(rect);
    return path;
}

/// The shape of \a presence: each is another one without its colour, too.
QPainterPath shape(Presence presence, const QRectF &rect)
{
    const double size = rect.width();
    switch (presence) {
    case Presence::Active:
        break;
    case Presence::Away:
        return circle(rect)
                - circle(rect.translated(-size * 0.3, -size * 0.3)
                                 .adjusted(size * 0.1, size * 0.1, -size * 0.1, -size * 0.1));
    case Presence::Busy: {
        QPainterPath bar;
        bar.addRect(QRectF(0, 0, size * 0.6, size * 0.22)
                            .translated(rect.center() - QPointF(size * 0.3, size * 0.11)));
        return circle(rect) - bar;
    }
    case Presence::Offline:
        return circle(rect)
                - circle(rect.adjusted(size * 0.22, size * 0.22, -size * 0.22, -size * 0.22));
    }
    return circle(rect);
}

} // namespace

Avatar::Avatar(int size, QWidget *parent) : OxaWidget(parent) { setFixedSize(size, size); }

void Avatar::setPerson(const Person &person, bool isPresenceShown)
{
    m_person = person;
    m_isPresenceShown = isPresenceShown;
    update();
}

void Avatar::paint(QPainter *painter, const QRect &rect, const Person &person, bool isPresenceShown)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF corner = presenceRect(rect);
    QPainterPath picture = circle(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5));
    if (isPresenceShown)
        picture -= circle(corner.adjusted(-2, -2, 2, 2));
    painter->setPen(Looks::color("person-border"));
    painter->setBrush(Looks::color("person-" + std::to_string(colorNumber(person.id))));
    painter->drawPath(picture);

    // The picture does not grow with the text.
    QFont font = OxaFont(tokenFor(rect.width()));
    font.setPixelSize(qMin(font.pixelSize(), rect.width() * 3 / 8));
    painter->setFont(font);
    painter->setPen(Looks::color("person-text"));
    painter->drawText(rect, Qt::AlignCenter, initials(person.name));

    if (isPresenceShown) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(Looks::color("presence-" + nameOf(person.presence).toStdString()));
        painter->drawPath(shape(person.presence, corner));
    }
    painter->restore();
}

int Avatar::colorNumber(const QString &id)
{
    const int sum = std::accumulate(id.cbegin(), id.cend(), 0, [](int before, QChar letter) {
        return (before * 31 + letter.unicode()) % 9973;
    });
    return sum % 6 + 1;
}

QString Avatar::initials(const QString &name)
{
    const QStringList words = name.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    const auto first = [](const QString &word) {
        return word.left(word.at(0).isHighSurrogate() ? 2 : 1);
    };
    return words.size() == 1 ? first(words.first()) : first(words.first()) + first(words.last());
}

void Avatar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int margin = m_isPresenceShown ? 2 : 0;
    paint(&painter, rect().adjusted(margin, margin, -margin, -margin), m_person, m_isPresenceShown);
}
