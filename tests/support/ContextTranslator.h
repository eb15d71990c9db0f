// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// Translates each text into "context/text" while it exists.
class ContextTranslator : public QTranslator
{
public:
    ContextTranslator() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('/') + QLatin1String(sourceText);
    }
};
