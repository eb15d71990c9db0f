// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "BusReader.h"

#include <QRegularExpression>

#include <vector>

/// What is told of a node and of all that is in it.
struct AccessibleTree
{
    /// Rows of lists and tables that are read; they are all alike.
    static constexpr int rowsToRead = 3;

    BusReader::Node node;
    BusReader::Told told;
    std::vector<AccessibleTree> children;

    /// Reads \a node and what it shows. What it hides has no children.
    static AccessibleTree read(const BusReader &reader, const BusReader::Node &node)
    {
        AccessibleTree tree { node, reader.read(node), {} };
        if (tree.told.is("hidden"))
            return tree;
        int cells = 0;
        for (int i = 0; i < tree.told.childCount && cells < rowsToRead; ++i) {
            tree.children.push_back(read(reader, reader.childAt(node, i)));
            cells += tree.children.back().isCell();
        }
        return tree;
    }

    bool isCell() const { return is("list item") || is("cell") || is("tree item"); }

    /// Returns the first node of \a role, this or one in it, or null.
    AccessibleTree *find(const char *role)
    {
        if (is(role))
            return this;
        for (AccessibleTree &child : children) {
            if (AccessibleTree *found = child.find(role))
                return found;
        }
        return nullptr;
    }

    /// Returns the innermost node called \a name that has \a action, if that is not empty, or null.
    const AccessibleTree *find(const QString &name, const QString &action) const
    {
        for (const AccessibleTree &child : children) {
            if (const AccessibleTree *found = child.find(name, action))
                return found;
        }
        const bool isUsable = action.isEmpty() || told.actions.contains(action);
        return told.name == name && isUsable ? this : nullptr;
    }

    /// Returns what nobody could use: what takes the focus without saying what it is, and what has
    /// no role, except for the parts of Qt's scroll areas.
    QStringList problems(const QString &path = QString()) const
    {
        const QString here = path + QLatin1Char('/') + told.line();
        QStringList all;
        if (told.is("focusable") && told.name.isEmpty())
            all += QStringLiteral("no name: ") + here;
        const bool isNothing = is("filler") || is("unknown") || is("invalid role");
        if (isNothing && !isPartOfScrollArea())
            all += QStringLiteral("no role: ") + here;
        for (const AccessibleTree &child : children)
            all += child.problems(here);
        return all;
    }

    /// Returns a line for each node, indented below that of its parent. Left out are nodes that say
    /// nothing, such as panes for the layout only, captions that repeat a name, scroll bars, and
    /// what is hidden, except for rows. Nodes that are alike are on one line if they have no
    /// children, or else refer to the first of them. Numbers are left out: many are measured.
    QStringList lines() const
    {
        QSet<QString> known;
        return lines(known);
    }

private:
    bool isPartOfScrollArea() const
    {
        const bool saysNothing = told.name.isEmpty() && told.actions.isEmpty();
        return saysNothing && (children.empty() || children.front().is("scroll bar"));
    }

    bool isBlank() const
    {
        return told.name.isEmpty() && told.remarks().isEmpty() && (is("panel") || is("filler"));
    }

    /// True for the caption of \a next, which says the same.
    bool isCaptionOf(const AccessibleTree &next) const
    {
        return is("label") && !next.is("label") && told.name == next.told.name;
    }

    /// Adds the children that say something, and those of the others.
    void addSaying(QVector<const AccessibleTree *> &all) const
    {
        for (const AccessibleTree &child : children) {
            const bool isHidden = child.told.is("hidden") && !child.isCell();
            if (child.isBlank())
                child.addSaying(all);
            else if (!isHidden && !child.is("scroll bar"))
                all += &child;
        }
    }

    QVector<const AccessibleTree *> saying() const
    {
        QVector<const AccessibleTree *> all;
        addSaying(all);
        for (int i = all.size() - 2; i >= 0; --i) {
            if (all[i]->isCaptionOf(*all[i + 1]))
                all.remove(i);
        }
        return all;
    }

    /// Returns the line of this node, named \a names.
    QString line(const QString &names) const
    {
        const bool hasRows = !children.empty() && children.back().isCell();
        const QString rows = hasRows ? QStringLiteral(" with %1 children").arg(told.childCount)
                                     : QString();
        QString line = QStringLiteral("%1 %2%3%4").arg(told.role, names, told.remarks(), rows);
        static const QRegularExpression number(QStringLiteral("[0-9][0-9.,]*"));
        return line.replace(number, QStringLiteral("#"))
                .replace(QLatin1Char('\n'), QLatin1String("\\n"));
    }

    bool is(const char *role) const { return told.role == QLatin1String(role); }

    QString quotedName() const { return QStringLiteral("'%1'").arg(told.name); }

    /// True for a node that differs from \a other by its name at most, and has none in it.
    bool isLike(const AccessibleTree &other) const
    {
        return saying().isEmpty() && told.role == other.told.role
                && told.remarks() == other.told.remarks();
    }

    QStringList lines(QSet<QString> &known) const
    {
        const QVector<const AccessibleTree *> all = saying();
        QStringList lines { line(quotedName()) };
        for (int i = 0; i < all.size(); ++i) {
            const AccessibleTree &child = *all[i];
            QStringList names { child.quotedName() };
            while (child.isLike(child) && i + 1 < all.size() && all[i + 1]->isLike(child))
                names += all[++i]->quotedName();
            QStringList inner = child.lines(known);
            inner.first() = child.line(names.join(QLatin1String(", ")));
            const QString text = inner.join(QLatin1Char('\n'));
            if (inner.size() > 1 && known.contains(text))
                inner = QStringList(inner.first() + QLatin1String(" as above"));
            known += text;
            for (const QString &each : qAsConst(inner))
                lines += QStringLiteral("  ") + each;
        }
        return lines;
    }
};
