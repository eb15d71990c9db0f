// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyledItemDelegate>

#include <deque>
#include <functional>

/// How high the rows of a list are, known or guessed, and what lies under their widgets. Measuring
/// takes time: a row is measured when it comes near the screen, or when there is time. What was
/// measured counts from the next take() on, so that Qt never sees half of it.
class RowHeights : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// How large a row is, and its content.
    struct Size
    {
        int height = -1;
        QSize content;
    };
    using Measure = std::function<Size(int row)>;

    RowHeights(Measure measure, QObject *parent);

    int count() const { return int(m_rows.size()); }
    void clear();
    void insert(int first, int count);
    void remove(int first, int count);

    /// The height of \a row is another one, or that of all rows.
    void forget(int row);
    void forgetAll();

    /// Measures those of \a count rows from \a first on that are not known. Returns whether any of
    /// them is not as high as it was laid out.
    bool measure(int first, int count);

    /// Measures unknown rows, those next to \a row first, for \a ms milliseconds. Returns whether
    /// there are any left.
    bool measureFor(int ms, int row);

    /// Makes what was measured count. Rows have to be laid out after that.
    void take();

    bool isKnown(int row) const { return m_rows[size_t(row)].measured.height >= 0; }

    /// The size of the content of \a row, which is measured for that if it is not known.
    QSize contentSize(int row);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    struct Row
    {
        int height = 40;
        Size measured;
    };

    bool measureRow(int row);

    const Measure m_measure;
    std::deque<Row> m_rows;
    int m_unknown = 0;
};
