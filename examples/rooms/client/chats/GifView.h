// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/movies/OxaMovieProvider.h>
#include <UiElements/widgets/OxaLabel.h>

/// An animated image, which stands still until the pointer or the focus is on it.
class GifView : public OxaLabel
{
    Q_OBJECT

public:
    static QSize movieSize() { return { 160, 120 }; }

    /// Shows the movie called \a name as soon as it is there.
    explicit GifView(const QString &name, QWidget *parent);

    const QString &name() const { return m_name; }

protected:
    bool event(QEvent *event) override;

private:
    void showFrame();
    void play(bool isPlaying);

    const QString m_name;
    OxaMovieProvider m_provider;
};
