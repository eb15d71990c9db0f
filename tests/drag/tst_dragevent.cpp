// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <UiElements/drag/DragEvent.h>

#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <limits>

namespace {

using Values = QMap<QString, QVariant>;

Values with(const char *key, const QVariant &value) { return { { QLatin1String(key), value } }; }

/// Describes the mime data: "html=<b>; urls=file:///a;".
QString textOf(const QMimeData *mimeData)
{
    QString text;
    if (mimeData->hasHtml())
        text += QStringLiteral("html=%1;").arg(mimeData->html());
    if (mimeData->hasUrls())
        text += QStringLiteral("urls=%1;")
                        .arg(QUrl::toStringList(mimeData->urls()).join(QLatin1Char(',')));
    if (mimeData->hasImage())
        text += QStringLiteral("image;");
    return text;
}

} // namespace

/// The record that carries a drag from QML to widget code.
class tst_DragEvent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void isAtTheOriginAndEmptyWithoutValues();
    void truncatesThePosition_data();
    void truncatesThePosition();
    void readsTextsThroughQVariant();
    void takesUrls();
    void convertsUrlsWhereQVariantCan();

    void addsThePictureOfALocalUrl_data();
    void addsThePictureOfALocalUrl();

    void addsThePictureOnceTheMimeDataHasHtml();
    void opensNoPipe();

    void fillsTheSameMimeDataAgain();
    void deletesItsMimeData();
    void copiesItsValues();
    void sharesItsMimeDataWithCopies();
    void sharesItsMimeDataOnAssignment();
    void makesNewMimeDataAfterACopyHasDeletedIt();
    void survivesAssignmentToItself();
    void survivesAnotherOwner();

private:
    QString picture() const { return m_folder.filePath(QStringLiteral("a picture.png")); }
    QString link() const { return m_folder.filePath(QStringLiteral("a link.png")); }
    QString note() const { return m_folder.filePath(QStringLiteral("note.txt")); }

    QTemporaryDir m_folder;
};

void tst_DragEvent::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(picture()));
    QVERIFY(QFile::link(picture(), link()));
    QFile file(note());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
}

void tst_DragEvent::isAtTheOriginAndEmptyWithoutValues()
{
    DragEvent event({});
    QCOMPARE(event.position(), QPoint(0, 0));
    QVERIFY(event.toMimeData()->formats().isEmpty());
}

void tst_DragEvent::truncatesThePosition_data()
{
    QTest::addColumn<QVariant>("x");
    QTest::addColumn<QVariant>("y");
    QTest::addColumn<QPoint>("position");

    QTest::newRow("fractions") << QVariant(10.9) << QVariant(0.99) << QPoint(10, 0);
    QTest::newRow("negative fractions") << QVariant(-10.9) << QVariant(-0.5) << QPoint(-10, 0);
    QTest::newRow("whole numbers") << QVariant(3) << QVariant(4) << QPoint(3, 4);
    QTest::newRow("texts") << QVariant(QStringLiteral("7.5")) << QVariant(QStringLiteral("no"))
                           << QPoint(7, 0);

    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    QTest::newRow("not a number") << QVariant(qQNaN()) << QVariant(QStringLiteral("nan"))
                                  << QPoint(0, 0);
    QTest::newRow("infinite") << QVariant(infinity) << QVariant(-infinity)
                              << QPoint(highest, lowest);
    QTest::newRow("beyond int") << QVariant(2147483648.0) << QVariant(-1e300)
                                << QPoint(highest, lowest);
    QTest::newRow("the ends of int")
            << QVariant(2147483647.9) << QVariant(-2147483648.9) << QPoint(highest, lowest);
}

void tst_DragEvent::truncatesThePosition()
{
    QFETCH(const QVariant, x);
    QFETCH(const QVariant, y);
    const DragEvent event({ { QStringLiteral("x"), x }, { QStringLiteral("y"), y } });
    QTEST(event.position(), "position");
}

