// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

/// A dialog that stays open where it is told to.
class StubbornDialog : public OxaDialog
{
public:
    using OxaDialog::OxaDialog;
    void reject() override { }
};

/// Something that is done with a dialog.
using Act = void (*)(OxaDialog &);

QImage pictureOf(const QIcon &icon) { return icon.pixmap(32).toImage(); }

} // namespace

Q_DECLARE_METATYPE(Act)

/// OxaDialog, without the blocks that it shares with other classes.
class tst_OxaDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoHelpButton_data();
    void hasNoHelpButton();
    void hasATransparentIconUnderAParent();
    void hasTheApplicationsIconWithoutAParent();
    void takesItsParentsThemeTypeWhenMade_data() { hasNoHelpButton_data(); }
    void takesItsParentsThemeTypeWhenMade();
    void isConnectedToItsParentOnce();

    void isDeletedOnceItIsClosed_data();
    void isDeletedOnceItIsClosed();
    void emitsItsSignalBeforeQtHandlesTheClose();
    void emitsItsSignalAlsoWhereItThenStaysOpen();
    void isClosedWithoutTheSignal_data();
    void isClosedWithoutTheSignal();
    void survivesWhatASlotDoesWithIt_data();
    void survivesWhatASlotDoesWithIt();
    void survivesItsDeletionWhileItRuns();
};

void tst_OxaDialog::hasNoHelpButton_data()
{
    QTest::addColumn<Qt::WindowFlags>("flags");
    QTest::newRow("default flags") << Qt::WindowFlags();
    QTest::newRow("a help button asked for")
            << (Qt::Dialog | Qt::WindowTitleHint | Qt::WindowContextHelpButtonHint);
    QTest::newRow("a title alone") << (Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    QTest::newRow("no frame") << (Qt::Dialog | Qt::FramelessWindowHint);
}

void tst_OxaDialog::hasNoHelpButton()
{
    QFETCH(const Qt::WindowFlags, flags);
    QWidget parent;
    const OxaDialog dialog(&parent, flags);
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.windowFlags(),
             QDialog(&parent, flags).windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

void tst_OxaDialog::hasATransparentIconUnderAParent()
{
    QWidget parent;
    const OxaDialog dialog(&parent);
    QImage transparent(32, 32, QImage::Format_ARGB32_Premultiplied);
    transparent.fill(Qt::transparent);
    QCOMPARE(pictureOf(dialog.windowIcon()), transparent);
}

void tst_OxaDialog::hasTheApplicationsIconWithoutAParent()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("logo.png"));
    QImage logo(32, 32, QImage::Format_ARGB32_Premultiplied);
    logo.fill(Qt::red);
    QVERIFY(logo.save(path));
    const ApplicationPropertyGuard guard("logoPngPath", path);
    const OxaDialog dialog;
    QCOMPARE(pictureOf(dialog.windowIcon()).convertToFormat(logo.format()), logo);
}

void tst_OxaDialog::takesItsParentsThemeTypeWhenMade()
{
    QFETCH(const Qt::WindowFlags, flags);
    OxaWidget parent;
    parent.setThemeType(QStringLiteral("dark"));
    const OxaDialog dialog(&parent, flags);
    QCOMPARE(dialog.property("themeType").toString(), QStringLiteral("dark"));
    QCOMPARE(dialog.getThemeType(), OxaThemeUtils::AppThemeType::Dark);
}

void tst_OxaDialog::isConnectedToItsParentOnce()
{
    struct Parent : OxaWidget
    {
        using OxaWidget::receivers;
    };
    Parent parent;
    const int before = parent.receivers(SIGNAL(themeTypeChanged()));
    const OxaDialog dialog(&parent);
    QCOMPARE(parent.receivers(SIGNAL(themeTypeChanged())), before + 1);
}

