// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaLineEdit.h>

#include <QAccessible>
#include <QClipboard>
#include <QLoggingCategory>
#include <QMenu>
#include <QRegularExpression>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <functional>

namespace {

const QString secret = QStringLiteral("xyz");

/// What assistive technology hears of texts: "+x" for an insertion, "-x" for a removal.
QStringList heard;

void hear(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::TextInserted) {
        heard += QLatin1Char('+')
                + static_cast<QAccessibleTextInsertEvent *>(event)->textInserted();
    } else if (event->type() == QAccessible::TextRemoved) {
        heard += QLatin1Char('-') + static_cast<QAccessibleTextRemoveEvent *>(event)->textRemoved();
    } else if (event->type() == QAccessible::TextUpdated) {
        const auto *update = static_cast<QAccessibleTextUpdateEvent *>(event);
        heard += QLatin1Char('-') + update->textRemoved() + QLatin1Char('+')
                + update->textInserted();
    }
}

/// In place of the platform, so before the first line edit is made.
const auto isHeard = QAccessible::installUpdateHandler(hear);

QString takeHeard() { return std::exchange(heard, {}).join(QLatin1Char(' ')); }

/// Has the platform pretend that assistive technology is running, while it lives.
class Listening
{
    Q_DISABLE_COPY_MOVE(Listening)

public:
    Listening() { setActive(true); }
    ~Listening() { setActive(false); }

private:
    static void setActive(bool active)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
        heard.clear();
    }
};

/// Collects all messages while it lives.
class Messages
{
    Q_DISABLE_COPY_MOVE(Messages)

public:
    Messages() : m_before(qInstallMessageHandler(add))
    {
        s_text.clear();
        QLoggingCategory::setFilterRules(QStringLiteral("*=true"));
    }
    ~Messages()
    {
        QLoggingCategory::setFilterRules(QString());
        qInstallMessageHandler(m_before);
    }

    static QString text() { return s_text; }

private:
    static void add(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        s_text += message + QLatin1Char('\n');
    }

    static inline QString s_text;
    const QtMessageHandler m_before;
};

/// Does to \a edit what changes a text, in each way once.
void editByAllMeans(OxaLineEdit &edit)
{
    edit.setText(secret);
    edit.setText(secret + secret);
    edit.clear();
    edit.insert(secret);
    edit.backspace();
    edit.selectAll();
    edit.del();
    QTest::keyClicks(&edit, secret);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QGuiApplication::clipboard()->setText(secret);
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    edit.paste();
    QInputMethodEvent commit;
    commit.setCommitString(secret);
    QCoreApplication::sendEvent(&edit, &commit);
}

/// Returns the answers of \a edit to an input method, joined.
QString toldToInputMethods(OxaLineEdit &edit)
{
    QString told;
    for (int bit = 0; bit < 31; ++bit) {
        const auto query = Qt::InputMethodQuery(1U << unsigned(bit));
        QInputMethodQueryEvent event(query);
        QCoreApplication::sendEvent(&edit, &event);
        told += event.value(query).toString();
        QVariant answer;
        QMetaObject::invokeMethod(&edit, "inputMethodQuery", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariant, answer),
                                  Q_ARG(Qt::InputMethodQuery, query), Q_ARG(QVariant, QVariant()));
        told += answer.toString();
    }
    return told;
}

} // namespace

/// What a masked text tells others: its length, and nothing else.
class tst_OxaLineEditPasswords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::clipboard()->clear(); }

    void reportsChangesOfAShownText();
    void reportsStarsForChangesOfAMaskedText();
    void reportsNothingOfAnInvisibleText();
    void leavesUpdatesOfOthersAsTheyAre();
    void readsNoMaskedTextOut();
    void readsAShownTextOut();
    void copiesNoMaskedText();
    void tellsInputMethodsNoMaskedText();
    void logsNoTexts();
};

void tst_OxaLineEditPasswords::reportsChangesOfAShownText()
{
    const Listening listening;
    OxaLineEdit edit;
    editByAllMeans(edit);
    QVERIFY(takeHeard().startsWith(QLatin1String("+xyz -xyz+xyzxyz -xyzxyz +xyz -z -xy +x +y +z")));
}

void tst_OxaLineEditPasswords::reportsStarsForChangesOfAMaskedText()
{
    const Listening listening;
    OxaLineEdit edit;
    edit.setEchoMode(QLineEdit::Password);
    editByAllMeans(edit);
    const QString all = takeHeard();
    QVERIFY2(all.startsWith(QLatin1String("+*** -***+****** -****** +*** -* -** +* +* +*")),
             qPrintable(all));
    for (const QChar letter : secret)
        QVERIFY2(!all.contains(letter), qPrintable(all));
    edit.setEchoMode(QLineEdit::Normal);
    edit.setText(QStringLiteral("shown"));
    QVERIFY(takeHeard().endsWith(QLatin1String("+shown")));
}

