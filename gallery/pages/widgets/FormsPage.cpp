// SPDX-License-Identifier: Apache-2.0
#include "Pages.h"
#include "looks/Metrics.h"
#include "shell/Page.h"
#include "specimens/WidgetCard.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaRadioButton.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextEdit.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QLocale>
#include <QRegularExpression>
#include <QTextBlock>
#include <QVBoxLayout>

namespace {

using Choices = PropertyControls::Choices;

constexpr int longestName = 40;
constexpr int fieldWidth = 168;
constexpr int areaHeight = 72;
constexpr int notesHeight = 176;

QString tr(const char *text) { return Page::tr(text); }

/// Adds \a control under its \a caption.
void addField(QBoxLayout *column, const QString &caption, QWidget *control)
{
    auto *field = new QVBoxLayout;
    field->setSpacing(Metrics::tight);
    field->addWidget(Labels::caption(caption));
    field->addWidget(control);
    column->addLayout(field);
}

/// Returns a label for the error of \a field, which keeps its place while it is hidden.
OxaLabel *makeError(const QString &text, const OxaTextInput *field)
{
    OxaLabel *label = Labels::caption(text);
    label->setCSS(QStringLiteral("$textColors: gallery-error-text;"));
    QSizePolicy policy = label->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    label->setSizePolicy(policy);
    label->hide();
    QObject::connect(field, &OxaTextInput::showErrorLabel, label, &OxaLabel::setVisible);
    return label;
}

bool isMailAddress(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^[^@\s]+@[^@\s.]+(\.[^@\s.]+)+$)"));
    return pattern.match(text).hasMatch();
}

void addButton(Card *card, const QString &text)
{
    auto *button = Buttons::make(text);
    button->setCSS(Buttons::accent());
    auto *row = new QHBoxLayout;
    row->addWidget(button);
    row->addStretch(1);
    card->body()->addStretch(1);
    card->body()->addLayout(row);
}

Card *makeSignIn()
{
    auto *card = new Card(tr("Sign in"),
                          tr("The address is checked when you leave the field. A password can be "
                             "shown, but neither copied nor cut while it is hidden."));
    OxaTextInput *address = Fields::input(tr("Mail address"));
    address->setPlaceholderText(QStringLiteral("ada@example.org"));
    address->setInputValidator(isMailAddress, false);
    auto *error = makeError(tr("Enter an address such as ada@example.org."), address);
    OxaTextInput *password = Fields::password(tr("Password"));
    password->setPlaceholderText(tr("Eight characters or more"));
    auto *column = new QVBoxLayout;
    column->setSpacing(Metrics::tight);
    addField(column, tr("Mail address"), address);
    column->addWidget(error);
    column->addSpacing(Metrics::tight);
    addField(column, tr("Password"), password);
    card->body()->addLayout(column);

    OxaCheckBox *remember = Fields::checkBox(tr("Remember me"));
    // The box stands in from the edge: like this it is below the fields' edges.
    remember->setSvgIconTopLeftPadding({ 1 - remember->getCheckboxMargin(), 0 });
    card->body()->addWidget(remember, 0, Qt::AlignLeft);
    addButton(card, tr("Sign in"));
    return card;
}

QStringList languages()
{
    QStringList names;
    for (int i = QLocale::C + 1; i <= QLocale::LastLanguage; ++i) {
        const QString name = QLocale::languageToString(static_cast<QLocale::Language>(i));
        if (!name.isEmpty())
            names += name;
    }
    names.sort();
    return names;
}

Card *makeProfile()
{
    auto *card = new Card(tr("Profile"),
                          tr("The name has a counter. The first list is long, the second opens "
                             "upwards, the third without animation."));
    OxaTextInput *name = Fields::input(tr("Name"));
    name->setMaxLength(longestName);
    name->setPlaceholderText(tr("As others see it"));
    addField(card->body(), tr("Name"), name);

    OxaComboBox *language = Fields::combo(tr("Language"), languages());
    language->setCurrentText(QStringLiteral("English"));
    OxaComboBox *captions = Fields::combo(tr("Captions"),
                                          { tr("Off"), tr("In calls"), tr("Always") });
    captions->setOpenedUpwards(true);
    OxaComboBox *day = Fields::combo(tr("First day"),
                                     { tr("Monday"), tr("Saturday"), tr("Sunday") });
    day->setComboBoxAnimationEnabled(false);
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::spacing);
    addField(card->body(), tr("Language"), language);
    addField(row, tr("Captions"), captions);
    addField(row, tr("First day"), day);
    card->body()->addLayout(row);

    auto *who = new QHBoxLayout;
    who->setSpacing(Metrics::gap);
    for (const QString &text : { tr("Visible to everyone"), tr("To contacts only") })
        who->addWidget(Fields::radioButton(text));
    who->itemAt(0)->widget()->setProperty("checked", true);
    who->addStretch(1);
    card->body()->addLayout(who);
    addButton(card, tr("Save"));
    return card;
}

