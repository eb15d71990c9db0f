// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <UiElements/svg/OxaSvgRenderer.h>

#include <QImage>
#include <QPainter>

#include <pages/icons/IconDiagnosis.h>
#include <pages/icons/IconFiles.h>
#include <support/SvgFiles.h>

using Outcome = IconDiagnosis::Outcome;
using Painter = IconDiagnosis::Painter;

Q_DECLARE_METATYPE(IconDiagnosis::Outcome)
Q_DECLARE_METATYPE(IconDiagnosis::Painter)
Q_DECLARE_METATYPE(IconFile)

namespace {

const QByteArray shape = "<path d='M0 0H16V8H0Z'/>";
const QByteArray filledShape = "<path fill='#123456' d='M0 8H16V16H0Z'/>";
const QByteArray turn = "<animateTransform attributeName='transform' type='rotate' from='0 8 8' "
                        "to='360 8 8' dur='1s' repeatCount='indefinite'/>";
const QByteArray turningShape = "<path d='M0 0H16V8H0Z'>" + turn + "</path>";

/// True when \a renderer paints a pixel in a colour that it is given and that no file has. Two
/// pictures in two colours can't be compared: an animated file moves between them.
bool takesColor(const OxaSvgRenderer &renderer)
{
    QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.draw(&painter, image.rect(), Qt::magenta, 1.0);
    for (int i = 0; i < image.width() * image.height(); ++i) {
        const QColor pixel = image.pixelColor(i % image.width(), i / image.width());
        if (pixel.alpha() > 32 && pixel.red() > 224 && pixel.green() < 32 && pixel.blue() > 224)
            return true;
    }
    return false;
}

QString exception(const char *name)
{
    return QStringLiteral(":/exceptions/%1.svg").arg(QLatin1String(name));
}

} // namespace

/// IconDiagnosis: how an SVG file is painted, and why.
class tst_IconDiagnosis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysHowAnIconIsPainted_data();
    void saysHowAnIconIsPainted();
    void isRightAboutWhatTheLibraryPaints_data();
    void isRightAboutWhatTheLibraryPaints();
    void saysWhy_data();
    void saysWhy();
    void advisesHowToTakeTheColour();
    void quotesQtAboutAFileThatIsMissing();
    void findsNoFaultInTheGallerysIcons();

private:
    const SvgFiles m_files {};
};

void tst_IconDiagnosis::saysHowAnIconIsPainted_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<Painter>("painter");
    QTest::newRow("one shape") << shape << Outcome::TakesColor << Painter::Node;
    QTest::newRow("two shapes in a group")
            << "<g>" + shape + shape + "</g>" << Outcome::TakesColor << Painter::Node;
    QTest::newRow("one shape with a fill") << filledShape << Outcome::KeepsColors << Painter::Node;
    QTest::newRow("one of two shapes in a group with a fill")
            << "<g>" + shape + filledShape + "</g>" << Outcome::TakesSome << Painter::Node;
    QTest::newRow("one rotating shape") << turningShape << Outcome::TakesColor << Painter::Node;
    QTest::newRow("two shapes") << shape + shape << Outcome::KeepsColors << Painter::Renderer;
    QTest::newRow("definitions beside a shape")
            << "<defs/>" + shape << Outcome::KeepsColors << Painter::Renderer;
    QTest::newRow("two shapes, one of them rotating")
            << shape + turningShape << Outcome::Animated << Painter::Renderer;
    QTest::newRow("no node") << QByteArray() << Outcome::PaintsNothing << Painter::Renderer;
    QTest::newRow("definitions alone") << QByteArray("<defs><path d='M0 0H16V16H0Z'/></defs>")
                                       << Outcome::PaintsNothing << Painter::Node;
    QTest::newRow("a truncated file")
            << QByteArray("<path d='M0") << Outcome::Unreadable << Painter::Nothing;
}

