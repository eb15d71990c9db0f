// SPDX-License-Identifier: Apache-2.0
#include "TextInputParts.h"
#include "support/Guards.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <limits>

using namespace TextInputParts;

/// Lengths, sizes and texts that make no sense.
class tst_OxaTextInputExtremes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanupTestCase() { m_stores.reset(); }

    void takesAnyMaximumLength_data();
    void takesAnyMaximumLength();
    void takesAnyIconSize_data();
    void takesAnyIconSize();
    void takesLongTexts();

private:
    std::unique_ptr<StoreGuard> m_stores;
    SvgFiles m_files;
};

void tst_OxaTextInputExtremes::takesAnyMaximumLength_data()
{
    QTest::addColumn<int>("length");
    QTest::newRow("negative") << -1;
    QTest::newRow("least") << std::numeric_limits<int>::min();
    QTest::newRow("zero") << 0;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void tst_OxaTextInputExtremes::takesAnyMaximumLength()
{
    QFETCH(const int, length);
    Window window;
    QVERIFY(window.open());
    window.field.setText(QStringLiteral("abc"));
    window.field.setFocus();
    window.field.setMaxLength(length);
    QTest::keyClick(&textOf(window.field), Qt::Key_A);
    textOf(window.field).paste();
    QCOMPARE(window.field.maxLength(), length);
    QVERIFY(counterOf(window.field).text().endsWith(QLatin1Char('/') + QString::number(length)));
    if (length == 0)
        QCOMPARE(window.field.text(), QString());
}

void tst_OxaTextInputExtremes::takesAnyIconSize_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("warning");
    QTest::newRow("zero") << 0 << QString();
    QTest::newRow("negative")
            << -3
            << QStringLiteral("QWidget::setMinimumSize: (%1/OxaSvgPushButton) Negative sizes "
                              "(-3,-3) are not possible");
    QTest::newRow("huge") << 4000 << QString();
}

void tst_OxaTextInputExtremes::takesAnyIconSize()
{
    QFETCH(const int, size);
    QFETCH(const QString, warning);
    Window window;
    QVERIFY(window.open());
    window.field.setText(QStringLiteral("abc"));
    window.field.setIcon(m_files.square());
    window.field.setSearchIcon(m_files.square());
    if (!warning.isEmpty()) {
        for (const char *name : { "searchIcon", "clearInputButton" }) {
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning.arg(QLatin1String(name))));
        }
    }
    window.field.updateIconSizes(size, size);
    QCOMPARE(searchIconOf(window.field).getSvgIconSize(), QSize(size, size));
    QVERIFY(!window.field.grab().isNull());
}

void tst_OxaTextInputExtremes::takesLongTexts()
{
    Window window;
    QVERIFY(window.open());
    const QString text(1 << 20, QLatin1Char('x'));
    window.field.setText(text);
    QCOMPARE(window.field.text().size(), 32767);
    window.field.setMaxLength(std::numeric_limits<int>::max());
    window.field.setInputValidator([](const QString &asked) { return asked.size() < 10; }, true);
    window.field.setFocus();
    window.field.setText(text);
    QCOMPARE(window.field.text().size(), text.size());
    QCOMPARE(counterOf(window.field).text(), QStringLiteral("1048576/2147483647"));
    QCOMPARE(lookOf(window.field), QStringLiteral("error"));
    QVERIFY(!window.field.grab().isNull());
}

UIELEMENTS_TEST_MAIN(tst_OxaTextInputExtremes)
#include "tst_oxatextinput_extremes.moc"
