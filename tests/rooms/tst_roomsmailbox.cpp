// SPDX-License-Identifier: Apache-2.0
#include "TestServer.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "data/History.h"
#include "support/TestMain.h"

#include <QTest>

namespace {

constexpr int longMs = 20'000;

const QString first = QStringLiteral("c0");

} // namespace

/// The server shows a mailbox, whatever is in it.
class tst_RoomsMailbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsMails();
    void survivesAnyMailbox_data();
    void survivesAnyMailbox();

private:
    static std::unique_ptr<Backend> startWithMailbox(TestServer &server, const QByteArray &bytes)
    {
        QFile file(server.path("mbox"));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
        file.close();
        server.start({ QStringLiteral("--mailbox"), file.fileName() });
        return std::make_unique<Backend>(server.socket(), server.path("client"));
    }
};

void tst_RoomsMailbox::readsMails()
{
    TestServer server;
    const std::unique_ptr<Backend> client = startWithMailbox(
            server,
            "From ada Mon Jan  1 10:00:00 2024\n"
            "From: =?utf-8?Q?Ad=C3=A4_B?= <ada@rooms.example>\nSubject: Re: [team]  "
            "=?utf-8?B?w4Q=?=\n"
            " =?utf-8?Q?_x?=\nDate: Mon, 01 Jan 2024 10:00:00 +0100 (CET)\n"
            "Content-Type: text/plain; charset=iso-8859-1\n"
            "Content-Transfer-Encoding: quoted-printable\n\n>From here caf=E9 =\n2\n\n"
            "From ben Mon Jan  1 09:00:00 2024\nFrom: ben@rooms.example\nSubject: \303\204 x\n"
            "Date: Mon, 01 Jan 2024 09:00:00 +0000\n"
            "Content-Type: multipart/alternative; boundary=\"b\"\n\n--b\nContent-Type: "
            "text/html\n\n<b>\n"
            "--b\nContent-Type: text/plain\nContent-Transfer-Encoding: base64\n\naGk=\n--b--\n");
    History *history = client->open(first);
    QTRY_COMPARE_WITH_TIMEOUT(history->count(), 2, longMs);
    QCOMPARE(client->conversations()->index(0).data().toString(), QString::fromUtf8("\303\204 x"));
    QCOMPARE(history->at(0).text, QString::fromUtf8("From here caf\303\251 2"));
    QCOMPARE(history->at(1).text, QStringLiteral("hi"));
    QCOMPARE(client->person(history->at(0).author).name, QString::fromUtf8("Ad\303\244 B"));
    QCOMPARE(history->at(1).at, QDateTime(QDate(2024, 1, 1), QTime(9, 0), Qt::UTC));
}

void tst_RoomsMailbox::survivesAnyMailbox_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("conversations");

    const QByteArray from("From a\nSubject: s\n");
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("only starts of mails") << QByteArray("From \n\n").repeated(5000) << 0;
    QTest::newRow("headers without an end") << from + QByteArray("a: b\n").repeated(50'000) << 0;
    QTest::newRow("a header without an end") << from + QByteArray(3'000'000, ':') << 0;
    QTest::newRow("zeros") << from + '\n' + QByteArray(1000, '\0') << 0;
    QTest::newRow("parts in parts in themselves") << from
                    + QByteArray("Content-Type: multipart/mixed; boundary=x\n\n--x\n")
                              .repeated(5000) << 0;
    QTest::newRow("a boundary that is empty")
            << from + "Content-Type: multipart/mixed; boundary=\"\"\n\n----\n\nx\n"
            << 0;
    QTest::newRow("a boundary that does not end")
            << from + "Content-Type: multipart/mixed; boundary=\"x\n\n--x\n\ny\n--x" << 1;
    QTest::newRow("codes that are none") << QByteArray(
            "From a\nSubject: =?no?Q?=Z=?= =?utf-8?B?!?= =?utf-8?Q?\nContent-Transfer-Encoding: "
            "base64\n"
            "Content-Type: text/plain; charset=\"no such\"\n\n!xxxx\n")
                                         << 1;
    QTest::newRow("a text of a megabyte") << from + '\n' + QByteArray(1'500'000, 'x') << 1;
    QTest::newRow("many subjects") << [] {
        QByteArray bytes;
        for (int i = 0; i < 6000; ++i)
            bytes += "From a\nSubject: " + QByteArray::number(i) + "\n\nx\n\n";
        return bytes;
    }() << 5000;
}

void tst_RoomsMailbox::survivesAnyMailbox()
{
    QFETCH(const QByteArray, bytes);
    TestServer server;
    const std::unique_ptr<Backend> client = startWithMailbox(server, bytes);
    QTRY_VERIFY_WITH_TIMEOUT(client->isReady(), longMs);
    QTEST(client->conversations()->getCount(), "conversations");
    if (client->conversations()->getCount() == 0)
        return;
    History *history = client->open(first);
    QTRY_VERIFY_WITH_TIMEOUT(history->count() > 0, longMs);
    QVERIFY(history->at(0).text.size() <= 20'000);
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_RoomsMailbox)

#include "tst_roomsmailbox.moc"
