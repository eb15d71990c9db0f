// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCache>
#include <QObject>
#include <QString>

class OxaSvgRenderer;

/// The renderers of the files that were painted last, so that scrolling back reads no file again.
class IconRenderers : public QObject
{
    Q_OBJECT

public:
    explicit IconRenderers(QObject *parent = nullptr);
    ~IconRenderers() override;

    /// Returns the renderer of the file at \a path, valid until the next call. A file that cannot
    /// be loaded logs the renderer's warning, and its renderer paints nothing.
    const OxaSvgRenderer *get(const QString &path);

Q_SIGNALS:
    /// A file is animated and shows its next frame.
    void repaintNeeded();

private:
    QCache<QString, OxaSvgRenderer> m_renderers;
};
