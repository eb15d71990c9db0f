// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"
#include "KeyboardUser.h"
#include "ShownGallery.h"

#include <looks/ThemeSwitcher.h>
#include <shell/PageRegistry.h>

using Appearance = ThemeSwitcher::Appearance;

namespace {

struct Exception
{
    const char *page;
    const char *problem;
};

/// What is as it should be. A row that no longer applies fails its page.
constexpr Exception exceptions[] = {
    // A row of buttons is entered where the key comes from.
    { "windows", "OxaPushButton “Hours” is reached by Shift+Tab only" },
    // It hands the focus on to the first of its tiles.
    { "layouts", "TileBoard “Tiles” is not reached" },
};

QString exceptionsOf(const QByteArray &page)
{
    QStringList problems;
    for (const Exception &exception : exceptions) {
        if (page == exception.page)
            problems += QString::fromUtf8(exception.problem);
    }
    return problems.join(QLatin1Char('\n'));
}

void ignoreWarnings(const QByteArray &page)
{
    if (page != "qml-views")
        return;
    // What the buttons of this page are for.
    for (const char *warning :
         { "MissingType is not a type", "Reloading views from QRC is not supported" })
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(warning)));
}

void setAppearance(Appearance appearance)
{
    GalleryApplication::get()->themeSwitcher()->setAppearance(appearance);
}

} // namespace

/// The gallery by keyboard alone: each control is reached, seen, worked and left.
class tst_KeyboardOnly : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { setAppearance(Appearance::Light); }

    void worksEachPage_data();
    void worksEachPage();
    void showsTheFocus_data();
    void showsTheFocus();

private:
    Keyboard m_keyboard;
};

void tst_KeyboardOnly::worksEachPage_data()
{
    QTest::addColumn<QByteArray>("page");
    for (const QString &name : pageNames())
        QTest::newRow(qPrintable(name)) << name.toLatin1();
}

void tst_KeyboardOnly::worksEachPage()
{
    QFETCH(const QByteArray, page);
    ignoreWarnings(page);
    const ShownGallery shown(page.constData());
    QVERIFY(shown.isActive);
    KeyboardUser user(m_keyboard, shown.window);
    user.walk();
    user.walkBack();
    // The rest of the window is the same beside all pages.
    const bool isFirst = page == pageNames().constFirst().toLatin1();
    const QWidget *part = isFirst ? &shown.window : shown.page();
    user.work(*part);
    const QString expected = exceptionsOf(page);
    const QString comparison = user.problems() + QLatin1String("\nexpected: ") + expected;
    QVERIFY2(user.problems() == expected, qPrintable(comparison));
}

void tst_KeyboardOnly::showsTheFocus_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<Appearance>("appearance");
    for (const QString &name : pageNames()) {
        QTest::addRow("%s, dark", qPrintable(name)) << name.toLatin1() << Appearance::Dark;
        QTest::addRow("%s, high contrast", qPrintable(name))
                << name.toLatin1() << Appearance::HighContrast;
    }
}

void tst_KeyboardOnly::showsTheFocus()
{
    QFETCH(const QByteArray, page);
    QFETCH(const Appearance, appearance);
    setAppearance(appearance);
    const ShownGallery shown(page.constData());
    QVERIFY(shown.isActive);
    KeyboardUser user(m_keyboard, shown.window);
    user.walk();
    QVERIFY2(user.problems().isEmpty(), qPrintable(user.problems()));
}

GALLERY_TEST_MAIN(tst_KeyboardOnly)
#include "tst_keyboardonly.moc"
