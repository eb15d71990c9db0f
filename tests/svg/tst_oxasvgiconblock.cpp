// SPDX-License-Identifier: Apache-2.0
#include "Frames.h"
#include "IconWidgets.h"
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/SignalLog.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"
#include "theme/ThemedWidgets.h"

#include <QSignalSpy>

namespace {

const OxaColorSet textColors = Faces::colors(QStringLiteral("text"), 130);
const OxaColorSet iconColors = Faces::colors(QStringLiteral("icon"), 220);
const OxaColorSet darkColors = Faces::colors(QStringLiteral("icon"), 70);
const OxaColorSet lateColors = Faces::colors(QStringLiteral("late"), 170);

void ignoreUnknownSet(const QString &name)
{
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(QStringLiteral("ColorSet name does not exist!  \"%1\"")
                                            .arg(name)));
}

/// Returns the set in whose normal or, for a check box, checked colour the icon of \a widget is.
QString paintedSet(QWidget &widget)
{
    widget.resize(60, 40);
    const QImage image = Pixels::render(widget);
    const auto shows = [&image](const OxaColorSet &set) {
        return Pixels::countNear(image, set.normal) + Pixels::countNear(image, set.checked) > 200;
    };
    for (const OxaColorSet &set : { textColors, iconColors, lateColors }) {
        if (shows(set))
            return set.name;
    }
    if (shows(darkColors))
        return QStringLiteral("dark icon");
    return QStringLiteral("none");
}

} // namespace

/// The common members and behaviour of widgets with an icon: a row for each class.
class tst_OxaSvgIconBlock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void startsWithoutAnIcon_data() { addPlainIconWidgets(); }
    void startsWithoutAnIcon();
    void makesAnIconWhenASizeOrSetIsFirst_data() { addPlainIconWidgets(); }
    void makesAnIconWhenASizeOrSetIsFirst();

    void takesTheTextsColorsUntilItHasItsOwn_data() { addPlainIconWidgets(); }
    void takesTheTextsColorsUntilItHasItsOwn();
    void emitsItsColors_data() { addIconWidgets(); }
    void emitsItsColors();
    void triesAnUnknownColorSetAgainAtTheNextThemeChange_data() { addPlainIconWidgets(); }
    void triesAnUnknownColorSetAgainAtTheNextThemeChange();
    void followsTheTheme_data() { addPlainIconWidgets(); }
    void followsTheTheme();
    void refreshesItsSetsOnCall_data() { addIconWidgets(); }
    void refreshesItsSetsOnCall();
    void colorsTheInnerPictureLikeTheOuterOne_data() { addPlainIconWidgets(); }
    void colorsTheInnerPictureLikeTheOuterOne();

    void emitsNothingForTheInnerPicture_data() { addIconWidgets(); }
    void emitsNothingForTheInnerPicture();
    void triesAPathThatFailsTwice_data() { addIconWidgets(); }
    void triesAPathThatFailsTwice();
    void showsTheLastOfSeveralPaths_data() { addIconWidgets(); }
    void showsTheLastOfSeveralPaths();
    void repaintsForAPathOnlyWhenTheEventLoopTurns_data() { addIconWidgets(); }
    void repaintsForAPathOnlyWhenTheEventLoopTurns();
    void repaintsForEveryOtherProperty_data() { addIconWidgets(); }
    void repaintsForEveryOtherProperty();
    void storesAWholePaddingWithoutRepainting_data() { addIconWidgets(); }
    void storesAWholePaddingWithoutRepainting();
    void repaintsForTheFramesOfItsIcon_data() { addIconWidgets(); }
    void repaintsForTheFramesOfItsIcon();

private:
    SvgFiles m_files;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaSvgIconBlock::init()
{
    // With the sets that classes ask for themselves.
    OxaColorSetMap store = storeWith("#ffffffff");
    OxaColorSetMap invertedStore = store;
    store.merge(ColorSets::storeOf({ textColors, iconColors }));
    invertedStore.merge(ColorSets::storeOf({ textColors, darkColors, lateColors }));
    m_stores = std::make_unique<StoreGuard>(store, invertedStore);
}

