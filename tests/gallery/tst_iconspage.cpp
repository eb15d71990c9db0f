// SPDX-License-Identifier: Apache-2.0
#include "GalleryTest.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QDir>

#include <pages/icons/IconDetails.h>
#include <pages/icons/IconMatrix.h>
#include <pages/icons/IconModel.h>
#include <pages/icons/IconRenderers.h>
#include <pages/icons/IconTable.h>
#include <pages/icons/IconsPage.h>
#include <support/Pixels.h>
#include <support/SvgFiles.h>
#include <widgets/Buttons.h>

namespace {

/// A shown page, and functions to use it.
class Pane
{
public:
    Pane()
    {
        window.resize(1000, 700);
        page.resize(window.size());
        window.show();
    }

    /// Presses the button called \a text.
    void press(const char *text) const
    {
        const auto buttons = page.findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (button->text() == QLatin1String(text) && button->isVisible())
                return button->click();
        }
        QFAIL(text);
    }

    /// Returns whether a visible label contains \a text.
    bool tells(const char *text) const
    {
        const auto labels = page.findChildren<OxaLabel *>();
        return std::any_of(labels.begin(), labels.end(), [text](const OxaLabel *label) {
            return label->isVisible() && label->text().contains(QString::fromUtf8(text));
        });
    }

    /// Chooses the cell at \a row and \a column.
    void choose(int row, int column) const
    {
        table().setCurrentIndex(table().model()->index(row, column));
    }

    IconTable &table() const { return *page.findChild<IconTable *>(); }
    int rowCount() const { return table().model()->rowCount(); }

    QWidget window; // Has no minimum size, which the platform does not enforce.
    IconsPage &page = *new IconsPage(&window);
};

/// A model that records for which rows names are read.
class WatchedModel : public IconModel
{
public:
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::DisplayRole)
            asked.insert(index.row());
        return IconModel::data(index, role);
    }

    mutable QSet<int> asked;
};

} // namespace

/// The page Icons.
class tst_IconsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void describesTheFirstIcon();
    void describesTheChosenIcon();
    void showsTheColourOfTheStateThatIsChosen();
    void showsNoPictureOfAFileThatCannotBeRead();
    void countsIconsThatTakeTheColour();
    void listsIconsThatDoNotTakeTheColour();
    void saysWhenNothingMatches();
    void offersToLookAgainForAnIconPack();
    void showsTheFilesOfAnIconPack();
    void paintsIconsInTheColoursOfTheSet();
    void paintsOnlyTheRowsInSight();

private:
    const QString m_artworkFolder = GalleryApplication::get()->artworkFolder();
};

void tst_IconsPage::cleanup() { GalleryApplication::get()->setArtworkFolder(m_artworkFolder); }

void tst_IconsPage::describesTheFirstIcon()
{
    const Pane pane;
    QTRY_VERIFY(pane.tells("arrow-down_8"));
    QTRY_VERIFY(pane.tells("Takes the colour"));
    QTRY_VERIFY(pane.tells("Its one top-level node, <path>, is painted directly"));
}

void tst_IconsPage::describesTheChosenIcon()
{
    const Pane pane;
    pane.press("Exceptions");
    pane.choose(9, IconModel::NameColumn);
    QTRY_VERIFY(pane.tells("two-shapes"));
    QTRY_VERIFY(pane.tells("It has 2 top-level nodes: <path>, <path>."));
    QTRY_VERIFY(pane.tells("To change that: join the shapes to one path"));
}

void tst_IconsPage::showsTheColourOfTheStateThatIsChosen()
{
    const Pane pane;
    const OxaColorSet set = OxaThemeUtils::getColorSet("gallery-icon",
                                                       OxaThemeUtils::AppThemeType::Global);
    pane.choose(0, IconModel::FirstStateColumn + 3);
    QTRY_VERIFY(pane.tells(qPrintable(QStringLiteral("disabled, %1").arg(set.disabled.name()))));
    pane.press("Accent");
    const OxaColorSet accent = OxaThemeUtils::getColorSet("gallery-accent",
                                                          OxaThemeUtils::AppThemeType::Global);
    QTRY_VERIFY(pane.tells(qPrintable(QStringLiteral("disabled, %1").arg(accent.disabled.name()))));
}

