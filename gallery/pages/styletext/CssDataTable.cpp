// SPDX-License-Identifier: Apache-2.0
#include "CssDataTable.h"

#include "looks/Metrics.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QGridLayout>

namespace {

/// Around a value, which is written from left to right in both directions.
constexpr QChar leftToRightMark(0x200E);

QString yesOrNo(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }

QString quoted(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("–") : text.simplified();
}

/// One line of the table.
struct Field
{
    const char *name;
    QString (*textOf)(const OxaCSSData &);
};

const Field fields[] = {
    { "backgroundColorSetName",
      [](const OxaCSSData &d) { return quoted(d.backgroundColorSetName); } },
    { "borderColorSetName", [](const OxaCSSData &d) { return quoted(d.borderColorSetName); } },
    { "textColorSetName", [](const OxaCSSData &d) { return quoted(d.textColorSetName); } },
    { "plainStyleSheet", [](const OxaCSSData &d) { return quoted(d.plainStyleSheet); } },
    { "borderTop", [](const OxaCSSData &d) { return yesOrNo(d.borderTop); } },
    { "borderRight", [](const OxaCSSData &d) { return yesOrNo(d.borderRight); } },
    { "borderBottom", [](const OxaCSSData &d) { return yesOrNo(d.borderBottom); } },
    { "borderLeft", [](const OxaCSSData &d) { return yesOrNo(d.borderLeft); } },
    { "noBorder", [](const OxaCSSData &d) { return yesOrNo(d.noBorder); } },
    { "borderRadius", [](const OxaCSSData &d) { return QString::number(d.borderRadius); } },
    { "borderWidth", [](const OxaCSSData &d) { return QString::number(d.borderWidth); } },
    { "rectangularCornerMask",
      [](const OxaCSSData &d) { return QString::number(d.rectangularCornerMask); } },
    { "radiusCorner", [](const OxaCSSData &d) { return QString::number(d.radiusCorner); } },
};

} // namespace

CssDataTable::CssDataTable(QWidget *parent) : OxaWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Metrics::spacing);
    grid->setVerticalSpacing(Metrics::tight);
    grid->setColumnStretch(1, 1);
    for (const Field &field : fields) {
        const int row = int(m_values.size());
        grid->addWidget(Labels::caption(QString::fromLatin1(field.name), this), row, 0);
        OxaLabel *value = Labels::elidedLine(QString(), this);
        value->setFontToken(OxaFont::Token::RadioButtonLabelSecondary);
        grid->addWidget(value, row, 1);
        m_values.push_back(value);
    }
}

void CssDataTable::showData(const OxaCSSData &cssData)
{
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        const QString text = fields[i].textOf(cssData);
        m_values[i]->setText(leftToRightMark + text + leftToRightMark);
        m_values[i]->setToolTip(text);
        m_values[i]->setAccessibleName(text);
    }
}