void tst_OxaSvgIconBlock::startsWithoutAnIcon()
{
    FETCH_ICON_WIDGET;
    QCOMPARE(widget->property("svgIcon"), QVariant(QString()));
    QCOMPARE(widget->property("svgIconColorSet"), QVariant(QString()));
    QCOMPARE(widget->property("svgIconSize"), QVariant(QSize(-1, -1)));
    QCOMPARE(widget->property("svgIconAlignment").value<OxaEnum::Alignment>(),
             OxaEnum::Alignment::Left);
    QCOMPARE(widget->property("textHorAlign").value<OxaEnum::HorAlign>(),
             OxaEnum::HorAlign::CenterAlign);
    QCOMPARE(widget->property("textLeftPadding"), QVariant(0));
    QCOMPARE(widget->property("textRightPadding"), QVariant(0));
    QCOMPARE(tested.padding(*widget), QMargins());
    QCOMPARE(widget->property("innerSvgIcon"), QVariant(QString()));
    QCOMPARE(widget->property("innerSvgIconColorSet"), QVariant(QString()));
    QCOMPARE(widget->property("innerSvgIconSize"), QVariant(QSize(-1, -1)));
}

void tst_OxaSvgIconBlock::makesAnIconWhenASizeOrSetIsFirst()
{
    FETCH_ICON_WIDGET;
    widget->setProperty("svgIconSize", QSize(3, 4));
    QCOMPARE(widget->property("svgIconSize"), QVariant(QSize(3, 4)));
    QCOMPARE(widget->property("svgIcon"), QVariant(QString()));
    QCOMPARE(widget->property("innerSvgIconSize"), QVariant(QSize(-1, -1)));

    const std::unique_ptr<QWidget> other = tested.make();
    other->setProperty("svgIconColorSet", iconColors.name);
    QCOMPARE(other->property("svgIconSize"), QVariant(QSize(16, 16)));
    other->setProperty("innerSvgIconColorSet", iconColors.name);
    QCOMPARE(other->property("innerSvgIconSize"), QVariant(QSize(16, 16)));
}

void tst_OxaSvgIconBlock::takesTheTextsColorsUntilItHasItsOwn()
{
    FETCH_ICON_WIDGET;
    widget->setProperty("css", QByteArrayLiteral("$textColors: text;"));
    widget->setProperty("svgIcon", m_files.square());
    QCOMPARE(paintedSet(*widget), QStringLiteral("text"));
    widget->setProperty("svgIconColorSet", iconColors.name);
    QCOMPARE(paintedSet(*widget), QStringLiteral("icon"));
    // Another file keeps the colours, and so does another style text.
    widget->setProperty("svgIcon", m_files.square(QStringLiteral("other.svg")));
    QCOMPARE(paintedSet(*widget), QStringLiteral("icon"));
    widget->setProperty("css", QByteArrayLiteral("$textColors: text; $borderRadius: 1;"));
    QCOMPARE(paintedSet(*widget), QStringLiteral("icon"));
    // An empty name selects the text's colours.
    widget->setProperty("svgIconColorSet", QString());
    QCOMPARE(paintedSet(*widget), QStringLiteral("text"));
    widget->setProperty("css", QByteArrayLiteral("$textColors: icon;"));
    QCOMPARE(paintedSet(*widget), QStringLiteral("icon"));
}

void tst_OxaSvgIconBlock::emitsItsColors()
{
    FETCH_ICON_WIDGET;
    widget->setProperty("css", QByteArrayLiteral("$textColors: text;"));
    const QSignalSpy changed(widget.get(), SIGNAL(svgIconColorSetChanged(OxaColorSet)));
    widget->setProperty("svgIconColorSet", iconColors.name);
    ignoreUnknownSet(QStringLiteral("late"));
    widget->setProperty("svgIconColorSet", lateColors.name);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.at(0).at(0).value<OxaColorSet>(), iconColors);
    QCOMPARE(changed.at(1).at(0).value<OxaColorSet>(), textColors);
}

void tst_OxaSvgIconBlock::triesAnUnknownColorSetAgainAtTheNextThemeChange()
{
    FETCH_ICON_WIDGET;
    widget->setProperty("css", QByteArrayLiteral("$textColors: text;"));
    widget->setProperty("svgIcon", m_files.square());
    ignoreUnknownSet(QStringLiteral("late"));
    widget->setProperty("svgIconColorSet", lateColors.name);
    QCOMPARE(widget->property("svgIconColorSet"), QVariant(QStringLiteral("late")));
    QCOMPARE(paintedSet(*widget), QStringLiteral("text"));
    widget->setProperty("themeType", QStringLiteral("inverted"));
    QCOMPARE(paintedSet(*widget), QStringLiteral("late"));
}