void tst_DragEvent::readsTextsThroughQVariant()
{
    QCOMPARE(textOf(DragEvent(with("html", 7)).toMimeData()), QStringLiteral("html=7;"));
    QCOMPARE(textOf(DragEvent(with("html", QString())).toMimeData()), QString());
    // A text is accepted instead of bytes.
    DragEvent event({ { QStringLiteral("html"), QStringLiteral("<b>") },
                      { QStringLiteral("data"), QUrl::fromLocalFile(picture()).toString() } });
    QCOMPARE(textOf(event.toMimeData()), QStringLiteral("html=<b>;image;"));
}

void tst_DragEvent::takesUrls()
{
    const QList<QUrl> urls = QUrl::fromStringList(
            { QStringLiteral("file:///a"), QStringLiteral("https://example.org/b") });
    DragEvent event(with("urls", QVariant::fromValue(urls)));
    QCOMPARE(event.toMimeData()->urls(), urls);
    QVERIFY(!event.toMimeData()->hasHtml());
}

void tst_DragEvent::convertsUrlsWhereQVariantCan()
{
    const QVariant texts(QStringList { QStringLiteral("file:///a"), QStringLiteral("file:///b") });
    QCOMPARE(textOf(DragEvent(with("urls", texts)).toMimeData()), QString());
    // A program may register a converter; it cannot be removed again.
    QMetaType::registerConverter<QStringList, QList<QUrl>>(
            [](const QStringList &given) { return QUrl::fromStringList(given); });
    QCOMPARE(textOf(DragEvent(with("urls", texts)).toMimeData()),
             QStringLiteral("urls=file:///a,file:///b;"));
}

void tst_DragEvent::addsThePictureOfALocalUrl_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("mimeData");

    const QString html = QStringLiteral("<b>");
    const QString picture = QUrl::fromLocalFile(this->picture()).toString();
    const QString urls = QStringLiteral("urls=file:///a;");
    const QString rest = QStringLiteral("html=<b>;") + urls;
    QTest::newRow("with HTML") << html << picture << rest + QStringLiteral("image;");
    QTest::newRow("not without HTML") << QString() << picture << urls;
    QTest::newRow("with blanks around its path")
            << html << picture + QStringLiteral(" \n") << rest + QStringLiteral("image;");
    QTest::newRow("through a symbolic link")
            << html << QUrl::fromLocalFile(link()).toString() << rest + QStringLiteral("image;");
    QTest::newRow("not for a path that is no URL") << html << this->picture() << rest;
    QTest::newRow("not for a file that is no picture")
            << html << QUrl::fromLocalFile(note()).toString() << rest;
    QTest::newRow("not for a missing file") << html << picture + QLatin1Char('x') << rest;
    QTest::newRow("not for another machine's URL")
            << html << QStringLiteral("https://example.org/a.png") << rest;
    QTest::newRow("not for other data") << html << QStringLiteral("[ :") << rest;
}

void tst_DragEvent::addsThePictureOfALocalUrl()
{
    QFETCH(const QString, html);
    QFETCH(const QString, data);
    const QList<QUrl> urls { QUrl(QStringLiteral("file:///a")) };
    DragEvent event({ { QStringLiteral("html"), html },
                      { QStringLiteral("urls"), QVariant::fromValue(urls) },
                      { QStringLiteral("data"), data.toUtf8() } });
    const QMimeData *mimeData = event.toMimeData();
    QTEST(textOf(mimeData), "mimeData");
    const QSize size = mimeData->imageData().value<QImage>().size();
    QCOMPARE(size, mimeData->hasImage() ? QSize(3, 2) : QSize(0, 0));
}

void tst_DragEvent::addsThePictureOnceTheMimeDataHasHtml()
{
    DragEvent event(with("data", QUrl::fromLocalFile(picture()).toEncoded()));
    QMimeData *mimeData = event.toMimeData();
    QCOMPARE(textOf(mimeData), QString());
    mimeData->setHtml(QStringLiteral("<i>"));
    event.toMimeData();
    QCOMPARE(textOf(mimeData), QStringLiteral("html=<i>;image;"));
}

