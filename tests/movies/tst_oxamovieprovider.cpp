// SPDX-License-Identifier: Apache-2.0
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/movies/OxaMovieProvider.h>
#include <UiElements/movies/OxaMovieProviderSource.h>

#include <QMetaProperty>

#include <functional>

namespace {

constexpr char noFallbackWarning[] = "image download failed and empty fallbackImage source";

/// A source that answers when it is told to. It is the application's while it exists.
class ScriptedSource : public IOxaMovieProviderSource
{
    Q_OBJECT

public:
    ScriptedSource() : IOxaMovieProviderSource(nullptr) { setAsTheApplications(this); }
    ~ScriptedSource() override { setAsTheApplications(nullptr); }

    void fetchMovie(const QString &source) override
    {
        requests += source;
        if (onFetch)
            onFetch(source);
    }

    /// Makes the movies m1, m2 and so on.
    OxaMovie *makeMovie()
    {
        auto *movie = new OxaMovie(this);
        movie->setObjectName(QLatin1Char('m') + QString::number(++m_movies));
        last = movie;
        return movie;
    }

    QStringList requests;
    QPointer<OxaMovie> last;
    std::function<void(const QString &)> onFetch;

private:
    static void setAsTheApplications(IOxaMovieProviderSource *source)
    {
        static_cast<TestApplication *>(qApp)->setMovieProviderSource(source);
    }

    int m_movies = 0;
};

/// Records the signals of \a provider with the values that it has then.
void record(SignalLog &log, const OxaMovieProvider &provider)
{
    log.record(&provider, &OxaMovieProvider::movieChanged, QStringLiteral("movie"));
    log.record(&provider, &OxaMovieProvider::fallbackSourceChanged, QStringLiteral("fallback"));
    log.record(&provider, &OxaMovieProvider::stackIndexChanged, QStringLiteral("index"));
}

/// Returns the index, the movie's name and the fall-back of \a provider: "1 m1 -".
QString described(const OxaMovieProvider &provider)
{
    const QString none = QStringLiteral("-");
    const QString fallback = provider.getFallbackSource();
    return QString::number(provider.getStackIndex()) + QLatin1Char(' ')
            + (provider.getMovie() ? provider.getMovie()->objectName() : none) + QLatin1Char(' ')
            + (fallback.isEmpty() ? none : fallback);
}

/// Does one step of a script: "fetch a", "movie a", "same a" for the last movie once more, "null a"
/// for an answer without one, "fail a" or "fail a picture".
void run(const QString &step, ScriptedSource &source, OxaMovieProvider &provider)
{
    const QStringList words = step.split(QLatin1Char(' '));
    const QString &verb = words.at(0);
    const QString &name = words.at(1);
    if (verb == QLatin1String("fetch"))
        provider.fetch(name);
    else if (verb == QLatin1String("movie"))
        Q_EMIT source.movieFetched(source.makeMovie(), name);
    else if (verb == QLatin1String("same"))
        Q_EMIT source.movieFetched(source.last, name);
    else if (verb == QLatin1String("null"))
        Q_EMIT source.movieFetched(nullptr, name);
    else
        Q_EMIT source.movieFetchFailed(words.value(2), name);
}

void deleteLaterNow() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

} // namespace

/// OxaMovieProvider with sources of all kinds.
class tst_OxaMovieProvider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithNothing();
    void showsItsProperties_data();
    void showsItsProperties();
    void asksItsSourceAtEachFetch();
    void answers_data();
    void answers();
    void warnsOfAFailureWithoutAPicture_data();
    void warnsOfAFailureWithoutAPicture();
    void takesTheMovieOverAndDeletesTheOneBefore();
    void leavesALateMovieToItsSender();
    void keepsAMovieThatIsSentTwice();
    void leavesAMovieThatAnotherProviderOwns();
    void forgetsAMovieThatIsDeleted();
    void takesAnAnswerBeforeFetchReturns();
    void takesTheAnswerToAFetchFromASlot();
    void getsNoAnswerFromTheDefaultSource();
    void survivesTheDeletionOfItsSource();
};

void tst_OxaMovieProvider::startsWithNothing()
{
    ScriptedSource source;
    const OxaMovieProvider provider;
    QVERIFY(!provider.parent());
    QCOMPARE(described(provider), QStringLiteral("0 - -"));
    QCOMPARE(source.requests, QStringList());
}

void tst_OxaMovieProvider::showsItsProperties_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("notifySignal");
    QTest::newRow("stackIndex") << QByteArray("int") << QByteArray("stackIndexChanged()");
    QTest::newRow("movie") << QByteArray("QMovie*") << QByteArray("movieChanged()");
    QTest::newRow("fallbackSource")
            << QByteArray("QString") << QByteArray("fallbackSourceChanged()");
}

