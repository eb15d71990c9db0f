// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class ResizeHandle;

/// Shows a widget in a size that the user chooses, by dragging the handle at its corner or with the
/// handle's arrow keys. It is never larger than the available room.
class ResizeFrame : public OxaWidget
{
    Q_OBJECT

public:
    explicit ResizeFrame(QWidget *contents, QWidget *parent = nullptr);

    /// Sets the size of the contents.
    void setContentsSize(const QSize &size);

    QSize contentsSize() const { return m_contents->size(); }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void place();

    QWidget *m_contents;
    ResizeHandle *m_handle;
    QSize m_wanted;
};
