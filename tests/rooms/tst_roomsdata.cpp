// SPDX-License-Identifier: Apache-2.0
#include "Relay.h"
#include "TestServer.h"
#include "data/Backend.h"
#include "data/ConversationModel.h"
#include "data/History.h"
#include "data/Link.h"
#include "data/PagedFiles.h"
#include "support/TestMain.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QStandardItem>
#include <QTest>

namespace {

constexpr int longMs = 60'000;

const QString biggest = QStringLiteral("c0");
const QString quiet = QStringLiteral("c3");

QString number(int value) { return QString::number(value); }

int sentCount(const History &history)
{
    int count = 0;
    for (int row = 0; row < history.count(); ++row)
        count += history.at(row).state == Message::State::Sent ? 1 : 0;
    return count;
}

/// The last \a count texts, or "seq SEQ, not SEQ" for a message that is out of order.
QStringList lastTexts(const History &history, int count)
{
    QStringList texts;
    for (int row = qMax(0, history.count() - count); row < history.count(); ++row) {
        const int expected = history.at(0).seq + row;
        if (history.at(row).seq != expected)
            return { QStringLiteral("seq %1, not %2").arg(history.at(row).seq).arg(expected) };
        texts.append(history.at(row).text);
    }
    return texts;
}

QStringList numbers(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(number(i));
    return texts;
}

std::vector<ModelRow> conversationRows(int count)
{
    std::vector<ModelRow> rows;
    for (int i = 0; i < count; ++i)
        rows.push_back(ConversationModel::row({ { QStringLiteral("id"), number(i) } }));
    return rows;
}

} // namespace

/// The client's data against the server's process.
class tst_RoomsData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_server = std::make_unique<TestServer>(); }
    void cleanup() { m_server.reset(); }

    void sendsEachMessageOnceAndInOrderAlthoughTheServerIsKilled();
    void keepsWhatWasTypedUntilThereIsAServer();
    void fetchesMessagesThatItWasNotTold();
    void fetchesWhatArrivedWhileItWasAway();
    void keepsTheNewestMessages();
    void goesToADay();
    void loadsFilesThatComeLateAndOutOfOrder();
    void triesAgainWhatFailed_data();
    void triesAgainWhatFailed();
    void sendsAMessageAgainThatFailed();
    void tellsAPageThatFailed();
    void appendsArrivalsInBatches();
    void showsArrivalsInBatches();
    void remembersWhatIsRead();
    void loadsWhatIsUnreadAtOnce();
    void endsAConnectionThatSendsNoLines_data();
    void endsAConnectionThatSendsNoLines();
    void servesOthersAfterALineThatIsTooLong();

private:
    std::unique_ptr<Backend> makeClient(const char *name = "client") const
    {
        return std::make_unique<Backend>(m_server->socket(), m_server->path(name));
    }

    std::unique_ptr<TestServer> m_server;
};

void tst_RoomsData::sendsEachMessageOnceAndInOrderAlthoughTheServerIsKilled()
{
    constexpr int count = 200;
    const QStringList late { QStringLiteral("--late") };
    m_server->start(late);
    const std::unique_ptr<Backend> client = makeClient();
    QTRY_VERIFY_WITH_TIMEOUT(client->isReady(), longMs);
    History *history = client->open(quiet);
    QTRY_VERIFY(!history->isLoading());
    const int before = history->count();
    for (int i = 0; i < count; ++i) {
        client->send(quiet, Message::Kind::Text, number(i));
        if (i % 50 != 25)
            continue;
        QTRY_VERIFY_WITH_TIMEOUT(sentCount(*history) > before + i - 20, longMs);
        m_server->kill();
        m_server->start(late);
    }
    QTRY_COMPARE_WITH_TIMEOUT(sentCount(*history), before + count, longMs);
    QCOMPARE(history->count(), before + count);
    QCOMPARE(lastTexts(*history, count), numbers(count));

    const std::unique_ptr<Backend> other = makeClient("other");
    History *told = other->open(quiet);
    QTRY_VERIFY_WITH_TIMEOUT(told->count() >= count, longMs);
    QCOMPARE(lastTexts(*told, count), numbers(count));
    QVERIFY(m_server->requests(QStringLiteral("send")).size() > count);
}

