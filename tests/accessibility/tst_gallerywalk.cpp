// SPDX-License-Identifier: Apache-2.0
#include "AccessibleTree.h"
#include "support/RealInput.h"
#include "support/TestMain.h"

#include <QFile>
#include <QProcess>

namespace {

constexpr int waitMs = 20000;  ///< The sanitizers on a busy machine take that long.
constexpr int settleMs = 5000; ///< All pages together must not take the whole time of a test.

QStringList readLines(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly)
            ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))
            : QStringList();
}

/// Returns the names of the pages, in their order.
QStringList pageNames()
{
    QProcess gallery;
    gallery.start(QStringLiteral(GALLERY_PROGRAM), { QStringLiteral("--list-pages") });
    gallery.waitForFinished();
    return QString::fromUtf8(gallery.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

/// Says where \a told first differs from \a expected; nothing where it does not.
QString difference(const QStringList &told, const QStringList &expected)
{
    int line = 0;
    while (line < told.size() && line < expected.size() && told[line] == expected[line])
        ++line;
    if (line == told.size() && line == expected.size())
        return {};
    return QStringLiteral("line %1:\n   expected %2\n   told     %3")
            .arg(line + 1)
            .arg(expected.value(line, QStringLiteral("nothing")),
                 told.value(line, QStringLiteral("nothing")));
}

} // namespace

/// What the whole gallery tells assistive technology, page by page, over the accessibility bus. The
/// table gallery-tree.txt has a section for each page, and one for what is around them.
///
/// With UIELEMENTS_UPDATE_TABLES=1 in the environment the table is written anew, into the sources.
class tst_GalleryWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void tellsWhatTheTableSays_data();
    void tellsWhatTheTableSays();

private:
    BusReader::Node window() const;
    int shownPage() const;
    bool goTo(int page) const;
    AccessibleTree read(int page) const;

    const QString m_path = QStringLiteral(GALLERY_TREE);
    const QStringList m_pages = pageNames();
    const bool m_writes = qEnvironmentVariableIsSet("UIELEMENTS_UPDATE_TABLES");
    QMap<QString, QStringList> m_table; ///< The lines by their section.
    BusReader m_reader;
    BusReader::Node m_stack; ///< Of the pages.
    QProcess m_gallery;
};

void tst_GalleryWalk::initTestCase()
{
    QString section;
    const QStringList lines = m_writes ? QStringList() : readLines(m_path);
    for (const QString &line : lines) {
        if (line.startsWith(QLatin1Char('[')))
            section = line.mid(1).chopped(1);
        else if (!section.isEmpty() && !line.isEmpty())
            m_table[section] += line;
    }
    QVERIFY(RealInput::parkPointer());
    m_gallery.setProcessChannelMode(QProcess::ForwardedChannels);
    m_gallery.start(QStringLiteral(GALLERY_PROGRAM), { QStringLiteral("--page"), m_pages.first() });
    QTRY_VERIFY_WITH_TIMEOUT(m_reader.applications().size() == 1, waitMs);
    QTRY_VERIFY_WITH_TIMEOUT(!m_reader.childrenOf(m_reader.applications().first()).isEmpty(),
                             waitMs);
    QTRY_VERIFY(m_reader.read(window()).is("active"));
    AccessibleTree tree = AccessibleTree::read(m_reader, window());
    QVERIFY(tree.find("layered pane"));
    m_stack = tree.find("layered pane")->node;
}

void tst_GalleryWalk::cleanupTestCase()
{
    m_gallery.terminate();
    QVERIFY(m_gallery.waitForFinished());
    if (!m_writes)
        return;
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QStringList sections = m_pages;
    sections.prepend(QStringLiteral("window"));
    for (const QString &section : qAsConst(sections)) {
        const QString text = m_table[section].join(QLatin1Char('\n'));
        file.write(QStringLiteral("[%1]\n%2\n\n").arg(section, text).toUtf8());
    }
}

BusReader::Node tst_GalleryWalk::window() const
{
    return m_reader.childAt(m_reader.applications().value(0), 0);
}

/// Pages are made one after the other: the last one is shown.
int tst_GalleryWalk::shownPage() const { return m_reader.read(m_stack).childCount - 1; }

/// Goes from page to page, as far as \a page.
bool tst_GalleryWalk::goTo(int page) const
{
    for (int next = shownPage() + 1; next <= page; ++next) {
        const auto isThere = [this, next] { return shownPage() == next; };
        if (!RealInput::typeKeys({ QStringLiteral("alt+Down") })
            || !QTest::qWaitFor(isThere, waitMs))
            return false;
    }
    return true;
}

/// Reads the page with the number \a page, or the window without its pages for a negative one.
AccessibleTree tst_GalleryWalk::read(int page) const
{
    if (page >= 0)
        return AccessibleTree::read(m_reader, m_reader.childAt(m_stack, page));
    AccessibleTree tree = AccessibleTree::read(m_reader, window());
    tree.find("layered pane")->children.clear();
    return tree;
}

void tst_GalleryWalk::tellsWhatTheTableSays_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("window") << -1;
    for (int page = 0; page < m_pages.size(); ++page)
        QTest::newRow(qPrintable(m_pages[page])) << page;
}

void tst_GalleryWalk::tellsWhatTheTableSays()
{
    QFETCH(int, page);
    QCOMPARE(m_gallery.state(), QProcess::Running);
    QVERIFY(goTo(page));
    const QString section = QString::fromUtf8(QTest::currentDataTag());
    QStringList problems;
    QString found;
    const auto isAsExpected = [&] {
        const AccessibleTree tree = read(page);
        problems = tree.problems();
        const QStringList lines = tree.lines();
        found = difference(lines, m_table[section]);
        if (m_writes)
            m_table[section] = lines;
        return found.isEmpty();
    };
    // A page may still be filling.
    const bool isRight = QTest::qWaitFor(isAsExpected, settleMs);
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
    QVERIFY2(isRight, qPrintable(QStringLiteral("[%1] %2").arg(section, found)));
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_GalleryWalk)
#include "tst_gallerywalk.moc"
