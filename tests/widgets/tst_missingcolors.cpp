// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/svg/DrawUtils.h>
#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaRadioButton.h>
#include <UiElements/widgets/OxaToggleButton.h>
#include <UiElements/widgets/OxaUnderlineButton.h>

#include <QPainter>

#include <functional>

namespace {

constexpr QSize size(120, 40);
const QString text = QStringLiteral("abc");
const QString squareFile = QStringLiteral(":/widgets/square.svg");
const QString missing = QStringLiteral("missing");
const QString missingSets = QStringLiteral("$textColors: missing; $backgroundColors: missing; "
                                           "$borderColors: missing;");
/// The same for a button, with a sheet that keeps Qt from painting a frame.
const QString flatSheet = QStringLiteral("QPushButton { border: none; outline: none; } ");

using Make = std::function<std::unique_ptr<QWidget>()>;

/// Takes the warnings about sets that don't exist; other messages go on.
class MissingSets
{
    Q_DISABLE_COPY_MOVE(MissingSets)

public:
    MissingSets() { s_before = qInstallMessageHandler(&MissingSets::pass); }
    ~MissingSets() { qInstallMessageHandler(s_before); }

private:
    static void pass(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (!message.startsWith(QLatin1String("ColorSet name does not exist!")))
            s_before(type, context, message);
    }

    static QtMessageHandler s_before;
};

QtMessageHandler MissingSets::s_before = nullptr;

/// Returns the picture of an opaque square.
QPixmap squarePixmap()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(QColor(40, 200, 40));
    return pixmap;
}

template <typename Button>
std::unique_ptr<Button> flatButton(const QString &buttonText = QString())
{
    auto button = std::make_unique<Button>();
    button->setText(buttonText);
    button->setCSS(flatSheet + missingSets);
    return button;
}

/// Gives \a widget icons in colours that are missing.
template <typename Widget>
void addIcons(Widget &widget)
{
    widget.setSvgIcon(squareFile);
    widget.setSvgIconColorSet(missing);
    widget.setInnerSvgIcon(squareFile);
    widget.setInnerSvgIconSize(QSize(8, 8));
    widget.setInnerSvgIconColorSet(missing);
}

template <typename Widget>
std::unique_ptr<Widget> withText()
{
    auto widget = std::make_unique<Widget>();
    widget->setText(text);
    return widget;
}

template <typename Widget>
std::unique_ptr<Widget> styled()
{
    auto widget = withText<Widget>();
    widget->setCSS(missingSets);
    return widget;
}

std::unique_ptr<QWidget> makeFlatPeer()
{
    auto button = withText<QPushButton>();
    button->setStyleSheet(flatSheet);
    button->setAutoDefault(true);
    return button;
}

std::unique_ptr<QWidget> makeCheckBox(bool isRounded)
{
    auto checkBox = std::make_unique<OxaCheckBox>(nullptr, isRounded);
    checkBox->setText(text);
    addIcons(*checkBox);
    return checkBox;
}

/// Whether \a widget knows \a face.
bool hasFace(const QWidget &widget, Faces::Face face)
{
    return qobject_cast<const QAbstractButton *>(&widget)
            || (face != Faces::Face::Pressed && face != Faces::Face::Checked);
}

/// Returns whether a widget of \a make paints nothing with \a face.
bool paintsNothing(const Make &make, Faces::Face face)
{
    QWidget window;
    const auto widget = make();
    widget->setParent(&window);
    // Under the pointer, its outline is in the palette's colour.
    const bool hasOutline = face == Faces::Face::Hovered && widget->inherits("OxaUnderlineButton");
    if (hasOutline || !hasFace(*widget, face))
        return true;
    widget->resize(size);
    if (!Faces::put(*widget, face))
        return false;
    widget->resize(size);
    if (widget->inherits("OxaPillTabButton"))
        widget->setStyleSheet(flatSheet); // Last: it sets one of its own.
    return Pixels::render(*widget) == Pixels::paper(widget->size());
}

