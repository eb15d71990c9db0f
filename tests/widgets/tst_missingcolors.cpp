// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/emoji/OxaEmojiPushButton.h>
#include <UiElements/svg/DrawUtils.h>
#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaRadioButton.h>
#include <UiElements/widgets/OxaToggleButton.h>
#include <UiElements/widgets/OxaUnderlineButton.h>

#include <QPainter>

#include <functional>

namespace {

constexpr QSize size(120, 40);
const QString text = QStringLiteral("abc");
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
void addIcons(Widget &widget, const QString &file)
{
    widget.setSvgIcon(file);
    widget.setSvgIconColorSet(missing);
    widget.setInnerSvgIcon(file);
    widget.setInnerSvgIconSize(QSize(8, 8));
    widget.setInnerSvgIconColorSet(missing);
}

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
    void paintsNoFocusFrameInColorsThatAreMissing_data();
    void paintsNoFocusFrameInColorsThatAreMissing();
    void paintsNoUnreadIndicatorInColorsThatAreMissing();
    void tintsNothingInAColorThatIsMissing();

private:
    SvgFiles m_files;
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
    const QString file = m_files.square();
    const auto addRow = [](const char *name, const Make &make) { QTest::newRow(name) << make; };
    addRow("SVG label", [file] {
        auto label = std::make_unique<OxaSvgLabel>(text);
        label->setCSS(missingSets);
        addIcons(*label, file);
        return label;
    });
    addRow("push button with a badge", [] {
        auto button = flatButton<OxaPushButton>();
        button->setBadgeVisible(true);
        button->setFocusRectColorSet(missing);
        return button;
    });
    addRow("SVG button", [file] {
        auto button = flatButton<OxaSvgPushButton>(text);
        addIcons(*button, file);
        button->setSvgIconChecked(file);
        return button;
    });
    addRow("SVG button with a rich text", [] {
        auto button = flatButton<OxaSvgPushButton>();
        button->setTextFormat(Qt::RichText);
        button->setText(QStringLiteral("<b>abc</b>"));
        return button;
    });
    addRow("anchor button", [file] {
        auto button = flatButton<OxaSvgAnchorButton>(text);
        addIcons(*button, file);
        button->setAnchorSvgOn(file);
        button->setAnchorSvgOff(file);
        button->setAnchorSvgColorSet(missing);
        return button;
    });
    addRow("pill", [file] {
        auto button = std::make_unique<OxaPillTabButton>(text);
        button->setSvgIcon(file);
        // Its style text comes from its properties; the sheet on top only removes Qt's frame.
        button->setStyleSheet(flatSheet);
        return button;
    });
    addRow("underline button", [file] {
        auto button = std::make_unique<OxaUnderlineButton>();
        button->setText(text);
        button->setUnderlineColorSet(missing);
        button->setAnchorIcon(file);
        button->setShowUnreadIndicator(true);
        return button;
    });
    for (const bool isRounded : { false, true }) {
        addRow(isRounded ? "rounded check box" : "check box", [file, isRounded] {
            auto checkBox = std::make_unique<OxaCheckBox>(nullptr, isRounded);
            checkBox->setText(text);
            addIcons(*checkBox, file);
            return checkBox;
        });
    }
}

void tst_MissingColors::paintsNothingInColorsThatAreMissing()
{
    QFETCH(const Make, make);
    for (const auto &[face, name] : Faces::all) {
        QWidget window;
        const auto widget = make();
        widget->setParent(&window);
        // Under the pointer, its outline is in the palette's colour.
        const bool hasOutline = qobject_cast<OxaUnderlineButton *>(widget.get());
        if (face == Faces::Face::Hovered && hasOutline)
            continue;
        const bool isButton = qobject_cast<QAbstractButton *>(widget.get());
        if (!isButton && (face == Faces::Face::Pressed || face == Faces::Face::Checked))
            continue;
        widget->resize(size);
        QVERIFY(Faces::put(*widget, face));
        widget->resize(size);
        if (auto *pill = qobject_cast<OxaPillTabButton *>(widget.get()))
            pill->setStyleSheet(flatSheet); // Again: it has set one of its own.
        QVERIFY2(Pixels::render(*widget) == Pixels::paper(widget->size()), name);
    }
}

void tst_MissingColors::looksLikeQtsWidget_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<Make>("makePeer");
    const auto addRow = [](const char *name, const Make &make, const Make &makePeer) {
        QTest::newRow(name) << make << makePeer;
    };
    const auto withText = [](auto widget) {
        widget->setText(text);
        return widget;
    };
    const Make makeLabel = [withText] { return withText(std::make_unique<QLabel>()); };
    addRow(
            "label",
            [withText] {
                auto label = withText(std::make_unique<OxaLabel>());
                label->setCSS(missingSets);
                return label;
            },
            makeLabel);
    addRow(
            "label that elides",
            [withText] {
                auto label = withText(std::make_unique<OxaLabel>());
                label->setElideMode(Qt::ElideRight);
                label->setCSS(missingSets);
                return label;
            },
            makeLabel);
    const Make makeEmojiLabel = [withText] { return withText(std::make_unique<OxaEmojiLabel>()); };
    addRow(
            "emoji label",
            [withText] {
                auto label = withText(std::make_unique<OxaEmojiLabel>());
                label->setCSS(missingSets);
                return label;
            },
            makeEmojiLabel);
    addRow(
            "emoji button",
            [withText] {
                auto button = withText(std::make_unique<OxaEmojiPushButton>());
                button->setCSS(missingSets);
                return button;
            },
            [withText] { return withText(std::make_unique<OxaEmojiPushButton>()); });
    const Make makeFlat = [withText] {
        auto button = withText(std::make_unique<QPushButton>());
        button->setStyleSheet(flatSheet);
        button->setAutoDefault(true);
        return button;
    };
    addRow(
            "push button", [] { return flatButton<OxaPushButton>(text); }, makeFlat);
    addRow(
            "toggle button", [] { return flatButton<OxaToggleButton>(text); }, makeFlat);
    addRow(
            "radio button", [] { return std::make_unique<OxaRadioButton>(text); },
            [withText] { return withText(std::make_unique<QRadioButton>()); });
}

void tst_MissingColors::looksLikeQtsWidget()
{
    QFETCH(const Make, make);
    QFETCH(const Make, makePeer);
    for (const auto &[face, name] : Faces::all) {
        const auto widget = make();
        const auto peer = makePeer();
        const bool isButton = qobject_cast<QAbstractButton *>(widget.get());
        if (!isButton && (face == Faces::Face::Pressed || face == Faces::Face::Checked))
            continue;
        // A label's frame is in the inverse of the colour that is behind it.
        if (face == Faces::Face::Focused && widget->inherits("OxaLabel"))
            continue;
        peer->setFont(widget->font());
        peer->setAttribute(Qt::WA_Hover, widget->testAttribute(Qt::WA_Hover));
        for (QWidget *each : { peer.get(), widget.get() })
            each->resize(size);
        QVERIFY(Faces::put(*peer, face));
        const QImage expected = Pixels::render(*peer);
        QVERIFY(Faces::put(*widget, face));
        QVERIFY2(Pixels::render(*widget) == expected, name);
    }
}

void tst_MissingColors::paintsNoPictureInColorsThatAreMissing()
{
    const QString file = m_files.square();
    OxaSvgIcon icon(file);
    icon.setInnerFilePath(file);
    const OxaSvgRenderer renderer(file);
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
