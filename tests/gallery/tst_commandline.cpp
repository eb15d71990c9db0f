// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr int timeoutMs = 240000;

/// The result of a run of the gallery.
struct Run
{
    int exitCode = -1;
    QString output;
    QString errors;
};

Run runGallery(const QStringList &arguments)
{
    QProcess gallery;
    gallery.start(QStringLiteral(GALLERY_PROGRAM), arguments);
    Run run;
    if (!gallery.waitForFinished(timeoutMs) || gallery.exitStatus() != QProcess::NormalExit) {
        run.errors = gallery.errorString();
        return run;
    }
    run.exitCode = gallery.exitCode();
    run.output = QString::fromLocal8Bit(gallery.readAllStandardOutput());
    run.errors = QString::fromLocal8Bit(gallery.readAllStandardError());
    return run;
}

QStringList linesOf(const QString &text)
{
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

/// The program as it is started from a shell.
class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsHelp();
    void printsItsVersion();
    void listsPages();
    void failsForAFileThatIsNotThere();
    void failsForAnUnknownPage();
    void takesPicturesOfEveryPageInEveryLook();
    void takesPicturesOfOnePageAlone();
    void failsForAFolderThatCannotBeMade();
};

void tst_CommandLine::printsHelp()
{
    const Run run = runGallery({ QStringLiteral("--help") });
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
    for (const char *option : { "--colors", "--sets", "--inverted-sets", "--page", "--list-pages",
                                "--screenshots", "--artwork", "--version" })
        QVERIFY2(run.output.contains(QLatin1String(option)), option);
}

void tst_CommandLine::printsItsVersion()
{
    const Run run = runGallery({ QStringLiteral("--version") });
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.output.startsWith(QLatin1String("uielements-gallery ")),
             qUtf8Printable(run.output));
}

void tst_CommandLine::listsPages()
{
    const Run run = runGallery({ QStringLiteral("--list-pages") });
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
    const QStringList pages = linesOf(run.output);
    for (const char *page :
         { "colours", "style-text", "typography", "icons", "labels", "svg-widgets" })
        QVERIFY2(pages.contains(QLatin1String(page)), page);
}

void tst_CommandLine::failsForAFileThatIsNotThere()
{
    const QString file = QStringLiteral("no-such-file.json");
    const Run run = runGallery({ QStringLiteral("--colors"), file, QStringLiteral("--sets"), file,
                                 QStringLiteral("--inverted-sets"), file });
    QVERIFY(run.exitCode > 0);
    QCOMPARE(run.errors,
             QStringLiteral("uielements-gallery: cannot use no-such-file.json: there is no such "
                            "file\n"));
}

void tst_CommandLine::failsForAnUnknownPage()
{
    const Run run = runGallery({ QStringLiteral("--page"), QStringLiteral("nowhere") });
    QVERIFY(run.exitCode > 0);
    QCOMPARE(run.errors,
             QStringLiteral("uielements-gallery: there is no page called nowhere; see "
                            "--list-pages\n"));
}

void tst_CommandLine::takesPicturesOfEveryPageInEveryLook()
{
    const QTemporaryDir folder;
    const Run run = runGallery({ QStringLiteral("--screenshots"), folder.path() });
    // The engine tells of its start.
    QCOMPARE(run.errors,
             QStringLiteral("[UILifecycle][Startup] Creating OxaQmlEngine.\n"
                            "[UILifecycle][Startup] Finished creating OxaQmlEngine.\n"));
    QCOMPARE(run.exitCode, 0);
    const int pages = linesOf(runGallery({ QStringLiteral("--list-pages") }).output).size();
    QStringList files = linesOf(run.output);
    QCOMPARE(files.size(), pages * 3 * 2 * 2);
    for (const QString &file : qAsConst(files))
        QVERIFY2(!QImage(file).isNull(), qUtf8Printable(file));

    const QDir pictures(folder.path());
    QCOMPARE(QImage(pictures.filePath(QStringLiteral("colours-light-ltr@1x.png"))).size(),
             QSize(1200, 800));
    QCOMPARE(QImage(pictures.filePath(QStringLiteral("colours-high-contrast-rtl@2x.png"))).size(),
             QSize(2400, 1600));
    // The picture shows the whole page, even if it would scroll in a window of that size.
    const QSize whole = QImage(pictures.filePath(QStringLiteral("svg-widgets-light-ltr@1x.png")))
                                .size();
    QCOMPARE(whole.width(), 1200);
    QVERIFY2(whole.height() > 1600, qPrintable(QString::number(whole.height())));
    files.removeDuplicates();
    QCOMPARE(int(pictures.count()) - 2, files.size());
}

void tst_CommandLine::takesPicturesOfOnePageAlone()
{
    const QTemporaryDir folder;
    const Run run = runGallery({ QStringLiteral("--page"), QStringLiteral("labels"),
                                 QStringLiteral("--screenshots"), folder.path() });
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(linesOf(run.output).size(), 3 * 2 * 2);
    const QStringList all = QDir(folder.path()).entryList(QDir::Files);
    QCOMPARE(all.filter(QStringLiteral("labels-")), all);
}

void tst_CommandLine::failsForAFolderThatCannotBeMade()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const Run run = runGallery({ QStringLiteral("--screenshots"), file.fileName() });
    QVERIFY(run.exitCode > 0);
    QCOMPARE(run.errors,
             QStringLiteral("uielements-gallery: cannot make the folder %1\n")
                     .arg(file.fileName()));
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_CommandLine)
#include "tst_commandline.moc"
