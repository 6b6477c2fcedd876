#pragma once

#include <UiElements/models/BaseListModel.h>

#include <QSize>
#include <QString>

/// A list with what a view shows in its place while it is empty.
class UIELEMENTS_EXPORT EmptyStateBaseListModel : public BaseListModel
{
    Q_OBJECT
    Q_PROPERTY(QString emptyStateHeader READ emptyStateHeader WRITE setEmptyStateHeader NOTIFY emptyStateDataChanged)
    Q_PROPERTY(
        QString emptyStateSubtitle READ emptyStateSubtitle WRITE setEmptyStateSubtitle NOTIFY emptyStateDataChanged)
    Q_PROPERTY(QString emptyStateImage READ emptyStateImage WRITE setEmptyStateImage NOTIFY emptyStateDataChanged)
    Q_PROPERTY(
        QSize emptyStateImageSize READ emptyStateImageSize WRITE setEmptyStateImageSize NOTIFY emptyStateDataChanged)

public:
    using BaseListModel::BaseListModel;

    QString emptyStateHeader() const { return m_header; }
    void setEmptyStateHeader(const QString &header) { set(m_header, header); }
    QString emptyStateSubtitle() const { return m_subtitle; }
    void setEmptyStateSubtitle(const QString &subtitle) { set(m_subtitle, subtitle); }
    QString emptyStateImage() const { return m_image; }
    void setEmptyStateImage(const QString &source) { set(m_image, source); } ///< as an Image in QML takes it
    QSize emptyStateImageSize() const { return m_imageSize; }
    void setEmptyStateImageSize(const QSize &size) { set(m_imageSize, size); } ///< in device-independent pixels

Q_SIGNALS:
    void emptyStateDataChanged();

private:
    template <typename T>
    void set(T &member, const T &value)
    {
        if (member == value)
            return;
        member = value;
        Q_EMIT emptyStateDataChanged();
    }

    QString m_header;
    QString m_subtitle;
    QString m_image;
    QSize m_imageSize;
};
