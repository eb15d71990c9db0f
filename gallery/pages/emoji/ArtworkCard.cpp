// SPDX-License-Identifier: Apache-2.0
#include "ArtworkCard.h"

#include "ArtworkDelegate.h"
#include "ArtworkModel.h"
#include "widgets/ListView.h"
#include "widgets/SegmentedControl.h"

#include <QVBoxLayout>

namespace {

constexpr int viewHeight = 296;

constexpr ArtworkKind kinds[] = { ArtworkKind::Single, ArtworkKind::SkinTone, ArtworkKind::Joined,
                                  ArtworkKind::Keycap, ArtworkKind::Flag,     ArtworkKind::Region };

QString nameOf(ArtworkKind kind)
{
    switch (kind) {
    case ArtworkKind::Single:
        return ArtworkCard::tr("Single");
    case ArtworkKind::SkinTone:
        return ArtworkCard::tr("Skin");
    case ArtworkKind::Joined:
        return ArtworkCard::tr("Joined");
    case ArtworkKind::Keycap:
        return ArtworkCard::tr("Keycap");
    case ArtworkKind::Flag:
        return ArtworkCard::tr("Flag");
    case ArtworkKind::Region:
        return ArtworkCard::tr("Region");
    }
    return {};
}

} // namespace

ArtworkCard::ArtworkCard(QWidget *parent)
    : Card(tr("Artwork"),
           tr("A file for each sequence, named by its code points. A click puts the emoji into the "
              "playground; emoji without a file stay text."),
           parent),
      m_model(new ArtworkModel(this))
{
    body()->addWidget(makeKinds());
    body()->addWidget(makeView());
}

QWidget *ArtworkCard::makeKinds()
{
    QStringList texts = { tr("All %1").arg(m_model->fullCount()) };
    for (const ArtworkKind kind : kinds)
        texts += QStringLiteral("%1 %2").arg(nameOf(kind)).arg(m_model->count(kind));
    auto *control = new SegmentedControl(texts, this);
    control->setAccessibleName(tr("Kind of artwork"));
    connect(control, &SegmentedControl::chosen, m_model, [model = m_model](int index) {
        model->setKind(index == 0 ? std::optional<ArtworkKind>() : kinds[index - 1]);
    });
    return control;
}

QWidget *ArtworkCard::makeView()
{
    auto *view = new ListView(m_model, new ArtworkDelegate, this);
    view->setAccessibleName(tr("Artwork"));
    view->setFlow(QListView::LeftToRight);
    view->setWrapping(true);
    view->setResizeMode(QListView::Adjust);
    view->setUniformItemSizes(true);
    view->setFixedHeight(viewHeight);
    const auto choose = [this](const QModelIndex &index) {
        Q_EMIT chosen(index.data(ArtworkModel::EmojiRole).toString());
    };
    connect(view, &QListView::clicked, this, choose);
    connect(view, &QListView::activated, this, choose);
    return view;
}
