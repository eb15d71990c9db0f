// SPDX-License-Identifier: Apache-2.0
#include "Frames.h"
#include "support/SvgFiles.h"
#include "support/TestMain.h"

#include <UiElements/svg/OxaSvgRenderer.h>

#include <QPainter>
#include <QSignalSpy>

namespace {

const QByteArray oneNode = SvgFiles::document("<path d='M0 0H16V16H0Z'/>");
const QByteArray twoNodes = SvgFiles::document("<path d='M0 0H8V16H0Z'/><path d='M8 0H16V16H8Z'/>");
const QByteArray turningShape = "<rect width='9' height='9'><animateTransform "
                                "attributeName='transform' type='rotate' from='0' to='90' "
                                "dur='1s' repeatCount='indefinite'/></rect>";

/// Returns whether \a renderer holds nothing and paints nothing.
bool isEmpty(const OxaSvgRenderer &renderer)
{
    QTest::ignoreMessage(QtWarningMsg, "SVG node does not exist!");
    return !renderer.isLoaded() && renderer.getLoadedPath().isEmpty() && !renderer.isAnimated()
            && renderer.renderPixmap(QSize(4, 4), 1.0, Qt::red).isNull();
}

} // namespace

/// What a renderer loads, and its messages.
class tst_OxaSvgRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesResources();
    void startsEmpty();
    void loadsInItsConstructor();
    void staysUsableWhenItsConstructorFailsToLoad();
    void belongsToItsParent();

    void loadsEveryKindOfFile_data();
    void loadsEveryKindOfFile();
    void keepsTheLoadedPathWithoutReadingItAgain();
    void readsAPathAgainOnceAnotherWasLoaded();
    void treatsAnEmptyPathAsLoadedOnlyWhenNothingIs();
    void opensOneResourceUnderTwoPaths();
    void failsAndIsEmptyAfterwards_data();
    void failsAndIsEmptyAfterwards();
    void failsForADocumentOfNoValidSize_data();
    void failsForADocumentOfNoValidSize();
    void loadsAgainAfterAFailure();

    void updatesToAResource();
    void ignoresAnEmptyResourceName();
    void makesRenderersOfResources();
    void makesAnEmptyRendererWithoutAName();
    void warnsOfAMissingParent();

    void asksForARepaintForEachFrame();
    void forgetsTheFramesOfAFileThatWasReplaced();

private:
    SvgFiles m_files;
};

void tst_OxaSvgRenderer::namesResources()
{
    QCOMPARE(OxaSvgRenderer::resourcePath(QStringLiteral("check_12_w")),
             QStringLiteral(":/Resources/check_12_w.svg"));
    QCOMPARE(OxaSvgRenderer::resourcePath(QString()), QStringLiteral(":/Resources/.svg"));
}

void tst_OxaSvgRenderer::startsEmpty()
{
    const OxaSvgRenderer renderer;
    QVERIFY(isEmpty(renderer));
}

void tst_OxaSvgRenderer::loadsInItsConstructor()
{
    const QString path = m_files.write(QStringLiteral("one.svg"), oneNode);
    const OxaSvgRenderer renderer(path);
    QVERIFY(renderer.isLoaded());
    QCOMPARE(renderer.getLoadedPath(), path);
}

void tst_OxaSvgRenderer::staysUsableWhenItsConstructorFailsToLoad()
{
    const QString missing = m_files.path(QStringLiteral("missing.svg"));
    SvgFiles::ignoreMissing(missing);
    OxaSvgRenderer renderer(missing);
    QVERIFY(isEmpty(renderer));
    QVERIFY(renderer.load(m_files.write(QStringLiteral("one.svg"), oneNode)));
    QVERIFY(renderer.isLoaded());
}

void tst_OxaSvgRenderer::belongsToItsParent()
{
    QObject parent;
    QCOMPARE((new OxaSvgRenderer(&parent))->parent(), &parent);
    QCOMPARE((new OxaSvgRenderer(QString(), &parent))->parent(), &parent);
}

void tst_OxaSvgRenderer::loadsEveryKindOfFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isAnimated");
    QTest::newRow("one node") << oneNode << false;
    QTest::newRow("one group of nodes")
            << SvgFiles::document("<g><path d='M0 0H8'/><path d='M0 0H8'/></g>") << false;
    QTest::newRow("two nodes") << twoNodes << false;
    QTest::newRow("definitions beside a shape")
            << SvgFiles::document("<defs/><path d='M0 0H8'/>") << false;
    QTest::newRow("no node") << SvgFiles::document(QByteArray()) << false;
    QTest::newRow("an animated node beside another")
            << SvgFiles::document(turningShape + "<path d='M0 0H8'/>") << true;
    QTest::newRow("one animated node is not animated") << SvgFiles::document(turningShape) << false;
}

