// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"

#include <UiElements/movies/IOxaMovieProviderSource.h>
#include <UiElements/movies/OxaMovieProvider.h>

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

namespace {

const QByteArray viewOfProvider = R"(
    import QtQml 2.15
    QtObject {
        property string shown: ["nothing", "a movie", provider.fallbackSource][provider.stackIndex]
        property bool hasMovie: provider.movie !== null
        Component.onCompleted: provider.fetch("a")
    })";

} // namespace

/// OxaMovieProvider as QML sees it.
class tst_MoviesInQml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellWhatToShow();
};

void tst_MoviesInQml::tellWhatToShow()
{
    OxaMovieProvider provider;
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(QStringLiteral("provider"), &provider);
    QQmlComponent component(&engine);
    component.setData(viewOfProvider, QUrl());
    const std::unique_ptr<QObject> view(component.create());
    QVERIFY2(view, qPrintable(component.errorString()));
    const auto shown = [&view] { return view->property("shown").toString(); };
    QCOMPARE(shown(), QStringLiteral("nothing"));
    QVERIFY(!view->property("hasMovie").toBool());

    auto *source = static_cast<TestApplication *>(qApp)->getMovieProviderSource();
    Q_EMIT source->movieFetched(new OxaMovie, QStringLiteral("a"));
    QCOMPARE(shown(), QStringLiteral("a movie"));
    QVERIFY(view->property("hasMovie").toBool());
    Q_EMIT source->movieFetchFailed(QStringLiteral("picture"), QStringLiteral("a"));
    QCOMPARE(shown(), QStringLiteral("picture"));
}

UIELEMENTS_TEST_MAIN(tst_MoviesInQml)
#include "tst_moviesinqml.moc"
