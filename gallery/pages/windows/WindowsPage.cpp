// SPDX-License-Identifier: Apache-2.0
#include "SecondWindow.h"
#include "SettingsCard.h"
#include "looks/Metrics.h"
#include "pages/widgets/Pages.h"
#include "shell/Page.h"
#include "specimens/EmissionLog.h"
#include "specimens/WidgetCard.h"
#include "widgets/Buttons.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/Dialog.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"
#include "widgets/WrapLayout.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/widgets/OxaDateTimeEdit.h>
#include <UiElements/widgets/OxaFrame.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaTextEdit.h>
#include <UiElements/widgets/OxaTimeEdit.h>

#include <QDateTime>
#include <QPointer>
#include <QVBoxLayout>

namespace {

constexpr int narrowest = 64;
constexpr int widest = 320;
constexpr int firstWidth = 176;
constexpr int barCount = 20;
constexpr int fieldWidth = 280;
constexpr QSize frameSize(160, 64);
constexpr QSize notesSize(320, 240);

QString tr(const char *text) { return Page::tr(text); }

OxaPushButton *addButton(QLayout *row, const QString &text, const std::function<void()> &action)
{
    OxaPushButton *button = Buttons::make(text);
    QObject::connect(button, &OxaPushButton::clicked, button, action);
    row->addWidget(button);
    return button;
}

Card *makeMainWindow()
{
    auto *card = new Card(tr("OxaMainWindow"),
                          tr("The gallery's window is one. The application registers the library's "
                             "shortcuts on the first, and they work in all."));
    auto *row = new WrapLayout(Metrics::small);
    addButton(row, tr("Open a second window"),
              [card] { (new SecondWindow(card->window()))->show(); });
    addButton(row, tr("List the shortcuts"),
              [] { Q_EMIT OxaAppSignals::get()->showKeyboardShortcutsDialog(); });
    card->body()->addLayout(row);
    card->body()->addStretch(1);
    return card;
}

/// Asks for a new name of the space called \a name, and shows it there.
void rename(OxaLabel *name, EmissionLog *log)
{
    auto *dialog = new Dialog(tr("Rename the space"), name->window());
    dialog->body()->addWidget(Labels::caption(tr("Name"), dialog));
    OxaLineEdit *field = Fields::line(dialog);
    field->setAccessibleName(tr("Name"));
    field->setText(name->text());
    field->selectAll();
    field->setMinimumWidth(fieldWidth);
    dialog->body()->addWidget(field);
    OxaPushButton *accept = dialog->addButton(tr("Rename"), &QDialog::accept);
    accept->setCSS(Buttons::accent());
    accept->setDefault(true);
    dialog->addButton(tr("Cancel"), &QDialog::reject);
    QObject::connect(dialog, &OxaDialog::accepted, name,
                     [name, field] { name->setText(field->text()); });
    log->follow(dialog);
    dialog->open();
}

OxaDialog *openNotes(QWidget *opener, EmissionLog *log)
{
    auto *dialog = new Dialog(tr("Notes"), opener->window());
    dialog->body()->addWidget(Fields::edit(tr("Notes"), dialog));
    dialog->addButton(tr("Close"), &QDialog::reject);
    dialog->resize(notesSize);
    log->follow(dialog);
    dialog->show();
    return dialog;
}

Card *makeDialogs()
{
    auto *card = new Card(tr("OxaDialog"),
                          tr("Deleted once it is closed. Escape rejects it, and the focus goes "
                             "back to the button that opened it."));
    OxaLabel *name = Labels::chip(tr("Design"));
    auto *log = new EmissionLog;
    auto *row = new WrapLayout(Metrics::small);
    addButton(row, tr("Rename…"), [name, log] { rename(name, log); });
    addButton(row, tr("Notes…"), [card, log, open = QPointer<OxaDialog>()]() mutable {
        if (!open)
            open = openNotes(card, log);
        open->activateWindow();
    });
    row->addWidget(name);
    card->body()->addLayout(row);
    card->body()->addWidget(log);
    return card;
}

void addSlider(Page &page)
{
    const auto make = [] {
        OxaSlider *slider = Fields::slider(0, 100, 50);
        slider->setAccessibleName(tr("Volume"));
        slider->setFixedWidth(firstWidth);
        return slider;
    };
    auto *controls = WidgetCard::add(
            page, tr("OxaSlider"),
            tr("Painted by the style. The frame of the keyboard's focus is around its handle."),
            make);
    controls->setRange("value", 0, 100);
    controls->addProperty("value");
    controls->addProperty("tracking");
    controls->addProperty("invertedAppearance");
    controls->addWidth(narrowest, firstWidth);
}

void addProgressBar(Page &page)
{
    const auto make = [] {
        auto *bar = new OxaProgressBar(nullptr, barCount);
        bar->setAccessibleName(tr("Progress"));
        bar->setRange(0, 150);
        bar->setValue(60);
        bar->setFixedSize(firstWidth, Metrics::gap);
        return bar;
    };
    const auto setColors = [](void (OxaProgressBar::*set)(const std::string &)) {
        return [set](QWidget *widget, const QVariant &name) {
            (qobject_cast<OxaProgressBar *>(widget)->*set)(name.toString().toStdString());
        };
    };
    auto *controls = WidgetCard::add(
            page, tr("OxaProgressBar"),
            tr("Twenty bars. The value is a percentage, and fills more bars above 100."), make,
            Specimens::States::None);
    controls->setRange("value", 0, 150);
    controls->addProperty("value");
    controls->addAll();
    controls->addChoice(tr("setBarColorSetName()"),
                        { { tr("Own"), QStringLiteral("oxa-percentage-indicator-possessive") },
                          { tr("Accent"), QStringLiteral("gallery-accent") },
                          { tr("Busy"), QStringLiteral("presence-busy") },
                          { tr("None"), QString() } },
                        setColors(&OxaProgressBar::setBarColorSetName));
    controls->addChoice(tr("setTrackColorSetName()"),
                        { { tr("Own"), QStringLiteral("oxa-progressbar") },
                          { tr("Slider"), QStringLiteral("gallery-slider-track") },
                          { tr("None"), QString() } },
                        setColors(&OxaProgressBar::setTrackColorSetName));
    controls->addWidth(narrowest, widest);
}

void addSeparator(Page &page)
{
    const auto make = [] {
        auto *separator = new OxaSeparator;
        separator->setFixedWidth(firstWidth);
        return separator;
    };
    auto *controls = WidgetCard::add(page, tr("OxaSeparator"),
                                     tr("A line of one pixel in a colour set."), make,
                                     Specimens::States::None);
    const auto setColors = [](QWidget *widget, const QVariant &name) {
        auto *separator = qobject_cast<OxaSeparator *>(widget);
        separator->setColorSetName(name.toString());
        separator->onThemeChanged(); // The setter only stores the name.
    };
    controls->addChoice(tr("colorSetName"),
                        { { tr("Own"), QStringLiteral("legacy-separator-primary") },
                          { tr("Accent"), QStringLiteral("gallery-accent") },
                          { tr("Busy"), QStringLiteral("presence-busy") } },
                        setColors);
    controls->addAll();
    controls->addWidth(narrowest, widest);
}

void addMoments(Page &page)
{
    const auto makeDateTime = [] {
        return Fields::dateTime(tr("Begin"), { QDate(2027, 1, 4), QTime(8, 30) });
    };
    const auto makeTime = [] { return Fields::time(tr("Begin"), QTime(8, 30)); };
    const auto addProperties = [](PropertyControls *controls) {
        for (const char *property : { "displayFormat", "wrapping", "readOnly" })
            controls->addProperty(property);
        controls->addAll();
    };
    addProperties(WidgetCard::add(page, tr("OxaDateTimeEdit"),
                                  tr("The arrow keys and the wheel change the part that the "
                                     "cursor is in."),
                                  makeDateTime));
    addProperties(
            WidgetCard::add(page, tr("OxaTimeEdit"), tr("The same for a time alone."), makeTime));
}

void addFrame(Page &page)
{
    const auto make = [] {
        auto *frame = new OxaFrame;
        frame->setFrameShape(QFrame::Box);
        frame->setFixedSize(frameSize);
        return frame;
    };
    auto *controls = WidgetCard::add(page, tr("OxaFrame"),
                                     tr("Qt draws it, without a shape at first."), make,
                                     Specimens::States::None);
    controls->offer("frameShape",
                    { { tr("None"), QFrame::NoFrame },
                      { tr("Box"), QFrame::Box },
                      { tr("Panel"), QFrame::Panel },
                      { tr("Styled"), QFrame::StyledPanel } });
    for (const char *property : { "frameShape", "frameShadow", "lineWidth", "midLineWidth" })
        controls->addProperty(property);
}

} // namespace

Page *Pages::makeWindows(QWidget *parent)
{
    auto *page = new Page(tr("Windows and dialogs"),
                          tr("Windows, the containers inside of them, and controls for ranges and "
                             "times. They follow the theme as the other widgets do."),
                          parent);
    ColumnsLayout *cards = page->makeColumns();
    cards->addWidget(makeMainWindow());
    cards->addWidget(makeDialogs());
    cards->addWideWidget(new SettingsCard);
    addSlider(*page);
    addProgressBar(*page);
    addSeparator(*page);
    addMoments(*page);
    addFrame(*page);
    page->body()->addStretch(1);
    return page;
}
