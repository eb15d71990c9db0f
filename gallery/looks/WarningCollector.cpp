// SPDX-License-Identifier: Apache-2.0
#include "WarningCollector.h"

#include <utility>

WarningCollector *WarningCollector::s_innermost = nullptr;

WarningCollector::WarningCollector()
    : m_outer(std::exchange(s_innermost, this)), m_previousHandler(qInstallMessageHandler(handle))
{
}

WarningCollector::~WarningCollector()
{
    qInstallMessageHandler(m_previousHandler);
    s_innermost = m_outer;
}

void WarningCollector::handle(QtMsgType type, const QMessageLogContext &context,
                              const QString &text)
{
    if (type == QtWarningMsg)
        s_innermost->m_texts.append(text);
    else if (s_innermost->m_previousHandler)
        s_innermost->m_previousHandler(type, context, text);
}
