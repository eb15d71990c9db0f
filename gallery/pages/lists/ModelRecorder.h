// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class BaseListModel;

/// Records what a model emits as short texts, "ins 3,5 | count 6 | chg 1,2".
///
/// Numbers are the first and the last row, and the roles of a change follow where it names any:
/// "chg 1,1 [260]". Removals are "rem 0,1" and a reset is "reset".
class ModelRecorder : public QObject
{
    Q_OBJECT

public:
    /// Listens to \a model, which must outlive the recorder.
    explicit ModelRecorder(const BaseListModel *model, QObject *parent = nullptr);

    /// Runs \a operation, called \a name in the record, and emits recorded().
    void record(const QString &name, const std::function<void()> &operation);

Q_SIGNALS:
    /// \a line is an operation's name and what the model emitted meanwhile.
    void recorded(const QString &line);

private:
    void noteRange(const char *what, int first, int last, const QVector<int> &roles = {});

    QStringList m_notes;
};
