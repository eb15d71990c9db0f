// SPDX-License-Identifier: Apache-2.0
#include "CallWindow.h"

#include "ParticipantTile.h"
#include "data/Backend.h"
#include "people/Avatar.h"
#include "people/PersonCards.h"
#include "protocol/Literal.h"
#include "shell/Looks.h"
#include "shell/Toast.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/OxaLabel.h>

#include <QTimer>
#include <QVBoxLayout>

CallWindow::CallWindow(Backend *backend, PersonCards *cards, const QString &title, QWidget *parent)
    : OxaMainWindow(parent, Qt::Window), m_backend(backend), m_cards(cards)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"callWindow"_s);
    setWindowTitle(tr("Call: %1").arg(title));
    setMinimumSize(400, 360);
    resize(880, 600);
    setCSS(u"#callWindow { background: $(call-window); }"_s);

    auto *content = new OxaWidget(this);
    setCentralWidget(content);
    AlertBanner *banner =
            Looks::makeBanner(AlertBanner::AlertType::Error,
                              tr("The connection is lost. The call goes on when it is back."),
                              content);
    banner->setHidden(backend->isConnected());
    auto *column = Looks::makeColumn(content);
    column->addWidget(makeTop(title));
    column->addWidget(banner);
    column->addWidget(makeStage(), 1);
    column->addWidget(makeControls());

    connect(backend, &Backend::levels, this, &CallWindow::showLevels);
    connect(backend, &Backend::connectedChanged, banner, &QWidget::setHidden);
    connectShortcuts();
    backend->join(title);
}

CallWindow::~CallWindow() { m_backend->join(QString()); }

QWidget *CallWindow::makeTop(const QString &text)
{
    auto *top = new OxaWidget(this);
    auto *row = new QHBoxLayout(top);
    row->setContentsMargins(24, 16, 24, 8);
    OxaLabel *title = Looks::makeLabel(text, OxaFont::Token::Header, u"text-primary"_s, top);
    title->setAccessibleRole(QAccessible::Heading);
    title->setMinimumWidth(1);
    m_time = Looks::makeLabel(QString(), OxaFont::Token::BodySecondary, u"text-secondary"_s, top);
    row->addWidget(title); // No wider than its text: a Hebrew one would stand at its other end.
    row->addStretch(1);
    row->addWidget(m_time);

    m_since.start();
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &CallWindow::showTime);
    timer->start(1000);
    showTime();
    return top;
}

QWidget *CallWindow::makeStage()
{
    m_stage = new QWidget(this);
    auto *grid = new FixedItemRatioLayoutNotSupportScroll(m_stage, QMargins(16, 8, 16, 8), 0, 0);
    FixedItemRatioLayoutNotSupportScroll::ItemData tiles;
    tiles.spacing = 0; // Rows with a spacing may be too wide: the tiles have margins instead.
    grid->setItemData(tiles);
    m_waiting = Looks::makeLabel(tr("Nobody else is here yet."), OxaFont::Token::BodySecondary,
                                 u"text-secondary"_s, m_stage);
    Looks::centre(m_waiting);
    grid->addWidget(m_waiting);
    return m_stage;
}

QWidget *CallWindow::makeControls()
{
    auto *controls = new OxaWidget(this);
    auto *row = new QHBoxLayout(controls);
    row->setContentsMargins(16, 8, 16, 24);
    row->setSpacing(8);
    row->addStretch(1);
    m_microphone = addToggle(row, u"mic"_s, u"mic-off"_s, tr("Mute"), tr("Unmute"));
    m_camera = addToggle(row, u"camera"_s, u"camera-off"_s, tr("Camera off"), tr("Camera on"));
    m_hand = addToggle(row, u"hand"_s, QString(), tr("Raise your hand"), tr("Lower your hand"));
    OxaSvgPushButton *leave = Looks::makeButton(tr("Leave"), Looks::Button::Danger, controls);
    leave->setSvgIcon(OxaSvgRenderer::resourcePath(u"leave"_s));
    leave->setSvgIconPadding(QMargins(16, 0, 8, 0));
    leave->setTextLeftPadding(0);
    leave->setMinimumHeight(44);
    leave->setCSS(Looks::buttonStyle(Looks::Button::Danger, 22));
    connect(leave, &OxaSvgPushButton::clicked, this, &QWidget::close);
    row->addSpacing(16);
    row->addWidget(leave);
    row->addStretch(1);
    return controls;
}

OxaSvgPushButton *CallWindow::addToggle(QLayout *row, const QString &icon,
                                        const QString &checkedIcon, const QString &name,
                                        const QString &checkedName)
{
    OxaSvgPushButton *button = Looks::makeIconButton(icon, name, this, 44);
    button->setSvgIconSize(QSize(20, 20));
    if (!checkedIcon.isEmpty())
        button->setSvgIconChecked(OxaSvgRenderer::resourcePath(checkedIcon));
    Looks::makeCheckable(button, Looks::Button::Outline, 22);
    connect(button, &OxaSvgPushButton::toggled, button,
            [button, name, checkedName](bool isChecked) {
                button->setToolTip(isChecked ? checkedName : name);
                button->setAccessibleName(isChecked ? checkedName : name);
            });
    row->addWidget(button);
    return button;
}

void CallWindow::connectShortcuts()
{
    const OxaAppSignals *hub = OxaAppSignals::get();
    connect(hub, &OxaAppSignals::toggleAudioMute, m_microphone, &OxaSvgPushButton::click);
    connect(hub, &OxaAppSignals::toggleVideoMute, m_camera, &OxaSvgPushButton::click);
    connect(hub, &OxaAppSignals::endCall, this, &QWidget::close);
    const auto showMyState = [this] {
        ParticipantTile *tile = m_tiles.value(m_backend->me());
        if (!tile)
            return;
        const QString muted = m_microphone->isChecked() ? u"mic-off"_s : QString();
        tile->setState(m_hand->isChecked() ? u"hand"_s : muted);
    };
    connect(m_microphone, &OxaSvgPushButton::toggled, this, showMyState);
    connect(m_hand, &OxaSvgPushButton::toggled, this, showMyState);
}

void CallWindow::showLevels(const QVariantHash &levels)
{
    for (auto level = levels.begin(); level != levels.end(); ++level) {
        if (!m_tiles.contains(level.key()))
            add(level.key());
        const bool isMuted = level.key() == m_backend->me() && m_microphone->isChecked();
        m_tiles.value(level.key())->setLevel(isMuted ? 0 : level->toInt());
    }
    const QStringList there = m_tiles.keys();
    for (const QString &person : there) {
        if (!levels.contains(person))
            remove(person);
    }
}

void CallWindow::add(const QString &id)
{
    const Person person = m_backend->person(id);
    auto *tile = new ParticipantTile(person, m_stage);
    m_cards->watch(tile->avatar(), id);
    m_cards->watch(tile->name(), id);
    m_tiles.insert(id, tile);
    m_waiting->hide();
    m_stage->layout()->addWidget(tile);
    tile->show();
    if (id != m_backend->me())
        Toast::show(tr("%1 has joined").arg(person.name), m_stage);
}

void CallWindow::remove(const QString &id)
{
    delete m_tiles.take(id);
    m_waiting->setVisible(m_tiles.isEmpty());
    Toast::show(tr("%1 has left").arg(m_backend->person(id).name), m_stage);
}

void CallWindow::showTime()
{
    const qint64 seconds = (m_since.elapsed() + 500) / 1000;
    m_time->setText(u"%1:%2"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0')));
}