void tst_IconDiagnosis::saysHowAnIconIsPainted()
{
    QFETCH(const QByteArray, body);
    const IconDiagnosis diagnosis = IconDiagnosis::of(
            m_files.write(QStringLiteral("icon.svg"), SvgFiles::document(body)));
    QTEST(diagnosis.outcome, "outcome");
    QTEST(diagnosis.painter, "painter");
}

void tst_IconDiagnosis::isRightAboutWhatTheLibraryPaints_data()
{
    QTest::addColumn<IconFile>("file");
    for (const IconFile &file : IconFiles::exceptions()) {
        // It paints nothing, and the library would warn.
        if (file.name != QLatin1String("cut-off"))
            QTest::newRow(qPrintable(file.name)) << file;
    }
}

void tst_IconDiagnosis::isRightAboutWhatTheLibraryPaints()
{
    QFETCH(const IconFile, file);
    const IconDiagnosis diagnosis = IconDiagnosis::of(file.path);
    const OxaSvgRenderer renderer(file.path);
    QCOMPARE(takesColor(renderer),
             diagnosis.outcome == Outcome::TakesColor || diagnosis.outcome == Outcome::TakesSome);
    QCOMPARE(renderer.isAnimated(), diagnosis.outcome == Outcome::Animated);
}

void tst_IconDiagnosis::saysWhy_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a fill of its own") << exception("own-fill")
                                       << "Its one top-level node, <path>, is painted directly, "
                                          "but it has a fill or stroke "
                                          "of its own, which overrides the state's colour.";
    QTest::newRow("definitions beside a shape")
            << exception("gradient")
            << "It has 2 top-level nodes: <defs>, <path>. Only a single one can be painted in the "
               "state's colour. QSvgRenderer paints this file, in the file's own colours.";
    QTest::newRow("a style of the document")
            << exception("outline")
            << "Its one top-level node, <path>, is painted directly, with the state's colour as "
               "the brush. The fill and stroke of the <svg> element itself are left out then.";
    QTest::newRow("an animation of one node") << exception("standing-still")
                                              << "Its one top-level node, <path>, is painted "
                                                 "directly, with the state's colour as the "
                                                 "brush. Its animation is not shown.";
    QTest::newRow("a truncated file")
            << exception("cut-off")
            << "Qt cannot read it, and says: Cannot read file ':/exceptions/cut-off.svg', because: "
               "Premature end of document. (line 3)";
}

void tst_IconDiagnosis::saysWhy()
{
    QFETCH(const QString, path);
    QTEST(IconDiagnosis::of(path).reason, "reason");
}

void tst_IconDiagnosis::advisesHowToTakeTheColour()
{
    QVERIFY(IconDiagnosis::of(exception("outline")).advice.isEmpty());
    QVERIFY(!IconDiagnosis::of(exception("own-fill")).advice.isEmpty());
    QVERIFY(!IconDiagnosis::of(exception("gradient")).advice.isEmpty());
    QVERIFY(!IconDiagnosis::of(exception("turning")).advice.isEmpty());
}

void tst_IconDiagnosis::quotesQtAboutAFileThatIsMissing()
{
    const QString path = m_files.path(QStringLiteral("missing.svg"));
    const IconDiagnosis diagnosis = IconDiagnosis::of(path);
    QCOMPARE(diagnosis.outcome, Outcome::Unreadable);
    QCOMPARE(diagnosis.reason,
             QStringLiteral("Qt cannot read it, and says: Cannot open file '%1', because: No such "
                            "file or directory")
                     .arg(path));
}

void tst_IconDiagnosis::findsNoFaultInTheGallerysIcons()
{
    QStringList others;
    for (const IconFile &file : IconFiles::ofGallery()) {
        const IconDiagnosis diagnosis = IconDiagnosis::of(file.path);
        if (diagnosis.outcome != Outcome::TakesColor || diagnosis.painter != Painter::Node)
            others += file.name + QLatin1String(": ") + diagnosis.reason;
    }
    QCOMPARE(others, QStringList());
}

GALLERY_TEST_MAIN(tst_IconDiagnosis)
#include "tst_icondiagnosis.moc"