void tst_RoomsData::keepsWhatWasTypedUntilThereIsAServer()
{
    for (const char *text : { "half", "half a" }) {
        const std::unique_ptr<Backend> client = makeClient();
        client->setDraft(biggest, QString::fromLatin1(text));
        client->setDraft(quiet, QStringLiteral("done"));
        client->send(quiet, Message::Kind::Text, QStringLiteral("done"));
        QCOMPARE(client->draft(quiet), QString());
    }
    const std::unique_ptr<Backend> client = makeClient();
    QCOMPARE(client->draft(biggest), QStringLiteral("half a"));
    History *history = client->open(quiet);
    QCOMPARE(history->count(), 2);
    QCOMPARE(history->at(1).state, Message::State::Waiting);

    m_server->start();
    QTRY_COMPARE_WITH_TIMEOUT(sentCount(*history), history->count(), longMs);
    QTRY_COMPARE(lastTexts(*history, 2),
                 QStringList({ QStringLiteral("done"), QStringLiteral("done") }));
    QCOMPARE(m_server->requests(QStringLiteral("send")).size(), 2);
}

void tst_RoomsData::fetchesMessagesThatItWasNotTold()
{
    m_server->start();
    Relay relay(m_server->path("relay"), m_server->socket());
    relay.dropEvery(3);
    Backend client(relay.name(), m_server->path("client"));
    const std::unique_ptr<Backend> other = makeClient("other");
    History *history = client.open(quiet);
    QTRY_VERIFY_WITH_TIMEOUT(client.isReady() && other->isReady() && !history->isLoading(), longMs);
    for (int i = 0; i < 100; ++i)
        other->send(quiet, Message::Kind::Text, number(i));
    relay.dropEvery(0);
    other->send(quiet, Message::Kind::Text, number(100));
    QTRY_COMPARE_WITH_TIMEOUT(lastTexts(*history, 101), numbers(101), longMs);
}

void tst_RoomsData::fetchesWhatArrivedWhileItWasAway()
{
    m_server->start();
    Relay relay(m_server->path("relay"), m_server->socket());
    Backend client(relay.name(), m_server->path("client"));
    History *history = client.open(quiet);
    QTRY_VERIFY_WITH_TIMEOUT(history->count() > 0, longMs);
    QSignalSpy connected(&client, &Backend::connectedChanged);
    relay.close();
    QTRY_COMPARE(connected.value(0).value(0), QVariant(false));

    constexpr int count = 600; // More than a page.
    const std::unique_ptr<Backend> other = makeClient("other");
    QTRY_VERIFY_WITH_TIMEOUT(other->isReady(), longMs);
    History *sent = other->open(quiet);
    for (int i = 0; i < count; ++i)
        other->send(quiet, Message::Kind::Text, number(i));
    QTRY_COMPARE_WITH_TIMEOUT(lastTexts(*sent, count), numbers(count), longMs);
    other->react(quiet, history->at(history->count() - 1).seq, QStringLiteral("x"));
    const int last = history->count() - 1;
    relay.open();
    QTRY_COMPARE_WITH_TIMEOUT(lastTexts(*history, count), numbers(count), longMs);
    QCOMPARE(history->at(last).reactions.constLast().emoji, QStringLiteral("x"));
}

void tst_RoomsData::keepsTheNewestMessages()
{
    m_server->start();
    const std::unique_ptr<Backend> client = makeClient();
    History *history = client->open(biggest);
    QTRY_VERIFY_WITH_TIMEOUT(!history->isLoading() && client->isReady(), longMs);
    QSignalSpy reached(history, &History::dayReached);
    history->loadBackTo(QDate(1970, 1, 2));
    QVERIFY(reached.wait(longMs));
    QCOMPARE(history->count(), History::longest);
    QVERIFY(history->isComplete());

    QSignalSpy removed(history, &History::removed);
    for (int i = 0; i < 2 * History::page; ++i)
        client->send(biggest, Message::Kind::Text, number(i));
    QTRY_COMPARE_WITH_TIMEOUT(lastTexts(*history, 1), QStringList(number(2 * History::page - 1)),
                              longMs);
    int dropped = 0;
    for (const QVariantList &rows : removed) {
        QVERIFY(rows.value(1).toInt() >= History::page);
        dropped += rows.value(1).toInt();
    }
    QCOMPARE(history->at(0).seq, dropped);
    QCOMPARE(history->count(), History::longest + 2 * History::page - dropped);
    QVERIFY(history->count() < History::longest + History::page);
}

void tst_RoomsData::goesToADay()
{
    m_server->start();
    const std::unique_ptr<Backend> client = makeClient();
    History *history = client->open(biggest);
    QTRY_VERIFY_WITH_TIMEOUT(!history->isLoading() && client->isReady(), longMs);
    const QDate day = history->at(0).at.date().addDays(-30);
    QSignalSpy reached(history, &History::dayReached);
    history->loadBackTo(day);
    QVERIFY(reached.wait(longMs));
    const Message first = history->at(reached.constFirst().value(0).toInt());
    QCOMPARE(first.at.date(), day);
    history->loadEarlier(); // The day may begin with a page.
    QTRY_VERIFY_WITH_TIMEOUT(history->rowOf(first.seq) > 0, longMs);
    QVERIFY(history->at(history->rowOf(first.seq) - 1).at.date() < day);
}

