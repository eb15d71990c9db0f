// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTextDocument>
#include <QWidget>

/// The text of a message, in which links can be clicked.
class MessageBody : public QWidget
{
    Q_OBJECT

public:
    explicit MessageBody(QWidget *parent);

    /// Shows \a text in \a color, broken at \a width.
    void setText(const QString &text, int width, const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QTextDocument m_document;
    QColor m_color;
    QString m_pressed; ///< The link on which the button went down.
};