void tst_OxaDialog::isDeletedOnceItIsClosed_data()
{
    QTest::addColumn<Act>("close");
    QTest::newRow("closed") << Act([](OxaDialog &dialog) { dialog.close(); });
    QTest::newRow("accepted") << Act([](OxaDialog &dialog) { dialog.accept(); });
    QTest::newRow("rejected by Escape")
            << Act([](OxaDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QTest::newRow("closed before it is shown") << Act([](OxaDialog &dialog) {
        dialog.hide();
        dialog.close();
    });
}

void tst_OxaDialog::isDeletedOnceItIsClosed()
{
    QFETCH(const Act, close);
    const QPointer<OxaDialog> dialog = new OxaDialog;
    dialog->show();
    close(*dialog);
    QVERIFY(dialog);
    QTRY_VERIFY(!dialog);
}

void tst_OxaDialog::emitsItsSignalBeforeQtHandlesTheClose()
{
    auto *dialog = new OxaDialog;
    SignalLog log;
    log.record(dialog, &OxaDialog::onClose, QStringLiteral("onClose"));
    log.record(dialog, &OxaDialog::finished, QStringLiteral("finished"));
    log.record(dialog, &OxaDialog::rejected, QStringLiteral("rejected"));
    bool wasVisible = false;
    connect(dialog, &OxaDialog::onClose, this,
            [&wasVisible, dialog] { wasVisible = dialog->isVisible(); });
    dialog->show();
    QVERIFY(dialog->close());
    QVERIFY(wasVisible);
    QCOMPARE(log.take(), QStringLiteral("onClose | rejected | finished"));
}

void tst_OxaDialog::emitsItsSignalAlsoWhereItThenStaysOpen()
{
    StubbornDialog dialog;
    const QSignalSpy onClose(&dialog, &OxaDialog::onClose);
    dialog.show();
    QVERIFY(!dialog.close());
    QCOMPARE(onClose.size(), 1);
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.testAttribute(Qt::WA_DeleteOnClose));
}

void tst_OxaDialog::isClosedWithoutTheSignal_data()
{
    QTest::addColumn<Act>("close");
    QTest::newRow("accept()") << Act([](OxaDialog &dialog) { dialog.accept(); });
    QTest::newRow("reject()") << Act([](OxaDialog &dialog) { dialog.reject(); });
    QTest::newRow("Escape") << Act(
            [](OxaDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
}

void tst_OxaDialog::isClosedWithoutTheSignal()
{
    QFETCH(const Act, close);
    const QPointer<OxaDialog> dialog = new OxaDialog;
    const QSignalSpy onClose(dialog.data(), &OxaDialog::onClose);
    const QSignalSpy finished(dialog.data(), &QDialog::finished);
    dialog->show();
    close(*dialog);
    QTRY_VERIFY(!dialog);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(onClose.size(), 0);
}

void tst_OxaDialog::survivesWhatASlotDoesWithIt_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("deletes it") << Act([](OxaDialog &dialog) { delete &dialog; });
    QTest::newRow("deletes its parent") << Act([](OxaDialog &dialog) { delete dialog.parent(); });
    QTest::newRow("deletes it later") << Act([](OxaDialog &dialog) { dialog.deleteLater(); });
    QTest::newRow("closes it once more") << Act([](OxaDialog &dialog) { dialog.close(); });
    QTest::newRow("accepts it") << Act([](OxaDialog &dialog) { dialog.accept(); });
    QTest::newRow("hides it") << Act([](OxaDialog &dialog) { dialog.hide(); });
}

void tst_OxaDialog::survivesWhatASlotDoesWithIt()
{
    QFETCH(const Act, act);
    const QPointer<QWidget> parent = new QWidget;
    const QPointer<OxaDialog> dialog = new OxaDialog(parent);
    int emissions = 0;
    connect(dialog.data(), &OxaDialog::onClose, this, [&emissions, dialog, act] {
        ++emissions;
        act(*dialog);
    });
    dialog->show();
    QVERIFY(dialog->close());
    QTRY_VERIFY(!dialog);
    QCOMPARE(emissions, 1);
    delete parent;
}

void tst_OxaDialog::survivesItsDeletionWhileItRuns()
{
    const QPointer<OxaDialog> dialog = new OxaDialog;
    connect(dialog.data(), &OxaDialog::onClose, this, [dialog] { delete dialog; });
    QMetaObject::invokeMethod(dialog.data(), &QWidget::close, Qt::QueuedConnection);
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(!dialog);
}

UIELEMENTS_TEST_MAIN(tst_OxaDialog)
#include "tst_oxadialog.moc"