void tst_OxaLineEditPasswords::reportsNothingOfAnInvisibleText()
{
    const Listening listening;
    OxaLineEdit edit;
    edit.setEchoMode(QLineEdit::NoEcho);
    editByAllMeans(edit);
    QString all = takeHeard();
    QVERIFY(!all.isEmpty());
    QCOMPARE(all.remove(QRegularExpression(QStringLiteral("[ +-]"))), QString());
}

void tst_OxaLineEditPasswords::leavesUpdatesOfOthersAsTheyAre()
{
    const Listening listening;
    const OxaLineEdit ours;
    QLineEdit other;
    other.setText(secret);
    QCOMPARE(takeHeard(), QStringLiteral("+xyz"));
    QAccessibleTextUpdateEvent update(&other, 1, QStringLiteral("a"), QStringLiteral("b"));
    QAccessible::updateAccessibility(&update);
    QCOMPARE(takeHeard(), QStringLiteral("-a+b"));
}

void tst_OxaLineEditPasswords::readsNoMaskedTextOut()
{
    OxaLineEdit edit(secret);
    edit.setEchoMode(QLineEdit::Password);
    edit.selectAll();
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&edit);
    QVERIFY(told->state().passwordEdit);
    for (const auto kind : { QAccessible::Name, QAccessible::Description, QAccessible::Value,
                             QAccessible::Help, QAccessible::Accelerator })
        QVERIFY(!told->text(kind).contains(secret));
    QCOMPARE(told->text(QAccessible::Value), QStringLiteral("***"));
    QAccessibleTextInterface *text = told->textInterface();
    QCOMPARE(text->text(0, 3), QString());
    int start = 0;
    int end = 0;
    for (const auto boundary : { QAccessible::CharBoundary, QAccessible::WordBoundary,
                                 QAccessible::LineBoundary, QAccessible::NoBoundary }) {
        QCOMPARE(text->textAtOffset(1, boundary, &start, &end), QString());
        QCOMPARE(text->textBeforeOffset(2, boundary, &start, &end), QString());
        QCOMPARE(text->textAfterOffset(0, boundary, &start, &end), QString());
    }
}

void tst_OxaLineEditPasswords::readsAShownTextOut()
{
    OxaLineEdit edit(secret);
    edit.setEchoMode(QLineEdit::Password);
    edit.setEchoMode(QLineEdit::Normal);
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&edit);
    QVERIFY(!told->state().passwordEdit);
    QCOMPARE(told->text(QAccessible::Value), secret);
    QCOMPARE(told->textInterface()->text(0, 3), secret);
}

void tst_OxaLineEditPasswords::copiesNoMaskedText()
{
    const QString before = QStringLiteral("before");
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->setText(before);
    OxaLineEdit edit;
    edit.setEchoMode(QLineEdit::Password);
    const std::function<void()> attempts[] = {
        [&] { edit.copy(); },
        [&] { edit.cut(); },
        [&] { QTest::keySequence(&edit, QKeySequence::Copy); },
        [&] { QTest::keySequence(&edit, QKeySequence::Cut); },
    };
    for (const auto &attempt : attempts) {
        edit.setText(secret);
        edit.selectAll();
        attempt();
        QCOMPARE(clipboard->text(), before);
    }
    edit.setText(secret);
    edit.selectAll();
    const std::unique_ptr<QMenu> menu(edit.createStandardContextMenu());
    for (QAction *action : menu->actions()) {
        if (action->text().contains(QLatin1String("Cop"))
            || action->text().contains(QLatin1String("Cu")))
            QVERIFY2(!action->isEnabled(), qPrintable(action->text()));
    }
    edit.setEchoMode(QLineEdit::Normal);
    edit.selectAll();
    edit.copy();
    QCOMPARE(clipboard->text(), secret);
}

void tst_OxaLineEditPasswords::tellsInputMethodsNoMaskedText()
{
    OxaLineEdit edit(secret);
    edit.selectAll();
    QVERIFY(toldToInputMethods(edit).contains(secret));
    for (const auto mode :
         { QLineEdit::Password, QLineEdit::NoEcho, QLineEdit::PasswordEchoOnEdit }) {
        edit.setEchoMode(mode);
        edit.selectAll();
        QVERIFY(edit.hasSelectedText());
        QVERIFY(!toldToInputMethods(edit).contains(QLatin1Char('x')));
    }
    QCOMPARE(edit.inputMethodQuery(Qt::ImMaximumTextLength).toInt(), 32767);
}

void tst_OxaLineEditPasswords::logsNoTexts()
{
    const Messages messages;
    OxaLineEdit edit;
    edit.setEchoMode(QLineEdit::Password);
    editByAllMeans(edit);
    edit.setText(secret);
    edit.setPlaceholderColorSetName(QStringLiteral("missing"));
    edit.setCSS(QStringLiteral("$backgroundColors: missing; color: $(missing.normal);"));
    edit.setThemeType(QStringLiteral("dark"));
    qWarning() << &edit;
    QVERIFY(Messages::text().contains(QLatin1String("OxaLineEdit")));
    QVERIFY2(!Messages::text().contains(secret), qPrintable(Messages::text()));
}

UIELEMENTS_TEST_MAIN(tst_OxaLineEditPasswords)
#include "tst_oxalineedit_passwords.moc"
