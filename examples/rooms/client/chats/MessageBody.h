// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTextDocument>
#include <QWidget>

#include <memory>

/// The text of a message, in which links can be clicked.
class MessageBody : public QWidget
{
    Q_OBJECT

public:
    explicit MessageBody(QWidget *parent);

    /// Shows \a text in \a color, broken at \a width.
    void setText(const QString &text, int width, const QColor &color);

    /// Shows \a document, in which the text is laid out already, and gives its own in return.
    void swapText(std::unique_ptr<QTextDocument> *document, int width, const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    std::unique_ptr<QTextDocument> m_document = std::make_unique<QTextDocument>();
    QColor m_color;
    QString m_pressed; ///< The link on which the button went down.
};
