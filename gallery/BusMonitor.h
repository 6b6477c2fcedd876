#pragma once

#include <QAbstractListModel>
#include <QTime>
#include <QVector>

#include <memory>

/// What the two buses of the application object emitted, the newest first.
///
/// It listens to every signal there is, by its number, so that a signal that is added later is seen, too.
class BusMonitor : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Qt::DisplayRole is the name of the signal.
    enum Role { ArgumentsRole = Qt::UserRole, TimeRole };

    static constexpr int Capacity = 200;

    ~BusMonitor() override;

    /// The one of the application object. It is made, and begins to listen, when it is first asked for.
    static BusMonitor *get();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    void clear();
    /// What is emitted meanwhile is counted and otherwise lost.
    void setPaused(bool paused);
    bool isPaused() const { return m_paused; }
    int leftOut() const { return m_leftOut; }

    /// Without times equal signals make equal pictures.
    void setTimesShown(bool shown);
    bool timesShown() const { return m_timesShown; }

Q_SIGNALS:
    /// The number of rows, of what was left out, or whether it is paused.
    void countsChanged();

private:
    class Listener;
    struct Emission
    {
        QTime time;
        QString signal;
        QString arguments;
    };

    explicit BusMonitor(QObject *parent);
    void add(const Emission &emission);

    QVector<Emission> m_emissions;
    std::unique_ptr<Listener> m_listeners[2];
    int m_leftOut = 0;
    bool m_paused = false;
    bool m_timesShown = true;
};
