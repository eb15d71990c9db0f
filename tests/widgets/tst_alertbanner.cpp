// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/widgets/AlertBanner.h>

#include <QLayout>
#include <QSignalSpy>
#include <QStyle>

namespace {

using Type = AlertBanner::AlertType;
using Info = AlertBanner::AlertBannerInfo;

const QString warningIcon = QStringLiteral("qrc:/Resources/warning_12.svg");
const QString infoIcon = QStringLiteral("qrc:/Resources/info_16.svg");
const QString warningStyle = QStringLiteral(
        "$backgroundColors: alertBackground-warning; $textColors: alertText-warning;");

OxaSvgLabel &iconOf(const AlertBanner &banner)
{
    return *banner.findChild<OxaSvgLabel *>(QStringLiteral("alertIcon"));
}

OxaLabel &labelOf(const AlertBanner &banner)
{
    return *banner.findChild<OxaLabel *>(QStringLiteral("alertLabel"));
}

/// Returns the names of the background's and the text's set.
template <typename Widget>
QString setsOf(const Widget &widget)
{
    const OxaCSSData style = widget.getOxaCSS();
    return style.backgroundColorSetName + QLatin1Char(' ') + style.textColorSetName;
}

Info infoOf(Type type)
{
    Info info;
    info.alertType = type;
    return info;
}

Info textOf(const QString &text)
{
    Info info;
    info.alertText = text;
    return info;
}

/// Returns where the items of the banner's layout are, from left to right: "0-11 12-23".
QString itemsOf(const AlertBanner &banner)
{
    QStringList texts;
    for (int i = 0; i < banner.layout()->count(); ++i) {
        const QRect geometry = banner.layout()->itemAt(i)->geometry();
        texts += QString::number(geometry.left()) + QLatin1Char('-')
                + QString::number(geometry.right());
    }
    return texts.join(QLatin1Char(' '));
}

/// A banner in a window that is larger.
struct Window
{
    explicit Window(const Info &info) : banner(new AlertBanner(&window))
    {
        window.resize(800, 300);
        banner->setAlert(info);
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("The window is not active.");
    }

    QWidget window;
    AlertBanner *const banner;
};

} // namespace

Q_DECLARE_METATYPE(AlertBanner::AlertType)

/// AlertBanner, without inherited members.
class tst_AlertBanner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void startsAsAWarningWithoutAText();
    void laysItsPartsOutInARow();
    void makesItsIconOfAFixedSize();
    void makesItsLabelForRichTextWithLinks();

    void looksLikeItsType_data();
    void looksLikeItsType();
    void stylesLabelIconAndItselfInThisOrder();
    void keepsTheIconOfAnInformation();
    void paintsBackgroundIconAndText_data();
    void paintsBackgroundIconAndText();

    void takesTextWrapAndSize();
    void wrapsALongTextInsideItself();
    void clipsALongLineWithoutWrap();
    void paintsSharplyAtTwoDevicePixels();
    void paintsFromTheRightInARightToLeftApplication_data();
    void paintsFromTheRightInARightToLeftApplication();
    void hidesTheIconAndItsSpaceForGood();

    void announcesAClickOnALink();
    void announcesLinksByKeyboard();
    void announcesNothingWithoutALink();
    void survivesItsDeletionByASlotOfAPart_data();
    void survivesItsDeletionByASlotOfAPart();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_AlertBanner::initTestCase()
{
    const auto set = [](const char *name, const char *color) {
        return ColorSets::make(QString::fromLatin1(name), { color });
    };
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { set("alertText-error", "#800000"), set("alertBackground-error", "#ffc0c0"),
              set("alertText-warning", "#806000"), set("alertBackground-warning", "#fff0a0"),
              set("text-secondary", "#404040"), set("background-primary", "#e0e0ff"),
              set("oxa-footer-warning-icon", "#c000c0"),
              set("button-hyperlink-text", "#0000ff") }));
}

void tst_AlertBanner::startsAsAWarningWithoutAText()
{
    QWidget parent;
    const AlertBanner banner(&parent);
    QCOMPARE(banner.parent(), &parent);
    QCOMPARE(banner.objectName(), QStringLiteral("AlertBanner"));
    QCOMPARE(banner.size(), QSize(400, 56));
    QCOMPARE(banner.property("css").toString(), warningStyle);
    QCOMPARE(labelOf(banner).text(), QString());
    QCOMPARE(iconOf(banner).text(), QString());
}

