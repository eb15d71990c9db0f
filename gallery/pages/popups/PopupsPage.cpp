// SPDX-License-Identifier: Apache-2.0
#include "PopupsPage.h"

#include "DragSource.h"
#include "looks/Metrics.h"
#include "specimens/ControlPanel.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"
#include "widgets/SegmentedControl.h"

#include <UiElements/svg/VisualUtils.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/PopupWidget.h>

#include <QVBoxLayout>

namespace {

using Side = WidgetData::ArrowPostion;

constexpr int roundest = 24;
constexpr int longestSeconds = 10;
constexpr int msPerSecond = 1000;

/// Returns the numbers of \a rect, which are read from left to right in both directions.
QString text(const QRect &rect)
{
    constexpr QChar isolate(0x2066);
    constexpr QChar end(0x2069);
    return isolate
            + PopupsPage::tr("%1, %2; %3 × %4")
                      .arg(rect.x())
                      .arg(rect.y())
                      .arg(rect.width())
                      .arg(rect.height())
            + end;
}

/// Returns the sides in the order of their numbers.
QStringList sideNames()
{
    return {
        PopupsPage::tr("Top"),    PopupsPage::tr("Left"),        PopupsPage::tr("Right"),
        PopupsPage::tr("Bottom"), PopupsPage::tr("None, above"), PopupsPage::tr("None, below")
    };
}

/// Returns the side of \a popup on which it keeps room for its arrow; \a wished if it has none.
Side sideOf(const PopupWidget &popup, Side wished)
{
    const QMargins margins = popup.getMainWidget()->layout()->contentsMargins();
    if (margins.top() > margins.bottom())
        return Side::Top;
    if (margins.bottom() > margins.top())
        return Side::Bottom;
    if (margins.left() > margins.right())
        return Side::Left;
    return margins.right() > margins.left() ? Side::Right : wished;
}

} // namespace

PopupsPage::PopupsPage(QWidget *parent)
    : Page(tr("Popups"),
           tr("A popup stays beside its source, on the screen or in the window: drag the source to "
              "an edge."),
           parent),
      m_stage(new OxaWidget(this)),
      m_source(new DragSource(m_stage))
{
    body()->addWidget(makeSettingsCard());
    body()->addWidget(makeStageCard(), 1);
    connect(m_source, &DragSource::chosen, this, &PopupsPage::toggle);
    connect(m_source, &DragSource::moved, this, &PopupsPage::follow);
    refresh();
}

PopupsPage::~PopupsPage() { delete m_popup; }

Card *PopupsPage::makeSettingsCard()
{
    auto *card = new Card(tr("Settings"), QString(), this);
    auto *panel = new ControlPanel(card);
    addChoices(*panel);
    addNumbers(*panel);
    card->body()->addWidget(panel);
    return card;
}

void PopupsPage::addChoices(ControlPanel &panel)
{
    OxaComboBox *arrow = Fields::combo(tr("Arrow"), sideNames());
    connect(arrow, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int i) {
        m_settings.arrow = Side(i);
        apply();
    });
    panel.add(tr("Arrow"), arrow);
    panel.addChoice(tr("Alignment"), { tr("Left"), tr("Centre"), tr("Right") },
                    int(m_settings.alignment), [this](int i) {
                        m_settings.alignment = WidgetData::Alignment(i);
                        apply();
                    });
    panel.addChoice(tr("Stays on"), { tr("Screen"), tr("Window") }, m_settings.isInWindow ? 1 : 0,
                    [this](int i) {
                        m_settings.isInWindow = i == 1;
                        apply();
                    });
    OxaComboBox *dismissal = Fields::combo(tr("Hides"),
                                           { tr("On a click only"), tr("When focus leaves"),
                                             tr("When no longer active") });
    connect(dismissal, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int i) {
        m_settings.dismissal = Dismissal(i);
        apply();
    });
    panel.add(tr("Hides"), dismissal);
    panel.addChoice(tr("Header"), { tr("No"), tr("Yes") }, m_settings.hasHeader ? 1 : 0,
                    [this](int i) {
                        m_settings.hasHeader = i == 1;
                        apply();
                    });
}

void PopupsPage::addNumbers(ControlPanel &panel)
{
    panel.addNumber(tr("Corner radius"), 0, roundest, m_settings.cornerRadius, [this](int value) {
        m_settings.cornerRadius = value;
        apply();
    });
    panel.addNumber(
            tr("Seconds"), 0, longestSeconds, 0,
            [this](int value) {
                m_settings.seconds = value;
                apply();
            },
            tr("never"));
}

