// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <looks/ColorDocuments.h>
#include <support/Contrast.h>

Q_DECLARE_METATYPE(OxaColorSetMap)

namespace {

constexpr qreal wantedContrast = 4.5;
constexpr qreal wantedHighContrast = 7.0;

ColorDocuments documents()
{
    QString problem;
    return *ColorDocuments::read(DocumentPaths(), problem);
}

QJsonArray contrastPairs()
{
    QFile file(QStringLiteral(CONTRAST_PAIRS));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).array();
}

/// Returns \a top as it looks on the opaque colour \a background.
QColor composed(const QColor &top, const QColor &background)
{
    const qreal alpha = top.alphaF();
    return QColor::fromRgbF(top.redF() * alpha + background.redF() * (1 - alpha),
                            top.greenF() * alpha + background.greenF() * (1 - alpha),
                            top.blueF() * alpha + background.blueF() * (1 - alpha));
}

/// The states of a pair that must be readable: those that it names, or all except disabled.
QStringList statesOf(const QJsonObject &pair)
{
    if (!pair.contains(QLatin1String("states"))) {
        return { QStringLiteral("normal"), QStringLiteral("hovered"), QStringLiteral("pressed"),
                 QStringLiteral("focused"), QStringLiteral("checked") };
    }
    return pair.value(QLatin1String("states")).toVariant().toStringList();
}

/// Returns a line for each state of \a pair whose contrast in \a sets is below \a wanted, or below
/// the contrast that the pair gives itself.
QStringList shortfalls(const OxaColorSetMap &sets, const QJsonObject &pair, qreal wanted)
{
    const QString text = pair.value(QLatin1String("text")).toString();
    const QString background = pair.value(QLatin1String("background")).toString();
    const QString inkState = pair.value(QLatin1String("textState")).toString();
    const qreal least = pair.value(QLatin1String("contrast")).toDouble(wanted);
    const QColor window = sets.at("gallery-window-background").normal;
    QStringList lines;
    for (const QString &state : statesOf(pair)) {
        const QColor ground = composed(sets.at(background.toStdString()).colorForState(state),
                                       window);
        const QColor ink = composed(sets.at(text.toStdString())
                                            .colorForState(inkState.isEmpty() ? state : inkState),
                                    ground);
        const qreal reached = Contrast::between(ink, ground);
        if (reached < least)
            lines += QStringLiteral("%1 on %2, %3: %4").arg(text, background, state).arg(reached);
    }
    return lines;
}

} // namespace

/// The gallery's colours are readable, and the focus stands out from what is around it.
class tst_Contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheContrastOfBlackOnWhite();
    void composesTranslucentColors();
    void reachesTheContrastOfEachAppearance_data();
    void reachesTheContrastOfEachAppearance();
};

void tst_Contrast::knowsTheContrastOfBlackOnWhite()
{
    QCOMPARE(Contrast::between(Qt::black, Qt::white), 21.0);
    QCOMPARE(Contrast::between(Qt::white, Qt::white), 1.0);
}

void tst_Contrast::composesTranslucentColors()
{
    QCOMPARE(composed(QColor(0, 0, 0, 0), Qt::red), QColor(Qt::red));
    QCOMPARE(composed(Qt::blue, Qt::red), QColor(Qt::blue));
    QCOMPARE(composed(QColor(255, 255, 255, 51), Qt::black), QColor(51, 51, 51));
}

void tst_Contrast::reachesTheContrastOfEachAppearance_data()
{
    QTest::addColumn<OxaColorSetMap>("sets");
    QTest::addColumn<qreal>("wanted");
    QTest::newRow("light") << documents().light << wantedContrast;
    QTest::newRow("dark") << documents().dark << wantedContrast;
    QTest::newRow("high contrast") << documents().highContrast << wantedHighContrast;
}

void tst_Contrast::reachesTheContrastOfEachAppearance()
{
    QFETCH(const OxaColorSetMap, sets);
    QFETCH(const qreal, wanted);
    const QJsonArray pairs = contrastPairs();
    QVERIFY(pairs.size() >= 120);
    QStringList lines;
    for (const auto &pair : pairs)
        lines += shortfalls(sets, pair.toObject(), wanted);
    QCOMPARE(lines.join(QLatin1Char('\n')), QString());
}

GALLERY_TEST_MAIN(tst_Contrast)
#include "tst_contrast.moc"
