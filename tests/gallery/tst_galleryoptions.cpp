// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <QDir>

#include <shell/GalleryOptions.h>
#include <shell/PageRegistry.h>

using Task = GalleryOptions::Task;

Q_DECLARE_METATYPE(GalleryOptions::Task)

namespace {

GalleryOptions parse(const QString &arguments)
{
    return GalleryOptions::parse(QStringList(QStringLiteral("gallery"))
                                 + arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

} // namespace

/// GalleryOptions: the command line.
class tst_GalleryOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheTask_data();
    void readsTheTask();
    void opensTheFirstPageUnlessToldOtherwise();
    void takesAUsersDocuments();
    void takesAFolderOfPictures();
    void reportsErrors_data();
    void reportsErrors();
};

void tst_GalleryOptions::readsTheTask_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<Task>("task");
    QTest::newRow("nothing") << "" << Task::ShowWindow;
    QTest::newRow("a page") << "--page labels" << Task::ShowWindow;
    QTest::newRow("pictures") << "--screenshots pictures" << Task::TakeScreenshots;
    QTest::newRow("the pages") << "--list-pages" << Task::ListPages;
    QTest::newRow("help") << "--help" << Task::PrintHelp;
    QTest::newRow("the version") << "--version" << Task::PrintHelp;
}

void tst_GalleryOptions::readsTheTask()
{
    QFETCH(const QString, arguments);
    QFETCH(const Task, task);
    QCOMPARE(parse(arguments).task, task);
}

void tst_GalleryOptions::opensTheFirstPageUnlessToldOtherwise()
{
    QCOMPARE(parse(QString()).pages, pageNames());
    QCOMPARE(parse(QStringLiteral("--page labels")).pages, QStringList(QStringLiteral("labels")));
}

void tst_GalleryOptions::takesAUsersDocuments()
{
    QCOMPARE(parse(QString()).documents.light, DocumentPaths().light);
    const GalleryOptions options = parse(
            QStringLiteral("--colors palette --sets ordinary --inverted-sets opposite"));
    QCOMPARE(options.documents.colors, QStringLiteral("palette"));
    QCOMPARE(options.documents.light, QStringLiteral("ordinary"));
    QCOMPARE(options.documents.dark, QStringLiteral("opposite"));
}

void tst_GalleryOptions::takesAFolderOfPictures()
{
    QVERIFY(parse(QString()).artworkFolder.endsWith(QLatin1String("/uielements/artwork")));
    const QString folder = QDir::tempPath();
    QCOMPARE(parse(QStringLiteral("--artwork ") + folder).artworkFolder, folder);
}

void tst_GalleryOptions::reportsErrors_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("message");
    const QString together = QStringLiteral("--colors, --sets and --inverted-sets go together");
    QTest::newRow("a palette alone") << "--colors palette" << together;
    QTest::newRow("sets alone") << "--sets ordinary" << together;
    QTest::newRow("no inverted sets") << "--colors palette --sets ordinary" << together;
    QTest::newRow("an unknown page") << "--page nowhere"
                                     << "there is no page called nowhere; see --list-pages";
    QTest::newRow("a folder that is not there") << "--artwork nowhere"
                                                << "there is no folder called nowhere";
    QTest::newRow("an unknown option") << "--nonsense"
                                       << "Unknown option 'nonsense'.";
    QTest::newRow("an argument") << "labels"
                                 << "unexpected argument labels";
}

void tst_GalleryOptions::reportsErrors()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, message);
    const GalleryOptions options = parse(arguments);
    QCOMPARE(options.task, Task::Fail);
    QCOMPARE(options.message, message);
}

GALLERY_TEST_MAIN(tst_GalleryOptions)
#include "tst_galleryoptions.moc"
