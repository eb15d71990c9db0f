// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/Records.h"

#include <UiElements/widgets/OxaWidget.h>

class Avatar;
class OxaLabel;
class OxaProgressBar;
class OxaSvgLabel;

/// Somebody in a call: picture, name, how loud they are, and whether they have muted themselves or
/// raised a hand. The outline tells who speaks.
class ParticipantTile : public OxaWidget
{
    Q_OBJECT

public:
    explicit ParticipantTile(const Person &person, QWidget *parent = nullptr);

    Avatar *avatar() const { return m_avatar; }
    OxaLabel *name() const { return m_name; }

    /// Shows a level of 0 to 100.
    void setLevel(int level);

    /// Shows the icon called \a icon beside the name; none if it is empty.
    void setState(const QString &icon);

protected:
    /// Shows no more than there is room for.
    void resizeEvent(QResizeEvent *event) override;

private:
    Avatar *const m_avatar;
    OxaLabel *m_name;
    OxaSvgLabel *m_state;
    OxaProgressBar *const m_level;
    bool m_isSpeaking = false;
};