void tst_RoomsData::loadsFilesThatComeLateAndOutOfOrder()
{
    m_server->start(
            { QStringLiteral("--late"), QStringLiteral("--fail"), QStringLiteral("files") });
    const std::unique_ptr<Backend> client = makeClient();
    PagedFiles *files = client->files();
    QTRY_COMPARE_WITH_TIMEOUT(files->size(), 1'000'000, longMs);
    for (const int row : { 500'000, 20, 999'999, 777, 123'456, 750'000 })
        files->setScrolledIndex(row);
    for (const int row : { 999'999, 0, 640'123 }) {
        files->setScrolledIndex(row);
        const QString name = QStringLiteral(" %1.").arg(row + 1);
        QTRY_VERIFY_WITH_TIMEOUT(files->index(row).data().toString().contains(name), longMs);
    }
    const auto isRight = [files](int row) {
        return files->index(row).data().toString().contains(QStringLiteral(" %1.").arg(row + 1));
    };
    for (int row = 640'000; row < 640'400; ++row)
        QTRY_VERIFY_WITH_TIMEOUT(isRight(row), longMs);
    QVERIFY(!files->getItemAt(0));
}

void tst_RoomsData::triesAgainWhatFailed_data()
{
    QTest::addColumn<QString>("request");

    for (const char *name : { "hello", "conversations", "files" })
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_RoomsData::triesAgainWhatFailed()
{
    QFETCH(const QString, request);
    m_server->start({ QStringLiteral("--fail"), request });
    const std::unique_ptr<Backend> client = makeClient();
    QTRY_VERIFY_WITH_TIMEOUT(client->files()->index(0).data().isValid(), longMs);
    QCOMPARE(client->me(), QStringLiteral("p0"));
    QCOMPARE(client->conversations()->getCount(), 5000);
    QVERIFY(!client->person(QStringLiteral("p199")).name.isEmpty());
}

void tst_RoomsData::sendsAMessageAgainThatFailed()
{
    m_server->start({ QStringLiteral("--fail"), QStringLiteral("send") });
    const std::unique_ptr<Backend> client = makeClient();
    QSignalSpy failed(client.get(), &Backend::failed);
    History *history = client->open(quiet);
    client->send(quiet, Message::Kind::Gif, QStringLiteral("wave"));
    client->send(quiet, Message::Kind::Text, QStringLiteral("later"));
    QVERIFY(failed.wait(longMs));
    QTRY_VERIFY_WITH_TIMEOUT(sentCount(*history) > 1, longMs);
    const Message last = history->at(history->count() - 1);
    QCOMPARE(last.state, Message::State::Failed);
    client->retry(quiet, last.key);
    QTRY_COMPARE_WITH_TIMEOUT(lastTexts(*history, 2),
                              QStringList({ QStringLiteral("later"), QStringLiteral("wave") }),
                              longMs);
    QCOMPARE(history->at(history->count() - 1).kind, Message::Kind::Gif);
}

void tst_RoomsData::tellsAPageThatFailed()
{
    m_server->start({ QStringLiteral("--fail"), QStringLiteral("messages") });
    const std::unique_ptr<Backend> client = makeClient();
    History *history = client->open(biggest);
    QSignalSpy failed(history, &History::loadingFailed);
    QVERIFY(failed.wait(longMs));
    QVERIFY(!history->isLoading());
    QCOMPARE(history->count(), 0);
    history->loadEarlier();
    QTRY_COMPARE_WITH_TIMEOUT(history->count(), History::page, longMs);
    history->loadEarlier();
    history->loadEarlier();
    QTRY_COMPARE_WITH_TIMEOUT(history->count(), 2 * History::page, longMs);
    QVERIFY(!history->isLoading());
}

void tst_RoomsData::appendsArrivalsInBatches()
{
    m_server->start();
    const std::unique_ptr<Backend> client = makeClient();
    const std::unique_ptr<Backend> other = makeClient("other");
    History *history = client->open(quiet);
    QTRY_VERIFY_WITH_TIMEOUT(client->isReady() && other->isReady() && !history->isLoading(),
                             longMs);
    const QSignalSpy batches(history, &History::inserted);
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 200; ++i)
        other->send(quiet, Message::Kind::Text, number(i));
    QTRY_COMPARE_WITH_TIMEOUT(lastTexts(*history, 200), numbers(200), longMs);
    // One each tenth of a second, and what is fetched.
    QVERIFY2(batches.size() <= 3 + time.elapsed() / 90, qPrintable(number(batches.size())));
}

