#pragma once

#include <UiElements/models/BaseListModel.h>
#include <UiElements/qml/WQmlEngine.h>

/// One row for each QML source that was shown: how many views of it live, what became of the last one, and how long
/// that took from the request to its first frame.
///
/// Qt::DisplayRole is all of it in one line. Without times equal pages make equal pictures.
class QmlLedger : public BaseListModel
{
    Q_OBJECT

public:
    enum Role { SourceRole = Qt::UserRole, LiveRole, StatusRole, NanosecondsRole };

    explicit QmlLedger(QObject *parent = nullptr);

    void listenTo(const WQmlEngine *engine);
    int liveCount() const;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    void liveCountChanged();

private:
    void note(WQmlEngine::QmlViewStatus status, const QString &source);
    void noteTime(const QString &url, qint64 nanoseconds);
};