void tst_IconsPage::showsNoPictureOfAFileThatCannotBeRead()
{
    const Pane pane;
    const auto *matrix = pane.page.findChild<IconMatrix *>();
    QVERIFY(matrix->isVisible());
    pane.press("Exceptions");
    QTRY_VERIFY(pane.tells("Premature end of document"));
    QVERIFY(!matrix->isVisible());
    pane.choose(1, IconModel::NameColumn);
    QVERIFY(matrix->isVisible());
}

void tst_IconsPage::countsIconsThatTakeTheColour()
{
    const Pane pane;
    QTRY_VERIFY(pane.tells("49 of 49 take the colour"));
    pane.press("Exceptions");
    QTRY_VERIFY(pane.tells("2 of 10 take the colour"));
}

void tst_IconsPage::listsIconsThatDoNotTakeTheColour()
{
    const Pane pane;
    pane.press("Exceptions");
    pane.press("Do not");
    QTRY_COMPARE(pane.rowCount(), 8);
    pane.press("Take the colour");
    QTRY_COMPARE(pane.rowCount(), 2);
    QTRY_VERIFY(pane.tells("outline"));
}

void tst_IconsPage::saysWhenNothingMatches()
{
    const Pane pane;
    auto *search = pane.page.findChild<OxaTextInput *>();
    search->setText(QStringLiteral("zebra"));
    QTRY_VERIFY(pane.tells("Nothing matches “zebra”"));
    QVERIFY(!pane.table().isVisible());
    pane.press("Clear the search");
    QVERIFY(search->text().isEmpty());
    QVERIFY(pane.table().isVisible());
}

void tst_IconsPage::offersToLookAgainForAnIconPack()
{
    const SvgFiles files;
    GalleryApplication::get()->setArtworkFolder(files.folder());
    const Pane pane;
    pane.press("Icon packs");
    QTRY_VERIFY(pane.tells("There is no icon pack here"));
    QTRY_VERIFY(pane.tells(qPrintable(files.folder())));
    QVERIFY(QDir(files.folder()).mkdir(QStringLiteral("pack")));
    files.write(QStringLiteral("pack/package.json"), "{}");
    files.square(QStringLiteral("pack/square.svg"));
    pane.press("Look again");
    QCOMPARE(pane.rowCount(), 1);
    QVERIFY(pane.table().isVisible());
}

void tst_IconsPage::showsTheFilesOfAnIconPack()
{
    const SvgFiles files;
    QVERIFY(QDir(files.folder()).mkpath(QStringLiteral("@scope/pack")));
    files.write(QStringLiteral("@scope/pack/package.json"), "{}");
    files.square(QStringLiteral("@scope/pack/square.svg"));
    GalleryApplication::get()->setArtworkFolder(files.folder());
    const Pane pane;
    pane.press("Icon packs");
    QTRY_VERIFY(pane.tells("square"));
    QTRY_VERIFY(pane.tells("@scope/pack"));
}

void tst_IconsPage::paintsIconsInTheColoursOfTheSet()
{
    const SvgFiles files;
    IconModel model;
    model.setFiles({ { QStringLiteral("square"), files.square(), QString() } });
    IconRenderers renderers;
    IconTable table(&model, &renderers);
    table.resize(800, 200);
    table.setIconPixels(20);
    table.setColorSetName(QStringLiteral("presence-busy"));
    const QImage picture = Pixels::render(table);
    const QColor color =
            OxaThemeUtils::getColorSet("presence-busy", OxaThemeUtils::AppThemeType::Global).normal;
    QCOMPARE(Pixels::countNear(picture, color, QRect(), 0), 6 * 20 * 20);
}

void tst_IconsPage::paintsOnlyTheRowsInSight()
{
    const SvgFiles files;
    WatchedModel model;
    const IconFile file { QStringLiteral("square"), files.square(), QString() };
    model.setFiles(std::vector<IconFile>(7000, file));
    IconRenderers renderers;
    IconTable table(&model, &renderers);
    table.resize(800, 500);
    table.setIconPixels(16);
    table.scrollTo(model.index(3500, 0), QTableView::PositionAtTop);
    model.asked.clear();
    Pixels::render(table);
    QVERIFY(model.asked.contains(3500));
    QVERIFY2(model.asked.size() <= 15, qPrintable(QString::number(model.asked.size())));
}

GALLERY_TEST_MAIN(tst_IconsPage)
#include "tst_iconspage.moc"