// Opening a pipe that nobody writes to would block forever.
void tst_DragEvent::opensNoPipe()
{
    const QString pipe = m_folder.filePath(QStringLiteral("pipe.png"));
    const QString link = m_folder.filePath(QStringLiteral("link.png"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(QFile::link(pipe, link));
    // Qt adds extensions to names that it does not find.
    const QString bare = m_folder.filePath(QStringLiteral("pipe"));
    for (const QString &path : { pipe, link, bare, QStringLiteral("/dev/tty") }) {
        DragEvent event({ { QStringLiteral("html"), QStringLiteral("<b>") },
                          { QStringLiteral("data"), QUrl::fromLocalFile(path).toEncoded() } });
        QCOMPARE(textOf(event.toMimeData()), QStringLiteral("html=<b>;"));
    }
}

void tst_DragEvent::fillsTheSameMimeDataAgain()
{
    DragEvent event(with("html", QStringLiteral("<b>")));
    QMimeData *mimeData = event.toMimeData();
    mimeData->setHtml(QStringLiteral("<i>"));
    mimeData->setText(QStringLiteral("kept"));
    QCOMPARE(event.toMimeData(), mimeData);
    QCOMPARE(mimeData->html(), QStringLiteral("<b>"));
    QCOMPARE(mimeData->text(), QStringLiteral("kept"));
}

void tst_DragEvent::deletesItsMimeData()
{
    QPointer<QMimeData> mimeData;
    {
        DragEvent event({});
        mimeData = event.toMimeData();
        QVERIFY(mimeData);
    }
    QVERIFY(!mimeData);
}

void tst_DragEvent::copiesItsValues()
{
    const QList<QUrl> urls { QUrl(QStringLiteral("file:///a")) };
    const DragEvent event(
            { { QStringLiteral("x"), 1 },
              { QStringLiteral("y"), 2 },
              { QStringLiteral("html"), QStringLiteral("<b>") },
              { QStringLiteral("urls"), QVariant::fromValue(urls) },
              { QStringLiteral("data"), QUrl::fromLocalFile(picture()).toEncoded() } });
    const QString all = QStringLiteral("html=<b>;urls=file:///a;image;");
    DragEvent copy(event);
    QCOMPARE(copy.position(), QPoint(1, 2));
    QCOMPARE(textOf(copy.toMimeData()), all);
    DragEvent assigned({});
    assigned = event;
    QCOMPARE(assigned.position(), QPoint(1, 2));
    QCOMPARE(textOf(assigned.toMimeData()), all);
    QVERIFY(assigned.toMimeData() != copy.toMimeData());
}

void tst_DragEvent::sharesItsMimeDataWithCopies()
{
    QPointer<QMimeData> mimeData;
    {
        DragEvent event({});
        mimeData = event.toMimeData();
        {
            DragEvent copy(event);
            DragEvent second(copy);
            QCOMPARE(second.toMimeData(), mimeData.data());
        }
        // The first record that is destroyed deletes it; the others notice that.
        QVERIFY(!mimeData);
    }
}

void tst_DragEvent::sharesItsMimeDataOnAssignment()
{
    DragEvent event({});
    DragEvent other(with("html", QStringLiteral("<b>")));
    const QPointer<QMimeData> own = event.toMimeData();
    const QPointer<QMimeData> taken = other.toMimeData();
    event = other;
    QCOMPARE(event.toMimeData(), taken.data());
    QVERIFY(!own);
    event = other;
    QVERIFY(taken);
}

void tst_DragEvent::makesNewMimeDataAfterACopyHasDeletedIt()
{
    DragEvent event(with("html", QStringLiteral("<b>")));
    event.toMimeData();
    {
        const DragEvent copy(event);
    }
    QCOMPARE(textOf(event.toMimeData()), QStringLiteral("html=<b>;"));
}

void tst_DragEvent::survivesAssignmentToItself()
{
    DragEvent event(with("html", QStringLiteral("<b>")));
    const QPointer<QMimeData> mimeData = event.toMimeData();
    const DragEvent &itself = event;
    event = itself;
    QVERIFY(mimeData);
    QCOMPARE(event.toMimeData(), mimeData.data());
}

void tst_DragEvent::survivesAnotherOwner()
{
    DragEvent event({});
    // As QDrag does when it is deleted.
    delete event.toMimeData();
    QVERIFY(event.toMimeData()->formats().isEmpty());
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_DragEvent)
#include "tst_dragevent.moc"
