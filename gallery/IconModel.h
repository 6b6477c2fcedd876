#pragma once

#include <QAbstractListModel>
#include <QMap>
#include <QVector>

/// The icons of the library's set by their names: those that there are in one size and style and that a search finds.
///
/// It knows names only; no icon is loaded.
class IconModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Qt::DisplayRole is the name, such as "reply".
    enum Role { PathRole = Qt::UserRole, IsMirroredRole };

    explicit IconModel(QObject *parent = nullptr);

    QVector<int> sizes() const; ///< of the whole set, in rising order
    int fileCount() const { return m_fileCount; }
    int nameCount() const { return m_icons.size(); }

    int size() const { return m_size; }
    void setSize(int size);
    bool isFilled() const { return m_isFilled; }
    void setFilled(bool filled);
    /// The words that a name has to contain, in any order and case.
    void setFilter(const QString &words);

    /// Of that icon in the present style; empty where the set has none.
    QString path(const QString &name, int size) const;
    QModelIndex indexOf(const QString &name) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Variant
    {
        int size;
        bool isFilled;
        QString path;
    };

    void readSet();
    void update();

    QMap<QString, QVector<Variant>> m_icons;
    QStringList m_shown;
    QStringList m_words;
    int m_fileCount = 0;
    int m_size = 20;
    bool m_isFilled = false;
};