/// Marks each place of \a text in \a browser, and shows the first.
void mark(QTextBrowser *browser, const QString &text)
{
    QList<QTextEdit::ExtraSelection> marks;
    QTextCursor match = browser->document()->find(text);
    for (; !match.isNull(); match = browser->document()->find(text, match)) {
        marks += { match, {} };
        marks.last().format.setBackground(browser->palette().highlight());
        marks.last().format.setForeground(browser->palette().highlightedText());
    }
    browser->setExtraSelections(marks);
    if (!marks.isEmpty())
        browser->setTextCursor(QTextCursor(marks.first().cursor.block()));
}

QString notes()
{
    return tr("<h3>Minutes</h3><p>Write on the left and read on the right. The <a "
              "href=\"#agenda\">agenda</a> is a link.</p><ul><li>Colours follow the theme.</li>"
              "<li>Tab leaves the editor.</li></ul>");
}

Card *makeNotes()
{
    auto *card = new Card(tr("Notes"), tr("An editor, and a browser that shows the same text."));
    OxaTextEdit *editor = Fields::edit(tr("Editor"));
    OxaTextBrowser *browser = Fields::browser(tr("Browser"));
    OxaTextInput *search = Fields::search(tr("Search the notes"));
    const auto find = [browser, search] { mark(browser, search->text()); };
    QObject::connect(editor, &QTextEdit::textChanged, browser, [editor, browser, find] {
        browser->setHtml(editor->toHtml());
        find();
    });
    QObject::connect(search, &OxaTextInput::textChanged, browser, find);
    QObject::connect(browser, &OxaTextBrowser::themeTypeChanged, browser, find);
    editor->setHtml(notes());
    auto *row = new QHBoxLayout;
    row->setSpacing(Metrics::spacing);
    for (QTextEdit *area : std::initializer_list<QTextEdit *> { editor, browser }) {
        area->setFixedHeight(notesHeight);
        row->addWidget(area);
    }
    card->body()->addWidget(search);
    card->body()->addLayout(row);
    return card;
}

void addLineEdit(Page &page)
{
    const auto make = [] {
        OxaLineEdit *field = Fields::line();
        field->setAccessibleName(tr("Line"));
        field->setPlaceholderText(tr("Placeholder"));
        field->setFixedWidth(fieldWidth);
        return field;
    };
    auto *controls = WidgetCard::add(
            page, tr("OxaLineEdit"),
            tr("A line of text whose placeholder has a colour set, and whose context menu has the "
               "colours of the theme."),
            make);
    controls->offer("placeholderColorSetName",
                    { { tr("Placeholder"), QStringLiteral("gallery-field-placeholder-text") },
                      { tr("Link"), QStringLiteral("button-hyperlink-text") },
                      { tr("Busy"), QStringLiteral("presence-busy") } });
    controls->addProperty("text");
    controls->addProperty("clearButtonEnabled");
    controls->addAll();
}

void addTextInput(Page &page)
{
    const auto make = [] {
        OxaTextInput *field = Fields::input(tr("Word"));
        field->setPlaceholderText(tr("A word in lower case"));
        field->setInputValidator([](const QString &text) { return text == text.toLower(); }, true);
        field->setFixedWidth(fieldWidth);
        return field;
    };
    auto *controls = WidgetCard::add(
            page, tr("OxaTextInput"),
            tr("A field with a counter, a button that clears it or shows a password, and a search "
               "icon. Type an upper-case letter to see the error look."),
            make);
    controls->setRange("maxLength", 1, longestName);
    controls->addChoice(tr("setText()"),
                        { { tr("None"), QString() },
                          { tr("Valid"), tr("word") },
                          { tr("Invalid"), tr("WORD") } },
                        [](QWidget *widget, const QVariant &text) {
                            widget->setProperty("text", text);
                        });
    controls->addAll();
    controls->addChoice(tr("setPasswordField()"), PropertyControls::noAndYes(),
                        [](QWidget *widget, const QVariant &isPassword) {
                            qobject_cast<OxaTextInput *>(widget)->setPasswordField(
                                    isPassword.toBool());
                        });
}