void tst_OxaSvgRenderer::loadsEveryKindOfFile()
{
    QFETCH(const QByteArray, content);
    const QString path = m_files.write(QStringLiteral("file.svg"), content);
    OxaSvgRenderer renderer;
    QVERIFY(renderer.load(path));
    QVERIFY(renderer.isLoaded());
    QCOMPARE(renderer.getLoadedPath(), path);
    QTEST(renderer.isAnimated(), "isAnimated");
}

void tst_OxaSvgRenderer::keepsTheLoadedPathWithoutReadingItAgain()
{
    const QString path = m_files.write(QStringLiteral("changing.svg"), oneNode);
    OxaSvgRenderer renderer(path);
    m_files.write(QStringLiteral("changing.svg"), twoNodes);
    QVERIFY(renderer.load(path));
    // It is still the file with one node, which takes the colour.
    QCOMPARE(renderer.renderPixmap(QSize(4, 4), 1.0, Qt::red).toImage().pixelColor(1, 1),
             QColor(Qt::red));
    QVERIFY(QFile::remove(path));
    QVERIFY(renderer.load(path));
    QVERIFY(renderer.isLoaded());
}

void tst_OxaSvgRenderer::readsAPathAgainOnceAnotherWasLoaded()
{
    const QString path = m_files.write(QStringLiteral("changing.svg"), oneNode);
    OxaSvgRenderer renderer(path);
    m_files.animated(QStringLiteral("changing.svg"));
    QVERIFY(renderer.load(m_files.write(QStringLiteral("other.svg"), oneNode)));
    QVERIFY(renderer.load(path));
    QVERIFY(renderer.isAnimated());
}

void tst_OxaSvgRenderer::treatsAnEmptyPathAsLoadedOnlyWhenNothingIs()
{
    OxaSvgRenderer renderer;
    QVERIFY(renderer.load(QString()));
    QVERIFY(isEmpty(renderer));
    QVERIFY(renderer.load(m_files.write(QStringLiteral("one.svg"), oneNode)));
    QTest::ignoreMessage(QtWarningMsg, "QFSFileEngine::open: No file name specified");
    QTest::ignoreMessage(QtWarningMsg, "Cannot open file '', because: No file name specified");
    QTest::ignoreMessage(QtWarningMsg, "Unable to load SVG file:  \"\"");
    QVERIFY(!renderer.load(QString()));
    QVERIFY(isEmpty(renderer));
}

void tst_OxaSvgRenderer::opensOneResourceUnderTwoPaths()
{
    const QString resource = QStringLiteral(":/Resources/half.svg");
    const QString url = QStringLiteral("qrc:/Resources/half.svg");
    OxaSvgRenderer renderer;
    QVERIFY(renderer.load(resource));
    const QImage image = renderer.renderPixmap(QSize(8, 8), 1.0, Qt::red).toImage();
    QVERIFY(renderer.load(url));
    QCOMPARE(renderer.getLoadedPath(), url);
    QCOMPARE(renderer.renderPixmap(QSize(8, 8), 1.0, Qt::red).toImage(), image);
    QVERIFY(renderer.load(resource));
    QCOMPARE(renderer.getLoadedPath(), resource);
}

void tst_OxaSvgRenderer::failsAndIsEmptyAfterwards_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("cut off in an element")
            << oneNode.left(oneNode.size() - 8) << QStringLiteral("Premature end of document.");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("Premature end of document.");
    QTest::newRow("another kind of document") << QByteArrayLiteral("<html/>") << QString();
    QTest::newRow("no document at all")
            << QByteArrayLiteral("square") << QStringLiteral("Start tag expected.");
}

void tst_OxaSvgRenderer::failsAndIsEmptyAfterwards()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, reason);
    OxaSvgRenderer renderer(m_files.write(QStringLiteral("one.svg"), oneNode));
    const QString path = m_files.write(QStringLiteral("broken.svg"), content);
    const QString qtWarning = QStringLiteral("Cannot read file '%1', because: %2 (line 1)");
    QTest::ignoreMessage(QtWarningMsg, qPrintable(qtWarning.arg(path, reason)));
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(QStringLiteral("Unable to load SVG file:  \"%1\"").arg(path)));
    QVERIFY(!renderer.load(path));
    QVERIFY(isEmpty(renderer));
}

