// SPDX-License-Identifier: Apache-2.0
#include "GifPicker.h"

#include "GifView.h"
#include "SlowMovies.h"

#include <QGridLayout>

namespace {

constexpr int columns = 2;

} // namespace

GifPicker::GifPicker(QWidget *parent) : OxaWidget(parent)
{
    setAccessibleName(tr("Moving pictures"));
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(8, 8, 8, 8);
    grid->setSpacing(8);
    const QStringList names = SlowMovies::names();
    for (int i = 0; i < names.size(); ++i) {
        auto *view = new GifView(names.at(i), this);
        view->setAccessibleRole(QAccessible::Button);
        view->setFocusPolicy(Qt::StrongFocus);
        view->setCursor(Qt::PointingHandCursor);
        connect(view, &GifView::clicked, this, [this, name = names.at(i)] { Q_EMIT picked(name); });
        grid->addWidget(view, i / columns, i % columns);
        if (i == 0)
            setFocusProxy(view);
    }
}