void tst_AlertBanner::laysItsPartsOutInARow()
{
    const AlertBanner banner;
    QLayout *layout = banner.layout();
    QCOMPARE(layout->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(),
             QMargins(0, 0, 0,
                      banner.style()->pixelMetric(QStyle::PM_LayoutBottomMargin, nullptr,
                                                  &banner)));
    QCOMPARE(layout->count(), 4);
    for (const int i : { 0, 2 }) {
        const QSpacerItem *spacer = layout->itemAt(i)->spacerItem();
        QCOMPARE(spacer->sizeHint(), i == 0 ? QSize(12, 12) : QSize(8, 8));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    }
    QCOMPARE(layout->itemAt(1)->widget(), &iconOf(banner));
    QCOMPARE(layout->itemAt(3)->widget(), &labelOf(banner));
}

void tst_AlertBanner::makesItsIconOfAFixedSize()
{
    const AlertBanner banner;
    const OxaSvgLabel &icon = iconOf(banner);
    QCOMPARE(icon.minimumSize(), QSize(12, 12));
    QCOMPARE(icon.maximumSize(), QSize(12, 12));
    QCOMPARE(icon.sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(icon.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(icon.focusPolicy(), Qt::NoFocus);
    QCOMPARE(icon.getCSS(), QStringLiteral("$textColors: oxa-footer-warning-icon;"));
    QCOMPARE(icon.getSvgIcon(), warningIcon);
    QCOMPARE(icon.getSvgIconSize(), QSize(12, 12));
}

void tst_AlertBanner::makesItsLabelForRichTextWithLinks()
{
    const AlertBanner banner;
    const OxaLabel &label = labelOf(banner);
    QCOMPARE(label.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(label.textFormat(), Qt::RichText);
    QVERIFY(label.wordWrap());
    QVERIFY(!label.openExternalLinks());
    QCOMPARE(label.textInteractionFlags(),
             Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    QCOMPARE(label.getCSS(), warningStyle);
}

void tst_AlertBanner::looksLikeItsType_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QString>("sets");
    QTest::addColumn<QString>("icon");
    const auto add = [](const char *name, Type type, const char *sets, const QString &icon) {
        QTest::newRow(name) << type << QString::fromLatin1(sets) << icon;
    };
    const char *const other = "background-primary text-secondary";
    add("0, an error", Type(0), "alertBackground-error alertText-error", warningIcon);
    add("1, a warning", Type(1), "alertBackground-warning alertText-warning", warningIcon);
    add("2, an information", Type(2), other, infoIcon);
    add("another value", Type(3), other, warningIcon);
    add("a negative value", Type(-1), other, warningIcon);
}

void tst_AlertBanner::looksLikeItsType()
{
    QFETCH(const Type, type);
    AlertBanner banner;
    banner.setAlert(infoOf(type));
    QTEST(setsOf(banner), "sets");
    QTEST(setsOf(labelOf(banner)), "sets");
    QTEST(setsOf(iconOf(banner)), "sets");
    QTEST(iconOf(banner).getSvgIcon(), "icon");
    QCOMPARE(iconOf(banner).getSvgIconSize(), QSize(12, 12));
}

void tst_AlertBanner::stylesLabelIconAndItselfInThisOrder()
{
    AlertBanner banner;
    SignalLog log;
    log.record(&banner, &AlertBanner::cssChanged, QStringLiteral("banner"));
    log.record(&labelOf(banner), &OxaLabel::cssChanged, QStringLiteral("label"));
    log.record(&iconOf(banner), &OxaSvgLabel::cssChanged, QStringLiteral("icon"));
    log.record(&iconOf(banner), &OxaSvgLabel::svgIconChanged, QStringLiteral("picture"));
    banner.setAlert(infoOf(Type::Info));
    QCOMPARE(log.take(), QStringLiteral("picture | label | icon | banner"));
    banner.setAlert(infoOf(Type::Error));
    QCOMPARE(log.take(), QStringLiteral("label | icon | banner"));
}

void tst_AlertBanner::keepsTheIconOfAnInformation()
{
    AlertBanner banner;
    banner.setAlert(infoOf(Type::Info));
    banner.setAlert(infoOf(Type::Warning));
    QCOMPARE(setsOf(banner), QStringLiteral("alertBackground-warning alertText-warning"));
    QCOMPARE(iconOf(banner).getSvgIcon(), infoIcon);
}

void tst_AlertBanner::paintsBackgroundIconAndText_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("text");
    // An icon of an even height is half a pixel off the text's middle: it fills eleven rows.
    QTest::addColumn<int>("iconPixels");
    QTest::newRow("an error") << Type::Error << QColor(0xffc0c0) << QColor(0x800000) << 12 * 11;
    QTest::newRow("a warning") << Type::Warning << QColor(0xfff0a0) << QColor(0x806000) << 12 * 11;
    QTest::newRow("an information") << Type::Info << QColor(0xe0e0ff) << QColor(0x404040) << 6 * 11;
}

void tst_AlertBanner::paintsBackgroundIconAndText()
{
    QFETCH(const Type, type);
    QFETCH(const QColor, background);
    QFETCH(const QColor, text);
    Info info = infoOf(type);
    info.alertText = QStringLiteral("Hello");
    const Window window(info);
    const AlertBanner &banner = *window.banner;
    const QImage image = Pixels::render(*window.banner);
    QCOMPARE(image.pixelColor(2, 2), background);
    QCOMPARE(image.pixelColor(398, 54), background);
    QTEST(Pixels::countNear(image, text, iconOf(banner).geometry(), 8), "iconPixels");
    QVERIFY(Pixels::countNear(image, text, labelOf(banner).geometry()) > 20);
}

void tst_AlertBanner::paintsSharplyAtTwoDevicePixels()
{
    const Window window(textOf(QStringLiteral("Hello")));
    const QImage image = Pixels::render(*window.banner, Qt::white, 2.0);
    QCOMPARE(image.size(), 2 * window.banner->size());
    QCOMPARE(image.pixelColor(799, 111), QColor(0xffc0c0));
    // Half a pixel off the text's middle is one row of the device, which is cut off.
    const QRect icon = iconOf(*window.banner).geometry();
    const QRect area(2 * icon.topLeft(), 2 * icon.size());
    QCOMPARE(Pixels::countNear(image, 0x800000, area, 8), 24 * 23);
    // The text is rendered anew: enlarged, each of its pixels would be four equal ones.
    const QImage enlarged = Pixels::render(*window.banner)
                                    .scaled(image.size(), Qt::IgnoreAspectRatio,
                                            Qt::FastTransformation);
    const QRect text = labelOf(*window.banner).geometry();
    const QRect textArea(2 * text.topLeft(), 2 * text.size());
    QVERIFY(image.copy(textArea) != enlarged.copy(textArea));
    QVERIFY(Pixels::countNear(image, 0x800000, textArea) > 80);
}

void tst_AlertBanner::takesTextWrapAndSize()
{
    AlertBanner banner;
    Info info = textOf(QStringLiteral("<b>Hello</b>"));
    info.wordWrap = false;
    info.bannerSize = QSize(300, 80);
    banner.setAlert(info);
    QCOMPARE(labelOf(banner).text(), QStringLiteral("<b>Hello</b>"));
    QVERIFY(!labelOf(banner).wordWrap());
    QCOMPARE(banner.size(), QSize(300, 80));
    banner.setAlert(Info());
    QCOMPARE(labelOf(banner).text(), QString());
    QVERIFY(labelOf(banner).wordWrap());
    QCOMPARE(banner.size(), QSize(400, 56));
}

void tst_AlertBanner::wrapsALongTextInsideItself()
{
    Info info = textOf(QStringLiteral("several words ").repeated(20));
    info.bannerSize = QSize(300, 200);
    const Window window(info);
    QCOMPARE(window.banner->size(), QSize(300, 200));
    QCOMPARE(itemsOf(*window.banner), QStringLiteral("0-11 12-23 24-31 32-299"));
    const QRect text = Pixels::boundsNear(Pixels::render(*window.banner), 0x800000)
            & labelOf(*window.banner).geometry();
    QVERIFY(text.height() > 3 * window.banner->fontMetrics().height());
    QVERIFY(text.right() < 299);
}

void tst_AlertBanner::clipsALongLineWithoutWrap()
{
    Info info = textOf(QStringLiteral("several words ").repeated(20));
    info.wordWrap = false;
    const Window window(info);
    QCOMPARE(window.banner->size(), QSize(400, 56));
    const QImage image = Pixels::render(*window.banner);
    QVERIFY(Pixels::countNear(image, 0x800000, QRect(380, 0, 20, 56)) > 0);
    QCOMPARE(Pixels::countNear(image, 0x800000, iconOf(*window.banner).geometry(), 8), 12 * 11);
}

void tst_AlertBanner::paintsFromTheRightInARightToLeftApplication_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("textDirection");
    QTest::newRow("in Hebrew") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd") << 1;
    QTest::newRow("in English") << QStringLiteral("Hello") << 0;
}

void tst_AlertBanner::paintsFromTheRightInARightToLeftApplication()
{
    QFETCH(const QString, text);
    QFETCH(const int, textDirection);
    const ApplicationPropertyGuard language("TextDirection", textDirection);
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    const Window window(textOf(text));
    QCOMPARE(itemsOf(*window.banner), QStringLiteral("388-399 376-387 368-375 0-367"));
    const QImage image = Pixels::render(*window.banner);
    QCOMPARE(Pixels::countNear(image, 0x800000, QRect(376, 0, 12, 56), 8), 12 * 11);
    QVERIFY(Pixels::countNear(image, 0x800000, QRect(284, 0, 84, 56)) > 20);
    QCOMPARE(Pixels::countNear(image, 0x800000, QRect(0, 0, 284, 56)), 0);
}

void tst_AlertBanner::hidesTheIconAndItsSpaceForGood()
{
    const Window window(textOf(QStringLiteral("Hello")));
    QCOMPARE(labelOf(*window.banner).geometry().left(), 32);
    Info info;
    info.showIcon = false;
    window.banner->setAlert(info);
    QVERIFY(iconOf(*window.banner).isHidden());
    QTRY_COMPARE(labelOf(*window.banner).geometry(), QRect(0, 0, 400, 56 - 9));
    for (const int i : { 0, 2 }) {
        const QSpacerItem *spacer = window.banner->layout()->itemAt(i)->spacerItem();
        QCOMPARE(spacer->sizeHint(), QSize(0, 0));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    }

    window.banner->setAlert(infoOf(Type::Info));
    QVERIFY(iconOf(*window.banner).isHidden());
    QCoreApplication::processEvents();
    QCOMPARE(labelOf(*window.banner).geometry().left(), 0);
}

void tst_AlertBanner::announcesAClickOnALink()
{
    const Window window(textOf(QStringLiteral("<a href='x'>wwwwwwww</a>")));
    const QSignalSpy activated(window.banner, &AlertBanner::alertLinkActivated);
    const OxaLabel &label = labelOf(*window.banner);
    const QPoint onLink = label.mapTo(&window.window, QPoint(10, label.height() / 2));
    QTest::mouseClick(window.window.windowHandle(), Qt::LeftButton, {}, onLink);
    QCOMPARE(activated.size(), 1);
    QTest::mouseClick(window.window.windowHandle(), Qt::LeftButton, {}, onLink + QPoint(340, 0));
    QCOMPARE(activated.size(), 1);
}

void tst_AlertBanner::announcesLinksByKeyboard()
{
    const Window window(textOf(QStringLiteral("<a href='x'>one</a> and <a href='y'>two</a>")));
    const OxaLabel &label = labelOf(*window.banner);
    SignalLog log;
    log.record(window.banner, &AlertBanner::alertLinkActivated, QStringLiteral("link"));
    QObject::connect(&label, &QLabel::linkActivated, &label,
                     [&log](const QString &link) { log.note(link); });
    const auto press = [&window](Qt::Key key) {
        QTest::keyClick(window.window.windowHandle(), key);
    };
    QVERIFY(label.hasFocus()); // The first widget that can, so that Tab goes to its links.
    press(Qt::Key_Return);
    QCOMPARE(log.take(), QString());
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    QCOMPARE(log.take(), QStringLiteral("link | x"));
    press(Qt::Key_Tab);
    press(Qt::Key_Enter);
    QCOMPARE(log.take(), QStringLiteral("link | y"));
}

void tst_AlertBanner::announcesNothingWithoutALink()
{
    const Window window(textOf(QStringLiteral("Hello")));
    const QSignalSpy activated(window.banner, &AlertBanner::alertLinkActivated);
    for (const auto key : { Qt::Key_Tab, Qt::Key_Return, Qt::Key_Space })
        QTest::keyClick(window.window.windowHandle(), key);
    QTest::mouseClick(&labelOf(*window.banner), Qt::LeftButton);
    QCOMPARE(activated.size(), 0);
}

void tst_AlertBanner::survivesItsDeletionByASlotOfAPart_data()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("the label's style") << "label";
    QTest::newRow("the icon's style") << "icon";
    QTest::newRow("the icon's picture") << "picture";
}

void tst_AlertBanner::survivesItsDeletionByASlotOfAPart()
{
    QFETCH(const QString, part);
    const QPointer<AlertBanner> banner = new AlertBanner;
    const auto deleteIt = [&banner] { delete banner; };
    if (part == QLatin1String("label"))
        connect(&labelOf(*banner), &OxaLabel::cssChanged, this, deleteIt);
    else if (part == QLatin1String("icon"))
        connect(&iconOf(*banner), &OxaSvgLabel::cssChanged, this, deleteIt);
    else
        connect(&iconOf(*banner), &OxaSvgLabel::svgIconChanged, this, deleteIt);
    banner->setAlert(infoOf(Type::Info));
    QVERIFY(!banner);
}

UIELEMENTS_TEST_MAIN(tst_AlertBanner)
#include "tst_alertbanner.moc"
