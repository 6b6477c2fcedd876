#pragma once

#include <UiElements/app/WFont.h>

#include <QStyledItemDelegate>

class QAbstractItemView;

/// Rows whose background and focus come from the style sheet of the view and whose content is painted here, in the
/// view's colors. A row is as high as its content needs in the width of the view.
class RowDelegate : public QStyledItemDelegate
{
public:
    explicit RowDelegate(QAbstractItemView *view);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// Of a row whose content fits in one line.
    int lineHeight() const;

protected:
    /// Paints the content in the rect. With a null painter nothing is painted; the size is what the content takes.
    virtual QSize content(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                          const QModelIndex &index) const = 0;
    virtual bool hasBackground(const QModelIndex &) const { return true; }

    static QFont font(WFont::Token token);
    static QColor color(const QStyleOptionViewItem &option, const char *set);
    /// The color of the row's text in its state.
    static QColor textColor(const QStyleOptionViewItem &option);

private:
    QAbstractItemView *const m_view;
};

/// For a ShortcutModel: the description and, at the other side, the keys as key caps, or below it if they do not fit.
class ShortcutDelegate : public RowDelegate
{
public:
    using RowDelegate::RowDelegate;

protected:
    QSize content(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                  const QModelIndex &index) const override;
    bool hasBackground(const QModelIndex &index) const override;
};

/// For a BusMonitor: the name of the signal and the time, and below them the arguments.
class EmissionDelegate : public RowDelegate
{
public:
    using RowDelegate::RowDelegate;

protected:
    QSize content(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                  const QModelIndex &index) const override;
};
