#pragma once

#include <QLayout>
#include <QVector>

/// Places widgets in rows, as many in each as fit, in the direction of the parent widget.
class FlowLayout : public QLayout
{
public:
    FlowLayout(int horizontalSpacing, int verticalSpacing);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override { m_items.append(item); }
    int count() const override { return m_items.size(); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return arrange(QRect(0, 0, width, 0), false); }
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    int arrange(const QRect &rect, bool apply) const;

    QVector<QLayoutItem *> m_items;
    const int m_horizontal;
    const int m_vertical;
};