Card *PopupsPage::makeStageCard()
{
    auto *card = new Card(tr("Source"), QString(), this);
    m_stage->setCSS(QStringLiteral("OxaWidget { background-color: $(gallery-code-background);"
                                   " border: 1px solid $(gallery-card-border); }"));
    m_stage->setMinimumHeight(Metrics::leastListHeight);
    card->body()->addWidget(m_stage, 1);
    auto *numbers = new ControlPanel(card);
    m_sourcePlace = numbers->addValue(tr("Source"));
    m_popupPlace = numbers->addValue(tr("Popup"));
    m_arrow = numbers->addValue(tr("Arrow in use"));
    m_signal = numbers->addValue(tr("Last signal"));
    card->body()->addWidget(numbers);
    return card;
}

WidgetData PopupsPage::popupData() const
{
    return WidgetData(getThemeType())
            .arrowPostion(m_settings.arrow)
            .alignment(m_settings.alignment)
            .fitInMainWindowGeometry(m_settings.isInWindow)
            // A click on the source leaves the focus where it was: only keys bring it to the popup.
            .activateOnShow(m_source->hasFocus())
            .autoDismiss(m_settings.dismissal != Dismissal::Never)
            .dismissWithParentFocused(m_settings.dismissal == Dismissal::Always)
            .focusSourceOnClose(false)
            .cornerRadius(m_settings.cornerRadius)
            .dismissTimerTicks(m_settings.seconds * msPerSecond)
            .headerText(m_settings.hasHeader ? tr("Header") : QString());
}

QWidget *PopupsPage::makeContent()
{
    auto *content = new OxaWidget;
    auto *column = new QVBoxLayout(content);
    column->setSpacing(Metrics::small);
    column->addWidget(Labels::line(tr("Any widget can be in here."), content));
    OxaPushButton *hide = Buttons::make(tr("Hide"), content);
    connect(hide, &OxaPushButton::clicked, content, [this] {
        if (m_popup)
            m_popup->hide();
    });
    column->addWidget(hide);
    return content;
}

void PopupsPage::makePopup()
{
    delete m_popup;
    m_popup = PopupWidget::create(m_source, makeContent(), popupData());
    const std::pair<const char *, void (PopupWidget::*)()> all[] = {
        { "popupDismissed", &PopupWidget::popupDismissed },
        { "widgetHidden", &PopupWidget::widgetHidden },
        { "widgetShown", &PopupWidget::widgetShown },
        { "widgetHoverEntered", &PopupWidget::widgetHoverEntered },
        { "widgetHoverLeaved", &PopupWidget::widgetHoverLeaved },
    };
    for (const auto &[name, signal] : all)
        connect(m_popup, signal, this, [this, text = QString::fromLatin1(name)] { note(text); });
    // What it knows of itself is final only after its window manager has moved it.
    new VisualUtils::EventFilter(m_popup, { QEvent::Move, QEvent::Resize }, [this](QEvent *) {
        refresh();
        return false;
    });
}

/// Shows the popup, or hides it if it is there.
void PopupsPage::toggle()
{
    if (m_popup && m_popup->isVisible()) {
        m_popup->hide();
        return;
    }
    makePopup();
    m_popup->showSmooth(m_source);
}

/// Shows a visible popup with the current settings.
void PopupsPage::apply()
{
    if (!m_popup || !m_popup->isVisible())
        return;
    const bool isPartOfPicture = !m_popup->isWindow();
    m_popup->hide();
    if (isPartOfPicture)
        showForPicture();
    else
        toggle();
}

void PopupsPage::follow()
{
    if (m_popup && m_popup->isVisible())
        m_popup->repositionWindow(m_source->onScreen(), false);
    refresh();
}

void PopupsPage::refresh()
{
    m_sourcePlace->setText(text(m_source->onScreen()));
    const bool isShown = m_popup && m_popup->isVisible();
    m_popupPlace->setText(isShown ? text(m_popup->geometry()) : tr("Hidden"));
    m_arrow->setText(isShown ? sideNames().at(int(sideOf(*m_popup, m_settings.arrow)))
                             : QStringLiteral("–"));
}

void PopupsPage::note(const QString &signal)
{
    m_signal->setText(signal);
    refresh();
}

void PopupsPage::showForPicture()
{
    m_source->moveInside({ (m_stage->width() - m_source->width()) / 2, Metrics::small });
    makePopup();
    m_popup->setWindowFlags(Qt::Widget); // A part of the window, and of its picture.
    m_popup->showSmooth(m_source);
    m_popup->move(m_popup->pos() - window()->geometry().topLeft());
}

void PopupsPage::onThemeChanged() { apply(); }

void PopupsPage::resizeEvent(QResizeEvent *event)
{
    Page::resizeEvent(event);
    m_source->adjustSize();
    m_source->moveInside(m_source->pos());
    follow();
}

void PopupsPage::hideEvent(QHideEvent *event)
{
    Page::hideEvent(event);
    if (m_popup)
        m_popup->hide();
}