void tst_OxaSvgRenderer::failsForADocumentOfNoValidSize_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::newRow("negative") << QByteArrayLiteral("viewBox='0 0 -16 -16'");
    QTest::newRow("beyond whole numbers") << QByteArrayLiteral("viewBox='0 0 1e30 1e30'");
}

void tst_OxaSvgRenderer::failsForADocumentOfNoValidSize()
{
    QFETCH(const QByteArray, attributes);
    const QByteArray shape = "<path d='M0 0H8'/>";
    OxaSvgRenderer renderer(m_files.write(QStringLiteral("one.svg"), oneNode));
    const QString path = m_files.write(QStringLiteral("two.svg"),
                                       SvgFiles::document(shape + shape, attributes));
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(QStringLiteral("Invalid svg file:  \"%1\"").arg(path)));
    QVERIFY(!renderer.load(path));
    QVERIFY(isEmpty(renderer));
    // One node alone is painted without asking for the document's size.
    QVERIFY(renderer.load(
            m_files.write(QStringLiteral("one.svg"), SvgFiles::document(shape, attributes))));
}

void tst_OxaSvgRenderer::loadsAgainAfterAFailure()
{
    const QString path = m_files.path(QStringLiteral("late.svg"));
    SvgFiles::ignoreMissing(path);
    OxaSvgRenderer renderer(path);
    m_files.write(QStringLiteral("late.svg"), oneNode);
    QVERIFY(renderer.load(path));
    QCOMPARE(renderer.getLoadedPath(), path);
}

void tst_OxaSvgRenderer::updatesToAResource()
{
    OxaSvgRenderer renderer;
    QVERIFY(renderer.updateIconResource(QStringLiteral("square")));
    QCOMPARE(renderer.getLoadedPath(), QStringLiteral(":/Resources/square.svg"));
    SvgFiles::ignoreMissing(QStringLiteral(":/Resources/no such icon.svg"));
    QVERIFY(!renderer.updateIconResource(QStringLiteral("no such icon")));
    QVERIFY(isEmpty(renderer));
}

void tst_OxaSvgRenderer::ignoresAnEmptyResourceName()
{
    OxaSvgRenderer renderer;
    QVERIFY(!renderer.updateIconResource(QString()));
    QVERIFY(renderer.updateIconResource(QStringLiteral("square")));
    QVERIFY(!renderer.updateIconResource(QString()));
    QCOMPARE(renderer.getLoadedPath(), QStringLiteral(":/Resources/square.svg"));
}

void tst_OxaSvgRenderer::makesRenderersOfResources()
{
    QObject parent;
    const auto *renderer = OxaSvgRenderer::loadIconResource(QStringLiteral("square"), &parent);
    QCOMPARE(renderer->parent(), &parent);
    QCOMPARE(renderer->getLoadedPath(), QStringLiteral(":/Resources/square.svg"));
}

void tst_OxaSvgRenderer::makesAnEmptyRendererWithoutAName()
{
    QObject parent;
    const auto *renderer = OxaSvgRenderer::loadIconResource(QString(), &parent);
    QCOMPARE(renderer->parent(), &parent);
    QVERIFY(isEmpty(*renderer));
}

void tst_OxaSvgRenderer::warnsOfAMissingParent()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "OxaSvgRenderer::loadIconResource - the parent object "
                         "should not be null");
    const std::unique_ptr<OxaSvgRenderer> renderer(
            OxaSvgRenderer::loadIconResource(QStringLiteral("square"), nullptr));
    QVERIFY(!renderer->parent());
    QVERIFY(renderer->isLoaded());
}

void tst_OxaSvgRenderer::asksForARepaintForEachFrame()
{
    const OxaSvgRenderer renderer(m_files.animated());
    QSignalSpy repaintNeeded(&renderer, &OxaSvgRenderer::repaintNeeded);
    QTRY_VERIFY(repaintNeeded.size() >= 2);
}

void tst_OxaSvgRenderer::forgetsTheFramesOfAFileThatWasReplaced()
{
    const QString animated = m_files.animated();
    OxaSvgRenderer replaced(animated);
    QVERIFY(replaced.load(m_files.write(QStringLiteral("one.svg"), oneNode)));
    QVERIFY(!replaced.isAnimated());
    const QSignalSpy repaintNeeded(&replaced, &OxaSvgRenderer::repaintNeeded);
    QVERIFY(passFrames(animated));
    QCOMPARE(repaintNeeded.size(), 0);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OxaSvgRenderer)
#include "tst_oxasvgrenderer.moc"
