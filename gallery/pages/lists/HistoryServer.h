// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <map>

class HistoryModel;
class QStandardItem;

/// A simulated server that answers the requests of a HistoryModel: page by page, slowly, and in
/// another order.
class HistoryServer : public QObject
{
    Q_OBJECT

public:
    /// The numbers of requests and answers.
    struct Figures
    {
        int asked = 0;    ///< Pages requested.
        int answered = 0; ///< Pages that the model took.
        int late = 0;     ///< Pages that came after the window had moved on.
    };

    /// Serves \a model, which must outlive the server.
    explicit HistoryServer(HistoryModel *model, QObject *parent = nullptr);

    /// Sets the mean time of an answer in milliseconds, for requests from now on. 600 at first.
    void setMeanDelay(int milliseconds) { m_meanDelay = milliseconds; }

    const Figures &figures() const { return m_figures; }

    /// Returns the number of pending answers.
    int pendingCount() const { return int(m_pending.size()); }

    /// Gives all pending answers now, in the order in which they would have come.
    void answerAll();

    /// Returns the items of \a page, which are the caller's to delete.
    static QVector<QStandardItem *> makeItems(int page);

Q_SIGNALS:
    /// \a line describes a request or an answer.
    void logged(const QString &line);

private:
    void ask(const QVector<int> &pages);
    bool isPending(int page) const;
    void answerNext();
    void answerDue();
    void waitForNext();

    HistoryModel *const m_model;
    std::multimap<qint64, int> m_pending; ///< Pages by the time at which they come.
    QElapsedTimer m_clock;
    QTimer m_timer;
    Figures m_figures;
    int m_meanDelay = 600;
};