/// Returns whether widgets of \a make and \a makePeer look alike with \a face.
bool lookAlike(const Make &make, const Make &makePeer, Faces::Face face)
{
    const auto widget = make();
    const auto peer = makePeer();
    // A label's frame is in the inverse of the colour that is behind it.
    const bool hasFrame = face == Faces::Face::Focused && widget->inherits("OxaLabel");
    if (hasFrame || !hasFace(*widget, face))
        return true;
    peer->setFont(widget->font());
    peer->setAttribute(Qt::WA_Hover, widget->testAttribute(Qt::WA_Hover));
    for (QWidget *each : { peer.get(), widget.get() })
        each->resize(size);
    if (!Faces::put(*peer, face))
        return false;
    const QImage expected = Pixels::render(*peer);
    return Faces::put(*widget, face) && Pixels::render(*widget) == expected;
}

/// Widgets that paint nothing without colours.
const std::pair<const char *, Make> painters[] = {
    { "SVG label",
      [] {
          auto label = std::make_unique<OxaSvgLabel>(text);
          label->setCSS(missingSets);
          addIcons(*label);
          return label;
      } },
    { "push button with a badge",
      [] {
          auto button = flatButton<OxaPushButton>();
          button->setBadgeVisible(true);
          button->setFocusRectColorSet(missing);
          return button;
      } },
    { "SVG button",
      [] {
          auto button = flatButton<OxaSvgPushButton>(text);
          addIcons(*button);
          button->setSvgIconChecked(squareFile);
          return button;
      } },
    { "SVG button with a rich text",
      [] {
          auto button = flatButton<OxaSvgPushButton>();
          button->setTextFormat(Qt::RichText);
          button->setText(QStringLiteral("<b>abc</b>"));
          return button;
      } },
    { "anchor button",
      [] {
          auto button = flatButton<OxaSvgAnchorButton>(text);
          addIcons(*button);
          button->setAnchorSvgOn(squareFile);
          button->setAnchorSvgOff(squareFile);
          button->setAnchorSvgColorSet(missing);
          return button;
      } },
    { "pill",
      [] {
          auto button = std::make_unique<OxaPillTabButton>(text);
          button->setSvgIcon(squareFile);
          return button;
      } },
    { "underline button",
      [] {
          auto button = std::make_unique<OxaUnderlineButton>();
          button->setText(text);
          button->setUnderlineColorSet(missing);
          button->setAnchorIcon(squareFile);
          button->setShowUnreadIndicator(true);
          return button;
      } },
    { "check box", [] { return makeCheckBox(false); } },
    { "rounded check box", [] { return makeCheckBox(true); } },
};

/// A widget, and one that looks like it.
struct Alike
{
    const char *name;
    Make make;
    Make makePeer;
};

/// Widgets whose texts or boxes Qt paints, in the palette's colours without any of ours.
const Alike alikes[] = {
    { "label", [] { return styled<OxaLabel>(); }, [] { return withText<QLabel>(); } },
    { "label that elides",
      [] {
          auto label = styled<OxaLabel>();
          label->setElideMode(Qt::ElideRight);
          return label;
      },
      [] { return withText<QLabel>(); } },
    { "emoji label", [] { return styled<OxaEmojiLabel>(); },
      [] { return withText<OxaEmojiLabel>(); } },
    { "emoji button", [] { return styled<OxaEmojiPushButton>(); },
      [] { return withText<OxaEmojiPushButton>(); } },
    { "push button", [] { return flatButton<OxaPushButton>(text); }, &makeFlatPeer },
    { "toggle button", [] { return flatButton<OxaToggleButton>(text); }, &makeFlatPeer },
    { "radio button", [] { return withText<OxaRadioButton>(); },
      [] { return withText<QRadioButton>(); } },
};

} // namespace

Q_DECLARE_METATYPE(Make)

/// Painting with names of colour sets that the theme lacks, where Qt would take black.
class tst_MissingColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void paintsNothingInColorsThatAreMissing_data();
    void paintsNothingInColorsThatAreMissing();
    void looksLikeQtsWidget_data();
    void looksLikeQtsWidget();
    void paintsNoPictureInColorsThatAreMissing();
    void paintsNoArrowInColorsThatAreMissing();
    void paintsNoFocusFrameInColorsThatAreMissing_data();
    void paintsNoFocusFrameInColorsThatAreMissing();
    void paintsNoUnreadIndicatorInColorsThatAreMissing();
    void tintsNothingInAColorThatIsMissing();

private:
    std::unique_ptr<StoreGuard> m_stores;
    std::unique_ptr<MissingSets> m_warnings;
};