void addComboBox(Page &page)
{
    const auto make = [] {
        return Fields::combo(tr("Weekday"), { tr("Monday"), tr("Wednesday"), tr("Friday") });
    };
    auto *controls = WidgetCard::add(
            page, tr("OxaComboBox"),
            tr("A list in the colours of the theme, which can open upwards or without animation. "
               "Without its list it is one big button."),
            make);
    const PropertyControls::Choice filter = { tr("Filter"), WidgetCard::icon("filter_16") };
    controls->offer("Icon", { { tr("Arrow"), WidgetCard::icon("arrow-down_8") }, filter });
    controls->offer("IconExpanded", { { tr("Arrow"), WidgetCard::icon("arrow-up_8") }, filter });
    controls->offer("BackgroundColor",
                    { { tr("Own"), QString() },
                      { tr("Chip"), QStringLiteral("gallery-chip-background") },
                      { tr("Selection"), QStringLiteral("gallery-selection-background") } });
    controls->addChoice(tr("setEditable()"), PropertyControls::noAndYes(),
                        [](QWidget *widget, const QVariant &isEditable) {
                            qobject_cast<OxaComboBox *>(widget)->setEditable(isEditable.toBool());
                        });
    // A property that only a function sets.
    controls->addNumber(tr("svgDropdownIconPadding"), 0, Metrics::gap,
                        controls->front()->property("svgDropdownIconPadding").toInt(),
                        [](QWidget *widget, const QVariant &padding) {
                            qobject_cast<OxaComboBox *>(widget)->setSvgDropdownIconPaddingRight(
                                    padding.toInt());
                        });
    controls->addAll();
}

void addCheckBox(Page &page)
{
    auto *controls = WidgetCard::add(
            page, tr("OxaCheckBox"),
            tr("The box stands on any side of the text, and a click anywhere in the widget "
               "toggles it."),
            [] { return Fields::checkBox(tr("Remember me")); });
    const PropertyControls::Choices icons = WidgetCard::icons(
            { tr("Tick"), WidgetCard::icon("check_12_w") });
    controls->offer("svgIcon", icons);
    controls->offer("innerSvgIcon", icons);
    controls->offer("ColorSet", WidgetCard::colorSets());
    controls->addProperty("text");
    controls->addProperty("tristate");
    controls->addAll();
}

void addRadioButton(Page &page)
{
    auto *controls = WidgetCard::add(page, tr("OxaRadioButton"),
                                     tr("Painted by the style, with a dotted frame for the "
                                        "keyboard's focus."),
                                     [] { return Fields::radioButton(tr("Everyone")); });
    controls->addProperty("text");
    controls->addProperty("autoExclusive");
}

template <typename Area>
void addArea(Page &page, const QString &heading, const QString &explanation,
             Area *(*makeArea)(const QString &, QWidget *))
{
    const auto make = [heading, makeArea] {
        Area *area = makeArea(heading, nullptr);
        area->setHtml(tr("Some <b>bold</b> text<br>and a <a href=\"#link\">link</a>"));
        area->setFixedSize(fieldWidth, areaHeight);
        return area;
    };
    auto *controls = WidgetCard::add(page, heading, explanation, make);
    controls->addProperty("readOnly");
    controls->addAll();
}

} // namespace

Page *Pages::makeForms(QWidget *parent)
{
    auto *page = new Page(tr("Forms"),
                          tr("Fields, lists and boxes at work in three forms, and below them each "
                             "control in its states."),
                          parent);
    ColumnsLayout *forms = page->makeColumns();
    forms->addWidget(makeSignIn());
    forms->addWidget(makeProfile());
    forms->addWideWidget(makeNotes());
    addTextInput(*page);
    addLineEdit(*page);
    addComboBox(*page);
    addCheckBox(*page);
    addRadioButton(*page);
    addArea<OxaTextEdit>(*page, tr("OxaTextEdit"),
                         tr("A field for rich text. Tab leaves it, and its context menu has the "
                            "colours of the theme."),
                         Fields::edit);
    addArea<OxaTextBrowser>(*page, tr("OxaTextBrowser"), tr("A reader of rich text with links."),
                            Fields::browser);
    page->body()->addStretch(1);
    return page;
}
