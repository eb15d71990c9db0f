// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QProxyStyle>
#include <QStyleOption>

#include <vector>

/// Records the primitive elements that it is asked for, and draws none.
class RecordingStyle : public QProxyStyle
{
public:
    struct Call
    {
        PrimitiveElement element;
        int optionType;
        QRect rect;
        State state;
        QPainter *painter;
        const QWidget *widget;
    };
    mutable std::vector<Call> calls;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        calls.push_back({ element, option->type, option->rect, option->state, painter, widget });
    }
};

/// Sets a recording style for the application, and restores Fusion when it is destroyed.
class ApplicationStyleGuard
{
    Q_DISABLE_COPY_MOVE(ApplicationStyleGuard)

public:
    ApplicationStyleGuard() { QApplication::setStyle(m_style); }
    ~ApplicationStyleGuard() { QApplication::setStyle(QStringLiteral("Fusion")); }

    /// Returns what the style was asked for.
    const std::vector<RecordingStyle::Call> &calls() const { return m_style->calls; }

private:
    RecordingStyle *const m_style = new RecordingStyle;
};
