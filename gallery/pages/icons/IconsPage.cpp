// SPDX-License-Identifier: Apache-2.0
#include "IconsPage.h"

#include "IconDetails.h"
#include "IconModel.h"
#include "IconRenderers.h"
#include "IconTable.h"
#include "looks/Metrics.h"
#include "shell/GalleryApplication.h"
#include "widgets/ControlRow.h"
#include "widgets/EmptyState.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"
#include "widgets/SegmentedControl.h"
#include "widgets/WrapLayout.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QLocale>
#include <QVBoxLayout>

namespace {

constexpr int iconSizes[] = { 12, 16, 24, 32, 48 };
constexpr int firstIconSize = 2;

enum Source { Own, Exceptions, Packages };

std::vector<IconFile> filesOf(int source)
{
    switch (source) {
    case Own:
        return IconFiles::ofGallery();
    case Exceptions:
        return IconFiles::exceptions();
    default:
        return IconFiles::ofPackages(GalleryApplication::get()->artworkFolder());
    }
}

struct NamedSet
{
    QString text;
    QString name;
};

/// Returns sets of a few kinds of controls, with differences between the states.
QVector<NamedSet> namedSets()
{
    return { { IconsPage::tr("Icon"), QStringLiteral("gallery-icon") },
             { IconsPage::tr("Accent"), QStringLiteral("gallery-accent") },
             { IconsPage::tr("Link"), QStringLiteral("button-hyperlink-text") },
             { IconsPage::tr("Button"), QStringLiteral("gallery-quiet-button-text") },
             { IconsPage::tr("Border"), QStringLiteral("oxa-recorder-comboBox-border") } };
}

QString number(int count) { return QLocale(QLocale::English).toString(count); }

} // namespace

IconsPage::IconsPage(QWidget *parent)
    : Page(tr("Icons"),
           tr("Icons in the six states of a colour set. Choose one to see why it takes the colour, "
              "or why it does not."),
           parent),
      m_model(new IconModel(this)),
      m_renderers(new IconRenderers(this)),
      m_sheet(new OxaWidget(this)),
      m_table(new IconTable(m_model, m_renderers)),
      m_details(new IconDetails(m_renderers)),
      m_noMatch(new EmptyState(tr("Try a part of a name, such as “arrow”, or list all files."),
                               tr("Clear the search"), this)),
      m_noPackage(new EmptyState(tr("./dev artwork fetches one. It is looked for in %1")
                                         .arg(GalleryApplication::get()->artworkFolder()),
                                 tr("Look again"), this)),
      m_search(Fields::search(tr("Search names"), this)),
      m_count(Labels::chip(QString(), this))
{
    m_sheet->setMinimumHeight(Metrics::leastListHeight);
    auto *sheet = new QHBoxLayout(m_sheet);
    sheet->setContentsMargins(0, 0, 0, 0);
    sheet->setSpacing(Metrics::spacing);
    sheet->addWidget(m_table, 1);
    sheet->addWidget(m_details);
    m_noPackage->setSummary(tr("There is no icon pack here"));
    body()->setSpacing(Metrics::small);
    body()->addLayout(makeControls());
    body()->addSpacing(Metrics::tight);
    body()->addWidget(m_sheet, 1);
    body()->addWidget(m_noMatch, 1);
    body()->addWidget(m_noPackage, 1);

    connect(m_search, &OxaTextInput::textChanged, this, &IconsPage::search);
    connect(m_noMatch, &EmptyState::actionTriggered, m_search, [this] { Fields::clear(m_search); });
    connect(m_noPackage, &EmptyState::actionTriggered, this, [this] { showSource(Packages); });
    connect(m_table, &IconTable::currentIconChanged, this, &IconsPage::showIcon);
    connect(m_table, &IconTable::colorsChanged, this, &IconsPage::showColor);
    connect(m_model, &IconModel::surveyed, this, &IconsPage::showCounts);
    connect(m_model, &IconModel::rowsInserted, this, &IconsPage::chooseFirst);
    showSource(Own);
}

QLayout *IconsPage::makeControls()
{
    // In the order of the enumerations.
    auto *source = new SegmentedControl({ tr("Gallery"), tr("Exceptions"), tr("Icon packs") },
                                        this);
    source->setAccessibleName(tr("Files"));
    connect(source, &SegmentedControl::chosen, this, &IconsPage::showSource);
    auto *shown = new SegmentedControl({ tr("All"), tr("Take the colour"), tr("Do not") }, this);
    shown->setAccessibleName(tr("Shown"));
    connect(shown, &SegmentedControl::chosen, this, [this](int i) {
        m_model->setShown(static_cast<IconModel::Shown>(i));
        chooseFirst();
    });

    auto *row = new WrapLayout(Metrics::small);
    row->addWidget(source);
    row->addWidget(shown);
    row->addWidget(m_search);
    row->addWidget(new ControlRow(tr("Colours"), makeColorSets(), this));
    row->addWidget(new ControlRow(tr("Size"), makeSizes(), this));
    row->addWidget(m_count);
    return row;
}

QWidget *IconsPage::makeColorSets()
{
    QStringList texts;
    QStringList names;
    const QVector<NamedSet> sets = namedSets();
    for (const NamedSet &set : sets) {
        texts += set.text;
        names += set.name;
    }
    auto *control = new SegmentedControl(texts, this);
    connect(control, &SegmentedControl::chosen, m_table,
            [table = m_table, names](int i) { table->setColorSetName(names[i]); });
    m_table->setColorSetName(names.front());
    return control;
}

QWidget *IconsPage::makeSizes()
{
    QStringList texts;
    for (const int size : iconSizes)
        texts += QString::number(size);
    auto *control = new SegmentedControl(texts, this);
    control->setCurrentIndex(firstIconSize);
    connect(control, &SegmentedControl::chosen, m_table,
            [table = m_table](int i) { table->setIconPixels(iconSizes[i]); });
    m_table->setIconPixels(iconSizes[firstIconSize]);
    return control;
}

void IconsPage::showSource(int source)
{
    m_model->setFiles(filesOf(source));
    chooseFirst();
}

void IconsPage::search(const QString &text)
{
    m_model->setFilter(text);
    m_noMatch->setSummary(tr("Nothing matches “%1”").arg(text.trimmed()));
    chooseFirst();
}

void IconsPage::showCounts()
{
    const int count = m_model->fileCount();
    m_count->setText(
            tr("%1 of %2 take the colour").arg(number(m_model->takingCount()), number(count)));
    const bool isEmpty = m_model->rowCount() == 0;
    m_sheet->setVisible(!isEmpty);
    m_noPackage->setVisible(count == 0);
    m_noMatch->setVisible(isEmpty && count > 0);
}

void IconsPage::chooseFirst()
{
    if (!m_table->currentIndex().isValid() && m_model->rowCount() > 0)
        m_table->setCurrentIndex(m_model->index(0, IconModel::FirstStateColumn));
    showCounts();
}

void IconsPage::showIcon()
{
    const int row = m_table->currentIndex().row();
    if (row < 0)
        return;
    m_details->showIcon(m_model->file(row), m_model->diagnosis(row));
    showColor();
}

void IconsPage::showColor()
{
    const QString state = IconModel::stateOf(m_table->currentIndex().column());
    m_details->showColor(state, m_table->colorSet().colorForState(state));
}
