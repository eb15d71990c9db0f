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
/// table gallery-tree.txt has a section for each page, for what is around them, and for what they
/// open. The headings of the latter tell
/// - the page,
/// - how it is opened: by an action, the key Menu, or the pointer,
/// - by what: a button, a field or a label there, or in what is still open,
/// - what closes it: keys, or a button; or "itself". Without that it stays open for the next ones.
///
/// With UIELEMENTS_UPDATE_TABLES=1 in the environment all below the headings is written anew, into
/// the sources.
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
    QVector<BusReader::Node> windows() const;
    int shownPage() const;
    bool goTo(int page) const;
    AccessibleTree read(int page) const;
    bool hasOpened(const QVector<BusReader::Node> &before);
    bool open(const QString &by, const QString &name);
    bool close(const QString &by);

    const QString m_path = QStringLiteral(GALLERY_TREE);
    const QStringList m_pages = pageNames();
    QStringList m_sections; ///< All headings.
    const bool m_writes = qEnvironmentVariableIsSet("UIELEMENTS_UPDATE_TABLES");
    QMap<QString, QStringList> m_table; ///< The lines by their section.
    BusReader m_reader;
    BusReader::Node m_stack;         ///< Of the pages.
    QVector<BusReader::Node> m_open; ///< What was opened, and in what.
    AccessibleTree m_page;
    AccessibleTree m_top; ///< The last of what is open.
    QProcess m_gallery;
};

void tst_GalleryWalk::initTestCase()
{
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
    for (const QString &section : qAsConst(m_sections)) {
        const QString text = m_table[section].join(QLatin1Char('\n'));
        file.write(QStringLiteral("[%1]\n%2\n\n").arg(section, text).toUtf8());
    }
}

QVector<BusReader::Node> tst_GalleryWalk::windows() const
{
    return m_reader.childrenOf(m_reader.applications().value(0));
}

BusReader::Node tst_GalleryWalk::window() const { return windows().value(0); }

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

/// Takes note of what has opened since there were the windows \a before only. Returns whether
/// something has.
bool tst_GalleryWalk::hasOpened(const QVector<BusReader::Node> &before)
{
    static const QStringList roles = QStringLiteral("frame,dialog,popup menu,list,alert message")
                                             .split(QLatin1Char(','));
    const QVector<BusReader::Node> nodes = m_reader.takeShown() + windows();
    for (const BusReader::Node &node : nodes) {
        const BusReader::Told told = m_reader.read(node);
        if (!before.contains(node) && roles.contains(told.role) && !told.is("hidden")) {
            m_open += node;
            return true;
        }
    }
    return false;
}

bool tst_GalleryWalk::open(const QString &by, const QString &name)
{
    const AccessibleTree *opener = nullptr;
    for (const QString &action : { by, QStringLiteral("SetFocus"), QString() })
        opener = opener ? opener : (m_open.isEmpty() ? m_page : m_top).find(name, action);
    if (!opener)
        return false;
    const QVector<BusReader::Node> before = windows();
    m_reader.takeShown();
    m_reader.act(opener->node, QStringLiteral("SetFocus"));
    const bool isStarted = m_reader.act(opener->node, by)
            || (by == QLatin1String("pointer") ? m_reader.moveTo(opener->node)
                                               : RealInput::typeKeys({ by }));
    return isStarted && QTest::qWaitFor([&] { return hasOpened(before); }, waitMs);
}

/// Closes all that is open, and waits until it has left the tree and the window is active again.
bool tst_GalleryWalk::close(const QString &by)
{
    const QString press = QStringLiteral("Press");
    const AccessibleTree *button = m_top.find(by, press);
    button = button ? button : m_page.find(by, press);
    if (button)
        m_reader.act(button->node, press);
    else if (!RealInput::parkPointer()
             || (by != QLatin1String("itself") && !RealInput::typeKeys(by.split(QLatin1Char(' ')))))
        return false;
    const auto isGone = [this](const auto &node) { return m_reader.read(node).is("hidden"); };
    const auto isClosed = [&] {
        return std::all_of(m_open.cbegin(), m_open.cend(), isGone)
                && m_reader.read(window()).is("active");
    };
    const bool isRight = QTest::qWaitFor(isClosed, waitMs);
    m_open.clear();
    return isRight;
}

void tst_GalleryWalk::tellsWhatTheTableSays_data()
{
    QTest::addColumn<QStringList>("how");
    const QStringList lines = readLines(m_path);
    for (const QString &line : lines) {
        if (line.startsWith(QLatin1Char('['))) {
            m_sections += line.mid(1).chopped(1);
            QTest::newRow(qPrintable(m_sections.last()))
                    << m_sections.last().split(QStringLiteral(" / "));
        } else if (!m_sections.isEmpty() && !line.isEmpty() && !m_writes) {
            m_table[m_sections.last()] += line;
        }
    }
    for (const QString &page : m_pages)
        QVERIFY2(m_sections.contains(page), qPrintable(page));
}

void tst_GalleryWalk::tellsWhatTheTableSays()
{
    QFETCH(const QStringList, how);
    QCOMPARE(m_gallery.state(), QProcess::Running);
    const int page = m_pages.indexOf(how.first());
    QVERIFY(goTo(page));
    QVERIFY(how.size() == 1 || open(how.value(1), how.value(2)));
    const QString section = how.join(QStringLiteral(" / "));
    QStringList problems;
    QString found;
    const auto isAsExpected = [&] {
        AccessibleTree &tree = m_open.isEmpty() ? m_page : m_top;
        tree = m_open.isEmpty() ? read(page) : AccessibleTree::read(m_reader, m_open.last());
        problems = tree.problems();
        const QStringList lines = tree.lines();
        found = difference(lines, m_table[section]);
        if (m_writes)
            m_table[section] = lines;
        return found.isEmpty();
    };
    // A page may still be filling.
    const bool isRight = QTest::qWaitFor(isAsExpected, settleMs);
    QVERIFY(how.size() < 4 || close(how.last()));
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
    QVERIFY2(isRight, qPrintable(QStringLiteral("[%1] %2").arg(section, found)));
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_GalleryWalk)
#include "tst_gallerywalk.moc"