void tst_OxaMovieProvider::showsItsProperties()
{
    const QMetaObject &type = OxaMovieProvider::staticMetaObject;
    const QMetaProperty property = type.property(type.indexOfProperty(QTest::currentDataTag()));
    QTEST(QByteArray(property.typeName()), "type");
    QTEST(property.notifySignal().methodSignature(), "notifySignal");
    QVERIFY(!property.isWritable());
}

void tst_OxaMovieProvider::asksItsSourceAtEachFetch()
{
    ScriptedSource source;
    OxaMovieProvider provider;
    for (const char *name : { "a", "a", "b" })
        QVERIFY(QMetaObject::invokeMethod(&provider, "fetch",
                                          Q_ARG(QString, QString::fromLatin1(name))));
    QCOMPARE(source.requests.join(QLatin1Char(' ')), QStringLiteral("a a b"));
}

void tst_OxaMovieProvider::answers_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("emitted");
    QTest::addColumn<QString>("end");
    const auto add = [](const char *name, const char *script, const char *emitted,
                        const char *end) {
        QTest::newRow(name) << QString::fromLatin1(script) << QString::fromLatin1(emitted)
                            << QString::fromLatin1(end);
    };
    add("none", "fetch a", "", "0 - -");
    add("a movie", "fetch a, movie a", "movie | index", "1 m1 -");
    add("one that nobody asked for", "movie a", "", "0 - -");
    add("one to an earlier request", "fetch a, fetch b, movie a", "", "0 - -");
    add("both, the later request's last", "fetch a, fetch b, movie a, movie b", "movie | index",
        "1 m2 -");
    add("both, the later request's first", "fetch a, fetch b, movie b, movie a", "movie | index",
        "1 m1 -");
    add("the old movie stays until the next", "fetch a, movie a, fetch b", "movie | index",
        "1 m1 -");
    add("a new movie", "fetch a, movie a, fetch b, movie b", "movie | index | movie | index",
        "1 m2 -");
    add("two movies for one request", "fetch a, movie a, movie a", "movie | index | movie | index",
        "1 m2 -");
    add("the same movie twice", "fetch a, movie a, same a", "movie | index | movie | index",
        "1 m1 -");
    add("null", "fetch a, null a", "", "0 - -");
    add("null after a movie", "fetch a, movie a, null a", "movie | index", "1 m1 -");
    add("a failure with a picture", "fetch a, fail a p", "fallback | index", "2 - p");
    add("the same failure twice", "fetch a, fail a p, fail a p",
        "fallback | index | fallback | index", "2 - p");
    add("a failure of an earlier request", "fetch a, fetch b, fail a p", "", "0 - -");
    add("a failure after a movie keeps the movie", "fetch a, movie a, fetch b, fail b p",
        "movie | index | fallback | index", "2 m1 p");
    add("a movie after a failure keeps the picture", "fetch a, fail a p, fetch b, movie b",
        "fallback | index | movie | index", "1 m1 p");
}

void tst_OxaMovieProvider::answers()
{
    QFETCH(const QString, script);
    ScriptedSource source;
    OxaMovieProvider provider;
    SignalLog log;
    record(log, provider);
    const QStringList steps = script.split(QStringLiteral(", "));
    for (const QString &step : steps)
        run(step, source, provider);
    deleteLaterNow();
    QTEST(log.take(), "emitted");
    QTEST(described(provider), "end");
}

void tst_OxaMovieProvider::warnsOfAFailureWithoutAPicture_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("state");
    QTest::newRow("at first") << "fetch a"
                              << "0 - -";
    QTest::newRow("after a movie") << "fetch a, movie a"
                                   << "1 m1 -";
    QTest::newRow("after a failure with a picture") << "fetch a, fail a p"
                                                    << "2 - p";
}

void tst_OxaMovieProvider::warnsOfAFailureWithoutAPicture()
{
    QFETCH(const QString, before);
    ScriptedSource source;
    OxaMovieProvider provider;
    const QStringList steps = before.split(QStringLiteral(", "));
    for (const QString &step : steps)
        run(step, source, provider);
    SignalLog log;
    record(log, provider);
    Q_EMIT source.movieFetchFailed(QString(), QStringLiteral("b")); // Not asked for: no warning.
    QTest::ignoreMessage(QtWarningMsg, noFallbackWarning);
    run(QStringLiteral("fail a"), source, provider);
    QCOMPARE(log.take(), QString());
    QTEST(described(provider), "state");
}