void tst_MissingColors::init()
{
    m_stores = std::make_unique<StoreGuard>(
            ColorSets::storeOf({ OxaColorSet(QStringLiteral("other"), Qt::red) }));
    m_warnings = std::make_unique<MissingSets>();
}

void tst_MissingColors::cleanup()
{
    m_warnings.reset();
    m_stores.reset();
}

void tst_MissingColors::paintsNothingInColorsThatAreMissing_data()
{
    QTest::addColumn<Make>("make");
    for (const auto &[name, make] : painters)
        QTest::newRow(name) << make;
}

void tst_MissingColors::paintsNothingInColorsThatAreMissing()
{
    QFETCH(const Make, make);
    for (const auto &[face, name] : Faces::all)
        QVERIFY2(paintsNothing(make, face), name);
}

void tst_MissingColors::looksLikeQtsWidget_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<Make>("makePeer");
    for (const Alike &alike : alikes)
        QTest::newRow(alike.name) << alike.make << alike.makePeer;
}

void tst_MissingColors::looksLikeQtsWidget()
{
    QFETCH(const Make, make);
    QFETCH(const Make, makePeer);
    for (const auto &[face, name] : Faces::all)
        QVERIFY2(lookAlike(make, makePeer, face), name);
}

void tst_MissingColors::paintsNoPictureInColorsThatAreMissing()
{
    OxaSvgIcon icon(squareFile);
    icon.setInnerFilePath(squareFile);
    const OxaSvgRenderer renderer(squareFile);
    const QImage image = Pixels::drawing(size, [&](QPainter *painter) {
        icon.draw(painter, QStyle::State_Enabled);
        icon.draw(painter, QStyle::State_None);
        renderer.draw(painter, QRectF(QPointF(), size), QColor(), 1.0);
        painter->drawPixmap(0, 0, renderer.renderPixmap(QSize(16, 16), 1.0, QColor()));
        painter->drawPixmap(0, 0,
                            renderer.renderPixmap(QSize(8, 8), QSize(16, 16), 1.0, QColor(),
                                                  QColor()));
    });
    QCOMPARE(image, Pixels::paper(size));
}

void tst_MissingColors::paintsNoArrowInColorsThatAreMissing()
{
    OxaComboBox box; // Without a name it has no sheet, so that Qt paints the rest as always.
    box.setSvgDropdownIcon(squareFile);
    QComboBox peer;
    box.resize(100, 30);
    peer.resize(100, 30);
    QCOMPARE(Pixels::render(box), Pixels::render(peer));
}

void tst_MissingColors::paintsNoFocusFrameInColorsThatAreMissing_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("default color") << QColor();
    QTest::newRow("color of a text that names none") << QColor(QStringLiteral("no such color"));
}

void tst_MissingColors::paintsNoFocusFrameInColorsThatAreMissing()
{
    QFETCH(const QColor, color);
    constexpr auto keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    const QRect rect(2, 2, 9, 9);
    QImage image = squarePixmap().toImage();
    QPainter painter(&image);
    DrawUtils::drawFocusRect(&painter, keyboardFocus, rect, color, nullptr);
    DrawUtils::drawLegacyFocusRect(&painter, keyboardFocus, rect, color);
    painter.end();
    QCOMPARE(image, squarePixmap().toImage());
}

void tst_MissingColors::paintsNoUnreadIndicatorInColorsThatAreMissing()
{
    const QImage before = squarePixmap().toImage();
    for (const unsigned count : { 0U, 12U }) {
        QPixmap pixmap = squarePixmap();
        DrawUtils::drawUnreadIndicator(pixmap, QPointF(4, 4), count);
        QCOMPARE(pixmap.toImage(), before);
    }
}

void tst_MissingColors::tintsNothingInAColorThatIsMissing()
{
    const QImage before = squarePixmap().toImage();
    OxaPushButton button;
    button.setIcon(QIcon(squarePixmap()));
    button.setIconSize(QSize(16, 16));
    button.setIconColor(QColor(), QIcon::Normal);
    QCOMPARE(button.icon().pixmap(16, 16).toImage().convertToFormat(before.format()), before);
    OxaLabel label;
    label.setPixmap(squarePixmap());
    label.setPixmapColor(QColor());
    QCOMPARE(label.pixmap(Qt::ReturnByValue).toImage(), before);
}

UIELEMENTS_TEST_MAIN(tst_MissingColors)
#include "tst_missingcolors.moc"