void tst_OxaSvgIconBlock::followsTheTheme()
{
    FETCH_ICON_WIDGET;
    widget->setProperty("svgIcon", m_files.square());
    widget->setProperty("svgIconColorSet", iconColors.name);
    const QSignalSpy changed(widget.get(), SIGNAL(svgIconColorSetChanged(OxaColorSet)));
    widget->setProperty("themeType", QStringLiteral("inverted"));
    QCOMPARE(paintedSet(*widget), QStringLiteral("dark icon"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).value<OxaColorSet>(), darkColors);
    widget->setProperty("themeType", QStringLiteral("global"));
    QCOMPARE(paintedSet(*widget), QStringLiteral("icon"));
}

void tst_OxaSvgIconBlock::refreshesItsSetsOnCall()
{
    FETCH_ICON_WIDGET;
    widget->setProperty("svgIcon", m_files.square());
    const QSignalSpy changed(widget.get(), SIGNAL(svgIconColorSetChanged(OxaColorSet)));
    tested.refresh(*widget); // An empty name is not looked up.
    QCOMPARE(changed.size(), 0);
    widget->setProperty("svgIconColorSet", iconColors.name);
    OxaThemeUtils::setAppOxaColorSets(ColorSets::storeOf({ darkColors }));
    QCOMPARE(paintedSet(*widget), QStringLiteral("icon"));
    tested.refresh(*widget);
    QCOMPARE(paintedSet(*widget), QStringLiteral("dark icon"));
    QCOMPARE(changed.size(), 2);
}

void tst_OxaSvgIconBlock::colorsTheInnerPictureLikeTheOuterOne()
{
    FETCH_ICON_WIDGET;
    widget->setProperty("css", QByteArrayLiteral("$textColors: text;"));
    widget->setProperty("svgIconSize", QSize(20, 20));
    widget->setProperty("innerSvgIcon", m_files.square());
    QCOMPARE(paintedSet(*widget), QStringLiteral("text"));
    widget->setProperty("innerSvgIconColorSet", iconColors.name);
    widget->setProperty("innerSvgIcon", m_files.square(QStringLiteral("other.svg")));
    QCOMPARE(paintedSet(*widget), QStringLiteral("icon"));
    ignoreUnknownSet(QStringLiteral("late"));
    widget->setProperty("innerSvgIconColorSet", lateColors.name);
    QCOMPARE(widget->property("innerSvgIconColorSet"), QVariant(QStringLiteral("late")));
    QCOMPARE(paintedSet(*widget), QStringLiteral("text"));
    widget->setProperty("themeType", QStringLiteral("inverted"));
    QCOMPARE(paintedSet(*widget), QStringLiteral("late"));
}

void tst_OxaSvgIconBlock::emitsNothingForTheInnerPicture()
{
    FETCH_ICON_WIDGET;
    const QSignalSpy icon(widget.get(), SIGNAL(svgIconChanged(QString)));
    const QSignalSpy colors(widget.get(), SIGNAL(svgIconColorSetChanged(OxaColorSet)));
    const QSignalSpy size(widget.get(), SIGNAL(svgIconSizeChanged(QSize)));
    const QString path = m_files.square();
    widget->setProperty("innerSvgIcon", path);
    widget->setProperty("innerSvgIconSize", QSize(3, 4));
    widget->setProperty("innerSvgIconColorSet", iconColors.name);
    QCOMPARE(widget->property("innerSvgIcon"), QVariant(path));
    QCOMPARE(widget->property("innerSvgIconSize"), QVariant(QSize(3, 4)));
    QCOMPARE(icon.size() + colors.size() + size.size(), 0);

    widget->setProperty("svgIcon", path);
    widget->setProperty("svgIconSize", QSize(5, 6));
    QCOMPARE(icon.size(), 1);
    QCOMPARE(icon.at(0).at(0), QVariant(path));
    QCOMPARE(size.size(), 1);
    QCOMPARE(size.at(0).at(0), QVariant(QSize(5, 6)));
}

