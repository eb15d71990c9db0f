// SPDX-License-Identifier: Apache-2.0
#include "TabBars.h"
#include "support/RandomSeed.h"
#include "support/TestApplication.h"

#include <vector>

namespace {

/// What a bar should look like after the same operations.
class Model
{
public:
    struct Tab
    {
        QString text;
        bool isVisible = true;
        bool isEnabled = true;
    };

    /// Returns the tabs as TabBars::describe() does.
    QString describe() const
    {
        const int stop = stopIndex();
        QStringList texts;
        for (int i = 0; i < int(tabs.size()); ++i) {
            QString text = tabs.at(std::size_t(i)).text;
            if (i == current)
                text += QLatin1Char('*');
            if (i == current || i == stop)
                text += QLatin1Char('!');
            if (i == stop)
                text += QLatin1Char('^');
            texts += text;
        }
        return texts.join(QLatin1Char(' '));
    }

    std::vector<Tab> tabs;
    int current = -1;

private:
    int stopIndex() const
    {
        const auto isUsable = [](const Tab &tab) { return tab.isVisible && tab.isEnabled; };
        if (current == -1)
            return -1;
        if (isUsable(tabs.at(std::size_t(current))))
            return current;
        for (int i = 0; i < int(tabs.size()); ++i) {
            if (isUsable(tabs.at(std::size_t(i))))
                return i;
        }
        return -1;
    }
};

/// A bar and its model, on which each operation is done alike.
class Pair
{
public:
    void add()
    {
        const QString text = QStringLiteral("t%1").arg(m_added++);
        model.tabs.push_back({ text });
        bar.addTab(text);
    }

    void remove(int index)
    {
        model.tabs.erase(model.tabs.begin() + index);
        model.current = model.tabs.empty() ? -1 : 0;
        bar.removeTab(index);
    }

    void setCurrent(int index)
    {
        model.current = index;
        bar.setCurrentIndex(index);
    }

    void toggleVisible(int index)
    {
        bool &isVisible = model.tabs.at(std::size_t(index)).isVisible;
        isVisible = !isVisible;
        bar.setTabVisible(index, isVisible);
    }

    void toggleEnabled(int index)
    {
        bool &isEnabled = model.tabs.at(std::size_t(index)).isEnabled;
        isEnabled = !isEnabled;
        bar.setTabEnabled(index, isEnabled);
    }

    void click(int index)
    {
        if (model.tabs.at(std::size_t(index)).isEnabled)
            model.current = index;
        bar.getTab(index)->click();
    }

    void doSomething(std::mt19937 &generator)
    {
        const int last = int(model.tabs.size()) - 1;
        const int operation = last < 0 ? 0 : randomFrom(generator, 0, 6);
        const int index = last < 0 ? 0 : randomFrom(generator, 0, last);
        switch (operation) {
        case 0:
            return add();
        case 1:
            return remove(index);
        case 2:
            return setCurrent(index);
        case 3:
            return toggleVisible(index);
        case 4:
            return toggleEnabled(index);
        default:
            return click(index);
        }
    }

    OxaTabBar bar;
    Model model;

private:
    int m_added = 0;
};

} // namespace

class tst_OxaTabBarRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsOneTabCheckedAndInTheTabChainThroughAnyOperations();
};

void tst_OxaTabBarRandom::keepsOneTabCheckedAndInTheTabChainThroughAnyOperations()
{
    std::mt19937 generator = seededGenerator();
    for (int run = 0; run < 20; ++run) {
        Pair pair;
        for (int step = 0; step < 100; ++step) {
            pair.doSomething(generator);
            QCOMPARE(TabBars::describe(pair.bar), pair.model.describe());
            QCOMPARE(pair.bar.currentIndex(), pair.model.current);
        }
    }
}

UIELEMENTS_TEST_MAIN(tst_OxaTabBarRandom)
#include "tst_oxatabbar_random.moc"
