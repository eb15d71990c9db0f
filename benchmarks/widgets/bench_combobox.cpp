// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/widgets/OxaComboBox.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>

namespace {

constexpr int entryCount = 1000;
constexpr QSize boxSize(160, 30);

/// A combo box that sets a finished sheet on its list and on itself whenever the list comes or
/// goes.
class SheetBox : public QComboBox
{
public:
    void showLike(const OxaComboBox &other)
    {
        m_listSheet = other.view()->styleSheet();
        m_sheet = other.styleSheet().replace(QLatin1String("OxaComboBox"),
                                             QLatin1String("QComboBox"));
        setFont(other.font());
        view()->setObjectName(other.view()->objectName());
        view()->window()->setWindowFlags(other.view()->window()->windowFlags());
        view()->setVerticalScrollBarPolicy(other.view()->verticalScrollBarPolicy());
        view()->installEventFilter(this);
        setSheets();
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            setSheets();
        return false;
    }

private:
    void setSheets()
    {
        view()->setStyleSheet(m_listSheet);
        setStyleSheet(m_sheet);
    }

    QString m_listSheet;
    QString m_sheet;
};

void prepare(QComboBox &box, int x)
{
    box.setObjectName(QStringLiteral("box"));
    for (int entry = 0; entry < entryCount; ++entry)
        box.addItem(QStringLiteral("entry %1").arg(entry));
    box.setFixedSize(boxSize);
    box.setWindowFlag(Qt::X11BypassWindowManagerHint);
    box.move(x, 100);
    box.show();
    QCoreApplication::processEvents();
}

void openAndClose(QComboBox &box)
{
    box.showPopup();
    QCoreApplication::processEvents();
    box.hidePopup();
    QCoreApplication::processEvents();
}

/// Returns what the open list looks like, from its second opening on.
QImage pictureOfList(QComboBox &box)
{
    openAndClose(box);
    box.showPopup();
    QCoreApplication::processEvents();
    const QImage picture = box.view()->grab().toImage();
    box.hidePopup();
    return picture;
}

void opening(benchmark::State &state)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    OxaComboBox ours;
    ours.setSvgDropdownIcon(QStringLiteral(ICON_FILE));
    ours.setSvgDropDownIconExpanded(QStringLiteral(ICON_FILE));
    ours.updateStyle({ "set-3", "set-1", "set-2", 1, 6 });
    ours.setComboBoxAnimationEnabled(false);
    prepare(ours, 100);
    SheetBox peer;
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    prepare(peer, 400);
    peer.showLike(ours);
    if (pictureOfList(ours) != pictureOfList(peer))
        state.SkipWithError("the lists don't look the same");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&ours] { openAndClose(ours); }, [&peer] { openAndClose(peer); });
    comparison.ratioAtMost(1.10);
}
BENCHMARK(opening)
        ->Name("opening and closing a combo box of 1,000 entries/QComboBox with the finished "
               "sheets")
        ->Iterations(200)
        ->UseManualTime();

} // namespace