void tst_OxaSvgIconBlock::triesAPathThatFailsTwice()
{
    FETCH_ICON_WIDGET;
    const QString missing = m_files.path(QStringLiteral("missing.svg"));
    SvgFiles::ignoreMissing(missing);
    widget->setProperty("svgIcon", missing);
    QCOMPARE(widget->property("svgIcon"), QVariant(missing));
    SvgFiles::ignoreMissing(missing);
    QCoreApplication::processEvents();

    // A file that was written in between is loaded.
    const QString late = m_files.path(QStringLiteral("%1.svg").arg(QLatin1String(tested.name)));
    SvgFiles::ignoreMissing(late);
    widget->setProperty("svgIcon", late);
    m_files.square(QFileInfo(late).fileName());
    widget->setProperty("svgIconColorSet", iconColors.name);
    QCOMPARE(paintedSet(*widget), QStringLiteral("none"));
    QCoreApplication::processEvents();
    QCOMPARE(paintedSet(*widget), QStringLiteral("icon"));
}

void tst_OxaSvgIconBlock::showsTheLastOfSeveralPaths()
{
    FETCH_ICON_WIDGET;
    const QString square = m_files.square();
    const QString missing = m_files.path(QStringLiteral("missing.svg"));
    widget->setProperty("svgIconColorSet", iconColors.name);
    SvgFiles::ignoreMissing(missing);
    widget->setProperty("svgIcon", missing);
    widget->setProperty("svgIcon", square);
    // Each of them is tried once more, in order.
    SvgFiles::ignoreMissing(missing);
    QCoreApplication::processEvents();
    QCOMPARE(widget->property("svgIcon"), QVariant(square));
    QCOMPARE(paintedSet(*widget), QStringLiteral("icon"));
}

void tst_OxaSvgIconBlock::repaintsForAPathOnlyWhenTheEventLoopTurns()
{
    FETCH_ICON_WIDGET;
    PaintCounter paints(*widget);
    widget->setProperty("svgIcon", m_files.square());
    // An update by the setter would be sent now.
    QCoreApplication::sendPostedEvents(widget->window(), QEvent::UpdateRequest);
    QCOMPARE(paints.count(), 0);
    QCOMPARE(paints.take(), 1);
    QCOMPARE(paints.take(), 0);
}

void tst_OxaSvgIconBlock::repaintsForEveryOtherProperty()
{
    FETCH_ICON_WIDGET;
    widget->setProperty("svgIcon", m_files.square());
    PaintCounter paints(*widget);
    const std::pair<const char *, QVariant> values[] = {
        { "svgIconColorSet", iconColors.name },
        { "svgIconSize", QSize(3, 4) },
        { "svgIconAlignment", QVariant::fromValue(OxaEnum::Alignment::Top) },
        { "textHorAlign", QVariant::fromValue(OxaEnum::HorAlign::RightAlign) },
        { "textLeftPadding", 1 },
        { "textRightPadding", 2 },
        { "svgIconTopLeftPadding", QPoint(3, 4) },
        { "svgIconBottomRightPadding", QPoint(5, 6) },
        { "innerSvgIconColorSet", iconColors.name },
        { "innerSvgIconSize", QSize(3, 4) },
    };
    for (const auto &[name, value] : values) {
        QVERIFY2(widget->setProperty(name, value), name);
        QCOMPARE(widget->property(name), value);
        QVERIFY2(paints.take() == 1, name);
    }
    QCOMPARE(tested.padding(*widget), QMargins(3, 4, 5, 6));
    widget->setProperty("innerSvgIcon", m_files.square());
    QCOMPARE(paints.take(), 0);
}

void tst_OxaSvgIconBlock::storesAWholePaddingWithoutRepainting()
{
    FETCH_ICON_WIDGET;
    PaintCounter paints(*widget);
    tested.setPadding(*widget, QMargins(1, 2, 3, 4));
    QCOMPARE(paints.take(), 0);
    QCOMPARE(widget->property("svgIconTopLeftPadding"), QVariant(QPoint(1, 2)));
    QCOMPARE(widget->property("svgIconBottomRightPadding"), QVariant(QPoint(3, 4)));
}

void tst_OxaSvgIconBlock::repaintsForTheFramesOfItsIcon()
{
    FETCH_ICON_WIDGET;
    const QString animated = m_files.animated();
    widget->setProperty("svgIcon", animated);
    widget->setProperty("checked", true); // A check box shows its tick then.
    PaintCounter paints(*widget);
    QTRY_VERIFY(paints.count() > 0);
    widget->hide();
    paints.take();
    QVERIFY(passFrames(animated));
    QCOMPARE(paints.take(), 0);
}

UIELEMENTS_TEST_MAIN(tst_OxaSvgIconBlock)
#include "tst_oxasvgiconblock.moc"
