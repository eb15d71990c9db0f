// SPDX-License-Identifier: Apache-2.0
#include "MovieLabels.h"

#include "looks/Metrics.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QGuiApplication>
#include <QImageReader>
#include <QMovie>
#include <QVBoxLayout>

void MovieLabels::setUp(OxaLabel *label, const QString &name)
{
    label->setFixedSize(side, side);
    label->setAccessibleName(name);
    label->setCSS(QStringLiteral("$backgroundColors: gallery-code-background;"
                                 "$borderColors: gallery-card-border;"
                                 "$textColors: gallery-code-text;"
                                 "$borderRadius: 8;"));
    const auto centre = [label] { label->setAlignment(Qt::AlignCenter); };
    // A label aligns anew at each change.
    QObject::connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, label, centre);
    centre();
}

OxaLabel *MovieLabels::make(const QString &name, QWidget *parent)
{
    auto *label = new OxaLabel(parent);
    setUp(label, name);
    QObject::connect(label, &OxaLabel::onVisibilityChanged, label, [label](bool isVisible) {
        QMovie *movie = label->movie();
        if (movie && isVisible)
            movie->start();
        else if (movie)
            movie->setPaused(true);
    });
    return label;
}

QWidget *MovieLabels::captioned(const QString &caption, QWidget *widget)
{
    auto *both = new OxaWidget;
    auto *column = new QVBoxLayout(both);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::tight);
    column->addWidget(Labels::caption(caption));
    column->addWidget(widget, 0, Qt::AlignLeading);
    column->addStretch(1);
    return both;
}

QPixmap MovieLabels::picture(const QString &path)
{
    constexpr int pixelRatio = 2;
    constexpr int pictureSide = side - Metrics::margin;
    QImageReader reader(path);
    reader.setScaledSize(QSize(pictureSide, pictureSide) * pixelRatio);
    QPixmap picture = QPixmap::fromImage(reader.read());
    picture.setDevicePixelRatio(pixelRatio);
    return picture;
}