void tst_RoomsData::showsArrivalsInBatches()
{
    constexpr int rows = 10;
    constexpr int arrivals = 100;
    ConversationModel model;
    model.replace(conversationRows(rows));
    QSignalSpy changed(&model, &ConversationModel::dataChanged);
    for (int i = 0; i < arrivals; ++i) {
        Message message;
        message.text = number(i);
        model.arrive(number(i % rows), message, i % 20 < rows);
    }
    QCOMPARE(changed.size(), 1); // The first one is shown at once.
    QTRY_COMPARE(changed.size(), 1 + rows);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model.index(row);
        QCOMPARE(index.data(ConversationModel::PreviewRole), number(arrivals - rows + row));
        QCOMPARE(index.data(ConversationModel::UnreadRole), arrivals / rows / 2);
    }
}

void tst_RoomsData::remembersWhatIsRead()
{
    m_server->start();
    const std::unique_ptr<Backend> client = makeClient();
    ConversationModel *conversations = client->conversations();
    QTRY_VERIFY_WITH_TIMEOUT(client->isReady(), longMs);
    QModelIndex row;
    for (int i = 0; row.data(ConversationModel::UnreadRole).toInt() == 0; ++i)
        row = conversations->index(i);
    const QString id = row.data(ConversationModel::IdRole).toString();
    const int unread = row.data(ConversationModel::UnreadRole).toInt();
    History *history = client->open(id);
    QTRY_VERIFY_WITH_TIMEOUT(history->count() > 0, longMs);
    QCOMPARE(history->rowOf(history->firstUnread()), history->count() - unread);
    client->markRead(id);
    client->markRead(id);
    QCOMPARE(row.data(ConversationModel::UnreadRole).toInt(), 0);
    QTRY_COMPARE(m_server->requests(QStringLiteral("read")).size(), 1);

    m_server->kill();
    m_server->start();
    const std::unique_ptr<Backend> other = makeClient("other");
    QTRY_VERIFY_WITH_TIMEOUT(other->isReady(), longMs);
    QCOMPARE(other->conversations()->index(row.row()).data(ConversationModel::UnreadRole).toInt(),
             0);
}

void tst_RoomsData::loadsWhatIsUnreadAtOnce()
{
    // Slow enough that no more than a page can have has come until this hears of it.
    m_server->start({ QStringLiteral("--rate"), QStringLiteral("150") });
    const std::unique_ptr<Backend> client = makeClient();
    const ConversationModel *model = client->conversations();
    const auto unread = [model] {
        const QModelIndex row = model->index(model->getRowIndex(biggest.toStdString()));
        return row.data(ConversationModel::UnreadRole).toInt();
    };
    QTRY_VERIFY_WITH_TIMEOUT(unread() > History::page, longMs);
    const History *history = client->open(biggest);
    QTRY_VERIFY_WITH_TIMEOUT(history->count() > 0, longMs);
    QVERIFY(history->rowOf(history->firstUnread()) >= 0);
}

void tst_RoomsData::endsAConnectionThatSendsNoLines_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("two megabytes without an end") << QByteArray(2'000'000, 'x');
    QTest::newRow("a line of two megabytes")
            << QByteArray("{\"push\":\"") + QByteArray(2'000'000, 'x') + "\"}\n";
    QTest::newRow("an array") << QByteArray("[]\n");
    QTest::newRow("no JSON") << QByteArray("hello\n");
    QTest::newRow("zeros") << QByteArray(10, '\0') + '\n';
}

void tst_RoomsData::endsAConnectionThatSendsNoLines()
{
    QFETCH(const QByteArray, bytes);
    QLocalServer stranger;
    QVERIFY(stranger.listen(m_server->path("stranger")));
    QObject::connect(&stranger, &QLocalServer::newConnection, &stranger,
                     [&] { stranger.nextPendingConnection()->write(bytes); });
    Link link(m_server->path("stranger"));
    QSignalSpy pushed(&link, &Link::pushed);
    QSignalSpy closed(&link, &Link::closed);
    QTRY_VERIFY(closed.size() >= 2);
    QCOMPARE(pushed.size(), 0);
}

void tst_RoomsData::servesOthersAfterALineThatIsTooLong()
{
    m_server->start();
    const std::unique_ptr<Backend> client = makeClient();
    QTRY_VERIFY_WITH_TIMEOUT(client->isReady(), longMs);
    QLocalSocket stranger;
    stranger.connectToServer(m_server->socket());
    QVERIFY(stranger.waitForConnected());
    stranger.write(QByteArray(3'000'000, 'x'));
    QTRY_COMPARE(stranger.state(), QLocalSocket::UnconnectedState);
    History *history = client->open(quiet);
    QTRY_VERIFY(history->count() > 0);
}

UIELEMENTS_TEST_MAIN_WITH(QCoreApplication, tst_RoomsData)

#include "tst_roomsdata.moc"
