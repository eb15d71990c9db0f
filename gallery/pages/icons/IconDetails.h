// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

class IconMatrix;
class IconRenderers;
class OxaLabel;
class QVBoxLayout;
struct IconDiagnosis;
struct IconFile;

/// Describes one icon: its origin, whether it takes a state's colour and why, and its look at
/// several sizes and pixel ratios.
class IconDetails : public OxaWidget
{
    Q_OBJECT

public:
    /// Paints with \a renderers, which must outlive the widget.
    explicit IconDetails(IconRenderers *renderers, QWidget *parent = nullptr);

    /// Shows \a file and its \a diagnosis.
    void showIcon(const IconFile &file, const IconDiagnosis &diagnosis);

    /// Shows the icon in \a color, that of the state called \a state.
    void showColor(const QString &state, const QColor &color);

private:
    void fitMatrix();

    OxaLabel *m_name;
    OxaLabel *m_origin;
    QVBoxLayout *m_findings;
    OxaLabel *m_state;
    IconMatrix *m_matrix;
    QString m_path;
};
