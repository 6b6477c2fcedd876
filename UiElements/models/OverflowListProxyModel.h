#pragma once

#include <UiElements/uielements_export.h>

#include <QSortFilterProxyModel>

#include <array>

/// The rows of a list that did not fit where they are shown, for the menu behind them: all rows after row number
/// firstVisibleIndex of the source. That is the last one that did fit; whoever lays out the others tells it.
class UIELEMENTS_EXPORT OverflowListProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_PROPERTY(int firstVisibleIndex READ firstVisibleIndex WRITE setFirstVisibleIndex NOTIFY firstVisibleIndexChanged)
    Q_PROPERTY(QString header READ header WRITE setHeader NOTIFY headerChanged)

public:
    explicit OverflowListProxyModel(QObject *parent = nullptr);
    OverflowListProxyModel(int firstVisibleIndex, QObject *parent);

    int firstVisibleIndex() const { return m_firstVisibleIndex; }
    void setFirstVisibleIndex(int index); ///< 0, the default, leaves out row 0; -1 has all rows
    QString header() const { return m_header; }
    void setHeader(const QString &header);

    void setSourceModel(QAbstractItemModel *model) override;
    Q_INVOKABLE void unsetSourceModel();

Q_SIGNALS:
    void firstVisibleIndexChanged();
    void headerChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    void onSourceRowsShifted(const QModelIndex &parent, int first);

    int m_firstVisibleIndex = 0;
    QString m_header;
    std::array<QMetaObject::Connection, 2> m_connections;
};