void tst_OxaMovieProvider::takesTheMovieOverAndDeletesTheOneBefore()
{
    ScriptedSource source;
    OxaMovieProvider provider;
    run(QStringLiteral("fetch a"), source, provider);
    run(QStringLiteral("movie a"), source, provider);
    const QPointer<OxaMovie> first = source.last;
    QCOMPARE(first->parent(), &provider);
    QObject::connect(&provider, &OxaMovieProvider::stackIndexChanged, &provider,
                     [&] { QVERIFY(first); });
    run(QStringLiteral("movie a"), source, provider);
    QVERIFY(first); // It goes later: QML may still paint it.
    deleteLaterNow();
    QVERIFY(!first);
    QCOMPARE(source.last->parent(), &provider);
}

void tst_OxaMovieProvider::leavesALateMovieToItsSender()
{
    ScriptedSource source;
    OxaMovieProvider provider;
    run(QStringLiteral("fetch b"), source, provider);
    run(QStringLiteral("movie a"), source, provider);
    QCOMPARE(source.last->parent(), &source);
}

void tst_OxaMovieProvider::keepsAMovieThatIsSentTwice()
{
    ScriptedSource source;
    OxaMovieProvider provider;
    for (const char *step : { "fetch a", "movie a", "same a" })
        run(QString::fromLatin1(step), source, provider);
    deleteLaterNow();
    QVERIFY(source.last);
    QCOMPARE(provider.getMovie(), source.last);
}

void tst_OxaMovieProvider::leavesAMovieThatAnotherProviderOwns()
{
    ScriptedSource source;
    OxaMovieProvider provider;
    OxaMovieProvider owner;
    run(QStringLiteral("fetch a"), source, provider);
    run(QStringLiteral("fetch a"), source, owner);
    run(QStringLiteral("movie a"), source, owner);
    const QPointer<OxaMovie> shared = source.last;
    QCOMPARE(shared->parent(), &owner);
    QCOMPARE(provider.getMovie(), shared);

    run(QStringLiteral("fetch b"), source, provider);
    run(QStringLiteral("movie b"), source, provider);
    deleteLaterNow();
    QVERIFY(shared);
    QCOMPARE(owner.getMovie(), shared);
    QCOMPARE(described(provider), QStringLiteral("1 m2 -"));
}

void tst_OxaMovieProvider::forgetsAMovieThatIsDeleted()
{
    ScriptedSource source;
    OxaMovieProvider provider;
    run(QStringLiteral("fetch a"), source, provider);
    run(QStringLiteral("movie a"), source, provider);
    delete source.last;
    QCOMPARE(described(provider), QStringLiteral("1 - -"));
    run(QStringLiteral("movie a"), source, provider);
    QCOMPARE(described(provider), QStringLiteral("1 m2 -"));
}

void tst_OxaMovieProvider::takesAnAnswerBeforeFetchReturns()
{
    ScriptedSource source;
    OxaMovieProvider provider;
    source.onFetch = [&source](const QString &name) {
        Q_EMIT source.movieFetched(source.makeMovie(), name);
    };
    provider.fetch(QStringLiteral("a"));
    QCOMPARE(described(provider), QStringLiteral("1 m1 -"));
}

void tst_OxaMovieProvider::takesTheAnswerToAFetchFromASlot()
{
    ScriptedSource source;
    OxaMovieProvider provider;
    source.onFetch = [&source](const QString &name) {
        Q_EMIT source.movieFetched(source.makeMovie(), name);
    };
    QObject::connect(&provider, &OxaMovieProvider::movieChanged, &provider, [&] {
        if (source.requests.size() < 3)
            provider.fetch(QStringLiteral("b"));
    });
    provider.fetch(QStringLiteral("a"));
    deleteLaterNow();
    QCOMPARE(described(provider), QStringLiteral("1 m3 -"));
    QCOMPARE(provider.findChildren<QMovie *>().size(), 1);
}

void tst_OxaMovieProvider::getsNoAnswerFromTheDefaultSource()
{
    OxaMovieProvider provider;
    SignalLog log;
    record(log, provider);
    provider.fetch(QStringLiteral("a"));
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QString());
    QCOMPARE(described(provider), QStringLiteral("0 - -"));

    // It is the application's default that the provider listens to.
    auto *source = static_cast<TestApplication *>(qApp)->getMovieProviderSource();
    QVERIFY(qobject_cast<OxaMovieProviderSource *>(source));
    Q_EMIT source->movieFetchFailed(QStringLiteral("p"), QStringLiteral("a"));
    QCOMPARE(described(provider), QStringLiteral("2 - p"));
}

void tst_OxaMovieProvider::survivesTheDeletionOfItsSource()
{
    auto source = std::make_unique<ScriptedSource>();
    OxaMovieProvider provider;
    source.reset();
    provider.fetch(QStringLiteral("a"));
    QCOMPARE(described(provider), QStringLiteral("0 - -"));
}

UIELEMENTS_TEST_MAIN(tst_OxaMovieProvider)
#include "tst_oxamovieprovider.moc"
