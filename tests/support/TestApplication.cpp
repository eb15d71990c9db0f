// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"

void TestApplication::onQmlEngineCreated(OxaQmlEngine *engine)
{
    if (qmlEngineHook)
        qmlEngineHook(engine);
}

void TestApplication::restart() { }

void TestApplication::registerMainWindowShortcuts(OxaMainWindow *window)
{
    if (mainWindowHook)
        mainWindowHook(window);
}

void TestApplication::setPublishingInfo(const AppPublishing::OxaPublishingInfo &info)
{
    m_publishingInfo = info;
}

IOxaMovieProviderSource *TestApplication::getMovieProviderSource()
{
    return m_movieSource ? m_movieSource : OxaApplication::getMovieProviderSource();
}
